// The product name of a library, by its bytes, beside a plain transcription of the search.
#include <gmock/gmock.h>

#include <cstring>
#include <random>

#include "fileutil/modFileInfo.h"
#include "support/ComponentFixture.h"
#include "support/PlainProductName.h"

namespace vantrel::fileutil {
namespace {

using namespace std::string_literals;

constexpr const char* Path = "C:\\PLUGINS\\a.dll";

// The text in 16-bit characters, low byte first.
std::string Wide(std::string_view text) {
  std::string wide;
  for (const char c : text) {
    wide += c;
    wide += '\0';
  }
  return wide;
}

// One entry of a version resource as it stands behind its length words: type word, key, terminator,
// alignment, value, terminator.
std::string Entry(const std::string& key, const std::string& value) {
  return "\1\0"s + Wide(key) + "\0\0"s + "\0\0"s + Wide(value) + "\0\0"s;
}

const std::string LandmarkBytes = "\1\0"s + Wide("StringFileInfo") + "\0\0"s;

class ProductName : public test::ComponentFixture {
 protected:
  std::string NameIn(const std::string& bytes) {
    world.files.Put(Path, bytes);
    const std::string name = GetProductName(program, Path);
    EXPECT_EQ(name, plain_.Of(bytes));
    EXPECT_EQ(program.ProductNameFallbacks, plain_.Fallbacks());
    return name;
  }

 private:
  test::plain::ProductName plain_;
};

TEST(WidenKey, TypeWordAndKeyTogetherWithoutTheLastHighByte) {
  EXPECT_EQ(WidenKey(""), "");
  EXPECT_EQ(WidenKey("Ab"), "\1\0A\0b"s);
}

TEST(ReplaceAll, ReplacesAsLongAsThereIsOne) {
  EXPECT_EQ(ReplaceAll("a&b&&c", "&", ""), "abc");
  EXPECT_EQ(ReplaceAll("aabb", "ab", ""), "");
  EXPECT_EQ(ReplaceAll("abc", "x", "y"), "abc");
}

TEST_F(ProductName, IsTheWideValueBehindTheLandmark) {
  EXPECT_EQ(NameIn("MZ\0\0"s + Entry("ProductName", "Before") + LandmarkBytes +
                   Entry("ProductName", "Helper Bar") + "\0\0"s),
            "Helper Bar");
}

TEST_F(ProductName, AWideValueWithoutAlignmentIsReadFromItsFirstByte) {
  EXPECT_EQ(NameIn(LandmarkBytes + "\1\0"s + Wide("ProductName") + "\0\0"s + Wide("Bar") + "\0\0"s),
            "Bar");
}

TEST_F(ProductName, OfSeveralLanguagesIsTheFirst) {
  EXPECT_EQ(NameIn(LandmarkBytes + Entry("ProductName", "One") + "\0"s +
                   Entry("ProductName", "Two") + "\0"s),
            "One");
}

TEST_F(ProductName, IsTheNarrowValueWhereThereIsNoWideLandmark) {
  EXPECT_EQ(NameIn("ProductName\0first\0\0\0StringFileInfo\0..ProductName\0Old Bar\0\0\0"s),
            "Old Bar");
}

TEST_F(ProductName, WithoutAnyLandmarkTheTextInTheDataCounts) {
  EXPECT_EQ(NameIn("data ProductName\0whatever follows\0\0\0"s), "whatever follows");
}

TEST_F(ProductName, AWideLandmarkAloneLooksForNoNarrowKey) {
  EXPECT_EQ(NameIn(LandmarkBytes + "ProductName\0Narrow\0\0\0"s), "");
}

TEST_F(ProductName, AnEmptyValueIsAnEmptyName) {
  EXPECT_EQ(NameIn(LandmarkBytes + Entry("ProductName", "") + "\0\0\0\0"s), "");
}

TEST_F(ProductName, AMissingEndMarkIsAnEmptyName) {
  EXPECT_EQ(NameIn("ProductName\0no end"s), "");
  EXPECT_EQ(NameIn("ProductName\0ends short\0\0"s), "");
}

TEST_F(ProductName, AKeyAtTheVeryEndIsAnEmptyName) {
  EXPECT_EQ(NameIn("ProductName"), "");
  EXPECT_EQ(NameIn(LandmarkBytes + WidenKey("ProductName")), "");
}

TEST_F(ProductName, NonLatinCharactersKeepTheirHighBytes) {
  EXPECT_EQ(NameIn(LandmarkBytes + "\1\0"s + Wide("ProductName") + "\0\0\0\0"s +
                   "\x41\x04\x42\x04\0\0\0"s),
            "\x41\x04\x42\x04"s);
}

TEST_F(ProductName, RunningIntoTheNextEntryEndsItOneCharacterEarly) {
  EXPECT_EQ(NameIn("ProductName\0Old Bar\1ProductVersion\0\0\0"s), "Old Ba");
  EXPECT_EQ(program.ProductNameFallbacks, 1);
}

TEST_F(ProductName, TheGuardCountsAlsoWithoutAControlCharacter) {
  const std::string longValue = std::string(300, 'n') + "ProductVersion";
  EXPECT_EQ(NameIn("ProductName\0"s + longValue + "\0\0\0"s), longValue);
  EXPECT_EQ(program.ProductNameFallbacks, 1);
}

TEST_F(ProductName, TheGuardLooksAtTheCharactersUpToThe255th) {
  EXPECT_EQ(NameIn("ProductName\0"s + std::string(255, 'n') + "\1ProductVersion\0\0\0"s),
            std::string(254, 'n'));
  EXPECT_EQ(NameIn("ProductName\0"s + std::string(256, 'n') + "\1ProductVersion\0\0\0"s),
            std::string(256, 'n') + "\1ProductVersion");
}

TEST_F(ProductName, AFileThatCannotBeReadHasNone) {
  EXPECT_EQ(GetProductName(program, "C:\\none.dll"), "");
  world.files.Put(Path, "ProductName\0x\0\0\0"s);
  world.files.SetLocked(Path, true);
  EXPECT_EQ(GetProductName(program, Path), "");
  EXPECT_EQ(program.fileNumbers.FreeFile(), 1);
}

TEST_F(ProductName, AFileThatCannotBeReadToItsEndHasNone) {
  world.files.Put(Path, std::string(600 * 1024, 'x') + "ProductName\0x\0\0\0"s);
  for (std::size_t read = 1; read <= 3; ++read) {
    process.Faults().FailCall("ReadAt", read, platform::ErrorAccessDenied);
    EXPECT_EQ(GetProductName(program, Path), "");
    process.Faults().Clear();
    EXPECT_EQ(process.OpenFiles(), 0U);
  }
  EXPECT_EQ(GetProductName(program, Path), "x");
}

TEST_F(ProductName, OfAFolderIsNone) {
  world.files.MakeFolder("C:\\PLUGINS\\x.dll");
  EXPECT_EQ(GetProductName(program, "C:\\PLUGINS\\x.dll"), "");
}

TEST_F(ProductName, AVersionCutAnywhereGivesThePlainSearchsName) {
  const std::string whole =
      "MZ"s + LandmarkBytes + Entry("ProductName", "Bar") + Entry("ProductVersion", "1") + "\0\0"s;
  for (std::size_t length = 0; length <= whole.size(); ++length) NameIn(whole.substr(0, length));
  EXPECT_EQ(NameIn(whole), "Bar");
}

// A file of zeros with a tail, as a sparse file has them; its bytes are made when they are read.
class SparseFile : public platform::BinaryFiles {
 public:
  SparseFile(std::uint64_t zeros, std::string tail) : zeros_(zeros), tail_(std::move(tail)) {}

  std::int32_t OpenFile(const std::string& /*path*/, platform::FileAccess /*access*/,
                        platform::OpenFileHandle& opened) override {
    opened = 1;
    return platform::ErrorSuccess;
  }
  std::uint64_t FileLength(platform::OpenFileHandle /*file*/) override {
    return zeros_ + tail_.size();
  }
  std::int32_t ReadAt(platform::OpenFileHandle file, std::uint64_t offset, std::span<char> buffer,
                      std::size_t& count) override {
    const std::uint64_t left = FileLength(file) - std::min(offset, FileLength(file));
    count = static_cast<std::size_t>(std::min<std::uint64_t>(buffer.size(), left));
    std::memset(buffer.data(), 0, count);
    const std::uint64_t end = offset + count;
    for (std::uint64_t at = std::max(offset, zeros_); at < end; ++at) {
      buffer[static_cast<std::size_t>(at - offset)] = tail_[static_cast<std::size_t>(at - zeros_)];
    }
    return platform::ErrorSuccess;
  }
  std::int32_t WriteAt(platform::OpenFileHandle /*file*/, std::uint64_t /*offset*/,
                       std::string_view /*bytes*/) override {
    return platform::ErrorAccessDenied;
  }
  void CloseFile(platform::OpenFileHandle /*file*/) override {}

 private:
  std::uint64_t zeros_;
  std::string tail_;
};

TEST_F(ProductName, OfAFileBeyond4GigabytesIsFoundAtItsEnd) {
  SparseFile file(std::uint64_t{1} << 32U, "ProductName\0Far Bar\0\0\0"s);
  const platform::Platform whole = process.Platform();
  program::Program other(
      {whole.registry, whole.desktop, whole.shell, whole.files, whole.processes, whole.sound,
       whole.dialogs, whole.system, whole.modules, whole.folders, file},
      toolkit);
  EXPECT_EQ(GetProductName(other, Path), "Far Bar");
}

// The sequences lie across the borders of the blocks in which the file is read.
TEST_F(ProductName, IsFoundAcrossTheBordersOfBlocks) {
  constexpr std::size_t Block = 256 * 1024;
  for (const std::size_t before : {Block - 1, Block - 13, Block - 27, Block - 30, Block - 60}) {
    EXPECT_EQ(NameIn(std::string(before, 'x') + LandmarkBytes + Entry("ProductName", "Wide Bar") +
                     "\0\0\0"s),
              "Wide Bar");
    EXPECT_EQ(NameIn(std::string(before, 'x') + "StringFileInfo\0ProductName\0Narrow\0\0\0"s),
              "Narrow");
  }
}

TEST_F(ProductName, RandomBytesGiveTheSameAsThePlainSearch) {
  std::mt19937 random(7);
  const std::string pieces[] = {LandmarkBytes,
                                WidenKey("ProductName"),
                                Entry("ProductName", "N"),
                                Entry("ProductVersion", "1"),
                                "StringFileInfo",
                                "ProductName",
                                "ProductVersion",
                                "\0\0\0"s,
                                "\0"s,
                                "\0\0"s,
                                "\1",
                                "Bar"};
  for (int round = 0; round < 20000; ++round) {
    std::string bytes;
    for (unsigned count = random() % 12; count > 0; --count) {
      bytes += pieces[random() % std::size(pieces)];
      if (random() % 4 == 0) bytes += static_cast<char>(random());
    }
    // Cut anywhere.
    if (!bytes.empty() && random() % 2 == 0) bytes.resize(random() % bytes.size());
    NameIn(bytes);
    ASSERT_FALSE(HasFailure()) << testing::PrintToString(bytes);
  }
}

}  // namespace
}  // namespace vantrel::fileutil
