// What the build has drawn: every strip that the table promises, at every scale.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "resources/ImageStrips.h"
#include "resources/Picture.h"

namespace vantrel::resources {
namespace {

std::optional<Picture> Drawn(int resource) {
  std::ifstream file(VANTREL_PICTURES_FOLDER "/" + std::to_string(resource) + ".qoi",
                     std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  return UnpackPicture(std::as_bytes(std::span(bytes)));
}

// The pixels of the strip's image at `index`, from 0.
std::vector<std::uint32_t> Cell(const Picture& strip, int index, int width) {
  std::vector<std::uint32_t> cell;
  for (int y = 0; y < strip.Height; ++y) {
    const auto row = strip.Pixels.begin() + y * strip.Width + index * width;
    cell.insert(cell.end(), row, row + width);
  }
  return cell;
}

bool ShowsSomething(const std::vector<std::uint32_t>& cell) {
  return std::any_of(cell.begin(), cell.end(), [](auto pixel) { return pixel >> 24 > 200; });
}

void ExpectDistinctImages(const Picture& picture, const ImageStrip& strip, int scale) {
  const int width = ScaledLength(strip.Width, scale);
  std::set<std::vector<std::uint32_t>> images;
  for (int index = 0; index < strip.ImageCount; ++index) {
    const auto cell = Cell(picture, index, width);
    EXPECT_TRUE(ShowsSomething(cell)) << strip.Name << ' ' << index + 1;
    EXPECT_TRUE(images.insert(cell).second) << strip.Name << ' ' << index + 1;
  }
}

TEST(Strips, EachIsThereAtEachScaleInItsSize) {
  for (const ImageStrip& strip : ImageStrips) {
    for (std::size_t place = 0; place < ImageScales.size(); ++place) {
      const auto picture = Drawn(strip.Resource + static_cast<int>(place));
      ASSERT_TRUE(picture) << strip.Name << ' ' << ImageScales[place];
      EXPECT_EQ(picture->Width, ScaledLength(strip.Width, ImageScales[place]) * strip.ImageCount);
      EXPECT_EQ(picture->Height, ScaledLength(strip.Height, ImageScales[place]));
    }
  }
}

TEST(Strips, NoImageIsBlankOrLikeAnotherOfItsList) {
  for (const ImageStrip& strip : ImageStrips) {
    for (std::size_t place = 0; place < ImageScales.size(); ++place) {
      const auto picture = Drawn(strip.Resource + static_cast<int>(place));
      ASSERT_TRUE(picture);
      ExpectDistinctImages(*picture, strip, ImageScales[place]);
    }
  }
}

TEST(Strips, NoColourIsBrighterThanItsAlphaAllows) {
  const auto picture = Drawn(ImageStrips[0].Resource);
  ASSERT_TRUE(picture);
  for (const std::uint32_t pixel : picture->Pixels) {
    const std::uint32_t alpha = pixel >> 24;
    EXPECT_LE(std::max({pixel >> 16 & 255, pixel >> 8 & 255, pixel & 255}), alpha);
  }
}

}  // namespace
}  // namespace vantrel::resources
