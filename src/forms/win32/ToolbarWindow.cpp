#include "forms/win32/ToolbarWindow.h"

#include <commctrl.h>

#include <vector>

#include "forms/win32/Painting.h"

namespace vantrel::forms::win32 {
namespace {

constexpr int ButtonMargin = 8;    // pixels at 96 dots per inch, around a picture, both sides
constexpr int SeparatorWidth = 9;  //
constexpr int LeftIndent = 4;      //

}  // namespace

WindowShape ToolbarWindow::Shape() const {
  WindowShape shape;
  shape.ClassName = TOOLBARCLASSNAMEA;
  // The text of a button is its tip and its name; with the list style it takes no space.
  shape.Style = TBSTYLE_FLAT | TBSTYLE_LIST | TBSTYLE_TOOLTIPS | TBSTYLE_TRANSPARENT |
                CCS_NOPARENTALIGN | CCS_NORESIZE | CCS_NODIVIDER;
  return shape;
}

void ToolbarWindow::Prepare() {
  const std::string list = bar_.Pictures().QualifiedName();
  const SIZE picture = System().Images.SizeOf(list);
  const int margin = System().Pixels.Scaled(ButtonMargin);
  Tell(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
  Tell(TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_MIXEDBUTTONS);
  Tell(TB_SETINDENT, static_cast<WPARAM>(System().Pixels.Scaled(LeftIndent)));
  Tell(TB_SETBITMAPSIZE, 0, MAKELPARAM(picture.cx, picture.cy));
  Tell(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(System().Images.ImagesFor(list)));
  Tell(TB_SETBUTTONSIZE, 0, MAKELPARAM(picture.cx + margin, picture.cy + margin));
  AddButtons();
}

// A size of pictures holds for the buttons that are added after it.
void ToolbarWindow::Rescale() {
  while (Tell(TB_DELETEBUTTON) != FALSE) {
  }
  Prepare();
}

void ToolbarWindow::AddButtons() {
  std::vector<TBBUTTON> buttons;
  int index = 0;
  for (const ToolButton& model : bar_.Buttons()) {
    TBBUTTON button{};
    button.idCommand = ++index;
    button.fsState = TBSTATE_ENABLED;
    if (model.IsSeparator()) {
      button.fsStyle = BTNS_SEP;
      button.iBitmap = System().Pixels.Scaled(SeparatorWidth);
    } else {
      button.fsStyle = BTNS_BUTTON;
      button.iBitmap = model.Picture - 1;
      button.iString = reinterpret_cast<INT_PTR>(model.ToolTipText.c_str());
    }
    buttons.push_back(button);
  }
  Tell(TB_ADDBUTTONSA, buttons.size(), reinterpret_cast<LPARAM>(buttons.data()));
}

LRESULT ToolbarWindow::OnCommand(WPARAM first, LPARAM) {
  const int index = LOWORD(first);
  Raise([&] { bar_.UserPresses(index); });
  return 0;
}

void ToolbarWindow::PaintSurface(HDC context, const RECT& area) {
  const Colors& colors = System().Palette;
  FillGradient(context, area, colors.Of(palette::ToolbarFrom), colors.Of(palette::ToolbarTo),
               Direction::Down);
  DrawLine(context, {area.left, area.bottom - 1}, {area.right, area.bottom - 1},
           colors.Of(palette::FrameLine));
}

LRESULT ToolbarWindow::OnMessage(UINT message, WPARAM first, LPARAM second) {
  if (message == WM_ERASEBKGND) {
    PaintSurface(reinterpret_cast<HDC>(first), ClientArea(Handle()));
    return 1;
  }
  return ControlWindow::OnMessage(message, first, second);
}

}  // namespace vantrel::forms::win32
