// The toolkit without a screen, on the in-memory desktop and clock. Every window, and every control
// but images, timers and the parts of a control made of others, has a record there. Messages sent
// to a record act on the model at the border: WmSetText, BmClick (buttons only, when enabled),
// WM_MOUSEMOVE, WM_CLOSE, and shows and sizes sent by the desktop.
#ifndef VANTREL_FORMS_HEADLESS_TOOLKIT_H_
#define VANTREL_FORMS_HEADLESS_TOOLKIT_H_

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "forms/Form.h"
#include "forms/Toolkit.h"
#include "platform/memory/Clock.h"
#include "platform/memory/Desktop.h"

namespace vantrel::forms::headless {

// Desktop and clock must outlive the toolkit, and the toolkit its windows. `process` is the running
// copy that the windows and timers belong to.
class Toolkit : public forms::Toolkit {
 public:
  Toolkit(platform::memory::Desktop& desktop, platform::memory::Clock& clock,
          platform::memory::ProcessId process);

  std::unique_ptr<FormPeer> MakeWindow(Form& form) override;
  double TwipsPerPixelX() const override { return 15; }

  // Gets everything the screen would show, in order, one line each: "frmMain Load" (its window
  // is made), "Show", "Hide", "Unload"; changes as "FrmFrameMain.cmdstart
  // Enabled=False", "frmMain Caption=Vantrel", "Screen MousePointer=11".
  std::function<void(const std::string&)> Trace;

  // Queues an event for the next pump (DoEvents, a box, a modal window, Pump). Events run in the
  // order of their queueing, between the posted messages, each at a border of its own.
  void WhenPumped(std::function<void()> event);
  // Runs at each DoEvents of the program, before what is queued, at a border of its own.
  std::function<void()> DuringDoEvents;
  // What the message loop does: lets through all that is queued. False if nothing was.
  bool Pump();

  // Asked when a modal window is open and nothing is queued; true says that there is something
  // now. Unbound or false, the program stops with a message: nobody could ever close the window.
  std::function<bool()> WaitForEvents;
  // Chooses from a menu that pops up; nullptr, or unbound, is a click elsewhere.
  std::function<Menu*(Menu&)> ChooseFromPopup;

  // The close box.
  void UserCloses(Form& form);
  // The session ends: every window that is not hosted is asked to unload, in order.
  void SystemEnds();

  // The window that is open modally, the innermost one; nullptr for none.
  Form* ModalForm() const { return modal_.empty() ? nullptr : modal_.back(); }

  platform::memory::Desktop& Desktop() const { return desktop_; }
  platform::memory::Clock& Clock() const { return clock_; }
  platform::memory::ProcessId Process() const { return process_; }

  // For its windows.
  void Tell(const std::string& line) const;
  void RunModal(Form& form);

 protected:
  void PumpMessages() override;
  void ScreenPointerChanged() override;

 private:
  class Modal;

  void WaitOnce(const Form& form);
  void Enable(const Form& form, bool enabled);
  void EnableOthers(const Form& form, bool enabled);

  platform::memory::Desktop& desktop_;
  platform::memory::Clock& clock_;
  platform::memory::ProcessId process_;
  std::vector<Form*> modal_;
};

}  // namespace vantrel::forms::headless

#endif  // VANTREL_FORMS_HEADLESS_TOOLKIT_H_
