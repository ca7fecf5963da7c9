// The containers: frames with a caption, sheets, and plain areas of colour.
#ifndef VANTREL_FORMS_WIN32_FRAMEWINDOWS_H_
#define VANTREL_FORMS_WIN32_FRAMEWINDOWS_H_

#include "forms/Controls.h"
#include "forms/win32/ControlWindow.h"

namespace vantrel::forms::win32 {

class ContainerWindow : public ControlWindow {
 public:
  using ControlWindow::ControlWindow;
  void Changed(Aspect aspect) override;

 protected:
  WindowShape Shape() const override;
  LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override;
};

class FrameWindow final : public ContainerWindow {
 public:
  FrameWindow(WindowSystem& system, Frame& frame) : ContainerWindow(system, frame), frame_(frame) {}
  void PaintSurface(HDC context, const RECT& area) override;
  Color GroundColor() const override;

 private:
  bool IsInsideLine(HDC context, const RECT& area) const;
  void PaintCaption(HDC context, const RECT& area, int height) const;
  bool IsCard() const { return frame_.Drawn() == Look::Card; }

  Frame& frame_;
};

class PictureBoxWindow final : public ContainerWindow {
 public:
  PictureBoxWindow(WindowSystem& system, PictureBox& box) : ContainerWindow(system, box) {}
  void PaintSurface(HDC context, const RECT& area) override;
  Color GroundColor() const override { return Model().BackColor(); }
};

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_FRAMEWINDOWS_H_
