// What the contract cannot ask of both sides: a program that asks for elevation. No such program
// can be made for a test, so the system's two calls are answered here.
#include <gtest/gtest.h>

#include <string>

#include "platform/Processes.h"
#include "platform/win32/Win32Platform.h"
#include "support/win32/ImportedCall.h"

// After windows.h.
#include <shellapi.h>

namespace vantrel::platform::win32 {
namespace {

struct ShellStart {
  int times = 0;
  ULONG mask = 0;
  std::string file;
  std::string parameters;
  int show = 0;
  bool succeeds = true;
};
ShellStart shellStart;

BOOL WINAPI AskForElevation(const char*, char*, SECURITY_ATTRIBUTES*, SECURITY_ATTRIBUTES*, BOOL,
                            DWORD, void*, const char*, STARTUPINFOA*, PROCESS_INFORMATION*) {
  SetLastError(static_cast<DWORD>(ErrorElevationRequired));
  return FALSE;
}

BOOL WINAPI NoteShellStart(SHELLEXECUTEINFOA* start) {
  ++shellStart.times;
  shellStart.mask = start->fMask;
  shellStart.file = start->lpFile;
  shellStart.parameters = start->lpParameters;
  shellStart.show = start->nShow;
  SetLastError(ERROR_CANCELLED);
  return shellStart.succeeds ? TRUE : FALSE;
}

class Elevation : public testing::Test {
 protected:
  void SetUp() override {
    shellStart = {};
    ASSERT_NE(create_, nullptr);
    ASSERT_NE(execute_, nullptr);
    tests::ReplaceImport(module_, "CreateProcessA", AskForElevation);
    tests::ReplaceImport(module_, "ShellExecuteExA", NoteShellStart);
  }
  void TearDown() override {
    tests::WriteImport(create_, ownCreate_);
    tests::WriteImport(execute_, ownExecute_);
  }

  const HMODULE module_ = GetModuleHandleA(nullptr);
  ULONG_PTR* const create_ = tests::FindImport(module_, "CreateProcessA");
  ULONG_PTR* const execute_ = tests::FindImport(module_, "ShellExecuteExA");
  const ULONG_PTR ownCreate_ = create_ == nullptr ? 0 : *create_;
  const ULONG_PTR ownExecute_ = execute_ == nullptr ? 0 : *execute_;
  const std::unique_ptr<Win32Platform> platform_ = MakeWin32Platform();
  Processes& processes_ = platform_->Platform().processes;
};

TEST_F(Elevation, IsAskedForByTheShellWithoutABoxOfItsOwn) {
  EXPECT_EQ(processes_.CreateProcessA("", "\"C:\\a b\\setup.exe\" /x y", ShowMinimized), 0);
  EXPECT_EQ(shellStart.times, 1);
  EXPECT_NE(shellStart.mask & SEE_MASK_FLAG_NO_UI, 0U);
  EXPECT_EQ(shellStart.file, "C:\\a b\\setup.exe");
  EXPECT_EQ(shellStart.parameters, "/x y");
  EXPECT_EQ(shellStart.show, ShowMinimized);
}

TEST_F(Elevation, OfAnUnquotedPathIsAskedForTheWholePath) {
  EXPECT_EQ(processes_.CreateProcessA("C:\\a b\\setup.exe", "C:\\a b\\setup.exe /x", ShowNormal),
            0);
  EXPECT_EQ(shellStart.file, "C:\\a b\\setup.exe");
  EXPECT_EQ(shellStart.parameters, "/x");
}

TEST_F(Elevation, ThatIsRefusedIsTheSystemsError) {
  shellStart.succeeds = false;
  EXPECT_EQ(processes_.CreateProcessA("", "setup.exe", ShowNormal), ERROR_CANCELLED);
}

}  // namespace
}  // namespace vantrel::platform::win32
