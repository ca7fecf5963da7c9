#include "platform/Desktop.h"

#include <windows.h>
// Behind windows.h, which it needs.
#include <commctrl.h>

#include <vector>

#include "platform/win32/Adapters.h"

namespace vantrel::platform::win32 {
namespace {

HWND ToWindow(WindowHandle handle) { return reinterpret_cast<HWND>(handle); }
WindowHandle FromWindow(HWND window) { return reinterpret_cast<WindowHandle>(window); }

BOOL CALLBACK Collect(HWND window, LPARAM into) {
  reinterpret_cast<std::vector<HWND>*>(into)->push_back(window);
  return TRUE;
}

// Visited outside the system's callback, so a visitor's exception crosses no frame of the system.
void Visit(const std::vector<HWND>& windows, const Desktop::Visitor& visit) {
  for (const HWND window : windows) {
    if (!visit(FromWindow(window))) return;
  }
}

class DesktopAdapter : public Desktop {
 public:
  void InitCommonControls() override { ::InitCommonControls(); }

  void EnumWindows(const Visitor& visit) override {
    std::vector<HWND> windows;
    ::EnumWindows(Collect, reinterpret_cast<LPARAM>(&windows));
    Visit(windows, visit);
  }

  void EnumChildWindows(WindowHandle parent, const Visitor& visit) override {
    std::vector<HWND> windows;
    ::EnumChildWindows(ToWindow(parent), Collect, reinterpret_cast<LPARAM>(&windows));
    Visit(windows, visit);
  }

  int GetWindowTextA(WindowHandle window, std::span<char> buffer) override {
    // Wine invents a text for no window.
    if (window == 0) return 0;
    return ::GetWindowTextA(ToWindow(window), buffer.data(), static_cast<int>(buffer.size()));
  }

  WindowHandle GetParent(WindowHandle window) override {
    return FromWindow(::GetParent(ToWindow(window)));
  }

  bool IsIconic(WindowHandle window) override { return ::IsIconic(ToWindow(window)) != FALSE; }

  void ShowWindow(WindowHandle window, int command) override {
    ::ShowWindow(ToWindow(window), command);
  }

  void SetForegroundWindow(WindowHandle window) override {
    ::SetForegroundWindow(ToWindow(window));
  }

  void SetParent(WindowHandle child, WindowHandle parent) override {
    ::SetParent(ToWindow(child), ToWindow(parent));
  }

  void SendMessageA(WindowHandle window, std::uint32_t message, std::uintptr_t first,
                    std::uintptr_t second) override {
    ::SendMessageA(ToWindow(window), message, first, static_cast<LPARAM>(second));
  }

  void SendTextMessageA(WindowHandle window, std::uint32_t message, std::uintptr_t first,
                        const std::string& text) override {
    ::SendMessageA(ToWindow(window), message, first, reinterpret_cast<LPARAM>(text.c_str()));
  }

  void SetWindowLongA(WindowHandle window, int index, std::int32_t value) override {
    // 0 is no window procedure; a system that took it would call it with the next message. None is
    // replaced anywhere, so there is none to give back.
    if (index == GWLP_WNDPROC && value == 0) return;
    ::SetWindowLongA(ToWindow(window), index, value);
  }

  void keybd_event(std::uint8_t key, std::uint8_t scan, std::uint32_t flags,
                   std::uintptr_t extra) override {
    ::keybd_event(key, scan, flags, extra);
  }

  Point GetCursorPos() override {
    POINT point{};
    ::GetCursorPos(&point);
    return {point.x, point.y};
  }

  WindowHandle WindowFromPoint(Point point) override {
    return FromWindow(::WindowFromPoint({point.x, point.y}));
  }
};

}  // namespace

std::unique_ptr<Desktop> MakeDesktop() { return std::make_unique<DesktopAdapter>(); }

}  // namespace vantrel::platform::win32
