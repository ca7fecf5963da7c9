// The windows of one running copy as text: a line a control, with its kind, name, text and state.
#ifndef VANTREL_APP_CONSOLE_SCREEN_H_
#define VANTREL_APP_CONSOLE_SCREEN_H_

#include <string>
#include <vector>

#include "forms/Form.h"
#include "forms/headless/Toolkit.h"

namespace vantrel::console {

// Whether only what the user sees is told, without pictures; or every control, with what is hidden
// marked so, pictures and timers too.
enum class Detail { Seen, Everything };

// The windows that a user sees side by side, in the order of their creation.
std::vector<forms::Form*> WindowsOnScreen(const forms::headless::Toolkit& toolkit);

// The visible windows hosted in the form, frontmost first.
std::vector<forms::Form*> HostedIn(const forms::headless::Toolkit& toolkit,
                                   const forms::Form& form);

// One line: which windows show, each with its front panel; and which is open modally.
std::string ScreenLine(const forms::headless::Toolkit& toolkit);

// A window with its menus and controls, and the front one of the panels in it. The lines end with
// a line feed.
std::string WindowText(const forms::headless::Toolkit& toolkit, const forms::Form& form,
                       Detail detail);

// A control with what lies in it.
std::string ControlText(const forms::headless::Toolkit& toolkit, forms::Control& control,
                        Detail detail);

// What is written on a control that a user could call it by: its caption without the mark of its
// access key, the face of a link. Empty for lists and boxes of text.
std::string CaptionOf(forms::Control& control);
// A caption without its access mark.
std::string WithoutMark(const std::string& caption);

}  // namespace vantrel::console

#endif  // VANTREL_APP_CONSOLE_SCREEN_H_
