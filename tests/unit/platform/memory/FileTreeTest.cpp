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

TEST(FileTree, PartOfAPathIsAMisuse) {
  testing::GTEST_FLAG(death_test_style) = "threadsafe";
  FileTree files;
  EXPECT_DEATH(files.Put("file.txt", ""), "not a full path");
  EXPECT_DEATH(files.SetLocked("C:\\none", true), "no file or folder");
}

}  // namespace
}  // namespace vantrel::platform::memory
