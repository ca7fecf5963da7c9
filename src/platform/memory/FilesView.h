// The file operations as a process sees them, over the world's disks.
#ifndef VANTREL_PLATFORM_MEMORY_FILESVIEW_H_
#define VANTREL_PLATFORM_MEMORY_FILESVIEW_H_

#include "platform/Files.h"
#include "platform/memory/FileTree.h"

namespace vantrel::platform::memory {

// Paths end at their first NUL.
class FilesView : public Files {
 public:
  explicit FilesView(FileTree& tree) : tree_(tree) {}

  bool FileExists(const std::string& path) override { return tree_.IsFile(path.c_str()); }

  std::int32_t FileLength(const std::string& path, std::uint64_t& length) override {
    return tree_.Length(path.c_str(), length);
  }

  std::int32_t ReadTextFile(const std::string& path, std::string& content) override {
    return tree_.Load(path.c_str(), content);
  }

  std::int32_t CreateTextFile(const std::string& path) override {
    return tree_.Create(path.c_str());
  }

  std::int32_t WriteTextFile(const std::string& path, const std::string& content) override {
    return tree_.Write(path.c_str(), content);
  }

  std::int32_t AppendTextFile(const std::string& path, const std::string& content) override {
    return tree_.Append(path.c_str(), content);
  }

 private:
  FileTree& tree_;
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_FILESVIEW_H_
