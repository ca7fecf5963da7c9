// From process start to the idle control panel: the browser gate, the command for a running copy,
// the first-run settings, the panels, the saved settings, and the press of Start at the end. The
// order is fixed; other programs and the next start rely on it.
#ifndef VANTREL_SHELL_STARTUP_H_
#define VANTREL_SHELL_STARTUP_H_

#include "program/Program.h"

namespace vantrel::shell {

// Starts one copy: makes the main window, whose Load is the whole sequence. An error that nothing
// trapped ends the sequence with a box and leaves the main window on the screen, usable; without a
// main window, which could not be made, there is nothing to leave. The program has ended afterwards
// if toolkit.Ending().
void Start(program::Program& program);

// Copies the saved settings into the panels. Any error ends it silently.
void LoadInitialSettings(program::Program& program);

// Asks for the version record; IsWindowsNT stays as it is if the call fails.
void GetOSVer(program::Program& program);

void AttachStartup(program::Program& program, windows::frmMain& form);

}  // namespace vantrel::shell

#endif  // VANTREL_SHELL_STARTUP_H_
