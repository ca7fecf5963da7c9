#include "app/console/Boxes.h"

#include <algorithm>
#include <array>

#include "app/console/Names.h"

namespace vantrel::console {
namespace {

// By number, from 1 on.
constexpr std::array<const char*, 7> Names{"OK", "Cancel", "Abort", "Retry", "Ignore", "Yes", "No"};

}  // namespace

std::vector<int> ButtonsOf(std::uint32_t style) {
  switch (style & 15U) {
    case 1:
      return {1, 2};
    case 2:
      return {3, 4, 5};
    case 3:
      return {6, 7, 2};
    case 4:
      return {6, 7};
    case 5:
      return {4, 2};
    default:
      return {1};
  }
}

int DefaultButton(std::uint32_t style) {
  const std::vector<int> buttons = ButtonsOf(style);
  const std::size_t place = (style >> 8U) & 3U;
  return buttons[std::min(place, buttons.size() - 1)];
}

std::string ButtonName(int button) {
  const bool known = button >= 1 && button <= static_cast<int>(Names.size());
  return known ? Names[static_cast<std::size_t>(button) - 1] : std::to_string(button);
}

int ButtonNamed(const std::string& name) {
  const std::vector<std::string> names(Names.begin(), Names.end());
  return static_cast<int>(PickName("answer", name, names)) + 1;
}

}  // namespace vantrel::console
