#include "forms/Control.h"

#include <utility>

#include "forms/Form.h"

namespace vantrel::forms {

Parent::Parent(Control& container) : Form(container.Owner()), Container(&container) {}

Control::Control(const Parent& parent, std::string name, const Design& design)
    : form_(parent.Form),
      container_(parent.Container),
      name_(std::move(name)),
      index_(design.Index),
      windowText_(design.Caption),
      toolTipText_(design.ToolTipText),
      place_(design.At),
      font_(design.TextFont),
      drawn_(design.Drawn),
      alignment_(design.Alignment),
      anchors_(design.Anchored),
      visible_(design.Visible),
      enabled_(design.Enabled) {
  form_.controls_.push_back(this);
}

Control::~Control() {
  std::erase(form_.controls_, this);
  if (form_.toolkit_.focus_ == this) form_.toolkit_.focus_ = nullptr;
}

std::string Control::QualifiedName() const {
  std::string name = form_.Name() + "." + name_;
  if (index_ >= 0) name += "(" + std::to_string(index_) + ")";
  return name;
}

void Control::AssignWindowText(const std::string& text) { SetWindowText(text); }

void Control::SetVisible(bool visible) {
  if (visible_ == visible) return;
  if (!visible) GiveFocusAway();
  visible_ = visible;
  Changed(Aspect::Visible);
}

void Control::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  if (!enabled) GiveFocusAway();
  enabled_ = enabled;
  Changed(Aspect::Enabled);
}

// The focus is moved before its control goes, since a window that loses it that way leaves the
// keyboard dead.
void Control::GiveFocusAway() {
  Toolkit& toolkit = form_.toolkit_;
  if (toolkit.focus_ != this) return;
  Control* next = form_.Outermost().NextTabStop(this);
  toolkit.MoveFocus(next == this ? nullptr : next);
}

void Control::SetToolTipText(const std::string& text) {
  if (toolTipText_ == text) return;
  toolTipText_ = text;
  Changed(Aspect::ToolTip);
}

void Control::Move(const Place& place) {
  if (place_ == place) return;
  place_ = place;
  Changed(Aspect::Place);
}

void Control::SetBackColor(Color color) {
  if (backColor_ == color) return;
  backColor_ = color;
  Changed(Aspect::Color);
}

void Control::SetForeColor(Color color) {
  if (foreColor_ == color) return;
  foreColor_ = color;
  Changed(Aspect::Color);
}

void Control::SetTextFont(const Font& font) {
  if (font_ == font) return;
  font_ = font;
  Changed(Aspect::Font);
}

void Control::SetMousePointer(int pointer) {
  if (mousePointer_ == pointer) return;
  mousePointer_ = pointer;
  Changed(Aspect::Pointer);
}

void Control::SetAlignment(Align alignment) {
  if (alignment_ == alignment) return;
  alignment_ = alignment;
  Changed(Aspect::Font);
}

bool Control::Shown() const {
  if (!visible_) return false;
  return container_ != nullptr ? container_->Shown() : form_.Shown();
}

bool Control::TakesFocus() const {
  if (!visible_ || !enabled_) return false;
  return container_ == nullptr || container_->TakesFocus();
}

bool Control::Reachable() const { return TakesFocus() && form_.Shown(); }

void Control::SetFocus() {
  if (form_.Loaded() && TakesFocus()) form_.toolkit_.MoveFocus(this);
}

Handle Control::WindowHandle() const { return peer_ ? peer_->WindowHandle() : 0; }

void Control::UserClick() {
  if (enabled_) Click();
}

void Control::SetWindowText(const std::string& text) {
  if (windowText_ == text) return;
  windowText_ = text;
  Changed(Aspect::Text);
}

void Control::Changed(Aspect aspect) {
  if (peer_) peer_->Changed(aspect);
}

}  // namespace vantrel::forms
