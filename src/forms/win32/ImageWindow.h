// A picture of an image list.
#ifndef VANTREL_FORMS_WIN32_IMAGEWINDOW_H_
#define VANTREL_FORMS_WIN32_IMAGEWINDOW_H_

#include "forms/ImageList.h"
#include "forms/win32/ControlWindow.h"

namespace vantrel::forms::win32 {

class ImageWindow final : public ControlWindow {
 public:
  ImageWindow(WindowSystem& system, Image& image) : ControlWindow(system, image), image_(image) {}
  void PaintSurface(HDC context, const RECT& area) override;

 protected:
  WindowShape Shape() const override { return {}; }
  LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override;

 private:
  Image& image_;
};

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_IMAGEWINDOW_H_
