// Which paths may be wiped or overwritten at all.
#ifndef VANTREL_CLEANING_CLEANINGTARGET_H_
#define VANTREL_CLEANING_CLEANINGTARGET_H_

#include <string>

namespace vantrel::cleaning {

// Whether the path is full and lies below a drive's root or a share. What else stands in a text
// that names a target (a relative path, a root, a device, a name with a dot or a blank at its end)
// would be taken by the system for a place that nobody chose.
bool IsCleaningTarget(const std::string& path);

}  // namespace vantrel::cleaning

#endif  // VANTREL_CLEANING_CLEANINGTARGET_H_
