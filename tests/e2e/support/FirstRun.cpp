#include "support/FirstRun.h"

#include <initializer_list>
#include <utility>

namespace vantrel::e2e {

Tree FirstRunTree() {
  Tree tree;
  for (const char* key : {"block settings\\", "settings\\", "block log\\", "toolbar settings\\"}) {
    tree[key] = {};
  }
  const auto numbers = [&tree](const std::string& key,
                               std::initializer_list<std::pair<const char*, int>> values) {
    for (const auto& [name, value] : values) {
      tree[key + name] = Dword(static_cast<std::uint32_t>(value));
    }
  };
  numbers("block settings\\", {{"bpid", 1},
                               {"popup", 1},
                               {"dhtml", 1},
                               {"webdialog", 1},
                               {"banner", 1},
                               {"flash", 1},
                               {"adv", 0},
                               {"dialogbox", 1},
                               {"keepalog", 1},
                               {"shownotification", 0},
                               {"showsound", 0},
                               {"showph", 0},
                               {"showphf", 0},
                               {"gdisabled", 0},
                               {"spy", 1}});
  tree["block settings\\nsounds"] = Text("alert");
  numbers("settings\\", {{"hidesystem", 0},
                         {"startwithwindows", 1},
                         {"checkupdates", 0},
                         {"showbrowser", 1},
                         {"minimize", 0}});
  numbers("block log\\",
          {{"popup", 0}, {"dhtml", 0}, {"webdialog", 0}, {"bannerads", 0}, {"flash", 0}});
  tree["toolbar settings\\toolbar name"] = Text("Vantrel");
  tree["toolbar settings\\toolbar settings"] =
      Text("1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19");
  return tree;
}

}  // namespace vantrel::e2e
