// The registration of a library as a COM server, and its undoing: the library's own entry is run on
// a thread of its own, the only other thread that the program ever has, and given ten seconds.
#ifndef VANTREL_LAUNCH_BMDLREGUNREG_H_
#define VANTREL_LAUNCH_BMDLREGUNREG_H_

#include <cstdint>
#include <string>

#include "platform/Modules.h"

namespace vantrel::launch {

// What a call comes to; any other status is the number of a failure that was caught inside it.
inline constexpr std::int32_t StatusNoThread = 0;  // nothing ran
inline constexpr std::int32_t StatusNotLoaded = 1;
inline constexpr std::int32_t StatusNoEntry = 2;
inline constexpr std::int32_t StatusTooLong = 3;  // never given: the caller is gone by then
inline constexpr std::int32_t StatusRegistered = 4;
inline constexpr std::int32_t StatusUnregistered = 5;
inline constexpr std::int32_t StatusEmptyPath = 7;

// Runs "DllRegisterServer" of the library to its end, without handling messages meanwhile, and
// gives the status. What the entry itself gives back is not looked at: a library that refuses
// counts as registered. A library that takes more than 10 seconds ends the calling thread, and
// with it the program's windows; this call then never returns.
std::int32_t RegisterDll(platform::Modules& modules, const std::string& path);

// The same with "DllUnregisterServer".
std::int32_t UnregisterDll(platform::Modules& modules, const std::string& path);

}  // namespace vantrel::launch

#endif  // VANTREL_LAUNCH_BMDLREGUNREG_H_
