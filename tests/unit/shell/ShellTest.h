// A machine and copies of the program on it, started as the system starts them.
#ifndef VANTREL_TESTS_UNIT_SHELL_SHELLTEST_H_
#define VANTREL_TESTS_UNIT_SHELL_SHELLTEST_H_

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "shell/Attach.h"
#include "shell/Startup.h"
#include "support/ProgramFixture.h"

namespace vantrel::test {

class ShellTest : public testing::Test {
 protected:
  ShellTest() { FillMachine(world); }

  // A copy with its behaviour, not yet started.
  std::unique_ptr<Copy> MakeCopy(
      const std::string& commandLine = "",
      const std::string& executable = platform::memory::Process::DefaultExecutable) {
    auto copy = std::make_unique<Copy>(world, commandLine, executable);
    shell::AttachProgram(copy->program);
    return copy;
  }
  std::unique_ptr<Copy> StartCopy(const std::string& commandLine = "") {
    auto copy = MakeCopy(commandLine);
    shell::Start(copy->program);
    return copy;
  }
  // Another start while a copy runs: it passes its command line on and is gone.
  void StartAgain(const std::string& commandLine) {
    auto second = StartCopy(commandLine);
    EXPECT_TRUE(second->toolkit.Ending());
  }

  std::optional<std::uint32_t> Number(const std::string& key, const std::string& name) const {
    return world.registry.GetDword(platform::HKeyCurrentUser, key, name);
  }
  bool EngineEntryStands() const {
    return world.registry.HasKey(platform::HKeyLocalMachine, EngineKey);
  }
  // The panels that show, by name; the main window's own state is not looked at.
  static std::vector<std::string> ShownPanels(Copy& copy) {
    std::vector<std::string> shown;
    for (const forms::Form* form : copy.toolkit.LoadedForms()) {
      if (form->Name().starts_with("FrmFrame") && form->Visible()) shown.push_back(form->Name());
    }
    return shown;
  }
  static std::vector<std::string> BoxTexts(const Copy& copy) {
    std::vector<std::string> texts;
    for (const auto& box : copy.process.Boxes()) texts.push_back(box.text);
    return texts;
  }

  platform::memory::World world;
};

}  // namespace vantrel::test

#endif  // VANTREL_TESTS_UNIT_SHELL_SHELLTEST_H_
