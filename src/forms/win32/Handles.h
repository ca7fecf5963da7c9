// Owners of drawing objects: each frees its handle when it goes, and nobody else frees one. Not for
// windows, which end with their parents.
#ifndef VANTREL_FORMS_WIN32_HANDLES_H_
#define VANTREL_FORMS_WIN32_HANDLES_H_

#include <windows.h>

#include "text/Owned.h"

namespace vantrel::forms::win32 {

// A kind whose handles `Closer` frees, and whose null is none.
template <class Handle, auto Closer>
struct HandleTraits {
  using Type = Handle;
  static Type Invalid() { return nullptr; }
  static void Close(Type handle) { Closer(handle); }
};
template <class Handle, auto Closer>
using Owned = text::Owned<HandleTraits<Handle, Closer>>;

using Brush = Owned<HBRUSH, DeleteObject>;
using Pen = Owned<HPEN, DeleteObject>;
using FontHandle = Owned<HFONT, DeleteObject>;
using Bitmap = Owned<HBITMAP, DeleteObject>;
using Region = Owned<HRGN, DeleteObject>;
using MemoryContext = Owned<HDC, DeleteDC>;
using MenuHandle = Owned<HMENU, DestroyMenu>;

// The drawing context of a window's inside, or of the window with its frame; of the whole screen
// for nullptr.
enum class Extent { Inside, WithFrame };

class WindowContext {
 public:
  explicit WindowContext(HWND window, Extent extent = Extent::Inside)
      : window_(window), context_(extent == Extent::Inside ? GetDC(window) : GetWindowDC(window)) {}
  WindowContext(const WindowContext&) = delete;
  WindowContext& operator=(const WindowContext&) = delete;
  ~WindowContext() { ReleaseDC(window_, context_); }
  HDC Get() const { return context_; }

 private:
  HWND window_;
  HDC context_;
};

// Selects an object into a context for as long as it lives.
class Selection {
 public:
  Selection(HDC context, HGDIOBJ object)
      : context_(context), before_(SelectObject(context, object)) {}
  Selection(const Selection&) = delete;
  Selection& operator=(const Selection&) = delete;
  ~Selection() { SelectObject(context_, before_); }

 private:
  HDC context_;
  HGDIOBJ before_;
};

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_HANDLES_H_
