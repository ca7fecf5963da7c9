// Libraries and threads as one process sees them: the system's calls, over the world's libraries,
// with this process's own handles.
#ifndef VANTREL_PLATFORM_MEMORY_MODULESVIEW_H_
#define VANTREL_PLATFORM_MEMORY_MODULESVIEW_H_

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "platform/Modules.h"
#include "platform/memory/World.h"

namespace vantrel::platform::memory {

class ModulesView : public Modules {
 public:
  // `unwind` leaves the thread that ExitThread ends, by throwing.
  ModulesView(World& world, ProcessId process, const std::function<void()>& unwind)
      : world_(world), process_(process), unwind_(unwind) {}
  // What the process has loaded goes with it.
  ~ModulesView() override;

  std::size_t OpenThreads() const { return threads_.size(); }
  // The library's path as first given; empty for a handle that is none.
  std::string PathOf(ModuleHandle module) const;
  const std::optional<std::uint32_t>& ThreadExitCode() const { return ended_; }

  ModuleHandle LoadLibraryA(const std::string& path) override;
  EntryAddress GetProcAddress(ModuleHandle module, const std::string& name) override;
  bool FreeLibrary(ModuleHandle module) override;
  ThreadHandle CreateThread(std::uint32_t security, std::uint32_t stackSize, EntryAddress routine,
                            std::uintptr_t parameter, std::uint32_t flags,
                            std::uint32_t& identifier) override;
  std::uint32_t WaitForSingleObject(ThreadHandle thread, std::uint32_t milliseconds) override;
  bool GetExitCodeThread(ThreadHandle thread, std::uint32_t& exitCode) override;
  [[noreturn]] void ExitThread(std::uint32_t exitCode) override;
  bool CloseHandle(ThreadHandle thread) override;

 private:
  struct Loaded {
    std::string path;  // as first given
    std::size_t times = 0;
  };

  World& world_;
  ProcessId process_;
  const std::function<void()>& unwind_;
  std::map<ModuleHandle, Loaded> modules_;
  std::map<ThreadHandle, std::shared_ptr<Thread>> threads_;
  ModuleHandle nextModule_ = 0x10000000;
  ThreadHandle nextThread_ = 0x40;
  std::optional<std::uint32_t> ended_;
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_MODULESVIEW_H_
