// Backup and restore of Internet Explorer's two registry branches. The system's registry editor
// does the work, as processes that run side by side and that nobody waits for. Folders end without
// a backslash; every operation reads the one in use from the panel.
#ifndef VANTREL_IEMAINTENANCE_SETTINGSBACKUP_H_
#define VANTREL_IEMAINTENANCE_SETTINGSBACKUP_H_

#include <string>

#include "program/Program.h"
#include "windows/FrmFrameIESettings.h"

namespace vantrel::iemaintenance {

// Exports both branches to the folder and writes the date file. All errors are ignored, and the
// success message comes whatever happened: this is meant.
void cmdBackupIESettings_Click(program::Program& program);

// Imports both branches, with the start of a safety export before if the user wants one. The last
// message comes also if a folder could not be made and nothing was imported: this is meant. An
// error ends it in a box.
void cmdRestoreIESettings_Click(program::Program& program);

// Lets the user choose the folder.
void cmdBrowseIESettings_Click(program::Program& program);

// Shows the date file, or that there is none. One that cannot be read leaves the view as it is.
void ShowBackupDate(program::Program& program, const std::string& path);

void Attach(program::Program& program, windows::FrmFrameIESettings& form);

}  // namespace vantrel::iemaintenance

#endif  // VANTREL_IEMAINTENANCE_SETTINGSBACKUP_H_
