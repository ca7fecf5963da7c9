// The mouse itself, as the user moves and presses it: Windows decides which window it meets.
#ifndef VANTREL_TESTS_E2E_SUPPORT_POINTER_H_
#define VANTREL_TESTS_E2E_SUPPORT_POINTER_H_

#include <windows.h>

namespace vantrel::e2e {

// Moves the mouse to a point of the window, in pixels of its inside.
void PointAt(HWND window, POINT inside);
// Down and up of the left button where the mouse is, `times` in a row, without a pause.
void PressMouse(int times = 1);
// Both, in the middle of the window, unless `left` says how many pixels from its left edge.
void PressOn(HWND window, int times = 1, int left = -1);

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_SUPPORT_POINTER_H_
