#include "platform/memory/Tray.h"

#include <algorithm>

namespace vantrel::platform::memory {
namespace {

constexpr std::uint32_t FlagMessage = 1;
constexpr std::uint32_t FlagIcon = 2;
constexpr std::uint32_t FlagTip = 4;

void Take(TrayIcon& icon, const NotifyIconData& data) {
  icon.lastData = data;
  if ((data.uFlags & FlagMessage) != 0) icon.callbackMessage = data.uCallbackMessage;
  if ((data.uFlags & FlagIcon) != 0) icon.icon = data.hIcon;
  if ((data.uFlags & FlagTip) == 0) return;
  icon.tip.assign(data.szTip.begin(), std::find(data.szTip.begin(), data.szTip.end(), '\0'));
}

}  // namespace

void Tray::SetPresent(bool present) {
  present_ = present;
  if (!present) icons_.clear();
}

bool Tray::Notify(std::uint32_t message, const NotifyIconData& data) {
  const auto known = std::find_if(icons_.begin(), icons_.end(), [&data](const TrayIcon& icon) {
    return icon.window == data.hWnd && icon.id == data.uID;
  });
  if (!present_ || (message == NimAdd) == (known != icons_.end())) return false;
  switch (message) {
    case NimAdd: {
      TrayIcon icon;
      icon.window = data.hWnd;
      icon.id = data.uID;
      Take(icon, data);
      icons_.push_back(icon);
      return true;
    }
    case NimModify:
      Take(*known, data);
      return true;
    case NimDelete:
      icons_.erase(known);
      return true;
    default:
      return false;
  }
}

void Tray::Mouse(Desktop& desktop, const TrayIcon& icon, std::uint32_t code) const {
  desktop.Send({icon.window, icon.callbackMessage, icon.id, code});
}

}  // namespace vantrel::platform::memory
