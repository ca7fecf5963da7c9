// The receiver's side of the command channel: a hidden button of the main window whose caption is
// the mailbox. A later start of the program, or any other program, writes one command into it and
// clicks it.
#ifndef VANTREL_SHELL_COMMANDCHANNEL_H_
#define VANTREL_SHELL_COMMANDCHANNEL_H_

#include <string>

#include "program/Program.h"

namespace vantrel::shell {

// Carries out the command in the button's caption and makes the button ready for the next.
void cmdDummy_Click(program::Program& program);

// Traces the command, hides the main window, does what the table of commands says, and shows the
// main window again, unless the command is for the toolbar's dialog.
void DispatchCommand(program::Program& program, const std::string& command);

// The same commands without trace, hiding and final show, and without the toggle: a dispatcher for
// callers from outside; nothing in the program calls it.
void OneGulp(program::Program& program, const std::string& command);

void AttachCommandChannel(program::Program& program, windows::frmMain& form);

}  // namespace vantrel::shell

#endif  // VANTREL_SHELL_COMMANDCHANNEL_H_
