// The Ad Blocking panel: what is to be blocked, the master box over six of the boxes, the presets
// by kind of connection, and the two boxes that change Windows itself. Every click takes effect at
// once.
#ifndef VANTREL_BLOCKING_BLOCKPREFERENCESPANEL_H_
#define VANTREL_BLOCKING_BLOCKPREFERENCESPANEL_H_

#include "program/Program.h"

namespace vantrel::blocking {

// Saves the block settings unless they are being loaded; an error shows the information box.
void SaveBlock(program::Program& program);

// Ticks chkAll if all six boxes of its rule are ticked, else clears it.
void UpdateAllCheck(program::Program& program);

// Sets the Messenger service's start mode: automatic if on, else disabled. Fails silently.
void SetMessengerService(program::Program& program, bool on);

// Sets the two download policies of the own computer's zone: refused if on, else allowed and
// asked for. Fails silently.
void SetSpywareZone(program::Program& program, bool on);

// Brings the eight boxes into the master's state, one by one, each with its own handler.
void chkAll_Click(program::Program& program);

// Applies the preset that the list's text names, exactly; any other text does nothing.
void cmbinternet_Change(program::Program& program);

void Attach(program::Program& program, windows::FrmFrameBlockPreferences& form);

}  // namespace vantrel::blocking

#endif  // VANTREL_BLOCKING_BLOCKPREFERENCESPANEL_H_
