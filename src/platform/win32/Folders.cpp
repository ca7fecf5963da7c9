#include "platform/Folders.h"

#include <windows.h>
// Behind windows.h, which it needs.
#include <imagehlp.h>

#include "platform/win32/Adapters.h"
#include "platform/win32/Handle.h"

namespace vantrel::platform::win32 {
namespace {

static_assert(AttributeReadOnly == FILE_ATTRIBUTE_READONLY);
static_assert(AttributeHidden == FILE_ATTRIBUTE_HIDDEN);
static_assert(AttributeSystem == FILE_ATTRIBUTE_SYSTEM);
static_assert(AttributeDirectory == FILE_ATTRIBUTE_DIRECTORY);
static_assert(AttributeArchive == FILE_ATTRIBUTE_ARCHIVE);
static_assert(AttributeNormal == FILE_ATTRIBUTE_NORMAL);
static_assert(AttributeReparsePoint == FILE_ATTRIBUTE_REPARSE_POINT);

std::uint64_t Joined(DWORD high, DWORD low) { return static_cast<std::uint64_t>(high) << 32 | low; }

DirectoryEntry EntryOf(const WIN32_FIND_DATAA& found) {
  return {found.cFileName, Joined(found.nFileSizeHigh, found.nFileSizeLow), found.dwFileAttributes,
          static_cast<std::int64_t>(
              Joined(found.ftLastWriteTime.dwHighDateTime, found.ftLastWriteTime.dwLowDateTime))};
}

std::int32_t CodeOf(BOOL done) { return done ? ErrorSuccess : LastError(); }

bool IsLink(DWORD attributes) {
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

// Wine opens what a link leads to, and a removal would be that of the folder there.
bool OpensLinkItself(const std::string& path) {
  const FileHandle link(CreateFileA(
      path.c_str(), FILE_READ_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
      nullptr, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  BY_HANDLE_FILE_INFORMATION opened{};
  return link.Valid() && GetFileInformationByHandle(link.Get(), &opened) &&
         IsLink(opened.dwFileAttributes);
}

class FoldersAdapter : public Folders {
 public:
  bool FolderExists(const std::string& path) override {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  }

  std::int32_t ListFolder(const std::string& pattern,
                          std::vector<DirectoryEntry>& entries) override {
    WIN32_FIND_DATAA found{};
    const SearchHandle search(FindFirstFileA(pattern.c_str(), &found));
    if (!search.Valid()) return LastError();
    do {
      entries.push_back(EntryOf(found));
    } while (FindNextFileA(search.Get(), &found));
    const std::int32_t code = LastError();
    return code == ERROR_NO_MORE_FILES ? ErrorSuccess : code;
  }

  std::int32_t DeleteFileA(const std::string& path) override {
    return CodeOf(::DeleteFileA(path.c_str()));
  }

  std::int32_t RemoveDirectoryA(const std::string& path) override {
    if (IsLink(GetFileAttributesA(path.c_str())) && !OpensLinkItself(path)) {
      return ErrorAccessDenied;
    }
    return CodeOf(::RemoveDirectoryA(path.c_str()));
  }

  std::int32_t SetFileAttributesA(const std::string& path, std::uint32_t attributes) override {
    return CodeOf(::SetFileAttributesA(path.c_str(), attributes));
  }

  bool MakeSureDirectoryPathExists(const std::string& path) override {
    // The system may copy the folders into a buffer of this size, whatever their length.
    const std::size_t slash = path.rfind('\\');
    if (slash != std::string::npos && slash + 1 >= MAX_PATH) return false;
    return ::MakeSureDirectoryPathExists(path.c_str()) != FALSE;
  }
};

}  // namespace

std::unique_ptr<Folders> MakeFolders() { return std::make_unique<FoldersAdapter>(); }

}  // namespace vantrel::platform::win32
