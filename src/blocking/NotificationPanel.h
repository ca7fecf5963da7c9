// The Notification panel: how the engine reports a block. The panel only stores the choices, and
// plays the chosen sound as a test.
#ifndef VANTREL_BLOCKING_NOTIFICATIONPANEL_H_
#define VANTREL_BLOCKING_NOTIFICATIONPANEL_H_

#include "program/Program.h"

namespace vantrel::blocking {

// Ticking clears the five boxes, whose handlers save; clearing brings nothing back.
void chkNAll_Click(program::Program& program);

// Shows the list of sounds while the box is ticked, and saves.
void chkNS_Click(program::Program& program);

// Sets the four boxes to the recommended notifications; the sound stays.
void cmdDefaultNotify_Click(program::Program& program);

// Another sound was picked: saves, but not for one that cmbsound_Validate picks.
void cmbsound_Click(program::Program& program);

// Leaving the list of sounds: saves if its text is an entry or empty; else says so, picks
// "click" and keeps the focus, and saves nothing.
void cmbsound_Validate(program::Program& program, bool& keepFocus);

// Plays the chosen sound, whether sounds are on or not.
void Label35_Click(program::Program& program);

void Attach(program::Program& program, windows::FrmFrameNotification& form);

}  // namespace vantrel::blocking

#endif  // VANTREL_BLOCKING_NOTIFICATIONPANEL_H_
