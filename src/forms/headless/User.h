// The user of the windows, for tests and the console. Each act is an event at the
// border, and is refused (false) where a user could not do it: on what does not show, is disabled,
// or lies behind a modal window.
#ifndef VANTREL_FORMS_HEADLESS_USER_H_
#define VANTREL_FORMS_HEADLESS_USER_H_

#include <functional>
#include <string>

#include "forms/Bars.h"
#include "forms/ComboBox.h"
#include "forms/Controls.h"
#include "forms/ListView.h"
#include "forms/headless/Toolkit.h"

namespace vantrel::forms::headless {

class User {
 public:
  explicit User(Toolkit& toolkit) : toolkit_(toolkit) {}

  // Whether the user can act on it now.
  bool CanReach(const Control& control) const;
  bool CanReach(const Form& form) const;

  // Moves the focus to the control if it takes one, then presses and lets go. False too if the
  // control that has the focus keeps it.
  bool Click(Control& control);
  // Points at the control, x and y in twips.
  bool PointAt(Control& control, float x = 0, float y = 0);
  // Replaces the text of a text box that is not read-only, or of an editable combo box.
  bool Type(Control& control, const std::string& text);
  // Picks the entry that is exactly this text.
  bool Choose(ComboBox& combo, const std::string& entry);
  // Clicks the 1-based row; sets or clears its check mark.
  bool Click(ListView& list, int row);
  bool Check(ListView& list, int row, bool checked);
  // Presses the 1-based button; separators are no buttons.
  bool Press(Toolbar& toolbar, int button);
  // Chooses the entry from the menu bar: it and the menus above it must be visible and enabled.
  bool Select(Menu& entry);

  // Moves the focus on, or back, among the controls of the active window.
  bool Tab(bool backwards = false);
  // Follows the link that has the focus, presses the button that has it, or else the active
  // window's default button; false in a text box of several lines, which takes the key.
  bool Enter();
  // Presses, ticks, chooses or follows what has the focus; of a list the selected row's mark.
  bool Space();
  // Presses the active window's cancel button; closes a dialog that has none.
  bool Escape();
  // Presses the close box.
  bool Close(Form& form);

 private:
  bool Focus(Control& control);
  bool Follow(Control& link);
  Form* ActiveWindow() const;
  Control* Focused() const;
  void At(const std::function<void()>& event) { toolkit_.AtBorder(event); }

  Toolkit& toolkit_;
};

}  // namespace vantrel::forms::headless

#endif  // VANTREL_FORMS_HEADLESS_USER_H_
