// What the system gives a process about itself.
#include <gmock/gmock.h>

#include "contract/Subject.h"

namespace vantrel::platform::contract {
namespace {

class SystemContract : public ContractTest {
 protected:
  System& system_ = platform_.system;
};

INSTANTIATE_TEST_SUITE_P(All, SystemContract, AllKinds, KindName);

TEST_P(SystemContract, VersionOfTheNtFamily) {
  for (const std::uint32_t size : {148U, 156U}) {
    VersionRecord record;
    record.size = size;
    EXPECT_EQ(system_.GetVersionExA(record), 1);
    EXPECT_EQ(record.platformId, 2U);
    EXPECT_GE(record.majorVersion, 5U);
    EXPECT_EQ(record.size, size);
  }
}

TEST_P(SystemContract, VersionRecordOfAnotherSizeIsRefused) {
  for (const std::uint32_t size : {0U, 20U, 157U, 4000U}) {
    VersionRecord record;
    record.size = size;
    EXPECT_EQ(system_.GetVersionExA(record), 0);
  }
}

TEST_P(SystemContract, FolderAndNameMakeUpTheProgram) {
  EXPECT_NE(system_.ProgramFolder().back(), '\\');
  EXPECT_EQ(system_.ProgramName().find_first_of("\\."), std::string::npos);
  EXPECT_TRUE(
      platform_.files.FileExists(system_.ProgramFolder() + "\\" + system_.ProgramName() + ".exe"));
}

TEST_P(SystemContract, CommandLineTailHasNoBlanksInFront) {
  const std::string tail = system_.CommandLineTail();
  EXPECT_FALSE(tail.starts_with(' '));
  EXPECT_EQ(tail.find(system_.ProgramFolder()), std::string::npos);
}

TEST_P(SystemContract, FirstCopyHasNoPreviousInstanceAndTheSecondHas) {
  EXPECT_FALSE(system_.PreviousInstanceRuns());
  System& second = subject_->StartAnother().system;
  EXPECT_TRUE(second.PreviousInstanceRuns());
  EXPECT_FALSE(system_.PreviousInstanceRuns());
}

TEST_P(SystemContract, ClaimEndsWithTheCopy) {
  EXPECT_FALSE(subject_->StartAnother().system.PreviousInstanceRuns());
  subject_->EndAnother();
  EXPECT_FALSE(system_.PreviousInstanceRuns());
}

TEST_P(SystemContract, HighContrastIsAsTheUserChoseItLast) {
  for (const bool chosen : {false, true, false}) {
    subject_->ChooseHighContrast(chosen);
    EXPECT_EQ(system_.HighContrast(), chosen);
  }
}

TEST_P(SystemContract, CopyThatNeverAskedClaimsNothing) {
  subject_->StartAnother();
  EXPECT_FALSE(system_.PreviousInstanceRuns());
}

}  // namespace
}  // namespace vantrel::platform::contract
