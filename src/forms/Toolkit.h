// What makes windows real: the real desktop or the in-memory one. One toolkit serves one running
// copy of the program; it also holds what is common to all its windows: the list of loaded forms,
// the message pump, the border of events and the end of the program.
#ifndef VANTREL_FORMS_TOOLKIT_H_
#define VANTREL_FORMS_TOOLKIT_H_

#include <functional>
#include <memory>
#include <vector>

#include "forms/Event.h"
#include "forms/Peer.h"
#include "text/RuntimeError.h"

namespace vantrel::forms {

class Control;
class Form;

// Thrown to end the process: it unwinds through every handler and pump to the entry point.
// Nothing catches it on the way but the event border, which lets it go on beyond the callback.
struct EndProgram {};

class Toolkit {
 public:
  virtual ~Toolkit();

  // Makes the real window of a form and of all its controls, hidden. RuntimeError 7 if the system
  // makes none.
  virtual std::unique_ptr<FormPeer> MakeWindow(Form& form) = 0;

  // How many twips a pixel of the screen is wide, e.g. 15 at 96 DPI.
  virtual double TwipsPerPixelX() const = 0;

  // Lets pending window messages and due timers through. Throws EndProgram if one of them ended
  // the program.
  void DoEvents();

  // Ends the program: throws EndProgram, here and from every nested pump.
  [[noreturn]] void End();
  bool Ending() const { return ending_; }
  // Throws EndProgram if the program is ending; called after everything that may have let
  // messages through (pumps, boxes, sent messages).
  void ThrowIfEnding() const;

  // Runs one event from outside (a message, a tick) to its end. An untrapped RuntimeError goes to
  // OnUntrappedError, any other exception there as the nearest one (7 for exhausted memory, else
  // 5); EndProgram marks the toolkit as ending. Nothing is thrown. Once the program is ending, no
  // event runs any more.
  void AtBorder(const std::function<void()>& event) noexcept;

  // Shows an untrapped error; bound by the program.
  std::function<void(const text::RuntimeError&)> OnUntrappedError;

  // The shell has made a new notification area, which knows no icons yet.
  Event<> TaskbarCreated;

  // The loaded forms in the order of their creation.
  const std::vector<Form*>& LoadedForms() const { return loadedForms_; }

  // The window that is active among the program's own, nullptr for none.
  Form* ActiveForm() const { return activeForm_; }
  // The control that has the focus, nullptr for none.
  Control* Focus() const { return focus_; }
  // From the screen's side: the user moves the focus, to nullptr when it leaves the program's
  // controls. Asks the control that is being left (a combo box raises Validate), then raises
  // LostFocus and GotFocus. False if the focus is to stay, or to go back, where it was. While a
  // control is being asked nothing moves and nobody is asked again: a box that the question brings
  // up takes the screen's focus and gives it back. An error of the question keeps nothing.
  bool UserMovesFocus(Control* to);
  // From code: the same without asking.
  void MoveFocus(Control* to);

  // The pointer over all windows: 0 default, 11 hourglass.
  int ScreenPointer() const { return screenPointer_; }
  void SetScreenPointer(int pointer);

  // Keeps a window that was unloaded until the outermost border ends, since an event that is
  // running could still use it; outside all borders, until the next one ends.
  void Discard(std::unique_ptr<Form> form);

 protected:
  // An event, or a message that raises several: what is discarded meanwhile goes when the outermost
  // of them ends.
  class EventScope {
   public:
    explicit EventScope(Toolkit& toolkit) : toolkit_(toolkit) { ++toolkit_.depth_; }
    ~EventScope() {
      if (--toolkit_.depth_ == 0) toolkit_.EndOfBorder();
    }
    EventScope(const EventScope&) = delete;
    EventScope& operator=(const EventScope&) = delete;

   private:
    Toolkit& toolkit_;
  };

  virtual void PumpMessages() = 0;
  virtual void ScreenPointerChanged() {}

 private:
  friend class Control;
  friend class Form;

  // A loop that lets events through: none of them is the outermost, whoever runs the loop.
  class Pumping {
   public:
    explicit Pumping(Toolkit& toolkit) : toolkit_(toolkit) { ++toolkit_.depth_; }
    ~Pumping() { --toolkit_.depth_; }
    Pumping(const Pumping&) = delete;
    Pumping& operator=(const Pumping&) = delete;

   private:
    Toolkit& toolkit_;
  };

  void Report(const text::RuntimeError& error) noexcept;
  void EndOfBorder() noexcept;
  bool MayLeave(Control& control);
  void Transfer(Control* to, bool tellPeer);
  // The window no longer shows: neither it nor what it hosts is active or has the focus. From a
  // panel the focus goes to the window around it; nobody is asked.
  void LeaveHidden(Form& form);
  // The same for a window that goes, with no event.
  void LeaveGone(const Form& form);

  std::vector<Form*> loadedForms_;
  std::vector<std::unique_ptr<Form>> discarded_;
  Form* activeForm_ = nullptr;
  Control* focus_ = nullptr;
  int depth_ = 0;
  int screenPointer_ = 0;
  bool asking_ = false;
  bool ending_ = false;
};

}  // namespace vantrel::forms

#endif  // VANTREL_FORMS_TOOLKIT_H_
