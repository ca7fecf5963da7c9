#include "cleaning/FolderSize.h"

#include <algorithm>
#include <vector>

#include "fileutil/FileErrors.h"
#include "fileutil/Listing.h"
#include "text/RuntimeError.h"

namespace vantrel::cleaning {
namespace {

constexpr std::size_t DriveRootLength = 3;  // "C:\"

[[noreturn]] void RaisePathNotFound() { throw text::RuntimeError(text::ErrorNumber::PathNotFound); }

std::string NormalForm(std::string path) {
  std::replace(path.begin(), path.end(), '/', '\\');
  // The two backslashes of a share stay.
  for (std::size_t at = path.find("\\\\", 1); at != std::string::npos; at = path.find("\\\\", at)) {
    path.erase(at, 1);
  }
  while (path.size() > DriveRootLength && path.back() == '\\') path.pop_back();
  return path;
}

}  // namespace

std::uint64_t FolderSize(platform::Folders& folders, const std::string& path) {
  std::uint64_t total = 0;
  std::vector<std::string> waiting{fileutil::WithBackslash(path)};
  std::vector<platform::DirectoryEntry> entries;
  while (!waiting.empty()) {
    const std::string folder = std::move(waiting.back());
    waiting.pop_back();
    entries.clear();
    fileutil::RaiseFileError(folders.ListFolder(folder + "*.*", entries));
    for (const platform::DirectoryEntry& entry : entries) {
      if ((entry.Attributes & platform::AttributeReparsePoint) != 0) continue;
      total += entry.Size;
      if (fileutil::IsSubFolder(entry)) waiting.push_back(folder + entry.Name + '\\');
    }
  }
  return total;
}

std::string ExistingFolder(platform::Folders& folders, const std::string& path) {
  if (!folders.FolderExists(path)) RaisePathNotFound();
  return NormalForm(path);
}

std::string ParentFolder(const std::string& path) {
  const std::size_t slash = path.rfind('\\');
  if (path.size() <= DriveRootLength || slash == std::string::npos) RaisePathNotFound();
  return path.substr(0, slash + 1 == DriveRootLength ? DriveRootLength : slash);
}

}  // namespace vantrel::cleaning
