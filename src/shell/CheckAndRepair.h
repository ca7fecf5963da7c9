// The repair behind the link "Check and Repair": registers those of the engine's two libraries that
// Windows no longer knows.
#ifndef VANTREL_SHELL_CHECKANDREPAIR_H_
#define VANTREL_SHELL_CHECKANDREPAIR_H_

#include "program/Program.h"

namespace vantrel::shell {

// Reads what the libraries' registration leaves behind, registers each library whose text is empty,
// and says "Repaired Successfully!", whatever came of it. Only emptiness counts: where the text
// leads is not looked at, nor is the outcome of a registration.
void CheckAndRepair(program::Program& program);

}  // namespace vantrel::shell

#endif  // VANTREL_SHELL_CHECKANDREPAIR_H_
