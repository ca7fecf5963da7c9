// How a panel becomes a part of the main window.
#ifndef VANTREL_PROGRAM_PANELHOSTING_H_
#define VANTREL_PROGRAM_PANELHOSTING_H_

#include "program/Program.h"

namespace vantrel::program {

// Makes the panel a child of the main window: the first act of every panel's Load. Later panels
// lie above earlier ones.
void HostPanel(Program& program, forms::Form& panel);

}  // namespace vantrel::program

#endif  // VANTREL_PROGRAM_PANELHOSTING_H_
