#include "fileutil/Listing.h"

#include <algorithm>

#include "fileutil/FileErrors.h"
#include "platform/Handles.h"
#include "text/Strings.h"

namespace vantrel::fileutil {
namespace {

constexpr std::uint32_t ListedOnDemand =
    platform::AttributeHidden | platform::AttributeSystem | platform::AttributeDirectory;

}  // namespace

void Listing::RaiseError() const { RaiseFileError(Code); }

Listing ListFiles(platform::Folders& folders, const std::string& pattern,
                  std::uint32_t attributes) {
  Listing listing;
  listing.Code = folders.ListFolder(pattern, listing.Entries);
  if (listing.Code == platform::ErrorFileNotFound || listing.Code == platform::ErrorPathNotFound) {
    listing.Code = platform::ErrorSuccess;
  }
  std::erase_if(listing.Entries, [attributes](const platform::DirectoryEntry& entry) {
    return (entry.Attributes & ListedOnDemand & ~attributes) != 0;
  });
  return listing;
}

std::vector<std::string> FileNames(platform::Folders& folders, const std::string& folder) {
  if (!folders.FolderExists(folder)) throw text::RuntimeError(text::ErrorNumber::PathNotFound);
  const Listing listing = ListFiles(folders, WithBackslash(folder) + "*.*", 0);
  listing.RaiseError();
  std::vector<std::string> names;
  for (const platform::DirectoryEntry& entry : listing.Entries) names.push_back(entry.Name);
  std::sort(names.begin(), names.end(), [](const std::string& one, const std::string& other) {
    return text::LowerCase(one) < text::LowerCase(other);
  });
  return names;
}

bool IsDotEntry(const platform::DirectoryEntry& entry) {
  return entry.Name == "." || entry.Name == "..";
}

bool IsSubFolder(const platform::DirectoryEntry& entry) {
  return (entry.Attributes & platform::AttributeDirectory) != 0 &&
         (entry.Attributes & platform::AttributeReparsePoint) == 0 && !IsDotEntry(entry);
}

std::string WithBackslash(const std::string& path) {
  return path.ends_with('\\') ? path : path + '\\';
}

}  // namespace vantrel::fileutil
