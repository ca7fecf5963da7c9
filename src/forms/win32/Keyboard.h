// The keyboard's ways through a window: Tab, arrows within a group of options, Enter and Esc,
// access keys. Windows' own dialog manager is not asked, since it knows neither panels that cover
// each other nor the order of making.
#ifndef VANTREL_FORMS_WIN32_KEYBOARD_H_
#define VANTREL_FORMS_WIN32_KEYBOARD_H_

#include <windows.h>

#include "forms/Form.h"
#include "forms/win32/WindowSystem.h"

namespace vantrel::forms::win32 {

// Handles a key message that is the window's rather than the focused control's; false to let it
// take its way.
bool HandleKey(WindowSystem& system, const MSG& message);

// The lower-case access key of a caption ("&File" has 'f'), 0 for none.
char AccessKeyOf(const std::string& caption);

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_KEYBOARD_H_
