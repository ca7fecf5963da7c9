// The sizes of the folders that the Clean panel cleans, and where their paths are kept.
#include "cleaning/FolderSize.h"
#include "unit/cleaning/CleanPanel.h"

namespace vantrel::cleaning {
namespace {

using testing::Each;
using testing::ElementsAre;

class CleaningSizes : public CleanPanel {};

TEST_F(CleaningSizes, NothingIsScannedWhenThePanelIsMadeOrShown) {
  Panel().Show();
  EXPECT_THAT(Captions(), Each(""));
  EXPECT_THAT(Paths(), Each(""));
  EXPECT_EQ(Panel().txtcookies.Text(), "C:\\Documents and Settings\\Administrator\\Cookies");
}

TEST_F(CleaningSizes, EachLabelShowsItsFoldersSizeAndKeepsItsPath) {
  Put(std::string(Internet) + "\\a\\b\\f", std::string(1234567, 'x'));
  Put(std::string(Recent) + "\\f", std::string(512, 'x'));
  Put(std::string(History) + "\\f", std::string(511, 'x'));
  ShowCacheSizes(program);
  EXPECT_THAT(Captions(), ElementsAre("1,206 Kbs", "1 Kbs", "0 Kbs", "0 Kbs"));
  EXPECT_THAT(Paths(), ElementsAre(Internet, Recent, History, Temporary));
}

TEST_F(CleaningSizes, HiddenAndSystemFilesCount) {
  const std::string file = std::string(Recent) + "\\f";
  Put(file, std::string(2048, 'x'));
  world.files.SetAttributes(file, platform::AttributeHidden | platform::AttributeSystem);
  ShowCacheSizes(program);
  EXPECT_EQ(Panel().lblRecent.Caption(), "2 Kbs");
}

TEST_F(CleaningSizes, TheSeparatorIsTheUsersOwn) {
  world.thousandsSeparator = ".";
  Put(std::string(Internet) + "\\f", std::string(1024000, 'x'));
  ShowCacheSizes(program);
  EXPECT_EQ(Panel().lbltif.Caption(), "1.000 Kbs");
}

TEST_F(CleaningSizes, ALinkIsNotMeasured) {
  Put("C:\\outside\\f", std::string(4096, 'x'));
  world.files.MakeLink(std::string(Recent) + "\\link", "C:\\outside");
  world.files.MakeLink(std::string(Recent) + "\\self", Recent);
  ShowCacheSizes(program);
  EXPECT_EQ(Panel().lblRecent.Caption(), "0 Kbs");
}

TEST_F(CleaningSizes, WithoutTempBesideTheHistoryAllLabelsStay) {
  ShowCacheSizes(program);
  Put(std::string(Internet) + "\\f", std::string(4096, 'x'));
  world.files.Remove(Temporary);
  Put(std::string(CookiesFolder) + "\\c", std::string(1024, 'x'));
  RefreshCleanPanel(program);
  EXPECT_THAT(Captions(), Each("0 Kbs"));
  EXPECT_THAT(Paths(), ElementsAre(Internet, Recent, History, Temporary));
  EXPECT_EQ(Panel().lblcookies.Caption(), "1 Kbs of files");
}

TEST_F(CleaningSizes, BesideAHistoryAtADrivesRootTempIsMeasuredToo) {
  world.specialFolders[fileutil::CSIDL_HISTORY] = "C:\\History";
  world.files.MakeFolder("C:\\History");
  Put("C:\\Temp\\f", std::string(1024, 'x'));
  ShowCacheSizes(program);
  EXPECT_EQ(Captions().back(), "1 Kbs");
  EXPECT_EQ(Paths().back(), "C:\\Temp");
}

TEST_F(CleaningSizes, ADrivesRootAsTheHistoryHasNothingBesideIt) {
  ShowCacheSizes(program);
  Put(std::string(Internet) + "\\f", std::string(4096, 'x'));
  Put("C:\\Temp\\f", "x");
  world.specialFolders[fileutil::CSIDL_HISTORY] = "C:\\";
  RefreshCleanPanel(program);
  EXPECT_THAT(Captions(), Each("0 Kbs"));
}

TEST_F(CleaningSizes, AFolderThatTheShellDoesNotKnowChangesNoLabel) {
  for (const int number :
       {fileutil::CSIDL_INTERNET_CACHE, fileutil::CSIDL_RECENT, fileutil::CSIDL_HISTORY}) {
    const std::string kept = world.specialFolders[number];
    world.specialFolders.erase(number);
    ShowCacheSizes(program);
    EXPECT_THAT(Captions(), Each(""));
    world.specialFolders[number] = kept;
  }
}

TEST_F(CleaningSizes, AFolderThatCannotBeMeasuredEndsTheScanThere) {
  Put(std::string(Internet) + "\\f", std::string(4096, 'x'));
  process.Faults().FailCall("ListFolder", 2, platform::ErrorAccessDenied);
  ShowCacheSizes(program);
  EXPECT_THAT(Captions(), ElementsAre("4 Kbs", "", "", ""));
  EXPECT_THAT(Paths(), ElementsAre(Internet, "", "", ""));
}

// One folder of large files, whose bytes no test has.
class LargeFiles : public platform::Folders {
 public:
  bool FolderExists(const std::string& /*path*/) override { return true; }
  std::int32_t ListFolder(const std::string& /*pattern*/,
                          std::vector<platform::DirectoryEntry>& entries) override {
    entries.assign(3, {"f", 3'000'000'000, platform::AttributeArchive, 0});
    return 0;
  }
  std::int32_t DeleteFileA(const std::string& /*path*/) override { return 5; }
  std::int32_t RemoveDirectoryA(const std::string& /*path*/) override { return 5; }
  std::int32_t SetFileAttributesA(const std::string& /*path*/, std::uint32_t /*bits*/) override {
    return 5;
  }
  bool MakeSureDirectoryPathExists(const std::string& /*path*/) override { return false; }
};

TEST_F(CleaningSizes, ATotalIsNotCutAt32Bits) {
  LargeFiles folders;
  EXPECT_EQ(FolderSize(folders, "C:\\large"), 9'000'000'000U);
  EXPECT_EQ(InKilobytes(program, 9'000'000'000U), "8,789,063 Kbs");
}

TEST_F(CleaningSizes, ACookiesFolderThatIsAFileShowsNothing) {
  Put("C:\\file");
  world.specialFolders[fileutil::CSIDL_COOKIES] = "C:\\file";
  ShowIECookies(program);
  EXPECT_EQ(Panel().lblcookies.Caption(), "");
  EXPECT_EQ(Panel().txtcookies.Text(), "C:\\Documents and Settings\\Administrator\\Cookies");
  EXPECT_THAT(Urls(), testing::IsEmpty());
}

TEST_F(CleaningSizes, TheCookiesShowSizePathAndFiles) {
  Put(std::string(CookiesFolder) + "\\user@site.txt", std::string(3000, 'x'));
  ShowIECookies(program);
  EXPECT_EQ(Panel().lblcookies.Caption(), "3 Kbs of files");
  EXPECT_EQ(Panel().txtcookies.Text(), CookiesFolder);
  EXPECT_THAT(Urls(), ElementsAre(std::string(CookiesFolder) + "\\..|..|ie",
                                  std::string(CookiesFolder) + "\\user@site.txt|user@site.txt|ie"));
}

TEST_F(CleaningSizes, ASecondScanListsTheCookiesAnew) {
  Put(std::string(CookiesFolder) + "\\gone.txt");
  ShowIECookies(program);
  world.files.Remove(std::string(CookiesFolder) + "\\gone.txt");
  ShowIECookies(program);
  EXPECT_THAT(Urls(), ElementsAre(std::string(CookiesFolder) + "\\..|..|ie"));
}

TEST_F(CleaningSizes, ABackslashTooManyIsTakenOutOfAPath) {
  world.specialFolders[fileutil::CSIDL_RECENT] = "C:\\\\User//Recent\\";
  ShowCacheSizes(program);
  EXPECT_THAT(Paths(), ElementsAre(Internet, Recent, History, Temporary));
}

TEST_F(CleaningSizes, WithoutACookiesFolderTheOneOfTheLastScanIsShown) {
  Put(std::string(CookiesFolder) + "\\c", std::string(2048, 'x'));
  ShowIECookies(program);
  world.specialFolders.erase(fileutil::CSIDL_COOKIES);
  Panel().txtcookies.SetText("else");
  ShowIECookies(program);
  EXPECT_EQ(Panel().txtcookies.Text(), CookiesFolder);
  EXPECT_EQ(Panel().lblcookies.Caption(), "2 Kbs of files");
}

TEST_F(CleaningSizes, RefreshScansTwiceAroundTheWaitText) {
  std::vector<std::string> seen;
  toolkit.DuringDoEvents = [&] {
    seen.push_back(std::to_string(Panel().MousePointer()) + " " +
                   Panel().lblcleaningstatus.Caption() + " " + Panel().lbltif.Caption());
  };
  Click(Panel().lblRefresh);
  const std::string wait = "Initializing please wait...";
  // The cookies list holds only "..": one pump for it, and one behind it.
  EXPECT_THAT(seen,
              ElementsAre("11 Status: ", "11 Status: 0 Kbs", "11 Status: 0 Kbs", "11 Status: 0 Kbs",
                          "11 Status: 0 Kbs", "0 Status: 0 Kbs", "0 " + wait + " 0 Kbs",
                          "11 " + wait + " 0 Kbs", "11 " + wait + " 0 Kbs", "11 " + wait + " 0 Kbs",
                          "11 " + wait + " 0 Kbs", "11 " + wait + " 0 Kbs", "0 " + wait + " 0 Kbs",
                          "0 Ready to clean 0 Kbs"));
  EXPECT_EQ(Panel().lblcleaningstatus.Caption(), "Ready to clean");
}

}  // namespace
}  // namespace vantrel::cleaning
