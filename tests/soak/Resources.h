// What a process holds of the system, counted from outside.
#ifndef VANTREL_TESTS_SOAK_RESOURCES_H_
#define VANTREL_TESTS_SOAK_RESOURCES_H_

#include <windows.h>

#include <string>

namespace vantrel::e2e {

struct Resources {
  long Gdi = 0;
  // Under Wine of all processes of the session, which must be idle.
  long User = 0;
  long Kernel = 0;
  long long PrivateBytes = 0;
};

// Throws std::runtime_error where the system does not say.
Resources ResourcesOf(HANDLE process);

std::string Show(const Resources& resources);

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_SOAK_RESOURCES_H_
