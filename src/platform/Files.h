// The few file operations that the program makes by name. Paths are in the system code page and
// compare without regard to case; both slashes separate.
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

  // Replaces the file's content, creating it when missing, and keeps it open to other readers and
  // writers meanwhile. 0 or the system error code.
  virtual std::int32_t WriteTextFile(const std::string& path, const std::string& content) = 0;
};

}  // namespace vantrel::platform

#endif  // VANTREL_PLATFORM_FILES_H_
