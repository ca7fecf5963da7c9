#include "platform/Modules.h"

#include <windows.h>

#include "platform/win32/Adapters.h"

namespace vantrel::platform::win32 {
namespace {

class ModulesAdapter : public Modules {
 public:
  ModuleHandle LoadLibraryA(const std::string& path) override {
    return reinterpret_cast<ModuleHandle>(::LoadLibraryA(path.c_str()));
  }

  EntryAddress GetProcAddress(ModuleHandle module, const std::string& name) override {
    return reinterpret_cast<EntryAddress>(
        ::GetProcAddress(reinterpret_cast<HMODULE>(module), name.c_str()));
  }

  bool FreeLibrary(ModuleHandle module) override {
    return ::FreeLibrary(reinterpret_cast<HMODULE>(module)) != FALSE;
  }

  ThreadHandle CreateThread(std::uint32_t security, std::uint32_t stackSize, EntryAddress routine,
                            std::uintptr_t parameter, std::uint32_t flags,
                            std::uint32_t& identifier) override {
    // The system reads a whole record behind the number.
    SECURITY_ATTRIBUTES record{};
    record.nLength = security;
    DWORD made = 0;
    const HANDLE thread =
        ::CreateThread(&record, stackSize, reinterpret_cast<LPTHREAD_START_ROUTINE>(routine),
                       reinterpret_cast<void*>(parameter), flags, &made);
    if (thread != nullptr) identifier = made;
    return reinterpret_cast<ThreadHandle>(thread);
  }

  std::uint32_t WaitForSingleObject(ThreadHandle thread, std::uint32_t milliseconds) override {
    return ::WaitForSingleObject(reinterpret_cast<HANDLE>(thread), milliseconds);
  }

  bool GetExitCodeThread(ThreadHandle thread, std::uint32_t& exitCode) override {
    DWORD code = 0;
    if (!::GetExitCodeThread(reinterpret_cast<HANDLE>(thread), &code)) return false;
    exitCode = code;
    return true;
  }

  [[noreturn]] void ExitThread(std::uint32_t exitCode) override { ::ExitThread(exitCode); }

  bool CloseHandle(ThreadHandle thread) override {
    return ::CloseHandle(reinterpret_cast<HANDLE>(thread)) != FALSE;
  }
};

}  // namespace

std::unique_ptr<Modules> MakeModules() { return std::make_unique<ModulesAdapter>(); }

}  // namespace vantrel::platform::win32
