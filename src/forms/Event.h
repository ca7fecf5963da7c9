// One event of a window or control: a slot for the one handler that a behaviour binds to it.
#ifndef VANTREL_FORMS_EVENT_H_
#define VANTREL_FORMS_EVENT_H_

#include <functional>
#include <utility>

namespace vantrel::forms {

// Binding replaces the handler; raising an event that nobody bound does nothing. The handler may
// bind another, unload its window or raise the event again: what runs is a copy.
template <class... Arguments>
class Event {
 public:
  using Handler = std::function<void(Arguments...)>;

  Event& operator=(Handler handler) {
    handler_ = std::move(handler);
    return *this;
  }

  explicit operator bool() const { return static_cast<bool>(handler_); }

  // Raises the event. Errors of the handler pass through to whoever raised it.
  void operator()(Arguments... arguments) const {
    if (Handler running = handler_) running(arguments...);
  }

 private:
  Handler handler_;
};

}  // namespace vantrel::forms

#endif  // VANTREL_FORMS_EVENT_H_
