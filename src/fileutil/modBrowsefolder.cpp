#include "fileutil/modBrowsefolder.h"

#include "fileutil/ItemListPath.h"

namespace vantrel::fileutil {

int BrowseCallbackProc(program::Program& program, platform::WindowHandle picker,
                       std::uint32_t message) {
  constexpr auto TextIsAPath = static_cast<std::uintptr_t>(-1);
  if (message == platform::BffmInitialized && !program.BrowseStartPath.empty()) {
    program.platform.desktop.SendTextMessageA(picker, platform::BffmSetSelectionA, TextIsAPath,
                                              program.BrowseStartPath);
  }
  return 0;
}

namespace {

std::string TakePath(platform::Shell& shell, platform::ItemList list) {
  std::string path = PathOfItemList(shell, list);
  shell.CoTaskMemFree(list);
  return path;
}

}  // namespace

std::string BrowseForFolder(program::Program& program, const std::string& startFolder,
                            platform::WindowHandle owner, const std::string& prompt) {
  platform::BrowseInfo info;
  info.Owner = owner;
  info.Prompt = prompt;
  info.Flags = platform::BifReturnOnlyFsDirs;
  info.Callback = [&program](platform::WindowHandle picker, std::uint32_t message, std::intptr_t) {
    return BrowseCallbackProc(program, picker, message);
  };
  program.BrowseStartPath = startFolder;
  platform::Shell& shell = program.platform.shell;
  const platform::ItemList chosen = shell.SHBrowseForFolderA(info);
  std::string path = chosen == 0 ? std::string() : TakePath(shell, chosen);
  program.toolkit.ThrowIfEnding();
  return path;
}

}  // namespace vantrel::fileutil
