#include "forms/win32/Painting.h"

#include <algorithm>
#include <utility>

#include "forms/SpokenName.h"
#include "forms/win32/Scale.h"

namespace vantrel::forms::win32 {
namespace {

TRIVERTEX Corner(LONG x, LONG y, COLORREF color) {
  const auto part = [](BYTE value) { return static_cast<COLOR16>(value << 8); };
  return {x, y, part(GetRValue(color)), part(GetGValue(color)), part(GetBValue(color)), 0};
}

std::unique_ptr<BackBuffer> NewBackBuffer(HDC screen, SIZE size) {
  auto buffer = std::make_unique<BackBuffer>();
  buffer->Picture = Bitmap(CreateCompatibleBitmap(screen, size.cx, size.cy));
  buffer->Context = MemoryContext(CreateCompatibleDC(screen));
  // Without a picture it is of no size, and the next paint tries anew.
  if (buffer->Picture.Valid()) buffer->Size = size;
  SelectObject(buffer->Context.Get(), buffer->Picture.Get());
  return buffer;
}

}  // namespace

PaintBuffer::PaintBuffer(HWND window, std::unique_ptr<BackBuffer>& kept)
    : window_(window), screen_(BeginPaint(window, &paint_)), kept_(kept), buffer_(std::move(kept)) {
  const RECT& area = paint_.rcPaint;
  const SIZE wanted{std::max(WidthOf(area), 1), std::max(HeightOf(area), 1)};
  const SIZE held = buffer_ ? buffer_->Size : SIZE{};
  if (wanted.cx > held.cx || wanted.cy > held.cy) {
    buffer_ = NewBackBuffer(screen_, {std::max(wanted.cx, held.cx), std::max(wanted.cy, held.cy)});
  }
  const Region shown(CreateRectRgn(0, 0, wanted.cx, wanted.cy));
  SelectClipRgn(Context(), shown.Get());
  SetWindowOrgEx(Context(), area.left, area.top, nullptr);
}

PaintBuffer::~PaintBuffer() {
  const RECT& area = paint_.rcPaint;
  BitBlt(screen_, area.left, area.top, area.right - area.left, area.bottom - area.top, Context(),
         area.left, area.top, SRCCOPY);
  kept_ = std::move(buffer_);
  EndPaint(window_, &paint_);
}

RECT ClientArea(HWND window) {
  RECT area{};
  GetClientRect(window, &area);
  return area;
}

void FillGradient(HDC context, const RECT& area, COLORREF from, COLORREF to, Direction direction) {
  if (from == to) {
    FillArea(context, area, from);
    return;
  }
  TRIVERTEX corners[] = {Corner(area.left, area.top, from), Corner(area.right, area.bottom, to)};
  GRADIENT_RECT whole{0, 1};
  GradientFill(context, corners, 2, &whole, 1,
               direction == Direction::Across ? GRADIENT_FILL_RECT_H : GRADIENT_FILL_RECT_V);
}

void FillArea(HDC context, const RECT& area, COLORREF color) {
  const Brush brush(CreateSolidBrush(color));
  FillRect(context, &area, brush.Get());
}

void RoundedFrame(HDC context, const RECT& area, int radius, COLORREF line, COLORREF fill) {
  const Pen pen(CreatePen(PS_SOLID, 1, line));
  const Brush brush(fill == CLR_INVALID ? nullptr : CreateSolidBrush(fill));
  const Selection withPen(context, pen.Get());
  const Selection withBrush(
      context, brush.Valid() ? static_cast<HGDIOBJ>(brush.Get()) : GetStockObject(NULL_BRUSH));
  RoundRect(context, area.left, area.top, area.right, area.bottom, 2 * radius, 2 * radius);
}

void DrawLine(HDC context, POINT from, POINT to, COLORREF color) {
  const Pen pen(CreatePen(PS_SOLID, 1, color));
  const Selection withPen(context, pen.Get());
  MoveToEx(context, from.x, from.y, nullptr);
  LineTo(context, to.x, to.y);
}

void DrawTextIn(HDC context, const std::string& text, RECT area, HFONT font, COLORREF color,
                UINT flags) {
  const Selection withFont(context, font);
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context, color);
  DrawTextA(context, text.c_str(), static_cast<int>(text.size()), &area, flags);
}

SIZE MeasureText(const std::string& text, HFONT font, int width, UINT flags) {
  const WindowContext screen(nullptr);
  const Selection withFont(screen.Get(), font);
  RECT area{0, 0, width, 0};
  // An empty text is measured as a line of its font.
  const std::string& measured = text.empty() ? std::string(" ") : text;
  DrawTextA(screen.Get(), measured.c_str(), static_cast<int>(measured.size()), &area,
            flags | DT_CALCRECT | (width != 0 ? DT_WORDBREAK : 0U));
  return {text.empty() ? 0 : area.right, area.bottom};
}

int DrawnWidth(const std::string& text, HFONT font) {
  const WindowContext screen(nullptr);
  const Selection withFont(screen.Get(), font);
  const MAT2 unchanged{{0, 1}, {0, 0}, {0, 0}, {0, 1}};
  int width = 0;
  for (const char letter : text) {
    GLYPHMETRICS shape{};
    if (GetGlyphOutlineA(screen.Get(), static_cast<unsigned char>(letter), GGO_BITMAP, &shape, 0,
                         nullptr, &unchanged) == GDI_ERROR) {
      return MeasureText(text, font, 0, DT_SINGLELINE | DT_NOPREFIX).cx;
    }
    width += shape.gmCellIncX;
  }
  return width;
}

RECT TextArea(const std::string& text, HFONT font, const RECT& area, Align alignment) {
  const int width = WidthOf(area);
  const SIZE size = MeasureText(text, font, width, DT_EXPANDTABS);
  const int left = alignment == Align::Right    ? area.right - size.cx
                   : alignment == Align::Center ? area.left + (width - size.cx) / 2
                                                : area.left;
  const std::string shown = WithoutMarks(text.substr(0, text.find_last_not_of(' ') + 1));
  const int drawn = std::min<int>(DrawnWidth(shown, font), size.cx);
  const RECT placed{left, area.top, left + drawn, area.top + size.cy};
  RECT common{};
  IntersectRect(&common, &placed, &area);
  return common;
}

UINT AlignFlags(Align alignment) {
  switch (alignment) {
    case Align::Right:
      return DT_RIGHT;
    case Align::Center:
      return DT_CENTER;
    default:
      return DT_LEFT;
  }
}

}  // namespace vantrel::forms::win32
