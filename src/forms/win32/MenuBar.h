// A form's menus as Windows shows them: the bar, and one that pops up. What an entry looks like is
// read from the model each time its menu opens.
#ifndef VANTREL_FORMS_WIN32_MENUBAR_H_
#define VANTREL_FORMS_WIN32_MENUBAR_H_

#include <windows.h>

#include <map>

#include "forms/Bars.h"
#include "forms/Form.h"
#include "forms/win32/Handles.h"

namespace vantrel::forms::win32 {

class MenuBar {
 public:
  explicit MenuBar(Form& form) : form_(form) {}

  // Puts the bar into the window, if the form has visible menus.
  void PutInto(HWND window);
  // WM_INITMENUPOPUP: fills the menu anew.
  void Opens(HMENU opened);
  // Shows a menu at the mouse; the identifier of the entry chosen, 0 for none.
  static int PopUp(HWND window, const Menu& menu);

 private:
  static void Fill(HMENU into, const Menu& menu);

  Form& form_;
  std::map<HMENU, const Menu*> opened_;
};

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_MENUBAR_H_
