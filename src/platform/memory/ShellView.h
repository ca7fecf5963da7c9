// The shell's services as one process sees them, over the world's tray and record of documents.
#ifndef VANTREL_PLATFORM_MEMORY_SHELLVIEW_H_
#define VANTREL_PLATFORM_MEMORY_SHELLVIEW_H_

#include "platform/Shell.h"
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

 private:
  World& world_;
  ProcessId process_;
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_SHELLVIEW_H_
