// What makes a dialog modal: while it is up the program's other windows take no input.
#ifndef VANTREL_FORMS_WIN32_MODALITY_H_
#define VANTREL_FORMS_WIN32_MODALITY_H_

#include <windows.h>

#include <vector>

namespace vantrel::forms::win32 {

class FormWindow;
class WindowSystem;

class Modality {
 public:
  // Disables the other top-level windows that are enabled.
  void Begin(const WindowSystem& system, const FormWindow& dialog);
  // Another top-level window is shown while the dialog is up: it takes no input either.
  void Cover(HWND shown);
  bool Holds() const { return holds_; }
  // Enables them again; false if nothing was held. To be called before the dialog goes: Windows
  // would else activate another program's window.
  bool End();

 private:
  std::vector<HWND> disabled_;
  bool holds_ = false;
};

// The topmost box or modal dialog that is up and takes input, Windows' own dialogs included;
// nullptr for none.
HWND DialogInFront(const WindowSystem& system);

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_MODALITY_H_
