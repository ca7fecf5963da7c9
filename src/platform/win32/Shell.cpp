#include "platform/Shell.h"

#include <windows.h>
// Behind windows.h, which it needs.
#include <shellapi.h>

#include <algorithm>

#include "platform/win32/Adapters.h"

namespace vantrel::platform::win32 {
namespace {

// The record's first form, which every shell knows.
constexpr DWORD FirstFormSize = sizeof(void*) == 4 ? 88 : 104;
static_assert(FirstFormSize == NOTIFYICONDATAA_V1_SIZE);

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
};

}  // namespace

std::unique_ptr<Shell> MakeShell() { return std::make_unique<ShellAdapter>(); }

}  // namespace vantrel::platform::win32
