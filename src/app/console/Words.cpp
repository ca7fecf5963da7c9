#include "app/console/Words.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <optional>

namespace vantrel::console {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

class Splitter {
 public:
  explicit Splitter(std::string_view line) : line_(line) {}

  std::vector<std::string> Run() {
    std::vector<std::string> words;
    for (SkipBlanks(); at_ < line_.size(); SkipBlanks()) {
      if (words.empty() && line_[at_] == '#') break;
      words.push_back(line_[at_] == '"' ? QuotedWord() : PlainWord());
    }
    return words;
  }

 private:
  void SkipBlanks() {
    while (at_ < line_.size() && IsBlank(line_[at_])) ++at_;
  }

  std::string PlainWord() {
    const std::size_t from = at_;
    while (at_ < line_.size() && !IsBlank(line_[at_])) ++at_;
    return std::string(line_.substr(from, at_ - from));
  }

  bool DoubledQuote() const { return at_ + 1 < line_.size() && line_[at_ + 1] == '"'; }

  std::string QuotedWord() {
    const std::size_t from = at_++;
    std::string word;
    for (; at_ < line_.size(); ++at_) {
      if (line_[at_] == '"' && !DoubledQuote()) return Close(word);
      if (line_[at_] == '"') ++at_;
      word += line_[at_];
    }
    throw CommandError("the quote in column " + std::to_string(from + 1) + " is not closed");
  }

  std::string Close(const std::string& word) {
    ++at_;
    if (at_ < line_.size() && !IsBlank(line_[at_])) {
      throw CommandError("a blank is missing behind the quote in column " + std::to_string(at_));
    }
    return word;
  }

  std::string_view line_;
  std::size_t at_ = 0;
};

void AppendPrintable(std::string& into, char c) {
  if (c >= ' ' && c <= '~') {
    into += c;
    return;
  }
  std::array<char, 5> escaped{};
  std::snprintf(escaped.data(), escaped.size(), "\\x%02X", static_cast<unsigned char>(c));
  into += c == '\r' ? "\\r" : c == '\n' ? "\\n" : c == '\t' ? "\\t" : escaped.data();
}

std::optional<long long> Number(std::string_view digits) {
  const bool negative = digits.starts_with('-');
  if (negative) digits.remove_prefix(1);
  const int base = digits.starts_with("0x") || digits.starts_with("0X") ? 16 : 10;
  if (base == 16) digits.remove_prefix(2);
  if (digits.empty() || digits.front() == '-') return std::nullopt;
  long long value = 0;
  const char* end = digits.data() + digits.size();
  const auto result = std::from_chars(digits.data(), end, value, base);
  if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
  return negative ? -value : value;
}

}  // namespace

std::vector<std::string> SplitWords(std::string_view line, std::size_t longest) {
  if (line.size() > longest) {
    throw CommandError("the line has " + std::to_string(line.size()) + " bytes; at most " +
                       std::to_string(longest) + " are taken");
  }
  if (line.find('\0') != std::string_view::npos) throw CommandError("the line holds a NUL");
  return Splitter(line).Run();
}

std::string Joined(const std::vector<std::string>& words) {
  std::string line;
  for (const std::string& word : words) line += (line.empty() ? "" : " ") + word;
  return line;
}

std::string Printable(std::string_view text) {
  std::string line;
  line.reserve(text.size());
  for (const char c : text) AppendPrintable(line, c);
  return line;
}

std::string Quoted(std::string_view text) { return '"' + Printable(text) + '"'; }

long long ParseNumber(const std::string& word, long long least, long long most, const char* what) {
  const std::optional<long long> value = Number(word);
  if (value && *value >= least && *value <= most) return *value;
  throw CommandError(std::string(what) + " must be a number from " + std::to_string(least) +
                     " to " + std::to_string(most) + ", not " + Quoted(word.substr(0, 40)));
}

}  // namespace vantrel::console
