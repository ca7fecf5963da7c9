// Puts the controls of a window where they belong: those that are anchored, by the window's size,
// and containers below what lies beside them; and windows on the screen.
#ifndef VANTREL_FORMS_WIN32_FORMLAYOUT_H_
#define VANTREL_FORMS_WIN32_FORMLAYOUT_H_

#include <windows.h>

#include "forms/Form.h"
#include "forms/win32/Scale.h"

namespace vantrel::forms::win32 {

// Moves the anchored controls to their places in the window's inside as it is now.
void LayOut(const Form& form, HWND window, const Scale& scale);

// In pixels of the screen: a window, and what of its screen no taskbar covers.
Place PlaceOf(HWND window);
Place WorkAreaAround(HWND window);
// A window that lies beside the screen, which may have changed, comes back to it.
void KeepReachable(HWND window);

// Puts containers and pictures' grounds below the controls beside them, whatever the order of
// making, which is that of Tab.
void SinkContainers(const Form& form);

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_FORMLAYOUT_H_
