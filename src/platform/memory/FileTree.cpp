#include "platform/memory/FileTree.h"

#include <algorithm>

#include "platform/Handles.h"
#include "platform/memory/Fold.h"
#include "platform/memory/Misuse.h"

namespace vantrel::platform::memory {
namespace {

// Backslashes only, none doubled, none at the end, so a drive's root is "C:".
std::string Clean(const std::string& path) {
  std::string cleaned;
  for (const char c : path) {
    const char slash = c == '/' ? '\\' : c;
    if (slash == '\\' && !cleaned.empty() && cleaned.back() == '\\') continue;
    cleaned.push_back(slash);
  }
  while (!cleaned.empty() && cleaned.back() == '\\') cleaned.pop_back();
  return cleaned;
}

std::string FolderOf(const std::string& cleaned) {
  const std::size_t slash = cleaned.rfind('\\');
  return slash == std::string::npos ? std::string() : cleaned.substr(0, slash);
}

bool IsFull(const std::string& cleaned) {
  return cleaned.size() >= 2 && cleaned[1] == ':' && (cleaned.size() == 2 || cleaned[2] == '\\');
}

bool HasForbiddenCharacter(const std::string& cleaned) {
  const std::size_t found = cleaned.find_first_of("<>\"|?*");
  return found != std::string::npos || cleaned.find(':', 2) != std::string::npos;
}

}  // namespace

FileTree::FileTree() { entries_["C:"] = {"C:", true, false, false, false, {}}; }

FileTree::Entry* FileTree::Find(const std::string& path) {
  const auto found = entries_.find(Fold(Clean(path)));
  return found == entries_.end() ? nullptr : &found->second;
}

const FileTree::Entry* FileTree::Find(const std::string& path) const {
  const auto found = entries_.find(Fold(Clean(path)));
  return found == entries_.end() ? nullptr : &found->second;
}

FileTree::Entry& FileTree::Existing(const std::string& path) {
  Entry* const entry = Find(path);
  if (entry == nullptr) Misuse("there is no file or folder " + path);
  return *entry;
}

void FileTree::MakeFolder(const std::string& path) {
  const std::string cleaned = Clean(path);
  if (!IsFull(cleaned)) Misuse("not a full path: " + path);
  if (Entry* const there = Find(cleaned)) {
    Require(there->folder, "a file is in the folder's place");
    return;
  }
  if (const std::string above = FolderOf(cleaned); !above.empty()) MakeFolder(above);
  entries_[Fold(cleaned)] = {cleaned, true, false, false, false, {}};
}

void FileTree::Put(const std::string& path, const std::string& content) {
  const std::string cleaned = Clean(path);
  if (!IsFull(cleaned) || cleaned.size() < 4) Misuse("not a full path of a file: " + path);
  if (Entry* const there = Find(cleaned)) {
    Require(!there->folder, "a folder is in the file's place");
    there->content = content;
    return;
  }
  MakeFolder(FolderOf(cleaned));
  entries_[Fold(cleaned)] = {cleaned, false, false, false, false, content};
}

void FileTree::Remove(const std::string& path) {
  const std::string folded = Fold(Clean(path));
  std::erase_if(entries_, [&folded](const auto& entry) {
    return entry.first == folded || entry.first.starts_with(folded + "\\");
  });
}

void FileTree::SetReadOnly(const std::string& path, bool readOnly) {
  Existing(path).readOnly = readOnly;
}

void FileTree::SetHidden(const std::string& path, bool hidden) { Existing(path).hidden = hidden; }

void FileTree::SetLocked(const std::string& path, bool locked) { Existing(path).locked = locked; }

std::optional<std::string> FileTree::Read(const std::string& path) const {
  const Entry* const entry = Find(path);
  if (entry == nullptr || entry->folder) return std::nullopt;
  return entry->content;
}

bool FileTree::IsFile(const std::string& path) const {
  const Entry* const entry = Find(path);
  // A file's name with a slash behind it names no file.
  const bool slash = !path.empty() && (path.back() == '\\' || path.back() == '/');
  return entry != nullptr && !entry->folder && !slash;
}

bool FileTree::IsFolder(const std::string& path) const {
  const Entry* const entry = Find(path);
  return entry != nullptr && entry->folder;
}

bool FileTree::IsReadOnly(const std::string& path) const {
  const Entry* const entry = Find(path);
  return entry != nullptr && entry->readOnly;
}

bool FileTree::IsHidden(const std::string& path) const {
  const Entry* const entry = Find(path);
  return entry != nullptr && entry->hidden;
}

std::vector<std::string> FileTree::List(const std::string& folder) const {
  const std::string above = Fold(Clean(folder)) + "\\";
  std::vector<std::string> names;
  for (const auto& [folded, entry] : entries_) {
    if (!folded.starts_with(above) || folded.find('\\', above.size()) != std::string::npos)
      continue;
    names.push_back(entry.path.substr(above.size()));
  }
  return names;
}

std::vector<std::string> FileTree::AllFiles() const {
  std::vector<std::string> paths;
  for (const auto& [folded, entry] : entries_) {
    if (!entry.folder) paths.push_back(entry.path);
  }
  return paths;
}

std::int32_t FileTree::NameRefusal(const std::string& path) const {
  const std::string cleaned = Clean(path);
  if (cleaned.empty() || !IsFull(cleaned)) return ErrorPathNotFound;
  if (HasForbiddenCharacter(cleaned)) return ErrorInvalidName;
  const Entry* const entry = Find(cleaned);
  if (entry == nullptr && !IsFolder(FolderOf(cleaned))) return ErrorPathNotFound;
  const bool slash = path.back() == '\\' || path.back() == '/';
  return slash && (entry == nullptr || !entry->folder) ? ErrorInvalidName : ErrorSuccess;
}

std::int32_t FileTree::ReadRefusal(const std::string& path) const {
  if (const std::int32_t refusal = NameRefusal(path); refusal != ErrorSuccess) return refusal;
  const Entry* const entry = Find(path);
  if (entry == nullptr) return ErrorFileNotFound;
  if (entry->folder) return ErrorAccessDenied;
  return entry->locked ? ErrorSharingViolation : ErrorSuccess;
}

std::int32_t FileTree::WriteRefusal(const std::string& path) const {
  const std::int32_t refusal = ReadRefusal(path);
  if (refusal == ErrorFileNotFound) return ErrorSuccess;
  return refusal == ErrorSuccess && Find(path)->readOnly ? ErrorAccessDenied : refusal;
}

std::int32_t FileTree::Length(const std::string& path, std::uint64_t& length) const {
  const std::int32_t refusal = ReadRefusal(path);
  // A file's entry can be looked at whoever has the file open.
  if (refusal != ErrorSuccess && refusal != ErrorSharingViolation) return refusal;
  length = Find(path)->content.size();
  return ErrorSuccess;
}

std::int32_t FileTree::Load(const std::string& path, std::string& content) const {
  content.clear();
  const std::int32_t refusal = ReadRefusal(path);
  if (refusal == ErrorSuccess) content = Find(path)->content;
  return refusal;
}

std::int32_t FileTree::Create(const std::string& path) { return Append(path, ""); }

std::int32_t FileTree::Write(const std::string& path, const std::string& content) {
  if (const std::int32_t refusal = WriteRefusal(path); refusal != ErrorSuccess) return refusal;
  if (const Entry* const entry = Find(path); entry != nullptr && freeSpace_) {
    *freeSpace_ += entry->content.size();
  }
  Put(path, "");
  return Append(path, content);
}

std::int32_t FileTree::Append(const std::string& path, const std::string& content) {
  if (const std::int32_t refusal = WriteRefusal(path); refusal != ErrorSuccess) return refusal;
  if (Find(path) == nullptr) Put(path, "");
  if (freeSpace_ && *freeSpace_ < content.size()) return ErrorDiskFull;
  if (freeSpace_) *freeSpace_ -= content.size();
  Find(path)->content += content;
  return ErrorSuccess;
}

}  // namespace vantrel::platform::memory
