// The run-time errors of the program's language: a number that handlers test and a description
// that boxes show. They are thrown by conversions, forms and file operations, and trapped by the
// handlers that ask for it; nothing else in the program throws across components.
#ifndef VANTREL_TEXT_RUNTIMEERROR_H_
#define VANTREL_TEXT_RUNTIMEERROR_H_

#include <exception>
#include <string>

namespace vantrel::text {

enum class ErrorNumber : int {
  InvalidProcedureCall = 5,
  Overflow = 6,
  OutOfMemory = 7,
  SubscriptOutOfRange = 9,
  TypeMismatch = 13,
  BadFileNameOrNumber = 52,
  FileNotFound = 53,
  DeviceIoError = 57,
  FileAlreadyExists = 58,
  DiskFull = 61,
  InputPastEndOfFile = 62,
  DeviceUnavailable = 68,
  PermissionDenied = 70,
  PathFileAccessError = 75,
  PathNotFound = 76,
  InvalidPropertyValue = 380,
  ElementNotFound = 35601,
  KeyNotUnique = 35602,
};

// The description that belongs to a number, as the boxes show it, e.g. "Type mismatch".
const char* Describe(ErrorNumber number);

class RuntimeError : public std::exception {
 public:
  explicit RuntimeError(ErrorNumber number) : number_(number) {}

  ErrorNumber Number() const { return number_; }
  std::string Description() const { return Describe(number_); }
  const char* what() const noexcept override { return Describe(number_); }

 private:
  ErrorNumber number_;
};

}  // namespace vantrel::text

#endif  // VANTREL_TEXT_RUNTIMEERROR_H_
