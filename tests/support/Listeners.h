// What else listens to the cases of a test program.
#ifndef VANTREL_TESTS_SUPPORT_LISTENERS_H_
#define VANTREL_TESTS_SUPPORT_LISTENERS_H_

#include <gtest/gtest.h>

#include <vector>

namespace vantrel::test {

// Filled before main(), by initializers; GoogleTest owns the listeners afterwards. A failure that
// one adds at the end of a case is that case's.
std::vector<testing::TestEventListener*>& MoreListeners();

}  // namespace vantrel::test

#endif  // VANTREL_TESTS_SUPPORT_LISTENERS_H_
