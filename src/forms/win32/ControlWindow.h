// The window of one control: carries changes of the model to the screen, and what the user or a
// foreign message does to the window back to the model. The kinds derive from it.
#ifndef VANTREL_FORMS_WIN32_CONTROLWINDOW_H_
#define VANTREL_FORMS_WIN32_CONTROLWINDOW_H_

#include <memory>
#include <string>

#include "forms/Control.h"
#include "forms/win32/Window.h"

namespace vantrel::forms::win32 {

class ControlWindow : public Window {
 public:
  ControlWindow(WindowSystem& system, Control& control) : Window(system), control_(control) {}

  Control& Model() const { return control_; }

  // Makes the window under its container's, at its place.
  void CreateUnder(HWND parent, int identifier);
  // Once the model knows its window: what the window then reports to the model.
  virtual void Settle() {}
  // Shows what has changed in the model.
  virtual void Changed(Aspect aspect);
  void TakeFocus() const;
  // The toolkit's scale and fonts are others: what depends on them is made anew.
  void Renew();

  void PaintSurface(HDC context, const RECT& area) override;
  Color GroundColor() const override;
  HBRUSH OnColor(HDC context) override;

 protected:
  // Class, style and text of the kind.
  virtual WindowShape Shape() const = 0;
  // After the window is made.
  virtual void Prepare() {}
  // What the kind has sized by the scale, beside its place.
  virtual void Rescale() {}
  virtual HFONT TextFont() const;
  // The pointer shown over it, in the models' numbers.
  virtual int Pointer() const { return control_.MousePointer(); }
  virtual const std::string& TipText() const { return control_.ToolTipText(); }
  // Whether a screen reader is given a name of the program's own rather than the window's text.
  virtual bool IsSpokenByName() const { return control_.IsTabStop(); }
  // Whose mouse events are raised here.
  virtual Control& MouseTarget() const { return control_; }
  LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override;

  // Runs the model's reaction to something from outside.
  void Raise(const std::function<void()>& event) { System().Raise(event); }
  std::string ShownText() const;
  // Text boxes need minutes for a text of megabytes: no control shows more characters than these.
  static constexpr std::size_t LongestShown = 30000;
  // Sends a message that the window handles as the control's own work, not as one from outside.
  LRESULT Tell(UINT message, WPARAM first = 0, LPARAM second = 0);
  bool IsTelling() const { return telling_ > 0; }
  // The ground for text that is typed or listed, and the answer to OnColor there.
  Color InputGround() const;
  HBRUSH OnInputColor(HDC context);
  void DrawOwnBorder();
  bool HasMouse(LPARAM position) const;
  // The left button goes down on a control that Windows itself makes clicks of. A quick second
  // press is a press like the first, no double-click. The focus comes first: if that brings up a
  // box, in which the button is let go, the press is carried out whole behind the box.
  LRESULT Press(WPARAM keys, LPARAM position);
  // The left button's messages to a control that Windows knows no clicks of: raises what every
  // control does, and `click` when the button is let go over the control that it was pressed on.
  LRESULT FollowButton(UINT message, WPARAM first, LPARAM second, bool takesFocus,
                       const std::function<void()>& click);

 private:
  RECT Area() const;
  // What a press has come to once the control has been given the focus.
  enum class PressState { Refused, Held, LetGo };
  PressState FocusByPress() const;
  bool BeginPress(bool takesFocus);
  bool EndPress(LPARAM position);
  void AssignText(const char* text);
  LRESULT SpokenAnswer(WPARAM first);
  void ShowText();
  void ShowVisible();
  void GiveFocusAway();
  void RaiseMouse(UINT message, WPARAM keys, LPARAM position);
  bool TakesFocusFromModel();
  void ShowTip();

  Control& control_;
  int telling_ = 0;
  bool pressed_ = false;
  bool tipped_ = false;  // the mouse has been here: the tip is kept up to date
};

// What the model holds of its window.
std::unique_ptr<ControlPeer> MakePeer(std::shared_ptr<ControlWindow> window);

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_CONTROLWINDOW_H_
