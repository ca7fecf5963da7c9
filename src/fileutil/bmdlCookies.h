// The paths of the shell's special folders.
#ifndef VANTREL_FILEUTIL_BMDLCOOKIES_H_
#define VANTREL_FILEUTIL_BMDLCOOKIES_H_

#include <string>

#include "program/Program.h"

namespace vantrel::fileutil {

// The special folders in use, by the shell's numbers.
inline constexpr int CSIDL_RECENT = 8;
inline constexpr int CSIDL_APPDATA = 26;
inline constexpr int CSIDL_INTERNET_CACHE = 32;
inline constexpr int CSIDL_COOKIES = 33;
inline constexpr int CSIDL_HISTORY = 34;

// The folder's path without a backslash at its end; empty if the shell has no such folder. The
// shell is asked in the name of the main window.
std::string GetSpecialFolder(program::Program& program, int number);

// The same with one backslash at the end, asked in nobody's name.
std::string GetSpecialFolderSlash(program::Program& program, int number);

}  // namespace vantrel::fileutil

#endif  // VANTREL_FILEUTIL_BMDLCOOKIES_H_
