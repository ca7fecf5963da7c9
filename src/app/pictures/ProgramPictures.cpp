#include "app/pictures/ProgramPictures.h"

#include <utility>

#include "resources/ImageStrips.h"
#include "resources/Picture.h"

namespace vantrel::app {
namespace {

std::optional<forms::win32::Picture> Unpack(std::span<const std::byte> bytes) {
  auto picture = resources::UnpackPicture(bytes);
  if (!picture) return std::nullopt;
  return forms::win32::Picture{picture->Width, picture->Height, std::move(picture->Pixels)};
}

}  // namespace

forms::win32::Pictures ProgramPictures() {
  forms::win32::Pictures pictures;
  for (const resources::ImageStrip& strip : resources::ImageStrips) {
    pictures.Strips.push_back(
        {std::string(strip.Name), strip.Resource, strip.ImageCount, strip.Width, strip.Height});
  }
  pictures.Scales.assign(resources::ImageScales.begin(), resources::ImageScales.end());
  pictures.Unpack = Unpack;
  return pictures;
}

}  // namespace vantrel::app
