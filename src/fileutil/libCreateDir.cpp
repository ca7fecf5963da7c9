#include "fileutil/libCreateDir.h"

namespace vantrel::fileutil {

bool MakeDirPath(program::Program& program, const std::string& path) {
  if (program.platform.folders.MakeSureDirectoryPathExists(path)) return true;
  program.MsgBox("Sorry Could not make the directory path contact the systems administrator");
  return false;
}

}  // namespace vantrel::fileutil
