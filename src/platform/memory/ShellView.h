// The shell's services as one process sees them, over the world's tray and record of documents.
#ifndef VANTREL_PLATFORM_MEMORY_SHELLVIEW_H_
#define VANTREL_PLATFORM_MEMORY_SHELLVIEW_H_

#include <algorithm>
#include <array>

#include "platform/Shell.h"
#include "platform/memory/Misuse.h"
#include "platform/memory/World.h"

namespace vantrel::platform::memory {

class ShellView : public Shell {
 public:
  ShellView(World& world, ProcessId process) : world_(world), process_(process) {}

  bool Shell_NotifyIconA(std::uint32_t message, const NotifyIconData& data) override {
    return world_.tray.Notify(message, data);
  }

  std::intptr_t ShellExecuteA(WindowHandle owner, const std::string& verb, const std::string& file,
                              const std::string& parameters, const std::string& directory,
                              int showCommand) override {
    world_.openedDocuments.push_back(
        {process_, owner, verb, file, parameters, directory, showCommand});
    return 42;
  }

  std::int32_t SHGetSpecialFolderLocation(WindowHandle, int folder, ItemList& list) override {
    constexpr auto InvalidArgument = static_cast<std::int32_t>(0x80070057U);
    const auto found = world_.specialFolders.find(folder);
    if (found == world_.specialFolders.end()) return InvalidArgument;
    list = MakeList(found->second);
    return ErrorSuccess;
  }

  bool SHGetPathFromIDListA(ItemList list, std::span<char> buffer) override {
    const auto found = world_.itemLists.find(list);
    if (found == world_.itemLists.end() || found->second.size() >= buffer.size()) return false;
    std::fill(buffer.begin(), buffer.end(), '\0');
    std::copy(found->second.begin(), found->second.end(), buffer.begin());
    return true;
  }

  ItemList SHBrowseForFolderA(const BrowseInfo& info) override {
    FolderPicker picker{info, {}};
    const WindowHandle window = world_.desktop.MakeWindow(process_, 0, "Browse For Folder");
    world_.desktop.SetHandler(window, [&picker](const Message& message) {
      const bool isPath = message.wParam != 0;
      if (message.message == BffmSetSelectionA && isPath && message.text) {
        picker.Selected = *message.text;
      }
      return true;
    });
    info.Callback(window, BffmInitialized, info.Parameter);
    if (!world_.pickFolder) Misuse("nobody chooses in the folder picker");
    const std::string chosen = world_.pickFolder(picker);
    world_.desktop.DestroyWindow(window);
    return chosen.empty() ? 0 : MakeList(chosen);
  }

  void CoTaskMemFree(ItemList list) override { world_.itemLists.erase(list); }

  std::int32_t SHEmptyRecycleBinA(WindowHandle, const std::string&, std::uint32_t) override {
    world_.recycleBin.clear();
    return ErrorSuccess;
  }
  void SHUpdateRecycleBinIcon() override {}

 private:
  ItemList MakeList(const std::string& path) {
    world_.itemLists[world_.nextItemList] = path;
    return world_.nextItemList++;
  }

  World& world_;
  ProcessId process_;
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_SHELLVIEW_H_
