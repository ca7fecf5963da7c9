// Unpacks the pictures that the program carries in itself, which are kept in the QOI format. What
// comes out can be copied into a 32-bit bitmap as it is; nothing here knows of windows or screens.
#ifndef VANTREL_RESOURCES_PICTURE_H
#define VANTREL_RESOURCES_PICTURE_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace vantrel::resources {

struct Picture {
  int Width = 0;
  int Height = 0;
  // Width times Height pixels, rows from the top, each 0xAARRGGBB with the colours already
  // multiplied by alpha: the form that alpha blending takes.
  std::vector<std::uint32_t> Pixels;
};

// The picture in `bytes`, or nothing when they are no such picture: a wrong mark, a side of 0 or
// of more than 16384 pixels, more than 2^24 pixels, or an end before the last pixel. Bytes after
// the last pixel are not looked at.
std::optional<Picture> UnpackPicture(std::span<const std::byte> bytes);

}  // namespace vantrel::resources

#endif  // VANTREL_RESOURCES_PICTURE_H
