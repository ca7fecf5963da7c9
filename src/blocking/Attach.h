// Binds the blocking control to its panels.
#ifndef VANTREL_BLOCKING_ATTACH_H_
#define VANTREL_BLOCKING_ATTACH_H_

#include "program/Program.h"

namespace vantrel::blocking {

// Binds the behaviour of the Welcome, Ad Blocking, Settings and Notification panels, whenever they
// are made.
void AttachBlocking(program::Program& program);

}  // namespace vantrel::blocking

#endif  // VANTREL_BLOCKING_ATTACH_H_
