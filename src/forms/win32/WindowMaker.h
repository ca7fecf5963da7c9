// Makes the window of a control, of the class for its kind.
#ifndef VANTREL_FORMS_WIN32_WINDOWMAKER_H_
#define VANTREL_FORMS_WIN32_WINDOWMAKER_H_

#include "forms/Control.h"
#include "forms/win32/WindowSystem.h"

namespace vantrel::forms::win32 {

// Makes it in its container's window, or else in the form's, and attaches it to the control.
void MakeControlWindow(WindowSystem& system, Control& control, HWND form, int identifier);

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_WINDOWMAKER_H_
