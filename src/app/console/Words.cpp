#include "app/console/Words.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <numeric>
#include <utility>

#include "text/Strings.h"

namespace vantrel::console {
namespace {

constexpr const char* Blanks = " \t";

// Longer names than any here are cut, so that no input makes the comparison slow.
constexpr std::size_t LongestCompared = 64;
// More names than these, the calls to Windows among them, are no help to anybody.
constexpr std::size_t MostChoices = 100;
constexpr std::size_t MostSuggested = 3;

// Both take the word that begins at `at`, and move `at` behind it.
std::string PlainWord(std::string_view line, std::size_t& at) {
  const std::size_t from = at;
  at = std::min(line.find_first_of(Blanks, from), line.size());
  return std::string(line.substr(from, at - from));
}

std::string QuotedWord(std::string_view line, std::size_t& at) {
  const std::string column = std::to_string(at + 1);
  std::string word;
  for (bool closed = false; !closed;) {
    const std::size_t quote = line.find('"', ++at);
    if (quote == line.npos) throw CommandError("the quote in column " + column + " is not closed");
    word += line.substr(at, quote - at);
    at = quote + 1;
    closed = line.substr(at, 1) != "\"";
    if (!closed) word += '"';
  }
  if (at == line.size() || line.find_first_of(Blanks, at) == at) return word;
  throw CommandError("a blank is missing behind the quote in column " + std::to_string(at));
}

std::string PrintableByte(char c) {
  if (c >= ' ' && c <= '~') return {c};
  const std::size_t named = std::string_view("\r\n\t").find(c);
  if (named != std::string_view::npos) return {'\\', "rnt"[named]};
  std::array<char, 5> escaped{};
  std::snprintf(escaped.data(), escaped.size(), "\\x%02X", static_cast<unsigned char>(c));
  return escaped.data();
}

// The number of single-character changes from one to the other, without regard to case.
std::size_t EditDistance(std::string_view one, std::string_view other) {
  const std::string a = text::LowerCase(one.substr(0, LongestCompared));
  const std::string b = text::LowerCase(other.substr(0, LongestCompared));
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t replaced = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
      diagonal = row[j];
      row[j] = std::min({row[j] + 1, row[j - 1] + 1, replaced});
    }
  }
  return row[b.size()];
}

std::string Enumerated(Words names, const char* last) {
  const std::string end = names.back();
  names.pop_back();
  return names.empty() ? end : Joined(names, ", ") + last + end;
}

// The nearest names; where none is near, all of them unless there are many.
std::string Suggestion(std::string_view wanted, const Words& names) {
  Words choices;
  std::multimap<std::size_t, std::string> near;  // by distance
  for (const std::string& name : names) {
    const bool known = std::find(choices.begin(), choices.end(), name) != choices.end();
    if (name.empty() || known) continue;
    choices.push_back(name);
    const std::size_t distance = BeginsWith(name, wanted) ? 0 : EditDistance(wanted, name);
    // Half of the shorter one: nothing is near to a long caption by its length alone.
    const std::size_t length = std::min({wanted.size(), name.size(), LongestCompared});
    if (distance <= length / 2) near.emplace(distance, name);
  }
  Words nearest = Texts(near, &std::pair<const std::size_t, std::string>::second);
  nearest.resize(std::min(nearest.size(), MostSuggested));
  if (!nearest.empty()) return "; did you mean " + Enumerated(nearest, " or ") + "?";
  const bool few = !choices.empty() && choices.size() <= MostChoices;
  return few ? "; there are " + Enumerated(choices, " and ") : "";
}

}  // namespace

Words SplitWords(std::string_view line) {
  if (line.size() > LongestLine) {
    throw CommandError("the line has more than " + std::to_string(LongestLine) + " bytes");
  }
  if (line.find('\0') != line.npos) throw CommandError("the line holds a NUL");
  Words words;
  for (std::size_t at = 0; (at = line.find_first_not_of(Blanks, at)) != line.npos;) {
    if (words.empty() && line[at] == '#') break;
    words.push_back(line[at] == '"' ? QuotedWord(line, at) : PlainWord(line, at));
  }
  return words;
}

std::string Joined(const Words& words, const std::string& separator) {
  std::string text;
  for (const std::string& word : words) text += (&word == &words.front() ? "" : separator) + word;
  return text;
}

std::string Printable(std::string_view text) {
  std::string line;
  for (const char c : text) line += PrintableByte(c);
  return line;
}

std::string Quoted(std::string_view text) { return '"' + Printable(text) + '"'; }

std::string Brief(std::string_view text) { return Quoted(text.substr(0, 200)); }

long long ParseNumber(const std::string& word, long long least, long long most,
                      const std::string& what) {
  const int base = word.find_first_of("xX") == word.npos ? 10 : 16;
  char* end = nullptr;
  const long long value = std::strtoll(word.c_str(), &end, base);
  const bool whole = !word.empty() && *end == '\0' && std::isspace(word.front()) == 0;
  if (whole && value >= least && value <= most) return value;
  throw CommandError(what + " must be a number from " + std::to_string(least) + " to " +
                     std::to_string(most) + ", not " + Brief(word));
}

bool BeginsWith(std::string_view name, std::string_view beginning) {
  return !beginning.empty() && text::EqualIgnoringCase(name.substr(0, beginning.size()), beginning);
}

std::size_t PickName(const std::string& kind, const std::string& wanted, const Words& names) {
  std::vector<std::size_t> found;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (!BeginsWith(names[i], wanted)) continue;
    if (names[i].size() == wanted.size()) return i;
    if (found.empty() || names[found.back()] != names[i]) found.push_back(i);
  }
  if (found.size() == 1) return found.front();
  RefuseName(kind, wanted, Texts(found, [&names](std::size_t i) { return names[i]; }), names);
}

void RefuseName(const std::string& kind, const std::string& wanted, const Words& fitting,
                const Words& all) {
  throw CommandError(fitting.empty() ? "no " + kind + " " + Brief(wanted) + Suggestion(wanted, all)
                                     : "more than one " + kind + " is " + Brief(wanted) + ": " +
                                           Enumerated(fitting, " or "));
}

}  // namespace vantrel::console
