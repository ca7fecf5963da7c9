// Stored toolbar lists of any type and bytes, and clicks of any order behind them: a load ends
// without a box or with its two, the rows are what a plain model says, and what a save stores is a
// list that the next load shows again.
#include <algorithm>
#include <vector>

#include "fuzz/Fuzz.h"
#include "support/ProgramFixture.h"
#include "toolbar/Attach.h"
#include "toolbar/ToolbarLayout.h"
#include "windows/frmcustom.h"

namespace {

using namespace vantrel;
using fuzz::Check;
using platform::HKeyCurrentUser;

constexpr const char* Key = "Software\\Qorvel Softwares\\Toolbar Settings";
constexpr const char* List = "Toolbar Settings";

constexpr std::size_t MostActs = 16;

// One copy for all inputs: a program runs for days.
struct Running {
  Running() {
    test::FillMachine(world);
    world.registry.Set(HKeyCurrentUser, Key, "Toolbar Name", platform::RegSz, "Vantrel");
    copy.process.AnswerBox = [](const platform::memory::Box&) { return platform::AnswerOk; };
    toolbar::AttachToolbar(copy.program);
    copy.process.Trace().Stop();
  }
  windows::frmcustom& Dialog() { return *copy.Windows().frmcustom; }
  void Open() {
    copy.process.ClearBoxes();
    copy.toolkit.AtBorder([&] { copy.Windows().frmcustom->Show(); });
  }
  void Close() {
    copy.user.Close(Dialog());
    Check(!copy.program.windows.frmcustom.Loaded(), "the dialog closes");
  }
  // As the dialog's opening does it, without its windows.
  void LoadAgain() {
    copy.process.ClearBoxes();
    Dialog().lstvCurrent.Clear();
    Dialog().lstvSet.Clear();
    Dialog().cmdDone.SetEnabled(true);
    toolbar::allButtons(copy.program, Dialog());
  }

  platform::memory::World world;
  test::Copy copy{world};
};

std::vector<std::string> KeysOf(const forms::ListView& list) {
  std::vector<std::string> keys;
  for (int row = 1; row <= list.Count(); ++row) keys.push_back(list.Item(row).Key());
  return keys;
}

// Every number is in one of the lists, and no key stands twice in both.
void CheckRows(windows::frmcustom& dialog) {
  std::vector<std::string> keys = KeysOf(dialog.lstvCurrent);
  const std::vector<std::string> others = KeysOf(dialog.lstvSet);
  keys.insert(keys.end(), others.begin(), others.end());
  std::sort(keys.begin(), keys.end());
  Check(std::adjacent_find(keys.begin(), keys.end()) == keys.end(), "each key stands once");
  for (int number = 1; number <= 19; ++number) {
    Check(std::binary_search(keys.begin(), keys.end(), "B" + std::to_string(number)),
          "each entry is in a list");
  }
}

// The text of a readable list, split by the plainest means.
std::vector<std::string> ModelOf(const std::string& list) {
  std::vector<std::string> keys;
  std::size_t at = 0;
  for (;;) {
    while (at < list.size() && list[at] == ' ') ++at;
    int number = 0;
    for (; at < list.size() && list[at] >= '0' && list[at] <= '9'; ++at) {
      number = number * 10 + (list[at] - '0');
      if (number > 32767) return keys;
    }
    const std::string key = "B" + std::to_string(number);
    if (std::find(keys.begin(), keys.end(), key) != keys.end()) return keys;
    keys.push_back(key);
    at = list.find(',', at);
    if (at++ == std::string::npos) return keys;
  }
}

void CheckLoad(Running& running, std::uint32_t type, const std::string& bytes) {
  const std::size_t boxes = running.copy.process.Boxes().size();
  Check(boxes == 0 || boxes == 2, "a load shows both boxes or none");
  Check(running.Dialog().Visible(), "the dialog shows");
  if (boxes == 0) CheckRows(running.Dialog());
  if (type != platform::RegSz || bytes.size() > 1024) return;
  // One NUL at the end belongs to the store.
  const std::string text = bytes.ends_with('\0') ? bytes.substr(0, bytes.size() - 1) : bytes;
  const std::vector<std::string> model = text.empty() ? std::vector<std::string>{} : ModelOf(text);
  Check(KeysOf(running.Dialog().lstvCurrent) == model, "the rows are the list's numbers");
}

void Act(Running& running, std::uint8_t act) {
  windows::frmcustom& dialog = running.Dialog();
  forms::CommandButton* const buttons[] = {&dialog.cmdAdd, &dialog.cmdRemove, &dialog.cmdMUp,
                                           &dialog.cmdMDown, &dialog.cmdReset};
  const std::size_t chosen = act % 8U;
  if (chosen < std::size(buttons)) {
    running.copy.user.Click(*buttons[chosen]);
    Check(dialog.cmdDone.Enabled(), "each button marks a change");
    return;
  }
  running.copy.user.Click(chosen == 5 ? dialog.lstvSet : dialog.lstvCurrent, act / 8 + 1);
}

bool IsWellFormed(const std::string& list) {
  bool digit = false;
  for (const char c : list) {
    if (c != ',' && (c < '0' || c > '9')) return false;
    if (c == ',' && !digit) return false;
    digit = c != ',';
  }
  return digit || list.empty();
}

void CheckSave(Running& running, const std::string& before) {
  running.copy.process.ClearBoxes();
  const std::vector<std::string> keys = KeysOf(running.Dialog().lstvCurrent);
  running.copy.user.Click(running.Dialog().cmdDone);
  Check(running.copy.process.Boxes().empty(), "a save shows no box");
  Check(!running.Dialog().cmdDone.Enabled(), "a save leaves nothing to save");
  const std::string stored = running.world.registry.Get(HKeyCurrentUser, Key, List)->data;
  if (before.size() > 1024) {
    Check(stored == before, "a list beyond the buffer stays");
    return;
  }
  Check(IsWellFormed(stored), "the stored list is well-formed");
  running.LoadAgain();
  if (keys.empty() || stored.size() > 1024) return;
  Check(KeysOf(running.Dialog().lstvCurrent) == keys, "a saved order comes back");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Running running;
  fuzz::Input input(data, size);
  const std::uint8_t kind = input.Byte();
  const std::uint32_t type = kind < 32 ? kind % 12U : platform::RegSz;
  const std::string acts = input.Text().substr(0, MostActs);
  const std::string rest = input.Rest();
  const std::string bytes = kind < 250 ? rest : fuzz::BeyondTheBuffer(rest);
  running.world.registry.Set(HKeyCurrentUser, Key, List, type, bytes);
  // A dialog of its own for some of the inputs: most of the time would go into making windows.
  if (fuzz::IsOneIn(16, bytes) && running.copy.program.windows.frmcustom.Loaded()) running.Close();
  if (running.copy.program.windows.frmcustom.Loaded()) {
    running.LoadAgain();
  } else {
    running.Open();
  }
  CheckLoad(running, type, bytes);
  for (const char act : acts) Act(running, static_cast<std::uint8_t>(act));
  if (type == platform::RegSz) CheckSave(running, bytes);
  Check(running.copy.process.OpenKeys() == 0, "no key stays open");
  return 0;
}
