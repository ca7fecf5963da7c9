#include "platform/memory/FileTree.h"

#include <algorithm>

#include "platform/Handles.h"
#include "platform/memory/Misuse.h"
#include "text/Strings.h"

namespace vantrel::platform::memory {
namespace {

// A chain of links that is longer leads nowhere.
constexpr int MostLinks = 32;
constexpr std::uint32_t Settable =
    AttributeReadOnly | AttributeHidden | AttributeSystem | AttributeArchive;

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

std::string NameOf(const std::string& cleaned) { return cleaned.substr(cleaned.rfind('\\') + 1); }

bool IsFull(const std::string& cleaned) {
  return cleaned.size() >= 2 && cleaned[1] == ':' && (cleaned.size() == 2 || cleaned[2] == '\\');
}

bool HasForbiddenCharacter(const std::string& cleaned) {
  const std::size_t found = cleaned.find_first_of("<>\"|?*");
  return found != std::string::npos || cleaned.find(':', 2) != std::string::npos;
}

bool IsSlash(char c) { return c == '\\' || c == '/'; }

// A path that begins with one slash lies on the current drive, which is C: here.
std::string OnItsDrive(const std::string& path) {
  const bool isRooted = !path.empty() && IsSlash(path[0]) && (path.size() < 2 || !IsSlash(path[1]));
  return isRooted ? "C:" + path : path;
}

bool EndsInSlash(const std::string& path) {
  return !path.empty() && (path.back() == '\\' || path.back() == '/');
}

// Whether a folded name matches a folded pattern of "*" and "?".
bool Matches(std::string_view name, std::string_view pattern) {
  std::size_t at = 0;
  std::size_t in = 0;
  std::size_t star = std::string_view::npos;
  std::size_t resume = 0;
  while (at < name.size()) {
    if (in < pattern.size() && (pattern[in] == '?' || pattern[in] == name[at])) {
      ++at;
      ++in;
    } else if (in < pattern.size() && pattern[in] == '*') {
      star = in++;
      resume = at;
    } else if (star != std::string_view::npos) {
      in = star + 1;
      at = ++resume;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', in) == std::string_view::npos;
}

}  // namespace

struct FileTree::Node {
  std::string name;  // as first spelt
  bool folder = false;
  bool locked = false;
  std::uint32_t attributes = 0;  // those that a program sets
  std::int64_t changed = 0;
  std::optional<std::string> target;  // of a link
  std::string content;
  std::map<std::string, std::shared_ptr<Node>> children;  // by folded name

  std::uint32_t Attributes() const {
    std::uint32_t all = attributes | (folder ? AttributeDirectory : AttributeArchive);
    if (target) all |= AttributeReparsePoint;
    return all;
  }

  Node& Child(const std::string& childName, bool childIsFolder) {
    auto& child = children[text::UpperCase(childName)];
    if (!child) {
      child = std::make_shared<Node>();
      child->name = childName;
      child->folder = childIsFolder;
    }
    return *child;
  }

  DirectoryEntry Entry(const std::string& shownName) const {
    return {shownName, folder || target ? 0 : content.size(), Attributes(), changed};
  }
};

FileTree::FileTree() : drives_(std::make_shared<Node>()) { drives_->Child("C:", true); }

FileTree::~FileTree() = default;

std::shared_ptr<FileTree::Node> FileTree::Follow(std::shared_ptr<Node> node, int links) const {
  if (!node || !node->target) return node;
  if (links == 0) return nullptr;
  return Follow(Descend(Clean(*node->target), links - 1), links - 1);
}

// Links on the way are followed; the last part is what it is.
std::shared_ptr<FileTree::Node> FileTree::Descend(const std::string& cleaned, int links) const {
  std::shared_ptr<Node> node = drives_;
  std::size_t start = 0;
  while (start <= cleaned.size()) {
    const std::size_t end = std::min(cleaned.find('\\', start), cleaned.size());
    node = Follow(node, links);
    if (!node) return nullptr;
    const std::string part = cleaned.substr(start, end - start);
    start = end + 1;
    if (part == ".") continue;
    const auto found = node->children.find(text::UpperCase(part));
    if (found == node->children.end()) return nullptr;
    node = found->second;
  }
  return node;
}

std::shared_ptr<FileTree::Node> FileTree::Find(const std::string& path) const {
  return Descend(Clean(path), MostLinks);
}

std::shared_ptr<FileTree::Node> FileTree::Followed(const std::string& path) const {
  return Follow(Find(path), MostLinks);
}

std::shared_ptr<FileTree::Node> FileTree::FolderAbove(const std::string& path) const {
  const std::shared_ptr<Node> above = Followed(FolderOf(Clean(path)));
  return above && above->folder ? above : nullptr;
}

FileTree::Node& FileTree::Existing(const std::string& path) {
  const std::shared_ptr<Node> node = Find(path);
  if (!node) Misuse("there is no file or folder " + path);
  return *node;
}

void FileTree::MakeFolder(const std::string& path) {
  const std::string cleaned = Clean(path);
  if (!IsFull(cleaned)) Misuse("not a full path: " + path);
  if (const auto there = Followed(cleaned)) {
    Require(there->folder, "a file is in the folder's place");
    return;
  }
  const std::string above = FolderOf(cleaned);
  if (above.empty()) {
    drives_->Child(cleaned, true);
    return;
  }
  MakeFolder(above);
  Followed(above)->Child(NameOf(cleaned), true);
}

void FileTree::Put(const std::string& path, const std::string& content) {
  const std::string cleaned = Clean(path);
  if (!IsFull(cleaned) || cleaned.size() < 4) Misuse("not a full path of a file: " + path);
  if (const auto there = Followed(cleaned)) {
    Require(!there->folder, "a folder is in the file's place");
    there->content = content;
    return;
  }
  MakeFolder(FolderOf(cleaned));
  FolderAbove(cleaned)->Child(NameOf(cleaned), false).content = content;
}

void FileTree::MakeLink(const std::string& path, const std::string& target) {
  const std::string cleaned = Clean(path);
  const auto named = Followed(target);
  Require(named != nullptr, "a link's target must exist when it is made");
  Require(Find(cleaned) == nullptr, "something is in the link's place");
  MakeFolder(FolderOf(cleaned));
  FolderAbove(cleaned)->Child(NameOf(cleaned), named->folder).target = target;
}

void FileTree::Erase(const std::string& path) {
  if (const auto above = FolderAbove(path))
    above->children.erase(text::UpperCase(NameOf(Clean(path))));
}

void FileTree::Remove(const std::string& path) { Erase(path); }

void FileTree::SetAttributes(const std::string& path, std::uint32_t attributes) {
  Existing(path).attributes = attributes & Settable;
}

void FileTree::SetChanged(const std::string& path, std::int64_t changed) {
  Existing(path).changed = changed;
}

void FileTree::SetLocked(const std::string& path, bool locked) { Existing(path).locked = locked; }

bool FileTree::IsLocked(const std::string& path) const {
  const auto node = Find(path);
  return node && node->locked;
}

bool FileTree::Exists(const std::string& path) const { return Find(path) != nullptr; }

std::optional<std::string> FileTree::Read(const std::string& path) const {
  const auto node = Followed(path);
  if (!node || node->folder) return std::nullopt;
  return node->content;
}

bool FileTree::IsFile(const std::string& path) const {
  const auto node = Followed(path);
  // A file's name with a slash behind it names no file.
  return node && !node->folder && !EndsInSlash(path);
}

bool FileTree::IsFolder(const std::string& path) const {
  const auto node = Followed(path);
  return node && node->folder;
}

std::uint32_t FileTree::AttributesOf(const std::string& path) const {
  const auto node = Find(path);
  return node ? node->Attributes() : 0;
}

std::vector<std::string> FileTree::List(const std::string& folder) const {
  std::vector<std::string> names;
  const auto node = Followed(folder);
  if (!node) return names;
  for (const auto& [folded, child] : node->children) names.push_back(child->name);
  return names;
}

std::vector<std::string> FileTree::AllFiles() const {
  std::vector<std::string> paths;
  const auto walk = [&paths](const auto& self, const Node& folder,
                             const std::string& prefix) -> void {
    for (const auto& [folded, child] : folder.children) {
      if (child->target) continue;
      if (child->folder) {
        self(self, *child, prefix + child->name + '\\');
      } else {
        paths.push_back(prefix + child->name);
      }
    }
  };
  walk(walk, *drives_, "");
  return paths;
}

std::int32_t FileTree::NameRefusal(const std::string& path) const {
  const std::string cleaned = Clean(path);
  if (cleaned.empty() || !IsFull(cleaned)) return ErrorPathNotFound;
  if (HasForbiddenCharacter(cleaned)) return ErrorInvalidName;
  const auto node = Followed(cleaned);
  if (!node && !FolderAbove(cleaned)) return ErrorPathNotFound;
  return EndsInSlash(path) && (!node || !node->folder) ? ErrorInvalidName : ErrorSuccess;
}

std::int32_t FileTree::ReadRefusal(const std::string& path) const {
  if (const std::int32_t refusal = NameRefusal(path); refusal != ErrorSuccess) return refusal;
  const auto node = Followed(path);
  if (!node) return ErrorFileNotFound;
  if (node->folder) return ErrorAccessDenied;
  return node->locked ? ErrorSharingViolation : ErrorSuccess;
}

std::int32_t FileTree::WriteRefusal(const std::string& path) const {
  const std::int32_t refusal = ReadRefusal(path);
  if (refusal == ErrorFileNotFound) return ErrorSuccess;
  const bool readOnly =
      refusal == ErrorSuccess && (Followed(path)->attributes & AttributeReadOnly) != 0;
  return readOnly ? ErrorAccessDenied : refusal;
}

std::int32_t FileTree::Take(std::uint64_t bytes) {
  if (freeSpace_ && *freeSpace_ < bytes) return ErrorDiskFull;
  if (freeSpace_) *freeSpace_ -= bytes;
  return ErrorSuccess;
}

std::int32_t FileTree::Length(const std::string& path, std::uint64_t& length) const {
  const std::int32_t refusal = ReadRefusal(path);
  // A file's entry can be looked at whoever has the file open.
  if (refusal != ErrorSuccess && refusal != ErrorSharingViolation) return refusal;
  length = Followed(path)->content.size();
  return ErrorSuccess;
}

std::int32_t FileTree::Load(const std::string& path, std::string& content) const {
  content.clear();
  const std::int32_t refusal = ReadRefusal(path);
  if (refusal == ErrorSuccess) content = Followed(path)->content;
  return refusal;
}

std::int32_t FileTree::Create(const std::string& path) { return Append(path, ""); }

std::int32_t FileTree::Write(const std::string& path, const std::string& content) {
  if (const std::int32_t refusal = WriteRefusal(path); refusal != ErrorSuccess) return refusal;
  if (const auto node = Followed(path); node && freeSpace_) *freeSpace_ += node->content.size();
  Put(path, "");
  return Append(path, content);
}

std::int32_t FileTree::Append(const std::string& path, const std::string& content) {
  if (const std::int32_t refusal = WriteRefusal(path); refusal != ErrorSuccess) return refusal;
  if (!Followed(path)) Put(path, "");
  if (const std::int32_t refusal = Take(content.size()); refusal != ErrorSuccess) return refusal;
  Followed(path)->content += content;
  return ErrorSuccess;
}

std::int32_t FileTree::ListMatching(const std::string& pattern,
                                    std::vector<DirectoryEntry>& entries) const {
  const std::string cleaned = Clean(OnItsDrive(pattern));
  const std::string above = FolderOf(cleaned);
  const std::string name = NameOf(cleaned);
  const auto folder = Followed(above);
  if (!IsFull(cleaned) || EndsInSlash(pattern) || !folder || !folder->folder) {
    return ErrorPathNotFound;
  }
  const std::string wanted = text::UpperCase(name == "*.*" ? "*" : name);
  const std::size_t before = entries.size();
  const bool isRoot = above.size() == 2;
  for (const char* dot : {".", ".."}) {
    if (!isRoot && Matches(dot, wanted)) entries.push_back(folder->Entry(dot));
  }
  for (const auto& [folded, child] : folder->children) {
    if (Matches(folded, wanted)) entries.push_back(child->Entry(child->name));
  }
  return entries.size() == before ? ErrorFileNotFound : ErrorSuccess;
}

std::int32_t FileTree::Delete(const std::string& path) {
  const auto node = Find(path);
  if (node && !node->folder && EndsInSlash(path)) return ErrorInvalidName;
  if (!node) return FolderAbove(path) ? ErrorFileNotFound : ErrorPathNotFound;
  if (node->folder || (node->attributes & AttributeReadOnly) != 0) return ErrorAccessDenied;
  if (node->locked) return ErrorSharingViolation;
  if (freeSpace_) *freeSpace_ += node->content.size();
  Erase(path);
  return ErrorSuccess;
}

std::int32_t FileTree::RemoveFolder(const std::string& path) {
  const auto node = Find(path);
  if (!node) return FolderAbove(path) ? ErrorFileNotFound : ErrorPathNotFound;
  if (!node->folder) return ErrorDirectory;
  if (!node->target && !node->children.empty()) return ErrorDirectoryNotEmpty;
  if ((node->attributes & AttributeReadOnly) != 0) return ErrorAccessDenied;
  if (node->locked) return ErrorSharingViolation;
  Erase(path);
  return ErrorSuccess;
}

std::int32_t FileTree::ReplaceAttributes(const std::string& path, std::uint32_t attributes) {
  const auto node = Find(path);
  if (!node) return FolderAbove(path) ? ErrorFileNotFound : ErrorPathNotFound;
  node->attributes = attributes & Settable;
  return ErrorSuccess;
}

bool FileTree::MakePath(const std::string& path) {
  const std::size_t last = path.rfind('\\');
  if (last == std::string::npos) return true;
  std::size_t end = path.find('\\');
  for (; end != std::string::npos; end = path.find('\\', end + 1)) {
    const std::string folder = path.substr(0, end);
    // A forward slash is no separator here: what it joins is one name, and no folder has it.
    if (folder.empty() || folder.back() == '\\' || IsFolder(folder)) continue;
    if (IsFile(folder)) return end == last;
    const auto above = Followed(FolderOf(folder));
    if (!IsFull(folder) || folder.size() == 2 || !above || !above->folder ||
        HasForbiddenCharacter(folder)) {
      return false;
    }
    above->Child(NameOf(folder), true);
  }
  return true;
}

std::int32_t FileTree::Open(const std::string& path, bool forWriting,
                            std::shared_ptr<Node>& file) const {
  std::int32_t refusal = ReadRefusal(path);
  if (refusal == ErrorSuccess && forWriting) refusal = WriteRefusal(path);
  if (refusal == ErrorSuccess) file = Followed(path);
  return refusal;
}

const std::string& FileTree::ContentOf(const Node& file) { return file.content; }

std::int32_t FileTree::WriteAt(Node& file, std::uint64_t offset, std::string_view bytes) {
  const std::uint64_t end = offset + bytes.size();
  if (end > file.content.size()) {
    const std::int32_t refusal = Take(end - file.content.size());
    if (refusal != ErrorSuccess) return refusal;
    file.content.resize(end, '\0');
  }
  file.content.replace(offset, bytes.size(), bytes);
  return ErrorSuccess;
}

}  // namespace vantrel::platform::memory
