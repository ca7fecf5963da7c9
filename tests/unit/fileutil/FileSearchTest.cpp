// The search for files: lists cut at delimiters, folders at every depth, names by pattern.
#include <gmock/gmock.h>

#include "fileutil/FileSearch.h"
#include "support/ComponentFixture.h"
#include "windows/FrmFrameHistory.h"

namespace vantrel::fileutil {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Pieces {
  std::int32_t highest = 0;
  std::vector<std::string> elements;
};

Pieces Cut(const std::string& list, std::string delimiters = "") {
  Pieces pieces;
  pieces.highest = SplitList(list, delimiters, pieces.elements);
  return pieces;
}

TEST(SplitList, AnEmptyTextAndALoneDelimiterAreEmptyLists) {
  EXPECT_EQ(Cut("").highest, -1);
  EXPECT_EQ(Cut(";").highest, -1);
  EXPECT_EQ(Cut("|", "|").highest, -1);
}

TEST(SplitList, OneLetterIsAList) {
  EXPECT_EQ(Cut("a").highest, 0);
  EXPECT_THAT(Cut("a").elements, ElementsAre("a"));
  EXPECT_THAT(Cut("a;").elements, ElementsAre("a"));
}

TEST(SplitList, TwoDelimitersInARowGiveAnEmptyElement) {
  EXPECT_EQ(Cut("a;;b").highest, 2);
  EXPECT_THAT(Cut("a;;b").elements, ElementsAre("a", "", "b"));
  EXPECT_EQ(Cut(";;").highest, 1);
  EXPECT_THAT(Cut(";;").elements, ElementsAre("", ""));
}

TEST(SplitList, AnEmptySetBecomesTheFiveDelimitersForTheCallerToo) {
  std::string delimiters;
  std::vector<std::string> elements{"left over"};
  EXPECT_EQ(SplitList(std::string("a\0b\tc\nd\re;f", 11), delimiters, elements), 5);
  EXPECT_THAT(elements, ElementsAre("a", "b", "c", "d", "e", "f"));
  EXPECT_EQ(delimiters, std::string(";\0\t\n\r", 5));
}

TEST(SplitList, AGivenSetIsKept) {
  EXPECT_THAT(Cut("a,b;c", ",").elements, ElementsAre("a", "b;c"));
}

class FileSearch : public test::ComponentFixture {
 protected:
  void Put(const std::string& path, const std::string& content = "x") {
    world.files.Put(path, content);
  }
  FileSearchResult Search(const std::string& roots, const std::string& patterns) {
    FileSearchResult result;
    SearchFiles(program, roots, patterns, platform::AttributeDirectory, platform::AttributeArchive,
                result);
    return result;
  }
  std::string Hit() { return program.windows.FrmFrameHistory->txtcookies.Text(); }
};

TEST_F(FileSearch, FindsFilesBelowTheRootAtAllDepths) {
  Put("C:\\M\\p1\\cookies.txt", "four");
  Put("C:\\M\\p1\\deep\\er\\cookies.txt", "");
  Put("C:\\M\\p2\\other.txt");
  const FileSearchResult found = Search("C:\\M", "cookies.txt");
  EXPECT_EQ(found.Count, 2);
  EXPECT_THAT(found.Paths,
              ElementsAre("C:\\M\\p1\\cookies.txt", "C:\\M\\p1\\deep\\er\\cookies.txt"));
  EXPECT_THAT(found.Sizes, ElementsAre(4, 0));
  EXPECT_THAT(found.Dates, testing::SizeIs(2));
  EXPECT_THAT(found.Attributes,
              testing::Each(testing::Eq(std::uint32_t{platform::AttributeArchive})));
  EXPECT_EQ(found.Path(1), "C:\\M\\p1\\cookies.txt");
}

TEST_F(FileSearch, ARootWithTheFileInItAndNoSubfolderFindsNothing) {
  Put("C:\\M\\cookies.txt");
  EXPECT_EQ(Search("C:\\M", "cookies.txt").Count, 0);
}

TEST_F(FileSearch, AMissingRootFindsNothing) {
  EXPECT_EQ(Search("C:\\none", "cookies.txt").Count, 0);
}

TEST_F(FileSearch, ThePathOfAnEmptyResultIsAnInvalidCall) {
  const FileSearchResult empty;
  try {
    empty.Path(1);
    FAIL() << "no error";
  } catch (const text::RuntimeError& error) {
    EXPECT_EQ(error.Number(), text::ErrorNumber::InvalidProcedureCall);
  }
}

TEST_F(FileSearch, AParentStandsBeforeItsChildrenDepthFirst) {
  world.files.MakeFolder("C:\\R\\a\\b");
  world.files.MakeFolder("C:\\R\\c");
  Put("C:\\R\\file");
  FileSearchResult folders;
  ListSubFoldersDeep(program, "C:\\R", platform::AttributeDirectory, folders);
  EXPECT_THAT(folders.Paths, ElementsAre("C:\\R\\a", "C:\\R\\a\\b", "C:\\R\\c"));
  EXPECT_THAT(folders.Sizes, ElementsAre(0, 0, 0));
}

TEST_F(FileSearch, TwoSpellingsOfOneFolderAreSearchedOnce) {
  world.files.MakeFolder("C:\\R\\a");
  FileSearchResult folders;
  ListSubFolders(program, "C:\\R; c:\\r\\ ", platform::AttributeDirectory, folders);
  EXPECT_THAT(folders.Paths, ElementsAre("C:\\R\\a"));
}

TEST_F(FileSearch, AFolderWhoseNameEndsAnEarlierOneIsPassedOver) {
  Put("C:\\x\\C:\\y\\f");
  world.files.MakeFolder("C:\\a\\b");
  FileSearchResult folders;
  ListSubFolders(program, "C:\\a;\\;C:\\a\\", platform::AttributeDirectory, folders);
  // The lone backslash, which is the root of the current drive, ends "C:\a\".
  EXPECT_THAT(folders.Paths, ElementsAre("C:\\a\\b"));
}

TEST_F(FileSearch, AnEmptyFolderElementIsTheRootOfTheCurrentDrive) {
  world.files.MakeFolder("C:\\R\\a");
  FileSearchResult folders;
  ListSubFolders(program, ";C:\\R", platform::AttributeDirectory, folders);
  EXPECT_THAT(folders.Paths, testing::Contains("\\R"));
  EXPECT_EQ(folders.Paths.back(), "C:\\R\\a");
}

TEST_F(FileSearch, DatesAreThoseOfTheListing) {
  Put("C:\\R\\a\\f");
  world.files.SetChanged("C:\\R\\a", 1);
  world.files.SetChanged("C:\\R\\a\\f", 127'000'000'000'000'000);
  FileSearchResult folders;
  ListSubFoldersDeep(program, "C:\\R", platform::AttributeDirectory, folders);
  EXPECT_THAT(folders.Dates, ElementsAre(1));
  EXPECT_THAT(Search("C:\\R", "f").Dates, ElementsAre(127'000'000'000'000'000));
}

TEST_F(FileSearch, MessagesRunAtEachNameOfFoldersAndOnceForEachListingOfFiles) {
  int pumps = 0;
  toolkit.DuringDoEvents = [&] { ++pumps; };
  const auto pumpsOf = [&](const auto& walk) {
    pumps = 0;
    walk();
    return pumps;
  };
  Put("C:\\R\\a\\f");
  Put("C:\\R\\b\\f");
  Put("C:\\R\\f");
  FileSearchResult found;
  // ".", "..", "a", "b" and "f".
  EXPECT_EQ(pumpsOf([&] { ListSubFolders(program, "C:\\R", 16, found); }), 5);
  EXPECT_EQ(pumpsOf([&] { FindFilesIn(program, "C:\\R;C:\\R\\a", "f;g;*", 32, found); }), 6);
  // Once a folder, whatever it holds.
  EXPECT_EQ(pumpsOf([&] { FindLastFile(program, "C:\\R", "f"); }), 3);
}

TEST_F(FileSearch, WhatAListingGaveBeforeItFailedIsFound) {
  for (const char* name : {"a\\f", "b\\f", "f1", "f2"}) Put(std::string("C:\\R\\") + name);
  process.Faults().SetEntriesBeforeFailure(3);
  process.Faults().FailCall("ListFolder", 1, platform::ErrorAccessDenied);
  FileSearchResult folders;
  EXPECT_THROW(ListSubFolders(program, "C:\\R", 16, folders), text::RuntimeError);
  EXPECT_THAT(folders.Paths, ElementsAre("C:\\R\\a"));
  process.Faults().SetEntriesBeforeFailure(1);
  process.Faults().FailCall("ListFolder", 1, platform::ErrorAccessDenied);
  FileSearchResult files;
  EXPECT_THROW(FindFilesIn(program, "C:\\R", "f*", 32, files), text::RuntimeError);
  EXPECT_THAT(files.Paths, ElementsAre("C:\\R\\f1"));
  process.Faults().FailCall("ListFolder", 2, platform::ErrorAccessDenied);
  EXPECT_THROW(FindLastFile(program, "C:\\R", "f*"), text::RuntimeError);
  EXPECT_EQ(Hit(), "C:\\R\\f1");
}

TEST_F(FileSearch, TheIndexOfNotedFoldersHas16Bits) {
  for (int folder = 0; folder < 32767; ++folder) {
    world.files.MakeFolder("C:\\O\\d" + std::to_string(folder));
  }
  EXPECT_NO_THROW(FindLastFile(program, "C:\\O", "cookies*"));
  world.files.MakeFolder("C:\\O\\last");
  try {
    FindLastFile(program, "C:\\O", "cookies*");
    FAIL() << "no error";
  } catch (const text::RuntimeError& error) {
    EXPECT_EQ(error.Number(), text::ErrorNumber::Overflow);
  }
}

TEST_F(FileSearch, HiddenFoldersAreNotListed) {
  world.files.MakeFolder("C:\\R\\hidden");
  world.files.SetAttributes("C:\\R\\hidden", platform::AttributeHidden);
  FileSearchResult folders;
  ListSubFolders(program, "C:\\R", platform::AttributeDirectory, folders);
  EXPECT_THAT(folders.Paths, IsEmpty());
}

TEST_F(FileSearch, ALinkToAFolderIsPassedOver) {
  Put("C:\\outside\\in\\cookies.txt");
  world.files.MakeFolder("C:\\R");
  world.files.MakeLink("C:\\R\\link", "C:\\outside");
  EXPECT_EQ(Search("C:\\R", "cookies.txt").Count, 0);
}

TEST_F(FileSearch, EachPatternIsSearchedOnceInEachFolder) {
  Put("C:\\R\\a.txt");
  Put("C:\\R\\b.dat");
  FileSearchResult files;
  FindFilesIn(program, "C:\\R", "*.txt; *.TXT ;*.dat", platform::AttributeArchive, files);
  EXPECT_THAT(files.Paths, ElementsAre("C:\\R\\a.txt", "C:\\R\\b.dat"));
}

TEST_F(FileSearch, TheLastHitOfTheWalkStays) {
  Put("C:\\O\\cookies.dat");
  Put("C:\\O\\a\\cookies4.dat");
  Put("C:\\O\\a\\z\\Cookies");
  Put("C:\\O\\b\\none.dat");
  FindLastFile(program, "C:\\O", "cookies*");
  EXPECT_EQ(Hit(), "C:\\O\\a\\z\\Cookies");
}

TEST_F(FileSearch, WithoutAMatchTheTextStays) {
  program.windows.FrmFrameHistory->txtcookies.SetText("before");
  Put("C:\\O\\other.dat");
  FindLastFile(program, "C:\\O\\", "cookies*");
  EXPECT_EQ(Hit(), "before");
}

TEST_F(FileSearch, AHiddenFileIsNoHit) {
  Put("C:\\O\\cookies.dat");
  world.files.SetAttributes("C:\\O\\cookies.dat", platform::AttributeHidden);
  program.windows.FrmFrameHistory->txtcookies.SetText("");
  FindLastFile(program, "C:\\O", "cookies*");
  EXPECT_EQ(Hit(), "");
}

TEST_F(FileSearch, AFolderThatCannotBeReadIsAnErrorAtTheCaller) {
  Put("C:\\O\\cookies.dat");
  process.Faults().FailCall("ListFolder", 1, platform::ErrorAccessDenied);
  try {
    FindLastFile(program, "C:\\O", "cookies*");
    FAIL() << "no error";
  } catch (const text::RuntimeError& error) {
    EXPECT_EQ(error.Number(), text::ErrorNumber::PermissionDenied);
  }
}

}  // namespace
}  // namespace vantrel::fileutil
