// The composition of the program: every window's behaviour bound to its design.
#ifndef VANTREL_SHELL_ATTACH_H_
#define VANTREL_SHELL_ATTACH_H_

#include "program/Program.h"

namespace vantrel::shell {

// Binds all components' behaviour to the program's windows, before the first window is touched.
void AttachProgram(program::Program& program);

}  // namespace vantrel::shell

#endif  // VANTREL_SHELL_ATTACH_H_
