#include "forms/PackedTexts.h"

namespace vantrel::forms {
namespace {

constexpr unsigned GroupBits = 7;
constexpr unsigned MoreFollow = 1U << GroupBits;

std::string Packed(std::string_view text) {
  std::string packed;
  std::size_t length = text.size();
  for (; length >= MoreFollow; length >>= GroupBits) {
    packed += static_cast<char>(length | MoreFollow);
  }
  packed += static_cast<char>(length);
  return packed.append(text);
}

// Takes the first text off the packed ones.
std::string_view TakeFirst(std::string_view& packed) {
  std::size_t length = 0;
  std::size_t place = 0;
  unsigned group = MoreFollow;
  for (; (group & MoreFollow) != 0; ++place) {
    group = static_cast<unsigned char>(packed[place]);
    length |= static_cast<std::size_t>(group & ~MoreFollow) << (place * GroupBits);
  }
  const std::string_view text = packed.substr(place, length);
  packed.remove_prefix(place + length);
  return text;
}

}  // namespace

void PackedTexts::Append(std::string_view text) { bytes_ += Packed(text); }

std::string_view PackedTexts::From(std::size_t place) const {
  std::string_view rest = bytes_;
  for (; place > 0; --place) TakeFirst(rest);
  return rest;
}

std::string_view PackedTexts::At(std::size_t place) const {
  std::string_view rest = From(place);
  return TakeFirst(rest);
}

void PackedTexts::Set(std::size_t place, std::string_view text) {
  std::string_view rest = From(place);
  const std::size_t begin = bytes_.size() - rest.size();
  TakeFirst(rest);
  const std::size_t end = bytes_.size() - rest.size();
  bytes_.replace(begin, end - begin, Packed(text));
}

}  // namespace vantrel::forms
