#include "platform/Shell.h"

#include <windows.h>
// Behind windows.h, which it needs.
#include <objbase.h>
#include <shellapi.h>
#include <shlobj.h>

#include <algorithm>

#include "platform/win32/Adapters.h"

// The system library has it, the compiler's headers do not.
extern "C" __declspec(dllimport) HRESULT WINAPI SHUpdateRecycleBinIcon();

namespace vantrel::platform::win32 {
namespace {

// The record's first form, which every shell knows.
constexpr DWORD FirstFormSize = sizeof(void*) == 4 ? 88 : 104;
static_assert(FirstFormSize == NOTIFYICONDATAA_V1_SIZE);

static_assert(PathRoom == MAX_PATH);
static_assert(BifReturnOnlyFsDirs == BIF_RETURNONLYFSDIRS);
static_assert(BffmInitialized == BFFM_INITIALIZED && BffmSetSelectionA == BFFM_SETSELECTIONA);

PCIDLIST_ABSOLUTE SystemList(ItemList list) { return reinterpret_cast<PCIDLIST_ABSOLUTE>(list); }

// No exception leaves the system's call; the program's end is looked for behind it.
int CALLBACK CallBack(HWND picker, UINT message, LPARAM, LPARAM data) noexcept {
  const auto& info = *reinterpret_cast<const BrowseInfo*>(data);
  return info.Callback(reinterpret_cast<WindowHandle>(picker), message, info.Parameter);
}

class ShellAdapter : public Shell {
 public:
  bool Shell_NotifyIconA(std::uint32_t message, const NotifyIconData& data) override {
    NOTIFYICONDATAA record{};
    record.cbSize = FirstFormSize;
    record.hWnd = reinterpret_cast<HWND>(data.hWnd);
    record.uID = data.uID;
    record.uFlags = data.uFlags;
    record.uCallbackMessage = data.uCallbackMessage;
    record.hIcon = reinterpret_cast<HICON>(data.hIcon);
    std::copy(data.szTip.begin(), data.szTip.end(), record.szTip);
    return ::Shell_NotifyIconA(message, &record) != FALSE;
  }

  std::intptr_t ShellExecuteA(WindowHandle owner, const std::string& verb, const std::string& file,
                              const std::string& parameters, const std::string& directory,
                              int showCommand) override {
    return reinterpret_cast<std::intptr_t>(::ShellExecuteA(
        reinterpret_cast<HWND>(owner), verb.c_str(), file.c_str(), parameters.c_str(),
        directory.empty() ? nullptr : directory.c_str(), showCommand));
  }

  std::int32_t SHGetSpecialFolderLocation(WindowHandle owner, int folder, ItemList& list) override {
    PIDLIST_ABSOLUTE found = nullptr;
    const HRESULT result =
        ::SHGetSpecialFolderLocation(reinterpret_cast<HWND>(owner), folder, &found);
    if (result == S_OK) list = reinterpret_cast<ItemList>(found);
    return static_cast<std::int32_t>(result);
  }

  bool SHGetPathFromIDListA(ItemList list, std::span<char> buffer) override {
    return ::SHGetPathFromIDListA(SystemList(list), buffer.data()) != FALSE;
  }

  ItemList SHBrowseForFolderA(const BrowseInfo& info) override {
    std::array<char, PathRoom> displayName{};
    BROWSEINFOA record{};
    record.hwndOwner = reinterpret_cast<HWND>(info.Owner);
    record.pszDisplayName = displayName.data();
    record.lpszTitle = info.Prompt.empty() ? nullptr : info.Prompt.c_str();
    record.ulFlags = info.Flags;
    record.lpfn = CallBack;
    record.lParam = reinterpret_cast<LPARAM>(&info);
    record.iImage = info.Image;
    return reinterpret_cast<ItemList>(::SHBrowseForFolderA(&record));
  }

  void CoTaskMemFree(ItemList list) override { ::CoTaskMemFree(reinterpret_cast<void*>(list)); }

  std::int32_t SHEmptyRecycleBinA(WindowHandle owner, const std::string& root,
                                  std::uint32_t flags) override {
    return static_cast<std::int32_t>(::SHEmptyRecycleBinA(
        reinterpret_cast<HWND>(owner), root.empty() ? nullptr : root.c_str(), flags));
  }

  void SHUpdateRecycleBinIcon() override { ::SHUpdateRecycleBinIcon(); }
};

}  // namespace

std::unique_ptr<Shell> MakeShell() { return std::make_unique<ShellAdapter>(); }

}  // namespace vantrel::platform::win32
