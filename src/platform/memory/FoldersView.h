// The folder operations as a process sees them, over the world's disks.
#ifndef VANTREL_PLATFORM_MEMORY_FOLDERSVIEW_H_
#define VANTREL_PLATFORM_MEMORY_FOLDERSVIEW_H_

#include "platform/Folders.h"
#include "platform/Handles.h"
#include "platform/memory/FileTree.h"

namespace vantrel::platform::memory {

// Paths end at their first NUL.
class FoldersView : public Folders {
 public:
  explicit FoldersView(FileTree& tree) : tree_(tree) {}

  bool FolderExists(const std::string& path) override {
    return !IsTooLong(path) && tree_.IsFolder(path.c_str());
  }

  std::int32_t ListFolder(const std::string& pattern,
                          std::vector<DirectoryEntry>& entries) override {
    return IsTooLong(pattern) ? ErrorPathNotFound : tree_.ListMatching(pattern.c_str(), entries);
  }

  std::int32_t DeleteFileA(const std::string& path) override {
    return IsTooLong(path) ? ErrorPathNotFound : tree_.Delete(path.c_str());
  }

  std::int32_t RemoveDirectoryA(const std::string& path) override {
    return IsTooLong(path) ? ErrorPathNotFound : tree_.RemoveFolder(path.c_str());
  }

  std::int32_t SetFileAttributesA(const std::string& path, std::uint32_t attributes) override {
    return IsTooLong(path) ? ErrorPathNotFound : tree_.ReplaceAttributes(path.c_str(), attributes);
  }

  bool MakeSureDirectoryPathExists(const std::string& path) override {
    // Only the folders count, with the backslash behind them.
    return !IsTooLong(path.substr(0, path.rfind('\\') + 1)) && tree_.MakePath(path.c_str());
  }

 private:
  static bool IsTooLong(const std::string& path) {
    constexpr std::size_t LongestPath = 259;
    return path.size() > LongestPath;
  }

  FileTree& tree_;
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_FOLDERSVIEW_H_
