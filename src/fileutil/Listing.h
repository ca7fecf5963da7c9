// One look at a folder's entries, as the program's own directory function has it: ordinary names
// always, hidden and system files and folders where they are asked for.
#ifndef VANTREL_FILEUTIL_LISTING_H_
#define VANTREL_FILEUTIL_LISTING_H_

#include <string>
#include <vector>

#include "platform/Folders.h"

namespace vantrel::fileutil {

// What a listing gave. Who walks it takes the entries first and raises the error behind them, so
// that a listing that fails in its middle loses nothing that came before.
struct Listing {
  std::vector<platform::DirectoryEntry> Entries;
  std::int32_t Code = 0;  // 0, or the system's error code

  // Raises the error of the code, if any.
  void RaiseError() const;
};

// The entries that match `pattern`, a folder's path with a pattern of names behind it. `attributes`
// says what is listed beside ordinary files: AttributeHidden, AttributeSystem, AttributeDirectory;
// other bits have no effect. No match and a missing folder are an empty listing, no error.
Listing ListFiles(platform::Folders& folders, const std::string& pattern, std::uint32_t attributes);

// The names of a folder's ordinary files, sorted without regard to case, as a list of files shows
// them. Error 76 for a missing folder or a file in its place; the error of a listing that fails.
std::vector<std::string> FileNames(platform::Folders& folders, const std::string& folder);

// "." and "..", which a listing of folders has.
bool IsDotEntry(const platform::DirectoryEntry& entry);

// A folder that is walked: no dot entry, and no link, since what that points to lies elsewhere.
bool IsSubFolder(const platform::DirectoryEntry& entry);

// The path with a backslash at its end; an empty path is the root of the current drive.
std::string WithBackslash(const std::string& path);

}  // namespace vantrel::fileutil

#endif  // VANTREL_FILEUTIL_LISTING_H_
