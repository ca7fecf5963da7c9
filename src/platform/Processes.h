// The start of other programs.
#ifndef VANTREL_PLATFORM_PROCESSES_H_
#define VANTREL_PLATFORM_PROCESSES_H_

#include <cstdint>
#include <string>

namespace vantrel::platform {

inline constexpr int ShowNormal = 1;
inline constexpr int ShowMinimized = 2;

class Processes {
 public:
  virtual ~Processes() = default;

  // Starts a process with the command line and lets it go. `application` is the program's path
  // where the command line does not quote it, empty otherwise. A program that asks for elevation
  // is started through the shell. 0 or the system error code.
  virtual std::int32_t CreateProcessA(const std::string& application,
                                      const std::string& commandLine, int showCommand) = 0;
};

}  // namespace vantrel::platform

#endif  // VANTREL_PLATFORM_PROCESSES_H_
