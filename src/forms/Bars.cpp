#include "forms/Bars.h"

#include <utility>

#include "forms/ControlVisitor.h"
#include "forms/Form.h"

namespace vantrel::forms {
namespace {

int NextIdentifier(const Form& form) {
  return Menu::FirstIdentifier + static_cast<int>(form.AllMenus().size());
}

}  // namespace

Menu::Menu(Form& form, std::string name, std::string caption, bool visible)
    : form_(form),
      name_(std::move(name)),
      caption_(std::move(caption)),
      visible_(visible),
      identifier_(NextIdentifier(form)) {
  form_.menus_.push_back(this);
  form_.allMenus_.push_back(this);
}

Menu::Menu(Menu& parent, std::string name, std::string caption, bool visible)
    : form_(parent.form_),
      name_(std::move(name)),
      caption_(std::move(caption)),
      visible_(visible),
      identifier_(NextIdentifier(form_)) {
  parent.entries_.push_back(this);
  form_.allMenus_.push_back(this);
}

void Menu::UserClick() {
  if (enabled_ && !IsSeparator()) Click();
}

Toolbar::Toolbar(Form& form, std::string name, const Design& design, const ImageList& pictures,
                 std::vector<ToolButton> buttons)
    : Control(form, std::move(name), design), pictures_(pictures), buttons_(std::move(buttons)) {}

void Toolbar::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void Toolbar::UserPresses(int index) {
  if (!Enabled() || index < 1 || index > static_cast<int>(buttons_.size())) return;
  if (!buttons_[static_cast<std::size_t>(index) - 1].IsSeparator()) ButtonClick(index);
}

StatusBar::StatusBar(Form& form, std::string name, const Design& design,
                     std::vector<StatusPanel> panels)
    : Control(form, std::move(name), design), panels_(std::move(panels)) {}

void StatusBar::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void StatusBar::SetPanelText(int index, const std::string& text) {
  if (index < 1 || index > static_cast<int>(panels_.size())) {
    throw text::RuntimeError(text::ErrorNumber::SubscriptOutOfRange);
  }
  StatusPanel& panel = panels_[static_cast<std::size_t>(index) - 1];
  if (panel.Text == text) return;
  panel.Text = text;
  Changed(Aspect::Text);
}

}  // namespace vantrel::forms
