#include "forms/win32/Window.h"

#include <utility>

#include "forms/win32/Painting.h"

namespace vantrel::forms::win32 {
namespace {

constexpr const char* NameProperty = "ControlName";

Window* ObjectOf(HWND window) {
  return reinterpret_cast<Window*>(GetWindowLongPtrA(window, GWLP_USERDATA));
}

}  // namespace

void Window::RegisterClass(HICON large, HICON small) {
  WNDCLASSEXA kind{};
  kind.cbSize = sizeof kind;
  kind.style = CS_DBLCLKS;
  kind.lpfnWndProc = Receive;
  kind.hInstance = GetModuleHandleA(nullptr);
  kind.hIcon = large;
  kind.hIconSm = small;
  kind.hCursor = LoadCursorA(nullptr, IDC_ARROW);
  kind.lpszClassName = OwnClass;
  // Registered by an earlier toolkit of this process: the same.
  RegisterClassExA(&kind);
}

void Window::Create(const WindowShape& shape, const std::string& name) {
  const bool isOwn = shape.ClassName == nullptr;
  const HWND window =
      CreateWindowExA(shape.ExtendedStyle, isOwn ? OwnClass : shape.ClassName, shape.Text.c_str(),
                      shape.Style, shape.Area.left, shape.Area.top,
                      shape.Area.right - shape.Area.left, shape.Area.bottom - shape.Area.top,
                      shape.Parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(shape.Identifier)),
                      GetModuleHandleA(nullptr), isOwn ? this : nullptr);
  if (window == nullptr) {
    if (Alive()) Forget(handle_);
    return;
  }
  if (!isOwn) {
    original_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Receive)));
    Adopt(window);
  }
  name_ = GlobalAddAtomA(name.c_str());
  if (name_ != 0) SetPropA(window, NameProperty, reinterpret_cast<HANDLE>(ULONG_PTR{name_}));
}

void Window::Adopt(HWND window) {
  handle_ = window;
  SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  system_.Add(window, *this);
}

void Window::Forget(HWND window) {
  SetWindowLongPtrA(window, GWLP_USERDATA, 0);
  RemovePropA(window, NameProperty);
  if (name_ != 0) GlobalDeleteAtom(name_);
  name_ = 0;
  system_.Remove(window);
  handle_ = nullptr;
}

void Window::Destroy() {
  if (!Alive()) return;
  const HWND window = handle_;
  Forget(window);
  const bool nested = std::exchange(system_.Destroying, true);
  DestroyWindow(window);
  system_.Destroying = nested;
}

LRESULT CALLBACK Window::Receive(HWND window, UINT message, WPARAM first, LPARAM second) noexcept {
  if (message == WM_NCCREATE && ObjectOf(window) == nullptr) {
    const auto* creation = reinterpret_cast<const CREATESTRUCTA*>(second);
    if (creation->lpCreateParams != nullptr) {
      static_cast<Window*>(creation->lpCreateParams)->Adopt(window);
    }
  }
  Window* object = ObjectOf(window);
  // Only the toolkit ends windows: the messages of their end are ignored from anybody else.
  const bool isEnd = message == WM_DESTROY || message == WM_NCDESTROY;
  if (object != nullptr && isEnd && !object->system_.Destroying) return 0;
  if (object != nullptr && message != WM_NCDESTROY) {
    const std::shared_ptr<Window> kept = object->shared_from_this();
    return kept->OnMessage(message, first, second);
  }
  if (object != nullptr) {
    const std::shared_ptr<Window> kept = object->shared_from_this();
    kept->Forget(window);
  }
  // A window without its object is what its class makes it.
  const auto ofClass = reinterpret_cast<WNDPROC>(GetClassLongPtrA(window, GCLP_WNDPROC));
  return ofClass != nullptr && ofClass != Receive
             ? CallWindowProcA(ofClass, window, message, first, second)
             : DefWindowProcA(window, message, first, second);
}

LRESULT Window::Default(UINT message, WPARAM first, LPARAM second) {
  if (!Alive()) return 0;
  return original_ != nullptr ? CallWindowProcA(original_, handle_, message, first, second)
                              : DefWindowProcA(handle_, message, first, second);
}

LRESULT Window::OnMessage(UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case WM_COMMAND:
    case WM_NOTIFY:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORSTATIC:
      return Reflect(message, first, second);
    default:
      break;
  }
  if (original_ != nullptr) return Default(message, first, second);
  switch (message) {
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT:
      Paint();
      return 0;
    case WM_PRINTCLIENT:
      PaintSurface(reinterpret_cast<HDC>(first), ClientArea(handle_));
      return 0;
    default:
      return Default(message, first, second);
  }
}

LRESULT Window::OnNotify(NMHDR&) { return 0; }

LRESULT Window::Reflect(UINT message, WPARAM first, LPARAM second) {
  const HWND sender = message == WM_NOTIFY && second != 0
                          ? reinterpret_cast<NMHDR*>(second)->hwndFrom
                          : reinterpret_cast<HWND>(second);
  const std::shared_ptr<Window> control = system_.Find(sender);
  if (control == nullptr || control.get() == this) return Default(message, first, second);
  switch (message) {
    case WM_COMMAND:
      return control->OnCommand(first, second);
    case WM_NOTIFY:
      return control->OnNotify(*reinterpret_cast<NMHDR*>(second));
    default:
      break;
  }
  const HBRUSH brush = control->OnColor(reinterpret_cast<HDC>(first));
  return brush != nullptr ? reinterpret_cast<LRESULT>(brush) : Default(message, first, second);
}

void Window::Paint() {
  const PaintBuffer buffer(handle_, system_.Buffer);
  PaintSurface(buffer.Context(), ClientArea(handle_));
}

void Window::Invalidate() const {
  // A hidden window is painted when it is shown.
  if (Alive() && IsWindowVisible(handle_)) InvalidateRect(handle_, nullptr, TRUE);
}

std::shared_ptr<Window> Window::ParentWindow() const {
  return Alive() ? system_.Find(GetAncestor(handle_, GA_PARENT)) : nullptr;
}

void Window::PaintBehind(HDC context) const {
  const std::shared_ptr<Window> parent = ParentWindow();
  if (parent == nullptr) return;
  POINT corner{0, 0};
  MapWindowPoints(handle_, parent->Handle(), &corner, 1);
  POINT before{};
  OffsetWindowOrgEx(context, corner.x, corner.y, &before);
  parent->PaintSurface(context, ClientArea(parent->Handle()));
  SetWindowOrgEx(context, before.x, before.y, nullptr);
}

}  // namespace vantrel::forms::win32
