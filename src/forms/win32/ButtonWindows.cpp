#include "forms/win32/ButtonWindows.h"

#include <utility>

namespace vantrel::forms::win32 {

WindowShape ButtonWindow::ShapeOf(DWORD style) const {
  WindowShape shape;
  shape.ClassName = "BUTTON";
  shape.Text = Model().WindowText();
  shape.Style = style;
  return shape;
}

void ButtonWindow::Clicks() {
  Raise([this] { Model().UserClick(); });
}

LRESULT ButtonWindow::OnCommand(WPARAM first, LPARAM) {
  // Windows lets an option report a click when it gets the focus: that is none.
  if (HIWORD(first) == BN_CLICKED && !focusing_) Clicks();
  return 0;
}

// The focus mark goes around the text that the button asks itself for while it paints: blanks at
// its end, which nobody sees, would lengthen it.
LRESULT ButtonWindow::TextToPaint(WPARAM size, LPARAM buffer) {
  auto* const text = reinterpret_cast<char*>(buffer);
  LRESULT length = ControlWindow::OnMessage(WM_GETTEXT, size, buffer);
  while (length > 0 && text[length - 1] == ' ') text[--length] = '\0';
  return length;
}

LRESULT ButtonWindow::OnMessage(UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case BM_CLICK:
      // At once, wherever it comes from, even while the window is hidden.
      if (Model().Enabled()) Clicks();
      return 0;
    case BM_SETCHECK:
      if (!IsTelling() && AssignCheck(first)) return 0;
      break;
    case WM_PAINT:
    case WM_PRINTCLIENT: {
      painting_ = true;
      const LRESULT answer = ControlWindow::OnMessage(message, first, second);
      painting_ = false;
      return answer;
    }
    case WM_GETTEXT:
      if (painting_) return TextToPaint(first, second);
      break;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      return Press(first, second);
    case WM_SETFOCUS: {
      const bool outer = std::exchange(focusing_, true);
      const LRESULT answer = ControlWindow::OnMessage(message, first, second);
      focusing_ = outer;
      return answer;
    }
    default:
      break;
  }
  return ControlWindow::OnMessage(message, first, second);
}

WindowShape CommandButtonWindow::Shape() const {
  return ShapeOf(button_.IsDefault() ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON);
}

void CheckBoxWindow::Changed(Aspect aspect) {
  if (aspect != Aspect::Value) return ButtonWindow::Changed(aspect);
  Tell(BM_SETCHECK, static_cast<WPARAM>(box_.Value()));
}

bool CheckBoxWindow::AssignCheck(WPARAM value) {
  if (value > static_cast<WPARAM>(Grayed)) return true;
  Raise([&] { box_.SetValue(static_cast<int>(value)); });
  return true;
}

void OptionButtonWindow::Changed(Aspect aspect) {
  if (aspect != Aspect::Value) return ButtonWindow::Changed(aspect);
  Tell(BM_SETCHECK, option_.Value() ? BST_CHECKED : BST_UNCHECKED);
}

bool OptionButtonWindow::AssignCheck(WPARAM value) {
  Raise([&] { option_.SetValue(value == BST_CHECKED); });
  return true;
}

}  // namespace vantrel::forms::win32
