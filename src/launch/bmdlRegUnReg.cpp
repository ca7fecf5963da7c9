#include "launch/bmdlRegUnReg.h"

#include "text/ErrorTrap.h"

namespace vantrel::launch {
namespace {

using platform::Modules;

constexpr std::uint32_t Timeout = 10000;  // milliseconds

struct Entry {
  const char* name;
  std::int32_t success;
};

constexpr Entry Registration{"DllRegisterServer", StatusRegistered};
constexpr Entry Unregistration{"DllUnregisterServer", StatusUnregistered};

// What a call has opened so far. Given back by hand: the way out of a time-out gives nothing back.
struct Held {
  platform::ModuleHandle module = 0;
  platform::ThreadHandle thread = 0;
};

// Ends this thread, that of the windows, and not the one that is stuck; this is meant.
std::int32_t GiveUp(Modules& modules, platform::ThreadHandle stuck) {
  std::uint32_t exitCode = 0;
  modules.GetExitCodeThread(stuck, exitCode);
  modules.ExitThread(exitCode);
  return StatusTooLong;
}

std::int32_t RunEntry(Modules& modules, const std::string& path, const Entry& entry, Held& held) {
  if (path.empty()) return StatusEmptyPath;
  held.module = modules.LoadLibraryA(path);
  if (held.module == 0) return StatusNotLoaded;
  const platform::EntryAddress routine = modules.GetProcAddress(held.module, entry.name);
  if (routine == 0) return StatusNoEntry;
  constexpr std::uint32_t noSecurity = 0;
  std::uint32_t identifier = 0;
  held.thread = modules.CreateThread(noSecurity, 0, routine, 0, 0, identifier);
  if (held.thread == 0) return StatusNoThread;
  const std::uint32_t waited = modules.WaitForSingleObject(held.thread, Timeout);
  return waited == platform::WaitObject ? entry.success : GiveUp(modules, held.thread);
}

std::int32_t CallEntry(Modules& modules, const std::string& path, const Entry& entry) {
  Held held;
  std::int32_t status = StatusNoThread;
  text::ErrorTrap trap;
  trap([&] { status = RunEntry(modules, path, entry, held); });
  if (trap.Last()) status = static_cast<std::int32_t>(trap.Last()->Number());
  if (held.thread != 0) modules.CloseHandle(held.thread);
  if (held.module != 0) modules.FreeLibrary(held.module);
  return status;
}

}  // namespace

std::int32_t RegisterDll(Modules& modules, const std::string& path) {
  return CallEntry(modules, path, Registration);
}

std::int32_t UnregisterDll(Modules& modules, const std::string& path) {
  return CallEntry(modules, path, Unregistration);
}

}  // namespace vantrel::launch
