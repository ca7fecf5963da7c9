// The event that the library companion-hanging.dll waits for when it is called.
#ifndef VANTREL_TESTS_E2E_SUPPORT_HANGINGLIBRARY_H_
#define VANTREL_TESTS_E2E_SUPPORT_HANGINGLIBRARY_H_

#include <windows.h>

// After windows.h.
#include <gtest/gtest.h>

#include "support/Running.h"
#include "support/Wait.h"

namespace vantrel::e2e {

// Make one before the program that calls the library.
class HangingLibrary {
 public:
  HangingLibrary() : go_(CreateEventA(nullptr, TRUE, FALSE, "VantrelHangingCompanion")) {}
  ~HangingLibrary() { CloseHandle(go_); }
  HangingLibrary(const HangingLibrary&) = delete;
  HangingLibrary& operator=(const HangingLibrary&) = delete;

  // The windows go when the patience is over, the process once the library lets go of it.
  void ExpectToTakeTheWindows(Running& program) const {
    // Ten seconds of patience, and as many for a slow machine.
    EXPECT_TRUE(WaitFor([&] { return program.Find("frmMain") == nullptr; }, 20000));
    EXPECT_TRUE(program.Alive());
    EXPECT_EQ(program.BoxCount(), 0U);
    SetEvent(go_);
    EXPECT_TRUE(program.WaitForExit());
  }

 private:
  HANDLE go_;
};

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_SUPPORT_HANGINGLIBRARY_H_
