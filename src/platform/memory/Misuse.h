// How the in-memory Windows answers a test that uses it wrongly: it says what is wrong and stops
// the program, in every build.
#ifndef VANTREL_PLATFORM_MEMORY_MISUSE_H_
#define VANTREL_PLATFORM_MEMORY_MISUSE_H_

#include <string>

namespace vantrel::platform::memory {

[[noreturn]] void Misuse(const std::string& what);

inline void Require(bool condition, const char* what) {
  if (!condition) Misuse(what);
}

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_MISUSE_H_
