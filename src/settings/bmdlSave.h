// Copies the states of the panels' controls into the settings tree. A save rewrites its whole key,
// value by value; the controls are the only copy in memory.
#ifndef VANTREL_SETTINGS_BMDLSAVE_H_
#define VANTREL_SETTINGS_BMDLSAVE_H_

#include "program/Program.h"

namespace vantrel::settings {

// Saves Block Settings: what is blocked, the notification and the log switch. Writes fail
// silently; error 5 if the key's marker has no bytes.
void SaveBlockSettings(program::Program& program);

// Saves Settings: the options about the program itself. The same errors.
void SaveGeneralSettings(program::Program& program);

// The same two unless settings are being loaded; an error shows the information box. Whether the
// operation ended without an error.
bool SaveBlockSettingsGuarded(program::Program& program);
bool SaveGeneralSettingsGuarded(program::Program& program);

// The guarded save of the notification's handlers.
void SaveNotificationGuarded(program::Program& program);

// Stores that the engine is to rest, whatever the state: a part of every close. Fails silently.
void SaveDisabled(program::Program& program);

}  // namespace vantrel::settings

#endif  // VANTREL_SETTINGS_BMDLSAVE_H_
