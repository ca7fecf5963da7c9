// The settings tree value by value: what lies under which key and name, what a first run stores,
// what a save stores, and which control a load fills. The blocking engine reads the same tree. The
// order of each table is the order of writing, or of loading.
#ifndef VANTREL_SETTINGS_SCHEMA_H_
#define VANTREL_SETTINGS_SCHEMA_H_

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <variant>

#include "program/Program.h"
#include "windows/FrmFrameBlockPreferences.h"
#include "windows/FrmFrameMain.h"
#include "windows/FrmFrameNotification.h"
#include "windows/FrmFrameSettings.h"

namespace vantrel::settings {

inline constexpr const char* RootKey = "Software\\Qorvel Softwares";
inline constexpr const char* BlockSettingsKey = "Software\\Qorvel Softwares\\Block Settings";
inline constexpr const char* SettingsKey = "Software\\Qorvel Softwares\\Settings";
inline constexpr const char* BlockLogKey = "Software\\Qorvel Softwares\\Block Log";
inline constexpr const char* ToolbarSettingsKey = "Software\\Qorvel Softwares\\Toolbar Settings";

// The value that says whether Block Settings or Settings has been filled. It is read under this
// spelling and written under "BpID", which is one value.
inline constexpr const char* FilledMarker = "BpId";

// The check box that holds a setting; touching it may make its panel.
using BoxOf = forms::CheckBox& (*)(program::Windows&);

template <auto Slot, auto Box>
forms::CheckBox& BoxIn(program::Windows& windows) {
  return (*(windows.*Slot)).*Box;
}

// Where the stored content comes from.
struct Nothing {};  // the value is not written
struct Number {
  std::int32_t Value;
};
struct TextValue {
  const char* Text;
};
struct BoxState {
  BoxOf Box;
};
// The number, and the box is ticked then, whose own handler saves the whole key.
struct NumberThenTick {
  std::int32_t Value;
  BoxOf Box;
};
struct SelectedSound {};
// 0 while blocking is active, else 1.
struct DisabledFlag {};
using Origin =
    std::variant<Nothing, Number, TextValue, BoxState, NumberThenTick, SelectedSound, DisabledFlag>;

// One value of a key.
struct ValueRow {
  const char* Name;
  Origin FirstRun;
  Origin Save;
};

// A number is REG_DWORD and written as such; a text keeps the type that the value has.
constexpr bool IsText(const Origin& origin) {
  return std::holds_alternative<TextValue>(origin) || std::holds_alternative<SelectedSound>(origin);
}

namespace boxes {

using program::Windows;
using windows::FrmFrameBlockPreferences;
using windows::FrmFrameMain;
using windows::FrmFrameNotification;
using windows::FrmFrameSettings;

template <auto Box>
inline constexpr BoxOf OnBlockPreferences = BoxIn<&Windows::FrmFrameBlockPreferences, Box>;
template <auto Box>
inline constexpr BoxOf OnSettings = BoxIn<&Windows::FrmFrameSettings, Box>;
template <auto Box>
inline constexpr BoxOf OnNotification = BoxIn<&Windows::FrmFrameNotification, Box>;
template <auto Box>
inline constexpr BoxOf OnWelcome = BoxIn<&Windows::FrmFrameMain, Box>;

inline constexpr BoxOf Popup = OnBlockPreferences<&FrmFrameBlockPreferences::chkBPopup>;
inline constexpr BoxOf Dhtml = OnBlockPreferences<&FrmFrameBlockPreferences::chkBDhtml>;
inline constexpr BoxOf Dialog = OnBlockPreferences<&FrmFrameBlockPreferences::chkBDialog>;
inline constexpr BoxOf Banner = OnBlockPreferences<&FrmFrameBlockPreferences::chkBBanner>;
inline constexpr BoxOf Flash = OnBlockPreferences<&FrmFrameBlockPreferences::chkBFlash>;
inline constexpr BoxOf Adv = OnBlockPreferences<&FrmFrameBlockPreferences::chkBAdv>;
inline constexpr BoxOf DialogBox = OnBlockPreferences<&FrmFrameBlockPreferences::chkBDialogBox>;
inline constexpr BoxOf Spyware = OnBlockPreferences<&FrmFrameBlockPreferences::chkBSpyware>;
inline constexpr BoxOf Log = OnSettings<&FrmFrameSettings::chkGLog>;
inline constexpr BoxOf HideSystray = OnSettings<&FrmFrameSettings::chkGHideSystray>;
inline constexpr BoxOf StartWithWindows = OnSettings<&FrmFrameSettings::chkGSWindows>;
inline constexpr BoxOf Update = OnSettings<&FrmFrameSettings::chkGUpdate>;
inline constexpr BoxOf ShowToolbar = OnSettings<&FrmFrameSettings::chkGShowToolbar>;
inline constexpr BoxOf Minimize = OnWelcome<&FrmFrameMain::ChkMinimize>;
inline constexpr BoxOf NotificationWindow = OnNotification<&FrmFrameNotification::chkNW>;
inline constexpr BoxOf Sound = OnNotification<&FrmFrameNotification::chkNS>;
inline constexpr BoxOf PlaceHolder = OnNotification<&FrmFrameNotification::chkNPH>;
inline constexpr BoxOf FlashPlaceHolder = OnNotification<&FrmFrameNotification::chkNPHF>;

}  // namespace boxes

// A value that a first run and a save both take from its box.
constexpr ValueRow FromBox(const char* name, BoxOf box) {
  return {name, BoxState{box}, BoxState{box}};
}

inline constexpr auto BlockSettingsRows = std::to_array<ValueRow>({
    {"BpID", Number{1}, Number{1}},
    FromBox("Popup", boxes::Popup),
    FromBox("DHTML", boxes::Dhtml),
    FromBox("WebDialog", boxes::Dialog),
    FromBox("Banner", boxes::Banner),
    FromBox("Flash", boxes::Flash),
    FromBox("Adv", boxes::Adv),
    FromBox("DialogBox", boxes::DialogBox),
    {"KeepaLog", NumberThenTick{1, boxes::Log}, BoxState{boxes::Log}},
    FromBox("ShowNotification", boxes::NotificationWindow),
    FromBox("ShowSound", boxes::Sound),
    FromBox("ShowPH", boxes::PlaceHolder),
    FromBox("ShowPHF", boxes::FlashPlaceHolder),
    {"NSounds", TextValue{"Alert"}, SelectedSound{}},
    {"GDisabled", DisabledFlag{}, DisabledFlag{}},
    FromBox("Spy", boxes::Spyware),
});

// The marker is meant to be missing after a first run: the boxes keep their design states until
// the first save.
inline constexpr auto SettingsRows = std::to_array<ValueRow>({
    {"BpID", Nothing{}, Number{1}},
    {"HideSystem", Number{0}, BoxState{boxes::HideSystray}},
    {"StartWithWindows", Number{1}, BoxState{boxes::StartWithWindows}},
    {"CheckUpdates", Number{0}, BoxState{boxes::Update}},
    {"ShowBrowser", Number{1}, BoxState{boxes::ShowToolbar}},
    {"Minimize", Number{0}, BoxState{boxes::Minimize}},
});

inline constexpr auto BlockLogRows = std::to_array<ValueRow>({
    {"Popup", Number{0}, Nothing{}},
    {"DHTML", Number{0}, Nothing{}},
    {"WebDialog", Number{0}, Nothing{}},
    {"BannerAds", Number{0}, Nothing{}},
    {"Flash", Number{0}, Nothing{}},
});

inline constexpr auto ToolbarSettingsRows = std::to_array<ValueRow>({
    {"Toolbar Name", TextValue{"Vantrel"}, Nothing{}},
    {"Toolbar Settings", TextValue{"1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19"}, Nothing{}},
});

// A key of the tree with the one value whose absence makes a first run fill it.
struct Section {
  const char* Key;
  const char* Marker;
  std::span<const ValueRow> Rows;
  bool ResetsTotal = false;
};

inline constexpr auto Sections = std::to_array<Section>({
    {BlockSettingsKey, FilledMarker, BlockSettingsRows},
    {BlockLogKey, "Popup", BlockLogRows, true},
    {SettingsKey, "HideSystem", SettingsRows},
    {ToolbarSettingsKey, "Toolbar Name", ToolbarSettingsRows},
});

// What a load fills: a box from a number, or the list of sounds from a name.
struct SoundList {};
struct LoadRow {
  const char* Name;
  std::variant<BoxOf, SoundList> Target;
};

// The sound stands before its switch, which is meant to decide: a name alone ticks the switch only
// until the next row.
inline constexpr auto BlockLoadRows = std::to_array<LoadRow>({
    {"Popup", boxes::Popup},
    {"DHTML", boxes::Dhtml},
    {"WebDialog", boxes::Dialog},
    {"Banner", boxes::Banner},
    {"Flash", boxes::Flash},
    {"Adv", boxes::Adv},
    {"DialogBox", boxes::DialogBox},
    {"KeepaLog", boxes::Log},
    {"ShowNotification", boxes::NotificationWindow},
    {"Nsounds", SoundList{}},
    {"ShowSound", boxes::Sound},
    {"ShowPH", boxes::PlaceHolder},
    {"ShowPHF", boxes::FlashPlaceHolder},
    {"Spy", boxes::Spyware},
});

inline constexpr auto GeneralLoadRows = std::to_array<LoadRow>({
    {"HideSystem", boxes::HideSystray},
    {"StartWithWindows", boxes::StartWithWindows},
    {"CheckUpdates", boxes::Update},
    {"ShowBrowser", boxes::ShowToolbar},
    {"Minimize", boxes::Minimize},
});

namespace checks {

constexpr char Lower(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

constexpr bool SameName(std::string_view one, std::string_view other) {
  if (one.size() != other.size()) return false;
  for (std::size_t i = 0; i < one.size(); ++i) {
    if (Lower(one[i]) != Lower(other[i])) return false;
  }
  return true;
}

template <class Rows>
constexpr int CountOf(const Rows& rows, std::string_view name) {
  int count = 0;
  for (const auto& row : rows) count += SameName(row.Name, name) ? 1 : 0;
  return count;
}

// Each name once.
template <class Rows>
constexpr bool NamesUnique(const Rows& rows) {
  for (const auto& row : rows) {
    if (CountOf(rows, row.Name) != 1) return false;
  }
  return true;
}

// Whether every box that a save reads is filled by a load, and the other way round.
template <class Rows, class LoadRows>
constexpr bool LoadsWhatItSaves(const Rows& rows, const LoadRows& loads) {
  for (const auto& row : rows) {
    const bool loaded = std::holds_alternative<BoxState>(row.Save) ||
                        std::holds_alternative<SelectedSound>(row.Save);
    if (CountOf(loads, row.Name) != (loaded ? 1 : 0)) return false;
  }
  for (const auto& load : loads) {
    if (CountOf(rows, load.Name) != 1) return false;
  }
  return true;
}

// Whether a first run writes the value that it tests, or leaves the marker to the first save.
constexpr bool MarkersExist() {
  for (const Section& section : Sections) {
    if (CountOf(section.Rows, section.Marker) != 1) return false;
  }
  return true;
}

static_assert(NamesUnique(BlockSettingsRows) && NamesUnique(SettingsRows));
static_assert(NamesUnique(BlockLogRows) && NamesUnique(ToolbarSettingsRows));
static_assert(NamesUnique(BlockLoadRows) && NamesUnique(GeneralLoadRows));
static_assert(LoadsWhatItSaves(BlockSettingsRows, BlockLoadRows));
static_assert(LoadsWhatItSaves(SettingsRows, GeneralLoadRows));
static_assert(MarkersExist());

}  // namespace checks
}  // namespace vantrel::settings

#endif  // VANTREL_SETTINGS_SCHEMA_H_
