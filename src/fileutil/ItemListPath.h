// The path of a place in the shell.
#ifndef VANTREL_FILEUTIL_ITEMLISTPATH_H_
#define VANTREL_FILEUTIL_ITEMLISTPATH_H_

#include <string>

#include "platform/Shell.h"

namespace vantrel::fileutil {

// The path up to its NUL; empty for a place that is not in the file system.
std::string PathOfItemList(platform::Shell& shell, platform::ItemList list);

}  // namespace vantrel::fileutil

#endif  // VANTREL_FILEUTIL_ITEMLISTPATH_H_
