// What wiping removes and what it leaves.
#include <random>

#include "cleaning/CleaningTarget.h"
#include "cleaning/Scramble.h"
#include "support/WipedTrees.h"
#include "unit/cleaning/CleanPanel.h"

namespace vantrel::cleaning {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* Top = "C:\\wiped";

class WipedFolder : public CleanPanel {
 protected:
  void PutAs(const std::string& path, std::uint32_t attributes) {
    Put(path);
    world.files.SetAttributes(path, attributes);
  }
};

TEST_F(WipedFolder, AMissingFolderIsFalseAtOnce) {
  EXPECT_FALSE(WipeFolder(program, "C:\\none"));
  EXPECT_THAT(process.Trace().LinesOf("ListFolder"), IsEmpty());
}

TEST_F(WipedFolder, FilesOfAnyKindGoAndTheFolderStays) {
  Put("C:\\wiped\\plain");
  PutAs("C:\\wiped\\hidden", platform::AttributeHidden);
  PutAs("C:\\wiped\\system", platform::AttributeSystem);
  PutAs("C:\\wiped\\readonly", platform::AttributeReadOnly);
  EXPECT_TRUE(WipeFolder(program, Top));
  EXPECT_TRUE(Exists(Top));
  EXPECT_THAT(world.files.List(Top), IsEmpty());
}

TEST_F(WipedFolder, ALockedFileStaysAndTheResultIsFalse) {
  Put("C:\\wiped\\locked");
  world.files.SetLocked("C:\\wiped\\locked", true);
  Put("C:\\wiped\\other");
  EXPECT_FALSE(WipeFolder(program, Top));
  EXPECT_THAT(world.files.List(Top), ElementsAre("locked"));
}

TEST_F(WipedFolder, OnlyTheTopLevelIsOverwritten) {
  Put("C:\\wiped\\f");
  Put("C:\\wiped\\sub\\f");
  WipeFolder(program, Top);
  EXPECT_THAT(process.Trace().LinesOf("OpenFile"), testing::SizeIs(1));
  EXPECT_FALSE(Exists("C:\\wiped\\sub"));
}

TEST_F(WipedFolder, InSubfoldersOnlyOrdinaryFilesGo) {
  Put("C:\\wiped\\a\\plain");
  PutAs("C:\\wiped\\a\\hidden", platform::AttributeHidden);
  PutAs("C:\\wiped\\b\\readonly", platform::AttributeReadOnly);
  PutAs("C:\\wiped\\c\\system", platform::AttributeSystem);
  Put("C:\\wiped\\d\\plain");
  EXPECT_TRUE(WipeFolder(program, Top));
  EXPECT_THAT(world.files.List(Top), ElementsAre("a", "b", "c"));
  EXPECT_THAT(world.files.List("C:\\wiped\\a"), ElementsAre("hidden"));
}

TEST_F(WipedFolder, OnFilesTheBarStopsAtItsMaximumAndSoDoTheMessages) {
  for (int file = 0; file < 120; ++file) Put("C:\\wiped\\f" + std::to_string(file));
  int pumps = 0;
  toolkit.DuringDoEvents = [&] { ++pumps; };
  WipeFolder(program, Top);
  EXPECT_EQ(pumps, 100);
  EXPECT_EQ(Panel().pbarCache.Value(), 100);
}

TEST_F(WipedFolder, ABarThatWrapsGoesToAHundred) {
  Put("C:\\wiped\\a\\f");
  Panel().pbarCache.SetMax(7);
  Panel().pbarCache.SetValue(7);
  WipeFolder(program, Top);
  EXPECT_EQ(Panel().pbarCache.Max(), 100);
}

TEST_F(WipedFolder, OnFoldersTheBarWrapsWithoutMessages) {
  for (int folder = 0; folder < 105; ++folder) {
    world.files.MakeFolder("C:\\wiped\\d" + std::to_string(folder));
  }
  int pumps = 0;
  toolkit.DuringDoEvents = [&] { ++pumps; };
  WipeFolder(program, Top);
  // A hundred steps up, one back to the beginning, four up again.
  EXPECT_EQ(pumps, 104);
  EXPECT_EQ(Panel().pbarCache.Value(), 4);
}

TEST_F(WipedFolder, AFolderThatCannotBeListedAtTheEndIsFalse) {
  Put("C:\\wiped\\f");
  process.Faults().FailCall("ListFolder", 3, platform::ErrorAccessDenied);
  EXPECT_FALSE(WipeFolder(program, Top));
  EXPECT_THAT(process.Trace().LinesOf("ListFolder"), testing::SizeIs(3));
  EXPECT_THAT(world.files.List(Top), IsEmpty());
}

TEST_F(WipedFolder, AFolderThatCannotBeListedIsPassedOver) {
  Put("C:\\wiped\\a\\f");
  Put("C:\\wiped\\b\\f");
  // Behind the listings of the files, of the subfolders and of "a" itself.
  process.Faults().FailCall("ListFolder", 4, platform::ErrorAccessDenied);
  WipeFolder(program, Top);
  EXPECT_EQ(process.Trace().LinesOf("ListFolder")[3], "ListFolder \"C:\\wiped\\a\\*.*\" -> 5");
  EXPECT_TRUE(Exists("C:\\wiped\\a\\f"));
  EXPECT_FALSE(Exists("C:\\wiped\\b"));
}

// The error ends the whole direct subfolder, and the bar moves neither for it nor for what is in
// it.
TEST_F(WipedFolder, ANestedFolderThatCannotBeListedKeepsWhatIsAboveItToo) {
  Put("C:\\wiped\\a\\deep\\f");
  Put("C:\\wiped\\a\\f");
  Put("C:\\wiped\\b\\f");
  // Its seventh: top, top, "a" itself, "a", then "a" and "deep" themselves, "deep".
  process.Faults().FailCall("ListFolder", 7, platform::ErrorAccessDenied);
  WipeFolder(program, Top);
  EXPECT_TRUE(Exists("C:\\wiped\\a\\f"));
  EXPECT_TRUE(Exists("C:\\wiped\\a\\deep\\f"));
  EXPECT_FALSE(Exists("C:\\wiped\\b"));
  EXPECT_EQ(Panel().pbarCache.Value(), 1);
}

TEST_F(WipedFolder, WhatAListingGaveBeforeItFailedGoes) {
  for (const char* name : {"a\\f", "b\\f", "c\\f", "f", "g"}) Put(std::string(Top) + "\\" + name);
  process.Faults().SetEntriesBeforeFailure(6);
  process.Faults().FailCall("ListFolder", 1, platform::ErrorAccessDenied);
  EXPECT_FALSE(WipeFolder(program, Top));
  EXPECT_THAT(world.files.List(Top), ElementsAre("g"));
}

// The subfolders before the failure are gone then, and the folder itself stays as it is.
TEST_F(WipedFolder, AListingThatFailsBehindASubfolderKeepsTheFolder) {
  for (const char* name : {"one\\f", "two\\f", "x"}) Put(std::string(Top) + "\\a\\" + name);
  process.Faults().SetEntriesBeforeFailure(3);
  process.Faults().FailCall("ListFolder", 4, platform::ErrorAccessDenied);
  WipeFolder(program, Top);
  EXPECT_THAT(world.files.List("C:\\wiped\\a"), ElementsAre("two", "x"));
  EXPECT_EQ(Panel().pbarCache.Value(), 1);
}

// Names that only other interfaces can make: under them the system would find something else.
TEST_F(WipedFolder, NamesThatTheSystemReadsAsOthersAreLeftAlone) {
  for (const char* name : {"...", "sub.", "com1", "f "}) Put(std::string(Top) + "\\d\\" + name);
  world.files.MakeFolder(std::string(Top) + "\\....");
  WipeFolder(program, Top);
  EXPECT_THAT(process.Trace().LinesOf("DeleteFileA"), IsEmpty());
  EXPECT_EQ(process.Trace().LinesOf("RemoveDirectoryA").size(), 1U);
}

TEST_F(WipedFolder, LinksAreRemovedThemselves) {
  Put("C:\\outside\\f", "kept");
  Put("C:\\wiped\\sub\\f");
  world.files.MakeLink("C:\\wiped\\toFolder", "C:\\outside");
  world.files.MakeLink("C:\\wiped\\toFile", "C:\\outside\\f");
  world.files.MakeLink("C:\\wiped\\sub\\toParent", Top);
  world.files.MakeLink("C:\\wiped\\sub\\toSelf", "C:\\wiped\\sub");
  WipeFolder(program, Top);
  EXPECT_THAT(world.files.List(Top), IsEmpty());
  EXPECT_EQ(world.files.Read("C:\\outside\\f"), "kept");
}

void Plant(platform::memory::FileTree& files, const test::Tree& tree) {
  files.MakeFolder(Top);
  for (const auto& [path, node] : tree) {
    if (!node.target.empty()) {
      files.MakeLink(path, node.target);
      files.SetAttributes(path, node.attributes);
    } else if (node.folder) {
      files.MakeFolder(path);
    } else {
      files.Put(path, node.content);
      files.SetAttributes(path, node.attributes);
      files.SetLocked(path, node.locked);
    }
  }
}

TEST_F(WipedFolder, RandomTreesLeaveWhatTheModelLeavesAndNothingOutsideChanges) {
  std::mt19937 random(11);
  Put("C:\\outside\\f", "kept");
  Put("C:\\outside\\sub\\g", "kept too");
  Put("C:\\outside\\index.dat", "kept as well");
  SelectOnly(Panel().chkCacheInternet);
  world.files.MakeFolder("C:\\empty");
  for (int round = 0; round < 10000; ++round) {
    const test::Tree before =
        test::RandomTree({Top, "C:\\outside", "C:\\empty", "C:\\outside\\f"}, random).Make();
    Plant(world.files, before);
    Panel().lbltif.SetToolTipText(Top);
    CmdDeleteCache_Click(program);
    const test::Tree left = test::WipeModel(before).Wiped(Top);
    for (const auto& [path, node] : before) {
      ASSERT_EQ(world.files.Exists(path), left.contains(path)) << "round " << round << ' ' << path;
    }
    ASSERT_EQ(world.files.Read("C:\\outside\\f"), "kept") << round;
    ASSERT_EQ(world.files.Read("C:\\outside\\sub\\g"), "kept too") << round;
    ASSERT_EQ(world.files.Read("C:\\outside\\index.dat"), "kept as well") << round;
    ASSERT_TRUE(Exists("C:\\empty")) << round;
    process.Trace().Clear();
    world.files.Remove(Top);
  }
}

TEST_F(WipedFolder, AHostileTargetIsSkippedOrNothing) {
  Put("C:\\kept\\f", "kept");
  world.files.MakeFolder("C:\\kept.");
  // Those that name no place of their own are not even looked for.
  const std::string targets[] = {"",
                                 " ",
                                 "   ",
                                 "\\",
                                 ".",
                                 "..",
                                 "kept",
                                 "kept\\f",
                                 "C:kept",
                                 "Q:\\",
                                 "Q:",
                                 "\\\\server\\share",
                                 "\\\\server",
                                 "NUL",
                                 "CON",
                                 "C:\\NUL",
                                 "\\\\.\\PhysicalDrive0",
                                 "C:\\kept\\f",
                                 "C:\\kept\\f\\",
                                 "C:\\kept\\f.",
                                 "C:\\none",
                                 "C:\\none\\none",
                                 "C:\\none\\*.*",
                                 "C:\\kept\\*",
                                 "C:\\kept\\*.*",
                                 "C:\\k?pt",
                                 "C:\\\"kept\"",
                                 "\"C:\\kept\"",
                                 "C:\\kept|",
                                 "C:\\<kept>",
                                 "file:///C:/kept",
                                 "C:\\",
                                 "C:/",
                                 std::string("\0C:\\kept", 8),
                                 "C:\\" + std::string(300, 'n'),
                                 std::string(300, '\\'),
                                 std::string(70000, 'n'),
                                 "%TEMP%",
                                 "C:\\kept:stream",
                                 ";"};
  ASSERT_EQ(std::size(targets), 40U);
  for (const std::string& target : targets) {
    process.Trace().Clear();
    WipeFolder(program, target);
    if (target != "C:\\kept\\f") ScrambleAndKill(program, target);
    EXPECT_EQ(world.files.Read("C:\\kept\\f"), "kept") << target;
    EXPECT_TRUE(IsCleaningTarget(target) || process.Trace().Lines().empty()) << target;
  }
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

// The same through the two places that keep a target.
TEST_F(WipedFolder, AHostileTextInALabelOrTheTextBoxIsNoTarget) {
  Put("C:\\kept\\f", "kept");
  SelectOnly(Panel().chkCachetemp);
  for (const char* target : {"", " ", "\\", "..", "kept", "C:kept", "C:\\", "C:/", "C:\\kept\\f",
                             "C:\\kept\\f.", "C:\\kept\\*.*", "C:\\NUL"}) {
    Panel().lblotf.SetToolTipText(target);
    Click(Panel().CmdDeleteCache);
    Panel().txtcookies.SetText(target);
    Click(Panel().cmddeleteCookies);
    if (std::string(target) != "C:\\kept\\f") {
      Panel().optOpera.SetValue(true);
      Panel().txtcookies.SetText(target);
      Click(Panel().cmddeleteCookies);
    }
    Click(Panel().optIE);
    EXPECT_EQ(world.files.Read("C:\\kept\\f"), "kept") << target;
  }
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

}  // namespace
}  // namespace vantrel::cleaning
