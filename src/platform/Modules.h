// Libraries, and the threads that run an entry of theirs: how a library is made to register itself.
// Why a call failed is not given; nobody asks.
#ifndef VANTREL_PLATFORM_MODULES_H_
#define VANTREL_PLATFORM_MODULES_H_

#include <cstdint>
#include <string>

namespace vantrel::platform {

using ModuleHandle = std::uintptr_t;  // a loaded library; 0 is none
using EntryAddress = std::uintptr_t;  // a routine in a library; 0 is none
using ThreadHandle = std::uintptr_t;  // a thread; 0 is none

// What a wait comes to.
inline constexpr std::uint32_t WaitObject = 0;
inline constexpr std::uint32_t WaitTimeout = 258;
inline constexpr std::uint32_t WaitFailed = 0xFFFFFFFFU;

// The exit code of a thread that still runs.
inline constexpr std::uint32_t StillActive = 259;

class Modules {
 public:
  virtual ~Modules() = default;

  // Loads the library at a full path; it stays until freed as often as it was loaded. 0 if the
  // file is missing or no library.
  virtual ModuleHandle LoadLibraryA(const std::string& path) = 0;

  // The library's entry of that name, upper and lower case distinguished; 0 if it has none or the
  // handle is none.
  virtual EntryAddress GetProcAddress(ModuleHandle module, const std::string& name) = 0;

  // False if the handle is none.
  virtual bool FreeLibrary(ModuleHandle module) = 0;

  // Starts a thread that runs the routine; what that returns is the thread's exit code. `security`
  // is the length field of a security record that holds nothing else. 0 if there can be no thread;
  // otherwise the handle is the caller's to close, and `identifier` is set.
  virtual ThreadHandle CreateThread(std::uint32_t security, std::uint32_t stackSize,
                                    EntryAddress routine, std::uintptr_t parameter,
                                    std::uint32_t flags, std::uint32_t& identifier) = 0;

  // Blocks the caller, who handles no messages meanwhile, until the thread has ended or the time
  // is up. WaitObject, WaitTimeout, or WaitFailed if the handle is none.
  virtual std::uint32_t WaitForSingleObject(ThreadHandle thread, std::uint32_t milliseconds) = 0;

  // Sets the exit code, StillActive while the thread runs. False, and the code untouched, if the
  // handle is none.
  virtual bool GetExitCodeThread(ThreadHandle thread, std::uint32_t& exitCode) = 0;

  // Ends the calling thread, whose windows go with it; the process lives on while another thread
  // of it runs. Never returns, and nothing on the caller's stack is cleaned up.
  [[noreturn]] virtual void ExitThread(std::uint32_t exitCode) = 0;

  // Closes a thread's handle; the thread runs on. False if the handle is none.
  virtual bool CloseHandle(ThreadHandle thread) = 0;
};

}  // namespace vantrel::platform

#endif  // VANTREL_PLATFORM_MODULES_H_
