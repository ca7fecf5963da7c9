// What the keys of a window do to its controls, whatever shows them.
#ifndef VANTREL_FORMS_KEYS_H_
#define VANTREL_FORMS_KEYS_H_

#include <vector>

#include "forms/Control.h"

namespace vantrel::forms {

class CommandButton;

// The one behind (or before) `from`, round about; the first if `from` is none of them, nullptr if
// there are none.
Control* NextStop(std::vector<Control*> stops, const Control* from, bool backwards);

// Of a group of options Tab visits the selected one, or the first that the user can reach while
// none is selected. True for every other control.
bool StandsForGroup(const Control& control);

// The window's button that Enter, or Esc, presses; nullptr for none.
CommandButton* DefaultButton(const Form& form);
CommandButton* CancelButton(const Form& form);

// Whether the control has a use of its own for Enter: a link is followed, a text box of several
// lines breaks its line. False for nullptr.
bool KeepsEnter(const Control* focused);

// Whether Esc acts as the close box: in a dialog without a button for it.
bool ClosesOnEscape(const Form& form);

}  // namespace vantrel::forms

#endif  // VANTREL_FORMS_KEYS_H_
