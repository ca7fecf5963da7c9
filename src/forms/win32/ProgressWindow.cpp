#include "forms/win32/ProgressWindow.h"

#include <commctrl.h>

namespace vantrel::forms::win32 {

WindowShape ProgressWindow::Shape() const {
  WindowShape shape;
  shape.ClassName = PROGRESS_CLASSA;
  return shape;
}

void ProgressWindow::Changed(Aspect aspect) {
  if (aspect != Aspect::Value) return ControlWindow::Changed(aspect);
  Tell(PBM_SETRANGE32, static_cast<WPARAM>(bar_.Min()), bar_.Max());
  Tell(PBM_SETPOS, static_cast<WPARAM>(bar_.Value()));
}

}  // namespace vantrel::forms::win32
