// Text files and the like, whole: what the program reads, writes and extends by name. Paths are in
// the system code page and compare without regard to case; both slashes separate. Every file is
// open to other readers and writers while a call has it open, and closed when the call ends.
// Contents are bytes: line ends, NULs and control characters pass as they are.
//
// Codes that the calls give, 0 for success: 2 no such file, 3 no such folder or an empty path, 5 a
// folder, or a file that may not be written, 8 no memory for the content, 32 open elsewhere for
// itself alone, 112 disk full, 123 a name with a forbidden character; others as the system has
// them.
#ifndef VANTREL_PLATFORM_FILES_H_
#define VANTREL_PLATFORM_FILES_H_

#include <cstdint>
#include <string>

namespace vantrel::platform {

class Files {
 public:
  virtual ~Files() = default;

  // Whether the path names an existing file; a folder is none.
  virtual bool FileExists(const std::string& path) = 0;

  // The file's length in bytes, without opening it. `length` is left alone by a failure.
  virtual std::int32_t FileLength(const std::string& path, std::uint64_t& length) = 0;

  // The file's whole content. `content` is empty after a failure.
  virtual std::int32_t ReadTextFile(const std::string& path, std::string& content) = 0;

  // Makes an empty file where there is none; one that is there keeps its content.
  virtual std::int32_t CreateTextFile(const std::string& path) = 0;

  // Replaces the file's content, creating it when missing. The file is cut first: where the disk is
  // full, it is left empty.
  virtual std::int32_t WriteTextFile(const std::string& path, const std::string& content) = 0;

  // Puts the content behind the file's, creating it when missing. All of it or, after a failure,
  // nothing.
  virtual std::int32_t AppendTextFile(const std::string& path, const std::string& content) = 0;
};

}  // namespace vantrel::platform

#endif  // VANTREL_PLATFORM_FILES_H_
