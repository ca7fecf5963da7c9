// The upper frame of the Clean panel of the shipped program, on real folders, the real registry and
// a real Recycle Bin.
#include <windows.h>

// After windows.h.
#include <commctrl.h>

#include "support/CleanPanelTest.h"
#include "support/Folders.h"
#include "support/OwnersMemory.h"
#include "support/win32/RecycleBin.h"

namespace vantrel::e2e {
namespace {

constexpr const char* TypedUrls = "Software\\Microsoft\\Internet Explorer\\TypedURLs";
constexpr const char* RecentDocs =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\RecentDocs";
constexpr const char* OpenSave =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\ComDlg32\\OpenSaveMRU";
constexpr const char* Lists[] = {
    TypedUrls,
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\RunMRU",
    "Software\\Microsoft\\Search Assistant\\ACMru\\5603",
    "Software\\Microsoft\\Search Assistant\\ACMru\\5001",
    "Software\\Microsoft\\Search Assistant\\ACMru\\5604",
    "Software\\Microsoft\\Search Assistant\\ACMru\\5647",
    RecentDocs,
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\ComDlg32\\LastVisitedMRU",
    OpenSave};

// A file that is open for itself alone.
class Lock {
 public:
  explicit Lock(const std::string& path)
      : file_(CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr)) {
    EXPECT_NE(file_, INVALID_HANDLE_VALUE) << path;
  }
  ~Lock() { CloseHandle(file_); }
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;

 private:
  HANDLE file_;
};

// Holds the program's thread of windows, so that what is posted meanwhile waits together.
class Held {
 public:
  explicit Held(const Running& program)
      : thread_(OpenThread(THREAD_SUSPEND_RESUME, FALSE,
                           GetWindowThreadProcessId(program.Find("frmMain"), nullptr))) {
    EXPECT_NE(SuspendThread(thread_), static_cast<DWORD>(-1));
  }
  ~Held() {
    ResumeThread(thread_);
    CloseHandle(thread_);
  }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;

 private:
  HANDLE thread_;
};

class CleanTest : public CleanPanelTest {
 protected:
  void SetUp() override {
    CleanPanelTest::SetUp();
    for (const char* list : Lists) {
      DeleteTree(HKEY_CURRENT_USER, list);
      Write(HKEY_CURRENT_USER, list, "a", Text("trace"));
    }
  }
  void TearDown() override {
    CleanPanelTest::TearDown();
    for (const char* list : Lists) DeleteTree(HKEY_CURRENT_USER, list);
  }

  static std::string StatusOf(const Running& program) {
    const OwnersMemory memory(program.Process(), 256);
    DWORD_PTR length = 0;
    SendMessageTimeoutA(program.Find("frmMain.sbStatusBar"), SB_GETTEXTA, 0, memory.Address(),
                        SMTO_BLOCK, DefaultBound, &length);
    std::string text(LOWORD(length), '\0');
    memory.ReadInto(text.data(), text.size());
    return text;
  }
  // The panel with its sizes, and with these boxes alone set.
  static void Prepare(const Running& program, std::initializer_list<const char*> boxes) {
    Open(program);
    Refresh(program);
    Select(program, boxes);
  }
  // Presses Delete and waits for the two texts that every run ends with.
  static void Delete(const Running& program) {
    ASSERT_TRUE(program.Click(Control("CmdDeleteCache")));
    ExpectEnded(program);
  }
  static void ExpectEnded(const Running& program) {
    EXPECT_TRUE(program.WaitForText(Control("lblcleaningstatus"), "Done"))
        << program.TextOf(Control("lblcleaningstatus"));
    EXPECT_TRUE(WaitFor([&] {
      return StatusOf(program) == "Status: Some Required system files may not be deleted";
    })) << StatusOf(program);
    EXPECT_FALSE(program.IsShown(Control("pbarCache")));
    EXPECT_EQ(program.BoxCount(), 0U);
    EXPECT_TRUE(program.Answers());
  }
  static bool HasTrace(const char* list) { return Read(HKEY_CURRENT_USER, list, "a").has_value(); }
  static bool IsEmptyList(const char* list) {
    return KeyExists(HKEY_CURRENT_USER, list) && ReadTree(HKEY_CURRENT_USER, list).empty();
  }
  void PlantAll() const {
    PutFile(folders_.History + "\\a", std::string(700, 'a'));
    PutFile(folders_.History + "\\below\\b", std::string(2500, 'b'));
    PutFile(folders_.Internet + "\\Content.IE5\\index.dat", std::string(4096, 'i'));
    PutFile(folders_.Internet + "\\Content.IE5\\ABCD\\page[1].htm", std::string(10240, 'p'));
    PutFile(folders_.Recent + "\\letter.lnk", std::string(100, 'l'));
    PutFile(folders_.Temporary + "\\large", std::string(130000, 'L'));
    PutFile(folders_.Temporary + "\\hidden", std::string(2000, 'h'));
    SetFileAttributesA((folders_.Temporary + "\\hidden").c_str(), FILE_ATTRIBUTE_HIDDEN);
  }
};

TEST_F(CleanTest, SizesAreThoseOfAWalkAndSoTheyAreBehindEachRun) {
  PlantAll();
  const Running program;
  Open(program);
  EXPECT_EQ(Sizes(program), std::vector<std::string>(4));
  Refresh(program);
  EXPECT_EQ(Sizes(program), WalkedSizes());
  EXPECT_EQ(Shown(program, "lblotf"), "129 Kbs");
  Select(program, {"chkCacheHistory"});
  Delete(program);
  EXPECT_EQ(NamesIn(folders_.History), std::vector<std::string>{});
  EXPECT_EQ(Sizes(program), WalkedSizes());
  EXPECT_EQ(Shown(program, "lblhistory"), "0 Kbs");
  EXPECT_EQ(Shown(program, "lblotf"), "129 Kbs");
  Select(program, {"chkCacheInternet", "chkCacheRecent", "chkCachetemp"});
  Delete(program);
  EXPECT_EQ(Sizes(program), std::vector<std::string>(4, "0 Kbs"));
  EXPECT_EQ(Sizes(program), WalkedSizes());
  for (const std::string& folder : {folders_.Internet, folders_.Recent, folders_.Temporary}) {
    EXPECT_TRUE(Exists(folder)) << folder;
    EXPECT_EQ(NamesIn(folder), std::vector<std::string>{}) << folder;
  }
}

TEST_F(CleanTest, ALargeSizeIsGrouped) {
  PutFile(folders_.Internet + "\\movie", std::string(1234567, 'm'));
  const Running program;
  Open(program);
  Refresh(program);
  char separator[8]{};
  GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, separator, sizeof separator);
  EXPECT_EQ(Shown(program, "lbltif"), std::string("1") + separator + "206 Kbs");
}

// Another name of each file keeps its bytes in sight when its own is gone. The bytes written are
// no letters, but for the first, which may be any.
TEST_F(CleanTest, OnlyFilesAtTheTopAreOverwritten) {
  PlantAll();
  const std::string small = folders_.Watch(folders_.History + "\\a");
  const std::string large = folders_.Watch(folders_.Temporary + "\\large");
  const std::string hidden = folders_.Watch(folders_.Temporary + "\\hidden");
  const std::string below = folders_.Watch(folders_.History + "\\below\\b");
  const Running program;
  Prepare(program, {"chkCacheHistory", "chkCachetemp"});
  Delete(program);
  EXPECT_EQ(ReadFileBytes(small).size(), 701U);
  EXPECT_EQ(ReadFileBytes(small).find('a', 1), std::string::npos);
  EXPECT_EQ(ReadFileBytes(hidden).size(), 2001U);
  EXPECT_EQ(ReadFileBytes(hidden).find('h', 1), std::string::npos);
  const std::string bytes = ReadFileBytes(large);
  EXPECT_EQ(bytes.size(), 130000U);
  EXPECT_EQ(bytes.find('L', 1), 50001U);
  EXPECT_EQ(bytes.substr(50001), std::string(130000 - 50001, 'L'));
  EXPECT_EQ(ReadFileBytes(below), std::string(2500, 'b'));
}

TEST_F(CleanTest, InFoldersBelowHiddenAndReadOnlyFilesStay) {
  PlantAll();
  PutFile(folders_.Temporary + "\\sub\\hidden");
  SetFileAttributesA((folders_.Temporary + "\\sub\\hidden").c_str(), FILE_ATTRIBUTE_HIDDEN);
  PutFile(folders_.Temporary + "\\sub\\ordinary");
  PutFile(folders_.Recent + "\\sub\\readonly");
  SetFileAttributesA((folders_.Recent + "\\sub\\readonly").c_str(), FILE_ATTRIBUTE_READONLY);
  const Running program;
  Prepare(program, {"chkCacheRecent", "chkCachetemp"});
  Delete(program);
  EXPECT_EQ(NamesIn(folders_.Temporary), std::vector<std::string>{"sub"});
  EXPECT_EQ(NamesIn(folders_.Temporary + "\\sub"), std::vector<std::string>{"hidden"});
  EXPECT_EQ(NamesIn(folders_.Recent + "\\sub"), std::vector<std::string>{"readonly"});
  EXPECT_EQ(Sizes(program), WalkedSizes());
}

TEST_F(CleanTest, BeforeTheFirstScanNoFolderIsCleanedAndTheSecondRunCleansThem) {
  PlantAll();
  const Running program;
  Open(program);
  Select(program,
         {"chkCacheHistory", "chkCacheInternet", "chkCacheRecent", "chkCachetemp", "chkCacheHURL"});
  const auto before = WalkedSizes();
  Delete(program);
  EXPECT_EQ(WalkedSizes(), before);
  EXPECT_EQ(Sizes(program), before);
  EXPECT_TRUE(IsEmptyList(TypedUrls));
  Delete(program);
  EXPECT_EQ(Sizes(program), std::vector<std::string>(4, "0 Kbs"));
  EXPECT_EQ(Sizes(program), WalkedSizes());
}

TEST_F(CleanTest, ListsAreLeftAsEmptyKeysAndOnlyTheSelectedOnes) {
  DeleteTree(HKEY_CURRENT_USER, Lists[3]);
  const Running program;
  Open(program);
  Select(program, {"chkCacheHURL", "chkWindowsFindHistory"});
  Delete(program);
  for (const char* list : Lists) {
    const std::string name = list;
    const bool selected = name == TypedUrls || name.find("ACMru") != std::string::npos;
    EXPECT_EQ(IsEmptyList(list), selected) << list;
    EXPECT_EQ(HasTrace(list), !selected) << list;
  }
  Select(program, {"chkWindowsRunHistory", "chkWindowsRecDoc"});
  Delete(program);
  for (const char* list : Lists) EXPECT_TRUE(IsEmptyList(list)) << list;
}

// The system does not delete a key with subkeys.
TEST_F(CleanTest, ListsWithSubkeysKeepTheirValues) {
  Write(HKEY_CURRENT_USER, std::string(RecentDocs) + "\\.txt", "a", Text("trace"));
  Write(HKEY_CURRENT_USER, std::string(OpenSave) + "\\*", "a", Text("trace"));
  const Tree before = ReadTree(HKEY_CURRENT_USER, RecentDocs);
  const Running program;
  Open(program);
  Select(program, {"chkWindowsRecDoc"});
  Delete(program);
  EXPECT_EQ(Difference(before, ReadTree(HKEY_CURRENT_USER, RecentDocs)), "");
  EXPECT_TRUE(HasTrace(OpenSave));
  EXPECT_TRUE(IsEmptyList(Lists[7]));
}

// With files alone: Wine leaves folders in it.
TEST_F(CleanTest, AFullRecycleBinIsEmptied) {
  PutFile(folders_.Outside + "\\one", "1");
  PutFile(folders_.Outside + "\\two", "22");
  PutFile(folders_.Outside + "\\three", "333");
  for (const char* name : {"\\one", "\\two", "\\three"}) {
    ASSERT_TRUE(tests::Recycle(folders_.Outside + name));
  }
  ASSERT_EQ(tests::ItemsInBin(), 3);
  const Running program;
  Open(program);
  Select(program, {"chkCacheHURL"});
  Delete(program);
  EXPECT_EQ(tests::ItemsInBin(), 3);
  Select(program, {"chkWindowsRB"});
  Delete(program);
  EXPECT_EQ(tests::ItemsInBin(), 0);
  // An empty one is emptied all the same.
  Delete(program);
}

TEST_F(CleanTest, ALockedIndexStaysAndTheRunEndsNormally) {
  PlantAll();
  const std::string index = folders_.Internet + "\\Content.IE5\\index.dat";
  const Running program;
  Prepare(program, {"chkCacheInternet"});
  {
    const Lock lock(index);
    Delete(program);
  }
  EXPECT_EQ(ReadFileBytes(index), std::string(4096, 'i'));
  EXPECT_EQ(NamesIn(folders_.Internet + "\\Content.IE5"), std::vector<std::string>{"index.dat"});
  EXPECT_EQ(Shown(program, "lbltif"), "4 Kbs");
  // No longer in use, it goes.
  Delete(program);
  EXPECT_EQ(NamesIn(folders_.Internet), std::vector<std::string>{});
}

TEST_F(CleanTest, MoreThanTheBarHoldsGoesToo) {
  for (int number = 0; number < 130; ++number) {
    PutFile(folders_.History + "\\f" + std::to_string(number));
    PutFile(folders_.History + "\\d" + std::to_string(number) + "\\f");
  }
  const Running program;
  Prepare(program, {"chkCacheHistory"});
  Delete(program);
  EXPECT_EQ(NamesIn(folders_.History), std::vector<std::string>{});
}

TEST_F(CleanTest, WithNothingSelectedTheButtonIsDisabled) {
  const Running program;
  Open(program);
  EXPECT_TRUE(program.IsEnabled(Control("CmdDeleteCache")));
  Select(program, {});
  EXPECT_FALSE(program.IsEnabled(Control("CmdDeleteCache")));
  Select(program, {"chkWindowsRB"});
  EXPECT_TRUE(program.IsEnabled(Control("CmdDeleteCache")));
}

TEST_F(CleanTest, WithoutTempBesideTheHistoryAllSizesStayAndTheCookiesAreShown) {
  PlantAll();
  PutFile(folders_.Cookies + "\\user@site.txt", std::string(3000, 'c'));
  const Running program;
  Open(program);
  RemoveFolder(folders_.Temporary);
  Refresh(program);
  EXPECT_EQ(Sizes(program), std::vector<std::string>(4));
  EXPECT_EQ(Shown(program, "lblcookies"), "3 Kbs of files");
  CreateDirectoryA(folders_.Temporary.c_str(), nullptr);
  Refresh(program);
  const auto before = Sizes(program);
  EXPECT_EQ(before, WalkedSizes());
  RemoveFolder(folders_.Temporary);
  PutFile(folders_.History + "\\more", std::string(5000, 'm'));
  Refresh(program);
  EXPECT_EQ(Sizes(program), before);
}

TEST_F(CleanTest, ASpecialFolderThatIsMissingOrAFileChangesNoSize) {
  PlantAll();
  const Running program;
  Open(program);
  RemoveFolder(folders_.Recent);
  Refresh(program);
  EXPECT_EQ(Sizes(program), std::vector<std::string>(4));
  WriteFileBytes(folders_.Recent, "a file");
  Refresh(program);
  EXPECT_EQ(Sizes(program), std::vector<std::string>(4));
  Select(program, {"chkCacheHistory", "chkCacheRecent"});
  Delete(program);
  EXPECT_EQ(ReadFileBytes(folders_.Recent), "a file");
  EXPECT_TRUE(Exists(folders_.History + "\\a"));
  DeleteFileA(folders_.Recent.c_str());
}

TEST_F(CleanTest, AFolderThatVanishesBetweenScanAndRunIsPassedOver) {
  PlantAll();
  const Running program;
  Open(program);
  Refresh(program);
  RemoveFolder(folders_.Recent);
  Select(program, {"chkCacheHistory", "chkCacheRecent", "chkCachetemp"});
  Delete(program);
  EXPECT_EQ(NamesIn(folders_.History), std::vector<std::string>{});
  EXPECT_EQ(NamesIn(folders_.Temporary), std::vector<std::string>{});
}

// A second press and the end of the program wait when the run begins; its first file lets them
// through. That the list is empty is the work of the nested run, for the outer one has not come
// that far.
TEST_F(CleanTest, ASecondPressStartsANestedRunAndTheProgramCanBeEndedInTheMiddle) {
  PutFile(folders_.History + "\\first");
  const Running program;
  Prepare(program, {"chkCacheHistory", "chkCacheHURL"});
  {
    const Held held(program);
    program.ClickAndLeave(Control("CmdDeleteCache"));
    program.ClickAndLeave(Control("CmdDeleteCache"));
    program.ChooseMenu("MnuExit");
  }
  ASSERT_TRUE(program.WaitForExit());
  EXPECT_FALSE(Exists(folders_.History + "\\first"));
  EXPECT_TRUE(IsEmptyList(TypedUrls));
}

TEST_F(CleanTest, TheEndOfTheProgramInTheMiddleLeavesTheRest) {
  PutFile(folders_.History + "\\first");
  PutFile(folders_.Recent + "\\kept");
  const Running program;
  Prepare(program, {"chkCacheHistory", "chkCacheHURL", "chkCacheRecent"});
  {
    const Held held(program);
    program.ClickAndLeave(Control("CmdDeleteCache"));
    program.ChooseMenu("MnuExit");
  }
  ASSERT_TRUE(program.WaitForExit());
  EXPECT_FALSE(Exists(folders_.History + "\\first"));
  EXPECT_TRUE(Exists(folders_.Recent + "\\kept"));
  EXPECT_TRUE(HasTrace(TypedUrls));
}

TEST_F(CleanTest, ATickInTheMiddleOfARunCounts) {
  PutFile(folders_.History + "\\first");
  const Running program;
  Prepare(program, {"chkCacheHistory", "chkCacheHURL"});
  {
    const Held held(program);
    program.ClickAndLeave(Control("CmdDeleteCache"));
    program.ClickAndLeave(Control("chkCacheHURL"));
  }
  ASSERT_TRUE(WaitFor([&] { return !Exists(folders_.History + "\\first"); }));
  ExpectEnded(program);
  EXPECT_TRUE(HasTrace(TypedUrls));
}

TEST_F(CleanTest, ManyPressesAtOnceAllEnd) {
  for (int number = 0; number < 90; ++number) {
    PutFile(folders_.History + "\\f" + std::to_string(number));
    PutFile(folders_.Temporary + "\\d" + std::to_string(number) + "\\f");
  }
  const Running program;
  Prepare(program, {"chkCacheHistory", "chkCachetemp"});
  {
    const Held held(program);
    for (int press = 0; press < 5; ++press) program.ClickAndLeave(Control("CmdDeleteCache"));
  }
  ASSERT_TRUE(WaitFor(
      [&] { return NamesIn(folders_.History).empty() && NamesIn(folders_.Temporary).empty(); }));
  ExpectEnded(program);
  EXPECT_EQ(Sizes(program), WalkedSizes());
}

}  // namespace
}  // namespace vantrel::e2e
