// The program's icon as the build has drawn it: one picture for each size that Windows asks for.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

constexpr std::size_t HeaderSize = 6;
constexpr std::size_t EntrySize = 16;

std::string IconBytes() {
  std::ifstream file(VANTREL_PICTURES_FOLDER "/vantrel.ico", std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// The little-endian number of `size` bytes at `place`; the file must reach there.
unsigned Number(const std::string& bytes, std::size_t place, std::size_t size) {
  unsigned number = 0;
  for (std::size_t i = size; i-- > 0;) {
    number = number << 8 | static_cast<unsigned char>(bytes.at(place + i));
  }
  return number;
}

struct Entry {
  unsigned Width;
  unsigned Bits;
  bool Packed;  // A PNG, which systems before Vista cannot read.
};

std::vector<Entry> Entries(const std::string& bytes) {
  std::vector<Entry> entries;
  for (unsigned i = 0; i < Number(bytes, 4, 2); ++i) {
    const std::size_t place = HeaderSize + i * EntrySize;
    const unsigned width = Number(bytes, place, 1);
    const std::string mark = bytes.substr(Number(bytes, place + 12, 4), 4);
    entries.push_back({width == 0 ? 256 : width, Number(bytes, place + 6, 2), mark == "\x89PNG"});
  }
  return entries;
}

TEST(ProgramIcon, HasEverySizeOnce) {
  std::vector<unsigned> widths;
  for (const Entry& entry : Entries(IconBytes())) widths.push_back(entry.Width);
  EXPECT_EQ(widths, (std::vector<unsigned>{16, 20, 24, 32, 40, 48, 64, 128, 256}));
}

TEST(ProgramIcon, KeepsItsTransparencyInEverySize) {
  for (const Entry& entry : Entries(IconBytes())) EXPECT_EQ(entry.Bits, 32U) << entry.Width;
}

// Those systems ask for 64 at most.
TEST(ProgramIcon, OldSystemsCanReadWhatTheyAskFor) {
  for (const Entry& entry : Entries(IconBytes())) {
    EXPECT_EQ(entry.Packed, entry.Width >= 128) << entry.Width;
  }
}

}  // namespace
