#include "fileutil/NumberedFile.h"

#include "fileutil/FileErrors.h"

namespace vantrel::fileutil {

NumberedFile::NumberedFile(program::Program& program, const std::string& path,
                           platform::FileAccess access)
    : program_(program), number_(program.fileNumbers.FreeFile()) {
  RaiseFileError(program_.fileNumbers.Open(number_, path, access));
}

NumberedFile::~NumberedFile() { program_.fileNumbers.Close(number_); }

std::uint64_t NumberedFile::Length() const {
  return program_.platform.binaryFiles.FileLength(Handle());
}

std::size_t NumberedFile::ReadAt(std::uint64_t offset, std::span<char> buffer) {
  std::size_t count = 0;
  RaiseFileError(program_.platform.binaryFiles.ReadAt(Handle(), offset, buffer, count));
  return count;
}

void NumberedFile::WriteAt(std::uint64_t offset, std::string_view bytes) {
  RaiseFileError(program_.platform.binaryFiles.WriteAt(Handle(), offset, bytes));
}

}  // namespace vantrel::fileutil
