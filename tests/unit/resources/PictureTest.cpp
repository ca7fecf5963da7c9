#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

#include "resources/Picture.h"

namespace vantrel::resources {
namespace {

std::vector<std::byte> Bytes(std::initializer_list<int> values) {
  std::vector<std::byte> bytes;
  for (int value : values) bytes.push_back(static_cast<std::byte>(value));
  return bytes;
}

// The header of a picture of one row, followed by `pixels`.
std::vector<std::byte> OneRow(int width, std::initializer_list<int> pixels) {
  auto bytes = Bytes({'q', 'o', 'i', 'f', 0, 0, 0, width, 0, 0, 0, 1, 4, 0});
  for (std::byte value : Bytes(pixels)) bytes.push_back(value);
  return bytes;
}

std::vector<std::uint32_t> PixelsOf(const std::vector<std::byte>& bytes) {
  const auto picture = UnpackPicture(bytes);
  return picture ? picture->Pixels : std::vector<std::uint32_t>{};
}

using Pixels = std::vector<std::uint32_t>;

TEST(Picture, KeepsItsSides) {
  const auto picture =
      UnpackPicture(Bytes({'q', 'o', 'i', 'f', 0, 0, 0, 3, 0, 0, 0, 2, 4, 0, 0xC0 | 5}));
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->Width, 3);
  EXPECT_EQ(picture->Height, 2);
  EXPECT_EQ(picture->Pixels.size(), 6U);
}

TEST(Picture, ColoursAreMultipliedByAlpha) {
  EXPECT_EQ(PixelsOf(OneRow(1, {0xFF, 255, 128, 0, 128})), Pixels{0x80804000});
  EXPECT_EQ(PixelsOf(OneRow(1, {0xFF, 255, 255, 255, 0})), Pixels{0x00000000});
}

TEST(Picture, AWholeColourKeepsTheAlphaBeforeIt) {
  EXPECT_EQ(PixelsOf(OneRow(2, {0xFF, 0, 0, 0, 0, 0xFE, 9, 9, 9})), (Pixels{0, 0}));
  EXPECT_EQ(PixelsOf(OneRow(1, {0xFE, 1, 2, 3})), Pixels{0xFF010203});
}

TEST(Picture, ARunRepeatsThePixelBeforeIt) {
  EXPECT_EQ(PixelsOf(OneRow(3, {0xFE, 1, 2, 3, 0xC0 | 1})),
            (Pixels{0xFF010203, 0xFF010203, 0xFF010203}));
}

TEST(Picture, ARunEndsWhereItSays) {
  EXPECT_EQ(PixelsOf(OneRow(3, {0xFE, 1, 2, 3, 0xC0, 0xFE, 4, 5, 6})),
            (Pixels{0xFF010203, 0xFF010203, 0xFF040506}));
}

TEST(Picture, StartsWithOpaqueBlack) {
  EXPECT_EQ(PixelsOf(OneRow(2, {0xC0 | 1})), (Pixels{0xFF000000, 0xFF000000}));
}

TEST(Picture, ASeenColourComesBackByItsSlot) {
  const int slot = (1 * 3 + 2 * 5 + 3 * 7 + 255 * 11) % 64;
  EXPECT_EQ(PixelsOf(OneRow(3, {0xFE, 1, 2, 3, 0xFE, 200, 0, 0, slot})),
            (Pixels{0xFF010203, 0xFFC80000, 0xFF010203}));
}

TEST(Picture, SmallDifferencesGoRoundPastTheEnds) {
  EXPECT_EQ(PixelsOf(OneRow(1, {0x40 | 1 << 4 | 3 << 2 | 2})), Pixels{0xFFFF0100});
}

TEST(Picture, LargerDifferencesFollowGreen) {
  // Green rises by 10, red by 3 more, blue by 4 less.
  EXPECT_EQ(PixelsOf(OneRow(1, {0x80 | (10 + 32), (3 + 8) << 4 | (-4 + 8)})), Pixels{0xFF0D0A06});
}

TEST(Picture, ACutPictureIsNone) {
  const auto whole = OneRow(2, {0xFF, 1, 2, 3, 4, 0xFE, 5, 6, 7});
  ASSERT_TRUE(UnpackPicture(whole));
  for (std::size_t length = 0; length < whole.size(); ++length) {
    EXPECT_FALSE(UnpackPicture(std::span(whole).first(length))) << length;
  }
}

TEST(Picture, AnotherMarkIsNone) {
  auto bytes = OneRow(1, {0xC0});
  bytes[0] = std::byte{'Q'};
  EXPECT_FALSE(UnpackPicture(bytes));
}

TEST(Picture, ImpossibleSidesAreNone) {
  const auto sized = [](int a, int b, int c, int d) {
    return Bytes({'q', 'o', 'i', 'f', a, b, c, d, 0, 0, 0, 1, 4, 0, 0xFD, 0xFD, 0xFD});
  };
  EXPECT_FALSE(UnpackPicture(sized(0, 0, 0, 0)));
  EXPECT_FALSE(UnpackPicture(sized(0, 0, 0x40, 1)));
  EXPECT_FALSE(UnpackPicture(sized(0xFF, 0xFF, 0xFF, 0xFF)));
  EXPECT_FALSE(UnpackPicture(Bytes({'q', 'o', 'i', 'f', 0, 0, 0x20, 0, 0, 0, 0x20, 0, 4, 0})));
}

}  // namespace
}  // namespace vantrel::resources
