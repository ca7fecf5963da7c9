#include "shell/bmdlActivate.h"

#include <array>

namespace vantrel::shell {
namespace {

using platform::WindowHandle;

// One search, from the desktop's windows into their children.
struct Search {
  platform::Desktop& desktop;
  const std::string& SearchCaption;
  bool WindowFound = false;
  WindowHandle FoundWindow = 0;

  bool EnumChildWindowsProc(WindowHandle window) {
    if (GetWindowCaption(desktop, window) != SearchCaption) return true;
    WindowFound = true;
    FoundWindow = window;
    return false;
  }

  bool EnumTopWindowsProc(WindowHandle window) {
    if (WindowFound) return false;
    desktop.EnumChildWindows(window,
                             [this](WindowHandle child) { return EnumChildWindowsProc(child); });
    return true;
  }
};

}  // namespace

std::string GetWindowCaption(platform::Desktop& desktop, WindowHandle window) {
  std::array<char, 128> buffer{};
  const int count = desktop.GetWindowTextA(window, buffer);
  return count > 0 ? std::string(buffer.data(), static_cast<std::size_t>(count)) : std::string();
}

WindowHandle FindWindowByCaption(platform::Desktop& desktop, const std::string& caption) {
  Search search{desktop, caption};
  desktop.EnumWindows([&search](WindowHandle window) { return search.EnumTopWindowsProc(window); });
  return search.FoundWindow;
}

void ActivateWindow(platform::Desktop& desktop, WindowHandle window) {
  if (window == 0) return;
  if (desktop.IsIconic(window)) desktop.ShowWindow(window, platform::SwRestore);
  desktop.SetForegroundWindow(window);
}

void SendCommand(program::Program& program, const std::string& command) {
  platform::Desktop& desktop = program.platform.desktop;
  const WindowHandle button = FindWindowByCaption(desktop, ReadyForCommand);
  ActivateWindow(desktop, desktop.GetParent(button));
  desktop.SendTextMessageA(button, platform::WmSetText, 0, command);
  desktop.SendMessageA(button, platform::BmClick, 0, 0);
  program.toolkit.ThrowIfEnding();
}

}  // namespace vantrel::shell
