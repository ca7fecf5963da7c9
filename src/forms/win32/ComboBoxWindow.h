// The drop-down lists.
#ifndef VANTREL_FORMS_WIN32_COMBOBOXWINDOW_H_
#define VANTREL_FORMS_WIN32_COMBOBOXWINDOW_H_

#include "forms/ComboBox.h"
#include "forms/win32/ControlWindow.h"

namespace vantrel::forms::win32 {

class ComboBoxWindow final : public ControlWindow {
 public:
  ComboBoxWindow(WindowSystem& system, ComboBox& box) : ControlWindow(system, box), box_(box) {}
  void Changed(Aspect aspect) override;
  void PaintSurface(HDC, const RECT&) override {}
  LRESULT OnCommand(WPARAM first, LPARAM second) override;
  HBRUSH OnColor(HDC context) override { return OnInputColor(context); }

 protected:
  WindowShape Shape() const override;
  void Prepare() override;
  LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override;

 private:
  void Fit();
  void ShowSelection();
  LRESULT Select(int index);

  ComboBox& box_;
};

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_COMBOBOXWINDOW_H_
