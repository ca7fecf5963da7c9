#include "fileutil/ItemListPath.h"

#include <algorithm>
#include <array>

namespace vantrel::fileutil {

std::string PathOfItemList(platform::Shell& shell, platform::ItemList list) {
  std::array<char, platform::PathRoom> buffer{};
  if (!shell.SHGetPathFromIDListA(list, buffer)) return {};
  return {buffer.begin(), std::find(buffer.begin(), buffer.end(), '\0')};
}

}  // namespace vantrel::fileutil
