#include "support/UserFolders.h"

#include <windows.h>
// After windows.h.
#include <shlobj.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <stdexcept>

#include "support/Folders.h"
#include "support/win32/RecycleBin.h"

namespace vantrel::e2e {
namespace {

constexpr const char* ShellFolders =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders";

struct ShellFolder {
  const char* Name;  // in the registry
  int Number;
  const std::string UserFolders::*Place;
};
const ShellFolder Moved[] = {{"Cache", CSIDL_INTERNET_CACHE, &UserFolders::Internet},
                             {"Recent", CSIDL_RECENT, &UserFolders::Recent},
                             {"History", CSIDL_HISTORY, &UserFolders::History},
                             {"Cookies", CSIDL_COOKIES, &UserFolders::Cookies},
                             {"AppData", CSIDL_APPDATA, &UserFolders::Data}};

KeptValue Kept(int row) { return {HKEY_CURRENT_USER, ShellFolders, Moved[row].Name}; }

// Wine shows the machine's own disk to its programs and empties the Recycle Bin of the machine's
// user: both must be this run's own.
void CheckMachine() {
  if (GetProcAddress(GetModuleHandleA("ntdll"), "wine_get_version") == nullptr) return;
  if (!tests::HasOwnRecycleBin()) throw std::runtime_error("the Recycle Bin is not this run's own");
}

void Visit(const std::string& folder, const std::function<void(const WIN32_FIND_DATAA&)>& visit) {
  WIN32_FIND_DATAA found{};
  HANDLE search = FindFirstFileA((folder + "\\*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return;
  do {
    const std::string name = found.cFileName;
    if (name != "." && name != "..") visit(found);
  } while (FindNextFileA(search, &found) != FALSE);
  FindClose(search);
}

bool Is(const WIN32_FIND_DATAA& found, DWORD attribute) {
  return (found.dwFileAttributes & attribute) != 0;
}

}  // namespace

UserFolders::UserFolders()
    : Top(TemporaryFolder() + "VantrelUser"), kept_{Kept(0), Kept(1), Kept(2), Kept(3), Kept(4)} {
  CheckMachine();
  RemoveFolder(Top);
  CreateDirectoryA(Top.c_str(), nullptr);
  for (const std::string& folder : {Internet, Recent, History, Temporary, Cookies, Data, Outside}) {
    CreateDirectoryA(folder.c_str(), nullptr);
  }
  for (const ShellFolder& row : Moved) {
    const std::string& place = this->*row.Place;
    Write(HKEY_CURRENT_USER, ShellFolders, row.Name, Text(place + '\0'));
  }
  Check();
}

UserFolders::~UserFolders() { RemoveFolder(Top); }

void UserFolders::Check() const {
  for (const ShellFolder& row : Moved) {
    char path[MAX_PATH]{};
    SHGetFolderPathA(nullptr, row.Number, nullptr, 0, path);
    if (this->*row.Place != path) {
      throw std::runtime_error(std::string("the folder ") + row.Name + " is still " + path);
    }
  }
}

std::string UserFolders::Watch(const std::string& path) const {
  std::string name = path.substr(Top.size() + 1);
  std::replace(name.begin(), name.end(), '\\', '-');
  std::string watched = Outside + '\\' + name;
  if (CreateHardLinkA(watched.c_str(), path.c_str(), nullptr) == FALSE) {
    throw std::runtime_error("no further name for " + path);
  }
  return watched;
}

void PutFile(const std::string& path, const std::string& content) {
  std::filesystem::create_directories(std::filesystem::path(path).parent_path());
  WriteFileBytes(path, content);
}

void RemoveFolder(const std::string& folder) {
  Visit(folder, [&](const WIN32_FIND_DATAA& found) {
    if (Is(found, FILE_ATTRIBUTE_REPARSE_POINT)) return;
    const std::string path = folder + '\\' + found.cFileName;
    SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    if (Is(found, FILE_ATTRIBUTE_DIRECTORY)) {
      RemoveFolder(path);
    } else {
      DeleteFileA(path.c_str());
    }
  });
  RemoveDirectoryA(folder.c_str());
}

bool Exists(const std::string& path) {
  return GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::vector<std::string> NamesIn(const std::string& folder) {
  std::vector<std::string> names;
  Visit(folder, [&](const WIN32_FIND_DATAA& found) { names.emplace_back(found.cFileName); });
  std::sort(names.begin(), names.end());
  return names;
}

std::uint64_t BytesBelow(const std::string& folder) {
  std::uint64_t bytes = 0;
  Visit(folder, [&](const WIN32_FIND_DATAA& found) {
    if (Is(found, FILE_ATTRIBUTE_REPARSE_POINT)) return;
    bytes += static_cast<std::uint64_t>(found.nFileSizeHigh) << 32 | found.nFileSizeLow;
    if (Is(found, FILE_ATTRIBUTE_DIRECTORY)) bytes += BytesBelow(folder + '\\' + found.cFileName);
  });
  return bytes;
}

}  // namespace vantrel::e2e
