#include "forms/win32/FileListWindow.h"

namespace vantrel::forms::win32 {

WindowShape FileListWindow::Shape() const {
  WindowShape shape;
  shape.ClassName = "LISTBOX";
  shape.Style = WS_BORDER | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | LBS_HASSTRINGS;
  return shape;
}

// Filled without painting: with it, each row of thousands would be drawn.
void FileListWindow::Fill() {
  Tell(WM_SETREDRAW, FALSE);
  Tell(LB_RESETCONTENT);
  for (int index = 0; index < list_.ListCount(); ++index) {
    Tell(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(list_.List(index).c_str()));
  }
  Tell(WM_SETREDRAW, TRUE);
  Invalidate();
}

void FileListWindow::Changed(Aspect aspect) {
  if (aspect == Aspect::Items) {
    Fill();
  } else {
    ControlWindow::Changed(aspect);
  }
}

LRESULT FileListWindow::OnCommand(WPARAM first, LPARAM) {
  if (HIWORD(first) == LBN_SELCHANGE) Raise([this] { list_.UserClick(); });
  return 0;
}

LRESULT FileListWindow::OnMessage(UINT message, WPARAM first, LPARAM second) {
  const LRESULT answer = ControlWindow::OnMessage(message, first, second);
  if (message == WM_NCPAINT && Alive()) DrawOwnBorder();
  return answer;
}

}  // namespace vantrel::forms::win32
