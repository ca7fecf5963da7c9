// Labels in all their looks: plain text, notes, figures, headings, the title bar, and links, which
// are clicked by mouse and keyboard.
#ifndef VANTREL_FORMS_WIN32_LABELWINDOW_H_
#define VANTREL_FORMS_WIN32_LABELWINDOW_H_

#include "forms/Controls.h"
#include "forms/win32/ControlWindow.h"

namespace vantrel::forms::win32 {

// Gives a label that takes the size of its text that size, with so many pixels of border around.
void FitToText(Label& label, HFONT font, const Scale& scale, int border = 0);

class LabelWindow : public ControlWindow {
 public:
  LabelWindow(WindowSystem& system, Label& label) : ControlWindow(system, label), label_(label) {}

  void Settle() override { Fit(); }
  void Changed(Aspect aspect) override;
  void PaintSurface(HDC context, const RECT& area) override;

 protected:
  WindowShape Shape() const override;
  HFONT TextFont() const override;
  int Pointer() const override;
  LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override;

 private:
  bool IsLink() const { return label_.Drawn() == Look::Link; }
  bool IsLit() const { return IsLink() && label_.Enabled() && (hovered_ || HasFocus()); }
  bool HasFocus() const { return GetFocus() == Handle(); }
  void PaintGround(HDC context, const RECT& area) const;
  COLORREF TextColor() const;
  void Fit() { FitToText(label_, TextFont(), System().Pixels); }
  void Hover();

  Label& label_;
  bool hovered_ = false;
};

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_LABELWINDOW_H_
