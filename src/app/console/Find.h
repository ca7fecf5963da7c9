// What a word of a command names: a window, a control, a menu entry. Names and captions are taken
// without regard to case; what shows goes before what does not; nothing found and more than one
// found is a CommandError that names the nearest.
#ifndef VANTREL_APP_CONSOLE_FIND_H_
#define VANTREL_APP_CONSOLE_FIND_H_

#include <string>

#include "forms/Bars.h"
#include "forms/Form.h"
#include "forms/headless/Toolkit.h"

namespace vantrel::console {

// A loaded window by its name; by the beginning of one; by its caption.
forms::Form& FindWindow(const forms::headless::Toolkit& toolkit, const std::string& word);

// A control as "cmdstart", "FrmFrameMain.cmdstart", its caption if it shows, or the beginning of
// its name.
forms::Control& FindControl(const forms::headless::Toolkit& toolkit, const std::string& word);

// The same, of one kind, which errors call `kind`.
template <class Kind>
Kind& FindControlOf(const forms::headless::Toolkit& toolkit, const std::string& word,
                    const char* kind);

// An entry by its name, or by the captions of its way as "File/Start Blocking"; beginnings do.
forms::Menu& FindMenu(const forms::headless::Toolkit& toolkit, const std::string& word);

// An entry of one menu by its caption.
forms::Menu& FindEntry(const std::vector<forms::Menu*>& entries, const std::string& word);

[[noreturn]] void RefuseKind(const forms::Control& control, const char* kind);

template <class Kind>
Kind& FindControlOf(const forms::headless::Toolkit& toolkit, const std::string& word,
                    const char* kind) {
  forms::Control& control = FindControl(toolkit, word);
  auto* found = dynamic_cast<Kind*>(&control);
  if (found == nullptr) RefuseKind(control, kind);
  return *found;
}

}  // namespace vantrel::console

#endif  // VANTREL_APP_CONSOLE_FIND_H_
