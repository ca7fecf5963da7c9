#include "platform/memory/Misuse.h"

#include <cstdio>
#include <cstdlib>

namespace vantrel::platform::memory {

void Misuse(const std::string& what) {
  std::fprintf(stderr, "In-memory Windows misused: %s\n", what.c_str());
  std::fflush(stderr);
  std::abort();
}

}  // namespace vantrel::platform::memory
