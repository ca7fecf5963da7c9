// The screen's side of a window and of its controls. A toolkit makes the peers; the models
// report what changed to them and never ask how it is shown.
#ifndef VANTREL_FORMS_PEER_H_
#define VANTREL_FORMS_PEER_H_

#include <cstdint>

namespace vantrel::forms {

class Menu;

// A window handle as a plain integer; 0 where there is no window.
using Handle = std::uintptr_t;

// What of a control or form has changed.
enum class Aspect {
  Text,       // caption or text
  Visible,    //
  Enabled,    //
  Place,      // position or size
  ToolTip,    //
  Value,      // check state, option state, progress, interval
  Items,      // rows, entries, columns, bars
  Selection,  // selected row or entry, drop highlight
  Picture,    //
  Color,      // fore or back colour
  Font,       //
  Pointer,    // mouse pointer
  State,      // a form's window state
};

class ControlPeer {
 public:
  virtual ~ControlPeer() = default;
  virtual void Changed(Aspect aspect) = 0;
  virtual void SetFocus() = 0;
  virtual Handle WindowHandle() const = 0;
};

class FormPeer : public ControlPeer {
 public:
  // Runs a message loop until the form is hidden or unloaded; other windows stay disabled.
  virtual void RunModal() = 0;
  // Shows the menu at the mouse and raises the Click of the entry chosen; a click elsewhere
  // closes it.
  virtual void PopupMenu(Menu& menu) = 0;
  // The handle of the window's icon.
  virtual Handle IconHandle() const = 0;
  // Brings the window to the front and makes it active.
  virtual void Activate() = 0;
};

}  // namespace vantrel::forms

#endif  // VANTREL_FORMS_PEER_H_
