// Waiting for a condition, never for a fixed time: every wait polls and has a bound.
#ifndef VANTREL_TESTS_E2E_SUPPORT_WAIT_H_
#define VANTREL_TESTS_E2E_SUPPORT_WAIT_H_

#include <windows.h>

#include <functional>

namespace vantrel::e2e {

inline constexpr DWORD DefaultBound = 15000;

// Polls until the condition holds; false if it did not within `bound` milliseconds.
inline bool WaitFor(const std::function<bool()>& condition, DWORD bound = DefaultBound) {
  const DWORD start = GetTickCount();
  while (!condition()) {
    if (GetTickCount() - start >= bound) return false;
    Sleep(10);
  }
  return true;
}

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_SUPPORT_WAIT_H_
