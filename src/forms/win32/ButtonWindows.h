// Buttons, check boxes and options, shown by Windows' own buttons. Whether one is pressed or set is
// the model's to say: a click, whoever sends it, goes to the model, and the window shows the rest.
#ifndef VANTREL_FORMS_WIN32_BUTTONWINDOWS_H_
#define VANTREL_FORMS_WIN32_BUTTONWINDOWS_H_

#include "forms/Controls.h"
#include "forms/win32/ControlWindow.h"

namespace vantrel::forms::win32 {

class ButtonWindow : public ControlWindow {
 public:
  using ControlWindow::ControlWindow;
  LRESULT OnCommand(WPARAM first, LPARAM second) override;

 protected:
  WindowShape ShapeOf(DWORD style) const;
  LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override;
  // A check state set by a message from outside; false if the model knows none.
  virtual bool AssignCheck(WPARAM) { return false; }

 private:
  void Clicks();
  LRESULT TextToPaint(WPARAM size, LPARAM buffer);

  bool focusing_ = false;
  bool painting_ = false;
};

class CommandButtonWindow final : public ButtonWindow {
 public:
  CommandButtonWindow(WindowSystem& system, CommandButton& button)
      : ButtonWindow(system, button), button_(button) {}

 protected:
  WindowShape Shape() const override;

 private:
  CommandButton& button_;
};

class CheckBoxWindow final : public ButtonWindow {
 public:
  CheckBoxWindow(WindowSystem& system, CheckBox& box) : ButtonWindow(system, box), box_(box) {}
  void Changed(Aspect aspect) override;

 protected:
  WindowShape Shape() const override { return ShapeOf(BS_3STATE | BS_MULTILINE); }
  void Prepare() override { Changed(Aspect::Value); }
  bool AssignCheck(WPARAM value) override;

 private:
  CheckBox& box_;
};

class OptionButtonWindow final : public ButtonWindow {
 public:
  OptionButtonWindow(WindowSystem& system, OptionButton& option)
      : ButtonWindow(system, option), option_(option) {}
  void Changed(Aspect aspect) override;

 protected:
  WindowShape Shape() const override { return ShapeOf(BS_RADIOBUTTON | BS_MULTILINE); }
  void Prepare() override { Changed(Aspect::Value); }
  bool AssignCheck(WPARAM value) override;

 private:
  OptionButton& option_;
};

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_BUTTONWINDOWS_H_
