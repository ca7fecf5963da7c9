#include "text/Numbers.h"

#include <cmath>
#include <cstdlib>
#include <limits>

#include "text/RuntimeError.h"

namespace vantrel::text {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

int HexDigit(char c) {
  if (IsDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

bool StartsHex(std::string_view text) { return text.starts_with("&h") || text.starts_with("&H"); }

std::size_t SkipDigits(std::string_view text, std::size_t at) {
  while (at < text.size() && IsDigit(text[at])) ++at;
  return at;
}

std::size_t SkipSign(std::string_view text, std::size_t at) {
  return at < text.size() && (text[at] == '+' || text[at] == '-') ? at + 1 : at;
}

// The end of "e+12" or "d12" at the place, or the place itself if there is no whole exponent.
std::size_t SkipExponent(std::string_view text, std::size_t at) {
  if (at >= text.size()) return at;
  constexpr std::string_view Marks = "eEdD";
  if (Marks.find(text[at]) == std::string_view::npos) return at;
  const std::size_t digits = SkipSign(text, at + 1);
  const std::size_t end = SkipDigits(text, digits);
  return end > digits ? end : at;
}

// How many characters at the start are a decimal number; 0 for none.
std::size_t DecimalLength(std::string_view text) {
  const std::size_t whole = SkipSign(text, 0);
  std::size_t end = SkipDigits(text, whole);
  std::size_t digits = end - whole;
  if (end < text.size() && text[end] == '.') {
    const std::size_t fraction = end + 1;
    end = SkipDigits(text, fraction);
    digits += end - fraction;
  }
  return digits == 0 ? 0 : SkipExponent(text, end);
}

double Decimal(std::string_view text) {
  std::string number(text);
  for (char& c : number) {
    if (c == 'd' || c == 'D') c = 'e';
  }
  return std::strtod(number.c_str(), nullptr);
}

// Without the blanks, tabs included, that strict conversions allow around a number.
std::string_view Bare(std::string_view text) {
  constexpr std::string_view Blanks = " \t\r\n";
  const auto first = text.find_first_not_of(Blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

std::string WithoutBlanks(std::string_view text) {
  std::string bare;
  for (const char c : text) {
    if (c != ' ' && c != '\t' && c != '\r' && c != '\n') bare += c;
  }
  return bare;
}

double LeadingDecimal(std::string_view text) {
  return Decimal(text.substr(0, DecimalLength(text)));
}

double StrictDecimal(std::string_view text) {
  const std::size_t length = DecimalLength(text);
  if (length == 0 || length != text.size()) throw RuntimeError(ErrorNumber::TypeMismatch);
  return Decimal(text);
}

double HalfToEven(double number) {
  const double below = std::floor(number);
  const double rest = number - below;
  if (rest != 0.5) return rest < 0.5 ? below : below + 1;
  return std::fmod(below, 2) == 0 ? below : below + 1;
}

template <class Whole>
Whole Fit(double number) {
  const double rounded = HalfToEven(number);
  if (!(rounded >= std::numeric_limits<Whole>::min() &&
        rounded <= std::numeric_limits<Whole>::max())) {
    throw RuntimeError(ErrorNumber::Overflow);
  }
  return static_cast<Whole>(rounded);
}

}  // namespace

std::int16_t CInt(std::string_view text) {
  const std::string_view bare = Bare(text);
  if (!StartsHex(bare)) return Fit<std::int16_t>(StrictDecimal(bare));
  const std::uint32_t pattern = HexToNumber(bare.substr(2));
  if (pattern > 0xFFFFU) throw RuntimeError(ErrorNumber::Overflow);
  return static_cast<std::int16_t>(static_cast<std::uint16_t>(pattern));
}

std::int32_t CLng(std::string_view text) {
  const std::string_view bare = Bare(text);
  if (!StartsHex(bare)) return Fit<std::int32_t>(StrictDecimal(bare));
  return static_cast<std::int32_t>(HexToNumber(bare.substr(2)));
}

double Val(std::string_view text) {
  const std::string bare = WithoutBlanks(text);
  if (!StartsHex(bare)) return LeadingDecimal(bare);
  double number = 0;
  for (std::size_t i = 2; i < bare.size() && HexDigit(bare[i]) >= 0; ++i) {
    number = number * 16 + HexDigit(bare[i]);
  }
  return number;
}

double DecimalVal(std::string_view text) { return LeadingDecimal(WithoutBlanks(text)); }

std::uint32_t HexToNumber(std::string_view digits) {
  if (digits.empty()) throw RuntimeError(ErrorNumber::TypeMismatch);
  std::uint64_t number = 0;
  bool tooLarge = false;
  for (const char c : digits) {
    const int digit = HexDigit(c);
    if (digit < 0) throw RuntimeError(ErrorNumber::TypeMismatch);
    number = number * 16 + static_cast<unsigned>(digit);
    tooLarge = tooLarge || number > 0xFFFFFFFFU;
    number &= 0xFFFFFFFFU;
  }
  if (tooLarge) throw RuntimeError(ErrorNumber::Overflow);
  return static_cast<std::uint32_t>(number);
}

std::int32_t RoundToLong(double number) { return Fit<std::int32_t>(number); }

}  // namespace vantrel::text
