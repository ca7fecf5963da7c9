#include <windows.h>

#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <optional>

#include "contract/Subject.h"
#include "platform/win32/Handle.h"
#include "platform/win32/Win32Platform.h"
#include "support/win32/HighContrast.h"
#include "support/win32/RecycleBin.h"

namespace vantrel::platform::contract {
namespace {

constexpr const char* WindowClass = "VantrelContractWindow";

std::map<HWND, int>& Clicks() {
  static std::map<HWND, int> clicks;
  return clicks;
}

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM first, LPARAM second) {
  if (message == BmClick) ++Clicks()[window];
  return DefWindowProcA(window, message, first, second);
}

void RegisterOnce() {
  WNDCLASSA record{};
  record.lpfnWndProc = Procedure;
  record.hInstance = GetModuleHandleA(nullptr);
  record.lpszClassName = WindowClass;
  RegisterClassA(&record);  // fails quietly from the second time on
}

void DeleteFolder(const std::string& folder) {
  WIN32_FIND_DATAA found{};
  const HANDLE search = FindFirstFileA((folder + "\\*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return;
  do {
    const std::string name = found.cFileName;
    const std::string path = folder + '\\' + name;
    if (name == "." || name == "..") continue;
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) DeleteFolder(path);
    SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    DeleteFileA(path.c_str());
  } while (FindNextFileA(search, &found));
  FindClose(search);
  RemoveDirectoryA(folder.c_str());
}

class Win32Subject : public Subject {
 public:
  ~Win32Subject() override {
    Unlock();
    shared_.Reset();
    LetGo();
    for (const HWND window : windows_) ::DestroyWindow(window);
    if (!folder_.empty()) DeleteFolder(folder_);
  }

  platform::Platform Platform() override { return own_->Platform(); }

  // Not for the whole desktop: every other program would follow.
  bool Recycle(const std::string& path) override {
    return tests::HasOwnRecycleBin() && tests::Recycle(path);
  }
  int ItemsInBin() override { return tests::ItemsInBin(); }
  void ChooseHighContrast(bool chosen) override {
    ASSERT_TRUE(tests::ChooseHighContrast(GetModuleHandleA(nullptr), chosen));
  }

  platform::Platform StartAnother() override {
    another_ = win32::MakeWin32Platform();
    return another_->Platform();
  }
  void EndAnother() override { another_.reset(); }

  std::string Folder() override {
    char temp[MAX_PATH] = {};
    GetTempPathA(MAX_PATH, temp);
    folder_ = std::string(temp) + "VantrelContract";
    DeleteFolder(folder_);
    CreateDirectoryA(folder_.c_str(), nullptr);
    return folder_;
  }
  void MakeFolder(const std::string& path) override { CreateDirectoryA(path.c_str(), nullptr); }
  void PutFile(const std::string& path, const std::string& content) override {
    std::ofstream(path, std::ios::binary) << content;
  }
  std::optional<std::string> ReadFile(const std::string& path) override {
    std::ifstream file(path, std::ios::binary);
    if (!file) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
  }
  void Hide(const std::string& path) override {
    SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_HIDDEN);
  }
  bool IsHidden(const std::string& path) override {
    return (GetFileAttributesA(path.c_str()) & FILE_ATTRIBUTE_HIDDEN) != 0;
  }
  bool ProtectFromWriting(const std::string& path) override {
    SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY);
    return !win32::FileHandle(CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                          OPEN_EXISTING, 0, nullptr))
                .Valid();
  }
  void SetChanged(const std::string& path, std::int64_t changed) override {
    const win32::FileHandle file(CreateFileA(path.c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr,
                                             OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    const FILETIME time{static_cast<DWORD>(changed), static_cast<DWORD>(changed >> 32)};
    ASSERT_TRUE(SetFileTime(file.Get(), nullptr, nullptr, &time));
  }
  // Windows XP has no such call, and Wine's makes nothing though it succeeds.
  bool MakeLink(const std::string& path, const std::string& target) override {
    using Make = BOOLEAN(WINAPI*)(const char*, const char*, DWORD);
    const auto make = reinterpret_cast<Make>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleA("kernel32"), "CreateSymbolicLinkA")));
    const DWORD kind = (GetFileAttributesA(target.c_str()) & FILE_ATTRIBUTE_DIRECTORY) != 0 ? 1 : 0;
    if (make == nullptr || make(path.c_str(), target.c_str(), kind) == FALSE) return false;
    const DWORD made = GetFileAttributesA(path.c_str());
    return made != INVALID_FILE_ATTRIBUTES && (made & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  }
  void OpenShared(const std::string& path) override {
    shared_.Reset(CreateFileA(path.c_str(), GENERIC_READ | GENERIC_WRITE,
                              FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0,
                              nullptr));
    ASSERT_TRUE(shared_.Valid());
  }
  void Lock(const std::string& path) override {
    lock_.Reset(CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                            FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  }
  void Unlock() override { lock_.Reset(); }
  void PutProgram(const std::string& path) override {
    char system[MAX_PATH] = {};
    GetSystemDirectoryA(system, MAX_PATH);
    CopyFileA((std::string(system) + "\\winver.exe").c_str(), path.c_str(), FALSE);
    CopyFileA((std::string(system) + "\\hostname.exe").c_str(), path.c_str(), FALSE);
  }

  void PutLibrary(const std::string& path) override {
    char tests[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, tests, MAX_PATH);
    const std::string own = tests;
    const std::string built = own.substr(0, own.rfind('\\')) + "\\contract-library.dll";
    CopyFileA(built.c_str(), path.c_str(), FALSE);
  }
  void LetGo() override { SetEvent(letGo_.Get()); }

  WindowHandle MakeWindow(WindowHandle parent, const std::string& caption, Point place) override {
    RegisterOnce();
    const DWORD style = WS_VISIBLE | (parent == 0 ? WS_POPUP : WS_CHILD);
    const HWND window = CreateWindowExA(0, WindowClass, caption.c_str(), style, place.x, place.y,
                                        100, 50, reinterpret_cast<HWND>(parent), nullptr,
                                        GetModuleHandleA(nullptr), nullptr);
    windows_.insert(windows_.begin(), window);
    Clicks()[window] = 0;
    return reinterpret_cast<WindowHandle>(window);
  }
  int ClicksOf(WindowHandle window) override { return Clicks()[reinterpret_cast<HWND>(window)]; }
  void Minimize(WindowHandle window) override {
    ::ShowWindow(reinterpret_cast<HWND>(window), SW_MINIMIZE);
  }
  void Hide(WindowHandle window) override { ::ShowWindow(reinterpret_cast<HWND>(window), SW_HIDE); }
  void DestroyWindow(WindowHandle window) override {
    ::DestroyWindow(reinterpret_cast<HWND>(window));
  }

 private:
  std::unique_ptr<win32::Win32Platform> own_ = win32::MakeWin32Platform();
  std::unique_ptr<win32::Win32Platform> another_;
  std::string folder_;
  win32::FileHandle lock_;
  win32::FileHandle shared_;
  // What the hanging entries of the library wait for.
  win32::KernelHandle letGo_{CreateEventA(nullptr, TRUE, FALSE, "VantrelContractLetGo")};
  std::vector<HWND> windows_;
};

}  // namespace

std::unique_ptr<Subject> MakeWin32Subject() { return std::make_unique<Win32Subject>(); }

}  // namespace vantrel::platform::contract
