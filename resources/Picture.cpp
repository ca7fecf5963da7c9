#include "resources/Picture.h"

#include <array>

namespace vantrel::resources {
namespace {

constexpr std::size_t HeaderSize = 14;
constexpr std::uint32_t LongestSide = 16384;
constexpr std::uint32_t MostPixels = 1U << 24;

struct Colour {
  std::uint8_t Red = 0;
  std::uint8_t Green = 0;
  std::uint8_t Blue = 0;
  std::uint8_t Alpha = 0;
};

std::uint32_t Multiplied(Colour colour) {
  const auto part = [&](std::uint8_t value) -> std::uint32_t {
    return (value * colour.Alpha + 127U) / 255U;
  };
  return std::uint32_t{colour.Alpha} << 24 | part(colour.Red) << 16 | part(colour.Green) << 8 |
         part(colour.Blue);
}

// Reads bytes in order; past the end it gives 0 and remembers that it did.
class Reader {
 public:
  explicit Reader(std::span<const std::byte> bytes) : bytes_(bytes) {}

  std::uint8_t Next() {
    if (position_ == bytes_.size()) {
      exhausted_ = true;
      return 0;
    }
    return std::to_integer<std::uint8_t>(bytes_[position_++]);
  }

  std::uint32_t NextNumber() {
    std::uint32_t number = 0;
    for (int i = 0; i < 4; ++i) number = number << 8 | Next();
    return number;
  }

  bool Exhausted() const { return exhausted_; }

 private:
  std::span<const std::byte> bytes_;
  std::size_t position_ = 0;
  bool exhausted_ = false;
};

// The state of unpacking between one pixel and the next.
class Unpacker {
 public:
  explicit Unpacker(Reader& reader) : reader_(reader) {}

  Colour NextPixel() {
    if (run_ > 0) {
      --run_;
      return pixel_;
    }
    const std::uint8_t tag = reader_.Next();
    if (tag >= 0xFE) {
      ReadWhole(tag == 0xFF);
    } else {
      ReadShort(tag);
    }
    seen_[Slot(pixel_)] = pixel_;
    return pixel_;
  }

 private:
  static std::size_t Slot(Colour c) {
    return (c.Red * 3U + c.Green * 5U + c.Blue * 7U + c.Alpha * 11U) % 64U;
  }

  void ReadWhole(bool withAlpha) {
    pixel_.Red = reader_.Next();
    pixel_.Green = reader_.Next();
    pixel_.Blue = reader_.Next();
    if (withAlpha) pixel_.Alpha = reader_.Next();
  }

  void ReadShort(std::uint8_t tag) {
    const int low = tag & 0x3F;
    switch (tag >> 6) {
      case 0:
        pixel_ = seen_[static_cast<std::size_t>(low)];
        break;
      case 1:
        Move((low >> 4) - 2, (low >> 2 & 3) - 2, (low & 3) - 2);
        break;
      case 2:
        ReadGreenLed(low - 32);
        break;
      default:
        run_ = low;
    }
  }

  void ReadGreenLed(int green) {
    const int others = reader_.Next();
    Move(green + (others >> 4) - 8, green, green + (others & 0xF) - 8);
  }

  // Each colour goes round past its ends, as the format has it.
  void Move(int red, int green, int blue) {
    pixel_.Red = static_cast<std::uint8_t>(pixel_.Red + red);
    pixel_.Green = static_cast<std::uint8_t>(pixel_.Green + green);
    pixel_.Blue = static_cast<std::uint8_t>(pixel_.Blue + blue);
  }

  Reader& reader_;
  std::array<Colour, 64> seen_{};
  Colour pixel_{0, 0, 0, 255};
  int run_ = 0;
};

bool SidesAreSound(std::uint32_t width, std::uint32_t height) {
  return width > 0 && height > 0 && width <= LongestSide && height <= LongestSide &&
         width * height <= MostPixels;
}

}  // namespace

std::optional<Picture> UnpackPicture(std::span<const std::byte> bytes) {
  constexpr std::uint32_t mark = 0x716F6966;  // "qoif"
  Reader reader(bytes);
  if (bytes.size() < HeaderSize || reader.NextNumber() != mark) return std::nullopt;
  const std::uint32_t width = reader.NextNumber();
  const std::uint32_t height = reader.NextNumber();
  if (!SidesAreSound(width, height)) return std::nullopt;
  reader.Next();  // The number of channels and the colour space say nothing about the pixels.
  reader.Next();
  Picture picture{static_cast<int>(width), static_cast<int>(height), {}};
  picture.Pixels.reserve(std::size_t{width} * height);
  Unpacker unpacker(reader);
  for (std::size_t left = std::size_t{width} * height; left > 0 && !reader.Exhausted(); --left) {
    picture.Pixels.push_back(Multiplied(unpacker.NextPixel()));
  }
  if (reader.Exhausted()) return std::nullopt;
  return picture;
}

}  // namespace vantrel::resources
