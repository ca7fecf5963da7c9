// Acts of the program, run once for every call that they make of Windows, with that one call
// failing.
#ifndef VANTREL_TESTS_UNIT_SHELL_FAULTSWEEP_H_
#define VANTREL_TESTS_UNIT_SHELL_FAULTSWEEP_H_

#include <string>
#include <vector>

#include "unit/shell/Machine.h"

namespace vantrel::test {

inline std::vector<std::int32_t> ErrorsOf(const std::string& call) {
  std::vector<std::int32_t> errors = {platform::ErrorAccessDenied};
  const bool looksAtCode =
      call.starts_with("RegQueryValueExA ") || call.starts_with("RegOpenKeyExA ");
  if (looksAtCode) errors.push_back(platform::ErrorFileNotFound);
  return errors;
}

// Runs the act once for each of its calls, failing with access denied, and once more as a missing
// value or key where somebody looks at the code. `prepare` brings a machine to the moment before;
// the act makes more than `atLeast` calls.
template <class Prepare, class Act, class Expect>
void Sweep(Prepare prepare, Act act, Expect expect, std::size_t atLeast = 50) {
  Machine clean;
  prepare(clean);
  const std::vector<std::string> calls = clean.CallsOf([&] { act(clean); });
  EXPECT_GT(calls.size(), atLeast);
  for (std::size_t n = 1; n <= calls.size(); ++n) {
    for (const std::int32_t error : ErrorsOf(calls[n - 1])) {
      SCOPED_TRACE("call " + std::to_string(n) + ", error " + std::to_string(error) + ": " +
                   calls[n - 1]);
      Machine machine;
      prepare(machine);
      machine.Fail(n, error, [&] { act(machine); });
      machine.ExpectKeysClosed();
      expect(machine);
      if (testing::Test::HasFailure()) return;
    }
  }
}

}  // namespace vantrel::test

#endif  // VANTREL_TESTS_UNIT_SHELL_FAULTSWEEP_H_
