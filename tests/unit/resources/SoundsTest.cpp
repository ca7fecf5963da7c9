// What the build has made of the sound recipes, read and measured sample by sample.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr std::array<std::string_view, 11> Names{"alert",  "click",    "crash", "double",
                                                 "drop",   "pop",      "pop2",  "slip",
                                                 "vanish", "vaporize", "woosh"};

std::string Content(std::string_view name) {
  std::ifstream file(VANTREL_SOUNDS_FOLDER "/" + std::string(name) + ".wav", std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// The little-endian number of `size` bytes at `place`; 0 past the end.
std::uint32_t Number(const std::string& bytes, std::size_t place, std::size_t size) {
  std::uint32_t number = 0;
  for (std::size_t i = size; i-- > 0;) {
    number =
        number << 8 | static_cast<unsigned char>(place + i < bytes.size() ? bytes[place + i] : 0);
  }
  return number;
}

struct Sound {
  std::uint32_t Format = 0;
  std::uint32_t Channels = 0;
  std::uint32_t Rate = 0;
  std::uint32_t Bits = 0;
  std::vector<int> Samples;
};

void ReadChunk(const std::string& bytes, std::size_t place, std::size_t size, Sound& sound) {
  const std::string kind = bytes.substr(place, 4);
  if (kind == "fmt ") {
    sound.Format = Number(bytes, place + 8, 2);
    sound.Channels = Number(bytes, place + 10, 2);
    sound.Rate = Number(bytes, place + 12, 4);
    sound.Bits = Number(bytes, place + 22, 2);
  } else if (kind == "data") {
    for (std::size_t i = 0; i + 1 < size; i += 2) {
      sound.Samples.push_back(static_cast<std::int16_t>(Number(bytes, place + 8 + i, 2)));
    }
  }
}

Sound Parsed(const std::string& bytes) {
  Sound sound;
  if (bytes.substr(0, 4) != "RIFF" || bytes.substr(8, 4) != "WAVE") return sound;
  for (std::size_t place = 12; place + 8 <= bytes.size();) {
    const std::size_t size = Number(bytes, place + 4, 4);
    ReadChunk(bytes, place, std::min(size, bytes.size() - place - 8), sound);
    place += 8 + size + size % 2;
  }
  return sound;
}

int Loudest(const std::vector<int>& samples) {
  int loudest = 0;
  for (const int sample : samples) loudest = std::max(loudest, std::abs(sample));
  return loudest;
}

class Sounds : public testing::TestWithParam<std::string_view> {
 protected:
  const std::string Bytes = Content(GetParam());
  const Sound Heard = Parsed(Bytes);
};

TEST_P(Sounds, ArePlainMonoOfSixteenBits) {
  EXPECT_EQ(Heard.Format, 1U);
  EXPECT_EQ(Heard.Channels, 1U);
  EXPECT_EQ(Heard.Bits, 16U);
  EXPECT_GE(Heard.Rate, 22050U);
}

TEST_P(Sounds, AreShortAndSmall) {
  EXPECT_LT(Bytes.size(), 100U * 1024U);
  ASSERT_GT(Heard.Rate, 0U);
  const double seconds = static_cast<double>(Heard.Samples.size()) / Heard.Rate;
  EXPECT_GT(seconds, 0.03);
  EXPECT_LT(seconds, 1.5);
}

TEST_P(Sounds, AreLoudEnoughAndDoNotClip) {
  const double level = 20 * std::log10(Loudest(Heard.Samples) / 32768.0 + 1e-9);
  EXPECT_GE(level, -6.0);
  EXPECT_LE(level, -1.0);
}

TEST_P(Sounds, BeginAndEndWithoutAClick) {
  ASSERT_GT(Heard.Samples.size(), 2U);
  EXPECT_LT(std::abs(Heard.Samples.front()), 1000);
  EXPECT_LT(std::abs(Heard.Samples.back()), 1000);
}

INSTANTIATE_TEST_SUITE_P(All, Sounds, testing::ValuesIn(Names),
                         [](const auto& sound) { return std::string(sound.param); });

TEST(AllSounds, AreDistinct) {
  std::set<std::string> contents;
  for (const std::string_view name : Names) contents.insert(Content(name));
  EXPECT_EQ(contents.size(), Names.size());
}

}  // namespace
