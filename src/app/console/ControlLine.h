// What one control says of itself, kind by kind.
#ifndef VANTREL_APP_CONSOLE_CONTROLLINE_H_
#define VANTREL_APP_CONSOLE_CONTROLLINE_H_

#include <string>
#include <vector>

#include "forms/Control.h"
#include "platform/memory/Clock.h"

namespace vantrel::console {

struct ControlLine {
  std::string Kind;                // "button", "check", "list", ...
  std::string Text;                // its content and state, without name and common state
  std::vector<std::string> Below;  // rows, columns and entries, a line each
  bool Pictorial = false;          // a picture or timer: nothing a user reads
};

// `now` is what the date and time of a status bar show.
ControlLine Describe(forms::Control& control, const platform::memory::LocalTime& now);

}  // namespace vantrel::console

#endif  // VANTREL_APP_CONSOLE_CONTROLLINE_H_
