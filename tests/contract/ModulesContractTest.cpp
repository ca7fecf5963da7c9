// What libraries, and threads that run their entries, promise.
#include <gmock/gmock.h>

#include "contract/Subject.h"

namespace vantrel::platform::contract {
namespace {

class ModulesContract : public ContractTest {
 protected:
  ModulesContract() { subject_->PutLibrary(path_); }
  ~ModulesContract() override {
    if (library_ != 0) modules_.FreeLibrary(library_);
  }

  void Load() {
    library_ = modules_.LoadLibraryA(path_);
    ASSERT_NE(library_, 0U);
  }
  ThreadHandle Start(const std::string& entry) {
    const EntryAddress routine = modules_.GetProcAddress(library_, entry);
    EXPECT_NE(routine, 0U);
    return modules_.CreateThread(0, 0, routine, 0, 0, identifier_);
  }

  const std::string folder_ = subject_->Folder();
  const std::string path_ = folder_ + "\\library.dll";
  Modules& modules_ = platform_.modules;
  ModuleHandle library_ = 0;
  std::uint32_t identifier_ = 0;
};

INSTANTIATE_TEST_SUITE_P(All, ModulesContract, AllKinds, KindName);

TEST_P(ModulesContract, MissingFileAndFileThatIsNoLibraryAreNotLoaded) {
  subject_->PutFile(folder_ + "\\text.dll", "text");
  EXPECT_EQ(modules_.LoadLibraryA(folder_ + "\\none.dll"), 0U);
  EXPECT_EQ(modules_.LoadLibraryA(folder_ + "\\text.dll"), 0U);
}

TEST_P(ModulesContract, LibraryStaysUntilFreedAsOftenAsLoaded) {
  const ModuleHandle first = modules_.LoadLibraryA(path_);
  const ModuleHandle second = modules_.LoadLibraryA(folder_ + "\\LIBRARY.dll");
  EXPECT_NE(first, 0U);
  EXPECT_EQ(first, second);
  EXPECT_TRUE(modules_.FreeLibrary(first));
  EXPECT_NE(modules_.GetProcAddress(first, "Hang"), 0U);
  EXPECT_TRUE(modules_.FreeLibrary(first));
  EXPECT_EQ(modules_.GetProcAddress(first, "Hang"), 0U);
  EXPECT_FALSE(modules_.FreeLibrary(first));
}

TEST_P(ModulesContract, NoHandleIsNoLibrary) { EXPECT_FALSE(modules_.FreeLibrary(0)); }

TEST_P(ModulesContract, EntriesAreFoundByTheirExactNames) {
  Load();
  const EntryAddress found = modules_.GetProcAddress(library_, "DllRegisterServer");
  EXPECT_NE(found, 0U);
  EXPECT_EQ(modules_.GetProcAddress(library_, "DllRegisterServer"), found);
  EXPECT_NE(modules_.GetProcAddress(library_, "Hang"), found);
  EXPECT_EQ(modules_.GetProcAddress(library_, "dllregisterserver"), 0U);
  EXPECT_EQ(modules_.GetProcAddress(library_, "DllUnregisterServer"), 0U);
  EXPECT_EQ(modules_.GetProcAddress(library_, ""), 0U);
}

TEST_P(ModulesContract, ThreadRunsTheEntryAndEndsWithItsResult) {
  Load();
  const ThreadHandle thread = Start("DllRegisterServer");
  ASSERT_NE(thread, 0U);
  EXPECT_NE(identifier_, 0U);
  EXPECT_EQ(modules_.WaitForSingleObject(thread, 10000), WaitObject);
  std::uint32_t code = 0;
  EXPECT_TRUE(modules_.GetExitCodeThread(thread, code));
  EXPECT_EQ(code, 7U);
  EXPECT_TRUE(modules_.CloseHandle(thread));
}

TEST_P(ModulesContract, WaitForAThreadThatHangsEndsWithTheTime) {
  Load();
  const ThreadHandle thread = Start("Hang");
  ASSERT_NE(thread, 0U);
  EXPECT_EQ(modules_.WaitForSingleObject(thread, 20), WaitTimeout);
  std::uint32_t code = 0;
  EXPECT_TRUE(modules_.GetExitCodeThread(thread, code));
  EXPECT_EQ(code, StillActive);
  subject_->LetGo();
  EXPECT_EQ(modules_.WaitForSingleObject(thread, 10000), WaitObject);
  EXPECT_TRUE(modules_.GetExitCodeThread(thread, code));
  EXPECT_EQ(code, 0U);
  EXPECT_TRUE(modules_.CloseHandle(thread));
}

TEST_P(ModulesContract, NoHandleIsNoThread) {
  std::uint32_t code = 5;
  EXPECT_EQ(modules_.WaitForSingleObject(0, 0), WaitFailed);
  EXPECT_FALSE(modules_.GetExitCodeThread(0, code));
  EXPECT_EQ(code, 5U);
  EXPECT_FALSE(modules_.CloseHandle(0));
}

TEST_P(ModulesContract, ClosedHandleIsNone) {
  Load();
  const ThreadHandle thread = Start("DllRegisterServer");
  EXPECT_EQ(modules_.WaitForSingleObject(thread, 10000), WaitObject);
  EXPECT_TRUE(modules_.CloseHandle(thread));
  EXPECT_EQ(modules_.WaitForSingleObject(thread, 0), WaitFailed);
}

}  // namespace
}  // namespace vantrel::platform::contract
