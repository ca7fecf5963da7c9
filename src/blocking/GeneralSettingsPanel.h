// The Settings panel: options about the program itself. Most boxes store a flag; the toolbar box
// and the script box act on the browser at once, also while settings are being loaded.
#ifndef VANTREL_BLOCKING_GENERALSETTINGSPANEL_H_
#define VANTREL_BLOCKING_GENERALSETTINGSPANEL_H_

#include "program/Program.h"

namespace vantrel::blocking {

// Says that the browser may need a restart, saves the block settings (which is meant not to
// include this box), and writes or deletes the toolbar's entry.
void chkGShowToolbar_Click(program::Program& program);

// Writes the browser's own value, "yes" or "no".
void chkScript_Click(program::Program& program);

// Saves the general settings; if that fails, and only then, sets the start-with-Windows entry.
void chkGSWindows_Click(program::Program& program);

// Writes the program's entry among those that Windows starts, or deletes it, by chkGSWindows.
void SetStartWithWindows(program::Program& program);

// Sets six boxes to their defaults; their handlers do the saving.
void cmdresetSettings_Click(program::Program& program);

void Attach(program::Program& program, windows::FrmFrameSettings& form);

}  // namespace vantrel::blocking

#endif  // VANTREL_BLOCKING_GENERALSETTINGSPANEL_H_
