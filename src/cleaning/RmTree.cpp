#include "cleaning/RmTree.h"

#include "fileutil/FileErrors.h"
#include "fileutil/Listing.h"

namespace vantrel::cleaning {
namespace {

using platform::DirectoryEntry;

bool IsFolder(const DirectoryEntry& entry) {
  return (entry.Attributes & platform::AttributeDirectory) != 0;
}

void RemoveEntry(program::Program& program, const std::string& path, const DirectoryEntry& entry) {
  platform::Folders& folders = program.platform.folders;
  if (!IsFolder(entry)) {
    fileutil::RaiseFileError(folders.DeleteFileA(path));
  } else if (fileutil::IsSubFolder(entry)) {
    RmTree(program, path);
  } else {
    fileutil::RaiseFileError(folders.RemoveDirectoryA(path));
  }
}

}  // namespace

void RmTree(program::Program& program, const std::string& path) {
  platform::Folders& folders = program.platform.folders;
  const std::string folder = path.ends_with('\\') ? path.substr(0, path.size() - 1) : path;
  const fileutil::Listing found =
      fileutil::ListFiles(folders, folder, platform::AttributeDirectory);
  found.RaiseError();
  if (found.Entries.empty()) return;
  const fileutil::Listing listing =
      fileutil::ListFiles(folders, folder + "\\*.*", platform::AttributeDirectory);
  for (const DirectoryEntry& entry : listing.Entries) {
    if (!fileutil::IsDotEntry(entry)) RemoveEntry(program, folder + '\\' + entry.Name, entry);
  }
  listing.RaiseError();
  fileutil::RaiseFileError(folders.RemoveDirectoryA(folder));
}

}  // namespace vantrel::cleaning
