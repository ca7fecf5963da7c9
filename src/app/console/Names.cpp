#include "app/console/Names.h"

#include <algorithm>
#include <numeric>

#include "app/console/Words.h"
#include "text/Strings.h"

namespace vantrel::console {
namespace {

// Longer names than any here are cut, so that no input makes the comparison slow.
constexpr std::size_t LongestCompared = 64;

// More names than these, the calls to Windows among them, are no help to anybody.
constexpr std::size_t MostChoices = 100;

struct Candidate {
  std::size_t distance;
  std::string name;
};

bool BeginsWith(const std::string& name, const std::string& beginning) {
  return text::EqualIgnoringCase(std::string_view(name).substr(0, beginning.size()), beginning);
}

std::string Enumerate(const std::vector<std::string>& names, const char* last = " or ") {
  std::string text;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (i > 0) text += i + 1 == names.size() ? last : ", ";
    text += Printable(names[i]);
  }
  return text;
}

std::vector<std::size_t> Beginning(const std::string& wanted,
                                   const std::vector<std::string>& names) {
  std::vector<std::size_t> found;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (text::EqualIgnoringCase(names[i], wanted)) return {i};
    if (!wanted.empty() && BeginsWith(names[i], wanted)) found.push_back(i);
  }
  return found;
}

}  // namespace

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

std::vector<std::string> Nearest(std::string_view wanted, const std::vector<std::string>& names,
                                 std::size_t most) {
  std::vector<Candidate> candidates;
  for (const std::string& name : names) {
    const bool begun = !wanted.empty() && BeginsWith(name, std::string(wanted));
    const std::size_t distance = begun ? 0 : EditDistance(wanted, name);
    // Half of the shorter one: nothing is near to a long caption by its length alone.
    const std::size_t length = std::min({wanted.size(), name.size(), LongestCompared});
    if (distance <= length / 2) candidates.push_back({distance, name});
  }
  std::stable_sort(candidates.begin(), candidates.end(), [](const auto& one, const auto& other) {
    return one.distance < other.distance;
  });
  std::vector<std::string> nearest;
  for (const Candidate& candidate : candidates) {
    const bool known = std::find(nearest.begin(), nearest.end(), candidate.name) != nearest.end();
    if (nearest.size() < most && !known) nearest.push_back(candidate.name);
  }
  return nearest;
}

std::string Suggestion(std::string_view wanted, const std::vector<std::string>& names) {
  const std::vector<std::string> nearest = Nearest(wanted, names);
  if (!nearest.empty()) return "; did you mean " + Enumerate(nearest) + "?";
  const bool few = !names.empty() && names.size() <= MostChoices;
  return few ? "; there are " + Enumerate(names, " and ") : std::string();
}

std::size_t PickName(const std::string& kind, const std::string& wanted,
                     const std::vector<std::string>& names) {
  const std::vector<std::size_t> found = Beginning(wanted, names);
  if (found.size() == 1) return found.front();
  const std::string shown = Quoted(wanted.substr(0, 40));
  if (found.empty()) throw CommandError("no " + kind + " " + shown + Suggestion(wanted, names));
  std::vector<std::string> several;
  several.reserve(found.size());
  for (const std::size_t place : found) several.push_back(names[place]);
  throw CommandError("more than one " + kind + " begins with " + shown + ": " + Enumerate(several));
}

}  // namespace vantrel::console
