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
    EXPECT_EQ(files_.WriteTextFile(folder_ + "\\" + name, "x"), 123) << name;
  }
  subject_->PutFile(folder_ + "\\file", "x");
  EXPECT_EQ(files_.WriteTextFile(folder_ + "\\file\\", "x"), 123);
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
  EXPECT_EQ(files_.WriteTextFile(path, "after"), 32);
  subject_->Unlock();
  EXPECT_EQ(subject_->ReadFile(path), "before");
}

}  // namespace
}  // namespace vantrel::platform::contract
