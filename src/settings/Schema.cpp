#include "settings/Schema.h"

#include "windows/FrmFrameBlockPreferences.h"
#include "windows/FrmFrameMain.h"
#include "windows/FrmFrameNotification.h"
#include "windows/FrmFrameSettings.h"

namespace vantrel::settings {
namespace {

using program::Windows;
using windows::FrmFrameBlockPreferences;
using windows::FrmFrameMain;
using windows::FrmFrameNotification;
using windows::FrmFrameSettings;

template <class Panel>
forms::CheckBox& BoxAt(forms::Form& panel, forms::CheckBox Panel::*box) {
  return static_cast<Panel&>(panel).*box;
}

template <auto Slot, auto Box>
inline constexpr BoxState StateOf{
    {[](Windows& windows) -> program::FormSlot& { return windows.*Slot; },
     [](forms::Form& panel) -> forms::CheckBox& { return BoxAt(panel, Box); }}};

// The state of a box of the one panel or the other.
template <auto Box>
inline constexpr BoxState Blocking = StateOf<&Windows::FrmFrameBlockPreferences, Box>;
template <auto Box>
inline constexpr BoxState General = StateOf<&Windows::FrmFrameSettings, Box>;
template <auto Box>
inline constexpr BoxState Notification = StateOf<&Windows::FrmFrameNotification, Box>;
template <auto Box>
inline constexpr BoxState Welcome = StateOf<&Windows::FrmFrameMain, Box>;

inline constexpr BoxState KeepLog = General<&FrmFrameSettings::chkGLog>;

// A value that a first run, too, takes from its box.
constexpr Setting FromBox(const char* name, BoxState box, int reset = AsItIs) {
  return {name, box, box, reset};
}

constexpr auto BlockSettingsRows = std::to_array<Setting>({
    {"BpID", Number{1}, Number{1}},
    FromBox("Popup", Blocking<&FrmFrameBlockPreferences::chkBPopup>),
    FromBox("DHTML", Blocking<&FrmFrameBlockPreferences::chkBDhtml>),
    FromBox("WebDialog", Blocking<&FrmFrameBlockPreferences::chkBDialog>),
    FromBox("Banner", Blocking<&FrmFrameBlockPreferences::chkBBanner>),
    FromBox("Flash", Blocking<&FrmFrameBlockPreferences::chkBFlash>),
    FromBox("Adv", Blocking<&FrmFrameBlockPreferences::chkBAdv>),
    FromBox("DialogBox", Blocking<&FrmFrameBlockPreferences::chkBDialogBox>),
    {"KeepaLog", NumberThenTick{1, KeepLog.Box}, KeepLog, 1},
    FromBox("ShowNotification", Notification<&FrmFrameNotification::chkNW>, 0),
    FromBox("ShowSound", Notification<&FrmFrameNotification::chkNS>, 1),
    FromBox("ShowPH", Notification<&FrmFrameNotification::chkNPH>, 1),
    FromBox("ShowPHF", Notification<&FrmFrameNotification::chkNPHF>, 1),
    // Loaded before its switch, which is meant to decide: a name alone ticks the switch only until
    // the switch itself is loaded.
    {"NSounds", TextValue{"Alert"}, SelectedSound{}, AsItIs, "Nsounds", "ShowSound"},
    {DisabledValue, DisabledFlag{}, DisabledFlag{}},
    FromBox("Spy", Blocking<&FrmFrameBlockPreferences::chkBSpyware>),
});

// The marker is meant to be missing after a first run: the boxes keep their design states until the
// first save. First-run values and design states differ on purpose.
constexpr auto SettingsRows = std::to_array<Setting>({
    {"BpID", Nothing{}, Number{1}},
    {"HideSystem", Number{0}, General<&FrmFrameSettings::chkGHideSystray>, 0},
    {"StartWithWindows", Number{1}, General<&FrmFrameSettings::chkGSWindows>, 0},
    {"CheckUpdates", Number{0}, General<&FrmFrameSettings::chkGUpdate>, 0},
    {"ShowBrowser", Number{1}, General<&FrmFrameSettings::chkGShowToolbar>, 1},
    {"Minimize", Number{0}, Welcome<&FrmFrameMain::ChkMinimize>},
});

constexpr auto BlockLogRows = std::to_array<Setting>({
    {"Popup", Number{0}, Nothing{}},
    {"DHTML", Number{0}, Nothing{}},
    {"WebDialog", Number{0}, Nothing{}},
    {"BannerAds", Number{0}, Nothing{}},
    {"Flash", Number{0}, Nothing{}},
});

constexpr auto ToolbarSettingsRows = std::to_array<Setting>({
    {"Toolbar Name", TextValue{"Vantrel"}, Nothing{}},
    {"Toolbar Settings", TextValue{"1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19"}, Nothing{}},
});

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

constexpr int CountOf(std::span<const Setting> rows, std::string_view name) {
  int count = 0;
  for (const Setting& row : rows) count += SameName(row.Name, name) ? 1 : 0;
  return count;
}

// Each name once, read under a spelling of the same name, and before a row that there is.
constexpr bool RowsAgree(std::span<const Setting> rows) {
  for (const Setting& row : rows) {
    if (CountOf(rows, row.Name) != 1) return false;
    if (!row.ReadAs.empty() && !SameName(row.ReadAs, row.Name)) return false;
    if (!row.ReadBefore.empty() && CountOf(rows, row.ReadBefore) != 1) return false;
  }
  return true;
}

static_assert(RowsAgree(BlockSettingsRows) && CountOf(BlockSettingsRows, FilledMarker) == 1);
static_assert(RowsAgree(SettingsRows) && CountOf(SettingsRows, FilledMarker) == 1);
static_assert(RowsAgree(BlockLogRows) && RowsAgree(ToolbarSettingsRows));

static_assert(SameName("AZ", "az") && !SameName("@[", "`{") && !SameName("One", "Tne"));

// What the check refuses: a name in two spellings, another name to read, no row to be read before.
constexpr Setting Once{"One", Number{1}, Nothing{}};
constexpr Setting Again{"oNE", Number{1}, Nothing{}};
constexpr Setting ReadAsAnother{"One", Number{1}, Nothing{}, AsItIs, "Two"};
constexpr Setting ReadBeforeNone{"One", Number{1}, Nothing{}, AsItIs, {}, "Two"};
static_assert(RowsAgree(std::array{Once}) && !RowsAgree(std::array{Once, Again}));
static_assert(!RowsAgree(std::array{ReadAsAnother}) && !RowsAgree(std::array{ReadBeforeNone}));

}  // namespace

constinit const std::array<Section, 4> Sections{{
    {"Software\\Qorvel Softwares\\Block Settings", FilledMarker, BlockSettingsRows},
    {BlockLogKey, "Popup", BlockLogRows, true},
    {"Software\\Qorvel Softwares\\Settings", "HideSystem", SettingsRows},
    {ToolbarSettingsKey, "Toolbar Name", ToolbarSettingsRows},
}};
constinit const Section& BlockSection = Sections[0];
constinit const Section& GeneralSection = Sections[2];

}  // namespace vantrel::settings
