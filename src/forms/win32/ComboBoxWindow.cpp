#include "forms/win32/ComboBoxWindow.h"

#include "forms/Form.h"

namespace vantrel::forms::win32 {
namespace {

constexpr int RowsDropped = 8;
constexpr int FieldMargin = 6;  // pixels at 96 dots per inch, above and below the text together

}  // namespace

WindowShape ComboBoxWindow::Shape() const {
  WindowShape shape;
  shape.ClassName = "COMBOBOX";
  shape.Style = WS_VSCROLL | CBS_AUTOHSCROLL |
                (box_.Style() == ComboStyle::Editable ? CBS_DROPDOWN : CBS_DROPDOWNLIST);
  return shape;
}

void ComboBoxWindow::Prepare() {
  for (int index = 0; index < box_.ListCount(); ++index) {
    Tell(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(box_.List(index).c_str()));
  }
  ShowSelection();
  Fit();
}

// The field is as high as designed; the height that Windows gets is that of the open list.
void ComboBoxWindow::Fit() {
  const RECT area = System().Pixels.Rectangle(box_.At());
  const int row = static_cast<int>(SendMessageA(Handle(), CB_GETITEMHEIGHT, 0, 0));
  Tell(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1),
       HeightOf(area) - System().Pixels.Scaled(FieldMargin));
  SetWindowPos(Handle(), nullptr, area.left, area.top, WidthOf(area),
               HeightOf(area) + row * RowsDropped + 2, SWP_NOZORDER | SWP_NOACTIVATE);
}

void ComboBoxWindow::ShowSelection() {
  const bool editable = box_.Style() == ComboStyle::Editable;
  const bool typed = editable && ShownText() == box_.Text();
  const auto marked = static_cast<LPARAM>(SendMessageA(Handle(), CB_GETEDITSEL, 0, 0));
  if (SendMessageA(Handle(), CB_GETCURSEL, 0, 0) != box_.ListIndex()) {
    Tell(CB_SETCURSEL, static_cast<WPARAM>(box_.ListIndex()));
  }
  if (Alive() && editable && ShownText() != box_.Text()) {
    Tell(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(box_.Text().c_str()));
  }
  // A selection moves the caret to the front; to what the user is typing it comes back.
  if (Alive() && typed) Tell(CB_SETEDITSEL, 0, marked);
}

void ComboBoxWindow::Changed(Aspect aspect) {
  switch (aspect) {
    case Aspect::Text:
    case Aspect::Selection:
      return ShowSelection();
    case Aspect::Place:
      return Fit();
    case Aspect::Font:
      ControlWindow::Changed(aspect);
      return Fit();
    default:
      return ControlWindow::Changed(aspect);
  }
}

LRESULT ComboBoxWindow::OnCommand(WPARAM first, LPARAM) {
  if (IsTelling()) return 0;
  switch (HIWORD(first)) {
    case CBN_SELCHANGE: {
      const auto index = static_cast<int>(SendMessageA(Handle(), CB_GETCURSEL, 0, 0));
      Raise([&] { box_.SetListIndex(index); });
      break;
    }
    case CBN_EDITCHANGE: {
      const std::string text = ShownText();
      Raise([&] { box_.AssignWindowText(text); });
      break;
    }
    case CBN_SETFOCUS:
      Raise([this] { System().UserMovesFocus(&box_); });
      break;
    default:
      break;
  }
  return 0;
}

// By a message from outside, for the model as well; none for -1.
LRESULT ComboBoxWindow::Select(int index) {
  if (index < -1 || index >= box_.ListCount()) return CB_ERR;
  Raise([&] { box_.SetListIndex(index); });
  return index;
}

LRESULT ComboBoxWindow::OnMessage(UINT message, WPARAM first, LPARAM second) {
  if (IsTelling()) return ControlWindow::OnMessage(message, first, second);
  if (message == CB_SETCURSEL) return Select(static_cast<int>(static_cast<LONG_PTR>(first)));
  if (message == CB_SELECTSTRING) {
    const LRESULT found = second != 0 ? Tell(CB_FINDSTRING, first, second) : CB_ERR;
    return found >= 0 ? Select(static_cast<int>(found)) : CB_ERR;
  }
  return ControlWindow::OnMessage(message, first, second);
}

}  // namespace vantrel::forms::win32
