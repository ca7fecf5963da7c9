// How long a soak runs and what it does by chance.
//
// VANTREL_SOAK_PERCENT  how much of the long run, in per cent; not set: the short run
// VANTREL_SOAK_SEED     the seed of the random numbers, 1 if not set; every failure names it
#ifndef VANTREL_TESTS_SOAK_SOAK_H_
#define VANTREL_TESTS_SOAK_SOAK_H_

#include <random>

#include "support/ProgramTest.h"

namespace vantrel::e2e {

struct Rounds {
  int Short;
  int Long;
};
// The rounds of this run, at least those of the short one.
int Count(const Rounds& rounds);

unsigned Seed();

class SoakTest : public ProgramTest {
 protected:
  // From 0 to below the limit.
  int Random(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(generator_); }
  template <typename Rows>
  const auto& OneOf(const Rows& rows) {
    return rows[static_cast<std::size_t>(Random(static_cast<int>(std::size(rows))))];
  }
  std::mt19937& Generator() { return generator_; }

 private:
  std::mt19937 generator_{Seed()};
  testing::ScopedTrace seed_{__FILE__, __LINE__,
                             "with VANTREL_SOAK_SEED=" + std::to_string(Seed())};
};

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_SOAK_SOAK_H_
