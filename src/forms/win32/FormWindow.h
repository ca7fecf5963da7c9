// The window of a form: a main window, a dialog or a panel, with its menu bar, its layout on
// resizing, its keyboard focus and its ways to close.
#ifndef VANTREL_FORMS_WIN32_FORMWINDOW_H_
#define VANTREL_FORMS_WIN32_FORMWINDOW_H_

#include <memory>
#include <vector>

#include "forms/Form.h"
#include "forms/win32/MenuBar.h"
#include "forms/win32/Modality.h"
#include "forms/win32/ToolTips.h"
#include "forms/win32/Window.h"

namespace vantrel::forms::win32 {

class FormWindow : public Window {
 public:
  FormWindow(WindowSystem& system, Form& form) : Window(system), form_(form), menus_(form) {}

  Form& Model() const { return form_; }
  ToolTips& Tips() { return tips_; }

  void CreateHidden();
  // Ends the window, and before it the dialog that it may be running.
  void Close();
  // Makes the menu bar and the windows of the controls, unless that is done. It is done when the
  // form is shown, when one of them is asked for, or before the program waits for messages.
  void MakeControls();
  void Changed(Aspect aspect);
  void RunModal();
  void PopupMenu(Menu& menu);
  void Activate();
  // The control gets the focus when the window is active next.
  void FocusLater(HWND control) { lastFocus_ = control; }
  // Shows the toolkit's scheme, which has changed.
  void ShowScheme();
  // Takes the toolkit's scale and fonts, which have changed.
  void Renew();
  HICON Icon() const { return System().Images.ProgramIcon(true); }

  // The controls that Tab visits now: the model's order without what lies under another panel.
  std::vector<Control*> TabStops() const;
  // The stop behind (or before) a control, round about; nullptr if there is none.
  Control* NextStop(const Control* from, bool backwards) const;
  // The panel that lies on top, nullptr for none.
  std::shared_ptr<FormWindow> TopPanel() const;

  void PaintSurface(HDC context, const RECT& area) override;
  Color GroundColor() const override { return form_.BackColor(); }

 protected:
  LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override;

 private:
  bool IsPanel() const { return form_.Designed().Frame == Border::Panel; }
  bool IsMain() const { return form_.Designed().Frame == Border::Sizable; }
  WindowShape Shape() const;
  HWND DialogOwner() const;
  void AwaitControls();
  void ShowOwnDpi();
  void ShowVisible();
  void GoBehindDialog() const;
  RECT Measured() const;
  void ShowPlace();
  void ShowState();
  int ShowCommand() const;
  void Center();
  void ShowPanel() const;
  void PaintAtOnce() const;
  void Resized(WPARAM kind);
  void LayOut();
  void Limit(MINMAXINFO& limits) const;
  void LeaveFocus();
  void RestoreFocus();
  void EndModal();
  // Brings the latest of the program's other windows that show to the front.
  void ActivateOther() const;
  bool IsChangeOfScreen(UINT message, WPARAM first, LPARAM second);
  void SettingChanged(UINT action);
  void DpiChanged(int dpi, LPARAM suggested);
  void ShowScale();
  bool IsEvent(UINT message, WPARAM first, LPARAM second);
  bool IsFocusMove(UINT message, WPARAM first, LPARAM second);
  bool GoesWithOwner() const;
  void AboutToMove(const WINDOWPOS& change);
  void Moved(const WINDOWPOS& change);
  LRESULT TakeCaption(WPARAM first, LPARAM second);
  static bool IsCovered(HWND control, const FormWindow& panel);
  bool CanHaveFocus(HWND control) const;
  LRESULT Closing(UINT message, WPARAM first);

  Form& form_;
  MenuBar menus_;
  ToolTips tips_;
  HWND lastFocus_ = nullptr;
  Modality modality_;
  bool placed_ = false;
  bool made_ = false;  // the controls' windows
};

std::unique_ptr<FormPeer> MakeFormWindow(WindowSystem& system, Form& form);

// The mouse as it is reported to the models, in twips.
struct MouseState {
  int Button = 0;
  int Shift = 0;
  float X = 0;
  float Y = 0;
};
MouseState MouseStateOf(WPARAM keys, LPARAM position, double twipsPerPixel);

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_FORMWINDOW_H_
