#include "engine/AllowList.h"

#include <algorithm>
#include <cstddef>

namespace vantrel::engine {
namespace {

constexpr std::size_t NameField = Kinds.size() + 1;

// Blanks only: a tab belongs to the text.
std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// Cuts the part before the separator off the front of the text; all of it if there is none.
std::string_view TakeUntil(std::string_view& text, char separator) {
  const std::size_t end = std::min(text.find(separator), text.size());
  const std::string_view part = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return part;
}

std::string_view TakeLine(std::string_view& text) {
  std::string_view line = TakeUntil(text, '\n');
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

// One more than there are commas; none of a line without a byte.
std::vector<std::string_view> Fields(std::string_view line) {
  std::vector<std::string_view> fields;
  if (line.empty()) return fields;
  const auto commas = std::count(line.begin(), line.end(), ',');
  for (auto field = commas; field >= 0; --field) fields.push_back(TakeUntil(line, ','));
  return fields;
}

bool IsAllowed(std::string_view field) {
  return Trimmed(field.substr(field.rfind('=') + 1)) == "1";
}

AllowedSite SiteOf(const std::vector<std::string_view>& fields) {
  AllowedSite site{.name = std::string(Trimmed(fields[NameField]))};
  for (std::size_t kind = 0; kind < Kinds.size(); ++kind) {
    site.allowed[kind] = IsAllowed(fields[kind + 1]);
  }
  return site;
}

char Lower(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A'))
                                              : character;
}

bool SameName(std::string_view left, std::string_view right) {
  return std::ranges::equal(left, right, {}, Lower, Lower);
}

}  // namespace

std::vector<AllowedSite> ParseAllowList(std::string_view bytes) {
  std::vector<AllowedSite> sites;
  while (!bytes.empty()) {
    const auto fields = Fields(TakeLine(bytes));
    if (fields.size() <= NameField) break;
    sites.push_back(SiteOf(fields));
  }
  return sites;
}

AllowedKinds AllowedOn(const std::vector<AllowedSite>& sites, std::string_view name) {
  const std::string_view wanted = Trimmed(name);
  const auto found = std::find_if(sites.begin(), sites.end(), [&](const AllowedSite& site) {
    return !site.name.empty() && SameName(site.name, wanted);
  });
  return found == sites.end() ? AllowedKinds{} : found->allowed;
}

}  // namespace vantrel::engine
