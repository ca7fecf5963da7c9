// The strokes that own-drawn windows are made of, and the buffer that keeps them from flickering.
#ifndef VANTREL_FORMS_WIN32_PAINTING_H_
#define VANTREL_FORMS_WIN32_PAINTING_H_

#include <windows.h>

#include <memory>
#include <string>

#include "forms/Design.h"
#include "forms/win32/Handles.h"

namespace vantrel::forms::win32 {

// What a PaintBuffer draws on. It is kept from one paint to the next, since making it takes longer
// than most paints.
struct BackBuffer {
  Bitmap Picture;
  MemoryContext Context;  // goes before the picture that is selected in it
  SIZE Size{};
};

// One WM_PAINT: what is drawn into Context appears on the window at once, when this goes.
class PaintBuffer {
 public:
  PaintBuffer(HWND window, std::unique_ptr<BackBuffer>& kept);
  PaintBuffer(const PaintBuffer&) = delete;
  PaintBuffer& operator=(const PaintBuffer&) = delete;
  ~PaintBuffer();

  HDC Context() const { return buffer_->Context.Get(); }

 private:
  HWND window_;
  PAINTSTRUCT paint_{};
  HDC screen_;
  std::unique_ptr<BackBuffer>& kept_;
  std::unique_ptr<BackBuffer>
      buffer_;  // in use: a paint within this one finds none and makes its own
};

// The inside of a window, from 0, 0.
RECT ClientArea(HWND window);

enum class Direction { Across, Down };
void FillGradient(HDC context, const RECT& area, COLORREF from, COLORREF to, Direction direction);
void FillArea(HDC context, const RECT& area, COLORREF color);
// A frame with rounded corners; what is inside is filled, unless fill is CLR_INVALID.
void RoundedFrame(HDC context, const RECT& area, int radius, COLORREF line, COLORREF fill);
void DrawLine(HDC context, POINT from, POINT to, COLORREF color);

// DrawText in a font and colour, with its flags.
void DrawTextIn(HDC context, const std::string& text, RECT area, HFONT font, COLORREF color,
                UINT flags);
// The size of a text, broken into lines if width is not 0.
SIZE MeasureText(const std::string& text, HFONT font, int width, UINT flags);
// How wide a line comes out, in pixels: where a font has ready bitmaps for a size they may be
// narrower than its measures. An & counts as itself.
int DrawnWidth(const std::string& text, HFONT font);

// Where what shows of an aligned caption lies, as far as the area goes: blanks at its end aside.
RECT TextArea(const std::string& text, HFONT font, const RECT& area, Align alignment);

UINT AlignFlags(Align alignment);

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_PAINTING_H_
