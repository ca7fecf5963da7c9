// One event of a window or control: a slot for the one handler that a behaviour binds to it.
#ifndef VANTREL_FORMS_EVENT_H_
#define VANTREL_FORMS_EVENT_H_

#include <functional>
#include <stdexcept>
#include <utility>

namespace vantrel::forms {

// Raising an event that nobody bound does nothing. The handler may release the event (bind nullptr
// to it), unload its window or raise the event again: what runs is a copy.
template <class... Arguments>
class Event {
 public:
  using Handler = std::function<void(Arguments...)>;

  // Binding an event that is bound is a programming error, std::logic_error: two behaviours would
  // fight over one control, and the first would be lost without a sign.
  Event& operator=(Handler handler) {
    if (handler_ && handler) throw std::logic_error("this event is bound already");
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
