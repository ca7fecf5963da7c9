// Making the folders of a path.
#ifndef VANTREL_FILEUTIL_LIBCREATEDIR_H_
#define VANTREL_FILEUTIL_LIBCREATEDIR_H_

#include <string>

#include "program/Program.h"

namespace vantrel::fileutil {

// Makes the folders of the path; what follows the last backslash counts as a file's name and is
// not made, which callers rely on. A path that cannot be made shows a box and gives false.
bool MakeDirPath(program::Program& program, const std::string& path);

}  // namespace vantrel::fileutil

#endif  // VANTREL_FILEUTIL_LIBCREATEDIR_H_
