// Binds this component's behaviour to its panel.
#ifndef VANTREL_ALLOWLIST_ATTACH_H_
#define VANTREL_ALLOWLIST_ATTACH_H_

#include "program/Program.h"

namespace vantrel::allowlist {

void AttachAllowList(program::Program& program);

}  // namespace vantrel::allowlist

#endif  // VANTREL_ALLOWLIST_ATTACH_H_
