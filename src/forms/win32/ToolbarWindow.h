// The row of tool buttons below the menu bar.
#ifndef VANTREL_FORMS_WIN32_TOOLBARWINDOW_H_
#define VANTREL_FORMS_WIN32_TOOLBARWINDOW_H_

#include "forms/Bars.h"
#include "forms/win32/ControlWindow.h"

namespace vantrel::forms::win32 {

class ToolbarWindow final : public ControlWindow {
 public:
  ToolbarWindow(WindowSystem& system, Toolbar& bar) : ControlWindow(system, bar), bar_(bar) {}
  void PaintSurface(HDC context, const RECT& area) override;
  LRESULT OnCommand(WPARAM first, LPARAM second) override;

 protected:
  WindowShape Shape() const override;
  void Prepare() override;
  void Rescale() override;
  LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override;

 private:
  void AddButtons();

  Toolbar& bar_;
};

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_TOOLBARWINDOW_H_
