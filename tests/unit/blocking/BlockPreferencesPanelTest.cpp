// The Ad Blocking panel: the master box, the presets, the two boxes that change Windows, and how
// often each click saves.
#include <gmock/gmock.h>

#include <functional>

#include "blocking/Attach.h"
#include "blocking/BlockPreferencesPanel.h"
#include "settings/FirstRun.h"
#include "settings/Load.h"
#include "support/ComponentFixture.h"
#include "windows/FrmFrameBlockPreferences.h"
#include "windows/frmMain.h"

namespace vantrel::blocking {
namespace {

using forms::CheckBox;
using platform::HKeyCurrentUser;
using platform::HKeyLocalMachine;
using platform::memory::Refusal;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* MessengerKey = "SYSTEM\\CurrentControlSet\\Services\\Messenger";
constexpr const char* ZoneKey =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\Zones\\0";

class BlockPreferences : public test::ComponentFixture {
 protected:
  BlockPreferences() {
    AttachBlocking(program);
    settings::CheckAndCreateRegitry(program);
    process.Trace().Clear();
  }

  windows::FrmFrameBlockPreferences& Panel() { return *program.windows.FrmFrameBlockPreferences; }
  std::vector<CheckBox*> Six() {
    return {&Panel().chkBPopup,  &Panel().chkBDhtml, &Panel().chkBDialog,
            &Panel().chkBBanner, &Panel().chkBFlash, &Panel().chkBAdv};
  }
  std::vector<CheckBox*> Eight() {
    std::vector<CheckBox*> boxes = Six();
    boxes.push_back(&Panel().chkBDialogBox);
    boxes.push_back(&Panel().chkBSpyware);
    return boxes;
  }
  static void Set(const std::vector<CheckBox*>& boxes, int value) {
    for (CheckBox* box : boxes) box->SetValue(value);
  }
  // The states of popup, DHTML, dialog, banner, Flash, secure, Messenger and spyware box.
  std::vector<int> States() {
    std::vector<int> states;
    for (const CheckBox* box : Eight()) states.push_back(box->Value());
    return states;
  }
  // Everything ticked, the master too, and nothing traced yet.
  void TickAll() {
    Set(Eight(), 1);
    EXPECT_EQ(Panel().chkAll.Value(), 1);
    process.Trace().Clear();
  }
  std::optional<std::uint32_t> Messenger() const {
    return world.registry.GetDword(HKeyLocalMachine, MessengerKey, "Start");
  }
  std::optional<std::uint32_t> Zone(const std::string& policy) const {
    return world.registry.GetDword(HKeyCurrentUser, ZoneKey, policy);
  }
  // What the boxes become, in the order of the changes, e.g. "chkBFlash 0".
  std::vector<std::string> ChangesOf(const std::function<void()>& act) {
    std::vector<std::string> changes;
    toolkit.Trace = [&](const std::string& line) {
      const auto value = line.find(" Value=");
      if (value == std::string::npos) return;
      const auto name = line.find('.') + 1;
      changes.push_back(line.substr(name, value - name) + " " + line.substr(value + 7));
    };
    act();
    toolkit.Trace = nullptr;
    return changes;
  }
  void Choose(const std::string& preset) { Panel().cmbinternet.SetText(preset); }
};

TEST_F(BlockPreferences, DesignStates) {
  EXPECT_THAT(States(), ElementsAre(1, 1, 1, 1, 1, 0, 1, 1));
  EXPECT_EQ(Panel().chkAll.Value(), 0);
  EXPECT_FALSE(Panel().PanelBusy);
}

TEST_F(BlockPreferences, EachClickSavesTheWholeKeyOnce) {
  for (CheckBox* box : Eight()) {
    process.Trace().Clear();
    AsEvent([&] { box->UserClick(); });
    EXPECT_EQ(BlockSaves(), 1) << box->Name();
  }
  EXPECT_THAT(process.Boxes(), IsEmpty());
}

TEST_F(BlockPreferences, TickingTheLastOfTheSixTicksTheMasterWithoutACascade) {
  Panel().chkBDialogBox.SetValue(0);
  process.Trace().Clear();
  Panel().chkBAdv.SetValue(1);
  EXPECT_EQ(Panel().chkAll.Value(), 1);
  EXPECT_EQ(Panel().chkBDialogBox.Value(), 0);
  EXPECT_EQ(BlockSaves(), 1);
  EXPECT_FALSE(Panel().cmdsave.Enabled());
}

TEST_F(BlockPreferences, EachOfTheSixClearsTheMasterWithoutACascadeAndTicksItAgain) {
  for (CheckBox* box : Six()) {
    TickAll();
    AsEvent([&] { box->UserClick(); });
    EXPECT_EQ(Panel().chkAll.Value(), 0) << box->Name();
    EXPECT_EQ(BlockSaves(), 1) << box->Name();
    AsEvent([&] { box->UserClick(); });
    EXPECT_EQ(Panel().chkAll.Value(), 1) << box->Name();
    EXPECT_EQ(BlockSaves(), 2) << box->Name();
  }
}

TEST_F(BlockPreferences, ThePanelIsBusyWhileABoxsHandlerRuns) {
  world.registry.Set(HKeyCurrentUser, Tree("Block Settings"), "BpId", platform::RegSz, "");
  int shown = 0;
  process.WhileBoxIsUp = [&](const auto&) {
    ++shown;
    EXPECT_TRUE(Panel().PanelBusy);
    Panel().chkAll.UserClick();
  };
  AsEvent([&] { Panel().chkBDhtml.UserClick(); });
  process.WhileBoxIsUp = nullptr;
  EXPECT_EQ(shown, 1);
  EXPECT_FALSE(Panel().PanelBusy);
  EXPECT_THAT(States(), ElementsAre(1, 0, 1, 1, 1, 0, 1, 1)) << "the master started no cascade";
}

TEST_F(BlockPreferences, TheMasterIsRecomputedBeforeTheSave) {
  TickAll();
  world.registry.Set(HKeyCurrentUser, Tree("Block Settings"), "BpId", platform::RegSz, "");
  process.WhileBoxIsUp = [&](const auto&) { EXPECT_EQ(Panel().chkAll.Value(), 0); };
  AsEvent([&] { Panel().chkBFlash.UserClick(); });
  EXPECT_THAT(process.Boxes(), testing::SizeIs(1));
  process.WhileBoxIsUp = nullptr;
}

TEST_F(BlockPreferences, AGrayedBoxNeitherTouchesTheServiceNorTheZone) {
  Panel().chkBDialogBox.SetValue(2);
  Panel().chkBSpyware.SetValue(2);
  EXPECT_THAT(ForeignWrites(), IsEmpty());
  EXPECT_EQ(BlockSaves(), 2);
}

TEST_F(BlockPreferences, AGrayedBoxIsNotTickedForTheMaster) {
  Set(Six(), 1);
  Panel().chkBFlash.SetValue(2);
  EXPECT_EQ(Panel().chkAll.Value(), 0);
}

TEST_F(BlockPreferences, ClearingOneOfTheTwoOthersLeavesTheMasterTicked) {
  TickAll();
  Panel().chkBDialogBox.SetValue(0);
  Panel().chkBSpyware.SetValue(0);
  EXPECT_EQ(Panel().chkAll.Value(), 1);
}

TEST_F(BlockPreferences, TickingTheMasterTicksAllEightAndDisablesTheMessenger) {
  Set(Eight(), 0);
  EXPECT_EQ(Messenger(), 2U);
  process.Trace().Clear();
  AsEvent([&] { Panel().chkAll.UserClick(); });
  EXPECT_THAT(States(), ElementsAre(1, 1, 1, 1, 1, 1, 1, 1));
  EXPECT_EQ(Panel().chkAll.Value(), 1);
  EXPECT_EQ(Messenger(), 4U);
  EXPECT_EQ(BlockSaves(), 8);
  EXPECT_TRUE(Panel().cmdsave.Enabled());
  EXPECT_FALSE(Panel().cmdsave.Visible());
}

TEST_F(BlockPreferences, ClearingTheMasterClearsAllEightAndSavesEightTimes) {
  TickAll();
  AsEvent([&] { Panel().chkAll.UserClick(); });
  EXPECT_THAT(States(), ElementsAre(0, 0, 0, 0, 0, 0, 0, 0));
  EXPECT_EQ(Panel().chkAll.Value(), 0);
  EXPECT_EQ(BlockSaves(), 8);
  EXPECT_THAT(ForeignWrites(),
              ElementsAre("HKLM\\" + std::string(MessengerKey) + " \"Start\" 4 2 0 0 0 -> 0",
                          "HKCU\\" + std::string(ZoneKey) + " \"1200\" 4 0 0 0 0 -> 0",
                          "HKCU\\" + std::string(ZoneKey) + " \"1201\" 4 1 0 0 0 -> 0"));
}

TEST_F(BlockPreferences, TheMasterSetsTheBoxesInItsOrder) {
  TickAll();
  std::vector<std::string> changed;
  toolkit.Trace = [&](const std::string& line) { changed.push_back(line); };
  Panel().chkAll.UserClick();
  std::erase_if(changed, [](const std::string& line) {
    return line.find("chkB") == std::string::npos || line.find("Value") == std::string::npos;
  });
  for (std::string& line : changed) line = line.substr(0, line.find(' '));
  const std::string panel = "FrmFrameBlockPreferences.";
  EXPECT_THAT(changed, ElementsAre(panel + "chkBDhtml", panel + "chkBDialog", panel + "chkBFlash",
                                   panel + "chkBBanner", panel + "chkBPopup", panel + "chkBAdv",
                                   panel + "chkBDialogBox", panel + "chkBSpyware"));
}

TEST_F(BlockPreferences, AGrayedMasterStartsNoCascade) {
  Panel().chkAll.SetValue(2);
  EXPECT_THAT(Writes(), IsEmpty());
  EXPECT_TRUE(Panel().cmdsave.Enabled());
}

TEST_F(BlockPreferences, AMasterClickSavesOncePerBoxThatChanges) {
  Panel().chkBDialogBox.SetValue(0);
  process.Trace().Clear();
  AsEvent([&] { Panel().chkAll.UserClick(); });
  EXPECT_EQ(BlockSaves(), 2) << "the secure box and the Messenger box";
}

TEST_F(BlockPreferences, MessengerAdsSetTheServicesStart) {
  AsEvent([&] { Panel().chkBDialogBox.UserClick(); });
  EXPECT_EQ(Messenger(), 2U);
  AsEvent([&] { Panel().chkBDialogBox.UserClick(); });
  EXPECT_EQ(Messenger(), 4U);
}

TEST_F(BlockPreferences, TheServicesStartIsWrittenBehindTheSave) {
  AsEvent([&] { Panel().chkBDialogBox.UserClick(); });
  EXPECT_EQ(Writes().back(), "HKLM\\" + std::string(MessengerKey) + " \"Start\" 4 2 0 0 0 -> 0");
}

TEST_F(BlockPreferences, ClearingSpywareOpensTheZoneAndTickingDoesNotCloseIt) {
  AsEvent([&] { Panel().chkBSpyware.UserClick(); });
  EXPECT_EQ(Zone("1200"), 0U);
  EXPECT_EQ(Zone("1201"), 1U);
  process.Trace().Clear();
  AsEvent([&] { Panel().chkBSpyware.UserClick(); });
  EXPECT_THAT(ForeignWrites(), IsEmpty());
  EXPECT_EQ(Zone("1200"), 0U);
}

TEST_F(BlockPreferences, TheZoneCanBeClosed) {
  SetSpywareZone(program, true);
  EXPECT_EQ(Zone("1200"), 3U);
  EXPECT_EQ(Zone("1201"), 3U);
}

TEST_F(BlockPreferences, ForeignWritesThatAreRefusedAreSilentAndTheBoxKeepsItsState) {
  world.registry.Refuse(HKeyLocalMachine, MessengerKey, Refusal::Write);
  AsEvent([&] { Panel().chkBDialogBox.UserClick(); });
  EXPECT_EQ(Messenger(), 4U) << "as the machine had it";
  EXPECT_EQ(Panel().chkBDialogBox.Value(), 0);
  EXPECT_EQ(Number("Block Settings", "DialogBox"), 0U);
  EXPECT_THAT(process.Boxes(), IsEmpty());
}

TEST_F(BlockPreferences, WithoutItsKeyNothingIsCreatedForTheMessenger) {
  world.registry.RemoveKey(HKeyLocalMachine, MessengerKey);
  AsEvent([&] { Panel().chkBDialogBox.UserClick(); });
  EXPECT_FALSE(world.registry.HasKey(HKeyLocalMachine, MessengerKey));
  EXPECT_THAT(process.Boxes(), IsEmpty());
}

struct PresetCase {
  const char* Name;
  std::vector<int> States;
  int All;
};

class Presets : public BlockPreferences, public testing::WithParamInterface<PresetCase> {};

TEST_P(Presets, SetTheirFiveBoxes) {
  Set(Six(), 0);
  Choose(GetParam().Name);
  EXPECT_THAT(States(), testing::ElementsAreArray(GetParam().States));
  EXPECT_EQ(Panel().chkAll.Value(), 0);
}

TEST_P(Presets, WithTheMasterTickedClearTheOthersFirst) {
  TickAll();
  Choose(GetParam().Name);
  std::vector<int> expected = GetParam().States;
  expected[6] = 0;
  expected[7] = 0;
  EXPECT_THAT(States(), testing::ElementsAreArray(expected));
}

TEST_P(Presets, TwiceInARowChangeNothingTheSecondTime) {
  Choose(GetParam().Name);
  process.Trace().Clear();
  Choose(GetParam().Name);
  EXPECT_THAT(Writes(), IsEmpty());
}

TEST_P(Presets, InOtherLetterCaseDoNothing) {
  std::string name = GetParam().Name;
  name[0] = static_cast<char>(name[0] + ('a' - 'A'));
  Choose(name);
  EXPECT_THAT(Writes(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(, Presets,
                         testing::Values(PresetCase{"Dial Up", {1, 0, 1, 0, 1, 0, 1, 1}, 0},
                                         PresetCase{"DSL/Cable", {1, 0, 1, 1, 1, 0, 1, 1}, 0},
                                         PresetCase{
                                             "High Speed /T1 Line", {1, 1, 1, 1, 1, 0, 1, 1}, 0}));

TEST_F(BlockPreferences, APresetSetsItsBoxesInItsOwnOrder) {
  Set({&Panel().chkBPopup, &Panel().chkBDialog, &Panel().chkBFlash}, 0);
  EXPECT_THAT(
      ChangesOf([&] { Choose("Dial Up"); }),
      ElementsAre("chkBPopup 1", "chkBDialog 1", "chkBFlash 1", "chkBBanner 0", "chkBDhtml 0"));
  Set({&Panel().chkBPopup, &Panel().chkBDialog, &Panel().chkBFlash}, 0);
  Panel().chkBDhtml.SetValue(1);
  EXPECT_THAT(
      ChangesOf([&] { Choose("DSL/Cable"); }),
      ElementsAre("chkBPopup 1", "chkBDialog 1", "chkBBanner 1", "chkBFlash 1", "chkBDhtml 0"));
  Set(Six(), 0);
  EXPECT_THAT(
      ChangesOf([&] { Choose("High Speed /T1 Line"); }),
      ElementsAre("chkBPopup 1", "chkBDialog 1", "chkBBanner 1", "chkBFlash 1", "chkBDhtml 1"));
}

TEST_F(BlockPreferences, APresetOverTheMasterRunsTheWholeCascadeFirst) {
  TickAll();
  EXPECT_THAT(ChangesOf([&] { Choose("Dial Up"); }),
              ElementsAre("chkAll 0", "chkBDhtml 0", "chkBDialog 0", "chkBFlash 0", "chkBBanner 0",
                          "chkBPopup 0", "chkBAdv 0", "chkBDialogBox 0", "chkBSpyware 0",
                          "chkBPopup 1", "chkBDialog 1", "chkBFlash 1"));
  EXPECT_EQ(BlockSaves(), 11);
}

TEST_F(BlockPreferences, HighSpeedWithSecureSitesTickedEndsWithTheMasterTicked) {
  Panel().chkBAdv.SetValue(1);
  Panel().chkBPopup.SetValue(0);
  EXPECT_EQ(Panel().chkAll.Value(), 0);
  Choose("High Speed /T1 Line");
  EXPECT_EQ(Panel().chkAll.Value(), 1);
}

TEST_F(BlockPreferences, CustomAndAnythingElseDoNothing) {
  Choose("Dial Up");
  process.Trace().Clear();
  for (const char* text : {"Custom", "", "Dial Up ", "ISDN"}) Choose(text);
  EXPECT_THAT(Writes(), IsEmpty());
}

TEST_F(BlockPreferences, APresetIsAppliedWhenPickedFromTheList) {
  Panel().cmbinternet.SetListIndex(1);
  EXPECT_THAT(States(), ElementsAre(1, 0, 1, 0, 1, 0, 1, 1));
}

TEST_F(BlockPreferences, APresetIsAppliedWhenItsNameIsTypedToTheEnd) {
  for (const char* typed : {"D", "Dial", "Dial U"}) {
    Panel().cmbinternet.AssignWindowText(typed);
    EXPECT_THAT(Writes(), IsEmpty());
  }
  Panel().cmbinternet.AssignWindowText("Dial Up");
  EXPECT_THAT(States(), ElementsAre(1, 0, 1, 0, 1, 0, 1, 1));
}

TEST_F(BlockPreferences, ABoxChangedByHandLeavesThePresetsName) {
  Choose("Dial Up");
  AsEvent([&] { Panel().chkBPopup.UserClick(); });
  EXPECT_EQ(Panel().cmbinternet.Text(), "Dial Up");
}

TEST_F(BlockPreferences, ALoadSavesNothingButItsSideEffectsHappen) {
  SetNumber("Block Settings", "DialogBox", 0);
  SetNumber("Block Settings", "Spy", 0);
  SetNumber("Block Settings", "Adv", 1);
  program.LoadingSettings = true;
  settings::LoadBlockSettings(program);
  EXPECT_THAT(ForeignWrites(), testing::SizeIs(3));
  EXPECT_EQ(Writes().size(), 3U);
  EXPECT_EQ(Messenger(), 2U);
  EXPECT_EQ(Zone("1200"), 0U);
  EXPECT_EQ(Panel().chkAll.Value(), 1);
}

TEST_F(BlockPreferences, ALoadOfTheDesignStatesWritesNothing) {
  program.LoadingSettings = true;
  settings::LoadBlockSettings(program);
  EXPECT_THAT(Writes(), IsEmpty());
}

TEST_F(BlockPreferences, AFailingSaveShowsTheBoxAndThePanelStaysUsable) {
  for (CheckBox* box : Eight()) {
    process.ClearBoxes();
    world.registry.Set(HKeyCurrentUser, Tree("Block Settings"), "BpId", platform::RegSz, "");
    AsEvent([&] { box->UserClick(); });
    EXPECT_THAT(BoxTexts(), ElementsAre("Error occured: Invalid procedure call or argument"));
    EXPECT_FALSE(Panel().PanelBusy);
  }
  SetNumber("Block Settings", "BpId", 1);
  process.Trace().Clear();
  AsEvent([&] { Panel().chkBPopup.UserClick(); });
  EXPECT_EQ(BlockSaves(), 1);
}

TEST_F(BlockPreferences, ThePanelIsHostedByTheMainWindow) {
  EXPECT_EQ(Panel().Host(), &*program.windows.frmMain);
  EXPECT_EQ(world.desktop.Parent(Panel().hWnd()), program.windows.frmMain->hWnd());
}

}  // namespace
}  // namespace vantrel::blocking
