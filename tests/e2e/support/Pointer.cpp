#include "support/Pointer.h"

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

}  // namespace vantrel::e2e
