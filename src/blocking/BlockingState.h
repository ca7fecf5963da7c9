// The switch: blocking is on while the engine's entry stands among the browser's helper objects.
// Start writes the entry and Stop deletes it; neither loads nor speaks to the engine. Writes that
// the user has no right to make fail silently, and the panel reads as started all the same.
#ifndef VANTREL_BLOCKING_BLOCKINGSTATE_H_
#define VANTREL_BLOCKING_BLOCKINGSTATE_H_

#include "program/Program.h"

namespace vantrel::blocking {

// The full Start: buttons, flags, the settings' save, the engine's entry, the toolbar rule, the
// counters' timer. Errors of the save pass through and leave the rest undone.
void mnustart_Click(program::Program& program);

// The full Stop: buttons, flags, the engine's entry, the settings' save. The toolbar's entry and
// the timer stay as they are.
void mnustop_Click(program::Program& program);

// Writes the engine's entry and applies the toolbar rule: no flags, no buttons.
void cmdADDBHO_Click(program::Program& program);

// Deletes the engine's entry.
void RemoveEngineEntry(program::Program& program);

// Writes the two values that make the toolbar a toolbar of the browser, or deletes the first.
void AddToolbarEntry(program::Program& program);
void RemoveToolbarEntry(program::Program& program);

}  // namespace vantrel::blocking

#endif  // VANTREL_BLOCKING_BLOCKINGSTATE_H_
