// How the main window lives and ends: its smallest size, the close box, the final shutdown. Every
// way of closing, to the tray or for good, writes GDisabled = 1.
#ifndef VANTREL_SHELL_LIFETIME_H_
#define VANTREL_SHELL_LIFETIME_H_

#include "program/Program.h"

namespace vantrel::shell {

// Unloads every loaded window, in the order of their creation; does not end the process.
void UnloadAllForms(program::Program& program);

// Gives the window procedure that was never replaced back to the window: the value is 0 and the
// call has no effect. It stays; this is meant.
void RestoreWindowProc(program::Program& program, forms::Form& form);

// The final shutdown where messages have ended without the program's own doing, as when another
// program posts a WM_QUIT; nothing if the program is ending already.
void Finish(program::Program& program);

void AttachLifetime(program::Program& program, windows::frmMain& form);

}  // namespace vantrel::shell

#endif  // VANTREL_SHELL_LIFETIME_H_
