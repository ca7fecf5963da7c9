#include "fileutil/bmdlCookies.h"

#include "fileutil/ItemListPath.h"
#include "windows/frmMain.h"

namespace vantrel::fileutil {
namespace {

// The item list that the shell gives out is not freed: this is meant.
std::string SpecialFolder(platform::Shell& shell, platform::WindowHandle owner, int number) {
  platform::ItemList list = 0;
  if (shell.SHGetSpecialFolderLocation(owner, number, list) != 0) return {};
  return PathOfItemList(shell, list);
}

}  // namespace

std::string GetSpecialFolder(program::Program& program, int number) {
  return SpecialFolder(program.platform.shell, program.windows.frmMain->hWnd(), number);
}

std::string GetSpecialFolderSlash(program::Program& program, int number) {
  const std::string path = SpecialFolder(program.platform.shell, 0, number);
  return path.empty() ? path : path + '\\';
}

}  // namespace vantrel::fileutil
