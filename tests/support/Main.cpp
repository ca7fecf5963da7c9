// main() of every test program: GoogleTest under a watchdog, with a row for each case that ended.
#include <gtest/gtest.h>

#include "support/CaseRows.h"
#include "support/Listeners.h"
#include "support/Watchdog.h"

namespace vantrel::test {

std::vector<testing::TestEventListener*>& MoreListeners() {
  static std::vector<testing::TestEventListener*> listeners;
  return listeners;
}

}  // namespace vantrel::test

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  testing::TestEventListeners& listeners = testing::UnitTest::GetInstance()->listeners();
  // The end of a case reaches the last listener first: the row comes after all that can fail it.
  listeners.Append(new vantrel::test::CaseRows(argv[0]));
  listeners.Append(new vantrel::test::Watchdog);
  for (testing::TestEventListener* listener : vantrel::test::MoreListeners()) {
    listeners.Append(listener);
  }
  return RUN_ALL_TESTS();
}
