// Stands for the window of a control until that is made: a form makes its controls' windows all at
// once, as late as it can. Changes need no report, since a window shows what the model says when
// it is made; who asks for the handle or the focus has all of them made first.
#ifndef VANTREL_FORMS_WIN32_AWAITEDPEER_H_
#define VANTREL_FORMS_WIN32_AWAITEDPEER_H_

#include "forms/Control.h"
#include "forms/win32/FormWindow.h"

namespace vantrel::forms::win32 {

class AwaitedPeer final : public ControlPeer {
 public:
  AwaitedPeer(FormWindow& form, Control& control) : form_(form), control_(control) {}

  void Changed(Aspect) override {}
  void SetFocus() override;
  forms::Handle WindowHandle() const override;

 private:
  FormWindow& form_;
  Control& control_;
};

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_AWAITEDPEER_H_
