// Entries of the browser with names and data of any bytes: the list has a row for each, with what
// the names say, no box comes up, no key stays open, and a removal of all that is listed ends.
#include "fuzz/Fuzz.h"
#include "iemaintenance/Attach.h"
#include "iemaintenance/PluginInventory.h"
#include "support/ProgramFixture.h"
#include "windows/FrmFrameIEPlugin.h"

namespace {

using namespace vantrel;
using fuzz::Check;
using platform::HKeyClassesRoot;
using platform::HKeyCurrentUser;
using platform::HKeyLocalMachine;

const std::string Helpers =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects\\";
const std::string Browser = "SOFTWARE\\Microsoft\\Internet Explorer\\";

// What the names of the subkeys come to, told anew.
std::string ShownId(const std::string& name) {
  const std::size_t first = name.find_first_not_of(' ');
  const std::size_t brace = name.find('}');
  return brace == std::string::npos ? "" : name.substr(first, brace + 1 - first);
}

struct Running {
  Running() {
    copy.process.Trace().Stop();
    test::FillMachine(world);
    world.registry.readsWithoutAccess = true;
    iemaintenance::AttachIEMaintenance(copy.program);
    copy.process.AnswerBox = [](const platform::memory::Box& box) {
      return box.style == platform::StyleInformationYesNo ? platform::AnswerYes
                                                          : platform::AnswerOk;
    };
  }

  void Plant(platform::KeyHandle root, const std::string& key) {
    world.registry.RemoveKey(root, key);
    world.registry.MakeKey(root, key);
  }
  void Plant(fuzz::Input& input) {
    Plant(HKeyLocalMachine, Helpers);
    Plant(HKeyLocalMachine, Browser + "Extensions");
    Plant(HKeyCurrentUser, Browser + "MenuExt");
    Plant(HKeyLocalMachine, test::ToolbarKey);
    Plant(HKeyClassesRoot, "CLSID");
    while (!input.Empty()) {
      const std::uint8_t what = input.Byte();
      const std::string name = input.Text();
      const std::string data = input.Text();
      const std::uint32_t type = what / 8 % 12;
      if (what % 8 == 0) world.registry.MakeKey(HKeyLocalMachine, Helpers + name);
      if (what % 8 == 1) world.registry.Set(HKeyClassesRoot, "CLSID\\" + name, "", type, data);
      if (what % 8 == 2) world.registry.MakeKey(HKeyCurrentUser, Browser + "MenuExt\\" + name);
      if (what % 8 == 3) {
        world.registry.Set(HKeyLocalMachine, Browser + "Extensions\\" + name, "ButtonText", type,
                           data);
      }
      if (what % 8 == 4) world.registry.Set(HKeyLocalMachine, test::ToolbarKey, name, type, data);
    }
  }
  forms::ListView& List() { return copy.Windows().FrmFrameIEPlugin->lstBHO; }

  platform::memory::World world;
  test::Copy copy{world};
};

void CheckHelpers(Running& running) {
  int row = 0;
  for (const std::string& name : running.world.registry.Subkeys(HKeyLocalMachine, Helpers)) {
    if (name.size() >= 255) break;
    const forms::ListItem& item = running.List().Item(++row);
    Check(item.Key() == "B" + std::to_string(row - 1), "helper objects are counted");
    Check(item.Sub(1).Text == iemaintenance::TypeBho, "helper objects stand first");
    Check(item.Tag() == ShownId(name), "a helper object has its id");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Running running;
  fuzz::Input input(data, size);
  running.Plant(input);
  iemaintenance::LoadPluginList(running.copy.program);
  CheckHelpers(running);
  Check(running.copy.process.Boxes().empty(), "no box comes up");
  const int rows = running.List().Count();
  for (int row = 1; row <= rows; ++row) running.List().Item(row).SetChecked(true);
  running.copy.Windows().FrmFrameIEPlugin->cmddeleteBHO.SetValue(true);
  Check(running.List().Count() <= rows, "a removal adds no row");
  Check(running.copy.process.OpenKeys() == 0, "no key stays open");
  running.copy.process.ClearBoxes();
  return 0;
}
