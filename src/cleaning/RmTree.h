// The removal of a whole folder. A public operation of the main window that nothing calls.
#ifndef VANTREL_CLEANING_RMTREE_H_
#define VANTREL_CLEANING_RMTREE_H_

#include <string>

#include "program/Program.h"

namespace vantrel::cleaning {

// Deletes a folder's ordinary files, its subfolders and then itself; a link is removed itself. No
// effect on nothing. Traps no error: a locked or hidden file ends it with one.
void RmTree(program::Program& program, const std::string& path);

}  // namespace vantrel::cleaning

#endif  // VANTREL_CLEANING_RMTREE_H_
