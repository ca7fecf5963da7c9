// Copies the settings tree into the panels' controls. Whoever calls sets LoadingSettings first, so
// that the controls' handlers do not save what is being loaded.
#ifndef VANTREL_SETTINGS_LOAD_H_
#define VANTREL_SETTINGS_LOAD_H_

#include "program/Program.h"

namespace vantrel::settings {

// Fills the boxes of the block preferences, the notification and the log switch; nothing if the
// key's marker is missing. A value that is missing (error 13), no 16-bit number (6, 13), of no
// bytes (5) or no state of a box (380) ends the load there.
void LoadBlockSettings(program::Program& program);

// The same for the options about the program itself.
void LoadGeneralSettings(program::Program& program);

}  // namespace vantrel::settings

#endif  // VANTREL_SETTINGS_LOAD_H_
