// Which paths may be wiped or overwritten at all.
#ifndef VANTREL_CLEANING_CLEANINGTARGET_H_
#define VANTREL_CLEANING_CLEANINGTARGET_H_

#include <optional>
#include <string>

#include "platform/Folders.h"

namespace vantrel::cleaning {

// Whether the path is full and lies below a drive's root or a share. What else stands in a text
// that names a target (a relative path, a root, a device such as "C:\folder\COM1.txt", a name with
// a dot or a blank at its end) would be taken by the system for a place that nobody chose.
bool IsCleaningTarget(const std::string& path);

// What stands under the path at this moment, a link as such; absent for nothing.
std::optional<platform::DirectoryEntry> EntryNow(platform::Folders& folders,
                                                 const std::string& path);

// Whether `path`, which lies below `top` or is it, is reached through no link at this moment: what
// stands on the way behind `top` are folders, and so is `path`. What `top` is does not matter.
bool IsReachedWithoutLink(platform::Folders& folders, const std::string& top,
                          const std::string& path);

// The path up to its last backslash.
std::string FolderAbove(const std::string& path);

}  // namespace vantrel::cleaning

#endif  // VANTREL_CLEANING_CLEANINGTARGET_H_
