// The windows of all processes of the in-memory Windows, as plain records with a message handler
// each. The toolkit without a screen makes its windows here; foreign windows are made by tests.
// Not modelled: owners of top-level windows, regions, clipping, window classes, focus, hooks,
// threads (a sent message runs at once, on the caller's stack) and any painting.
#ifndef VANTREL_PLATFORM_MEMORY_DESKTOP_H_
#define VANTREL_PLATFORM_MEMORY_DESKTOP_H_

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/Desktop.h"
#include "platform/Handles.h"

namespace vantrel::platform::memory {

using ProcessId = std::uint32_t;  // 0 is none

// Numbers of messages that the desktop itself sends, as the system has them.
inline constexpr std::uint32_t WmSize = 5;         // wParam: 0 restored, 1 minimized, 2 maximized
inline constexpr std::uint32_t WmShowWindow = 24;  // wParam: 1 shown, 0 hidden

// `text` is set for messages that carry a text (WmSetText) and 0 otherwise; it lives as long as
// the call.
struct Message {
  WindowHandle window = 0;
  std::uint32_t message = 0;
  std::uintptr_t wParam = 0;
  std::uintptr_t lParam = 0;
  const std::string* text = nullptr;
};

// In pixels: of the screen for a top-level window, of the parent's inside for a child.
struct Rectangle {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t width = 0;
  std::int32_t height = 0;
};

struct KeyEvent {
  ProcessId process = 0;
  std::uint8_t key = 0;
  std::uint8_t scan = 0;
  std::uint32_t flags = 0;
  std::uintptr_t extra = 0;
};

struct WindowLongCall {
  ProcessId process = 0;
  WindowHandle window = 0;
  int index = 0;
  std::int32_t value = 0;
};

// Every function that takes a window needs one that exists, unless it says otherwise; anything
// else is a misuse and stops the program.
class Desktop {
 public:
  // True if the message was handled; otherwise the desktop does what the system does by default:
  // WmSetText sets the caption, anything else has no effect.
  using Handler = std::function<bool(const Message&)>;

  Desktop();
  ~Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  // A new window in front of its siblings: hidden, enabled, without a place. With a parent it has
  // a child's style from the start. Handles are never used again.
  WindowHandle MakeWindow(ProcessId owner, WindowHandle parent, const std::string& caption);
  // Destroys the window and all its descendants; their posted messages are dropped.
  void DestroyWindow(WindowHandle window);
  void DestroyWindowsOf(ProcessId owner);
  // Any handle may be asked about.
  bool IsWindow(WindowHandle window) const;

  ProcessId Owner(WindowHandle window) const;
  void SetHandler(WindowHandle window, Handler handler);

  const std::string& Caption(WindowHandle window) const;
  void SetCaption(WindowHandle window, const std::string& caption);
  // The window property "ControlName".
  const std::string& ControlName(WindowHandle window) const;
  void SetControlName(WindowHandle window, const std::string& name);
  // The window's own state; a shown window under a hidden parent is visible here.
  bool Visible(WindowHandle window) const;
  void SetVisible(WindowHandle window, bool visible);
  // Visible with all its ancestors, and none of them minimized.
  bool OnScreen(WindowHandle window) const;
  bool Enabled(WindowHandle window) const;
  void SetEnabled(WindowHandle window, bool enabled);
  bool Iconic(WindowHandle window) const;
  void SetIconic(WindowHandle window, bool iconic);
  bool ChildStyle(WindowHandle window) const;
  void SetChildStyle(WindowHandle window, bool child);
  Rectangle Place(WindowHandle window) const;
  void SetPlace(WindowHandle window, const Rectangle& place);
  // The place in pixels of the screen.
  Rectangle ScreenPlace(WindowHandle window) const;

  // The window's place in the tree, whatever its style; 0 for the desktop.
  WindowHandle TreeParent(WindowHandle window) const;
  // What the system's GetParent says: 0 for a window without a child's style or no window.
  WindowHandle Parent(WindowHandle window) const;
  // Moves the window in front of the new parent's children; 0 makes it top-level. The style is
  // left alone. No effect if either does not exist or the parent lies in the window itself.
  void SetParent(WindowHandle window, WindowHandle parent);
  // In front of its siblings.
  void BringToFront(WindowHandle window);

  // Frontmost first. Children and all descendants, each window before its own children; hidden
  // ones too.
  std::vector<WindowHandle> TopLevelWindows() const;
  std::vector<WindowHandle> Children(WindowHandle window) const;
  std::vector<WindowHandle> Descendants(WindowHandle window) const;
  // The first window of the process (0 for any process) with the name; 0 if there is none.
  WindowHandle FindByControlName(const std::string& name, ProcessId owner = 0) const;
  // The first window, top-level or not, with exactly the caption; 0 if there is none.
  WindowHandle FindByCaption(const std::string& caption) const;

  // Runs the window's handler, or the default action, before it returns. A handle without a
  // window has no effect. False if the message was neither handled nor acted upon.
  bool Send(const Message& message);
  bool SendText(WindowHandle window, std::uint32_t message, std::uintptr_t wParam,
                const std::string& text);

  // Queues a message for the window's process, or an action for a process. They run in the order
  // of their posting when that process pumps.
  void Post(const Message& message);
  void Post(ProcessId process, std::function<void()> action);
  // Runs all that is queued for the process, also what is queued meanwhile; nested calls go on
  // with what is left. False if there was nothing.
  bool PumpProcess(ProcessId process);
  std::size_t PendingOf(ProcessId process) const;

  // As the system's ShowWindow: 0 hides, 2, 6 and 7 minimize, 9 and 1 restore, 3 maximizes, all
  // but 0 show. Sends WmShowWindow and WmSize to the window's handler where something changed.
  void ShowWindow(WindowHandle window, int command);

  // The window's top-level ancestor comes to the front; no effect for a handle without a window.
  void SetForegroundWindow(WindowHandle window);
  // 0 if there was none yet or it was destroyed.
  WindowHandle Foreground() const { return foreground_; }

  Point CursorPosition() const { return cursor_; }
  void SetCursorPosition(Point point) { cursor_ = point; }
  // The deepest enabled window on screen at the point of the screen, 0 if there is none.
  WindowHandle WindowAt(Point point) const;

  // What processes asked for and what has no effect here.
  std::vector<KeyEvent> keyEvents;
  std::vector<WindowLongCall> windowLongCalls;
  int commonControlsInitialized = 0;

 private:
  struct Window;
  struct Posted;

  Window& Get(WindowHandle window);
  const Window& Get(WindowHandle window) const;
  std::vector<WindowHandle>& Siblings(const Window& window);
  void Detach(WindowHandle window);
  void Forget(WindowHandle window);
  bool LiesIn(WindowHandle window, WindowHandle ancestor) const;
  void Collect(const std::vector<WindowHandle>& windows, std::vector<WindowHandle>& into) const;
  WindowHandle Hit(const std::vector<WindowHandle>& windows, Point point) const;
  bool ActByDefault(const Message& message);

  std::map<WindowHandle, std::unique_ptr<Window>> windows_;
  std::vector<WindowHandle> topLevel_;
  std::map<ProcessId, std::deque<Posted>> queues_;
  WindowHandle next_ = 0x10010;
  WindowHandle foreground_ = 0;
  Point cursor_;
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_DESKTOP_H_
