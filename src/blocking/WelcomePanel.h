// The Welcome panel: Start, Stop and Test, the kind of connection, and the timer that keeps all
// counter displays current. Its tray icon and its links are the shell's business.
#ifndef VANTREL_BLOCKING_WELCOMEPANEL_H_
#define VANTREL_BLOCKING_WELCOMEPANEL_H_

#include "program/Program.h"

namespace vantrel::blocking {

// Starts blocking, also when it is on already, then opens the outside pop-up test page. Errors of
// both pass through.
void cmdtest_Click(program::Program& program);

// Binds all of the panel's events but Load, Unload and MouseMove.
void Attach(program::Program& program, windows::FrmFrameMain& form);

}  // namespace vantrel::blocking

#endif  // VANTREL_BLOCKING_WELCOMEPANEL_H_
