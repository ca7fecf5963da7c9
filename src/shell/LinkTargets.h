// Which control opens which page and does nothing else: the help links of all windows and the links
// to the vendor's sites, one table. A control that does more opens its page in its own act.
#ifndef VANTREL_SHELL_LINKTARGETS_H_
#define VANTREL_SHELL_LINKTARGETS_H_

#include "program/Program.h"

namespace vantrel::shell {

// Binds the clicks of every control and menu entry of the table, on every window.
void AttachLinkTargets(program::Program& program);

}  // namespace vantrel::shell

#endif  // VANTREL_SHELL_LINKTARGETS_H_
