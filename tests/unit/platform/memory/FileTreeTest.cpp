#include <gmock/gmock.h>

#include "platform/memory/FileTree.h"

namespace vantrel::platform::memory {
namespace {

using testing::ElementsAre;

TEST(FileTree, PathsFoldCaseAndTakeBothSlashes) {
  FileTree files;
  files.Put("C:\\Dir\\File.txt", "x");
  EXPECT_EQ(files.Read("c:/dIR//file.TXT"), "x");
  EXPECT_EQ(files.Write("c:/dir/FILE.txt", "y"), 0);
  EXPECT_THAT(files.AllFiles(), ElementsAre("C:\\Dir\\File.txt"));
}

TEST(FileTree, ListsOneFolderOnly) {
  FileTree files;
  files.Put("C:\\Dir\\b.txt", "");
  files.Put("C:\\Dir\\A\\deep.txt", "");
  files.Put("C:\\Dirt.txt", "");
  EXPECT_THAT(files.List("C:\\Dir\\"), ElementsAre("A", "b.txt"));
}

TEST(FileTree, ReadOnlyAndLockedFilesRefuse) {
  FileTree files;
  files.Put("C:\\a", "before");
  files.SetReadOnly("C:\\a", true);
  EXPECT_EQ(files.Write("C:\\a", "after"), 5);
  files.SetReadOnly("C:\\a", false);
  files.SetLocked("C:\\a", true);
  EXPECT_EQ(files.Write("C:\\a", "after"), 32);
  EXPECT_EQ(files.Read("C:\\a"), "before");
}

TEST(FileTree, FullDiskLeavesTheFileCut) {
  FileTree files;
  files.Put("C:\\a", "x");
  files.SetFreeSpace(3);
  EXPECT_EQ(files.Write("C:\\a", "after"), 112);
  EXPECT_EQ(files.Read("C:\\a"), "");
  EXPECT_EQ(files.Write("C:\\a", "abcd"), 0);
}

TEST(FileTree, CuttingAFileGivesItsSpaceBackAndAFailedAppendTakesNone) {
  FileTree files;
  files.Put("C:\\a", "");
  files.SetFreeSpace(4);
  EXPECT_EQ(files.Write("C:\\a", "abcd"), 0);
  EXPECT_EQ(files.Append("C:\\a", "e"), 112);
  EXPECT_EQ(files.Write("C:\\a", "ab"), 0);
  EXPECT_EQ(files.Append("C:\\a", "cde"), 112);
  EXPECT_EQ(files.Append("C:\\a", "cd"), 0);
  EXPECT_EQ(files.Read("C:\\a"), "abcd");
}

TEST(FileTree, RemovingAFolderTakesWhatIsBelowAndNoNeighbour) {
  FileTree files;
  files.Put("C:\\Dir\\Sub\\a", "");
  files.Put("C:\\Directory", "");
  files.Remove("C:\\dir");
  EXPECT_FALSE(files.IsFolder("C:\\Dir\\Sub"));
  EXPECT_TRUE(files.IsFile("C:\\Directory"));
}

std::vector<std::string> Matching(const FileTree& files, const std::string& pattern) {
  std::vector<DirectoryEntry> entries;
  std::vector<std::string> names;
  files.ListMatching(pattern, entries);
  for (const DirectoryEntry& entry : entries) names.push_back(entry.Name);
  return names;
}

TEST(FileTree, PatternsMatchNamesWithoutRegardToCase) {
  FileTree files;
  files.Put("C:\\Dir\\Cookies.txt", "");
  files.Put("C:\\Dir\\cookies4.dat", "");
  files.Put("C:\\Dir\\none", "");
  EXPECT_THAT(Matching(files, "C:\\Dir\\COOKIES*"), ElementsAre("Cookies.txt", "cookies4.dat"));
  EXPECT_THAT(Matching(files, "C:\\Dir\\*.t?t"), ElementsAre("Cookies.txt"));
  EXPECT_THAT(Matching(files, "C:\\Dir\\*.*"),
              ElementsAre(".", "..", "Cookies.txt", "cookies4.dat", "none"));
  EXPECT_THAT(Matching(files, "C:\\Dir\\none"), ElementsAre("none"));
  EXPECT_THAT(Matching(files, "C:\\*.*"), ElementsAre("Dir"));
}

TEST(FileTree, ALinkStandsForItsTargetAndIsRemovedItself) {
  FileTree files;
  files.Put("C:\\out\\f", "x");
  files.MakeLink("C:\\Dir\\link", "C:\\out");
  EXPECT_EQ(files.Read("C:\\Dir\\link\\f"), "x");
  EXPECT_EQ(files.AttributesOf("C:\\Dir\\link"), AttributeDirectory | AttributeReparsePoint);
  EXPECT_EQ(files.RemoveFolder("C:\\Dir\\link"), 0);
  EXPECT_EQ(files.Read("C:\\out\\f"), "x");
}

TEST(FileTree, ALinkMayLeadBackToItselfOrNowhere) {
  FileTree files;
  files.MakeFolder("C:\\a");
  files.MakeLink("C:\\a\\self", "C:\\a");
  EXPECT_TRUE(files.IsFolder("C:\\a\\self\\self"));
  files.MakeFolder("C:\\b");
  files.MakeLink("C:\\a\\gone", "C:\\b");
  files.Remove("C:\\b");
  EXPECT_TRUE(files.Exists("C:\\a\\gone"));
  EXPECT_FALSE(files.IsFolder("C:\\a\\gone"));
  EXPECT_EQ(files.RemoveFolder("C:\\a\\gone"), 0);
}

TEST(FileTree, AnOpenFileOutlivesItsName) {
  FileTree files;
  files.Put("C:\\f", "abc");
  std::shared_ptr<FileTree::Node> file;
  ASSERT_EQ(files.Open("C:\\f", true, file), 0);
  EXPECT_EQ(files.Delete("C:\\f"), 0);
  EXPECT_EQ(files.WriteAt(*file, 5, "x"), 0);
  EXPECT_EQ(FileTree::ContentOf(*file), std::string("abc\0\0x", 6));
}

TEST(FileTree, PathsAreMadeUpToTheLastBackslash) {
  FileTree files;
  EXPECT_TRUE(files.MakePath("C:\\a\\b\\c"));
  EXPECT_TRUE(files.IsFolder("C:\\a\\b"));
  EXPECT_FALSE(files.Exists("C:\\a\\b\\c"));
  files.Put("C:\\a\\file", "");
  EXPECT_TRUE(files.MakePath("C:\\a\\file\\"));
  EXPECT_FALSE(files.MakePath("C:\\a\\file\\below\\"));
  EXPECT_FALSE(files.MakePath("Q:\\a\\"));
}

TEST(FileTree, PartOfAPathIsAMisuse) {
  testing::GTEST_FLAG(death_test_style) = "threadsafe";
  FileTree files;
  EXPECT_DEATH(files.Put("file.txt", ""), "not a full path");
  EXPECT_DEATH(files.SetLocked("C:\\none", true), "no file or folder");
}

}  // namespace
}  // namespace vantrel::platform::memory
