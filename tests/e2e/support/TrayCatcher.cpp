#include "support/TrayCatcher.h"

#include <shellapi.h>

#include <algorithm>
#include <cstring>
#include <utility>

namespace vantrel::e2e {
namespace {

constexpr const char* TrayClass = "Shell_TrayWnd";

// The head of what the shell's library sends, the same for programs of any word size. The
// bits of the icon's mask and colours follow; without an icon its size is 0.
struct Handed {
  LONG window;
  UINT identifier;
  UINT flags;
  UINT callbackMessage;
  WCHAR tip[128];
  DWORD state[2];
  WCHAR info[256];
  UINT version;
  WCHAR infoTitle[64];
  DWORD infoFlags;
  GUID item;
  LONG iconWidth;
  LONG iconHeight;
};

std::string Narrow(const WCHAR* text) {
  char narrow[256]{};
  WideCharToMultiByte(CP_ACP, 0, text, -1, narrow, sizeof(narrow) - 1, nullptr, nullptr);
  return narrow;
}

}  // namespace

TrayCatcher::TrayCatcher() {
  HANDLE ready = CreateEventA(nullptr, TRUE, FALSE, nullptr);
  thread_ = std::thread([this, ready] { Run(ready); });
  WaitForSingleObject(ready, INFINITE);
  CloseHandle(ready);
}

TrayCatcher::~TrayCatcher() {
  PostMessageA(window_, WM_CLOSE, 0, 0);
  thread_.join();
}

void TrayCatcher::Run(HANDLE ready) {
  WNDCLASSA kind{};
  kind.lpfnWndProc = Receive;
  kind.hInstance = GetModuleHandleA(nullptr);
  kind.lpszClassName = TrayClass;
  RegisterClassA(&kind);
  // Topmost, so that it is found before the shell's own.
  window_ = CreateWindowExA(WS_EX_TOPMOST | WS_EX_NOACTIVATE, TrayClass, "", WS_POPUP, 0, 0, 1, 1,
                            nullptr, nullptr, kind.hInstance, nullptr);
  SetWindowLongPtrA(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  SetWindowPos(window_, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  SetEvent(ready);
  MSG message;
  while (GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
  UnregisterClassA(TrayClass, kind.hInstance);
}

LRESULT CALLBACK TrayCatcher::Receive(HWND window, UINT message, WPARAM first, LPARAM second) {
  auto* catcher = reinterpret_cast<TrayCatcher*>(GetWindowLongPtrA(window, GWLP_USERDATA));
  switch (message) {
    case WM_COPYDATA:
      if (catcher != nullptr) catcher->Take(*reinterpret_cast<const COPYDATASTRUCT*>(second));
      return TRUE;
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
    default:
      return DefWindowProcA(window, message, first, second);
  }
}

void TrayCatcher::Take(const COPYDATASTRUCT& data) {
  if (data.cbData < sizeof(Handed)) return;
  Handed handed{};
  std::memcpy(&handed, data.lpData, sizeof(handed));
  const std::scoped_lock lock(mutex_);
  calls_.push_back({static_cast<DWORD>(data.dwData),
                    reinterpret_cast<HWND>(static_cast<LONG_PTR>(handed.window)),
                    handed.identifier,
                    handed.flags,
                    handed.callbackMessage,
                    Narrow(handed.tip),
                    {handed.iconWidth, handed.iconHeight}});
}

bool TrayCatcher::InPlace() const { return FindWindowA(TrayClass, nullptr) == window_; }

std::vector<TrayCall> TrayCatcher::Calls() const {
  const std::scoped_lock lock(mutex_);
  return calls_;
}

void TrayCatcher::Forget() {
  const std::scoped_lock lock(mutex_);
  calls_.clear();
}

std::size_t TrayCatcher::Icons() const {
  const std::scoped_lock lock(mutex_);
  std::vector<std::pair<HWND, UINT>> icons;
  for (const TrayCall& call : calls_) {
    const std::pair<HWND, UINT> icon(call.window, call.identifier);
    std::erase(icons, icon);
    if (call.operation != NIM_DELETE) icons.push_back(icon);
  }
  return icons.size();
}

}  // namespace vantrel::e2e
