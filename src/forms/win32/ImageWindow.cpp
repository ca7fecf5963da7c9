#include "forms/win32/ImageWindow.h"

#include <algorithm>

#include "forms/win32/Painting.h"

namespace vantrel::forms::win32 {
namespace {

// A picture or a place so much wider than high is a line: the picture fills the place.
constexpr int LineProportion = 8;

// The picture in the middle of its place, at its own size or as large as fits.
RECT Fitted(const RECT& area, SIZE picture) {
  if (picture.cx >= LineProportion * picture.cy) return area;
  if (WidthOf(area) >= LineProportion * HeightOf(area)) return area;
  int width = picture.cx;
  int height = picture.cy;
  if (width > WidthOf(area) || height > HeightOf(area)) {
    width = std::min(WidthOf(area), MulDiv(HeightOf(area), picture.cx, picture.cy));
    height = MulDiv(width, picture.cy, picture.cx);
  }
  const int left = area.left + (WidthOf(area) - width) / 2;
  const int top = area.top + (HeightOf(area) - height) / 2;
  return {left, top, left + width, top + height};
}

}  // namespace

void ImageWindow::PaintSurface(HDC context, const RECT& area) {
  PaintBehind(context);
  if (image_.List() == nullptr) return;
  const std::string list = image_.List()->QualifiedName();
  const SIZE size = System().Images.SizeOf(list);
  if (size.cx == 0 || size.cy == 0) return;
  System().Images.Draw(context, Fitted(area, size), list, image_.Number());
}

LRESULT ImageWindow::OnMessage(UINT message, WPARAM first, LPARAM second) {
  const bool clicked = message == WM_LBUTTONUP && HasMouse(second);
  const LRESULT answer = ControlWindow::OnMessage(message, first, second);
  if (clicked && Alive()) Raise([this] { image_.UserClick(); });
  return answer;
}

}  // namespace vantrel::forms::win32
