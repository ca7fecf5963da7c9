#include "forms/win32/FrameWindows.h"

#include "forms/win32/Painting.h"
#include "text/Strings.h"

namespace vantrel::forms::win32 {
namespace {

constexpr int CornerRadius = 3;    // pixels at 96 dots per inch
constexpr int CaptionIndent = 8;   //
constexpr int CaptionMargin = 3;   // on both sides of the caption
constexpr int CaptionHeight = 18;  // no font of a caption is higher

}  // namespace

WindowShape ContainerWindow::Shape() const {
  WindowShape shape;
  shape.Text = Model().WindowText();
  shape.Style = WS_CLIPCHILDREN;
  shape.ExtendedStyle = WS_EX_CONTROLPARENT;
  return shape;
}

void ContainerWindow::Changed(Aspect aspect) {
  ControlWindow::Changed(aspect);
  // The children paint what lies behind them.
  if (Alive() && (aspect == Aspect::Color || aspect == Aspect::Enabled)) {
    RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
  }
}

LRESULT ContainerWindow::OnMessage(UINT message, WPARAM first, LPARAM second) {
  if (message == WM_LBUTTONUP && HasMouse(second)) {
    const LRESULT answer = ControlWindow::OnMessage(message, first, second);
    if (Alive()) Raise([this] { Model().UserClick(); });
    return answer;
  }
  return ControlWindow::OnMessage(message, first, second);
}

void FrameWindow::PaintSurface(HDC context, const RECT& area) {
  PaintBehind(context);
  const Colors& colors = System().Palette;
  const int radius = System().Pixels.Scaled(CornerRadius);
  if (IsCard()) {
    RoundedFrame(context, area, radius, colors.Of(palette::FrameLine), colors.Of(palette::Card));
    return;
  }
  // Without a caption it only holds what lies on it; and what lies on it often wants the ground
  // alone, without line or caption.
  if (frame_.Caption().empty() || IsInsideLine(context, area)) return;
  const int height = MeasureText(frame_.Caption(), TextFont(), 0, DT_SINGLELINE).cy;
  RECT line = area;
  line.top += height / 2;
  RoundedFrame(context, line, radius, colors.Of(palette::FrameLine), CLR_INVALID);
  PaintCaption(context, area, height);
}

// Whether all that the context shows lies within the line and under the caption.
bool FrameWindow::IsInsideLine(HDC context, const RECT& area) const {
  const int radius = System().Pixels.Scaled(CornerRadius);
  const RECT inside{area.left + radius, area.top + System().Pixels.Scaled(CaptionHeight),
                    area.right - radius, area.bottom - radius};
  RECT shown{};
  RECT common{};
  GetClipBox(context, &shown);
  return IntersectRect(&common, &shown, &inside) && EqualRect(&common, &shown);
}

// The caption interrupts the line, on the ground that lies around.
void FrameWindow::PaintCaption(HDC context, const RECT& area, int height) const {
  // Blanks at the end of a caption would only lengthen the gap.
  const std::string caption = text::Trim(frame_.Caption());
  if (caption.empty()) return;
  const Scale& scale = System().Pixels;
  const int margin = scale.Scaled(CaptionMargin);
  RECT text{area.left + scale.Scaled(CaptionIndent) + margin, area.top, 0, area.top + height};
  text.right = text.left + MeasureText(caption, TextFont(), 0, DT_SINGLELINE).cx;
  RECT gap = text;
  gap.right = text.left + DrawnWidth(caption, TextFont());
  InflateRect(&gap, margin, 0);
  FillArea(context, gap, System().Palette.Of(GroundColor()));
  const Color color = frame_.Enabled() ? palette::FrameText : palette::GrayText;
  DrawTextIn(context, caption, text, TextFont(), System().Palette.TextOn(color, GroundColor()),
             DT_SINGLELINE);
}

Color FrameWindow::GroundColor() const {
  return IsCard() ? palette::Card : ContainerWindow::GroundColor();
}

void PictureBoxWindow::PaintSurface(HDC context, const RECT& area) {
  FillArea(context, area, System().Palette.Of(Model().BackColor()));
}

}  // namespace vantrel::forms::win32
