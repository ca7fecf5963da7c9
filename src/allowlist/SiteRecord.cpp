#include "allowlist/SiteRecord.h"

#include <algorithm>

#include "text/Strings.h"

namespace vantrel::allowlist {
namespace {

// What stands before each flag. The blanks are uneven on purpose: they are part of the format.
constexpr std::array Names = {
    ", Popup= ", " ,DHTML = ", ", WebDialog =", " ,Banner = ", ", Flash = "};
static_assert(Names.size() == SiteFlags.size(), "each flag has its name in the line");

}  // namespace

std::string RecordLine(const SiteRecord& site) {
  std::string line = "id =" + std::to_string(site.id);
  for (std::size_t i = 0; i < SiteFlags.size(); ++i) {
    line += Names[i] + std::to_string(site.*SiteFlags[i]);
  }
  return line + " , " + site.name + "\r\n";
}

SiteFields::SiteFields(std::string_view line) {
  if (line.empty()) return;
  Last = line.substr(line.rfind(',') + 1);
  for (std::string_view rest = line; Count < Fields.size();) {
    const std::size_t comma = rest.find(',');
    Fields[Count++] = rest.substr(0, comma);
    if (comma == std::string_view::npos) return;
    rest.remove_prefix(comma + 1);
  }
}

std::string_view ValueOf(std::string_view field) {
  return text::Trimmed(field.substr(field.rfind('=') + 1));
}

std::string_view LineReader::ReadLine() {
  const std::size_t end = std::min(rest_.find('\n'), rest_.size());
  std::string_view line = rest_.substr(0, end);
  rest_.remove_prefix(std::min(end + 1, rest_.size()));
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

}  // namespace vantrel::allowlist
