#include "forms/win32/ImageStrips.h"

#include <algorithm>
#include <utility>

namespace vantrel::forms::win32 {
namespace {

constexpr int FullScale = 100;

std::span<const std::byte> ResourceBytes(int number) {
  const HMODULE module = GetModuleHandleA(nullptr);
  const HRSRC found = FindResourceA(module, MAKEINTRESOURCEA(number), MAKEINTRESOURCEA(10));
  if (found == nullptr) return {};
  const HGLOBAL loaded = LoadResource(module, found);
  const void* bytes = loaded != nullptr ? LockResource(loaded) : nullptr;
  if (bytes == nullptr) return {};
  return {static_cast<const std::byte*>(bytes), SizeofResource(module, found)};
}

// Image lists take colours that are not yet multiplied by alpha.
std::uint32_t Divided(std::uint32_t pixel) {
  const std::uint32_t alpha = pixel >> 24U;
  if (alpha == 0 || alpha == 255) return pixel;
  std::uint32_t divided = alpha << 24U;
  for (unsigned shift = 0; shift < 24; shift += 8) {
    const std::uint32_t part = (pixel >> shift & 255U) * 255U / alpha;
    divided |= std::min(part, 255U) << shift;
  }
  return divided;
}

// The mask that common controls before version 6 draw by: white where nothing is to be seen.
Bitmap MakeMask(const std::uint32_t* pixels, int width, int height) {
  std::uint32_t* bits = nullptr;
  Bitmap mask = MakePixels(width, height, &bits);
  if (bits == nullptr) return mask;
  std::transform(pixels, pixels + static_cast<std::ptrdiff_t>(width) * height, bits,
                 [](std::uint32_t pixel) { return pixel >> 24U < 128 ? 0x00FFFFFFU : 0U; });
  return mask;
}

}  // namespace

Bitmap MakePixels(int width, int height, std::uint32_t** bits) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* memory = nullptr;
  Bitmap bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &memory, nullptr, 0));
  *bits = static_cast<std::uint32_t*>(memory);
  return bitmap;
}

const ImageStrip* ImageStrips::Find(const std::string& list) const {
  const auto row = std::find_if(pictures_.Strips.begin(), pictures_.Strips.end(),
                                [&](const ImageStrip& strip) { return strip.List == list; });
  return row == pictures_.Strips.end() ? nullptr : &*row;
}

SIZE ImageStrips::SizeOf(const std::string& list) const {
  const ImageStrip* row = Find(list);
  if (row == nullptr) return {0, 0};
  return {scale_.Scaled(row->Width), scale_.Scaled(row->Height)};
}

int ImageStrips::ScaleIndex() const {
  const auto& scales = pictures_.Scales;
  const auto fits = std::find_if(scales.begin(), scales.end(), [this](int percent) {
    return percent * Scale::DesignDpi >= scale_.Dpi() * FullScale;
  });
  return static_cast<int>((fits == scales.end() ? fits - 1 : fits) - scales.begin());
}

ImageStrips::Strip ImageStrips::Unpack(const ImageStrip& row) const {
  if (pictures_.Scales.empty() || !pictures_.Unpack || row.Count <= 0) return {};
  const auto picture = pictures_.Unpack(ResourceBytes(row.Resource + ScaleIndex()));
  if (!picture) return {};
  std::uint32_t* bits = nullptr;
  Strip strip{MakePixels(picture->Width, picture->Height, &bits), picture->Width / row.Count,
              picture->Height};
  if (bits == nullptr) return {};
  std::copy(picture->Pixels.begin(), picture->Pixels.end(), bits);
  return strip;
}

const ImageStrips::Strip& ImageStrips::Unpacked(const ImageStrip& row) {
  const auto [strip, isNew] = strips_.try_emplace(row.List);
  if (isNew) strip->second = Unpack(row);
  return strip->second;
}

void ImageStrips::Draw(HDC context, const RECT& area, const std::string& list, int number) {
  const ImageStrip* row = Find(list);
  if (row == nullptr || number < 1 || number > row->Count) return;
  const Strip& strip = Unpacked(*row);
  if (!strip.Pixels.Valid()) return;
  const MemoryContext source(CreateCompatibleDC(context));
  const Selection withStrip(source.Get(), strip.Pixels.Get());
  const BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
  AlphaBlend(context, area.left, area.top, WidthOf(area), HeightOf(area), source.Get(),
             (number - 1) * strip.Width, 0, strip.Width, strip.Height, blend);
}

HIMAGELIST ImageStrips::ImagesFor(const std::string& list) {
  const ImageStrip* row = Find(list);
  if (row == nullptr) return nullptr;
  ImagesHandle& images = images_[list];
  if (images.Valid()) return images.Get();
  const SIZE size = SizeOf(list);
  images = ImagesHandle(ImageList_Create(size.cx, size.cy, ILC_COLOR32 | ILC_MASK, row->Count, 0));
  for (int number = 1; number <= row->Count; ++number) {
    std::uint32_t* bits = nullptr;
    const Bitmap picture = MakePixels(size.cx, size.cy, &bits);
    if (bits == nullptr) break;
    {
      const MemoryContext target(CreateCompatibleDC(nullptr));
      const Selection withPicture(target.Get(), picture.Get());
      Draw(target.Get(), {0, 0, size.cx, size.cy}, list, number);
      GdiFlush();
    }
    const Bitmap mask = MakeMask(bits, size.cx, size.cy);
    std::transform(bits, bits + static_cast<std::ptrdiff_t>(size.cx) * size.cy, bits, Divided);
    ImageList_Add(images.Get(), picture.Get(), mask.Get());
  }
  return images.Get();
}

ImageStrips::Lists ImageStrips::Rescale(Scale scale) {
  scale_ = scale;
  strips_.clear();
  return std::exchange(images_, {});
}

HICON ImageStrips::ProgramIcon(bool large) const {
  const int width = GetSystemMetrics(large ? SM_CXICON : SM_CXSMICON);
  const int height = GetSystemMetrics(large ? SM_CYICON : SM_CYSMICON);
  const HANDLE icon =
      LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(pictures_.IconResource), IMAGE_ICON,
                 width, height, LR_SHARED);
  return icon != nullptr ? static_cast<HICON>(icon) : LoadIconA(nullptr, IDI_APPLICATION);
}

}  // namespace vantrel::forms::win32
