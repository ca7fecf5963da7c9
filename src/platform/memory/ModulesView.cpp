#include "platform/memory/ModulesView.h"

#include <algorithm>

#include "platform/memory/Misuse.h"
#include "text/Strings.h"

namespace vantrel::platform::memory {
namespace {

constexpr std::uint32_t ForEver = 0xFFFFFFFFU;

}  // namespace

ModulesView::~ModulesView() {
  for (const auto& [handle, module] : modules_) {
    world_.libraries.CountLoad(module.path, -static_cast<int>(module.times));
  }
}

ModuleHandle ModulesView::LoadLibraryA(const std::string& text) {
  const std::string path = text.c_str();
  if (!world_.libraries.Exists(path)) return 0;
  const auto loaded = std::find_if(modules_.begin(), modules_.end(), [&](const auto& module) {
    return text::EqualIgnoringCase(module.second.path, path);
  });
  world_.libraries.CountLoad(path, 1);
  if (loaded != modules_.end()) {
    ++loaded->second.times;
    return loaded->first;
  }
  modules_[nextModule_] = {path, 1};
  return std::exchange(nextModule_, nextModule_ + 0x10000);
}

EntryAddress ModulesView::GetProcAddress(ModuleHandle module, const std::string& name) {
  const auto found = modules_.find(module);
  if (found == modules_.end()) return 0;
  return world_.libraries.Find(found->second.path, name.c_str());
}

bool ModulesView::FreeLibrary(ModuleHandle module) {
  const auto found = modules_.find(module);
  if (found == modules_.end()) return false;
  world_.libraries.CountLoad(found->second.path, -1);
  if (--found->second.times == 0) modules_.erase(found);
  return true;
}

ThreadHandle ModulesView::CreateThread(std::uint32_t /*security*/, std::uint32_t /*stackSize*/,
                                       EntryAddress routine, std::uintptr_t /*parameter*/,
                                       std::uint32_t flags, std::uint32_t& identifier) {
  Require(flags == 0, "a thread that starts suspended is not modelled");
  const auto& thread = threads_[nextThread_] = world_.libraries.Start(process_, routine);
  identifier = thread->id;
  return std::exchange(nextThread_, nextThread_ + 4);
}

std::uint32_t ModulesView::WaitForSingleObject(ThreadHandle thread, std::uint32_t milliseconds) {
  const auto found = threads_.find(thread);
  if (found == threads_.end()) return WaitFailed;
  if (!found->second->runs) return WaitObject;
  Require(milliseconds != ForEver, "a wait for a hanging thread would never end");
  return WaitTimeout;
}

bool ModulesView::GetExitCodeThread(ThreadHandle thread, std::uint32_t& exitCode) {
  const auto found = threads_.find(thread);
  if (found == threads_.end()) return false;
  exitCode = found->second->exitCode;
  return true;
}

void ModulesView::ExitThread(std::uint32_t exitCode) {
  Require(static_cast<bool>(unwind_), "a process that may end its thread needs EndThread");
  ended_ = exitCode;
  world_.desktop.DestroyWindowsOf(process_);
  world_.clock.KillTimersOf(process_);
  unwind_();
  Misuse("EndThread came back");
}

bool ModulesView::CloseHandle(ThreadHandle thread) { return threads_.erase(thread) != 0; }

std::string ModulesView::PathOf(ModuleHandle module) const {
  const auto found = modules_.find(module);
  return found == modules_.end() ? std::string() : found->second.path;
}

}  // namespace vantrel::platform::memory
