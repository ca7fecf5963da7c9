// The user's Recycle Bin.
#ifndef VANTREL_TESTS_SUPPORT_WIN32_RECYCLEBIN_H_
#define VANTREL_TESTS_SUPPORT_WIN32_RECYCLEBIN_H_

#include <windows.h>

#include <cstdlib>
#include <string>

// After windows.h.
#include <shellapi.h>

namespace vantrel::tests {

// Whether this is Wine with a Recycle Bin of this run's own: Wine shows the machine's own disk to
// its programs, and its bin is that of the machine's user unless it is told another.
inline bool HasOwnRecycleBin() {
  const auto variable = [](const char* name) {
    const char* value = std::getenv(name);
    return std::string(value == nullptr ? "" : value);
  };
  const std::string prefix = variable("WINEPREFIX");
  return GetProcAddress(GetModuleHandleA("ntdll"), "wine_get_version") != nullptr &&
         !prefix.empty() && variable("XDG_DATA_HOME").starts_with(prefix);
}

inline int ItemsInBin() {
  SHQUERYRBINFO info{};
  info.cbSize = sizeof info;
  SHQueryRecycleBinA(nullptr, &info);
  return static_cast<int>(info.i64NumItems);
}

// Puts a file into it; false if it was not taken.
inline bool Recycle(const std::string& path) {
  const std::string list = path + '\0';
  SHFILEOPSTRUCTA operation{};
  operation.wFunc = FO_DELETE;
  operation.pFrom = list.c_str();
  operation.fFlags = FOF_ALLOWUNDO | FOF_NOCONFIRMATION | FOF_SILENT | FOF_NOERRORUI;
  return SHFileOperationA(&operation) == 0;
}

}  // namespace vantrel::tests

#endif  // VANTREL_TESTS_SUPPORT_WIN32_RECYCLEBIN_H_
