// The surface of a control made of other controls: a window of its own, with the container's ways
// of focus and keyboard. What it does is decided by the control that derives from it.
#ifndef VANTREL_FORMS_USERCONTROL_H_
#define VANTREL_FORMS_USERCONTROL_H_

#include "forms/Control.h"

namespace vantrel::forms {

class UserControl : public Control {
 public:
  using Control::Control;
  void Accept(ControlVisitor& visitor) override;
  bool IsTabStop() const override { return true; }

  // The screen's side reports: the size has changed; Enter or Space was pressed on it.
  virtual void Resized() {}
  virtual void KeyPressed() {}
  // The control whose text and pointer the surface shows, nullptr for none.
  virtual Control* Face() { return nullptr; }
  // Whether the face's tool tip shows whatever it is; otherwise the surface's own stands in for one
  // that is empty.
  virtual bool FaceHasTip() const { return false; }
};

}  // namespace vantrel::forms

#endif  // VANTREL_FORMS_USERCONTROL_H_
