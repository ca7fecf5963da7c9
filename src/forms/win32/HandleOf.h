// The system's handles of the models' windows; nullptr where there is none.
#ifndef VANTREL_FORMS_WIN32_HANDLEOF_H_
#define VANTREL_FORMS_WIN32_HANDLEOF_H_

#include <windows.h>

#include "forms/Form.h"

namespace vantrel::forms::win32 {

inline HWND HandleOf(const Control& control) {
  return reinterpret_cast<HWND>(control.WindowHandle());
}
inline HWND HandleOf(const Form& form) { return reinterpret_cast<HWND>(form.hWnd()); }

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_HANDLEOF_H_
