// What the files promise.
#include <gmock/gmock.h>

#include "contract/Subject.h"

namespace vantrel::platform::contract {
namespace {

class FilesContract : public ContractTest {
 protected:
  Files& files_ = platform_.files;
  const std::string folder_ = subject_->Folder();
};

INSTANTIATE_TEST_SUITE_P(All, FilesContract, AllKinds, KindName);

TEST_P(FilesContract, ExistingFileExistsUnderAnySpelling) {
  subject_->PutFile(folder_ + "\\Log.txt", "x");
  EXPECT_TRUE(files_.FileExists(folder_ + "\\Log.txt"));
  EXPECT_TRUE(files_.FileExists(folder_ + "\\lOG.TXT"));
  EXPECT_TRUE(files_.FileExists(folder_ + "/Log.txt"));
}

TEST_P(FilesContract, FolderAndNothingAreNoFiles) {
  subject_->MakeFolder(folder_ + "\\Sub");
  EXPECT_FALSE(files_.FileExists(folder_ + "\\Sub"));
  EXPECT_FALSE(files_.FileExists(folder_ + "\\none"));
  EXPECT_FALSE(files_.FileExists(folder_ + "\\none\\none"));
  EXPECT_FALSE(files_.FileExists(""));
  subject_->PutFile(folder_ + "\\file", "x");
  EXPECT_FALSE(files_.FileExists(folder_ + "\\file\\"));
}

TEST_P(FilesContract, WritingCreatesAndReplaces) {
  const std::string path = folder_ + "\\new.txt";
  EXPECT_EQ(files_.WriteTextFile(path, "a long first content"), 0);
  EXPECT_EQ(files_.WriteTextFile(path, "short"), 0);
  EXPECT_EQ(subject_->ReadFile(path), "short");
  EXPECT_EQ(files_.WriteTextFile(path, ""), 0);
  EXPECT_EQ(subject_->ReadFile(path), "");
}

TEST_P(FilesContract, WritesExactlyTheBytes) {
  const std::string bytes("a\0b\r\nc\n\xFF\x1A", 9);
  EXPECT_EQ(files_.WriteTextFile(folder_ + "\\bytes", bytes), 0);
  EXPECT_EQ(subject_->ReadFile(folder_ + "\\bytes"), bytes);
}

TEST_P(FilesContract, WritingIntoAMissingFolderIsPathNotFound) {
  EXPECT_EQ(files_.WriteTextFile(folder_ + "\\none\\new.txt", "x"), ErrorPathNotFound);
  EXPECT_EQ(files_.WriteTextFile("", "x"), ErrorPathNotFound);
  subject_->PutFile(folder_ + "\\file", "x");
  EXPECT_EQ(files_.WriteTextFile(folder_ + "\\file\\new.txt", "x"), ErrorPathNotFound);
}

TEST_P(FilesContract, WritingOverAFolderIsRefused) {
  subject_->MakeFolder(folder_ + "\\Sub");
  EXPECT_EQ(files_.WriteTextFile(folder_ + "\\Sub", "x"), ErrorAccessDenied);
  EXPECT_EQ(files_.WriteTextFile(folder_ + "\\Sub\\", "x"), ErrorAccessDenied);
}

TEST_P(FilesContract, ForbiddenCharactersAreAnInvalidName) {
  for (const char* name : {"a?b", "a*b", "a|b", "a<b", "a>b", "a\"b"}) {
    EXPECT_EQ(files_.WriteTextFile(folder_ + "\\" + name, "x"), ErrorInvalidName) << name;
  }
  subject_->PutFile(folder_ + "\\file", "x");
  EXPECT_EQ(files_.WriteTextFile(folder_ + "\\file\\", "x"), ErrorInvalidName);
}

TEST_P(FilesContract, HiddenFileIsReplacedAndStaysHidden) {
  const std::string path = folder_ + "\\hidden.txt";
  subject_->PutFile(path, "before");
  subject_->Hide(path);
  EXPECT_TRUE(files_.FileExists(path));
  EXPECT_EQ(files_.WriteTextFile(path, "after"), 0);
  EXPECT_EQ(subject_->ReadFile(path), "after");
  EXPECT_TRUE(subject_->IsHidden(path));
}

TEST_P(FilesContract, FileOpenElsewhereForItselfAloneIsASharingViolation) {
  const std::string path = folder_ + "\\locked.txt";
  subject_->PutFile(path, "before");
  subject_->Lock(path);
  EXPECT_TRUE(files_.FileExists(path));
  EXPECT_EQ(files_.WriteTextFile(path, "after"), ErrorSharingViolation);
  subject_->Unlock();
  EXPECT_EQ(subject_->ReadFile(path), "before");
}

TEST_P(FilesContract, ReadingGivesExactlyTheBytesAndLengthCountsThem) {
  const std::string bytes("a\0b\r\nc\n\xFF\x1Az", 10);
  subject_->PutFile(folder_ + "\\bytes", bytes);
  std::string content = "before";
  EXPECT_EQ(files_.ReadTextFile(folder_ + "\\BYTES", content), ErrorSuccess);
  EXPECT_EQ(content, bytes);
  std::uint64_t length = 0;
  EXPECT_EQ(files_.FileLength(folder_ + "\\BYTES", length), ErrorSuccess);
  EXPECT_EQ(length, bytes.size());
}

TEST_P(FilesContract, EmptyAndLargeFilesAreReadWhole) {
  std::string content = "before";
  std::uint64_t length = 1;
  subject_->PutFile(folder_ + "\\empty", "");
  EXPECT_EQ(files_.ReadTextFile(folder_ + "\\empty", content), ErrorSuccess);
  EXPECT_EQ(content, "");
  EXPECT_EQ(files_.FileLength(folder_ + "\\empty", length), ErrorSuccess);
  EXPECT_EQ(length, 0U);
  const std::string large(20'000'001, 'x');
  EXPECT_EQ(files_.WriteTextFile(folder_ + "\\large", large), ErrorSuccess);
  EXPECT_EQ(files_.ReadTextFile(folder_ + "\\large", content), ErrorSuccess);
  EXPECT_TRUE(content == large);
}

TEST_P(FilesContract, AppendingCreatesAndExtends) {
  const std::string path = folder_ + "\\list.txt";
  EXPECT_EQ(files_.AppendTextFile(path, "one\r\n"), ErrorSuccess);
  EXPECT_EQ(files_.AppendTextFile(path, ""), ErrorSuccess);
  EXPECT_EQ(files_.AppendTextFile(path, std::string("\0\xFF", 2)), ErrorSuccess);
  EXPECT_EQ(subject_->ReadFile(path), std::string("one\r\n\0\xFF", 7));
}

TEST_P(FilesContract, CreatingLeavesAFileThatIsThereAsItIs) {
  const std::string path = folder_ + "\\made.txt";
  EXPECT_EQ(files_.CreateTextFile(path), ErrorSuccess);
  EXPECT_EQ(subject_->ReadFile(path), "");
  subject_->PutFile(path, "content");
  EXPECT_EQ(files_.CreateTextFile(path), ErrorSuccess);
  EXPECT_EQ(subject_->ReadFile(path), "content");
}

TEST_P(FilesContract, SpellingsThatDifferInCaseAreOneFile) {
  const std::string first = folder_ + "\\AllowList.txt";
  EXPECT_EQ(files_.CreateTextFile(first), ErrorSuccess);
  EXPECT_EQ(files_.AppendTextFile(folder_ + "\\Allowlist.TXT", "a"), ErrorSuccess);
  EXPECT_EQ(files_.AppendTextFile(folder_ + "\\Allowlist.txt", "b"), ErrorSuccess);
  std::string content;
  EXPECT_EQ(files_.ReadTextFile(first, content), ErrorSuccess);
  EXPECT_EQ(content, "ab");
  EXPECT_EQ(files_.WriteTextFile(folder_ + "\\Allowlist.txt", "c"), ErrorSuccess);
  EXPECT_EQ(subject_->ReadFile(first), "c");
}

// What each call gives for one path, in the order length, read, create, append.
std::vector<std::int32_t> CodesOf(Files& files, const std::string& path) {
  std::uint64_t length = 0;
  std::string content = "before";
  std::vector<std::int32_t> codes = {files.FileLength(path, length),
                                     files.ReadTextFile(path, content)};
  EXPECT_EQ(content, "");
  codes.push_back(files.CreateTextFile(path));
  codes.push_back(files.AppendTextFile(path, "x"));
  return codes;
}

TEST_P(FilesContract, MissingFilesAndFoldersAreToldApart) {
  std::uint64_t length = 7;
  std::string content;
  EXPECT_EQ(files_.FileLength(folder_ + "\\none", length), ErrorFileNotFound);
  EXPECT_EQ(length, 7U);
  EXPECT_EQ(files_.ReadTextFile(folder_ + "\\none", content), ErrorFileNotFound);
  EXPECT_THAT(CodesOf(files_, folder_ + "\\none\\none"), testing::Each(ErrorPathNotFound));
  EXPECT_THAT(CodesOf(files_, ""), testing::Each(ErrorPathNotFound));
}

TEST_P(FilesContract, FolderIsNeitherReadNorExtended) {
  subject_->MakeFolder(folder_ + "\\Sub");
  EXPECT_THAT(CodesOf(files_, folder_ + "\\Sub"), testing::Each(ErrorAccessDenied));
}

TEST_P(FilesContract, FileOpenElsewhereForItselfAloneHasALengthAndNoMore) {
  const std::string path = folder_ + "\\locked.txt";
  subject_->PutFile(path, "before");
  subject_->Lock(path);
  EXPECT_THAT(CodesOf(files_, path),
              testing::ElementsAre(ErrorSuccess, ErrorSharingViolation, ErrorSharingViolation,
                                   ErrorSharingViolation));
  subject_->Unlock();
  EXPECT_EQ(subject_->ReadFile(path), "before");
}

TEST_P(FilesContract, FileOpenElsewhereAndSharedIsReadReplacedAndExtended) {
  const std::string path = folder_ + "\\shared.txt";
  subject_->PutFile(path, "before");
  subject_->OpenShared(path);
  std::string content;
  EXPECT_EQ(files_.ReadTextFile(path, content), ErrorSuccess);
  EXPECT_EQ(content, "before");
  EXPECT_EQ(files_.CreateTextFile(path), ErrorSuccess);
  EXPECT_EQ(files_.WriteTextFile(path, "a"), ErrorSuccess);
  EXPECT_EQ(files_.AppendTextFile(path, "b"), ErrorSuccess);
  EXPECT_EQ(files_.ReadTextFile(path, content), ErrorSuccess);
  EXPECT_EQ(content, "ab");
}

TEST_P(FilesContract, ReadOnlyFileIsReadAndNeitherReplacedNorExtended) {
  const std::string path = folder_ + "\\kept.txt";
  subject_->PutFile(path, "before");
  if (!subject_->ProtectFromWriting(path)) GTEST_SKIP() << "this user may write read-only files";
  std::string content;
  EXPECT_EQ(files_.ReadTextFile(path, content), ErrorSuccess);
  EXPECT_EQ(content, "before");
  EXPECT_EQ(files_.CreateTextFile(path), ErrorAccessDenied);
  EXPECT_EQ(files_.WriteTextFile(path, "after"), ErrorAccessDenied);
  EXPECT_EQ(files_.AppendTextFile(path, "after"), ErrorAccessDenied);
  EXPECT_EQ(subject_->ReadFile(path), "before");
}

TEST_P(FilesContract, HiddenFileIsReadAndExtendedAndStaysHidden) {
  const std::string path = folder_ + "\\hidden.txt";
  subject_->PutFile(path, "before");
  subject_->Hide(path);
  EXPECT_EQ(files_.AppendTextFile(path, " and after"), ErrorSuccess);
  std::string content;
  EXPECT_EQ(files_.ReadTextFile(path, content), ErrorSuccess);
  EXPECT_EQ(content, "before and after");
  EXPECT_TRUE(subject_->IsHidden(path));
}

}  // namespace
}  // namespace vantrel::platform::contract
