// The two drop-down lists: one whose text is typed, one from which is only picked.
#ifndef VANTREL_FORMS_COMBOBOX_H_
#define VANTREL_FORMS_COMBOBOX_H_

#include <string>
#include <vector>

#include "forms/Control.h"

namespace vantrel::forms {

enum class ComboStyle { Editable, PickOnly };

class ComboBox : public Control {
 public:
  ComboBox(const Parent& parent, std::string name, const Design& design, ComboStyle style,
           std::vector<std::string> entries);
  void Accept(ControlVisitor& visitor) override;
  bool IsTabStop() const override { return true; }

  ComboStyle Style() const { return style_; }
  int ListCount() const { return static_cast<int>(entries_.size()); }
  // The entry at the 0-based index; the empty text one past the last, as beyond.
  std::string List(int index) const;

  const std::string& Text() const { return WindowText(); }
  // Editable: the text becomes this, Change is raised if that is a change. Pick-only: the entry
  // that equals the text without regard to case is selected, Click is raised if that is a change;
  // a text that equals none leaves the selection as it is.
  void SetText(const std::string& text) { AssignWindowText(text); }
  void AssignWindowText(const std::string& text) override;

  // -1 for no selection. Selecting another entry sets the text and raises Click (and Change, if
  // the text is edited); error 380 for an index outside the list.
  int ListIndex() const { return listIndex_; }
  void SetListIndex(int index);

  // The user leaves the control: raises Validate; true if the focus may go.
  bool UserLeaves() override;

  Event<> Change;
  // Set the flag to keep the focus.
  Event<bool&> Validate;

 private:
  void Select(int index);
  int IndexOf(const std::string& text) const;

  ComboStyle style_;
  std::vector<std::string> entries_;
  int listIndex_ = -1;
};

}  // namespace vantrel::forms

#endif  // VANTREL_FORMS_COMBOBOX_H_
