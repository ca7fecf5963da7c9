// The disks of the in-memory Windows: folders and files with their bytes. Paths are full, begin
// with a drive ("C:\..."), compare without regard to case and take both slashes; the spelling of
// the first making is kept. Not modelled: short names, links, streams, rights of single users,
// times, wildcards and network paths.
#ifndef VANTREL_PLATFORM_MEMORY_FILETREE_H_
#define VANTREL_PLATFORM_MEMORY_FILETREE_H_

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vantrel::platform::memory {

class FileTree {
 public:
  // A drive C: with nothing on it.
  FileTree();

  // A test's own hand: makes missing folders on the way and obeys no mark. The path must be full.
  void MakeFolder(const std::string& path);
  void Put(const std::string& path, const std::string& content);
  void Remove(const std::string& path);  // with all that is below; no effect on nothing
  void SetReadOnly(const std::string& path, bool readOnly);
  void SetHidden(const std::string& path, bool hidden);
  // Locked: another program has the file open for itself alone.
  void SetLocked(const std::string& path, bool locked);
  // How many more bytes the disk takes; unlimited until told.
  void SetFreeSpace(std::optional<std::uint64_t> bytes) { freeSpace_ = bytes; }

  // Absent for a folder or nothing.
  std::optional<std::string> Read(const std::string& path) const;
  bool IsFile(const std::string& path) const;
  bool IsFolder(const std::string& path) const;
  bool IsReadOnly(const std::string& path) const;
  bool IsHidden(const std::string& path) const;
  // The names directly in a folder, in alphabetical order.
  std::vector<std::string> List(const std::string& folder) const;
  // All files' paths, in alphabetical order.
  std::vector<std::string> AllFiles() const;

  // As the system does it for a program, with the contract of platform/Files.h.
  std::int32_t Length(const std::string& path, std::uint64_t& length) const;
  std::int32_t Load(const std::string& path, std::string& content) const;
  std::int32_t Create(const std::string& path);
  std::int32_t Write(const std::string& path, const std::string& content);
  std::int32_t Append(const std::string& path, const std::string& content);

 private:
  struct Entry {
    std::string path;  // as first spelt
    bool folder = false;
    bool readOnly = false;
    bool hidden = false;
    bool locked = false;
    std::string content;
  };

  Entry* Find(const std::string& path);
  const Entry* Find(const std::string& path) const;
  Entry& Existing(const std::string& path);
  // The codes of a path that is no name, of one to be read, and of one to be written.
  std::int32_t NameRefusal(const std::string& path) const;
  std::int32_t ReadRefusal(const std::string& path) const;
  std::int32_t WriteRefusal(const std::string& path) const;

  std::map<std::string, Entry> entries_;  // by folded path
  std::optional<std::uint64_t> freeSpace_;
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_FILETREE_H_
