// Owners of drawing objects: each frees its handle when it goes, and nobody else frees one. Not for
// windows, which end with their parents.
#ifndef VANTREL_FORMS_WIN32_HANDLES_H_
#define VANTREL_FORMS_WIN32_HANDLES_H_

#include <windows.h>

#include <utility>

namespace vantrel::forms::win32 {

template <class Handle, class Closer>
class Owned {
 public:
  Owned() = default;
  explicit Owned(Handle handle) : handle_(handle) {}
  Owned(Owned&& other) noexcept : handle_(std::exchange(other.handle_, Handle{})) {}
  Owned& operator=(Owned&& other) noexcept {
    if (this != &other) {
      Close();
      handle_ = std::exchange(other.handle_, Handle{});
    }
    return *this;
  }
  ~Owned() { Close(); }

  Handle Get() const { return handle_; }
  explicit operator bool() const { return handle_ != Handle{}; }

 private:
  void Close() {
    if (handle_ != Handle{}) Closer{}(handle_);
  }

  Handle handle_{};
};

struct DeleteGdiObject {
  void operator()(HGDIOBJ object) const { DeleteObject(object); }
};
struct DeleteContext {
  void operator()(HDC context) const { DeleteDC(context); }
};
struct DestroyMenuHandle {
  void operator()(HMENU menu) const { DestroyMenu(menu); }
};

using Brush = Owned<HBRUSH, DeleteGdiObject>;
using Pen = Owned<HPEN, DeleteGdiObject>;
using FontHandle = Owned<HFONT, DeleteGdiObject>;
using Bitmap = Owned<HBITMAP, DeleteGdiObject>;
using Region = Owned<HRGN, DeleteGdiObject>;
using MemoryContext = Owned<HDC, DeleteContext>;
using MenuHandle = Owned<HMENU, DestroyMenuHandle>;

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
