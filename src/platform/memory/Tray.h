// The notification area of the in-memory Windows. Icons of windows that are gone stay, as they do
// in the real one until the mouse finds them.
#ifndef VANTREL_PLATFORM_MEMORY_TRAY_H_
#define VANTREL_PLATFORM_MEMORY_TRAY_H_

#include <string>
#include <vector>

#include "platform/Shell.h"
#include "platform/memory/Desktop.h"

namespace vantrel::platform::memory {

struct TrayIcon {
  WindowHandle window = 0;
  std::uint32_t id = 0;
  std::uint32_t callbackMessage = 0;
  IconHandle icon = 0;
  std::string tip;
  NotifyIconData lastData;  // as the program gave it last
};

class Tray {
 public:
  // Without an area every call is refused and there are no icons.
  void SetPresent(bool present);
  const std::vector<TrayIcon>& Icons() const { return icons_; }

  // As the shell does it: an icon is known by window and id; adding a known one, and changing or
  // deleting an unknown one, is refused. The flags (1 message, 2 icon, 4 tip) say what counts.
  bool Notify(std::uint32_t message, const NotifyIconData& data);

  // The mouse on an icon: sends the icon's message to its window, with the id and the code of the
  // mouse message, e.g. 515 for a double-click.
  void Mouse(Desktop& desktop, const TrayIcon& icon, std::uint32_t code) const;

 private:
  std::vector<TrayIcon> icons_;
  bool present_ = true;
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_TRAY_H_
