// What the start of programs promises.
#include <gmock/gmock.h>

#include "contract/Subject.h"

namespace vantrel::platform::contract {
namespace {

class ProcessesContract : public ContractTest {
 protected:
  std::int32_t Start(const std::string& application, const std::string& commandLine) {
    return platform_.processes.CreateProcessA(application, commandLine, ShowMinimized);
  }

  const std::string folder_ = subject_->Folder();
};

INSTANTIATE_TEST_SUITE_P(All, ProcessesContract, AllKinds, KindName);

TEST_P(ProcessesContract, QuotedProgramWithArguments) {
  subject_->MakeFolder(folder_ + "\\My Dir");
  subject_->PutProgram(folder_ + "\\My Dir\\x.exe");
  EXPECT_EQ(Start("", '"' + folder_ + "\\My Dir\\x.exe\" -s a"), 0);
  EXPECT_EQ(Start("", '"' + folder_ + "\\My Dir\\x\" -s a"), 0);
}

TEST_P(ProcessesContract, UnquotedPathWithBlanksTriesEachBeginning) {
  subject_->MakeFolder(folder_ + "\\My Dir");
  subject_->PutProgram(folder_ + "\\My Dir\\x.exe");
  EXPECT_EQ(Start("", folder_ + "\\My Dir\\x.exe -s"), 0);
  EXPECT_EQ(Start("", folder_ + "\\My Dir\\y.exe -s"), ErrorFileNotFound);
  subject_->PutProgram(folder_ + "\\My.exe");
  EXPECT_EQ(Start("", folder_ + "\\My Dir\\y.exe -s"), 0);
}

TEST_P(ProcessesContract, ApplicationIsTakenAsItStands) {
  subject_->MakeFolder(folder_ + "\\My Dir");
  subject_->PutProgram(folder_ + "\\My Dir\\x.exe");
  EXPECT_EQ(Start(folder_ + "\\My Dir\\x.exe", folder_ + "\\My Dir\\x.exe -s"), 0);
  EXPECT_EQ(Start(folder_ + "\\My Dir\\x", "x -s"), ErrorFileNotFound);
}

// A program of the same name that lies where a search would look is not taken for the application:
// neither in the starter's folder nor where the command line's first word leads.
TEST_P(ProcessesContract, ApplicationIsNotSearchedFor) {
  const std::string foreign = platform_.system.ProgramFolder() + "\\vantrel-foreign.exe";
  subject_->PutProgram(foreign);
  EXPECT_EQ(Start(folder_ + "\\vantrel-foreign.exe", "vantrel-foreign /e \"a"), ErrorFileNotFound);
  EXPECT_EQ(Start(folder_ + "\\vantrel-foreign.exe", '"' + foreign + "\" /e \"a"),
            ErrorFileNotFound);
  EXPECT_EQ(platform_.folders.DeleteFileA(foreign), 0);
}

TEST_P(ProcessesContract, CommandLineNeedNotNameTheApplication) {
  subject_->PutProgram(folder_ + "\\x.exe");
  EXPECT_EQ(Start(folder_ + "\\x.exe", "other /e \"a b\" \"open"), 0);
}

TEST_P(ProcessesContract, MissingProgramIsNotFound) {
  EXPECT_EQ(Start("", '"' + folder_ + "\\none.exe\""), ErrorFileNotFound);
  EXPECT_EQ(Start("", folder_ + "\\none.exe"), ErrorFileNotFound);
  EXPECT_EQ(Start("", '"' + folder_ + "\\none\\none.exe\""), ErrorFileNotFound);
  EXPECT_EQ(Start("", "vantrel-none"), ErrorFileNotFound);
  EXPECT_EQ(Start(folder_ + "\\none.exe", ""), ErrorFileNotFound);
  EXPECT_EQ(Start(folder_ + "\\none\\none.exe", ""), ErrorPathNotFound);
}

TEST_P(ProcessesContract, BlankInFrontFindsNothing) {
  subject_->PutProgram(folder_ + "\\x.exe");
  EXPECT_EQ(Start("", ' ' + folder_ + "\\x.exe"), ErrorFileNotFound);
  EXPECT_EQ(Start("", " \"" + folder_ + "\\x.exe\""), ErrorFileNotFound);
  EXPECT_EQ(Start("", " "), ErrorFileNotFound);
}

TEST_P(ProcessesContract, NothingToStart) {
  EXPECT_NE(Start("", ""), 0);
  EXPECT_EQ(Start("", "\"\""), ErrorInvalidParameter);
}

TEST_P(ProcessesContract, DocumentIsNoProgram) {
  subject_->PutFile(folder_ + "\\page.htm", "text");
  EXPECT_EQ(Start("", '"' + folder_ + "\\page.htm\""), 193);
  EXPECT_EQ(Start("", folder_ + "\\page.htm"), 193);
}

TEST_P(ProcessesContract, QuotedFolderIsRefused) {
  EXPECT_EQ(Start("", '"' + folder_ + '"'), ErrorAccessDenied);
}

}  // namespace
}  // namespace vantrel::platform::contract
