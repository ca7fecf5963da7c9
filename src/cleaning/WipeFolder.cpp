#include "cleaning/WipeFolder.h"

#include <algorithm>
#include <vector>

#include "cleaning/CleaningTarget.h"
#include "cleaning/Scramble.h"
#include "fileutil/FileErrors.h"
#include "fileutil/Listing.h"
#include "text/ErrorTrap.h"
#include "windows/FrmFrameHistory.h"

namespace vantrel::cleaning {
namespace {

using platform::DirectoryEntry;
using program::Program;

constexpr std::uint32_t Everything =
    platform::AttributeHidden | platform::AttributeSystem | platform::AttributeDirectory;
// What the plain delete of a pattern spares.
constexpr std::uint32_t SparedByPattern = platform::AttributeHidden | platform::AttributeSystem |
                                          platform::AttributeReadOnly |
                                          platform::AttributeDirectory;

bool Is(const DirectoryEntry& entry, std::uint32_t attribute) {
  return (entry.Attributes & attribute) != 0;
}

// The entries of the folder and the code of their listing, without those that the system would take
// for something else under their path: dot entries, devices, names with a dot at their end.
fileutil::Listing TargetsIn(Program& program, const std::string& folder) {
  fileutil::Listing listing =
      fileutil::ListFiles(program.platform.folders, folder + "*.*", Everything);
  std::erase_if(listing.Entries, [&folder](const DirectoryEntry& entry) {
    return !IsCleaningTarget(folder + entry.Name);
  });
  return listing;
}

forms::ProgressBar& Bar(Program& program) { return program.windows.FrmFrameHistory->pbarCache; }

// At its end the bar stays where it is and no messages run: this is meant.
void AdvanceForFile(Program& program) {
  forms::ProgressBar& bar = Bar(program);
  if (bar.Value() >= bar.Max()) return;
  bar.SetValue(bar.Value() + 1);
  program.DoEvents();
}

// At its end the bar begins anew and no messages run: this is meant.
void AdvanceForFolder(Program& program) {
  forms::ProgressBar& bar = Bar(program);
  if (bar.Value() < bar.Max()) {
    bar.SetValue(bar.Value() + 1);
    program.DoEvents();
  } else {
    bar.SetValue(0);
    bar.SetMax(100);
  }
}

// Only a delete that is refused is preceded by a look: what stands there may have changed since it
// was listed.
void DeleteWithForce(Program& program, const std::string& path) {
  platform::Folders& folders = program.platform.folders;
  if (folders.DeleteFileA(path) != platform::ErrorAccessDenied) return;
  const auto entry = EntryNow(folders, path);
  if (!entry || Is(*entry, platform::AttributeDirectory)) return;
  folders.SetFileAttributesA(path, platform::AttributeNormal);
  folders.DeleteFileA(path);
}

void WipeFile(Program& program, const std::string& path) {
  ScrambleFile(program, path);
  DeleteWithForce(program, path);
  AdvanceForFile(program);
}

// What the plain delete of a pattern removes.
void DeleteOrdinaryFiles(Program& program, const std::string& folder) {
  for (const DirectoryEntry& entry : TargetsIn(program, folder).Entries) {
    if (!Is(entry, SparedByPattern)) program.platform.folders.DeleteFileA(folder + entry.Name);
  }
}

void KillTree(Program& program, const std::string& top, const std::string& path);

void KillSubFolders(Program& program, const std::string& top, const std::string& folder) {
  const fileutil::Listing listing = TargetsIn(program, folder);
  for (const DirectoryEntry& entry : listing.Entries) {
    if (Is(entry, platform::AttributeDirectory)) KillTree(program, top, folder + entry.Name);
  }
  listing.RaiseError();
}

// Messages run in it, and with them whoever puts a link in a folder's place: what the path leads to
// is looked at anew behind them.
void KillTree(Program& program, const std::string& top, const std::string& path) {
  platform::Folders& folders = program.platform.folders;
  const std::string above = FolderAbove(path);
  if (!IsReachedWithoutLink(folders, top, above)) return;
  const auto entry = EntryNow(folders, path);
  if (!entry || !Is(*entry, platform::AttributeDirectory)) return;
  const std::string folder = path + '\\';
  if (fileutil::IsSubFolder(*entry)) KillSubFolders(program, top, folder);
  if (IsReachedWithoutLink(folders, top, above)) {
    if (IsReachedWithoutLink(folders, above, path)) DeleteOrdinaryFiles(program, folder);
    folders.RemoveDirectoryA(path);
  }
  AdvanceForFolder(program);
}

// False too for a folder that is gone or cannot be listed.
bool HoldsNoFile(Program& program, const std::string& folder) {
  std::vector<DirectoryEntry> entries;
  const std::int32_t code = program.platform.folders.ListFolder(folder + "*.*", entries);
  if (code != platform::ErrorSuccess && code != platform::ErrorFileNotFound) return false;
  return std::all_of(entries.begin(), entries.end(), [](const DirectoryEntry& entry) {
    return Is(entry, platform::AttributeDirectory);
  });
}

}  // namespace

bool WipeFolder(Program& program, const std::string& path) {
  if (!IsCleaningTarget(path) || !program.platform.folders.FolderExists(path)) return false;
  const std::string folder = fileutil::WithBackslash(path);
  text::ErrorTrap trap;
  for (const DirectoryEntry& entry : TargetsIn(program, folder).Entries) {
    if (Is(entry, platform::AttributeDirectory)) continue;
    trap([&] { WipeFile(program, folder + entry.Name); });
  }
  for (const DirectoryEntry& entry : TargetsIn(program, folder).Entries) {
    if (!Is(entry, platform::AttributeDirectory)) continue;
    trap([&] { KillFolderTree(program, folder + entry.Name); });
  }
  return HoldsNoFile(program, folder);
}

void KillFolderTree(Program& program, const std::string& path) {
  KillTree(program, FolderAbove(path), path);
}

}  // namespace vantrel::cleaning
