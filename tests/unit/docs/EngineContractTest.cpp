// docs/engine-contract.md and the .reg beside it: each table is compared with what the program does
// on the in-memory Windows, and with the double of the engine, which is built by the page.
#include <gmock/gmock.h>

#include <functional>
#include <map>
#include <set>
#include <sstream>

#include "Page.h"
#include "engine/AllowList.h"
#include "engine/Contract.h"
#include "platform/memory/RegFile.h"
#include "settings/FirstRun.h"
#include "settings/RegistryConversions.h"
#include "shell/Navigation.h"
#include "unit/shell/ShellTest.h"
#include "windows/FrmFrameBlockPreferences.h"
#include "windows/FrmFrameHistory.h"
#include "windows/FrmFrameMain.h"
#include "windows/FrmFrameNotification.h"
#include "windows/FrmFrameSettings.h"
#include "windows/frmMain.h"

namespace vantrel::test {
namespace {

using platform::HKeyClassesRoot;
using platform::HKeyCurrentUser;
using platform::HKeyLocalMachine;
using platform::memory::RegistryTree;
using testing::ElementsAreArray;
using testing::HasSubstr;

using Act = std::function<void()>;
// What the test does for a row, by the text of the row's first cell.
using Acts = std::map<std::string, Act>;

constexpr const char* ToolbarSettings = "Software\\Qorvel Softwares\\Toolbar Settings";

class EngineContract : public ShellTest {
 protected:
  windows::frmMain& Main() { return *copy->Windows().frmMain; }
  windows::FrmFrameMain& Welcome() { return *copy->Windows().FrmFrameMain; }
  std::optional<std::string> Text(const std::string& key, const std::string& name) const {
    return world.registry.GetString(HKeyCurrentUser, key, name);
  }
  void Start() { copy = StartCopy(); }
  void End() {
    ASSERT_TRUE(copy->user.Select(Main().MnuExit));
    copy = nullptr;
  }
  void SetNumber(const std::string& key, const std::string& name, std::uint32_t number) {
    world.registry.SetDword(HKeyCurrentUser, key, name, number);
  }

  // The act of each row, none of them without a row.
  static void ForEachRow(const Table& table, const Acts& acts,
                         const std::function<void(const Row&, const Act&)>& visit) {
    EXPECT_EQ(table.size(), acts.size());
    for (const Row& row : table) {
      SCOPED_TRACE(row[0]);
      const auto act = acts.find(row[0]);
      if (act == acts.end()) {
        ADD_FAILURE() << "no test for this row";
      } else {
        visit(row, act->second);
      }
    }
  }

  // A row of names, types and values, as the registry has them under the key.
  void ExpectStored(const std::string& key, const Row& row) {
    SCOPED_TRACE(row[0]);
    const std::string name = Code(row[0]);
    if (row[1] == "text") {
      EXPECT_EQ(Text(key, name), Code(row[2]));
    } else {
      EXPECT_TRUE(row[1] == "flag" || row[1] == "number");
      EXPECT_EQ(Number(key, name), std::stoul(row[2]));
    }
  }

  const Page page{"engine-contract.md"};
  std::unique_ptr<Copy> copy;
};

// The values of a key by name, a text without the terminator that only imported ones have.
std::map<std::string, std::string> ValuesOf(const RegistryTree& tree, platform::KeyHandle root,
                                            const std::string& key) {
  std::map<std::string, std::string> values;
  for (const auto& value : tree.Values(root, key)) {
    std::string data = value.data;
    if (value.type == platform::RegSz && data.ends_with('\0')) data.pop_back();
    values[value.name] = std::to_string(value.type) + " " + data;
  }
  return values;
}

std::vector<std::string> Names(const Table& table) {
  std::vector<std::string> names;
  for (const Row& row : table) names.push_back(Code(row[0]));
  return names;
}

std::vector<std::string> NamesUnder(const RegistryTree& tree, const std::string& key) {
  std::vector<std::string> names;
  for (const auto& value : tree.Values(HKeyCurrentUser, key)) names.push_back(value.name);
  return names;
}

TEST_F(EngineContract, TheRegFileIsWhatAFirstStartLeaves) {
  RegistryTree file;
  ASSERT_TRUE(platform::memory::ImportReg(file, ReadDocument("engine-contract.reg")));
  Start();
  SetNumber(BlockLog, "Popup", 3);
  SetNumber(BlockLog, "BannerAds", 1);
  const std::string tree = std::string(RootKey) + "\\";
  EXPECT_EQ(file.Subkeys(HKeyCurrentUser, RootKey),
            world.registry.Subkeys(HKeyCurrentUser, RootKey));
  for (const std::string& key : file.Subkeys(HKeyCurrentUser, RootKey)) {
    EXPECT_EQ(ValuesOf(file, HKeyCurrentUser, tree + key),
              ValuesOf(world.registry, HKeyCurrentUser, tree + key))
        << key;
    EXPECT_EQ(NamesUnder(file, tree + key), NamesUnder(world.registry, tree + key));
  }
  for (const auto& [root, key] :
       {std::pair{HKeyLocalMachine, EngineKey}, std::pair{HKeyLocalMachine, ToolbarKey},
        std::pair{HKeyClassesRoot, ToolbarClassKey}}) {
    EXPECT_FALSE(file.Values(root, key).empty()) << key;
    EXPECT_EQ(ValuesOf(file, root, key), ValuesOf(world.registry, root, key)) << key;
  }
}

TEST_F(EngineContract, KeysAndFilesAreWhereThePageHasThem) {
  const Table table = page.TableBehind("Where things are");
  EXPECT_EQ(Code(table[0][1]), std::string("HKEY_LOCAL_MACHINE\\") + EngineKey);
  EXPECT_EQ(Codes(table[1][1])[0], std::string("HKEY_CURRENT_USER\\") + RootKey);
  EXPECT_EQ(Codes(table[2][1])[0], ToolbarId);
  EXPECT_EQ(Codes(table[2][1])[1], std::string("HKEY_LOCAL_MACHINE\\") + ToolbarKey);
  Start();
  auto keys = Codes(table[1][1]);
  keys.erase(keys.begin());
  EXPECT_THAT(world.registry.Subkeys(HKeyCurrentUser, RootKey),
              testing::UnorderedElementsAreArray(keys));
  for (const Row& row : page.TableBehind("Am I switched on?")) {
    const auto value = world.registry.GetString(HKeyLocalMachine, EngineKey, Code(row[0]));
    EXPECT_EQ(value,
              Code(row[0]) == "Path" ? "C:\\Program Files\\Vantrel\\Settings" : Code(row[2]));
  }
}

TEST_F(EngineContract, TheDoubleSpeaksOfTheSameNames) {
  for (const char* name :
       {engine::EntryKey, engine::SettingsKey, engine::CountersKey, engine::PathValue,
        engine::KeepLogValue, engine::DisabledValue, engine::AllowListFile, engine::LogFile}) {
    EXPECT_THAT(page.Text(), HasSubstr(name));
  }
  const Table counters = page.TableBehind("Counting");
  ASSERT_EQ(counters.size(), engine::Kinds.size());
  for (std::size_t i = 0; i < counters.size(); ++i) {
    EXPECT_EQ(Code(counters[i][0]), engine::Kinds[i].counter);
    EXPECT_EQ(Code(counters[i][2]), engine::Kinds[i].setting);
  }
}

TEST_F(EngineContract, TheTablesOfValuesAreWhatAFirstRunWrites) {
  const Table block = page.TableBehind("What shall I block?");
  const Table general = page.TableBehind("What shall I block?", 1);
  const Table toolbar = page.TableBehind("The toolbar's layout");
  // Without behaviour: no start follows.
  Copy bare(world);
  settings::CheckAndCreateRegitry(bare.program);
  for (const Row& row : block) ExpectStored(BlockSettings, row);
  for (const Row& row : general) ExpectStored(Settings, row);
  for (const Row& row : toolbar) ExpectStored(ToolbarSettings, row);
  for (const Row& row : page.TableBehind("Counting")) {
    EXPECT_EQ(Number(BlockLog, Code(row[0])), 0U);
  }
  EXPECT_EQ(block.size(), world.registry.Values(HKeyCurrentUser, BlockSettings).size());
  EXPECT_THAT(NamesUnder(world.registry, Settings), ElementsAreArray(Names(general)));
  EXPECT_THAT(NamesUnder(world.registry, ToolbarSettings), ElementsAreArray(Names(toolbar)));
  EXPECT_THAT(NamesUnder(world.registry, BlockLog),
              ElementsAreArray(Names(page.TableBehind("Counting"))));
}

// A key that is missing is made by the save; its values then stand in the order of their writing.
TEST_F(EngineContract, BlockSettingsAreSavedInTheOrderOfTheTable) {
  Start();
  world.registry.RemoveKey(HKeyCurrentUser, BlockSettings);
  copy->Windows().FrmFrameBlockPreferences->chkBFlash.SetValue(forms::Unchecked);
  std::vector<std::string> names = NamesUnder(world.registry, BlockSettings);
  ASSERT_FALSE(names.empty());
  EXPECT_EQ(names.front(), "BpID");
  names.front() = "BpId";
  EXPECT_THAT(names, ElementsAreArray(Names(page.TableBehind("What shall I block?"))));
}

TEST_F(EngineContract, SoundAndGDisabledAfterTheFirstStartAreAsThePageSays) {
  Start();
  for (const Row& row : page.TableBehind("What shall I block?")) {
    if (Code(row[0]) == "NSounds") {
      EXPECT_THAT(row[3], HasSubstr("`" + Text(BlockSettings, "NSounds").value() +
                                    "` when the first start is over"));
    }
    if (Code(row[0]) == "GDisabled") {
      EXPECT_THAT(row[3], HasSubstr("0 when the first start is over"));
    }
  }
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 0U);
  const auto& sounds = copy->Windows().FrmFrameNotification->cmbsound;
  for (int at = 0; at < sounds.ListCount(); ++at) {
    EXPECT_THAT(page.Text(), HasSubstr("`" + sounds.List(at) + "`"));
  }
}

TEST_F(EngineContract, NumbersAreShownAsTheTableHasThem) {
  const Table table = page.TableBehind("How numbers are shown: three limits");
  EXPECT_GE(table.size(), 5U);
  for (const Row& row : table) {
    const auto stored = static_cast<std::int32_t>(std::stol(row[0]));
    EXPECT_EQ(settings::TextFromStored(platform::RegDword, settings::DwordBytes(stored)), row[3])
        << stored;
  }
}

TEST_F(EngineContract, EachClickSavesTheKeyOfItsRow) {
  Start();
  const auto control = [this](const std::string& caption) -> forms::Control* {
    for (forms::Form* form : copy->toolkit.LoadedForms()) {
      for (forms::Control* each : form->Controls()) {
        const bool pressed = dynamic_cast<forms::CheckBox*>(each) != nullptr ||
                             dynamic_cast<forms::CommandButton*>(each) != nullptr;
        if (pressed && each->WindowText() == caption) return each;
      }
    }
    return nullptr;
  };
  std::set<std::string> clicked;
  for (const Row& row : page.TableBehind("Which click saves what")) {
    for (const std::string& caption : Codes(row[0])) {
      SCOPED_TRACE(caption);
      forms::Control* const found = control(caption);
      ASSERT_NE(found, nullptr);
      // The Start button is disabled while blocking is on.
      if (caption == "Start") Welcome().cmdstop.SetValue(true);
      // No save leaves these numbers.
      SetNumber(BlockSettings, "GDisabled", 7);
      SetNumber(Settings, "HideSystem", 7);
      found->Owner().Show();
      ASSERT_TRUE(copy->user.Click(*found));
      const std::string saved = row[1] == "nothing" ? row[1] : Code(row[1]);
      EXPECT_EQ(Number(BlockSettings, "GDisabled") != 7U, saved == "Block Settings");
      EXPECT_EQ(Number(Settings, "HideSystem") != 7U, saved == "Settings");
      clicked.insert(caption);
    }
  }
  // Every value of both keys that has a box is among them.
  EXPECT_EQ(clicked.size(), 8U + 4U + 2U + 3U + 4U + 1U);
}

TEST_F(EngineContract, GDisabledIsWrittenAsTheTableHasIt) {
  const auto click = [this] {
    auto& box = copy->Windows().FrmFrameBlockPreferences->chkBFlash;
    box.SetValue(box.Value() == forms::Checked ? forms::Unchecked : forms::Checked);
  };
  const auto start = [this] {
    Welcome().cmdstop.SetValue(true);
    Welcome().cmdstart.SetValue(true);
  };
  const auto close = [this] {
    copy->Windows().FrmFrameSettings->chkGHideSystray.SetValue(forms::Checked);
    EXPECT_TRUE(copy->user.Close(Main()));
  };
  const Acts acts = {
      {"the control panel starts: it presses Start", [this] { End(), Start(); }},
      {"Start or Test on the Welcome panel",
       [&] {
         start();
         EXPECT_EQ(Number(BlockSettings, "GDisabled"), 0U);
         SetNumber(BlockSettings, "GDisabled", 7);
         Welcome().cmdtest.SetValue(true);
       }},
      {"Stop, on the Welcome panel, in the menu, or in the tool bar",
       [this] {
         for (const Act& stop : {Act([this] { Welcome().cmdstop.SetValue(true); }),
                                 Act([this] { EXPECT_TRUE(copy->user.Select(Main().MnuStop)); }),
                                 Act([this] { copy->user.Press(Main().Toolbar1, 4); })}) {
           SetNumber(BlockSettings, "GDisabled", 7);
           stop();
           EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
         }
       }},
      {"Start Blocking in the menu or in the tool bar",
       [this] {
         EXPECT_TRUE(copy->user.Select(Main().MnuStartBlocking));
         EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
         SetNumber(BlockSettings, "GDisabled", 7);
         EXPECT_TRUE(copy->user.Press(Main().Toolbar1, 3));
       }},
      {"Test in the menu",
       [&] {
         Welcome().cmdstop.SetValue(true);
         EXPECT_TRUE(copy->user.Select(Main().mnutest));
         EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
         start();
         EXPECT_TRUE(copy->user.Select(Main().mnutest));
         EXPECT_EQ(Number(BlockSettings, "GDisabled"), 0U);
       }},
      {"a [click that saves `Block Settings`](#which-click-saves-what), after Start on the Welcome "
       "panel",
       [&] {
         start();
         close();
         EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
         click();
       }},
      {"a click that saves `Block Settings`, after Stop or Start Blocking",
       [&] {
         Welcome().cmdstop.SetValue(true);
         click();
         EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
         EXPECT_TRUE(copy->user.Select(Main().MnuStartBlocking));
         SetNumber(BlockSettings, "GDisabled", 7);
         click();
       }},
      {"the close box hides the window to the tray", close},
      {"the window is hidden by Hide, or comes back from the tray",
       [this] {
         SetNumber(BlockSettings, "GDisabled", 7);
         EXPECT_TRUE(copy->user.Select(Main().MnuHide));
         world.tray.Mouse(world.desktop, world.tray.Icons().back(), 515);
         EXPECT_TRUE(Main().Visible());
         EXPECT_EQ(Number(BlockSettings, "GDisabled"), 7U);
       }},
      {"the program ends", [this] { End(); }},
      {"a second copy has passed its command on and ends", [this] { StartAgain("/graph"); }},
  };
  ForEachRow(page.TableBehind("GDisabled"), acts, [this](const Row& row, const Act& act) {
    if (copy == nullptr || !Main().Visible()) Start();
    SetNumber(BlockSettings, "GDisabled", 7);
    act();
    if (row[1] == "0" || row[1] == "1") {
      EXPECT_EQ(Number(BlockSettings, "GDisabled"), std::stoul(row[1]));
    }
    copy = nullptr;
  });
}

// Whatever ends the reading of the settings, the start saves what the boxes were designed with.
TEST_F(EngineContract, EachOfTheseCostsTheUsersSettings) {
  using platform::RegDword;
  using platform::RegSz;
  const Acts acts = {
      {"a counter that reads above 32767", [this] { SetNumber(BlockLog, "Flash", 40000); }},
      {"a counter other than `Popup` that is missing or of another type",
       [this] { world.registry.RemoveValue(HKeyCurrentUser, BlockLog, "DHTML"); }},
      {"a value of `Block Settings` or `Settings` that is missing or no number, while `BpID` "
       "stands",
       [this] { world.registry.RemoveValue(HKeyCurrentUser, BlockSettings, "Popup"); }},
      {"a flag above 2, or below 0", [this] { SetNumber(BlockSettings, "Popup", 3); }},
      {"any of these without a byte",
       [this] { world.registry.Set(HKeyCurrentUser, BlockSettings, "Popup", RegDword, ""); }},
  };
  const auto store = [this] {
    world.registry.RemoveKey(HKeyCurrentUser, RootKey);
    { StartCopy(); }
    SetNumber(BlockSettings, "Banner", 0);
    SetNumber(BlockSettings, "ShowPH", 1);
    SetNumber(Settings, "BpID", 1);
    SetNumber(Settings, "HideSystem", 1);
  };
  ForEachRow(
      page.TableBehind("What costs the user's settings"), acts, [&](const Row&, const Act& act) {
        store();
        act();
        Start();
        // Those of the counters' displays.
        EXPECT_THAT(BoxTexts(*copy), testing::Each(testing::AnyOf("Overflow", "Type mismatch")));
        for (const Row& row : page.TableBehind("What shall I block?")) {
          const std::string name = Code(row[0]);
          if (name == "GDisabled" || name == "NSounds") continue;
          EXPECT_EQ(Number(BlockSettings, name), name == "KeepaLog" ? 0U : std::stoul(row[2]))
              << name;
        }
        EXPECT_EQ(Text(BlockSettings, "NSounds"), "");
        EXPECT_EQ(copy->Windows().FrmFrameSettings->chkGHideSystray.Value(), forms::Unchecked);
        copy = nullptr;
      });
  // The sound without a byte ends the reading at each start from then on.
  store();
  world.registry.Set(HKeyCurrentUser, BlockSettings, "NSounds", RegSz, "");
  Start();
  EXPECT_EQ(Number(BlockSettings, "Banner"), 0U);
  EXPECT_EQ(Number(BlockSettings, "ShowPH"), 0U);
  EXPECT_EQ(Text(BlockSettings, "NSounds"), "");
  EXPECT_EQ(copy->Windows().FrmFrameSettings->chkGHideSystray.Value(), forms::Unchecked);
  copy->Windows().FrmFrameNotification->cmbsound.SetListIndex(3);
  copy = nullptr;
  SetNumber(BlockSettings, "ShowPH", 1);
  Start();
  EXPECT_EQ(Number(BlockSettings, "ShowPH"), 1U);
  EXPECT_EQ(copy->Windows().FrmFrameSettings->chkGHideSystray.Value(), forms::Checked);
}

TEST_F(EngineContract, ASoundOfNoNameIsStoredWithoutAByte) {
  { StartCopy(); }
  SetNumber(BlockSettings, "Banner", 0);
  world.registry.SetString(HKeyCurrentUser, BlockSettings, "NSounds", "fanfare");
  Start();
  EXPECT_EQ(Text(BlockSettings, "NSounds"), "");
  EXPECT_EQ(Number(BlockSettings, "Banner"), 0U);
}

// A value without a byte where the start looks whether a key is filled.
TEST_F(EngineContract, AMarkerWithoutAByteEndsTheStart) {
  for (const auto& [key, name] : {std::pair{BlockSettings, "BpID"}, std::pair{BlockLog, "Popup"}}) {
    world.registry.RemoveKey(HKeyCurrentUser, RootKey);
    { StartCopy(); }
    world.registry.Set(HKeyCurrentUser, key, name, platform::RegDword, "");
    Start();
    EXPECT_THAT(BoxTexts(*copy), testing::Contains(HasSubstr("Run-time error '5'"))) << key;
    EXPECT_FALSE(copy->toolkit.Ending());
    copy = nullptr;
  }
}

TEST_F(EngineContract, AStartWithTheToggleCostsTheUsersSettingsToo) {
  { StartCopy(); }
  SetNumber(BlockSettings, "Banner", 0);
  SetNumber(BlockSettings, "KeepaLog", 1);
  Start();
  EXPECT_EQ(Number(BlockSettings, "Banner"), 0U);
  copy = nullptr;
  copy = StartCopy("/onoff");
  EXPECT_EQ(Number(BlockSettings, "Banner"), 1U);
  EXPECT_EQ(Number(BlockSettings, "KeepaLog"), 0U);
  EXPECT_EQ(Text(BlockSettings, "NSounds"), "");
  EXPECT_TRUE(copy->program.BlockingActive);
}

TEST_F(EngineContract, AMissingPopupZeroesAllFiveCountersAndEndsNothing) {
  { StartCopy(); }
  SetNumber(BlockSettings, "Banner", 0);
  SetNumber(BlockLog, "Flash", 40000);
  world.registry.RemoveValue(HKeyCurrentUser, BlockLog, "Popup");
  Start();
  for (const engine::Kind& kind : engine::Kinds) EXPECT_EQ(Number(BlockLog, kind.counter), 0U);
  EXPECT_EQ(Number(BlockSettings, "Banner"), 0U);
}

// The pieces of a record in the order of their numbers, the page's example put together of them,
// and its bytes.
TEST_F(EngineContract, TheRecordOfTheAllowListIsTheSumOfItsPieces) {
  std::map<int, std::string> pieces;
  for (const Row& row : page.TableBehind("The allow list")) {
    for (const std::size_t at : {std::size_t{0}, std::size_t{2}}) {
      if (!row[at].empty()) pieces[std::stoi(row[at])] = row[at + 1];
    }
  }
  const std::string flags = "10010";
  std::string record;
  std::size_t flag = 0;
  for (const auto& [number, piece] : pieces) {
    const auto text = Codes(piece);
    if (text.empty()) {
      record += number == 2 ? '2' : flags.at(flag++);
    } else {
      record += text[0].substr(1, text[0].size() - 2);
    }
  }
  record += "mysite";
  ASSERT_EQ(page.Fenced(0).size(), 1U);
  EXPECT_EQ(page.Fenced(0)[0], record);

  std::string bytes;
  for (const std::string& line : page.Fenced(1)) {
    std::istringstream hex(line.substr(0, 3 * 16));
    for (std::string byte; hex >> byte;) bytes += static_cast<char>(std::stoi(byte, nullptr, 16));
  }
  EXPECT_EQ(bytes, record + "\r\n");
  const auto sites = engine::ParseAllowList(bytes);
  ASSERT_EQ(sites.size(), 1U);
  EXPECT_EQ(sites[0].name, "mysite");
  EXPECT_THAT(sites[0].allowed, testing::ElementsAre(true, false, false, true, false));
}

TEST_F(EngineContract, EveryCommandOfTheTablesIsKnown) {
  Start();
  std::set<std::string> commands;
  for (const Row& row : page.TableBehind("The toolbar's layout", 1)) {
    for (const std::size_t at : {std::size_t{2}, std::size_t{6}}) {
      for (const std::string& command : Codes(row[at])) commands.insert(command);
    }
  }
  std::set<std::string> described;
  for (const Row& row : page.TableBehind("The toolbar's commands")) {
    for (const std::string& command : Codes(row[0])) described.insert(command);
  }
  EXPECT_EQ(commands, described);
  EXPECT_EQ(commands.size(), 9U);
  for (const std::string& command : commands) {
    shell::HideAll(copy->program);
    Welcome().Hide();
    StartAgain(command);
    EXPECT_TRUE(!ShownPanels(*copy).empty() || copy->Windows().frmcustom.Loaded()) << command;
  }
}

TEST_F(EngineContract, CheckAndRepairCallsTheLibraryWhoseKeyIsEmpty) {
  Start();
  const Table table = page.TableBehind("Registration of the libraries");
  const std::pair<const char*, std::size_t> libraries[] = {{"GBHelper.dll", 0},
                                                           {"GBToolbar.dll", 3}};
  for (const auto& [file, row] : libraries) {
    const std::string key = Code(table[row][0]);
    EXPECT_THAT(page.Text(), HasSubstr(std::string("- `") + file +
                                       "`, if the default value of `HKEY_CLASSES_ROOT\\" + key));
    for (const auto& [other, otherRow] : libraries) {
      world.registry.SetString(HKeyClassesRoot, Code(table[otherRow][0]), "",
                               other == file ? "" : Code(table[otherRow][1]));
    }
    copy->process.Trace().Clear();
    Main().lnkCheckAndRepair.Click();
    const auto calls = copy->process.Trace().LinesOf("LoadLibraryA");
    ASSERT_EQ(calls.size(), 1U) << file;
    EXPECT_THAT(calls[0], HasSubstr(file));
  }
}

TEST_F(EngineContract, ATextWithoutItsClickClosesTheChannel) {
  Start();
  const auto button = world.desktop.FindByCaption("Ready for command");
  world.desktop.SendText(button, platform::WmSetText, 0, "/graph");
  StartAgain("/clean");
  EXPECT_FALSE(copy->Windows().FrmFrameHistory->Visible());
  EXPECT_EQ(world.desktop.FindByCaption("Ready for command"), 0U);
  // The click that was missing opens it again.
  world.desktop.Send({button, platform::BmClick, 0, 0, nullptr});
  EXPECT_EQ(world.desktop.FindByCaption("Ready for command"), button);
}

}  // namespace
}  // namespace vantrel::test
