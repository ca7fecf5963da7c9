// The upper frame of the Clean panel: deletes the traces of browsing and of Windows use that its
// boxes select. Best effort: what cannot be removed stays, and every run ends with the same texts.
#ifndef VANTREL_CLEANING_CACHECLEANER_H_
#define VANTREL_CLEANING_CACHECLEANER_H_

#include "program/Program.h"
#include "windows/FrmFrameHistory.h"

namespace vantrel::cleaning {

// Cleans what is selected, in a fixed order; window messages run meanwhile, and a second click
// then starts a nested run.
void CmdDeleteCache_Click(program::Program& program);

// Disables the button exactly if nothing is selected.
void UpdateDeleteButton(program::Program& program);

// Empties the Recycle Bin of all drives without a question; errors are ignored. `result` becomes 0.
void EmptyBin(program::Program& program, platform::WindowHandle owner, std::int32_t& result);

// Binds the frame's events.
void AttachCacheCleaner(program::Program& program, windows::FrmFrameHistory& form);

}  // namespace vantrel::cleaning

#endif  // VANTREL_CLEANING_CACHECLEANER_H_
