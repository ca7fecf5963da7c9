// Special folders, the folder picker, and the making of paths.
#include <gmock/gmock.h>

#include "fileutil/bmdlCookies.h"
#include "fileutil/libCreateDir.h"
#include "fileutil/modBrowsefolder.h"
#include "support/ComponentFixture.h"
#include "windows/frmMain.h"

namespace vantrel::fileutil {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FolderPaths : public test::ComponentFixture {};

TEST_F(FolderPaths, ASpecialFolderHasNoSeparatorAtItsEnd) {
  world.specialFolders[CSIDL_COOKIES] = "C:\\Documents and Settings\\user\\Cookies";
  EXPECT_EQ(GetSpecialFolder(program, CSIDL_COOKIES), "C:\\Documents and Settings\\user\\Cookies");
  EXPECT_EQ(GetSpecialFolderSlash(program, CSIDL_COOKIES),
            "C:\\Documents and Settings\\user\\Cookies\\");
}

TEST_F(FolderPaths, OneIsAskedForInTheNameOfTheMainWindowTheOtherInNobodys) {
  world.specialFolders = {{CSIDL_RECENT, "C:\\Recent"}, {CSIDL_APPDATA, "C:\\Data"}};
  program.windows.frmMain.EnsureLoaded();
  process.Trace().Clear();
  GetSpecialFolder(program, CSIDL_RECENT);
  GetSpecialFolderSlash(program, CSIDL_APPDATA);
  EXPECT_THAT(process.Trace().LinesOf("SHGetSpecialFolderLocation"),
              ElementsAre("SHGetSpecialFolderLocation frmMain 8 -> 0",
                          "SHGetSpecialFolderLocation 0x0 26 -> 0"));
}

TEST_F(FolderPaths, TheItemListOfASpecialFolderIsNotFreed) {
  world.specialFolders[CSIDL_COOKIES] = "C:\\Cookies";
  GetSpecialFolder(program, CSIDL_COOKIES);
  GetSpecialFolderSlash(program, CSIDL_COOKIES);
  EXPECT_EQ(world.itemLists.size(), 2U);
}

TEST_F(FolderPaths, AFolderThatTheShellDoesNotKnowIsAnEmptyText) {
  world.specialFolders.erase(CSIDL_HISTORY);
  EXPECT_EQ(GetSpecialFolder(program, CSIDL_HISTORY), "");
  EXPECT_EQ(GetSpecialFolderSlash(program, CSIDL_HISTORY), "");
}

TEST_F(FolderPaths, AFolderOutsideTheFileSystemIsAnEmptyText) {
  process.Faults().FailEvery("SHGetPathFromIDListA", 1);
  EXPECT_EQ(GetSpecialFolder(program, CSIDL_RECENT), "");
  EXPECT_EQ(GetSpecialFolderSlash(program, CSIDL_RECENT), "");
}

TEST_F(FolderPaths, ThePickerIsGivenOwnerPromptAndFlagsAndSelectsTheStartFolder) {
  platform::BrowseInfo seen;
  std::string selected;
  world.pickFolder = [&](const platform::memory::FolderPicker& picker) {
    seen = picker.Info;
    selected = picker.Selected;
    return std::string("D:\\chosen");
  };
  EXPECT_EQ(BrowseForFolder(program, "C:\\start", 77, "&Select:"), "D:\\chosen");
  EXPECT_EQ(seen.Owner, 77U);
  EXPECT_EQ(seen.Prompt, "&Select:");
  EXPECT_EQ(seen.Flags, 1U);
  EXPECT_EQ(seen.Parameter, 0);
  EXPECT_EQ(seen.Image, 0);
  EXPECT_EQ(selected, "C:\\start");
  EXPECT_EQ(world.itemLists.size(), 0U);
}

TEST_F(FolderPaths, ACancelledPickerGivesAnEmptyText) {
  world.pickFolder = [](const auto&) { return std::string(); };
  EXPECT_EQ(BrowseForFolder(program, "C:\\start", 0, ""), "");
  EXPECT_THAT(process.Trace().LinesOf("CoTaskMemFree"), IsEmpty());
}

TEST_F(FolderPaths, AnEndWhileThePickerIsUpEndsTheRequestWhateverWasChosen) {
  for (const char* chosen : {"", "D:\\chosen"}) {
    world.pickFolder = [&](const auto&) {
      toolkit.AtBorder([&] { toolkit.End(); });
      return std::string(chosen);
    };
    EXPECT_THROW(BrowseForFolder(program, "", 0, ""), forms::EndProgram) << chosen;
    EXPECT_EQ(world.itemLists.size(), 0U);
  }
}

TEST_F(FolderPaths, WithoutAStartFolderThePickerOpensAtItsDefault) {
  process.Trace().Clear();
  world.pickFolder = [](const auto& picker) { return picker.Selected; };
  EXPECT_EQ(BrowseForFolder(program, "", 0, ""), "");
  EXPECT_THAT(process.Trace().LinesOf("SendMessageA"), IsEmpty());
}

TEST_F(FolderPaths, ThePickerIsToldNothingButAtItsInitialization) {
  program.BrowseStartPath = "C:\\start";
  process.Trace().Clear();
  EXPECT_EQ(BrowseCallbackProc(program, 77, 2), 0);
  EXPECT_THAT(process.Trace().LinesOf("SendMessageA"), IsEmpty());
  EXPECT_EQ(BrowseCallbackProc(program, 77, platform::BffmInitialized), 0);
  // The parameter of -1 says that the text is a path.
  EXPECT_THAT(process.Trace().LinesOf("SendMessageA"),
              ElementsAre("SendMessageA 0x4D 1126 " +
                          std::to_string(static_cast<std::uintptr_t>(-1)) + " \"C:\\start\""));
}

TEST_F(FolderPaths, APathThatIsThereIsMadeWithoutABox) {
  world.files.MakeFolder("C:\\a\\b");
  EXPECT_TRUE(MakeDirPath(program, "C:\\a\\b\\"));
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

TEST_F(FolderPaths, ABackslashAtTheEndMakesTheLastFolder) {
  EXPECT_TRUE(MakeDirPath(program, "C:\\a\\b\\"));
  EXPECT_TRUE(world.files.IsFolder("C:\\a\\b"));
}

TEST_F(FolderPaths, WithoutOneOnlyTheParentsAreMade) {
  EXPECT_TRUE(MakeDirPath(program, "C:\\a\\b"));
  EXPECT_TRUE(world.files.IsFolder("C:\\a"));
  EXPECT_FALSE(world.files.IsFolder("C:\\a\\b"));
}

TEST_F(FolderPaths, APathThatCannotBeMadeShowsTheBox) {
  EXPECT_FALSE(MakeDirPath(program, "Q:\\a\\b\\"));
  ASSERT_EQ(process.Boxes().size(), 1U);
  EXPECT_EQ(process.Boxes()[0].text,
            "Sorry Could not make the directory path contact the systems administrator");
  EXPECT_EQ(process.Boxes()[0].style, platform::StylePlain);
  EXPECT_EQ(process.Boxes()[0].title, "Vantrel");
}

}  // namespace
}  // namespace vantrel::fileutil
