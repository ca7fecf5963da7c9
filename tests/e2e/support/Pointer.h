// Presses of the mouse's left button on a control of another process.
#ifndef VANTREL_TESTS_E2E_SUPPORT_POINTER_H_
#define VANTREL_TESTS_E2E_SUPPORT_POINTER_H_

#include <windows.h>

namespace vantrel::e2e {

// Down and up of the left button, `times` in a row, as the system sends them to the window for
// quick presses: every second one as a double-click. In the middle of the window, unless `left`
// says how many pixels from its left edge. Returns before the presses are handled.
void PressOn(HWND window, int times = 1, int left = -1);

// One press at a place of a list's window. True once it is handled: a list may show its row as
// selected before, so that what is sent next would overtake the press.
bool PressInList(HWND list, LPARAM place);

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_SUPPORT_POINTER_H_
