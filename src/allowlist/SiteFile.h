// The writers of the allow list's file: one record added, the file emptied, all records written
// anew. No failure of the file reaches the caller but as a record that was not added.
#ifndef VANTREL_ALLOWLIST_SITEFILE_H_
#define VANTREL_ALLOWLIST_SITEFILE_H_

#include <string>
#include <vector>

#include "allowlist/SiteRecord.h"
#include "platform/Files.h"

namespace vantrel::allowlist {

// Appends the site as a record, with the number that the scan of the file gives it and the name as
// it stands, creating the file when missing. False, and nothing is written, if the scan meets the
// name, or on any failure: the caller cannot know which. This is meant.
bool AddSiteRecord(platform::Files& files, const std::string& path, const SiteRecord& site);

// Leaves an empty file; nothing if it may not be written.
void ClearSiteFile(platform::Files& files, const std::string& path);

// The same file and result as ClearSiteFile and an AddSiteRecord for each site, in one pass and one
// write: whether the last of the sites was added. Duplicates that the scan meets are left out.
bool RewriteSiteFile(platform::Files& files, const std::string& path,
                     const std::vector<SiteRecord>& sites);

}  // namespace vantrel::allowlist

#endif  // VANTREL_ALLOWLIST_SITEFILE_H_
