// Which panel shows: the operations that show and hide panels, and what the links, menus and tool
// buttons of the main window make of them. The routes differ on purpose: the tables are the truth.
#ifndef VANTREL_SHELL_NAVIGATION_H_
#define VANTREL_SHELL_NAVIGATION_H_

#include "program/Program.h"

namespace vantrel::shell {

// Hides the nine upper panels; the Welcome panel stays, at the bottom of the stack.
void HideAll(program::Program& program);
void HideHelpFrame(program::Program& program);

// One a panel: hide the Help frame, show the panel, let pending messages through (CaseClean does
// not).
void CaseWelcome(program::Program& program);
void CaseAdBlocking(program::Program& program);
void CaseSettings(program::Program& program);
void CaseClean(program::Program& program);
void CaseAllow(program::Program& program);
void CaseNotify(program::Program& program);
void CaseIESettings(program::Program& program);
void CaseIEPlugins(program::Program& program);
void CaseGraph(program::Program& program);
void CaseLog(program::Program& program);
void CaseHelp(program::Program& program);

// Start as the menu entry and the tool button do it: through a full stop, which leaves
// BlockingActive false although the buttons read as started. This is meant.
void StartThroughStop(program::Program& program);
// Start as the test entry does it: BlockingActive stays as it was.
void StartWithoutStop(program::Program& program);

// Presses Windows+M. The M is never let go; this is meant.
void MinimizeAllApplications(program::Program& program);

// Shows the toolbar's dialog, beside the main window.
void ShowToolbarDialog(program::Program& program);

// An operation of the main window for callers from outside. Has no effect.
inline void CreateView(program::Program& /*program*/) {}

// Binds the links, tool buttons and hidden buttons of the main window.
void AttachNavigation(program::Program& program, windows::frmMain& form);
// Binds the menus of the main window's bar.
void AttachMenus(program::Program& program, windows::frmMain& form);
// Binds the small dialog about the program.
void AttachAbout(windows::FrmAbout& form);

}  // namespace vantrel::shell

#endif  // VANTREL_SHELL_NAVIGATION_H_
