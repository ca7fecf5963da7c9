// The list of plug-ins and each kind of removal, run once for every call that they make of Windows,
// with that one call failing: nothing crashes or hangs, nothing else is lost, and the next refresh
// shows what there is.
#include "shell/Navigation.h"
#include "unit/shell/FaultSweep.h"
#include "windows/FrmFrameIEPlugin.h"

namespace vantrel::shell {
namespace {

using platform::HKeyClassesRoot;
using platform::HKeyCurrentUser;
using platform::HKeyLocalMachine;
using test::Machine;
using test::Sweep;
using testing::AnyOf;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

const std::string Browser = "SOFTWARE\\Microsoft\\Internet Explorer\\";
const std::string Library = std::string(test::PluginFolder) + "\\a.dll";

windows::FrmFrameIEPlugin& Panel(Machine& machine) {
  return *machine.copy->Windows().FrmFrameIEPlugin;
}

// One of each kind, listed beside the engine's own entry; every question is answered Yes.
void OpenPlugins(Machine& machine) {
  auto& registry = machine.world.registry;
  registry.MakeKey(HKeyLocalMachine,
                   "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper "
                   "Objects\\{1}");
  registry.SetString(HKeyClassesRoot, "CLSID\\{1}", "", "Helper");
  machine.world.files.Put(Library, std::string("ProductName\0Library\0\0\0", 22));
  machine.world.libraries.Register(Library, {{"DllUnregisterServer", [] { return 0; }}});
  registry.SetString(HKeyLocalMachine, Browser + "Toolbar", "{2}", "");
  registry.SetString(HKeyClassesRoot, "CLSID\\{2}", "", "Bar");
  registry.MakeKey(HKeyCurrentUser, Browser + "MenuExt\\Entry");
  registry.SetString(HKeyLocalMachine, Browser + "Extensions\\{3}", "ButtonText", "Button");
  registry.readsWithoutAccess = true;
  machine.MakeStarted();
  CaseIEPlugins(machine.copy->program);
  machine.copy->process.AnswerBox = [](const platform::memory::Box& box) {
    return (box.style & 0xF) == 0 ? platform::AnswerOk : platform::AnswerYes;
  };
  EXPECT_TRUE(machine.copy->user.Click(Panel(machine).cmdRefreshBHO));
}

std::vector<std::string> Names(Machine& machine) {
  std::vector<std::string> names;
  const forms::ListView& list = Panel(machine).lstBHO;
  for (int row = 1; row <= list.Count(); ++row) names.push_back(list.Item(row).Text());
  return names;
}

// The toolbar of the engine has its value there as well.
const std::vector<std::string> AllNames{"Helper",          "",      "Library", "Bar",
                                        "Vantrel Toolbar", "Entry", "Button"};

// The names that a refresh shows on a machine where nothing fails.
void ExpectListed(Machine& machine, const std::vector<std::string>& names) {
  machine.copy->process.ClearBoxes();
  EXPECT_TRUE(machine.copy->user.Click(Panel(machine).cmdRefreshBHO));
  EXPECT_EQ(Names(machine), names);
  EXPECT_THAT(machine.BoxTexts(*machine.copy), IsEmpty());
}

TEST(PluginFaultSweep, Load) {
  Sweep(
      "IE Plugins: load", OpenPlugins,
      [](Machine& machine) { EXPECT_TRUE(machine.copy->user.Click(Panel(machine).cmdRefreshBHO)); },
      [](Machine& machine) {
        // Of a source's own failures only those of the plug-in folder are spoken of.
        const bool folder = machine.FailedRead("\\IE Setup\\Setup") ||
                            machine.FailedIs("FolderExists ") || machine.FailedIs("ListFolder ") ||
                            machine.FailedIs("FileLength ");
        const bool helpers = machine.FailedIs("RegOpenKeyA ") && machine.FailedIn("Helper Objects");
        const bool button = machine.FailedIs("RegCloseKey ") && machine.FailedIn("{3}");
        if (folder || helpers) {
          EXPECT_THAT(machine.BoxTexts(*machine.copy),
                      ElementsAre(StartsWith("Some error occured: ")));
        } else if (button) {
          EXPECT_THAT(machine.BoxTexts(*machine.copy),
                      ElementsAre(StartsWith("RegCloseKey Failed: ")));
        } else {
          EXPECT_THAT(machine.BoxTexts(*machine.copy), IsEmpty());
        }
        ExpectListed(machine, AllNames);
        machine.ExpectUsable();
      });
}

// The calls without which the thing itself cannot go.
bool FailedRemoval(const Machine& machine) {
  return machine.FailedIs("MessageBoxA ") || machine.FailedIs("RegDeleteKeyA ") ||
         machine.FailedIs("RegDeleteValueA ") ||
         (machine.FailedIs("RegOpenKeyExA ") && machine.FailedIn("Toolbar 0xF003F"));
}

void SweepRemoval(const char* operation, const std::string& name) {
  Sweep(
      operation, OpenPlugins,
      [&name](Machine& machine) {
        forms::ListView& list = Panel(machine).lstBHO;
        for (int row = 1; row <= list.Count(); ++row) {
          if (list.Item(row).Text() == name) list.Item(row).SetChecked(true);
        }
        EXPECT_TRUE(machine.copy->user.Click(Panel(machine).cmddeleteBHO));
      },
      [&name](Machine& machine) {
        EXPECT_THAT(machine.BoxTexts(*machine.copy),
                    Each(AnyOf(StartsWith("Delete selected "), StartsWith("Some error occured: "),
                               StartsWith("RegCloseKey Failed: "))));
        // A thread that cannot be waited for has not ended in time.
        if (machine.FailedIs("WaitForSingleObject ")) {
          EXPECT_TRUE(machine.copy->process.ThreadExitCode().has_value());
          return;
        }
        std::vector<std::string> names = AllNames;
        if (!FailedRemoval(machine)) std::erase(names, name);
        ExpectListed(machine, names);
        machine.ExpectUsable();
      });
}

TEST(PluginFaultSweep, RemovalOfAHelperObject) {
  SweepRemoval("IE Plugins: remove a helper object", "Helper");
}
TEST(PluginFaultSweep, RemovalOfALibrary) {
  SweepRemoval("IE Plugins: remove a library", "Library");
}
TEST(PluginFaultSweep, RemovalOfAToolbar) { SweepRemoval("IE Plugins: remove a toolbar", "Bar"); }
TEST(PluginFaultSweep, RemovalOfAMenuExtension) {
  SweepRemoval("IE Plugins: remove a menu extension", "Entry");
}
TEST(PluginFaultSweep, RemovalOfAButton) { SweepRemoval("IE Plugins: remove a button", "Button"); }

}  // namespace
}  // namespace vantrel::shell
