// The icon in the notification area: it belongs to the Welcome panel, calls back as mouse moves of
// that panel, and has a menu of the main window's.
#ifndef VANTREL_SHELL_TRAY_H_
#define VANTREL_SHELL_TRAY_H_

#include "program/Program.h"

namespace vantrel::shell {

// Removes any icon of the Welcome panel and adds it anew.
void AddTrayIcon(program::Program& program);

// The same for the main window, with a record of its own. Nothing in the program calls it: there is
// never an icon of the main window.
void AddTrayIconOfMainWindow(program::Program& program);

// Binds the Welcome panel's Load, Unload and mouse moves.
void AttachTray(program::Program& program, windows::FrmFrameMain& panel);
// Binds the tray menu, and the double-click that the main window would answer.
void AttachTrayMenu(program::Program& program, windows::frmMain& form);

}  // namespace vantrel::shell

#endif  // VANTREL_SHELL_TRAY_H_
