// Acts of the program, run once for every call that they make of Windows, with that one call
// failing.
#ifndef VANTREL_TESTS_UNIT_SHELL_FAULTSWEEP_H_
#define VANTREL_TESTS_UNIT_SHELL_FAULTSWEEP_H_

#include <cstddef>
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

// A row of the table of operations in docs/reliability.md, which is held to what was swept once all
// sweeps have run: the calls that the operation makes, and how many runs had one of them fail.
void NoteSweep(const std::string& operation, std::size_t calls, std::size_t runs);

inline std::size_t RunsOf(const std::vector<std::string>& calls) {
  std::size_t runs = 0;
  for (const std::string& call : calls) runs += ErrorsOf(call).size();
  return runs;
}

// Runs the act once for each of its calls, failing with access denied, and once more as a missing
// value or key where somebody looks at the code. `prepare` brings a machine to the moment before.
template <class Prepare, class Act, class Expect>
void Sweep(const std::string& operation, Prepare prepare, Act act, Expect expect) {
  Machine clean;
  prepare(clean);
  const std::vector<std::string> calls = clean.CallsOf([&] { act(clean); });
  NoteSweep(operation, calls.size(), RunsOf(calls));
  for (std::size_t n = 1; n <= calls.size(); ++n) {
    for (const std::int32_t error : ErrorsOf(calls[n - 1])) {
      SCOPED_TRACE(operation + ", call " + std::to_string(n) + ", error " + std::to_string(error) +
                   ": " + calls[n - 1]);
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
