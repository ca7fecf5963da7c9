#include "text/RuntimeError.h"

#include <algorithm>
#include <iterator>

namespace vantrel::text {
namespace {

struct Row {
  ErrorNumber number;
  const char* description;
};

constexpr Row Descriptions[] = {
    {ErrorNumber::InvalidProcedureCall, "Invalid procedure call or argument"},
    {ErrorNumber::Overflow, "Overflow"},
    {ErrorNumber::OutOfMemory, "Out of memory"},
    {ErrorNumber::SubscriptOutOfRange, "Subscript out of range"},
    {ErrorNumber::TypeMismatch, "Type mismatch"},
    {ErrorNumber::BadFileNameOrNumber, "Bad file name or number"},
    {ErrorNumber::FileNotFound, "File not found"},
    {ErrorNumber::DeviceIoError, "Device I/O error"},
    {ErrorNumber::FileAlreadyExists, "File already exists"},
    {ErrorNumber::DiskFull, "Disk full"},
    {ErrorNumber::InputPastEndOfFile, "Input past end of file"},
    {ErrorNumber::DeviceUnavailable, "Device unavailable"},
    {ErrorNumber::PermissionDenied, "Permission denied"},
    {ErrorNumber::PathFileAccessError, "Path/File access error"},
    {ErrorNumber::PathNotFound, "Path not found"},
    {ErrorNumber::InvalidPropertyValue, "Invalid property value"},
    {ErrorNumber::ElementNotFound, "Element not found"},
    {ErrorNumber::KeyNotUnique, "Key is not unique in collection"},
};

}  // namespace

const char* Describe(ErrorNumber number) {
  const auto* row = std::find_if(std::begin(Descriptions), std::end(Descriptions),
                                 [number](const Row& r) { return r.number == number; });
  return row == std::end(Descriptions) ? "Application-defined or object-defined error"
                                       : row->description;
}

}  // namespace vantrel::text
