// The folder picker.
#ifndef VANTREL_FILEUTIL_MODBROWSEFOLDER_H_
#define VANTREL_FILEUTIL_MODBROWSEFOLDER_H_

#include <string>

#include "program/Program.h"

namespace vantrel::fileutil {

// Lets the user choose a folder of the file system and returns its path, the empty text for a
// cancel. The picker opens with the start folder selected, or at its own default if that is empty.
// Messages are handled meanwhile; throws EndProgram if one of them ended the program.
std::string BrowseForFolder(program::Program& program, const std::string& startFolder,
                            platform::WindowHandle owner, const std::string& prompt);

// What the picker calls: at its initialization it is sent the folder to select. Returns 0.
int BrowseCallbackProc(program::Program& program, platform::WindowHandle picker,
                       std::uint32_t message);

}  // namespace vantrel::fileutil

#endif  // VANTREL_FILEUTIL_MODBROWSEFOLDER_H_
