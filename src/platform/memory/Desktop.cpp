#include "platform/memory/Desktop.h"

#include <algorithm>
#include <utility>

#include "platform/memory/Misuse.h"

namespace vantrel::platform::memory {

struct Desktop::Window {
  ProcessId owner = 0;
  WindowHandle parent = 0;
  std::string caption;
  std::string controlName;
  bool visible = false;
  bool enabled = true;
  bool iconic = false;
  bool maximized = false;
  bool childStyle = false;
  Rectangle place;
  Handler handler;
  std::vector<WindowHandle> children;  // frontmost first
};

struct Desktop::Posted {
  Message message;
  std::function<void()> action;  // instead of the message, if set
};

Desktop::Desktop() = default;
Desktop::~Desktop() = default;

Desktop::Window& Desktop::Get(WindowHandle window) {
  const auto found = windows_.find(window);
  Require(found != windows_.end(), "there is no such window");
  return *found->second;
}

const Desktop::Window& Desktop::Get(WindowHandle window) const {
  const auto found = windows_.find(window);
  Require(found != windows_.end(), "there is no such window");
  return *found->second;
}

std::vector<WindowHandle>& Desktop::Siblings(const Window& window) {
  return window.parent == 0 ? topLevel_ : Get(window.parent).children;
}

WindowHandle Desktop::MakeWindow(ProcessId owner, WindowHandle parent, const std::string& caption) {
  Require(parent == 0 || IsWindow(parent), "a window's parent must exist");
  const WindowHandle handle = next_;
  next_ += 2;
  auto window = std::make_unique<Window>();
  window->owner = owner;
  window->parent = parent;
  window->caption = caption;
  window->childStyle = parent != 0;
  auto& siblings = Siblings(*window);
  siblings.insert(siblings.begin(), handle);
  windows_.emplace(handle, std::move(window));
  return handle;
}

void Desktop::Detach(WindowHandle window) { std::erase(Siblings(Get(window)), window); }

void Desktop::Forget(WindowHandle window) {
  const ProcessId owner = Get(window).owner;
  if (const auto queue = queues_.find(owner); queue != queues_.end()) {
    std::erase_if(queue->second, [window](const Posted& posted) {
      return !posted.action && posted.message.window == window;
    });
  }
  if (foreground_ == window) foreground_ = 0;
  windows_.erase(window);
}

void Desktop::DestroyWindow(WindowHandle window) {
  const auto descendants = Descendants(window);
  Detach(window);
  for (auto each = descendants.rbegin(); each != descendants.rend(); ++each) Forget(*each);
  Forget(window);
}

void Desktop::DestroyWindowsOf(ProcessId owner) {
  std::vector<WindowHandle> owned;
  for (const auto& [handle, window] : windows_) {
    if (window->owner == owner) owned.push_back(handle);
  }
  for (const WindowHandle handle : owned) {
    if (IsWindow(handle)) DestroyWindow(handle);
  }
  queues_.erase(owner);
}

bool Desktop::IsWindow(WindowHandle window) const { return windows_.contains(window); }

ProcessId Desktop::Owner(WindowHandle window) const { return Get(window).owner; }

void Desktop::SetHandler(WindowHandle window, Handler handler) {
  Get(window).handler = std::move(handler);
}

const std::string& Desktop::Caption(WindowHandle window) const { return Get(window).caption; }

void Desktop::SetCaption(WindowHandle window, const std::string& caption) {
  Get(window).caption = caption;
}

const std::string& Desktop::ControlName(WindowHandle window) const {
  return Get(window).controlName;
}

void Desktop::SetControlName(WindowHandle window, const std::string& name) {
  Get(window).controlName = name;
}

bool Desktop::Visible(WindowHandle window) const { return Get(window).visible; }

void Desktop::SetVisible(WindowHandle window, bool visible) { Get(window).visible = visible; }

bool Desktop::OnScreen(WindowHandle window) const {
  for (WindowHandle each = window; each != 0; each = Get(each).parent) {
    if (!Get(each).visible || (each != window && Get(each).iconic)) return false;
  }
  return true;
}

bool Desktop::Enabled(WindowHandle window) const { return Get(window).enabled; }

void Desktop::SetEnabled(WindowHandle window, bool enabled) { Get(window).enabled = enabled; }

bool Desktop::Iconic(WindowHandle window) const { return Get(window).iconic; }

void Desktop::SetIconic(WindowHandle window, bool iconic) { Get(window).iconic = iconic; }

bool Desktop::ChildStyle(WindowHandle window) const { return Get(window).childStyle; }

void Desktop::SetChildStyle(WindowHandle window, bool child) { Get(window).childStyle = child; }

Rectangle Desktop::Place(WindowHandle window) const { return Get(window).place; }

void Desktop::SetPlace(WindowHandle window, const Rectangle& place) { Get(window).place = place; }

Rectangle Desktop::ScreenPlace(WindowHandle window) const {
  Rectangle place = Get(window).place;
  for (WindowHandle each = Get(window).parent; each != 0; each = Get(each).parent) {
    place.left += Get(each).place.left;
    place.top += Get(each).place.top;
  }
  return place;
}

WindowHandle Desktop::TreeParent(WindowHandle window) const { return Get(window).parent; }

WindowHandle Desktop::Parent(WindowHandle window) const {
  if (!IsWindow(window) || !ChildStyle(window)) return 0;
  return TreeParent(window);
}

bool Desktop::LiesIn(WindowHandle window, WindowHandle ancestor) const {
  for (WindowHandle each = window; each != 0; each = Get(each).parent) {
    if (each == ancestor) return true;
  }
  return false;
}

void Desktop::SetParent(WindowHandle window, WindowHandle parent) {
  if (!IsWindow(window) || (parent != 0 && !IsWindow(parent))) return;
  if (parent != 0 && LiesIn(parent, window)) return;
  Detach(window);
  Window& moved = Get(window);
  moved.parent = parent;
  auto& siblings = Siblings(moved);
  siblings.insert(siblings.begin(), window);
}

void Desktop::BringToFront(WindowHandle window) {
  auto& siblings = Siblings(Get(window));
  const auto found = std::find(siblings.begin(), siblings.end(), window);
  std::rotate(siblings.begin(), found, found + 1);
}

std::vector<WindowHandle> Desktop::TopLevelWindows() const { return topLevel_; }

std::vector<WindowHandle> Desktop::Children(WindowHandle window) const {
  return Get(window).children;
}

void Desktop::Collect(const std::vector<WindowHandle>& windows,
                      std::vector<WindowHandle>& into) const {
  for (const WindowHandle window : windows) {
    into.push_back(window);
    Collect(Get(window).children, into);
  }
}

std::vector<WindowHandle> Desktop::Descendants(WindowHandle window) const {
  std::vector<WindowHandle> all;
  Collect(Get(window).children, all);
  return all;
}

WindowHandle Desktop::FindByControlName(const std::string& name, ProcessId owner) const {
  for (const auto& [handle, window] : windows_) {
    if (window->controlName == name && (owner == 0 || window->owner == owner)) return handle;
  }
  return 0;
}

WindowHandle Desktop::FindByCaption(const std::string& caption) const {
  std::vector<WindowHandle> all;
  Collect(topLevel_, all);
  for (const WindowHandle handle : all) {
    if (Caption(handle) == caption) return handle;
  }
  return 0;
}

bool Desktop::Send(const Message& message) {
  if (!IsWindow(message.window)) return false;
  // A copy: the handler may destroy its own window.
  const Handler handler = Get(message.window).handler;
  if (handler && handler(message)) return true;
  return ActByDefault(message);
}

bool Desktop::SendText(WindowHandle window, std::uint32_t message, std::uintptr_t wParam,
                       const std::string& text) {
  // A text ends at its NUL, as on the way through the system.
  const std::string sent(text.c_str());
  return Send({window, message, wParam, 0, &sent});
}

bool Desktop::ActByDefault(const Message& message) {
  if (message.message != WmSetText || message.text == nullptr) return false;
  if (!IsWindow(message.window)) return false;
  SetCaption(message.window, *message.text);
  return true;
}

void Desktop::Post(const Message& message) {
  Require(message.text == nullptr, "a text cannot be posted");
  if (!IsWindow(message.window)) return;
  queues_[Owner(message.window)].push_back({message, nullptr});
}

void Desktop::Post(ProcessId process, std::function<void()> action) {
  Require(static_cast<bool>(action), "an action to post must be callable");
  queues_[process].push_back({{}, std::move(action)});
}

bool Desktop::PumpProcess(ProcessId process) {
  bool any = false;
  // Looked up anew each time: what runs may end the process and its queue.
  while (PendingOf(process) > 0) {
    auto& queue = queues_[process];
    const Posted posted = std::move(queue.front());
    queue.pop_front();
    any = true;
    if (posted.action) {
      posted.action();
    } else {
      Send(posted.message);
    }
  }
  return any;
}

std::size_t Desktop::PendingOf(ProcessId process) const {
  const auto queue = queues_.find(process);
  return queue == queues_.end() ? 0 : queue->second.size();
}

void Desktop::ShowWindow(WindowHandle window, int command) {
  if (!IsWindow(window)) return;
  Window& shown = Get(window);
  const bool visible = command != 0;
  const bool visibleChanged = shown.visible != visible;
  shown.visible = visible;
  const bool minimizes = command == 2 || command == 6 || command == 7 || command == 11;
  const bool maximizes = command == 3;
  const bool restores = command == 1 || command == 4 || command == 9 || command == 10;
  const bool sized = minimizes ? !shown.iconic
                               : (restores && (shown.iconic || shown.maximized)) ||
                                     (maximizes && !shown.maximized);
  if (minimizes || restores || maximizes) shown.iconic = minimizes;
  if (restores || maximizes) shown.maximized = maximizes;
  if (visibleChanged) Send({window, WmShowWindow, visible ? 1U : 0U, 0});
  if (sized) Send({window, WmSize, minimizes ? 1U : (maximizes ? 2U : 0U), 0});
}

void Desktop::SetForegroundWindow(WindowHandle window) {
  if (!IsWindow(window)) return;
  WindowHandle top = window;
  while (TreeParent(top) != 0) top = TreeParent(top);
  BringToFront(top);
  foreground_ = top;
}

WindowHandle Desktop::Hit(const std::vector<WindowHandle>& windows, Point point) const {
  for (const WindowHandle window : windows) {
    const Window& each = Get(window);
    const Rectangle place = ScreenPlace(window);
    const bool inside = point.x >= place.left && point.x < place.left + place.width &&
                        point.y >= place.top && point.y < place.top + place.height;
    if (!inside || !each.visible || !each.enabled || each.iconic) continue;
    const WindowHandle deeper = Hit(each.children, point);
    return deeper != 0 ? deeper : window;
  }
  return 0;
}

WindowHandle Desktop::WindowAt(Point point) const { return Hit(topLevel_, point); }

}  // namespace vantrel::platform::memory
