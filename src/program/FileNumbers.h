// The program's file numbers: an open file has one, from 1 on, until it is closed. One owner for
// the whole program, so that a number says how many files are open below it.
#ifndef VANTREL_PROGRAM_FILENUMBERS_H_
#define VANTREL_PROGRAM_FILENUMBERS_H_

#include <cstdint>
#include <map>
#include <string>

#include "platform/BinaryFiles.h"

namespace vantrel::program {

class FileNumbers {
 public:
  // The files must outlive the numbers.
  explicit FileNumbers(platform::BinaryFiles& files) : files_(files) {}
  FileNumbers(const FileNumbers&) = delete;
  FileNumbers& operator=(const FileNumbers&) = delete;
  ~FileNumbers() { CloseAll(); }

  // The lowest number that is not in use.
  int FreeFile() const;

  // Opens an existing file under a free number. 0 or the system's error code.
  std::int32_t Open(int number, const std::string& path, platform::FileAccess access);
  // 0 for a number that is not in use.
  platform::OpenFileHandle Handle(int number) const;
  // No effect for a number that is not in use.
  void Close(int number);
  void CloseAll();

 private:
  platform::BinaryFiles& files_;
  std::map<int, platform::OpenFileHandle> open_;
};

}  // namespace vantrel::program

#endif  // VANTREL_PROGRAM_FILENUMBERS_H_
