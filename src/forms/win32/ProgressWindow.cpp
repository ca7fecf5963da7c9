#include "forms/win32/ProgressWindow.h"

#include <commctrl.h>

#include <algorithm>

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

// A position set from outside is the model's too, as far as its range goes.
LRESULT ProgressWindow::OnMessage(UINT message, WPARAM first, LPARAM second) {
  if (message != PBM_SETPOS || IsTelling()) {
    return ControlWindow::OnMessage(message, first, second);
  }
  const int before = bar_.Value();
  const int value = std::clamp(static_cast<int>(first), bar_.Min(), bar_.Max());
  Raise([&] { bar_.SetValue(value); });
  return before;
}

}  // namespace vantrel::forms::win32
