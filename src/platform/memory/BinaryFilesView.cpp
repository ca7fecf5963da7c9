#include "platform/memory/BinaryFilesView.h"

#include <algorithm>

#include "platform/Handles.h"

namespace vantrel::platform::memory {

const BinaryFilesView::File* BinaryFilesView::Find(OpenFileHandle file) const {
  const auto found = files_.find(file);
  return found == files_.end() ? nullptr : &found->second;
}

std::int32_t BinaryFilesView::OpenFile(const std::string& path, FileAccess access,
                                       OpenFileHandle& opened) {
  const bool isLink = (tree_.AttributesOf(path.c_str()) & AttributeReparsePoint) != 0;
  if (access == FileAccess::ReadWriteNoLink && isLink) return ErrorAccessDenied;
  File file{nullptr, access != FileAccess::Read};
  const std::int32_t code = tree_.Open(path.c_str(), file.writable, file.node);
  if (code != ErrorSuccess) return code;
  opened = next_++;
  files_[opened] = file;
  return ErrorSuccess;
}

std::uint64_t BinaryFilesView::FileLength(OpenFileHandle file) {
  const File* const open = Find(file);
  return open == nullptr ? 0 : FileTree::ContentOf(*open->node).size();
}

std::int32_t BinaryFilesView::ReadAt(OpenFileHandle file, std::uint64_t offset,
                                     std::span<char> buffer, std::size_t& count) {
  count = 0;
  const File* const open = Find(file);
  if (open == nullptr) return ErrorInvalidHandle;
  const std::string& content = FileTree::ContentOf(*open->node);
  if (offset >= content.size()) return ErrorSuccess;
  count = std::min<std::size_t>(buffer.size(), content.size() - offset);
  std::copy_n(content.begin() + static_cast<std::ptrdiff_t>(offset), count, buffer.begin());
  return ErrorSuccess;
}

std::int32_t BinaryFilesView::WriteAt(OpenFileHandle file, std::uint64_t offset,
                                      std::string_view bytes) {
  const File* const open = Find(file);
  if (open == nullptr) return ErrorInvalidHandle;
  if (!open->writable) return ErrorAccessDenied;
  return tree_.WriteAt(*open->node, offset, bytes);
}

}  // namespace vantrel::platform::memory
