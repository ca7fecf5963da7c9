// A folder as it is measured and shown.
#ifndef VANTREL_CLEANING_FOLDERSIZE_H_
#define VANTREL_CLEANING_FOLDERSIZE_H_

#include <cstdint>
#include <string>

#include "platform/Folders.h"

namespace vantrel::cleaning {

// The bytes of all files beneath the folder; links are passed over. Raises the error of a folder
// that cannot be listed.
std::uint64_t FolderSize(platform::Folders& folders, const std::string& path);

// The path of an existing folder in its normal form: backslashes only, none at its end but a
// drive's. Raises error 76 if there is no such folder.
std::string ExistingFolder(platform::Folders& folders, const std::string& path);

// The folder above a folder in its normal form; a drive's root has none, which is error 76.
std::string ParentFolder(const std::string& path);

}  // namespace vantrel::cleaning

#endif  // VANTREL_CLEANING_FOLDERSIZE_H_
