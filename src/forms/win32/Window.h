// One window of the desktop: its handle, its messages, the surface that it paints, and the name
// that it carries for those who look from outside. A window outlives its messages: one that is
// destroyed by what a message leads to ends when the message does.
#ifndef VANTREL_FORMS_WIN32_WINDOW_H_
#define VANTREL_FORMS_WIN32_WINDOW_H_

#include <windows.h>

#include <memory>
#include <string>

#include "forms/Palette.h"
#include "forms/win32/WindowSystem.h"

namespace vantrel::forms::win32 {

// How a window is made; style with WS_CHILD for all but top-level windows.
struct WindowShape {
  const char* ClassName = nullptr;  // nullptr for the toolkit's own class
  std::string Text;
  DWORD Style = 0;
  DWORD ExtendedStyle = 0;
  RECT Area{};
  HWND Parent = nullptr;
  int Identifier = 0;
};

class Window : public std::enable_shared_from_this<Window> {
 public:
  explicit Window(WindowSystem& system) : system_(system) {}
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;
  virtual ~Window() = default;

  HWND Handle() const { return handle_; }
  bool Alive() const { return handle_ != nullptr; }

  // Makes the window, and names it for those who look from outside.
  void Create(const WindowShape& shape, const std::string& name);
  // Ends the window now; nothing reaches it any more.
  void Destroy();

  // Paints what lies under the children into the context, from 0, 0.
  virtual void PaintSurface(HDC context, const RECT& area) = 0;
  // The plain colour that best stands for the surface, for controls that can paint no other.
  virtual Color GroundColor() const = 0;
  void Invalidate() const;

  // Messages that Windows sends to a control's parent.
  virtual LRESULT OnCommand(WPARAM, LPARAM) { return 0; }
  virtual LRESULT OnNotify(NMHDR& header);
  virtual HBRUSH OnColor(HDC) { return nullptr; }

  // Registers the toolkit's own class.
  static void RegisterClass(HICON large, HICON small);
  static constexpr const char* OwnClass = "VantrelWindow";

 protected:
  WindowSystem& System() const { return system_; }
  virtual LRESULT OnMessage(UINT message, WPARAM first, LPARAM second);
  LRESULT Default(UINT message, WPARAM first, LPARAM second);
  // Paints the surface of the parent as far as it lies under this window.
  void PaintBehind(HDC context) const;
  std::shared_ptr<Window> ParentWindow() const;

 private:
  // Windows' code lies between this and who sent the message: no exception may pass through it.
  static LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM first, LPARAM second) noexcept;
  LRESULT Reflect(UINT message, WPARAM first, LPARAM second);
  void Paint();
  void Adopt(HWND window);
  void Forget(HWND window);

  WindowSystem& system_;
  HWND handle_ = nullptr;
  WNDPROC original_ = nullptr;  // of a class that is not the toolkit's
  ATOM name_ = 0;
};

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_WINDOW_H_
