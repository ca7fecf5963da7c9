// What folders, their listings and their deletion promise, and files as bytes at places.
#include <gmock/gmock.h>

#include <algorithm>
#include <array>

#include "contract/Subject.h"

namespace vantrel::platform::contract {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class FoldersContract : public ContractTest {
 protected:
  std::vector<DirectoryEntry> List(const std::string& pattern, std::int32_t code = 0) {
    std::vector<DirectoryEntry> entries;
    EXPECT_EQ(folders_.ListFolder(pattern, entries), code) << pattern;
    return entries;
  }
  std::vector<std::string> Names(const std::string& pattern, std::int32_t code = 0) {
    std::vector<std::string> names;
    for (const DirectoryEntry& entry : List(pattern, code)) names.push_back(entry.Name);
    return names;
  }
  void Put(const std::string& name, const std::string& content = "x") {
    subject_->PutFile(folder_ + name, content);
  }
  bool Exists(const std::string& name) { return subject_->ReadFile(folder_ + name).has_value(); }

  Folders& folders_ = platform_.folders;
  const std::string folder_ = subject_->Folder();
};

INSTANTIATE_TEST_SUITE_P(All, FoldersContract, AllKinds, KindName);

TEST_P(FoldersContract, AFolderExistsUnderAnySpelling) {
  subject_->MakeFolder(folder_ + "\\Sub");
  for (const char* spelling : {"\\Sub", "\\sUB", "/Sub", "\\Sub\\", "\\Sub/"}) {
    EXPECT_TRUE(folders_.FolderExists(folder_ + spelling)) << spelling;
  }
  EXPECT_TRUE(folders_.FolderExists("C:\\"));
}

TEST_P(FoldersContract, FilesAndNothingAreNoFolders) {
  Put("\\file");
  EXPECT_FALSE(folders_.FolderExists(folder_ + "\\file"));
  EXPECT_FALSE(folders_.FolderExists(folder_ + "\\none"));
  EXPECT_FALSE(folders_.FolderExists(folder_ + "\\none\\none"));
  EXPECT_FALSE(folders_.FolderExists(folder_ + "\\*"));
  EXPECT_FALSE(folders_.FolderExists(""));
}

TEST_P(FoldersContract, AListingHasDotEntriesFilesAndFolders) {
  Put("\\b.txt", "12345");
  subject_->MakeFolder(folder_ + "\\Sub");
  const auto entries = List(folder_ + "\\*.*");
  ASSERT_EQ(entries.size(), 4U);
  EXPECT_EQ(entries[0].Name, ".");
  EXPECT_EQ(entries[1].Name, "..");
  for (const DirectoryEntry& entry : entries) {
    const bool file = entry.Name == "b.txt";
    EXPECT_EQ((entry.Attributes & AttributeDirectory) == 0, file) << entry.Name;
    EXPECT_EQ(entry.Attributes & AttributeReparsePoint, 0U) << entry.Name;
    EXPECT_EQ(entry.Size, file ? 5U : 0U) << entry.Name;
  }
}

TEST_P(FoldersContract, APatternChoosesNamesWithoutRegardToCase) {
  Put("\\cookies.txt");
  Put("\\Cookies4.dat");
  Put("\\other");
  EXPECT_THAT(Names(folder_ + "\\COOKIES*"), UnorderedElementsAre("cookies.txt", "Cookies4.dat"));
  EXPECT_THAT(Names(folder_ + "/cookies.t?t"), ElementsAre("cookies.txt"));
  EXPECT_THAT(Names(folder_ + "\\other"), ElementsAre("other"));
  EXPECT_EQ(Names(folder_ + "\\*.*").size(), 5U);
}

TEST_P(FoldersContract, NothingThatMatchesIsFileNotFoundAndNoFolderIsPathNotFound) {
  EXPECT_THAT(Names(folder_ + "\\none*", ErrorFileNotFound), IsEmpty());
  EXPECT_THAT(Names(folder_ + "\\none\\*.*", ErrorPathNotFound), IsEmpty());
}

TEST_P(FoldersContract, HiddenAndReadOnlyFilesAreListedAsSuch) {
  Put("\\hidden");
  Put("\\protected");
  subject_->Hide(folder_ + "\\hidden");
  subject_->ProtectFromWriting(folder_ + "\\protected");
  EXPECT_NE(List(folder_ + "\\hidden").front().Attributes & AttributeHidden, 0U);
  EXPECT_NE(List(folder_ + "\\protected").front().Attributes & AttributeReadOnly, 0U);
}

TEST_P(FoldersContract, ASystemFileIsListedAsSuchAndDeleted) {
  Put("\\system");
  EXPECT_EQ(folders_.SetFileAttributesA(folder_ + "\\system", AttributeSystem), 0);
  EXPECT_NE(List(folder_ + "\\system").front().Attributes & AttributeSystem, 0U);
  EXPECT_EQ(folders_.DeleteFileA(folder_ + "\\system"), 0);
  EXPECT_FALSE(Exists("\\system"));
}

TEST_P(FoldersContract, AListingTellsWhenAFileWasChanged) {
  constexpr std::int64_t Changed = 127'236'528'000'000'000;
  Put("\\a");
  subject_->SetChanged(folder_ + "\\a", Changed);
  EXPECT_EQ(List(folder_ + "\\a").front().Changed, Changed);
}

TEST_P(FoldersContract, LongNamesAreListedWhole) {
  const std::string name = std::string(100, 'n') + " with blanks." + std::string(40, 'e');
  Put("\\" + name, "123");
  EXPECT_THAT(Names(folder_ + "\\nn*"), ElementsAre(name));
  EXPECT_EQ(folders_.DeleteFileA(folder_ + "\\" + name), 0);
}

// Windows has a second, short name for it, which no listing gives.
TEST_P(FoldersContract, ANameThatFitsInEightLettersIsListedAsItIsWritten) {
  Put("\\short.TXT");
  Put("\\Longer than that.TXT");
  EXPECT_THAT(Names(folder_ + "\\*.txt"),
              UnorderedElementsAre("short.TXT", "Longer than that.TXT"));
}

TEST_P(FoldersContract, APathOf260CharactersNamesNothing) {
  const std::string longest = folder_ + "\\" + std::string(258 - folder_.size(), 'n');
  const std::string path = longest + "n";
  ASSERT_EQ(path.size(), 260U);
  EXPECT_FALSE(folders_.FolderExists(path));
  std::vector<DirectoryEntry> entries;
  EXPECT_NE(folders_.ListFolder(path, entries), 0);
  EXPECT_THAT(entries, IsEmpty());
  EXPECT_NE(folders_.DeleteFileA(path), 0);
  EXPECT_NE(folders_.RemoveDirectoryA(path), 0);
  EXPECT_NE(folders_.SetFileAttributesA(path, AttributeNormal), 0);
  EXPECT_FALSE(folders_.MakeSureDirectoryPathExists(longest + "\\"));
}

TEST_P(FoldersContract, AFolderInUseIsNotRemoved) {
  subject_->MakeFolder(folder_ + "\\Sub");
  subject_->Lock(folder_ + "\\Sub");
  EXPECT_EQ(folders_.RemoveDirectoryA(folder_ + "\\Sub"), ErrorSharingViolation);
  subject_->Unlock();
  EXPECT_EQ(folders_.RemoveDirectoryA(folder_ + "\\Sub"), 0);
}

TEST_P(FoldersContract, ALinkIsListedAndRemovedItself) {
  subject_->MakeFolder(folder_ + "\\Sub");
  Put("\\Sub\\a", "kept");
  if (!subject_->MakeLink(folder_ + "\\toFolder", folder_ + "\\Sub")) {
    GTEST_SKIP() << "the system makes no links";
  }
  ASSERT_TRUE(subject_->MakeLink(folder_ + "\\toFile", folder_ + "\\Sub\\a"));
  EXPECT_TRUE(folders_.FolderExists(folder_ + "\\toFolder"));
  for (const DirectoryEntry& entry : List(folder_ + "\\to*")) {
    EXPECT_NE(entry.Attributes & AttributeReparsePoint, 0U) << entry.Name;
    EXPECT_EQ(entry.Size, 0U) << entry.Name;
  }
  EXPECT_EQ(folders_.DeleteFileA(folder_ + "\\toFile"), 0);
  EXPECT_EQ(folders_.RemoveDirectoryA(folder_ + "\\toFolder"), 0);
  EXPECT_EQ(subject_->ReadFile(folder_ + "\\Sub\\a"), "kept");
}

TEST_P(FoldersContract, AListingAddsToWhatIsThere) {
  Put("\\a");
  std::vector<DirectoryEntry> entries(1);
  EXPECT_EQ(folders_.ListFolder(folder_ + "\\a", entries), 0);
  EXPECT_EQ(entries.size(), 2U);
}

TEST_P(FoldersContract, AFileIsDeleted) {
  Put("\\a");
  EXPECT_EQ(folders_.DeleteFileA(folder_ + "\\a"), 0);
  EXPECT_FALSE(Exists("\\a"));
  EXPECT_EQ(folders_.DeleteFileA(folder_ + "\\a"), ErrorFileNotFound);
  EXPECT_EQ(folders_.DeleteFileA(folder_ + "\\none\\a"), ErrorPathNotFound);
}

TEST_P(FoldersContract, AFolderAndAReadOnlyFileAreNotDeleted) {
  subject_->MakeFolder(folder_ + "\\Sub");
  EXPECT_EQ(folders_.DeleteFileA(folder_ + "\\Sub"), ErrorAccessDenied);
  Put("\\protected");
  subject_->ProtectFromWriting(folder_ + "\\protected");
  EXPECT_EQ(folders_.DeleteFileA(folder_ + "\\protected"), ErrorAccessDenied);
  EXPECT_EQ(folders_.SetFileAttributesA(folder_ + "\\protected", AttributeNormal), 0);
  EXPECT_EQ(folders_.DeleteFileA(folder_ + "\\protected"), 0);
}

TEST_P(FoldersContract, AHiddenFileIsDeleted) {
  Put("\\hidden");
  subject_->Hide(folder_ + "\\hidden");
  EXPECT_EQ(folders_.DeleteFileA(folder_ + "\\hidden"), 0);
}

TEST_P(FoldersContract, AFileThatIsOpenForItselfAloneIsNotDeleted) {
  Put("\\locked");
  subject_->Lock(folder_ + "\\locked");
  EXPECT_EQ(folders_.DeleteFileA(folder_ + "\\locked"), 32);
  subject_->Unlock();
  EXPECT_TRUE(Exists("\\locked"));
}

TEST_P(FoldersContract, OnlyAnEmptyFolderIsRemoved) {
  subject_->MakeFolder(folder_ + "\\Sub");
  Put("\\Sub\\a");
  EXPECT_EQ(folders_.RemoveDirectoryA(folder_ + "\\Sub"), ErrorDirectoryNotEmpty);
  EXPECT_EQ(folders_.DeleteFileA(folder_ + "\\Sub\\a"), 0);
  EXPECT_EQ(folders_.RemoveDirectoryA(folder_ + "\\Sub"), 0);
  EXPECT_FALSE(folders_.FolderExists(folder_ + "\\Sub"));
  EXPECT_EQ(folders_.RemoveDirectoryA(folder_ + "\\Sub"), ErrorFileNotFound);
  EXPECT_EQ(folders_.RemoveDirectoryA(folder_ + "\\none\\Sub"), ErrorPathNotFound);
  Put("\\file");
  EXPECT_EQ(folders_.RemoveDirectoryA(folder_ + "\\file"), ErrorDirectory);
}

TEST_P(FoldersContract, AttributesOfNothingCannotBeSet) {
  EXPECT_EQ(folders_.SetFileAttributesA(folder_ + "\\none", AttributeNormal), ErrorFileNotFound);
  EXPECT_EQ(folders_.SetFileAttributesA(folder_ + "\\none\\a", AttributeNormal), ErrorPathNotFound);
}

TEST_P(FoldersContract, APathIsMadeUpToItsLastBackslash) {
  EXPECT_TRUE(folders_.MakeSureDirectoryPathExists(folder_ + "\\a\\b\\c"));
  EXPECT_TRUE(folders_.FolderExists(folder_ + "\\a\\b"));
  EXPECT_FALSE(folders_.FolderExists(folder_ + "\\a\\b\\c"));
  EXPECT_TRUE(folders_.MakeSureDirectoryPathExists(folder_ + "\\a\\b\\c\\"));
  EXPECT_TRUE(folders_.FolderExists(folder_ + "\\a\\b\\c"));
  EXPECT_TRUE(folders_.MakeSureDirectoryPathExists(folder_ + "\\a\\b\\c\\"));
}

TEST_P(FoldersContract, AForwardSlashHidesTheLastPartOfAPath) {
  EXPECT_TRUE(folders_.MakeSureDirectoryPathExists(folder_ + "/CurrentBackup"));
  EXPECT_FALSE(folders_.FolderExists(folder_ + "\\CurrentBackup"));
}

TEST_P(FoldersContract, AFileInTheLastFoldersPlaceIsTrueAndFartherUpItIsNot) {
  Put("\\file");
  EXPECT_TRUE(folders_.MakeSureDirectoryPathExists(folder_ + "\\file\\"));
  EXPECT_FALSE(folders_.MakeSureDirectoryPathExists(folder_ + "\\file\\below\\"));
}

class BinaryFilesContract : public ContractTest {
 protected:
  OpenFileHandle Open(const std::string& name, FileAccess access) {
    OpenFileHandle file = 0;
    EXPECT_EQ(files_.OpenFile(folder_ + name, access, file), 0) << name;
    EXPECT_NE(file, 0U);
    return file;
  }
  std::int32_t Refusal(const std::string& name, FileAccess access) {
    OpenFileHandle file = 0;
    const std::int32_t code = files_.OpenFile(folder_ + name, access, file);
    EXPECT_EQ(file, 0U) << name;
    return code;
  }
  std::string ReadAt(OpenFileHandle file, std::uint64_t offset, std::size_t length) {
    std::string buffer(length, '#');
    std::size_t count = 99;
    EXPECT_EQ(files_.ReadAt(file, offset, buffer, count), 0);
    return buffer.substr(0, count);
  }
  void Put(const std::string& name, const std::string& content) {
    subject_->PutFile(folder_ + name, content);
  }

  BinaryFiles& files_ = platform_.binaryFiles;
  const std::string folder_ = subject_->Folder();
};

INSTANTIATE_TEST_SUITE_P(All, BinaryFilesContract, AllKinds, KindName);

TEST_P(BinaryFilesContract, BytesAreReadAtAnyPlace) {
  Put("\\a", std::string("0123\0\r\n\x1A\xFF", 9));
  const OpenFileHandle file = Open("\\a", FileAccess::Read);
  EXPECT_EQ(files_.FileLength(file), 9U);
  EXPECT_EQ(ReadAt(file, 2, 4), std::string("23\0\r", 4));
  EXPECT_EQ(ReadAt(file, 7, 10), "\x1A\xFF");
  EXPECT_EQ(ReadAt(file, 9, 1), "");
  EXPECT_EQ(ReadAt(file, 99, 1), "");
  EXPECT_EQ(files_.WriteAt(file, 0, "x"), ErrorAccessDenied);
  files_.CloseFile(file);
}

TEST_P(BinaryFilesContract, BytesAreWrittenInPlaceAndBeyondTheEnd) {
  Put("\\a", "abcdef");
  const OpenFileHandle file = Open("\\a", FileAccess::ReadWrite);
  EXPECT_EQ(files_.WriteAt(file, 1, "XY"), 0);
  EXPECT_EQ(files_.WriteAt(file, 8, "Z"), 0);
  EXPECT_EQ(files_.FileLength(file), 9U);
  EXPECT_EQ(ReadAt(file, 0, 20), std::string("aXYdef\0\0Z", 9));
  files_.CloseFile(file);
  EXPECT_EQ(subject_->ReadFile(folder_ + "\\a"), std::string("aXYdef\0\0Z", 9));
}

TEST_P(BinaryFilesContract, AMissingFileIsNotMade) {
  EXPECT_EQ(Refusal("\\none", FileAccess::ReadWrite), ErrorFileNotFound);
  EXPECT_EQ(Refusal("\\none\\a", FileAccess::Read), ErrorPathNotFound);
  EXPECT_FALSE(subject_->ReadFile(folder_ + "\\none"));
}

TEST_P(BinaryFilesContract, AReadOnlyFileIsOpenedForReadingAlone) {
  Put("\\protected", "x");
  const std::string path = folder_ + "\\protected";
  if (!subject_->ProtectFromWriting(path)) GTEST_SKIP() << "this user may write read-only files";
  EXPECT_EQ(Refusal("\\protected", FileAccess::ReadWrite), ErrorAccessDenied);
  files_.CloseFile(Open("\\protected", FileAccess::Read));
}

TEST_P(BinaryFilesContract, FoldersAndLockedFilesAreRefused) {
  subject_->MakeFolder(folder_ + "\\Sub");
  EXPECT_EQ(Refusal("\\Sub", FileAccess::Read), ErrorAccessDenied);
  Put("\\locked", "x");
  subject_->Lock(folder_ + "\\locked");
  EXPECT_EQ(Refusal("\\locked", FileAccess::Read), 32);
}

TEST_P(BinaryFilesContract, ALinkIsFollowedUnlessTheAccessRefusesIt) {
  Put("\\a", "kept");
  files_.CloseFile(Open("\\a", FileAccess::ReadWriteNoLink));
  if (!subject_->MakeLink(folder_ + "\\link", folder_ + "\\a")) {
    GTEST_SKIP() << "the system makes no links";
  }
  const OpenFileHandle file = Open("\\link", FileAccess::ReadWrite);
  EXPECT_EQ(ReadAt(file, 0, 10), "kept");
  files_.CloseFile(file);
  EXPECT_EQ(Refusal("\\link", FileAccess::ReadWriteNoLink), ErrorAccessDenied);
}

TEST_P(BinaryFilesContract, FoldersLockedAndMissingFilesAreRefusedWithoutLinksToo) {
  subject_->MakeFolder(folder_ + "\\Sub");
  EXPECT_EQ(Refusal("\\Sub", FileAccess::ReadWriteNoLink), ErrorAccessDenied);
  Put("\\locked", "x");
  subject_->Lock(folder_ + "\\locked");
  EXPECT_EQ(Refusal("\\locked", FileAccess::ReadWriteNoLink), ErrorSharingViolation);
  EXPECT_EQ(Refusal("\\none", FileAccess::ReadWriteNoLink), ErrorFileNotFound);
  Put("\\a", "before");
  const OpenFileHandle file = Open("\\a", FileAccess::ReadWriteNoLink);
  EXPECT_EQ(files_.WriteAt(file, 0, "AFTER"), 0);
  files_.CloseFile(file);
  EXPECT_EQ(subject_->ReadFile(folder_ + "\\a"), "AFTERe");
}

TEST_P(BinaryFilesContract, AnOpenFileCanBeDeletedAndWrittenByOthers) {
  Put("\\a", "before");
  const OpenFileHandle file = Open("\\a", FileAccess::ReadWrite);
  EXPECT_EQ(platform_.files.WriteTextFile(folder_ + "\\a", "other"), 0);
  EXPECT_EQ(ReadAt(file, 0, 10), "other");
  EXPECT_EQ(platform_.folders.DeleteFileA(folder_ + "\\a"), 0);
  files_.CloseFile(file);
  EXPECT_FALSE(subject_->ReadFile(folder_ + "\\a"));
}

TEST_P(BinaryFilesContract, NoOpenFileHasNoLengthAndNoBytes) {
  std::array<char, 4> buffer{};
  std::size_t count = 7;
  EXPECT_EQ(files_.FileLength(0), 0U);
  EXPECT_EQ(files_.ReadAt(0, 0, buffer, count), ErrorInvalidHandle);
  EXPECT_EQ(count, 0U);
  EXPECT_EQ(files_.WriteAt(0, 0, "x"), ErrorInvalidHandle);
  files_.CloseFile(0);
}

class RecycleBinContract : public ContractTest {};

INSTANTIATE_TEST_SUITE_P(All, RecycleBinContract, AllKinds, KindName);

TEST_P(RecycleBinContract, IsEmptiedAndStaysEmpty) {
  const std::string folder = subject_->Folder();
  for (const char* name : {"\\one", "\\two"}) {
    subject_->PutFile(folder + name, "x");
    if (!subject_->Recycle(folder + name)) GTEST_SKIP() << "the bin is not this run's own";
    EXPECT_FALSE(subject_->ReadFile(folder + name)) << name;
  }
  ASSERT_EQ(subject_->ItemsInBin(), 2);
  EXPECT_EQ(platform_.shell.SHEmptyRecycleBinA(0, "", SherbNoConfirmation), 0);
  EXPECT_EQ(subject_->ItemsInBin(), 0);
  // What an empty one gives is the system's own; it stays empty.
  platform_.shell.SHEmptyRecycleBinA(0, "", SherbNoConfirmation);
  platform_.shell.SHUpdateRecycleBinIcon();
  EXPECT_EQ(subject_->ItemsInBin(), 0);
}

class SpecialFoldersContract : public ContractTest {};

INSTANTIATE_TEST_SUITE_P(All, SpecialFoldersContract, AllKinds, KindName);

TEST_P(SpecialFoldersContract, TheFoldersInUseHavePaths) {
  for (const int number : {8, 26, 32, 33, 34}) {
    ItemList list = 0;
    ASSERT_EQ(platform_.shell.SHGetSpecialFolderLocation(0, number, list), 0) << number;
    std::array<char, PathRoom> path{};
    ASSERT_TRUE(platform_.shell.SHGetPathFromIDListA(list, path)) << number;
    EXPECT_TRUE(platform_.folders.FolderExists(path.data())) << path.data();
    platform_.shell.CoTaskMemFree(list);
  }
}

TEST_P(SpecialFoldersContract, ANumberThatIsNoFolderFails) {
  ItemList list = 7;
  EXPECT_NE(platform_.shell.SHGetSpecialFolderLocation(0, 9999, list), 0);
  platform_.shell.CoTaskMemFree(0);
}

}  // namespace
}  // namespace vantrel::platform::contract
