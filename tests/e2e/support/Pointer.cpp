#include "support/Pointer.h"

#include <commctrl.h>

#include "support/Wait.h"

namespace vantrel::e2e {

void PressOn(HWND window, int times, int left) {
  RECT area{};
  GetClientRect(window, &area);
  const LPARAM place = MAKELPARAM(left >= 0 ? left : area.right / 2, area.bottom / 2);
  for (int time = 0; time < times; ++time) {
    PostMessageA(window, time % 2 == 0 ? WM_LBUTTONDOWN : WM_LBUTTONDBLCLK, MK_LBUTTON, place);
    PostMessageA(window, WM_LBUTTONUP, 0, place);
  }
}

bool PressInList(HWND list, LPARAM place) {
  PostMessageA(list, WM_LBUTTONDOWN, MK_LBUTTON, place);
  PostMessageA(list, WM_LBUTTONUP, 0, place);
  // A number that the list keeps and does not use; its message waits behind the press.
  static LPARAM presses = 1000;
  PostMessageA(list, LVM_SETHOVERTIME, 0, ++presses);
  return WaitFor([list] { return SendMessageA(list, LVM_GETHOVERTIME, 0, 0) == presses; });
}

}  // namespace vantrel::e2e
