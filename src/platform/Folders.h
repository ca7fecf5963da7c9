// Folders and what lies in them: listing, making and deletion. Paths are in the system code page,
// compare without regard to case and may be up to 259 bytes long; both slashes separate but where
// an operation says otherwise. Codes are 0 for success or the system's error code.
#ifndef VANTREL_PLATFORM_FOLDERS_H_
#define VANTREL_PLATFORM_FOLDERS_H_

#include <cstdint>
#include <string>
#include <vector>

namespace vantrel::platform {

inline constexpr std::uint32_t AttributeReadOnly = 1;
inline constexpr std::uint32_t AttributeHidden = 2;
inline constexpr std::uint32_t AttributeSystem = 4;
inline constexpr std::uint32_t AttributeDirectory = 16;
inline constexpr std::uint32_t AttributeArchive = 32;
inline constexpr std::uint32_t AttributeNormal = 128;
// A link, a junction or a mount point; what it points to lies elsewhere.
inline constexpr std::uint32_t AttributeReparsePoint = 1024;

// One name of a listing, with all that the listing itself says of it.
struct DirectoryEntry {
  std::string Name;
  std::uint64_t Size = 0;  // bytes; 0 for a folder
  std::uint32_t Attributes = 0;
  std::int64_t Changed = 0;  // units of 100 ns since 1601, world time
};

class Folders {
 public:
  virtual ~Folders() = default;

  // Whether the path names an existing folder; a link to one counts, a file does not. A slash at
  // the end is allowed.
  virtual bool FolderExists(const std::string& path) = 0;

  // Appends the entries that match a folder's path followed by a slash and a pattern with "*" and
  // "?", hidden ones, "." and ".." among them, in the order of the system. "*.*" matches names
  // without a dot too. A link is listed itself. 2 if nothing matches, 3 for a missing folder; after
  // any other failure the entries read until then are there.
  virtual std::int32_t ListFolder(const std::string& pattern,
                                  std::vector<DirectoryEntry>& entries) = 0;

  // Deletes a file, or a link to one; 2 if there is none, 3 for a missing folder, 5 for a folder
  // or a read-only file, 32 if somebody has it open without leave to delete it.
  virtual std::int32_t DeleteFileA(const std::string& path) = 0;

  // Removes an empty folder, or a link to one and nothing of what it points to. 2 or 3 if there is
  // none, 5 if it is read-only or a link that cannot go alone, 145 if not empty, 267 for a file.
  virtual std::int32_t RemoveDirectoryA(const std::string& path) = 0;

  // Replaces the attributes that a program may set: read-only, hidden, system, archive. 2 or 3 if
  // there is no such file or folder.
  virtual std::int32_t SetFileAttributesA(const std::string& path, std::uint32_t attributes) = 0;

  // Makes every folder of the path up to its last backslash; what follows that counts as the name
  // of a file and is not made. True also if the last folder's place is taken by a file. A forward
  // slash is no separator. False if a folder is missing and cannot be made.
  virtual bool MakeSureDirectoryPathExists(const std::string& path) = 0;
};

}  // namespace vantrel::platform

#endif  // VANTREL_PLATFORM_FOLDERS_H_
