#include "forms/win32/MenuBar.h"

namespace vantrel::forms::win32 {

void MenuBar::PutInto(HWND window) {
  const HMENU bar = CreateMenu();
  for (const Menu* menu : form_.Menus()) {
    if (!menu->Visible()) continue;
    const HMENU entries = CreatePopupMenu();
    Fill(entries, *menu);
    opened_[entries] = menu;
    AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(entries), menu->Caption().c_str());
  }
  if (opened_.empty()) {
    DestroyMenu(bar);
    return;
  }
  // From here on the bar goes with its window.
  SetMenu(window, bar);
}

void MenuBar::Opens(HMENU opened) {
  const auto menu = opened_.find(opened);
  if (menu == opened_.end()) return;
  while (DeleteMenu(opened, 0, MF_BYPOSITION)) {
  }
  Fill(opened, *menu->second);
}

void MenuBar::Fill(HMENU into, const Menu& menu) {
  for (const Menu* entry : menu.Entries()) {
    if (!entry->Visible()) continue;
    const auto identifier = static_cast<UINT_PTR>(entry->Identifier());
    if (entry->IsSeparator()) {
      AppendMenuA(into, MF_SEPARATOR, identifier, nullptr);
    } else {
      AppendMenuA(into, entry->Enabled() ? MF_STRING : MF_STRING | MF_GRAYED, identifier,
                  entry->Caption().c_str());
    }
  }
}

int MenuBar::PopUp(HWND window, const Menu& menu) {
  const MenuHandle popup(CreatePopupMenu());
  Fill(popup.Get(), menu);
  POINT mouse{};
  GetCursorPos(&mouse);
  // Without both of these a click elsewhere does not close the menu.
  SetForegroundWindow(window);
  const int chosen = TrackPopupMenu(popup.Get(), TPM_RETURNCMD | TPM_RIGHTBUTTON, mouse.x, mouse.y,
                                    0, window, nullptr);
  PostMessageA(window, WM_NULL, 0, 0);
  return chosen;
}

}  // namespace vantrel::forms::win32
