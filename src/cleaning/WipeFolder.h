// Emptying folders. A link inside a folder is removed itself; what it points to is never listed,
// overwritten or deleted.
#ifndef VANTREL_CLEANING_WIPEFOLDER_H_
#define VANTREL_CLEANING_WIPEFOLDER_H_

#include <string>

#include "program/Program.h"

namespace vantrel::cleaning {

// Overwrites and deletes the files directly in the folder, whatever their attributes, and deletes
// its subfolders with KillFolderTree. The bar of the Clean panel moves with each; window messages
// run while it does. True if the folder exists and holds no file afterwards; false, and nothing
// done, for what is no cleaning target. Errors are ignored.
bool WipeFolder(program::Program& program, const std::string& path);

// Deletes a folder's ordinary files and subfolders, and the folder itself if nothing is left in
// it: nothing is overwritten, and hidden, system and read-only files stay. The bar of the Clean
// panel moves with each folder and begins anew at its end. Raises the error of a folder that
// cannot be listed.
void KillFolderTree(program::Program& program, const std::string& path);

}  // namespace vantrel::cleaning

#endif  // VANTREL_CLEANING_WIPEFOLDER_H_
