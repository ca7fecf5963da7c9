// The open files of one process, over the world's disks.
#ifndef VANTREL_PLATFORM_MEMORY_BINARYFILESVIEW_H_
#define VANTREL_PLATFORM_MEMORY_BINARYFILESVIEW_H_

#include <map>
#include <memory>

#include "platform/BinaryFiles.h"
#include "platform/memory/FileTree.h"

namespace vantrel::platform::memory {

class BinaryFilesView : public BinaryFiles {
 public:
  explicit BinaryFilesView(FileTree& tree) : tree_(tree) {}

  std::int32_t OpenFile(const std::string& path, FileAccess access,
                        OpenFileHandle& opened) override;
  std::uint64_t FileLength(OpenFileHandle file) override;
  std::int32_t ReadAt(OpenFileHandle file, std::uint64_t offset, std::span<char> buffer,
                      std::size_t& count) override;
  std::int32_t WriteAt(OpenFileHandle file, std::uint64_t offset, std::string_view bytes) override;
  void CloseFile(OpenFileHandle file) override { files_.erase(file); }

  std::size_t OpenFiles() const { return files_.size(); }

 private:
  struct File {
    std::shared_ptr<FileTree::Node> node;
    bool writable = false;
  };

  const File* Find(OpenFileHandle file) const;

  FileTree& tree_;
  std::map<OpenFileHandle, File> files_;
  OpenFileHandle next_ = 1;
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_BINARYFILESVIEW_H_
