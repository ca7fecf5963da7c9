#include "support/FirstRun.h"

#include <algorithm>
#include <cctype>

#include "support/ExpectedSettings.h"

namespace vantrel::e2e {
namespace {

std::string Lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
  return text;
}

}  // namespace

Tree FirstRunTree() {
  Tree tree;
  for (const test::ExpectedSetting& setting : test::ExpectedSettings) {
    const std::string key = Lower(setting.Key) + "\\";
    tree[key] = {};
    if (const int* number = std::get_if<int>(&setting.FirstRun)) {
      tree[key + Lower(setting.Name)] = Dword(static_cast<std::uint32_t>(*number));
    }
    if (const char* const* text = std::get_if<const char*>(&setting.FirstRun)) {
      tree[key + Lower(setting.Name)] = Text(*text);
    }
  }
  // The start has loaded the sound, as its list spells it, and pressed Start.
  tree["block settings\\nsounds"] = Text("alert");
  tree["block settings\\gdisabled"] = Dword(0);
  return tree;
}

}  // namespace vantrel::e2e
