#include "forms/win32/CheckMarks.h"

#include "forms/win32/Painting.h"

namespace vantrel::forms::win32 {
namespace {

constexpr int PictureSize = 16;  // pixels at 96 dots per inch
constexpr int BoxInset = 2;      //

void DrawTick(HDC context, const RECT& box, int thickness, COLORREF color) {
  const Pen pen(CreatePen(PS_SOLID, thickness, color));
  const Selection withPen(context, pen.Get());
  const int width = WidthOf(box);
  const int height = HeightOf(box);
  MoveToEx(context, box.left + width / 4, box.top + height / 2, nullptr);
  LineTo(context, box.left + width * 2 / 5, box.top + height * 2 / 3);
  LineTo(context, box.left + width * 3 / 4, box.top + height * 3 / 10);
}

void DrawBox(HDC context, const RECT& picture, const WindowSystem& system, bool ticked) {
  const Colors& colors = system.Palette;
  FillArea(context, picture, colors.Of(palette::Window));
  RECT box = picture;
  const int inset = system.Pixels.Scaled(BoxInset);
  InflateRect(&box, -inset, -inset);
  const COLORREF ink = colors.TextOn(palette::FrameText, palette::Window);
  RoundedFrame(context, box, 0, ink, colors.Of(palette::Window));
  if (ticked) DrawTick(context, box, system.Pixels.Scaled(2), ink);
}

}  // namespace

ImagesHandle MakeCheckMarks(const WindowSystem& system) {
  const int size = system.Pixels.Scaled(PictureSize);
  ImagesHandle marks(ImageList_Create(size, size, ILC_COLOR24, 2, 0));
  const WindowContext screen(nullptr);
  for (const bool ticked : {false, true}) {
    const Bitmap bitmap(CreateCompatibleBitmap(screen.Get(), size, size));
    {
      const MemoryContext context(CreateCompatibleDC(screen.Get()));
      const Selection withBitmap(context.Get(), bitmap.Get());
      DrawBox(context.Get(), {0, 0, size, size}, system, ticked);
    }
    ImageList_Add(marks.Get(), bitmap.Get(), nullptr);
  }
  return marks;
}

}  // namespace vantrel::forms::win32
