// Starts over stores that somebody else has broken: every value that a start reads, broken in every
// way, and stores that refuse to be read or written. The window works behind each of them.
#include "unit/shell/Machine.h"
#include "windows/frmMain.h"

namespace vantrel::shell {
namespace {

using platform::HKeyCurrentUser;
using platform::HKeyLocalMachine;
using platform::memory::Refusal;
using test::BlockLog;
using test::BlockSettings;
using test::Machine;
using test::Settings;

struct Value {
  platform::KeyHandle root;
  std::string key;
  std::string name;
};

// Every value that a start reads.
std::vector<Value> Values() {
  std::vector<Value> values{
      {HKeyCurrentUser, test::ScriptKey, "Disable Script Debugger"},
      {HKeyLocalMachine, "SOFTWARE\\Microsoft\\Internet Explorer", "Version"},
  };
  for (const test::ExpectedSetting& setting : test::ExpectedSettings) {
    values.push_back(
        {HKeyCurrentUser, std::string(test::RootKey) + "\\" + setting.Key, setting.Name});
  }
  return values;
}

struct Breakage {
  const char* name;
  std::uint32_t type;
  std::string data;
};

const Breakage Breakages[] = {
    {"no bytes", platform::RegDword, ""},
    {"no bytes of text", platform::RegSz, ""},
    {"another type", platform::RegBinary, "6"},
    {"a text", platform::RegSz, "8 or so"},
    {"a long text", platform::RegSz, std::string(1024, '7')},
    {"too long", platform::RegSz, std::string(70000, '7')},
    {"no state of a box", platform::RegDword, std::string("\x07\0\0\0", 4)},
    {"no 16-bit number", platform::RegDword, std::string("\x70\x11\x01\0", 4)},
    {"all bits", platform::RegDword, "\xFF\xFF\xFF\xFF"},
    {"too many bytes", platform::RegDword, std::string(40, '\xFF')},
};

// The window may be hidden by choice where the broken value reads as that choice.
void ExpectSurvived(Machine& machine) {
  machine.ExpectKeysClosed();
  if (!machine.copy->Windows().frmMain->Visible()) machine.copy->Windows().frmMain->Show();
  machine.ExpectWindowUsable();
}

TEST(BadStore, AnyValueBrokenInAnyWayLeavesAWindowThatWorks) {
  for (const Value& value : Values()) {
    for (const Breakage& breakage : Breakages) {
      SCOPED_TRACE(value.name + " has " + breakage.name);
      Machine machine;
      machine.StoreChoices();
      machine.world.registry.Set(value.root, value.key, value.name, breakage.type, breakage.data);
      machine.MakeStarted();
      if (machine.copy->toolkit.Ending()) {
        EXPECT_EQ(std::string(value.name), "Version");
        continue;
      }
      ExpectSurvived(machine);
      if (testing::Test::HasFailure()) return;
    }
  }
}

TEST(BadStore, AnyValueMissingLeavesAWindowThatWorks) {
  for (const Value& value : Values()) {
    SCOPED_TRACE(value.name);
    Machine machine;
    machine.StoreChoices();
    machine.world.registry.RemoveValue(value.root, value.key, value.name);
    machine.MakeStarted();
    if (std::string(value.name) == "Version") {
      EXPECT_TRUE(machine.copy->toolkit.Ending());
    } else {
      ExpectSurvived(machine);
      machine.ExpectStarted();
    }
  }
}

TEST(BadStore, AStoreThatRefusesIsSilentAndThePanelReadsAsStarted) {
  for (const Refusal refusal : {Refusal::Write, Refusal::All}) {
    for (const bool stored : {false, true}) {
      Machine machine;
      if (stored) machine.StoreChoices();
      machine.world.registry.Refuse(HKeyCurrentUser, "Software", refusal);
      machine.world.registry.Refuse(HKeyLocalMachine,
                                    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion", refusal);
      machine.MakeStarted();
      machine.ExpectStarted();
      for (const std::string& text : machine.BoxTexts(*machine.copy)) {
        // The counters are the one thing that reports what it cannot read.
        EXPECT_EQ(text, "Type mismatch");
      }
      EXPECT_FALSE(machine.EngineEntryStands());
      ExpectSurvived(machine);
    }
  }
}

}  // namespace
}  // namespace vantrel::shell
