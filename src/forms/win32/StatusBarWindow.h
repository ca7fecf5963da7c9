// The bar at the foot of a main window, with texts, the date and the time.
#ifndef VANTREL_FORMS_WIN32_STATUSBARWINDOW_H_
#define VANTREL_FORMS_WIN32_STATUSBARWINDOW_H_

#include <vector>

#include "forms/Bars.h"
#include "forms/win32/ControlWindow.h"

namespace vantrel::forms::win32 {

class StatusBarWindow final : public ControlWindow {
 public:
  StatusBarWindow(WindowSystem& system, StatusBar& bar) : ControlWindow(system, bar), bar_(bar) {}
  void Changed(Aspect aspect) override;
  void PaintSurface(HDC context, const RECT& area) override;

 protected:
  WindowShape Shape() const override;
  void Prepare() override;
  void Rescale() override { Divide(); }
  LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override;

 private:
  void Divide();
  void ShowTexts();

  StatusBar& bar_;
  std::vector<std::string> texts_;
};

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_STATUSBARWINDOW_H_
