#include "text/Strings.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace vantrel::text {
namespace {

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

// The digits of a whole number that is not negative.
std::string Digits(double whole) {
  const int length = std::snprintf(nullptr, 0, "%.0f", whole);
  std::string digits(static_cast<std::size_t>(length) + 1, '\0');
  std::snprintf(digits.data(), digits.size(), "%.0f", whole);
  digits.pop_back();
  return digits;
}

}  // namespace

std::string Trim(std::string_view text) { return std::string(Trimmed(text)); }

std::string_view Trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string LowerCase(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), Lower);
  return result;
}

std::string UpperCase(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), Upper);
  return result;
}

bool EqualIgnoringCase(std::string_view one, std::string_view other) {
  return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                    [](char a, char b) { return Lower(a) == Lower(b); });
}

std::vector<std::string> Split(std::string_view text, char delimiter) {
  std::vector<std::string> pieces;
  if (text.empty()) return pieces;
  for (std::size_t start = 0;;) {
    const auto end = text.find(delimiter, start);
    if (end == std::string_view::npos) {
      pieces.emplace_back(text.substr(start));
      return pieces;
    }
    pieces.emplace_back(text.substr(start, end - start));
    start = end + 1;
  }
}

std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = text.find('\n');
  std::string_view line = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  if (end != std::string_view::npos && line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

std::string GroupedNumber(double number, std::string_view separator) {
  const double whole = std::round(number);
  if (!std::isfinite(whole)) return "0";
  const std::string digits = Digits(std::fabs(whole));
  std::string result = whole < 0 ? "-" : "";
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) result += separator;
    result += digits[i];
  }
  return result;
}

}  // namespace vantrel::text
