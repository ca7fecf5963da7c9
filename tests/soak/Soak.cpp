#include "Soak.h"

#include <algorithm>
#include <cstdlib>

namespace vantrel::e2e {
namespace {

int NumberIn(const char* variable, int otherwise) {
  const char* set = std::getenv(variable);
  return set == nullptr ? otherwise : std::atoi(set);
}

}  // namespace

int Count(const Rounds& rounds) {
  const int percent = NumberIn("VANTREL_SOAK_PERCENT", 0);
  return std::max(rounds.Short, rounds.Long * percent / 100);
}

unsigned Seed() { return static_cast<unsigned>(NumberIn("VANTREL_SOAK_SEED", 1)); }

}  // namespace vantrel::e2e
