// Asks inside the program's process what cannot be seen from outside.
#ifndef VANTREL_TESTS_E2E_LOOK_INSIDE_H_
#define VANTREL_TESTS_E2E_LOOK_INSIDE_H_

#include <windows.h>

#include "inside/Protocol.h"

namespace vantrel::e2e {

class Inside {
 public:
  // Loads the library there. Throws if it does not answer within a bound.
  explicit Inside(HANDLE process);
  ~Inside();
  Inside(const Inside&) = delete;
  Inside& operator=(const Inside&) = delete;

  LOGFONTA FontOf(HWND control) const;
  // The process's user chooses the scheme, and every window is notified. Whoever chooses one goes
  // back to Scheme::Own: the next program would see the colours, too.
  void Choose(inside::Scheme scheme) const;

 private:
  HANDLE mapping_;
  HWND window_ = nullptr;
};

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_LOOK_INSIDE_H_
