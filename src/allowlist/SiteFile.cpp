#include "allowlist/SiteFile.h"

#include <optional>

#include "allowlist/SiteScan.h"
#include "platform/Handles.h"

namespace vantrel::allowlist {
namespace {

// The site's line if it is to be added behind what was scanned.
std::optional<std::string> LineFor(const SiteScan& scan, const SiteRecord& site) {
  const auto number = scan.NumberFor(site.name);
  if (!number) return std::nullopt;
  SiteRecord numbered = site;
  numbered.id = *number;
  return RecordLine(numbered);
}

// Adds records to the file one by one. The file is scanned once: a record that could not be
// written leaves nothing behind, and nobody else writes it.
class Appender {
 public:
  Appender(platform::Files& files, const std::string& path) : files_(files), path_(path) {}

  bool Add(const SiteRecord& site) {
    if (!scan_ && !Scan()) return false;
    const auto line = LineFor(*scan_, site);
    if (!line || files_.AppendTextFile(path_, *line) != platform::ErrorSuccess) return false;
    scan_->Take(*line);
    return true;
  }

 private:
  bool Scan() {
    if (!files_.FileExists(path_)) {
      files_.CreateTextFile(path_);
      if (!files_.FileExists(path_)) return false;
    }
    std::string content;
    if (files_.ReadTextFile(path_, content) != platform::ErrorSuccess) return false;
    scan_.emplace().Take(content);
    return true;
  }

  platform::Files& files_;
  const std::string& path_;
  std::optional<SiteScan> scan_;
};

bool RewriteOneByOne(platform::Files& files, const std::string& path,
                     const std::vector<SiteRecord>& sites) {
  ClearSiteFile(files, path);
  Appender appender(files, path);
  bool added = false;
  for (const SiteRecord& site : sites) added = appender.Add(site);
  return added;
}

}  // namespace

bool AddSiteRecord(platform::Files& files, const std::string& path, const SiteRecord& site) {
  return Appender(files, path).Add(site);
}

void ClearSiteFile(platform::Files& files, const std::string& path) {
  files.WriteTextFile(path, "");
}

bool RewriteSiteFile(platform::Files& files, const std::string& path,
                     const std::vector<SiteRecord>& sites) {
  SiteScan scan;
  std::string content;
  bool added = false;
  for (const SiteRecord& site : sites) {
    const auto line = LineFor(scan, site);
    added = line.has_value();
    if (!added) continue;
    scan.Take(*line);
    content += *line;
  }
  // Where the file takes no such write, it takes what it can record by record.
  if (files.WriteTextFile(path, content) == platform::ErrorSuccess) return added;
  return RewriteOneByOne(files, path, sites);
}

}  // namespace vantrel::allowlist
