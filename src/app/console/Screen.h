// The screen of one running copy: what it shows, as text, and what a word of a command names on it.
#ifndef VANTREL_APP_CONSOLE_SCREEN_H_
#define VANTREL_APP_CONSOLE_SCREEN_H_

#include <string>
#include <vector>

#include "app/console/Words.h"
#include "forms/Bars.h"
#include "forms/Form.h"
#include "forms/headless/Toolkit.h"
#include "platform/memory/Clock.h"

namespace vantrel::console {

// What the user sees; or every control, with what is hidden marked so, pictures and timers too.
enum class Detail { Seen, Everything };
// A window with its menus and controls, and the front one of the panels in it. A line a control,
// with its kind, name, text and state.
std::string WindowText(const forms::headless::Toolkit& toolkit, const forms::Form& form,
                       Detail detail);
// A control with everything in it.
std::string ControlText(const forms::headless::Toolkit& toolkit, forms::Control& control);
// Which windows show, each with its front panel; and which is open modally. Without a line feed.
std::string ScreenLine(const forms::headless::Toolkit& toolkit);
// "2004-03-15 12:00:00".
std::string TimeText(const platform::memory::LocalTime& time);

// The windows that a user sees side by side, in the order of their creation.
std::vector<forms::Form*> WindowsOnScreen(const forms::headless::Toolkit& toolkit);

// These take names and captions without regard to case. CommandError if nothing is found, or more
// than one.

// A loaded window by its name; by the beginning of one; by its caption.
forms::Form& FindWindow(const forms::headless::Toolkit& toolkit, const std::string& word);

// A control as "cmdstart", "FrmFrameMain.cmdstart", its caption if it shows, or the beginning of
// its name. Of several those that show go first, and of those the ones in the front panel.
forms::Control& FindControl(const forms::headless::Toolkit& toolkit, const std::string& word);

// The control as one of its kind, which the error for any other calls `kind`.
template <class Kind>
Kind& As(forms::Control& control, const char* kind) {
  if (auto* found = dynamic_cast<Kind*>(&control)) return *found;
  throw CommandError(control.QualifiedName() + " is no " + kind);
}

// An entry by its name, or by the captions of its way as "File/Start Blocking"; beginnings do.
forms::Menu& FindMenu(const forms::headless::Toolkit& toolkit, const std::string& word);
// An entry of one menu by its caption.
forms::Menu& FindEntry(const std::vector<forms::Menu*>& entries, const std::string& word);

}  // namespace vantrel::console

#endif  // VANTREL_APP_CONSOLE_SCREEN_H_
