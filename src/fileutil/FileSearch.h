// Finds files by name below folders. Folder lists and pattern lists are texts with delimiters. The
// walks let window messages run, trap no error, and pass over links to folders.
#ifndef VANTREL_FILEUTIL_FILESEARCH_H_
#define VANTREL_FILEUTIL_FILESEARCH_H_

#include <cstdint>
#include <string>
#include <vector>

#include "program/Program.h"

namespace vantrel::fileutil {

// The record of a search: one entry stands at the same place in all four collections, from 1 on.
struct FileSearchResult {
  std::int32_t Count = 0;  // the number of Paths, taken at the end
  std::vector<std::string> Paths;
  std::vector<std::int32_t> Sizes;  // in bytes, the low 32 bits; 0 for a folder
  std::vector<std::int64_t> Dates;  // of the last change, as platform::DirectoryEntry has it
  std::vector<std::uint32_t> Attributes;

  // The 1-based path; error 5 outside.
  const std::string& Path(std::int32_t index) const;
};

// Cuts the list at each character of the delimiter set; empty elements are kept. An empty set
// becomes ";", NUL, tab, line feed and carriage return, also for the caller. Returns the highest
// 0-based index, -1 for an empty text and for a delimiter alone.
std::int32_t SplitList(const std::string& list, std::string& delimiters,
                       std::vector<std::string>& elements);

// Adds the folders directly in the folders of the list. `attribute` is what a listing shows beside
// ordinary files.
void ListSubFolders(program::Program& program, const std::string& folders, std::uint32_t attribute,
                    FileSearchResult& result);

// The same with all that lies below: a parent before its children, depth first.
void ListSubFoldersDeep(program::Program& program, const std::string& folders,
                        std::uint32_t attribute, FileSearchResult& result);

// Adds the files of the folders whose names match one of the patterns.
void FindFilesIn(program::Program& program, const std::string& folders, const std::string& patterns,
                 std::uint32_t attribute, FileSearchResult& result);

// Adds the matching files of all folders below the roots. The roots themselves are not searched:
// this is meant.
void SearchFiles(program::Program& program, const std::string& roots, const std::string& patterns,
                 std::uint32_t folderAttribute, std::uint32_t fileAttribute,
                 FileSearchResult& result);

// Writes the path of each ordinary file that matches into the Clean panel's txtcookies, in the
// folder and then in each of its subfolders in order, so that the last hit of the walk stays.
// Error 6 for a folder of more than 32767 subfolders.
void FindLastFile(program::Program& program, const std::string& folder, const std::string& pattern);

}  // namespace vantrel::fileutil

#endif  // VANTREL_FILEUTIL_FILESEARCH_H_
