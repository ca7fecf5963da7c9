// Windows, messages, cursor and keys: what the program does with windows that are not, or not
// only, its own. Its own windows' content is the business of the forms.
#ifndef VANTREL_PLATFORM_DESKTOP_H_
#define VANTREL_PLATFORM_DESKTOP_H_

#include <cstdint>
#include <functional>
#include <span>
#include <string>

#include "platform/Handles.h"

namespace vantrel::platform {

inline constexpr std::uint32_t WmSetText = 12;
inline constexpr std::uint32_t BmClick = 245;
inline constexpr int SwRestore = 9;

struct Point {
  std::int32_t x = 0;
  std::int32_t y = 0;
};

class Desktop {
 public:
  // Called for each window; false stops the enumeration.
  using Visitor = std::function<bool(WindowHandle)>;

  virtual ~Desktop() = default;

  virtual void InitCommonControls() = 0;

  // All top-level windows, frontmost first; all descendants of a window.
  virtual void EnumWindows(const Visitor& visit) = 0;
  virtual void EnumChildWindows(WindowHandle parent, const Visitor& visit) = 0;

  // Copies the window's caption and a NUL into the buffer, cut to fit; the number of characters
  // copied without the NUL, 0 for none or for no window.
  virtual int GetWindowTextA(WindowHandle window, std::span<char> buffer) = 0;

  // 0 for a top-level window or no window.
  virtual WindowHandle GetParent(WindowHandle window) = 0;
  virtual bool IsIconic(WindowHandle window) = 0;
  virtual void ShowWindow(WindowHandle window, int command) = 0;
  virtual void SetForegroundWindow(WindowHandle window) = 0;

  // Makes `child` a child of `parent`; the window itself must carry a child's style by then.
  virtual void SetParent(WindowHandle child, WindowHandle parent) = 0;

  // Returns when the window's own thread has handled the message; no effect on handle 0.
  virtual void SendMessageA(WindowHandle window, std::uint32_t message, std::uintptr_t first,
                            std::uintptr_t second) = 0;
  // The same with a text, ended by NUL, as the second parameter.
  virtual void SendTextMessageA(WindowHandle window, std::uint32_t message, std::uintptr_t first,
                                const std::string& text) = 0;

  // Sets a value of the window's record. 0 as window procedure (index -4) is no procedure and is
  // not passed on to the system, which would call it with the next message: the window stays as it
  // is.
  virtual void SetWindowLongA(WindowHandle window, int index, std::int32_t value) = 0;

  virtual void keybd_event(std::uint8_t key, std::uint8_t scan, std::uint32_t flags,
                           std::uintptr_t extra) = 0;

  // In pixels of the screen.
  virtual Point GetCursorPos() = 0;
  // The window under the point, 0 if there is none.
  virtual WindowHandle WindowFromPoint(Point point) = 0;
};

}  // namespace vantrel::platform

#endif  // VANTREL_PLATFORM_DESKTOP_H_
