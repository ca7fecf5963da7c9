// Files as bytes at places, opened, read and written in any order. Other programs may read, write
// and delete an open file. Codes are 0 for success or the system's error code.
#ifndef VANTREL_PLATFORM_BINARYFILES_H_
#define VANTREL_PLATFORM_BINARYFILES_H_

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace vantrel::platform {

using OpenFileHandle = std::uintptr_t;  // an open file; 0 is none

enum class FileAccess {
  Read,
  ReadWrite,
  ReadWriteNoLink,  // a link is refused and not followed, as is a device
};

class BinaryFiles {
 public:
  virtual ~BinaryFiles() = default;

  // Opens an existing file; a missing one is not made. 2 if there is none, 3 for a missing folder,
  // 5 for a folder, a read-only file that is to be written, or what the access refuses, 32 if
  // somebody has it for himself alone. The caller closes `opened`.
  virtual std::int32_t OpenFile(const std::string& path, FileAccess access,
                                OpenFileHandle& opened) = 0;

  // The length in bytes; 0 for no open file.
  virtual std::uint64_t FileLength(OpenFileHandle file) = 0;

  // Reads at the 0-based offset into the buffer; `count` becomes the number of bytes read, fewer
  // than the buffer's at the end of the file only. 6 for no open file.
  virtual std::int32_t ReadAt(OpenFileHandle file, std::uint64_t offset, std::span<char> buffer,
                              std::size_t& count) = 0;

  // Writes at the 0-based offset; a file that ends before it grows by zeros. 5 if the file was
  // opened for reading, 6 for no open file, 112 if the disk is full.
  virtual std::int32_t WriteAt(OpenFileHandle file, std::uint64_t offset,
                               std::string_view bytes) = 0;

  // No effect for no open file.
  virtual void CloseFile(OpenFileHandle file) = 0;
};

}  // namespace vantrel::platform

#endif  // VANTREL_PLATFORM_BINARYFILES_H_
