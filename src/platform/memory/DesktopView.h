// The desktop as one process sees it: the system's calls, over the windows of all processes.
#ifndef VANTREL_PLATFORM_MEMORY_DESKTOPVIEW_H_
#define VANTREL_PLATFORM_MEMORY_DESKTOPVIEW_H_

#include <vector>

#include "platform/Desktop.h"
#include "platform/memory/Desktop.h"

namespace vantrel::platform::memory {

class DesktopView : public platform::Desktop {
 public:
  DesktopView(memory::Desktop& shared, ProcessId process) : shared_(shared), process_(process) {}

  void InitCommonControls() override;
  void EnumWindows(const Visitor& visit) override;
  void EnumChildWindows(WindowHandle parent, const Visitor& visit) override;
  int GetWindowTextA(WindowHandle window, std::span<char> buffer) override;
  WindowHandle GetParent(WindowHandle window) override;
  bool IsIconic(WindowHandle window) override;
  void ShowWindow(WindowHandle window, int command) override;
  void SetForegroundWindow(WindowHandle window) override;
  void SetParent(WindowHandle child, WindowHandle parent) override;
  void SendMessageA(WindowHandle window, std::uint32_t message, std::uintptr_t first,
                    std::uintptr_t second) override;
  void SendTextMessageA(WindowHandle window, std::uint32_t message, std::uintptr_t first,
                        const std::string& text) override;
  void SetWindowLongA(WindowHandle window, int index, std::int32_t value) override;
  void keybd_event(std::uint8_t key, std::uint8_t scan, std::uint32_t flags,
                   std::uintptr_t extra) override;
  Point GetCursorPos() override;
  WindowHandle WindowFromPoint(Point point) override;

 private:
  void Visit(const std::vector<WindowHandle>& windows, const Visitor& visit) const;

  memory::Desktop& shared_;
  ProcessId process_;
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_DESKTOPVIEW_H_
