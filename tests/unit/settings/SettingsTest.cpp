// First run, saves and loads of the settings tree, on windows that have no behaviour of their own
// but the one handler that a first run relies on.
#include <gmock/gmock.h>

#include <map>

#include "settings/FirstRun.h"
#include "settings/Load.h"
#include "settings/PanelBoxes.h"
#include "settings/bmdlSave.h"
#include "support/ComponentFixture.h"
#include "support/SettingBoxes.h"
#include "windows/FrmFrameBlockPreferences.h"
#include "windows/FrmFrameMain.h"
#include "windows/FrmFrameNotification.h"
#include "windows/FrmFrameSettings.h"

namespace vantrel::settings {
namespace {

using platform::HKeyCurrentUser;
using platform::memory::Refusal;
using test::ExpectedSetting;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using text::ErrorNumber;
using text::RuntimeError;

// The line of a write, below the settings tree.
std::string Written(const ExpectedSetting& setting, int number) {
  return std::string(setting.Key) + " \"" + setting.Name + "\" 4 " + std::to_string(number) +
         " 0 0 0 -> 0";
}
std::string Written(const ExpectedSetting& setting, const std::string& text) {
  return std::string(setting.Key) + " \"" + setting.Name + "\" 1 \"" + text + "\" -> 0";
}
std::string WrittenAtFirst(const ExpectedSetting& setting) {
  if (IsText(setting))
    return Written(setting, std::string(std::get<const char*>(setting.FirstRun)));
  return Written(setting, std::get<int>(setting.FirstRun));
}

// What stands in a key, in the order of writing.
std::vector<ExpectedSetting> SettingsOf(const std::string& key) {
  std::vector<ExpectedSetting> settings;
  for (const ExpectedSetting& setting : test::ExpectedSettings) {
    if (IsIn(setting, key)) settings.push_back(setting);
  }
  return settings;
}
std::vector<ExpectedSetting> BoxedSettings() {
  std::vector<ExpectedSetting> settings;
  for (const ExpectedSetting& setting : test::ExpectedSettings) {
    if (HasBox(setting)) settings.push_back(setting);
  }
  return settings;
}

class SettingsTree : public test::ComponentFixture {
 protected:
  SettingsTree() {
    program.windows.FrmFrameSettings.OnMade([this](windows::FrmFrameSettings& panel) {
      panel.chkGLog.Click = [this] { SaveBlockSettingsGuarded(program); };
    });
  }

  // What a save of the block settings writes with all controls at their design states.
  static std::vector<std::string> DesignSave(int keepaLog, const std::string& sound,
                                             int disabled = 1) {
    std::vector<std::string> writes;
    for (const ExpectedSetting& setting : SettingsOf("Block Settings")) {
      const std::string name = setting.Name;
      if (name == "KeepaLog") {
        writes.push_back(Written(setting, keepaLog));
      } else if (name == "NSounds") {
        writes.push_back(Written(setting, sound));
      } else if (name == "GDisabled") {
        writes.push_back(Written(setting, disabled));
      } else {
        writes.push_back(Written(setting, HasBox(setting) ? setting.Design : 1));
      }
    }
    return writes;
  }

  // A whole tree as a first run leaves it, with the marker that the first general save adds.
  void StoreTree() {
    CheckAndCreateRegitry(program);
    SetNumber("Settings", "BpID", 1);
    program.LoadingSettings = true;
    program.windows.FrmFrameSettings->chkGLog.SetValue(0);
    program.LoadingSettings = false;
    process.Trace().Clear();
  }

  void Load() {
    program.LoadingSettings = true;
    LoadBlockSettings(program);
    LoadGeneralSettings(program);
    program.LoadingSettings = false;
  }
  ErrorNumber LoadError() {
    try {
      Load();
    } catch (const RuntimeError& error) {
      return error.Number();
    }
    return {};
  }

  windows::FrmFrameBlockPreferences& Block() { return *program.windows.FrmFrameBlockPreferences; }
  windows::FrmFrameSettings& General() { return *program.windows.FrmFrameSettings; }
  windows::FrmFrameNotification& Notify() { return *program.windows.FrmFrameNotification; }
  windows::FrmFrameMain& Welcome() { return *program.windows.FrmFrameMain; }
};

TEST_F(SettingsTree, FirstRunOnAnEmptyStoreMakesTheWholeTree) {
  program.TotalBlocked = 7;
  CheckAndCreateRegitry(program);

  std::map<std::string, std::size_t> counts;
  for (const ExpectedSetting& setting : test::ExpectedSettings) {
    SCOPED_TRACE(std::string(setting.Key) + " " + setting.Name);
    if (IsNumber(setting)) {
      EXPECT_EQ(Number(setting.Key, setting.Name),
                static_cast<std::uint32_t>(std::get<int>(setting.FirstRun)));
    } else if (IsText(setting)) {
      EXPECT_EQ(Text(setting.Key, setting.Name), std::get<const char*>(setting.FirstRun));
    } else {
      EXPECT_EQ(Number(setting.Key, setting.Name), std::nullopt);
    }
    counts[setting.Key] += IsNumber(setting) || IsText(setting) ? 1U : 0U;
  }
  for (const auto& [key, count] : counts) {
    EXPECT_EQ(world.registry.Values(HKeyCurrentUser, Tree(key)).size(), count) << key;
  }
  EXPECT_EQ(program.TotalBlocked, 0);
  EXPECT_EQ(world.registry.Subkeys(HKeyCurrentUser, "Software\\Qorvel Softwares").size(), 4U);
  EXPECT_THAT(world.registry.Values(HKeyCurrentUser, "Software\\Qorvel Softwares"), IsEmpty());
  EXPECT_EQ(process.OpenKeys(), 0U);
}

TEST_F(SettingsTree, FirstRunWritesInItsOrderWithAFullSaveInTheMiddle) {
  CheckAndCreateRegitry(program);
  const std::vector<std::string> inTheMiddle = DesignSave(1, "");
  std::vector<std::string> expected;
  for (const ExpectedSetting& setting : test::ExpectedSettings) {
    if (!IsNumber(setting) && !IsText(setting)) continue;
    expected.push_back(WrittenAtFirst(setting));
    // Its box is ticked then, and saves the whole key.
    if (setting.Name == std::string("KeepaLog")) {
      expected.insert(expected.end(), inTheMiddle.begin(), inTheMiddle.end());
    }
  }
  EXPECT_THAT(Writes(), ElementsAreArray(expected));
  EXPECT_EQ(General().chkGLog.Value(), 1);
}

TEST_F(SettingsTree, FirstRunCreatesEachKeyBehindItsTest) {
  CheckAndCreateRegitry(program);
  std::vector<std::string> created = process.Trace().LinesOf("RegCreateKeyExA");
  ASSERT_EQ(created.size(), 5U);
  EXPECT_EQ(created[0],
            "RegCreateKeyExA HKCU\\Software\\Qorvel Softwares 0xF003F with a security record -> 0");
  EXPECT_EQ(process.Trace().Names().front(), "RegCreateKeyExA");
}

TEST_F(SettingsTree, FirstRunOverAWholeTreeOnlyLooks) {
  StoreTree();
  CheckAndCreateRegitry(program);
  EXPECT_THAT(Writes(), IsEmpty());
  EXPECT_THAT(process.Trace().LinesOf("RegCreateKeyExA"), testing::SizeIs(1));
}

TEST_F(SettingsTree, FirstRunWhileBlockingWritesThatItIsNotDisabled) {
  program.BlockingActive = true;
  CheckAndCreateRegitry(program);
  EXPECT_EQ(Number("Block Settings", "GDisabled"), 0U);
}

TEST_F(SettingsTree, ABlockLogWithoutPopupsIsReset) {
  StoreTree();
  SetNumber("Block Log", "Flash", 12);
  RemoveValue("Block Log", "Popup");
  CheckAndCreateRegitry(program);
  EXPECT_EQ(Number("Block Log", "Popup"), 0U);
  EXPECT_EQ(Number("Block Log", "Flash"), 0U);
}

TEST_F(SettingsTree, ABlockLogWithPopupsIsLeftAlone) {
  StoreTree();
  SetNumber("Block Log", "Popup", 5);
  RemoveValue("Block Log", "Flash");
  CheckAndCreateRegitry(program);
  EXPECT_EQ(Number("Block Log", "Popup"), 5U);
  EXPECT_EQ(Number("Block Log", "Flash"), std::nullopt);
}

TEST_F(SettingsTree, WithoutItsMarkerTheBlockSettingsAreRewrittenFromTheDesign) {
  StoreTree();
  SetNumber("Block Settings", "Popup", 0);
  SetText("Block Settings", "NSounds", "pop");
  RemoveValue("Block Settings", "BpId");
  CheckAndCreateRegitry(program);
  EXPECT_EQ(Number("Block Settings", "BpId"), 1U);
  EXPECT_EQ(Number("Block Settings", "Popup"), 1U);
  EXPECT_EQ(Text("Block Settings", "NSounds"), "Alert");
}

TEST_F(SettingsTree, AMarkerOfAnotherTypeCountsAsMissing) {
  StoreTree();
  world.registry.Set(HKeyCurrentUser, Tree("Settings"), "HideSystem", platform::RegBinary, "x");
  SetNumber("Settings", "Minimize", 1);
  CheckAndCreateRegitry(program);
  EXPECT_EQ(Number("Settings", "Minimize"), 0U);
  EXPECT_EQ(Number("Settings", "BpId"), 1U);
}

TEST_F(SettingsTree, AMarkerOfNoBytesIsAnInvalidArgument) {
  StoreTree();
  world.registry.Set(HKeyCurrentUser, Tree("Block Settings"), "BpId", platform::RegSz, "");
  EXPECT_THROW(CheckAndCreateRegitry(program), RuntimeError);
  EXPECT_EQ(process.OpenKeys(), 0U);
}

TEST_F(SettingsTree, AStoreThatCannotBeWrittenLosesTheSettingsSilently) {
  world.registry.Refuse(HKeyCurrentUser, "", Refusal::Write);
  CheckAndCreateRegitry(program);
  SaveBlockSettings(program);
  SaveGeneralSettings(program);
  EXPECT_FALSE(world.registry.HasKey(HKeyCurrentUser, "Software\\Qorvel Softwares"));
  EXPECT_THAT(process.Boxes(), IsEmpty());
  EXPECT_EQ(General().chkGLog.Value(), 1);
}

TEST_F(SettingsTree, ASaveRewritesTheWholeKeyInItsOrder) {
  StoreTree();
  Notify().cmbsound.SetText("pop");
  SaveBlockSettings(program);
  EXPECT_THAT(Writes(), ElementsAreArray(DesignSave(0, "pop")));
  EXPECT_THAT(process.Trace().LinesOf("RegCreateKeyExA"), IsEmpty());
}

TEST_F(SettingsTree, ASaveCreatesTheKeyWhereTheMarkerIsMissing) {
  SaveBlockSettings(program);
  EXPECT_THAT(process.Trace().LinesOf("RegCreateKeyExA"), testing::SizeIs(1));
  EXPECT_EQ(Number("Block Settings", "BpId"), 1U);
  EXPECT_EQ(world.registry.Values(HKeyCurrentUser, Tree("Block Settings"))[0].name, "BpID");
}

TEST_F(SettingsTree, ASaveTakesEveryBoxAndTheActiveFlag) {
  program.BlockingActive = true;
  Block().chkBPopup.SetValue(0);
  Block().chkBDhtml.SetValue(2);
  Block().chkBAdv.SetValue(1);
  Block().chkBSpyware.SetValue(0);
  Notify().chkNW.SetValue(1);
  Notify().chkNS.SetValue(1);
  Notify().chkNPH.SetValue(1);
  Notify().chkNPHF.SetValue(1);
  General().chkGLog.SetValue(1);
  SaveBlockSettings(program);
  EXPECT_EQ(Number("Block Settings", "Popup"), 0U);
  EXPECT_EQ(Number("Block Settings", "DHTML"), 2U);
  EXPECT_EQ(Number("Block Settings", "WebDialog"), 1U);
  EXPECT_EQ(Number("Block Settings", "Adv"), 1U);
  EXPECT_EQ(Number("Block Settings", "Spy"), 0U);
  EXPECT_EQ(Number("Block Settings", "KeepaLog"), 1U);
  EXPECT_EQ(Number("Block Settings", "ShowNotification"), 1U);
  EXPECT_EQ(Number("Block Settings", "ShowSound"), 1U);
  EXPECT_EQ(Number("Block Settings", "ShowPH"), 1U);
  EXPECT_EQ(Number("Block Settings", "ShowPHF"), 1U);
  EXPECT_EQ(Number("Block Settings", "GDisabled"), 0U);
}

TEST_F(SettingsTree, ASoundStoredAsANumberStaysOne) {
  StoreTree();
  SetNumber("Block Settings", "NSounds", 77);
  Notify().cmbsound.SetText("pop");
  SaveBlockSettings(program);
  EXPECT_EQ(Number("Block Settings", "NSounds"), 0U);
}

TEST_F(SettingsTree, ASaveWithoutASoundStoresNoBytes) {
  SaveBlockSettings(program);
  const auto sound = world.registry.Get(HKeyCurrentUser, Tree("Block Settings"), "NSounds");
  ASSERT_TRUE(sound);
  EXPECT_EQ(sound->data, "");
}

TEST_F(SettingsTree, AGeneralSaveWritesTheMarkerAndItsFlags) {
  StoreTree();
  RemoveValue("Settings", "BpId");
  General().chkGHideSystray.SetValue(1);
  Welcome().ChkMinimize.SetValue(1);
  SaveGeneralSettings(program);
  std::vector<std::string> expected;
  for (const ExpectedSetting& setting : SettingsOf("Settings")) {
    const std::string name = setting.Name;
    const bool ticked = name == "BpID" || name == "HideSystem" || name == "Minimize";
    expected.push_back(Written(setting, ticked ? 1 : setting.Design));
  }
  EXPECT_THAT(Writes(), ElementsAreArray(expected));
}

TEST_F(SettingsTree, GuardedSavesStandStillWhileSettingsAreLoaded) {
  program.LoadingSettings = true;
  EXPECT_TRUE(SaveBlockSettingsGuarded(program));
  EXPECT_TRUE(SaveGeneralSettingsGuarded(program));
  SaveNotificationGuarded(program);
  EXPECT_THAT(process.Trace().Names(), IsEmpty());
  SaveBlockSettings(program);
  EXPECT_EQ(BlockSaves(), 1);
}

TEST_F(SettingsTree, AGuardedSaveThatFailsShowsTheInformationBox) {
  world.registry.Set(HKeyCurrentUser, Tree("Block Settings"), "BpId", platform::RegSz, "");
  world.registry.Set(HKeyCurrentUser, Tree("Settings"), "BpId", platform::RegSz, "");
  EXPECT_FALSE(SaveBlockSettingsGuarded(program));
  EXPECT_FALSE(SaveGeneralSettingsGuarded(program));
  SaveNotificationGuarded(program);
  ASSERT_EQ(process.Boxes().size(), 3U);
  for (const auto& box : process.Boxes()) {
    EXPECT_EQ(box.text, "Error occured: Invalid procedure call or argument");
    EXPECT_EQ(box.title, "Vantrel");
    EXPECT_EQ(box.style, platform::StyleInformation);
  }
  EXPECT_THAT(Writes(), IsEmpty());
}

TEST_F(SettingsTree, ALoadWithoutTheMarkerDoesNothing) {
  SetNumber("Block Settings", "Popup", 0);
  SetNumber("Settings", "HideSystem", 1);
  LoadBlockSettings(program);
  LoadGeneralSettings(program);
  EXPECT_EQ(Block().chkBPopup.Value(), 1);
  EXPECT_EQ(General().chkGHideSystray.Value(), 0);
  EXPECT_THAT(process.Trace().LinesOf("RegQueryValueExA"), testing::SizeIs(2));
}

TEST_F(SettingsTree, ALoadFillsEveryControl) {
  StoreTree();
  for (const ExpectedSetting& setting : BoxedSettings()) {
    SetNumber(setting.Key, setting.Name, 1U - static_cast<unsigned>(setting.Design));
  }
  Load();
  for (const ExpectedSetting& setting : BoxedSettings()) {
    EXPECT_EQ(BoxOf(program.windows, setting).Value(), 1 - setting.Design) << setting.Control;
  }
  EXPECT_EQ(Notify().cmbsound.Text(), "alert");
  EXPECT_THAT(Writes(), IsEmpty());
}

TEST_F(SettingsTree, ALoadReadsInItsOrder) {
  StoreTree();
  Load();
  std::vector<std::string> names;
  for (const std::string& line : process.Trace().LinesOf("RegQueryValueExA")) {
    const auto from = line.find('"') + 1;
    names.push_back(line.substr(from, line.find('"', from) - from));
  }
  // That of writing, but the sound's name before its switch.
  std::vector<std::string> expected;
  for (const char* key : {"Block Settings", "Settings"}) {
    expected.emplace_back("BpId");
    for (const ExpectedSetting& setting : SettingsOf(key)) {
      if (setting.Name == std::string("ShowSound")) expected.emplace_back("Nsounds");
      if (HasBox(setting)) expected.emplace_back(setting.Name);
    }
  }
  EXPECT_THAT(names, ElementsAreArray(expected));
}

TEST_F(SettingsTree, ASoundNameAloneDoesNotSwitchTheSoundOn) {
  StoreTree();
  SetText("Block Settings", "NSounds", "POP2");
  std::vector<int> states;
  Notify().chkNS.Click = [&] { states.push_back(Notify().chkNS.Value()); };
  Load();
  EXPECT_EQ(Notify().cmbsound.Text(), "pop2");
  EXPECT_THAT(states, ElementsAre(1, 0)) << "ticked by the name, then cleared by the switch";
}

TEST_F(SettingsTree, AMissingSoundNameClearsTheSwitchUntilTheSwitchIsRead) {
  StoreTree();
  RemoveValue("Block Settings", "NSounds");
  SetNumber("Block Settings", "ShowSound", 1);
  Notify().chkNS.SetValue(forms::Checked);
  std::vector<int> states;
  Notify().chkNS.Click = [&] { states.push_back(Notify().chkNS.Value()); };
  Load();
  EXPECT_THAT(states, ElementsAre(0, 1));
  EXPECT_EQ(Notify().cmbsound.ListIndex(), -1);
}

TEST_F(SettingsTree, OddSoundNamesSelectNothing) {
  StoreTree();
  for (const std::string& name : {std::string("no such sound"), std::string(300, 'x')}) {
    SetText("Block Settings", "NSounds", name);
    Load();
    EXPECT_EQ(Notify().cmbsound.ListIndex(), -1);
  }
  SetNumber("Block Settings", "NSounds", 12);
  Load();
  EXPECT_EQ(Notify().cmbsound.ListIndex(), -1);
}

struct BrokenValue {
  const char* Name;
  std::uint32_t Type;
  std::string Data;
  ErrorNumber Error;
};

class BrokenStore : public SettingsTree, public testing::WithParamInterface<BrokenValue> {};

TEST_P(BrokenStore, EndsTheLoadAtTheBrokenValue) {
  StoreTree();
  for (const char* name : {"Popup", "Banner", "Spy"}) SetNumber("Block Settings", name, 0);
  world.registry.Set(HKeyCurrentUser, Tree("Block Settings"), "Banner", GetParam().Type,
                     GetParam().Data);
  EXPECT_EQ(LoadError(), GetParam().Error);
  EXPECT_EQ(Block().chkBPopup.Value(), 0) << "before the broken one";
  EXPECT_EQ(Block().chkBBanner.Value(), 1);
  EXPECT_EQ(Block().chkBSpyware.Value(), 1) << "behind the broken one";
  EXPECT_EQ(process.OpenKeys(), 0U);
}

INSTANTIATE_TEST_SUITE_P(
    , BrokenStore,
    testing::Values(
        BrokenValue{"no number", platform::RegSz, "Alert", ErrorNumber::TypeMismatch},
        BrokenValue{"empty text", platform::RegSz, std::string(1, '\0'), ErrorNumber::TypeMismatch},
        BrokenValue{"other type", platform::RegBinary, "1234", ErrorNumber::TypeMismatch},
        BrokenValue{"too long", platform::RegSz, std::string(2000, '1'), ErrorNumber::TypeMismatch},
        BrokenValue{"no bytes", platform::RegDword, "", ErrorNumber::InvalidProcedureCall},
        BrokenValue{"no state", platform::RegDword, std::string("\3\0\0\0", 4),
                    ErrorNumber::InvalidPropertyValue},
        BrokenValue{"negative", platform::RegSz, "-1", ErrorNumber::InvalidPropertyValue},
        BrokenValue{"too large", platform::RegDword, "\xFF\xFF\xFF\xFF", ErrorNumber::Overflow},
        BrokenValue{"just too large", platform::RegSz, "32768", ErrorNumber::Overflow}),
    [](const auto& info) {
      std::string name = info.param.Name;
      std::replace(name.begin(), name.end(), ' ', '_');
      return name;
    });

class EachBoxedValue : public SettingsTree, public testing::WithParamInterface<ExpectedSetting> {
 protected:
  // The store and the boxes agree, and all values can be read.
  EachBoxedValue() {
    StoreTree();
    Notify().cmbsound.SetText("pop");
    SaveBlockSettings(program);
    SaveGeneralSettings(program);
  }

  // The names of the values that two stores do not share.
  using Store = std::vector<platform::memory::RegistryValue>;
  static std::vector<std::string> Differences(const Store& one, const Store& other) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < one.size() && i < other.size(); ++i) {
      if (!(one[i] == other[i])) names.push_back(one[i].name);
    }
    return names;
  }
  Store Stored() const {
    Store values = world.registry.Values(HKeyCurrentUser, Tree("Block Settings"));
    const Store general = world.registry.Values(HKeyCurrentUser, Tree("Settings"));
    values.insert(values.end(), general.begin(), general.end());
    return values;
  }
  std::vector<int> States() {
    std::vector<int> states;
    for (const ExpectedSetting& setting : BoxedSettings()) {
      states.push_back(BoxOf(program.windows, setting).Value());
    }
    return states;
  }
};

TEST_P(EachBoxedValue, IsSavedFromItsBoxAlone) {
  const Store before = Stored();
  forms::CheckBox& box = BoxOf(program.windows, GetParam());
  box.SetValue(1 - box.Value());
  SaveBlockSettings(program);
  SaveGeneralSettings(program);
  EXPECT_THAT(Differences(before, Stored()), ElementsAre(GetParam().Name));
  EXPECT_EQ(Number(GetParam().Key, GetParam().Name), static_cast<unsigned>(box.Value()));
}

TEST_P(EachBoxedValue, IsLoadedIntoItsBoxAlone) {
  std::vector<int> expected = States();
  for (std::size_t i = 0; i < expected.size(); ++i) {
    if (BoxedSettings()[i].Control == std::string(GetParam().Control))
      expected[i] = 1 - expected[i];
  }
  const auto stored = Number(GetParam().Key, GetParam().Name);
  SetNumber(GetParam().Key, GetParam().Name, 1 - stored.value_or(0));
  Load();
  EXPECT_THAT(States(), ElementsAreArray(expected));
}

TEST_P(EachBoxedValue, IsDesignedAndResetAsExpected) {
  forms::CheckBox& box = BoxOf(program.windows, GetParam());
  // The log switch is ticked by every first run, and cleared again by this fixture.
  EXPECT_EQ(box.Value(), GetParam().Design);
  for (const int before : {0, 1}) {
    box.SetValue(before);
    ResetBoxes(program, program.windows.FrmFrameSettings);
    ResetBoxes(program, program.windows.FrmFrameNotification);
    ResetBoxes(program, program.windows.FrmFrameMain);
    ResetBoxes(program, program.windows.FrmFrameBlockPreferences);
    EXPECT_EQ(box.Value(), GetParam().Reset == test::NotReset ? before : GetParam().Reset);
  }
}

INSTANTIATE_TEST_SUITE_P(, EachBoxedValue, testing::ValuesIn(BoxedSettings()),
                         [](const auto& info) { return info.param.Name; });

TEST_F(SettingsTree, AFirstRunKeepsTheTypesOfTheTextsItFinds) {
  SetNumber("Block Settings", "NSounds", 77);
  world.registry.Set(HKeyCurrentUser, Tree("Toolbar Settings"), "Toolbar Name", platform::RegBinary,
                     "x");
  CheckAndCreateRegitry(program);
  EXPECT_EQ(Number("Block Settings", "NSounds"), 0U);
  const auto name = world.registry.Get(HKeyCurrentUser, Tree("Toolbar Settings"), "Toolbar Name");
  ASSERT_TRUE(name);
  EXPECT_EQ(name->type, platform::RegBinary);
  EXPECT_EQ(name->data, "x" + std::string(1023, '\0'));
}

TEST_F(SettingsTree, AMissingLastValueEndsTheLoadThere) {
  StoreTree();
  SetNumber("Block Settings", "ShowPHF", 1);
  RemoveValue("Block Settings", "Spy");
  EXPECT_EQ(LoadError(), ErrorNumber::TypeMismatch);
  EXPECT_EQ(Notify().chkNPHF.Value(), 1);
}

TEST_F(SettingsTree, ASoundOfNoBytesEndsTheLoadBeforeTheSound) {
  StoreTree();
  world.registry.Set(HKeyCurrentUser, Tree("Block Settings"), "NSounds", platform::RegSz, "");
  SetNumber("Block Settings", "ShowNotification", 1);
  SetNumber("Block Settings", "ShowSound", 1);
  EXPECT_EQ(LoadError(), ErrorNumber::InvalidProcedureCall);
  EXPECT_EQ(Notify().chkNW.Value(), 1);
  EXPECT_EQ(Notify().chkNS.Value(), 0);
}

TEST_F(SettingsTree, AFlagStoredAsTextOrAsTwoIsTaken) {
  StoreTree();
  SetText("Block Settings", "Popup", " 0 ");
  SetNumber("Block Settings", "DHTML", 2);
  Load();
  EXPECT_EQ(Block().chkBPopup.Value(), 0);
  EXPECT_EQ(Block().chkBDhtml.Value(), 2);
}

TEST_F(SettingsTree, AfterAFirstRunTheGeneralBoxesKeepTheirDesignUntilTheFirstSave) {
  CheckAndCreateRegitry(program);
  Load();
  EXPECT_EQ(Number("Settings", "StartWithWindows"), 1U);
  EXPECT_EQ(General().chkGSWindows.Value(), 0);
  SaveGeneralSettings(program);
  EXPECT_EQ(Number("Settings", "StartWithWindows"), 0U);
}

}  // namespace
}  // namespace vantrel::settings
