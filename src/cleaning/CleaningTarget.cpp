#include "cleaning/CleaningTarget.h"

#include <algorithm>
#include <cctype>
#include <set>

#include "fileutil/Listing.h"
#include "text/Strings.h"

namespace vantrel::cleaning {
namespace {

constexpr const char* Slashes = "\\/";

bool IsSlash(char c) { return c == '\\' || c == '/'; }

// Where the part behind a drive's root or a share begins; npos for a path that is not full.
std::size_t BehindRoot(const std::string& path) {
  if (path.size() > 2 && std::isalpha(static_cast<unsigned char>(path[0])) != 0 && path[1] == ':' &&
      IsSlash(path[2])) {
    return 3;
  }
  if (path.size() < 3 || !IsSlash(path[0]) || !IsSlash(path[1])) return std::string::npos;
  if (path[2] == '.' || path[2] == '?') return std::string::npos;  // a device
  // Slashes in a row are one for the system: an empty name would pass a share off as a folder.
  if (IsSlash(path[2])) return std::string::npos;
  const std::size_t server = path.find_first_of(Slashes, 2);
  const std::size_t share = path.find_first_not_of(Slashes, server);
  const std::size_t behind = path.find_first_of(Slashes, share);
  return behind == std::string::npos ? behind : behind + 1;
}

// Names that the system takes for a device in any folder and with any extension.
bool IsDeviceName(const std::string& name) {
  static const std::set<std::string> Devices{"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
  // A port's digit may be one of the code page's raised ones.
  constexpr const char* PortDigits = "123456789\xB9\xB2\xB3";
  const std::string base = text::UpperCase(text::Trim(name.substr(0, name.find_first_of(".:"))));
  if (Devices.contains(base)) return true;
  return base.size() == 4 && (base.starts_with("COM") || base.starts_with("LPT")) &&
         base.find_first_of(PortDigits, 3) == 3;
}

}  // namespace

bool IsCleaningTarget(const std::string& path) {
  const std::size_t begin = BehindRoot(path);
  if (begin == std::string::npos) return false;
  const std::size_t last = path.find_last_not_of(Slashes);
  if (last == std::string::npos || last < begin) return false;
  if (path[last] == '.' || path[last] == ' ' || path.find('\0') != std::string::npos) return false;
  const std::size_t name = path.find_last_of(Slashes, last) + 1;
  return !IsDeviceName(path.substr(name, last + 1 - name));
}

std::optional<platform::DirectoryEntry> EntryNow(platform::Folders& folders,
                                                 const std::string& path) {
  std::vector<platform::DirectoryEntry> itself;
  folders.ListFolder(path, itself);
  return itself.empty() ? std::nullopt : std::optional(itself.front());
}

bool IsReachedWithoutLink(platform::Folders& folders, const std::string& top,
                          const std::string& path) {
  if (path.size() <= top.size()) return true;
  if (!IsReachedWithoutLink(folders, top, FolderAbove(path))) return false;
  const auto entry = EntryNow(folders, path);
  return entry && fileutil::IsSubFolder(*entry);
}

std::string FolderAbove(const std::string& path) { return path.substr(0, path.rfind('\\')); }

}  // namespace vantrel::cleaning
