// The link "Check and Repair" of a program that lies beside doubles of its two libraries.
#include "support/HangingLibrary.h"
#include "support/ProgramTest.h"
#include "support/UserFolders.h"

namespace vantrel::e2e {
namespace {

constexpr const char* HelperClass = "GBHelper.HelperBHO\\Clsid";
constexpr const char* ToolbarClass = "Grimbolt.Toolbar\\Clsid";

// What the doubles register.
const StoredValue Registered = Text(std::string("{00000000-0000-0000-0000-0000000C0DE5}") + '\0');

class RepairTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    ForgetLibraries();
    char temp[MAX_PATH]{};
    GetTempPathA(MAX_PATH, temp);
    folder_ = std::string(temp) + "VantrelRepair";
    CreateDirectoryA(folder_.c_str(), nullptr);
    CreateDirectoryA((folder_ + "\\Settings").c_str(), nullptr);
    ASSERT_TRUE(CopyFileA(ExecutablePath().c_str(), Executable().c_str(), FALSE));
  }
  void TearDown() override {
    ProgramTest::TearDown();
    ForgetLibraries();
    RemoveFolder(folder_);
  }
  static void ForgetLibraries() {
    DeleteTree(HKEY_CLASSES_ROOT, "GBHelper.HelperBHO");
    DeleteTree(HKEY_CLASSES_ROOT, "Grimbolt.Toolbar");
  }

  std::string Executable() const { return folder_ + "\\Vantrel.exe"; }
  // Puts one of the doubles beside the program, under the name that the program knows.
  void PutLibrary(const std::string& companion, const std::string& name) const {
    ASSERT_TRUE(CopyFileA(HelperPath(companion).c_str(), (folder_ + '\\' + name).c_str(), FALSE))
        << companion;
  }

  static void ClickAndConfirm(const Running& program) {
    program.MouseClick("frmMain.lnkCheckAndRepair");
    const auto box = program.WaitForBox();
    ASSERT_TRUE(box);
    EXPECT_EQ(box->title, "Vantrel");
    EXPECT_EQ(box->text, "Repaired Successfully!");
    ASSERT_TRUE(program.Answer(*box));
    EXPECT_TRUE(program.Answers());
    EXPECT_EQ(program.BoxCount(), 0U);
  }

  std::string folder_;
};

TEST_F(RepairTest, LibrariesThatWindowsDoesNotKnowRegisterThemselves) {
  PutLibrary("companion-helper.dll", "GBHelper.dll");
  PutLibrary("companion-toolbar.dll", "GBToolbar.dll");
  Running program("", Executable());
  ASSERT_TRUE(program.WaitUntilIdle());
  ClickAndConfirm(program);
  EXPECT_EQ(Read(HKEY_CLASSES_ROOT, HelperClass, ""), Registered);
  EXPECT_EQ(Read(HKEY_CLASSES_ROOT, ToolbarClass, ""), Registered);
  // The libraries are let go again.
  EXPECT_TRUE(DeleteFileA((folder_ + "\\GBHelper.dll").c_str()));
  EXPECT_TRUE(DeleteFileA((folder_ + "\\GBToolbar.dll").c_str()));
}

TEST_F(RepairTest, NoPanelIsHiddenAndTheTitleStays) {
  Running program("", Executable());
  ASSERT_TRUE(program.WaitUntilIdle());
  program.MouseClick("frmMain.LnkNotification");
  ASSERT_TRUE(program.WaitUntilVisible("FrmFrameNotification"));
  ClickAndConfirm(program);
  EXPECT_TRUE(program.IsVisible("FrmFrameNotification"));
  EXPECT_EQ(program.TextOf("frmMain.lblVCP1"), "Notification - Qorvel Software Vantrel ");
}

TEST_F(RepairTest, AMissingLibraryAndOneWithoutTheEntryAreNotTold) {
  PutLibrary("companion-plain.dll", "GBToolbar.dll");
  Running program("", Executable());
  ASSERT_TRUE(program.WaitUntilIdle());
  ClickAndConfirm(program);
  EXPECT_FALSE(KeyExists(HKEY_CLASSES_ROOT, "GBHelper.HelperBHO"));
  EXPECT_FALSE(KeyExists(HKEY_CLASSES_ROOT, "Grimbolt.Toolbar"));
  EXPECT_TRUE(DeleteFileA((folder_ + "\\GBToolbar.dll").c_str()));
}

TEST_F(RepairTest, OnlyEmptinessIsARepairsReason) {
  PutLibrary("companion-helper.dll", "GBHelper.dll");
  PutLibrary("companion-toolbar.dll", "GBToolbar.dll");
  CreateKey(HKEY_CLASSES_ROOT, HelperClass);
  Write(HKEY_CLASSES_ROOT, HelperClass, "", Text("{of a library long gone}"));
  CreateKey(HKEY_CLASSES_ROOT, ToolbarClass);
  Running program("", Executable());
  ASSERT_TRUE(program.WaitUntilIdle());
  ClickAndConfirm(program);
  EXPECT_EQ(Read(HKEY_CLASSES_ROOT, HelperClass, ""), Text("{of a library long gone}"));
  EXPECT_EQ(Read(HKEY_CLASSES_ROOT, ToolbarClass, ""), Registered);
}

TEST_F(RepairTest, ALibraryThatHangsTakesTheWindowsWithItAndTheProcessWaitsForIt) {
  PutLibrary("companion-hanging.dll", "GBHelper.dll");
  PutLibrary("companion-toolbar.dll", "GBToolbar.dll");
  const HangingLibrary library;
  Running program("", Executable());
  ASSERT_TRUE(program.WaitUntilIdle());
  program.MouseClick("frmMain.lnkCheckAndRepair");
  library.ExpectToTakeTheWindows(program);
  EXPECT_FALSE(KeyExists(HKEY_CLASSES_ROOT, "Grimbolt.Toolbar"));
}

}  // namespace
}  // namespace vantrel::e2e
