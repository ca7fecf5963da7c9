// A file that is open for binary access under the next free file number of the program, until the
// object dies.
#ifndef VANTREL_FILEUTIL_NUMBEREDFILE_H_
#define VANTREL_FILEUTIL_NUMBEREDFILE_H_

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "program/Program.h"

namespace vantrel::fileutil {

class NumberedFile {
 public:
  // Opens an existing file; raises the error of a failure (53, 76, 70, ...).
  NumberedFile(program::Program& program, const std::string& path, platform::FileAccess access);
  ~NumberedFile();
  NumberedFile(const NumberedFile&) = delete;
  NumberedFile& operator=(const NumberedFile&) = delete;

  int Number() const { return number_; }
  std::uint64_t Length() const;

  // Reads at the 0-based offset; the bytes read, fewer than the buffer's at the end of the file
  // only. Raises the error of a failure.
  std::size_t ReadAt(std::uint64_t offset, std::span<char> buffer);
  // Writes at the 0-based offset; raises the error of a failure.
  void WriteAt(std::uint64_t offset, std::string_view bytes);

 private:
  platform::OpenFileHandle Handle() const { return program_.fileNumbers.Handle(number_); }

  program::Program& program_;
  int number_;
};

}  // namespace vantrel::fileutil

#endif  // VANTREL_FILEUTIL_NUMBEREDFILE_H_
