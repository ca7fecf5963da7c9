#include "platform/memory/DesktopView.h"

#include <algorithm>

namespace vantrel::platform::memory {

void DesktopView::InitCommonControls() { ++shared_.commonControlsInitialized; }

void DesktopView::EnumWindows(const Visitor& visit) { Visit(shared_.TopLevelWindows(), visit); }

void DesktopView::EnumChildWindows(WindowHandle parent, const Visitor& visit) {
  // The system takes handle 0 for the desktop.
  if (parent == 0) {
    Visit(shared_.TopLevelWindows(), visit);
  } else if (shared_.IsWindow(parent)) {
    Visit(shared_.Descendants(parent), visit);
  }
}

void DesktopView::Visit(const std::vector<WindowHandle>& windows, const Visitor& visit) const {
  for (const WindowHandle window : windows) {
    // One visit may destroy windows that were to come.
    if (shared_.IsWindow(window) && !visit(window)) return;
  }
}

int DesktopView::GetWindowTextA(WindowHandle window, std::span<char> buffer) {
  if (!shared_.IsWindow(window) || buffer.empty()) return 0;
  const std::string& caption = shared_.Caption(window);
  const std::size_t length = std::min(caption.size(), buffer.size() - 1);
  std::copy_n(caption.begin(), length, buffer.begin());
  buffer[length] = '\0';
  return static_cast<int>(length);
}

WindowHandle DesktopView::GetParent(WindowHandle window) { return shared_.Parent(window); }

bool DesktopView::IsIconic(WindowHandle window) {
  return shared_.IsWindow(window) && shared_.Iconic(window);
}

void DesktopView::ShowWindow(WindowHandle window, int command) {
  shared_.ShowWindow(window, command);
}

void DesktopView::SetForegroundWindow(WindowHandle window) { shared_.SetForegroundWindow(window); }

void DesktopView::SetParent(WindowHandle child, WindowHandle parent) {
  shared_.SetParent(child, parent);
}

void DesktopView::SendMessageA(WindowHandle window, std::uint32_t message, std::uintptr_t first,
                               std::uintptr_t second) {
  shared_.Send({window, message, first, second});
}

void DesktopView::SendTextMessageA(WindowHandle window, std::uint32_t message, std::uintptr_t first,
                                   const std::string& text) {
  shared_.SendText(window, message, first, text);
}

void DesktopView::SetWindowLongA(WindowHandle window, int index, std::int32_t value) {
  shared_.windowLongCalls.push_back({process_, window, index, value});
}

void DesktopView::keybd_event(std::uint8_t key, std::uint8_t scan, std::uint32_t flags,
                              std::uintptr_t extra) {
  shared_.keyEvents.push_back({process_, key, scan, flags, extra});
}

Point DesktopView::GetCursorPos() { return shared_.CursorPosition(); }

WindowHandle DesktopView::WindowFromPoint(Point point) { return shared_.WindowAt(point); }

}  // namespace vantrel::platform::memory
