// What a system error code of a file operation means in the program's language.
#ifndef VANTREL_FILEUTIL_FILEERRORS_H_
#define VANTREL_FILEUTIL_FILEERRORS_H_

#include <cstdint>

#include "text/RuntimeError.h"

namespace vantrel::fileutil {

struct FileErrorRow {
  std::int32_t Code;
  text::ErrorNumber Number;
};

inline constexpr FileErrorRow FileErrorRows[] = {
    {2, text::ErrorNumber::FileNotFound},           // no such file
    {3, text::ErrorNumber::PathNotFound},           // no such folder
    {5, text::ErrorNumber::PermissionDenied},       // refused
    {8, text::ErrorNumber::OutOfMemory},            // no memory for the content
    {19, text::ErrorNumber::PermissionDenied},      // a write-protected medium
    {21, text::ErrorNumber::DeviceUnavailable},     // a drive without a medium
    {32, text::ErrorNumber::PermissionDenied},      // locked by somebody else
    {39, text::ErrorNumber::DiskFull},              // disk full
    {112, text::ErrorNumber::DiskFull},             // disk full
    {123, text::ErrorNumber::BadFileNameOrNumber},  // letters that no file name has
    {145, text::ErrorNumber::PathFileAccessError},  // a folder that is not empty
    {206, text::ErrorNumber::BadFileNameOrNumber},  // a name that is too long
    {267, text::ErrorNumber::PathFileAccessError},  // a file in a folder's place
};

// The error that belongs to a code other than 0; a device error for one without a row.
constexpr text::ErrorNumber FileErrorNumber(std::int32_t code) {
  for (const FileErrorRow& row : FileErrorRows) {
    if (row.Code == code) return row.Number;
  }
  return text::ErrorNumber::DeviceIoError;
}

// Raises the error of a code; nothing for 0.
inline void RaiseFileError(std::int32_t code) {
  if (code != 0) throw text::RuntimeError(FileErrorNumber(code));
}

}  // namespace vantrel::fileutil

#endif  // VANTREL_FILEUTIL_FILEERRORS_H_
