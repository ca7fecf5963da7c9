// Asks inside the program's process what cannot be seen from outside.
#ifndef VANTREL_TESTS_E2E_LOOK_INSIDE_H_
#define VANTREL_TESTS_E2E_LOOK_INSIDE_H_

#include <windows.h>

namespace vantrel::e2e {

class Inside {
 public:
  // Loads the library there. Throws if it does not answer within a bound.
  explicit Inside(HANDLE process);
  ~Inside();
  Inside(const Inside&) = delete;
  Inside& operator=(const Inside&) = delete;

  LOGFONTA FontOf(HWND control) const;
  // White becomes black and the like, and every window is notified; the second time it is undone.
  void InvertColors() const;

 private:
  HANDLE mapping_;
  HWND window_ = nullptr;
};

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_LOOK_INSIDE_H_
