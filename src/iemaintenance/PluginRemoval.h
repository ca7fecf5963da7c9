// Removes the plug-ins whose rows are checked, each kind in its own way, from what the list holds.
#ifndef VANTREL_IEMAINTENANCE_PLUGINREMOVAL_H_
#define VANTREL_IEMAINTENANCE_PLUGINREMOVAL_H_

#include <string>

#include "program/Program.h"

namespace vantrel::iemaintenance {

// Asks about each checked row and removes it, refuses those whose displayed names say that the
// program needs them, and fills the list anew. A removal that fails is silent: its row comes back.
void cmddeleteBHO_Click(program::Program& program);

// Overwrites an existing file in blocks of 4096 bytes, the last one whole, first with letters and
// then with blanks, and deletes it. Errors are ignored.
void ShredFile(program::Program& program, const std::string& path);

}  // namespace vantrel::iemaintenance

#endif  // VANTREL_IEMAINTENANCE_PLUGINREMOVAL_H_
