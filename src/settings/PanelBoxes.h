// What the rows of the settings make of a panel's boxes: their plain clicks, and their Reset.
#ifndef VANTREL_SETTINGS_PANELBOXES_H_
#define VANTREL_SETTINGS_PANELBOXES_H_

#include "program/Program.h"

namespace vantrel::settings {

// Binds the click of each of the panel's setting boxes that has no handler of its own by now: it
// saves the key of the box's row, unless settings are being loaded; an error shows the information
// box. `form` is the panel of the slot, in the middle of its making.
void SaveOnClick(program::Program& program, const program::FormSlot& panel, forms::Form& form);

// Gives the panel's setting boxes the states of its Reset or Default button, one by one, each with
// its own handler: those of Block Settings in the order of the rows, then those of Settings from
// the last row to the first, as the two buttons are meant to do it.
void ResetBoxes(program::Program& program, const program::FormSlot& panel);

}  // namespace vantrel::settings

#endif  // VANTREL_SETTINGS_PANELBOXES_H_
