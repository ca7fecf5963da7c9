// The object by which a screen reader knows a control's window: the system's own for the window's
// class, but under the control's spoken name, and for a link with a link's role and action.
#ifndef VANTREL_FORMS_WIN32_SPOKENOBJECT_H_
#define VANTREL_FORMS_WIN32_SPOKENOBJECT_H_

#include <windows.h>

#include <memory>

#include "forms/win32/ControlWindow.h"

namespace vantrel::forms::win32 {

// The answer to WM_GETOBJECT for the window's client area; 0, which leaves the reader with the
// system's own object, where this Windows has no accessibility library.
LRESULT AnswerSpokenObject(const std::shared_ptr<ControlWindow>& window, WPARAM flags);

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_SPOKENOBJECT_H_
