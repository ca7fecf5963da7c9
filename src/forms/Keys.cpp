#include "forms/Keys.h"

#include <algorithm>

#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/UserControl.h"

namespace vantrel::forms {
namespace {

CommandButton* ButtonWhich(const Form& form, bool (CommandButton::*is)() const) {
  for (Control* control : form.Controls()) {
    auto* button = dynamic_cast<CommandButton*>(control);
    if (button != nullptr && (button->*is)()) return button;
  }
  return nullptr;
}

}  // namespace

Control* NextStop(std::vector<Control*> stops, const Control* from, bool backwards) {
  if (stops.empty()) return nullptr;
  if (backwards) std::reverse(stops.begin(), stops.end());
  const auto at = std::find(stops.begin(), stops.end(), from);
  return at == stops.end() || at + 1 == stops.end() ? stops.front() : *(at + 1);
}

bool StandsForGroup(const Control& control) {
  const auto* option = dynamic_cast<const OptionButton*>(&control);
  if (option == nullptr || option->Value()) return true;
  const OptionButton* first = nullptr;
  for (const Control* other : option->Owner().Controls()) {
    const auto* candidate = dynamic_cast<const OptionButton*>(other);
    if (candidate == nullptr || candidate->Container() != option->Container() ||
        !candidate->Reachable()) {
      continue;
    }
    if (candidate->Value()) return false;
    if (first == nullptr) first = candidate;
  }
  return option == first;
}

CommandButton* DefaultButton(const Form& form) {
  return ButtonWhich(form, &CommandButton::IsDefault);
}

CommandButton* CancelButton(const Form& form) {
  return ButtonWhich(form, &CommandButton::IsCancel);
}

bool KeepsEnter(const Control* focused) {
  const auto* box = dynamic_cast<const TextBox*>(focused);
  return (box != nullptr && box->MultiLine() && !box->ReadOnly()) ||
         dynamic_cast<const UserControl*>(focused) != nullptr ||
         dynamic_cast<const Label*>(focused) != nullptr;
}

bool ClosesOnEscape(const Form& form) {
  return form.Designed().Frame == Border::Dialog && CancelButton(form) == nullptr;
}

}  // namespace vantrel::forms
