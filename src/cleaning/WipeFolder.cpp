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

// Folders and links to folders.
bool IsFolderEntry(const DirectoryEntry& entry) {
  return Is(entry, platform::AttributeDirectory) && !fileutil::IsDotEntry(entry);
}

fileutil::Listing AllEntries(Program& program, const std::string& folder) {
  return fileutil::ListFiles(program.platform.folders, folder + "*.*", Everything);
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

void DeleteWithForce(Program& program, const std::string& path, const DirectoryEntry& entry) {
  platform::Folders& folders = program.platform.folders;
  if (Is(entry, platform::AttributeReadOnly)) {
    folders.SetFileAttributesA(path, platform::AttributeNormal);
  }
  folders.DeleteFileA(path);
}

void WipeFile(Program& program, const std::string& path, const DirectoryEntry& entry) {
  if (!Is(entry, platform::AttributeReparsePoint)) ScrambleFile(program, path);
  DeleteWithForce(program, path, entry);
  AdvanceForFile(program);
}

void KillSubFolder(Program& program, const std::string& path, const DirectoryEntry& entry) {
  if (!Is(entry, platform::AttributeReparsePoint)) return KillFolderTree(program, path);
  program.platform.folders.RemoveDirectoryA(path);
  AdvanceForFolder(program);
}

// Whether the folder is there and still no link: messages have run since it was listed.
bool IsFolderNow(Program& program, const std::string& path) {
  std::vector<DirectoryEntry> itself;
  program.platform.folders.ListFolder(path, itself);
  return !itself.empty() && fileutil::IsSubFolder(itself.front());
}

bool HoldsNoFile(const fileutil::Listing& listing) {
  return std::none_of(
      listing.Entries.begin(), listing.Entries.end(),
      [](const DirectoryEntry& entry) { return !Is(entry, platform::AttributeDirectory); });
}

}  // namespace

bool WipeFolder(Program& program, const std::string& path) {
  if (!IsCleaningTarget(path) || !program.platform.folders.FolderExists(path)) return false;
  const std::string folder = fileutil::WithBackslash(path);
  text::ErrorTrap trap;
  const fileutil::Listing listing = AllEntries(program, folder);
  for (const DirectoryEntry& entry : listing.Entries) {
    if (Is(entry, platform::AttributeDirectory)) continue;
    trap([&] { WipeFile(program, folder + entry.Name, entry); });
  }
  for (const DirectoryEntry& entry : listing.Entries) {
    if (!IsFolderEntry(entry)) continue;
    trap([&] { KillSubFolder(program, folder + entry.Name, entry); });
  }
  return HoldsNoFile(AllEntries(program, folder));
}

void KillFolderTree(Program& program, const std::string& path) {
  platform::Folders& folders = program.platform.folders;
  if (!IsFolderNow(program, path)) return;
  const std::string folder = fileutil::WithBackslash(path);
  const fileutil::Listing listing = AllEntries(program, folder);
  listing.RaiseError();
  for (const DirectoryEntry& entry : listing.Entries) {
    if (IsFolderEntry(entry)) KillSubFolder(program, folder + entry.Name, entry);
  }
  for (const DirectoryEntry& entry : listing.Entries) {
    if (!Is(entry, SparedByPattern)) folders.DeleteFileA(folder + entry.Name);
  }
  folders.RemoveDirectoryA(path);
  AdvanceForFolder(program);
}

}  // namespace vantrel::cleaning
