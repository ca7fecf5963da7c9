#include "settings/RegistryConversions.h"

#include "platform/Registry.h"
#include "text/Numbers.h"
#include "text/RuntimeError.h"

namespace vantrel::settings {
namespace {

// A byte in upper-case hexadecimal without padding: 0x0C is meant to be one digit, so a stored
// number with such a byte inside reads as another number.
std::string UnpaddedHex(unsigned char byte) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string hex;
  if (byte >= 16) hex += digits[byte / 16];
  return hex + digits[byte % 16];
}

std::string TextFromDword(std::string_view kept) {
  std::string digits;
  for (auto byte = kept.rbegin(); byte != kept.rend(); ++byte) {
    digits += UnpaddedHex(static_cast<unsigned char>(*byte));
  }
  return std::to_string(text::HexToNumber(digits));
}

}  // namespace

std::string AsText(const RegistryData& value) {
  if (const auto* number = std::get_if<std::int32_t>(&value)) return std::to_string(*number);
  return std::get<std::string>(value);
}

std::int32_t AsNumber(const RegistryData& value) {
  if (const auto* number = std::get_if<std::int32_t>(&value)) return *number;
  return text::CLng(std::get<std::string>(value));
}

std::string DwordBytes(std::int32_t number) {
  auto rest = static_cast<std::uint32_t>(number);
  std::string bytes;
  for (int i = 0; i < 4; ++i, rest >>= 8U) bytes += static_cast<char>(rest & 0xFFU);
  return bytes;
}

std::string DwordBytesByDivision(std::int32_t number) {
  std::string bytes;
  for (int i = 0; i < 4; ++i, number /= 256) bytes += static_cast<char>(number % 256);
  return bytes;
}

std::int32_t NumberFromDwordBytes(std::string_view bytes) {
  std::uint32_t number = 0;
  for (unsigned i = 0; i < 4 && i < bytes.size(); ++i) {
    number |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i])) << (8U * i);
  }
  return static_cast<std::int32_t>(number);
}

std::string TextFromStored(std::uint32_t type, std::string_view bytes) {
  if (bytes.empty()) throw text::RuntimeError(text::ErrorNumber::InvalidProcedureCall);
  // One trailing NUL goes, whatever the type: a small number is left with three bytes.
  if (bytes.back() == '\0') bytes.remove_suffix(1);
  if (type == platform::RegSz) return std::string(bytes);
  if (type == platform::RegDword) return TextFromDword(bytes);
  return {};
}

}  // namespace vantrel::settings
