// The user's colour scheme, changed for a while.
#ifndef VANTREL_TESTS_E2E_LOOK_SCHEME_H_
#define VANTREL_TESTS_E2E_LOOK_SCHEME_H_

#include <windows.h>

#include <array>

namespace vantrel::e2e {

// White becomes black and the like, until this ends.
class InvertedScheme {
 public:
  InvertedScheme();
  ~InvertedScheme();
  InvertedScheme(const InvertedScheme&) = delete;
  InvertedScheme& operator=(const InvertedScheme&) = delete;

 private:
  static constexpr int Count = 31;
  std::array<int, Count> indices_{};
  std::array<COLORREF, Count> before_{};
};

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_LOOK_SCHEME_H_
