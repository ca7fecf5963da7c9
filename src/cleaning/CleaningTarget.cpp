#include "cleaning/CleaningTarget.h"

#include <algorithm>
#include <cctype>

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
  const std::size_t share = path.find_first_of(Slashes, 2);
  const std::size_t behind =
      share == std::string::npos ? share : path.find_first_of(Slashes, share + 1);
  return behind == std::string::npos ? behind : behind + 1;
}

}  // namespace

bool IsCleaningTarget(const std::string& path) {
  const std::size_t begin = BehindRoot(path);
  if (begin == std::string::npos) return false;
  const std::size_t last = path.find_last_not_of(Slashes);
  if (last == std::string::npos || last < begin) return false;
  return path[last] != '.' && path[last] != ' ' && path.find('\0') == std::string::npos;
}

}  // namespace vantrel::cleaning
