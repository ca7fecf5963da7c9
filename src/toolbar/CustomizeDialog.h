// What the Customize Toolbar dialog does. Each operation takes the window that the event came from:
// a box that it shows may see that window closed and another one opened. That the button Save is
// enabled is the mark of unsaved changes.
#ifndef VANTREL_TOOLBAR_CUSTOMIZEDIALOG_H_
#define VANTREL_TOOLBAR_CUSTOMIZEDIALOG_H_

#include "program/Program.h"

namespace vantrel::toolbar {

// Move the selected row to the end of the other list, which may be empty.
void cmdAdd_Click(windows::frmcustom& form);
void cmdRemove_Click(windows::frmcustom& form);

// Move the selected row of the list that was clicked last by one place; without such a list, or at
// the list's end, no row moves.
void cmdMUp_Click(windows::frmcustom& form);
void cmdMDown_Click(windows::frmcustom& form);

// Shows the whole catalogue as the current list; stores nothing.
void cmdReset_Click(windows::frmcustom& form);

// Stores the layout. An error shows its box and leaves the changes unsaved.
void cmdDone_Click(program::Program& program, windows::frmcustom& form);

// Stores the layout if it is not saved, and closes the dialog.
void Command1_Click(program::Program& program, windows::frmcustom& form);

// Binds them to the dialog.
void Attach(program::Program& program, windows::frmcustom& form);

}  // namespace vantrel::toolbar

#endif  // VANTREL_TOOLBAR_CUSTOMIZEDIALOG_H_
