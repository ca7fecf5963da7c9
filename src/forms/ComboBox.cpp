#include "forms/ComboBox.h"

#include <algorithm>
#include <utility>

#include "forms/ControlVisitor.h"
#include "forms/Form.h"
#include "text/Strings.h"

namespace vantrel::forms {

ComboBox::ComboBox(const Parent& parent, std::string name, const Design& design, ComboStyle style,
                   std::vector<std::string> entries)
    : Control(parent, std::move(name), design), style_(style), entries_(std::move(entries)) {
  listIndex_ = IndexOf(WindowText());
}

void ComboBox::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

std::string ComboBox::List(int index) const {
  return index >= 0 && index < ListCount() ? entries_[static_cast<std::size_t>(index)] : "";
}

int ComboBox::IndexOf(const std::string& text) const {
  const auto entry = std::find_if(
      entries_.begin(), entries_.end(),
      [&text](const std::string& candidate) { return text::EqualIgnoringCase(candidate, text); });
  return entry == entries_.end() ? -1 : static_cast<int>(entry - entries_.begin());
}

void ComboBox::AssignWindowText(const std::string& text) {
  if (style_ == ComboStyle::PickOnly) {
    const int index = IndexOf(text);
    if (index >= 0) Select(index);
    return;
  }
  if (WindowText() == text) return;
  listIndex_ = IndexOf(text);
  SetWindowText(text);
  Change();
}

void ComboBox::SetListIndex(int index) {
  if (index < -1 || index >= ListCount()) {
    throw text::RuntimeError(text::ErrorNumber::InvalidPropertyValue);
  }
  Select(index);
}

// The text is in place before either event, so that each handler reads both as they will stay.
void ComboBox::Select(int index) {
  const std::string text = List(index);
  const bool newIndex = std::exchange(listIndex_, index) != index;
  const bool newText = WindowText() != text;
  SetWindowText(text);
  if (newIndex) Changed(Aspect::Selection);
  if (newText && style_ == ComboStyle::Editable) Change();
  if (newIndex) Click();
}

bool ComboBox::UserLeaves() {
  bool keepFocus = false;
  Validate(keepFocus);
  return !keepFocus;
}

}  // namespace vantrel::forms
