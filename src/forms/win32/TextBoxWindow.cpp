#include "forms/win32/TextBoxWindow.h"

namespace vantrel::forms::win32 {
namespace {

constexpr int TextMargin = 3;      // pixels at 96 dots per inch
constexpr LPARAM LongestText = 0;  // no limit

DWORD AlignStyle(Align alignment) {
  switch (alignment) {
    case Align::Right:
      return ES_RIGHT;
    case Align::Center:
      return ES_CENTER;
    default:
      return ES_LEFT;
  }
}

}  // namespace

WindowShape TextBoxWindow::Shape() const {
  WindowShape shape;
  shape.ClassName = "EDIT";
  shape.Text = box_.Text().substr(0, LongestShown);
  shape.Style = WS_BORDER | AlignStyle(box_.Alignment());
  if (box_.MultiLine()) shape.Style |= ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL;
  if (!box_.MultiLine() || !box_.WordWrap()) shape.Style |= ES_AUTOHSCROLL;
  if (box_.ReadOnly()) shape.Style |= ES_READONLY;
  return shape;
}

void TextBoxWindow::Prepare() {
  const int margin = System().Pixels.Scaled(TextMargin);
  Tell(EM_SETLIMITTEXT, LongestText);
  Tell(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(margin, margin));
}

LRESULT TextBoxWindow::OnCommand(WPARAM first, LPARAM) {
  if (HIWORD(first) != EN_CHANGE || IsTelling()) return 0;
  const std::string text = ShownText();
  if (text != box_.WindowText()) Raise([&] { box_.AssignWindowText(text); });
  return 0;
}

LRESULT TextBoxWindow::OnMessage(UINT message, WPARAM first, LPARAM second) {
  const LRESULT answer = ControlWindow::OnMessage(message, first, second);
  const bool borderChanges =
      message == WM_NCPAINT || message == WM_SETFOCUS || message == WM_KILLFOCUS;
  if (borderChanges && Alive()) DrawOwnBorder();
  return answer;
}

}  // namespace vantrel::forms::win32
