// What a window knows of an image list: its name, its size, its keys, and where its pictures lie.
// The rows themselves are in resources/ImageStrips.h, which the build makes of the catalogue of
// drawings; nothing here reads or draws a picture.
#ifndef VANTREL_RESOURCES_IMAGE_STRIP_H
#define VANTREL_RESOURCES_IMAGE_STRIP_H

#include <cstddef>
#include <span>
#include <string_view>

namespace vantrel::resources {

struct ImageStrip {
  // The window's name, a dot, the list's name: "frmMain.imgexplore".
  std::string_view Name;
  // Number of the RCDATA resource of the first scale; the other scales follow it by one each.
  int Resource;
  int ImageCount;
  // One image's size in pixels at 96 dots per inch.
  int Width;
  int Height;
  // One key an image, in the images' order; empty for an image that has a number only.
  std::span<const std::string_view> Keys;
};

// A length of `pixels` at 96 dots per inch as it lies in a strip of `scale` percent. Image number
// n of a strip begins (n - 1) times its scaled width from the left.
constexpr int ScaledLength(int pixels, int scale) { return (pixels * scale + 50) / 100; }

// Place, in the ascending `scales` in percent, of the strip to use at `dpi` dots per inch: the
// smallest that need not be magnified, or else the largest.
constexpr std::size_t ScaleIndexFor(std::span<const int> scales, int dpi) {
  std::size_t index = 0;
  while (index + 1 < scales.size() && scales[index] * 96 < dpi * 100) ++index;
  return index;
}

}  // namespace vantrel::resources

#endif  // VANTREL_RESOURCES_IMAGE_STRIP_H
