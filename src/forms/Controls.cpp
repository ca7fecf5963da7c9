#include "forms/Controls.h"

#include <algorithm>
#include <utility>

#include "forms/ControlVisitor.h"
#include "forms/Form.h"

namespace vantrel::forms {
namespace {

using text::ErrorNumber;
using text::RuntimeError;

void Require(bool valid) {
  if (!valid) throw RuntimeError(ErrorNumber::InvalidPropertyValue);
}

Design TimerDesign(bool enabled) {
  Design design;
  design.Enabled = enabled;
  return design;
}

}  // namespace

void Label::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void Label::AssignWindowText(const std::string& text) {
  if (WindowText() == text) return;
  SetWindowText(text);
  Change();
}

void Label::SetAutoSize(bool autoSize) {
  if (autoSize_ == autoSize) return;
  autoSize_ = autoSize;
  Changed(Aspect::Place);
}

void Label::SetAppearance(int appearance) {
  Require(appearance == Flat || appearance == ThreeD);
  if (appearance_ == appearance) return;
  appearance_ = appearance;
  Changed(Aspect::Color);
}

void Label::SetBorderStyle(int borderStyle) {
  Require(borderStyle == NoBorder || borderStyle == SingleLine);
  if (borderStyle_ == borderStyle) return;
  borderStyle_ = borderStyle;
  // Like a font, a border changes what space the text needs.
  Changed(Aspect::Font);
}

CommandButton::CommandButton(const Parent& parent, std::string name, const Design& design)
    : CaptionedControl(parent, std::move(name), design),
      default_(design.Default),
      cancel_(design.Cancel) {}

void CommandButton::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void CommandButton::SetValue(bool value) {
  if (value) Click();
}

CheckBox::CheckBox(const Parent& parent, std::string name, const Design& design, int value)
    : CaptionedControl(parent, std::move(name), design), value_(value) {}

void CheckBox::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void CheckBox::SetValue(int value) {
  Require(value >= Unchecked && value <= Grayed);
  if (value_ == value) return;
  value_ = value;
  Changed(Aspect::Value);
  Click();
}

void CheckBox::UserClick() {
  if (Enabled()) SetValue(value_ == Unchecked ? Checked : Unchecked);
}

OptionButton::OptionButton(const Parent& parent, std::string name, const Design& design, bool value)
    : CaptionedControl(parent, std::move(name), design), value_(value) {}

void OptionButton::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void OptionButton::SetValue(bool value) {
  if (value_ == value) return;
  value_ = value;
  if (value) ClearOthers();
  Changed(Aspect::Value);
  if (value) Click();
}

void OptionButton::ClearOthers() {
  for (Control* control : Owner().Controls()) {
    auto* other = dynamic_cast<OptionButton*>(control);
    if (other == nullptr || other == this || other->Container() != Container()) continue;
    if (!std::exchange(other->value_, false)) continue;
    other->Changed(Aspect::Value);
  }
}

void OptionButton::UserClick() {
  if (Enabled()) SetValue(true);
}

TextBox::TextBox(const Parent& parent, std::string name, const Design& design, TextBoxDesign box)
    : Control(parent, std::move(name), design), box_(box) {}

void TextBox::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void TextBox::AssignWindowText(const std::string& text) {
  if (WindowText() == text) return;
  SetWindowText(text);
  Change();
}

void Frame::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void PictureBox::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void ProgressBar::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void ProgressBar::SetValue(int value) {
  Require(value >= min_ && value <= max_);
  if (value_ == value) return;
  value_ = value;
  Changed(Aspect::Value);
}

void ProgressBar::SetMin(int min) { SetRange(min, max_); }

void ProgressBar::SetMax(int max) { SetRange(min_, max); }

void ProgressBar::SetRange(int min, int max) {
  Require(min < max);
  if (min_ == min && max_ == max) return;
  min_ = min;
  max_ = max;
  value_ = std::clamp(value_, min_, max_);
  Changed(Aspect::Value);
}

Timer::Timer(const Parent& parent, std::string name, int interval, bool enabled)
    : Control(parent, std::move(name), TimerDesign(enabled)), interval_(interval) {}

void Timer::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void Timer::SetInterval(int milliseconds) {
  Require(milliseconds >= 0 && milliseconds <= 65535);
  if (interval_ == milliseconds) return;
  interval_ = milliseconds;
  Changed(Aspect::Value);
}

}  // namespace vantrel::forms
