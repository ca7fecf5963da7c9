#include "fileutil/FileSearch.h"

#include <limits>
#include <set>

#include "fileutil/Listing.h"
#include "text/RuntimeError.h"
#include "text/Strings.h"
#include "windows/FrmFrameHistory.h"

namespace vantrel::fileutil {
namespace {

using platform::DirectoryEntry;
using program::Program;

constexpr std::size_t MostNotedFolders = std::numeric_limits<std::int16_t>::max();

// Elements that were met before, in upper case. An element also counts as met where it ends another
// one: this is meant. Elements stand there from their ends to their beginnings, so that those that
// end alike lie together.
class SeenElements {
 public:
  // Whether the element is new; it is noted.
  bool Add(const std::string& element) {
    const std::string upper = text::UpperCase(element);
    std::string reversed(upper.rbegin(), upper.rend());
    const auto next = seen_.lower_bound(reversed);
    if (next != seen_.end() && next->starts_with(reversed)) return false;
    seen_.insert(next, std::move(reversed));
    return true;
  }

 private:
  std::set<std::string> seen_;
};

std::vector<std::string> ElementsOf(const std::string& list) {
  std::string delimiters;
  std::vector<std::string> elements;
  SplitList(list, delimiters, elements);
  return elements;
}

// The folders of a list, each once, with a backslash at the end.
std::vector<std::string> FoldersOf(const std::string& list) {
  SeenElements seen;
  std::vector<std::string> folders;
  for (const std::string& element : ElementsOf(list)) {
    const std::string folder = WithBackslash(text::Trim(element));
    if (seen.Add(folder)) folders.push_back(folder);
  }
  return folders;
}

std::vector<std::string> PatternsOf(const std::string& list) {
  SeenElements seen;
  std::vector<std::string> patterns;
  for (const std::string& element : ElementsOf(list)) {
    const std::string pattern = text::Trim(element);
    if (seen.Add(pattern)) patterns.push_back(pattern);
  }
  return patterns;
}

void AddEntry(FileSearchResult& result, const std::string& folder, const DirectoryEntry& entry,
              std::uint64_t size) {
  result.Paths.push_back(folder + entry.Name);
  result.Sizes.push_back(static_cast<std::int32_t>(size));
  result.Dates.push_back(entry.Changed);
  result.Attributes.push_back(entry.Attributes);
  result.Count = static_cast<std::int32_t>(result.Paths.size());
}

void AddEntry(FileSearchResult& result, const FileSearchResult& from, std::size_t index) {
  result.Paths.push_back(from.Paths[index]);
  result.Sizes.push_back(from.Sizes[index]);
  result.Dates.push_back(from.Dates[index]);
  result.Attributes.push_back(from.Attributes[index]);
  result.Count = static_cast<std::int32_t>(result.Paths.size());
}

std::vector<std::string> SubFoldersOf(Program& program, const std::string& folder) {
  const Listing listing =
      ListFiles(program.platform.folders, folder + "*.*", platform::AttributeDirectory);
  std::vector<std::string> noted;
  for (const DirectoryEntry& entry : listing.Entries) {
    if (!IsSubFolder(entry)) continue;
    if (noted.size() == MostNotedFolders) throw text::RuntimeError(text::ErrorNumber::Overflow);
    noted.push_back(folder + entry.Name + '\\');
  }
  listing.RaiseError();
  return noted;
}

}  // namespace

const std::string& FileSearchResult::Path(std::int32_t index) const {
  if (index < 1 || index > static_cast<std::int32_t>(Paths.size())) {
    throw text::RuntimeError(text::ErrorNumber::InvalidProcedureCall);
  }
  return Paths[static_cast<std::size_t>(index - 1)];
}

std::int32_t SplitList(const std::string& list, std::string& delimiters,
                       std::vector<std::string>& elements) {
  constexpr std::size_t SmallestList = 2;  // one character and its delimiter
  elements.clear();
  if (delimiters.empty()) delimiters = std::string(";\0\t\n\r", 5);
  std::string text = list;
  if (text.empty() || delimiters.find(text.back()) == std::string::npos) text += delimiters[0];
  if (text.size() < SmallestList) return -1;
  std::size_t start = 0;
  for (std::size_t end = text.find_first_of(delimiters); end != std::string::npos;
       end = text.find_first_of(delimiters, start)) {
    elements.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return static_cast<std::int32_t>(elements.size()) - 1;
}

void ListSubFolders(Program& program, const std::string& folders, std::uint32_t attribute,
                    FileSearchResult& result) {
  for (const std::string& folder : FoldersOf(folders)) {
    const Listing listing = ListFiles(program.platform.folders, folder + "*.*", attribute);
    for (const DirectoryEntry& entry : listing.Entries) {
      program.DoEvents();
      if (IsSubFolder(entry)) AddEntry(result, folder, entry, 0);
    }
    listing.RaiseError();
  }
}

void ListSubFoldersDeep(Program& program, const std::string& folders, std::uint32_t attribute,
                        FileSearchResult& result) {
  FileSearchResult direct;
  ListSubFolders(program, folders, attribute, direct);
  for (std::size_t index = 0; index < direct.Paths.size(); ++index) {
    AddEntry(result, direct, index);
    ListSubFoldersDeep(program, direct.Paths[index], attribute, result);
  }
}

void FindFilesIn(Program& program, const std::string& folders, const std::string& patterns,
                 std::uint32_t attribute, FileSearchResult& result) {
  const std::vector<std::string> names = PatternsOf(patterns);
  for (const std::string& folder : FoldersOf(folders)) {
    for (const std::string& name : names) {
      program.DoEvents();
      const Listing listing = ListFiles(program.platform.folders, folder + name, attribute);
      for (const DirectoryEntry& entry : listing.Entries) {
        AddEntry(result, folder, entry, entry.Size);
      }
      listing.RaiseError();
    }
  }
}

void SearchFiles(Program& program, const std::string& roots, const std::string& patterns,
                 std::uint32_t folderAttribute, std::uint32_t fileAttribute,
                 FileSearchResult& result) {
  FileSearchResult below;
  ListSubFoldersDeep(program, roots, folderAttribute, below);
  std::string folders;
  for (const std::string& path : below.Paths) folders += path + ';';
  FindFilesIn(program, folders, patterns, fileAttribute, result);
}

void FindLastFile(Program& program, const std::string& folder, const std::string& pattern) {
  const std::string path = WithBackslash(folder);
  program.DoEvents();
  const std::vector<std::string> noted = SubFoldersOf(program, path);
  const Listing found = ListFiles(program.platform.folders, path + pattern, 0);
  for (const DirectoryEntry& entry : found.Entries) {
    program.windows.FrmFrameHistory->txtcookies.SetText(path + entry.Name);
  }
  found.RaiseError();
  for (const std::string& below : noted) FindLastFile(program, below, pattern);
}

}  // namespace vantrel::fileutil
