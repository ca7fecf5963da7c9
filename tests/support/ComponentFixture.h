// One copy of the program for the tests of a single component above the forms: no behaviour is
// attached but what the component's tests attach. With it come the words for what such a test looks
// at: values of the settings tree, writes, saves and boxes.
#ifndef VANTREL_TESTS_SUPPORT_COMPONENTFIXTURE_H_
#define VANTREL_TESTS_SUPPORT_COMPONENTFIXTURE_H_

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "support/ProgramFixture.h"

namespace vantrel::test {

class ComponentFixture : public testing::Test {
 protected:
  ComponentFixture() { FillMachine(world); }

  // Runs an event as one from outside: an untrapped error shows its box.
  template <class Act>
  void AsEvent(Act act) {
    toolkit.AtBorder([&] { act(); });
  }

  // The path of a key of the settings tree.
  static std::string Tree(const std::string& key) { return std::string(RootKey) + "\\" + key; }

  // Values below the settings tree.
  std::optional<std::uint32_t> Number(const std::string& key, const std::string& name) const {
    return world.registry.GetDword(platform::HKeyCurrentUser, Tree(key), name);
  }
  std::optional<std::string> Text(const std::string& key, const std::string& name) const {
    return world.registry.GetString(platform::HKeyCurrentUser, Tree(key), name);
  }
  void SetNumber(const std::string& key, const std::string& name, std::uint32_t number) {
    world.registry.SetDword(platform::HKeyCurrentUser, Tree(key), name, number);
  }
  void SetText(const std::string& key, const std::string& name, const std::string& text) {
    world.registry.SetString(platform::HKeyCurrentUser, Tree(key), name, text);
  }
  void RemoveValue(const std::string& key, const std::string& name) {
    world.registry.RemoveValue(platform::HKeyCurrentUser, Tree(key), name);
  }

  // The writes so far, e.g. `Settings "Minimize" 4 1 0 0 0 -> 0` for one below the settings tree;
  // the keys of others are whole paths.
  std::vector<std::string> Writes() {
    const std::string call = "RegSetValueExA ";
    const std::string tree = "HKCU\\" + Tree("");
    std::vector<std::string> writes = process.Trace().LinesOf("RegSetValueExA");
    for (std::string& line : writes) {
      line.erase(0, call.size());
      if (line.starts_with(tree)) line.erase(0, tree.size());
    }
    return writes;
  }
  // The writes outside the settings tree.
  std::vector<std::string> ForeignWrites() {
    std::vector<std::string> writes = Writes();
    std::erase_if(writes, [](const std::string& line) { return !line.starts_with("HK"); });
    return writes;
  }
  // How often the key was saved as a whole.
  long SavesOf(const std::string& key) {
    const std::vector<std::string> writes = Writes();
    return std::count(writes.begin(), writes.end(), key + " \"BpID\" 4 1 0 0 0 -> 0");
  }
  long BlockSaves() { return SavesOf("Block Settings"); }
  long GeneralSaves() { return SavesOf("Settings"); }

  // The texts of the boxes shown so far.
  std::vector<std::string> BoxTexts() const {
    std::vector<std::string> texts;
    for (const auto& box : process.Boxes()) texts.push_back(box.text);
    return texts;
  }

  platform::memory::World world;
  Copy copy{world};
  platform::memory::Process& process = copy.process;
  forms::headless::Toolkit& toolkit = copy.toolkit;
  program::Program& program = copy.program;
  forms::headless::User& user = copy.user;
};

}  // namespace vantrel::test

#endif  // VANTREL_TESTS_SUPPORT_COMPONENTFIXTURE_H_
