// A text box. What is typed is the model's text at once.
#ifndef VANTREL_FORMS_WIN32_TEXTBOXWINDOW_H_
#define VANTREL_FORMS_WIN32_TEXTBOXWINDOW_H_

#include "forms/Controls.h"
#include "forms/win32/ControlWindow.h"

namespace vantrel::forms::win32 {

class TextBoxWindow final : public ControlWindow {
 public:
  TextBoxWindow(WindowSystem& system, TextBox& box) : ControlWindow(system, box), box_(box) {}
  void PaintSurface(HDC, const RECT&) override {}
  LRESULT OnCommand(WPARAM first, LPARAM second) override;
  HBRUSH OnColor(HDC context) override { return OnInputColor(context); }

 protected:
  WindowShape Shape() const override;
  void Prepare() override;
  void Rescale() override { Prepare(); }
  LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override;

 private:
  TextBox& box_;
};

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_TEXTBOXWINDOW_H_
