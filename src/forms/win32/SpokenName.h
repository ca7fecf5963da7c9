// The name by which a screen reader knows a control that has no caption: the label before it, or
// a text that is there to be read and takes no room on the screen.
#ifndef VANTREL_FORMS_WIN32_SPOKENNAME_H_
#define VANTREL_FORMS_WIN32_SPOKENNAME_H_

#include <windows.h>

#include "forms/Control.h"

namespace vantrel::forms::win32 {

// Makes the text in front of the control's window, which is to be made next, unless a label of
// the same container was made just before.
void MakeSpokenName(const Control& control, HWND parent);

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_SPOKENNAME_H_
