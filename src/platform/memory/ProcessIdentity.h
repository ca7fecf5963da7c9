// What distinguishes one process of the in-memory Windows from the others.
#ifndef VANTREL_PLATFORM_MEMORY_PROCESSIDENTITY_H_
#define VANTREL_PLATFORM_MEMORY_PROCESSIDENTITY_H_

#include <string>

#include "platform/memory/Desktop.h"

namespace vantrel::platform::memory {

struct ProcessIdentity {
  ProcessId id = 0;
  std::string folder;           // of the executable; a drive's root keeps its backslash
  std::string name;             // of the executable, without folder and extension
  std::string commandLineTail;  // behind the executable's path
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_PROCESSIDENTITY_H_
