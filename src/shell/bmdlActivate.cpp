#include "shell/bmdlActivate.h"

#include <array>

namespace vantrel::shell {
namespace {

using platform::WindowHandle;
using program::Program;

bool EnumChildWindowsProc(Program& program, WindowHandle window) {
  if (GetWindowCaption(program.platform.desktop, window) != program.SearchCaption) return true;
  program.WindowFound = true;
  program.FoundWindow = window;
  return false;
}

bool EnumTopWindowsProc(Program& program, WindowHandle window) {
  if (program.WindowFound) return false;
  program.platform.desktop.EnumChildWindows(
      window, [&program](WindowHandle child) { return EnumChildWindowsProc(program, child); });
  return true;
}

}  // namespace

std::string GetWindowCaption(platform::Desktop& desktop, WindowHandle window) {
  std::array<char, 128> buffer{};
  const int count = desktop.GetWindowTextA(window, buffer);
  return {buffer.data(), static_cast<std::size_t>(count)};
}

WindowHandle FindWindowByCaption(Program& program, const std::string& caption) {
  program.SearchCaption = caption;
  program.platform.desktop.EnumWindows(
      [&program](WindowHandle window) { return EnumTopWindowsProc(program, window); });
  return program.FoundWindow;
}

void ActivateWindow(platform::Desktop& desktop, WindowHandle window) {
  if (window == 0) return;
  if (desktop.IsIconic(window)) desktop.ShowWindow(window, platform::SwRestore);
  desktop.SetForegroundWindow(window);
}

void SendCommand(Program& program, const std::string& command) {
  platform::Desktop& desktop = program.platform.desktop;
  const WindowHandle button = FindWindowByCaption(program, ReadyForCommand);
  ActivateWindow(desktop, desktop.GetParent(button));
  desktop.SendTextMessageA(button, platform::WmSetText, 0, command);
  desktop.SendMessageA(button, platform::BmClick, 0, 0);
  program.toolkit.ThrowIfEnding();
}

}  // namespace vantrel::shell
