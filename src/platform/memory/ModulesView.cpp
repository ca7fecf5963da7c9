#include "platform/memory/ModulesView.h"

#include <algorithm>

#include "platform/memory/Fold.h"
#include "platform/memory/Misuse.h"

namespace vantrel::platform::memory {
namespace {

constexpr std::uint32_t ForEver = 0xFFFFFFFFU;

}  // namespace

ModulesView::~ModulesView() {
  for (const auto& [handle, module] : modules_) {
    world_.libraries.CountLoad(module.path, -static_cast<int>(module.times));
  }
}

ModuleHandle ModulesView::LoadLibraryA(const std::string& path) {
  return gate_.Run(
      "LoadLibraryA", Quoted(path), [&] { return Load(path.c_str()); },
      [](std::int32_t) { return ModuleHandle{0}; });
}

EntryAddress ModulesView::GetProcAddress(ModuleHandle module, const std::string& name) {
  return gate_.Run(
      "GetProcAddress", Describe(module) + ' ' + Quoted(name),
      [&] {
        const auto found = modules_.find(module);
        return found == modules_.end() ? EntryAddress{0}
                                       : world_.libraries.Find(found->second.path, name.c_str());
      },
      [](std::int32_t) { return EntryAddress{0}; });
}

bool ModulesView::FreeLibrary(ModuleHandle module) {
  return gate_.Run(
      "FreeLibrary", Describe(module), [&] { return Free(module); },
      [](std::int32_t) { return false; });
}

ThreadHandle ModulesView::CreateThread(std::uint32_t security, std::uint32_t stackSize,
                                       EntryAddress routine, std::uintptr_t parameter,
                                       std::uint32_t flags, std::uint32_t& identifier) {
  Require(flags == 0, "a thread that starts suspended is not modelled");
  const std::string arguments = std::to_string(security) + ' ' + std::to_string(stackSize) + ' ' +
                                Quoted(world_.libraries.NameOf(routine)) + ' ' +
                                std::to_string(parameter) + ' ' + std::to_string(flags);
  return gate_.Run(
      "CreateThread", arguments,
      [&] {
        const auto& thread = threads_[nextThread_] = world_.libraries.Start(process_, routine);
        identifier = thread->id;
        return std::exchange(nextThread_, nextThread_ + 4);
      },
      [](std::int32_t) { return ThreadHandle{0}; });
}

std::uint32_t ModulesView::WaitForSingleObject(ThreadHandle thread, std::uint32_t milliseconds) {
  return gate_.Run(
      "WaitForSingleObject", Hex(thread) + ' ' + std::to_string(milliseconds),
      [&] { return Wait(thread, milliseconds); }, [](std::int32_t) { return WaitFailed; });
}

bool ModulesView::GetExitCodeThread(ThreadHandle thread, std::uint32_t& exitCode) {
  return gate_.Run(
      "GetExitCodeThread", Hex(thread),
      [&] {
        const auto found = threads_.find(thread);
        if (found == threads_.end()) return false;
        exitCode = found->second->exitCode;
        return true;
      },
      [](std::int32_t) { return false; });
}

void ModulesView::ExitThread(std::uint32_t exitCode) {
  // It cannot fail.
  gate_.RunVoid("ExitThread", std::to_string(exitCode), [] {});
  Require(static_cast<bool>(unwind_), "a process that may end its thread needs EndThread");
  ended_ = exitCode;
  world_.desktop.DestroyWindowsOf(process_);
  world_.clock.KillTimersOf(process_);
  unwind_();
  Misuse("EndThread came back");
}

bool ModulesView::CloseHandle(ThreadHandle thread) {
  return gate_.Run(
      "CloseHandle", Hex(thread), [&] { return threads_.erase(thread) != 0; },
      [](std::int32_t) { return false; });
}

ModuleHandle ModulesView::Load(const std::string& path) {
  if (!world_.libraries.Exists(path)) return 0;
  const auto loaded = std::find_if(modules_.begin(), modules_.end(), [&](const auto& module) {
    return SameName(module.second.path, path);
  });
  world_.libraries.CountLoad(path, 1);
  if (loaded != modules_.end()) {
    ++loaded->second.times;
    return loaded->first;
  }
  modules_[nextModule_] = {path, 1};
  return std::exchange(nextModule_, nextModule_ + 0x10000);
}

bool ModulesView::Free(ModuleHandle module) {
  const auto found = modules_.find(module);
  if (found == modules_.end()) return false;
  world_.libraries.CountLoad(found->second.path, -1);
  if (--found->second.times == 0) modules_.erase(found);
  return true;
}

std::uint32_t ModulesView::Wait(ThreadHandle thread, std::uint32_t milliseconds) const {
  const auto found = threads_.find(thread);
  if (found == threads_.end()) return WaitFailed;
  if (!found->second->runs) return WaitObject;
  Require(milliseconds != ForEver, "a wait for a hanging thread would never end");
  return WaitTimeout;
}

std::string ModulesView::Describe(ModuleHandle module) const {
  const auto found = modules_.find(module);
  return found == modules_.end() ? Hex(module) : Quoted(found->second.path);
}

}  // namespace vantrel::platform::memory
