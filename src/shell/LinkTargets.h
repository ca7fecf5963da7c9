// Which control opens which page: the help links of all windows and the links to the vendor's
// sites, one table.
#ifndef VANTREL_SHELL_LINKTARGETS_H_
#define VANTREL_SHELL_LINKTARGETS_H_

#include <functional>
#include <string>

#include "launch/Targets.h"
#include "program/Program.h"

namespace vantrel::shell {

// Binds the clicks of every control and menu entry of the table, on every window.
void AttachLinkTargets(program::Program& program);

// Calls `visit` with the name ("FrmFrameMain.Label6") and the target of each row, in order.
void ForEachLinkTarget(
    const std::function<void(const std::string& name, const launch::Target& target)>& visit);

}  // namespace vantrel::shell

#endif  // VANTREL_SHELL_LINKTARGETS_H_
