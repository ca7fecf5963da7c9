// The disks of the in-memory Windows: folders and files with their bytes, attributes and links.
// Paths are full, begin with a drive ("C:\..."), compare without regard to case and take both
// slashes; the spelling of the first making is kept. A link, like a junction, stands for what its
// target names and may lead nowhere or in circles. Not modelled: short names, streams, rights of
// single users and network paths; times are those that are set, and only platform/Folders.h limits
// the length of a path.
#ifndef VANTREL_PLATFORM_MEMORY_FILETREE_H_
#define VANTREL_PLATFORM_MEMORY_FILETREE_H_

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Folders.h"

namespace vantrel::platform::memory {

class FileTree {
 public:
  // A drive C: with nothing on it.
  FileTree();
  ~FileTree();
  FileTree(const FileTree&) = delete;
  FileTree& operator=(const FileTree&) = delete;

  // For tests: these make missing folders on the way and obey no attribute. The path must be full.
  void MakeFolder(const std::string& path);
  void Put(const std::string& path, const std::string& content);
  // A link to the file or folder that the target names; it must exist.
  void MakeLink(const std::string& path, const std::string& target);
  void Remove(const std::string& path);  // with all that is below; no effect on nothing
  // Read-only, hidden and system, as bits; a link's own.
  void SetAttributes(const std::string& path, std::uint32_t attributes);
  void SetReadOnly(const std::string& path, bool readOnly) {
    SetAttribute(path, AttributeReadOnly, readOnly);
  }
  void SetHidden(const std::string& path, bool hidden) {
    SetAttribute(path, AttributeHidden, hidden);
  }
  // Units of 100 ns since 1601, world time; 0 at first, and no call changes it.
  void SetChanged(const std::string& path, std::int64_t changed);
  // Locked: another program has the file open for itself alone, or works in the folder.
  void SetLocked(const std::string& path, bool locked);
  // How many more bytes the disk takes; unlimited until set.
  void SetFreeSpace(std::optional<std::uint64_t> bytes) { freeSpace_ = bytes; }

  // Whether there is a file, folder or link; a link need not lead anywhere.
  bool Exists(const std::string& path) const;
  // Through links; absent for a folder or nothing.
  std::optional<std::string> Read(const std::string& path) const;
  bool IsFile(const std::string& path) const;
  bool IsFolder(const std::string& path) const;
  bool IsLocked(const std::string& path) const;
  // As a listing shows them, AttributeDirectory, AttributeReparsePoint and AttributeArchive among
  // them; 0 for nothing.
  std::uint32_t AttributesOf(const std::string& path) const;
  bool IsReadOnly(const std::string& path) const { return Has(path, AttributeReadOnly); }
  bool IsHidden(const std::string& path) const { return Has(path, AttributeHidden); }
  // The names directly in a folder, in alphabetical order.
  std::vector<std::string> List(const std::string& folder) const;
  // All files' paths, in alphabetical order; links are not followed.
  std::vector<std::string> AllFiles() const;

  // As the system does it for a program, with the contract of platform/Files.h.
  std::int32_t Length(const std::string& path, std::uint64_t& length) const;
  std::int32_t Load(const std::string& path, std::string& content) const;
  std::int32_t Create(const std::string& path);
  std::int32_t Write(const std::string& path, const std::string& content);
  std::int32_t Append(const std::string& path, const std::string& content);

  // The same with the contract of platform/Folders.h.
  std::int32_t ListMatching(const std::string& pattern, std::vector<DirectoryEntry>& entries) const;
  std::int32_t Delete(const std::string& path);
  std::int32_t RemoveFolder(const std::string& path);
  std::int32_t ReplaceAttributes(const std::string& path, std::uint32_t attributes);
  bool MakePath(const std::string& path);

  // The same with the contract of platform/BinaryFiles.h; the file stays what it is when its name
  // goes.
  struct Node;
  std::int32_t Open(const std::string& path, bool forWriting, std::shared_ptr<Node>& file) const;
  static const std::string& ContentOf(const Node& file);
  std::int32_t WriteAt(Node& file, std::uint64_t offset, std::string_view bytes);

 private:
  void SetAttribute(const std::string& path, std::uint32_t attribute, bool set) {
    const std::uint32_t others = AttributesOf(path) & ~attribute;
    SetAttributes(path, set ? others | attribute : others);
  }
  bool Has(const std::string& path, std::uint32_t attribute) const {
    return (AttributesOf(path) & attribute) != 0;
  }
  // The node itself, or what it leads to as a link; nullptr for nothing.
  std::shared_ptr<Node> Find(const std::string& path) const;
  std::shared_ptr<Node> Followed(const std::string& path) const;
  std::shared_ptr<Node> Descend(const std::string& cleaned, int links) const;
  std::shared_ptr<Node> Follow(std::shared_ptr<Node> node, int links) const;
  Node& Existing(const std::string& path);
  std::shared_ptr<Node> FolderAbove(const std::string& path) const;
  // The codes of a path that is no name, of one to be read, and of one to be written.
  std::int32_t NameRefusal(const std::string& path) const;
  std::int32_t ReadRefusal(const std::string& path) const;
  std::int32_t WriteRefusal(const std::string& path) const;
  void Erase(const std::string& path);
  std::int32_t Take(std::uint64_t bytes);

  std::shared_ptr<Node> drives_;
  std::optional<std::uint64_t> freeSpace_;
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_FILETREE_H_
