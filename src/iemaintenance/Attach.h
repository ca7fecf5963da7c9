// Binds this component's behaviour to its two panels.
#ifndef VANTREL_IEMAINTENANCE_ATTACH_H_
#define VANTREL_IEMAINTENANCE_ATTACH_H_

#include "program/Program.h"

namespace vantrel::iemaintenance {

void AttachIEMaintenance(program::Program& program);

}  // namespace vantrel::iemaintenance

#endif  // VANTREL_IEMAINTENANCE_ATTACH_H_
