#include "support/Pointer.h"

namespace vantrel::e2e {

void PointAt(HWND window, POINT inside) {
  ClientToScreen(window, &inside);
  SetCursorPos(inside.x, inside.y);
}

void PressMouse(int times) {
  for (int time = 0; time < times; ++time) {
    mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
  }
}

void PressOn(HWND window, int times, int left) {
  RECT area{};
  GetClientRect(window, &area);
  PointAt(window, {left >= 0 ? left : area.right / 2, area.bottom / 2});
  PressMouse(times);
}

}  // namespace vantrel::e2e
