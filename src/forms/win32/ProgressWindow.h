// A progress bar.
#ifndef VANTREL_FORMS_WIN32_PROGRESSWINDOW_H_
#define VANTREL_FORMS_WIN32_PROGRESSWINDOW_H_

#include "forms/Controls.h"
#include "forms/win32/ControlWindow.h"

namespace vantrel::forms::win32 {

class ProgressWindow final : public ControlWindow {
 public:
  ProgressWindow(WindowSystem& system, ProgressBar& bar) : ControlWindow(system, bar), bar_(bar) {}
  void Changed(Aspect aspect) override;

 protected:
  WindowShape Shape() const override;
  bool IsSpokenByName() const override { return true; }
  void Prepare() override { Changed(Aspect::Value); }
  LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override;

 private:
  ProgressBar& bar_;
};

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_PROGRESSWINDOW_H_
