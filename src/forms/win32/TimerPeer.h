// Timers of the models, run as timers of their form's window.
#ifndef VANTREL_FORMS_WIN32_TIMERPEER_H_
#define VANTREL_FORMS_WIN32_TIMERPEER_H_

#include <windows.h>

#include <memory>

#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/win32/WindowSystem.h"

namespace vantrel::forms::win32 {

// The identifier is the control's 1-based place among its form's controls.
std::unique_ptr<ControlPeer> MakeTimerPeer(Timer& timer, HWND form, int identifier);

// WM_TIMER: raises the tick of the form's timer with the identifier.
void TimerFires(WindowSystem& system, const Form& form, int identifier);

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_TIMERPEER_H_
