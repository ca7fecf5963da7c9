// The surface of a control made of other controls: shows the text, colours and pointer of its
// face, and takes mouse and keyboard for it. The face has no window of its own.
#ifndef VANTREL_FORMS_WIN32_USERCONTROLWINDOW_H_
#define VANTREL_FORMS_WIN32_USERCONTROLWINDOW_H_

#include <memory>

#include "forms/UserControl.h"
#include "forms/win32/ControlWindow.h"

namespace vantrel::forms {
class Label;
}

namespace vantrel::forms::win32 {

class UserControlWindow : public ControlWindow {
 public:
  UserControlWindow(WindowSystem& system, UserControl& control)
      : ControlWindow(system, control), surface_(control) {}

  void Changed(Aspect aspect) override;
  void FaceChanged(Label& face, Aspect aspect);
  void PaintSurface(HDC context, const RECT& area) override;

 protected:
  WindowShape Shape() const override;
  void Rescale() override;
  HFONT TextFont() const override { return System().Typefaces.Of(Face().TextFont()); }
  int Pointer() const override;
  const std::string& TipText() const override;
  Control& MouseTarget() const override { return Face(); }
  LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override;

 private:
  Control& Face() const;
  RECT PaintBorder(HDC context, const RECT& area) const;

  UserControl& surface_;
};

// Whether the label lies on a user control, which then shows it.
bool IsFace(const Label& label);
std::unique_ptr<ControlPeer> MakeFacePeer(WindowSystem& system, Label& face);

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_USERCONTROLWINDOW_H_
