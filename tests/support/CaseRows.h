// Leaves a row for each case in the folder VANTREL_TEST_ROWS, in a file named after the program, as
// soon as the case is over: what has run counts, whatever becomes of the program afterwards.
//
//   begun <tab> Suite.Case
//   passed|failed|skipped <tab> Suite.Case <tab> seconds <tab> message
//
// Line ends of a message are "\n" in letters. A case that was begun and not ended was running when
// the program ended.
#ifndef VANTREL_TESTS_SUPPORT_CASEROWS_H_
#define VANTREL_TESTS_SUPPORT_CASEROWS_H_

#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace vantrel::test {

class CaseRows : public testing::EmptyTestEventListener {
 public:
  // Writes nothing where the variable is not set.
  explicit CaseRows(const std::string& program);
  void OnTestStart(const testing::TestInfo& test) override;
  void OnTestEnd(const testing::TestInfo& test) override;

 private:
  std::ofstream file_;
};

}  // namespace vantrel::test

#endif  // VANTREL_TESTS_SUPPORT_CASEROWS_H_
