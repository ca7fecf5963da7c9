// The peers without a screen: each keeps one record of the in-memory desktop in step with its
// model, and passes messages to the model. Only the toolkit of this component makes them.
#ifndef VANTREL_FORMS_HEADLESS_WINDOWS_H_
#define VANTREL_FORMS_HEADLESS_WINDOWS_H_

#include <memory>
#include <string>

#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/Peer.h"
#include "forms/headless/Toolkit.h"

namespace vantrel::forms::headless {

class Window : public FormPeer {
 public:
  Window(Toolkit& toolkit, Form& form);
  ~Window() override;

  void Changed(Aspect aspect) override;
  void SetFocus() override {}
  Handle WindowHandle() const override { return handle_; }
  void RunModal() override;
  void PopupMenu(Menu& menu) override;
  Handle IconHandle() const override;
  void Activate() override;

 private:
  bool Takes(const platform::memory::Message& message);
  void MouseMoved(const platform::memory::Message& message);
  void Sized(const platform::memory::Message& message);
  void Place();

  Toolkit& toolkit_;
  Form& form_;
  std::string name_;
  Handle handle_;
};

// The peer of a control; `parent` is 0 for one that has no record of its own.
std::unique_ptr<ControlPeer> MakeControlWindow(Toolkit& toolkit, Control& control, Handle parent);

}  // namespace vantrel::forms::headless

#endif  // VANTREL_FORMS_HEADLESS_WINDOWS_H_
