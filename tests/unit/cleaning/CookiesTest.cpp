// The cookies of three browsers: what the list shows and what the button removes.
#include "unit/cleaning/CleanPanel.h"

namespace vantrel::cleaning {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* AppPaths = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\";

class Cookies : public CleanPanel {
 protected:
  static constexpr const char* Jar = "C:\\User\\Data\\Mozilla\\Profiles\\p.slt\\cookies.txt";

  void Install(const std::string& executable, const std::string& path) {
    world.registry.SetString(platform::HKeyLocalMachine, AppPaths + executable, "Path", path);
  }
  void InstallNetscape(const std::string& jar) {
    Install("Netscp.exe", "C:\\Netscape");
    Put(Jar, jar);
  }
  std::string Line(const std::string& host, const std::string& flag = "TRUE") {
    return host + "\t" + flag + "\t/\tFALSE\t0\tname\tvalue\r\n";
  }
  std::string Target() { return Panel().txtcookies.Text(); }
  std::string Note() { return Panel().lblcookies.Caption(); }
};

TEST_F(Cookies, AnEmptyFolderStillListsTheParentEntry) {
  EnumCookies(program, CookiesFolder);
  EXPECT_THAT(Urls(), ElementsAre("C:\\User\\Cookies\\..|..|ie"));
  EXPECT_EQ(Panel().urls.SelectedIndex(), 1);
}

TEST_F(Cookies, TheLastRowIsSelectedAndHiddenFilesAreNotListed) {
  Put("C:\\User\\Cookies\\a");
  Put("C:\\User\\Cookies\\b");
  Put("C:\\User\\Cookies\\index.dat");
  world.files.SetAttributes("C:\\User\\Cookies\\index.dat", platform::AttributeHidden);
  EnumCookies(program, std::string(CookiesFolder) + "\\");
  EXPECT_THAT(Urls(), ElementsAre("C:\\User\\Cookies\\..|..|ie", "C:\\User\\Cookies\\a|a|ie",
                                  "C:\\User\\Cookies\\b|b|ie"));
  EXPECT_EQ(Panel().urls.SelectedIndex(), 3);
}

TEST_F(Cookies, AnEmptyPathListsTheRootOfTheCurrentDriveWithoutItsFirstEntry) {
  Put("C:\\A first");
  Put("C:\\Z last");
  EnumCookies(program, "");
  ASSERT_GE(Urls().size(), 2U);
  EXPECT_THAT(Urls(), testing::Not(testing::Contains("\\A first|A first|ie")));
  EXPECT_EQ(Urls().back(), "\\Z last|Z last|ie");
}

TEST_F(Cookies, WhatAListingGaveBeforeItFailedIsListed) {
  Put("C:\\User\\Cookies\\a");
  Put("C:\\User\\Cookies\\b");
  process.Faults().SetEntriesBeforeFailure(3);
  process.Faults().FailCall("ListFolder", 1, platform::ErrorAccessDenied);
  EnumCookies(program, CookiesFolder);
  EXPECT_THAT(Urls(), ElementsAre("C:\\User\\Cookies\\..|..|ie", "C:\\User\\Cookies\\a|a|ie"));
}

TEST_F(Cookies, WithoutTheFolderOfApplicationsNothingIsFound) {
  InstallNetscape(Line(".site.example"));
  world.specialFolders.erase(fileutil::CSIDL_APPDATA);
  Click(Panel().optNetscape);
  EXPECT_THAT(Urls(), IsEmpty());
  EXPECT_EQ(Target(), "");
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

TEST_F(Cookies, AMissingFolderListsNothing) {
  EnumCookies(program, "C:\\none");
  EXPECT_THAT(Urls(), IsEmpty());
}

TEST_F(Cookies, SelectingInternetExplorerWhenItIsSetRunsNothing) {
  Click(Panel().optIE);
  EXPECT_EQ(Note(), "");
}

TEST_F(Cookies, WithoutNetscapeThePanelFallsBack) {
  Click(Panel().optNetscape);
  EXPECT_TRUE(Panel().optIE.Value());
  // The fallback's own click has shown Internet Explorer's cookies over the text.
  EXPECT_EQ(Note(), "0 Kbs of files");
  EXPECT_EQ(Target(), CookiesFolder);
}

TEST_F(Cookies, WithoutACookiesFolderTheTextThatNetscapeIsMissingStays) {
  world.specialFolders.erase(fileutil::CSIDL_COOKIES);
  Click(Panel().optNetscape);
  EXPECT_EQ(Note(), "Netscape Browser not found ");
  EXPECT_EQ(Target(), "");
  Click(Panel().optOpera);
  EXPECT_EQ(Note(), "Opera Browser not found ");
  EXPECT_TRUE(Panel().optIE.Value());
}

TEST_F(Cookies, NetscapesJarIsListedHostByHost) {
  InstallNetscape("# comment\r\n\r\n" + Line(".site.example") + Line("exact.example") +
                  Line(".other.example"));
  Click(Panel().optNetscape);
  EXPECT_THAT(Urls(), ElementsAre("NC1|.site.example|ns", "NC2|.other.example|ns"));
  EXPECT_EQ(Target(), Jar);
  EXPECT_EQ(Note(), "0 Kbs");
}

TEST_F(Cookies, AFlagThatIsFalseLeavesATabInTheName) {
  InstallNetscape(Line(".site.example", "FALSE"));
  Click(Panel().optNetscape);
  EXPECT_THAT(Urls(), ElementsAre("NC1|.site.example\t|ns"));
}

TEST_F(Cookies, ALineOfThreeCharactersIsNoCookie) {
  InstallNetscape(".ab\r\n" + Line(".site.example"));
  Click(Panel().optNetscape);
  EXPECT_THAT(Urls(), ElementsAre("NC1|.site.example|ns"));
}

TEST_F(Cookies, ALineWithoutASlashEndsTheReadingQuietly) {
  InstallNetscape(Line(".one.example") + ".no slash here\r\n" + Line(".two.example"));
  Panel().lblcookies.SetCaption("before");
  Click(Panel().optNetscape);
  EXPECT_THAT(Urls(), ElementsAre("NC1|.one.example|ns"));
  EXPECT_EQ(Note(), "before");
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

TEST_F(Cookies, ASlashTooNearTheBeginningEndsItToo) {
  InstallNetscape(".abcd/\r\n");
  Click(Panel().optNetscape);
  EXPECT_THAT(Urls(), IsEmpty());
  InstallNetscape(".abcde/\r\n");
  Click(Panel().optIE);
  Click(Panel().optNetscape);
  EXPECT_THAT(Urls(), ElementsAre("NC1||ns"));
}

TEST_F(Cookies, LinesEndWithoutACarriageReturnAndWithoutALineEndToo) {
  InstallNetscape(".a.example\tTRUE\t/\n.b.example\tTRUE\t/");
  Click(Panel().optNetscape);
  EXPECT_THAT(Urls(), ElementsAre("NC1|.a.example|ns", "NC2|.b.example|ns"));
}

TEST_F(Cookies, TheFirstJarOfTheSearchCounts) {
  Install("Netscp.exe", "C:\\Netscape");
  Put("C:\\User\\Data\\Mozilla\\a\\cookies.txt", Line(".first.example"));
  Put("C:\\User\\Data\\Mozilla\\b\\cookies.txt", Line(".second.example"));
  Put("C:\\User\\Data\\Mozilla\\cookies.txt", Line(".itself.example"));
  Click(Panel().optNetscape);
  EXPECT_THAT(Urls(), ElementsAre("NC1|.first.example|ns"));
}

TEST_F(Cookies, WithoutAJarListAndNoteKeepWhatTheyShowed) {
  Install("Netscp.exe", "C:\\Netscape");
  Put("C:\\User\\Cookies\\a");
  ShowIECookies(program);
  const auto before = Urls();
  Click(Panel().optNetscape);
  EXPECT_EQ(Urls(), before);
  EXPECT_EQ(Note(), "0 Kbs of files");
  EXPECT_EQ(Target(), "");
  EXPECT_TRUE(Panel().optNetscape.Value());
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

TEST_F(Cookies, OperasLastHitIsTheOneThatStays) {
  Install("Opera.exe", "C:\\Opera");
  Put("C:\\Opera\\cookies.dat");
  Put("C:\\Opera\\profile\\cookies4.dat", std::string(2048, 'x'));
  Click(Panel().optOpera);
  EXPECT_THAT(Urls(), ElementsAre("OP1|C:\\Opera\\profile\\cookies4.dat|op"));
  EXPECT_EQ(Target(), "C:\\Opera\\profile\\cookies4.dat");
  EXPECT_EQ(Note(), "2 Kbs");
}

TEST_F(Cookies, OperaWithoutAFileSaysSo) {
  Install("Opera.exe", "C:\\Opera");
  world.files.MakeFolder("C:\\Opera");
  Click(Panel().optOpera);
  EXPECT_EQ(Note(), "No cookies file found");
  EXPECT_THAT(Urls(), IsEmpty());
  EXPECT_EQ(Target(), "");
}

TEST_F(Cookies, AnInvalidCallWhileOperaIsSearchedShowsTheBox) {
  Install("Opera.exe", "C:\\Opera");
  // A value of zero bytes is such an error.
  world.registry.Set(platform::HKeyLocalMachine, std::string(AppPaths) + "Opera.exe", "Path",
                     platform::RegSz, "");
  Click(Panel().optOpera);
  ASSERT_EQ(process.Boxes().size(), 1U);
  EXPECT_EQ(process.Boxes()[0].text, "Cookies not found");
  EXPECT_EQ(process.Boxes()[0].title, "Zintrick");
  EXPECT_EQ(process.Boxes()[0].style, platform::StyleCritical);
}

TEST_F(Cookies, AnyOtherErrorOfOperaIsSilent) {
  Install("Opera.exe", "C:\\Opera");
  Put("C:\\Opera\\cookies.dat");
  process.Faults().FailEvery("FileLength", platform::ErrorFileNotFound);
  Click(Panel().optOpera);
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

TEST_F(Cookies, DeleteRemovesTheWholeFolderWhateverIsSelected) {
  Put("C:\\User\\Cookies\\a");
  Put("C:\\User\\Cookies\\sub\\b");
  ShowIECookies(program);
  Panel().urls.Select(1);
  Panel().pbarCache.SetValue(0);
  Click(Panel().cmddeleteCookies);
  EXPECT_THAT(world.files.List(CookiesFolder), IsEmpty());
  EXPECT_FALSE(Panel().pbarCache.Visible());
  EXPECT_EQ(Panel().pbarCache.Value(), 2);
  EXPECT_EQ(Note(), "0 Kbs of files");
}

TEST_F(Cookies, BeforeAnyScanTheDesignTextIsNoFolder) {
  Click(Panel().cmddeleteCookies);
  EXPECT_EQ(Target(), CookiesFolder);
}

TEST_F(Cookies, DeleteRemovesTheJarAndShowsInternetExplorersCookies) {
  InstallNetscape(Line(".site.example"));
  Click(Panel().optNetscape);
  Click(Panel().cmddeleteCookies);
  EXPECT_FALSE(Exists(Jar));
  EXPECT_TRUE(Panel().optNetscape.Value());
  EXPECT_EQ(Target(), CookiesFolder);
  EXPECT_EQ(Note(), "0 Kbs of files");
  // A second one tries the folder as a file, which fails silently.
  Put("C:\\User\\Cookies\\kept");
  Click(Panel().cmddeleteCookies);
  EXPECT_TRUE(Exists("C:\\User\\Cookies\\kept"));
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

TEST_F(Cookies, DeleteRemovesOperasFile) {
  Install("Opera.exe", "C:\\Opera");
  Put("C:\\Opera\\cookies.dat");
  Click(Panel().optOpera);
  Click(Panel().cmddeleteCookies);
  EXPECT_FALSE(Exists("C:\\Opera\\cookies.dat"));
}

TEST_F(Cookies, AFileThatIsALinkGoesAndWhatItLeadsToStays) {
  Put("C:\\outside\\f", "kept");
  Install("Opera.exe", "C:\\Opera");
  world.files.MakeLink("C:\\Opera\\cookies.dat", "C:\\outside\\f");
  Click(Panel().optOpera);
  Click(Panel().cmddeleteCookies);
  EXPECT_FALSE(world.files.Exists("C:\\Opera\\cookies.dat"));
  Install("Netscp.exe", "C:\\Netscape");
  world.files.MakeFolder("C:\\User\\Data\\Mozilla\\p");
  world.files.MakeLink("C:\\User\\Data\\Mozilla\\p\\cookies.txt", "C:\\outside\\f");
  Click(Panel().optNetscape);
  Click(Panel().cmddeleteCookies);
  EXPECT_FALSE(world.files.Exists("C:\\User\\Data\\Mozilla\\p\\cookies.txt"));
  EXPECT_EQ(world.files.Read("C:\\outside\\f"), "kept");
}

TEST_F(Cookies, WhatStandsInTheTextBoxIsWhatIsDeleted) {
  Put("C:\\elsewhere\\a");
  Put("C:\\User\\Cookies\\kept");
  Panel().txtcookies.SetText("C:\\elsewhere");
  Click(Panel().cmddeleteCookies);
  EXPECT_FALSE(Exists("C:\\elsewhere\\a"));
  EXPECT_TRUE(Exists("C:\\User\\Cookies\\kept"));
}

}  // namespace
}  // namespace vantrel::cleaning
