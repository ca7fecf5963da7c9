// What overwriting leaves, beside a plain transcription of its passes.
#include <gmock/gmock.h>

#include "cleaning/Scramble.h"
#include "support/ComponentFixture.h"

namespace vantrel::cleaning {
namespace {

// The passes one by one on a file of bytes, with 1-based positions.
std::string PassesOver(std::string file, int fileNumber, RandomNumbers& random) {
  const std::size_t length = file.size();
  std::size_t position = 1;
  const auto put = [&file](std::size_t at, char byte) {
    if (file.size() < at) file.resize(at, '\0');
    file[at - 1] = byte;
  };
  for (std::size_t i = 0; i <= length; ++i) {
    const char a = static_cast<char>(static_cast<int>(160 * random.Next()) + 1);
    const char b = static_cast<char>(static_cast<int>(60 * random.Next()) + 2);
    const std::size_t before = position;
    put(static_cast<std::size_t>(fileNumber), a);
    put(before, b);
    position = before + 1;
    if (i == 50000) break;
  }
  return file;
}

std::string Applied(std::string file, const std::vector<Overwrite>& rows) {
  for (const Overwrite& row : rows) {
    if (file.size() < row.Offset + row.Bytes.size()) {
      file.resize(row.Offset + row.Bytes.size(), '\0');
    }
    file.replace(row.Offset, row.Bytes.size(), row.Bytes);
  }
  return file;
}

class Passes : public testing::TestWithParam<std::size_t> {};

INSTANTIATE_TEST_SUITE_P(Lengths, Passes,
                         testing::Values(0, 1, 2, 3, 200, 49999, 50000, 50001, 200000));

TEST_P(Passes, OneBufferLeavesTheBytesOfThePasses) {
  const std::string before(GetParam(), '\xFF');
  for (const int number : {1, 2, 3, 7, 255, 511}) {
    RandomNumbers one(42);
    RandomNumbers other(42);
    const auto rows = OverwritesOf(before.size(), number, one);
    EXPECT_EQ(Applied(before, rows), PassesOver(before, number, other)) << number;
    EXPECT_LE(rows.size(), 3U);
  }
}

TEST(Scrambled, BytesLieInTheirRanges) {
  RandomNumbers random(1);
  bool beyond61 = false;
  for (int round = 0; round < 2000; ++round) {
    const std::string left = Applied("12", OverwritesOf(2, 1, random));
    ASSERT_EQ(left.size(), 3U);
    const auto mark = static_cast<unsigned char>(left[0]);
    EXPECT_GE(mark, 1);
    EXPECT_LE(mark, 160);
    beyond61 |= mark > 61;
    for (const char byte : left.substr(1)) {
      EXPECT_GE(byte, 2);
      EXPECT_LE(byte, 61);
    }
  }
  EXPECT_TRUE(beyond61);
}

class ScrambledFile : public test::ComponentFixture {
 protected:
  static constexpr const char* Path = "C:\\f.dat";
  std::string Content() { return world.files.Read(Path).value_or("gone"); }
};

TEST_F(ScrambledFile, AShortFileGrowsByOneByte) {
  world.files.Put(Path, "secret");
  ScrambleFile(program, Path);
  EXPECT_EQ(Content().size(), 7U);
  EXPECT_EQ(Content().find("secret"), std::string::npos);
}

TEST_F(ScrambledFile, AnEmptyFileGainsBytesAtTheNumbersPositionAndTheFirst) {
  world.files.Put(Path, "");
  ASSERT_EQ(program.fileNumbers.Open(1, "C:\\Program Files\\Vantrel\\Vantrel.exe",
                                     platform::FileAccess::Read),
            0);
  ScrambleFile(program, Path);
  ASSERT_EQ(Content().size(), 2U);
  EXPECT_NE(Content()[1], '\0');
}

TEST_F(ScrambledFile, OfALargeFileOnlyTheHeadIsOverwritten) {
  const std::string tail(1000, 'T');
  world.files.Put(Path, std::string(50001, 'H') + tail);
  ScrambleFile(program, Path);
  EXPECT_EQ(Content().size(), 51001U);
  EXPECT_EQ(Content().substr(50001), tail);
  EXPECT_EQ(Content().substr(0, 50001).find('H', 1), std::string::npos);
}

TEST_F(ScrambledFile, OnAFullDiskTheBytesThatAreThereGoAllTheSame) {
  world.files.Put(Path, "secret");
  world.files.SetFreeSpace(0);
  ScrambleFile(program, Path);
  EXPECT_EQ(Content().size(), 6U);
  EXPECT_EQ(Content().find("secret"), std::string::npos);
}

TEST_F(ScrambledFile, ReadOnlyLockedAndMissingFilesStayAsTheyAre) {
  world.files.Put(Path, "kept");
  world.files.SetAttributes(Path, platform::AttributeReadOnly);
  ScrambleFile(program, Path);
  EXPECT_EQ(Content(), "kept");
  world.files.SetAttributes(Path, 0);
  world.files.SetLocked(Path, true);
  ScrambleAndKill(program, Path);
  EXPECT_EQ(Content(), "kept");
  ScrambleAndKill(program, "C:\\none\\none.dat");
  ScrambleAndKill(program, "");
  EXPECT_EQ(program.fileNumbers.FreeFile(), 1);
}

TEST_F(ScrambledFile, TheRandomNumbersComeFromTheClock) {
  const auto scrambled = [this] {
    world.files.Put(Path, std::string(40, 'x'));
    ScrambleFile(program, Path);
    return Content();
  };
  const std::string first = scrambled();
  EXPECT_EQ(scrambled(), first);
  world.clock.Advance(1000);
  EXPECT_NE(scrambled(), first);
}

TEST_F(ScrambledFile, KillDeletesIt) {
  world.files.Put(Path, "secret");
  ScrambleAndKill(program, Path);
  EXPECT_EQ(Content(), "gone");
}

TEST_F(ScrambledFile, AFolderIsLeftAlone) {
  world.files.Put("C:\\folder\\kept", "x");
  ScrambleAndKill(program, "C:\\folder");
  EXPECT_TRUE(world.files.IsFile("C:\\folder\\kept"));
}

}  // namespace
}  // namespace vantrel::cleaning
