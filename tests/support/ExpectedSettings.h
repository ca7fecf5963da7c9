// What the settings tree holds, value by value: the one table that the tests compare with the
// program, its windows and its documents. It is written by hand and not taken from the program's
// rows, so that a slip there shows.
#ifndef VANTREL_TESTS_SUPPORT_EXPECTEDSETTINGS_H_
#define VANTREL_TESTS_SUPPORT_EXPECTEDSETTINGS_H_

#include <string>
#include <variant>

namespace vantrel::test {

// A value that is not there, a REG_DWORD or a REG_SZ.
using StoredContent = std::variant<std::monostate, int, const char*>;

inline constexpr int NotReset = -1;

struct ExpectedSetting {
  const char* Key;  // below Software\Qorvel Softwares
  const char* Name;
  StoredContent FirstRun;    // before the first Start
  const char* Control = "";  // "Window.control", empty for none
  int Design = 0;            // the state in which a box is designed
  int Reset = NotReset;      // the state that Reset or Default gives a box
};

// In the order of writing.
inline constexpr ExpectedSetting ExpectedSettings[] = {
    {"Block Settings", "BpID", 1},
    {"Block Settings", "Popup", 1, "FrmFrameBlockPreferences.chkBPopup", 1},
    {"Block Settings", "DHTML", 1, "FrmFrameBlockPreferences.chkBDhtml", 1},
    {"Block Settings", "WebDialog", 1, "FrmFrameBlockPreferences.chkBDialog", 1},
    {"Block Settings", "Banner", 1, "FrmFrameBlockPreferences.chkBBanner", 1},
    {"Block Settings", "Flash", 1, "FrmFrameBlockPreferences.chkBFlash", 1},
    {"Block Settings", "Adv", 0, "FrmFrameBlockPreferences.chkBAdv", 0},
    {"Block Settings", "DialogBox", 1, "FrmFrameBlockPreferences.chkBDialogBox", 1},
    {"Block Settings", "KeepaLog", 1, "FrmFrameSettings.chkGLog", 0, 1},
    {"Block Settings", "ShowNotification", 0, "FrmFrameNotification.chkNW", 0, 0},
    {"Block Settings", "ShowSound", 0, "FrmFrameNotification.chkNS", 0, 1},
    {"Block Settings", "ShowPH", 0, "FrmFrameNotification.chkNPH", 0, 1},
    {"Block Settings", "ShowPHF", 0, "FrmFrameNotification.chkNPHF", 0, 1},
    {"Block Settings", "NSounds", "Alert", "FrmFrameNotification.cmbsound"},
    {"Block Settings", "GDisabled", 1},
    {"Block Settings", "Spy", 1, "FrmFrameBlockPreferences.chkBSpyware", 1},
    {"Block Log", "Popup", 0},
    {"Block Log", "DHTML", 0},
    {"Block Log", "WebDialog", 0},
    {"Block Log", "BannerAds", 0},
    {"Block Log", "Flash", 0},
    // The marker comes with the first save.
    {"Settings", "BpID", std::monostate{}},
    {"Settings", "HideSystem", 0, "FrmFrameSettings.chkGHideSystray", 0, 0},
    {"Settings", "StartWithWindows", 1, "FrmFrameSettings.chkGSWindows", 0, 0},
    {"Settings", "CheckUpdates", 0, "FrmFrameSettings.chkGUpdate", 0, 0},
    {"Settings", "ShowBrowser", 1, "FrmFrameSettings.chkGShowToolbar", 1, 1},
    {"Settings", "Minimize", 0, "FrmFrameMain.ChkMinimize", 0},
    {"Toolbar Settings", "Toolbar Name", "Vantrel"},
    {"Toolbar Settings", "Toolbar Settings", "1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19"},
};

inline bool IsNumber(const ExpectedSetting& setting) {
  return std::holds_alternative<int>(setting.FirstRun);
}
inline bool IsText(const ExpectedSetting& setting) {
  return std::holds_alternative<const char*>(setting.FirstRun);
}
inline bool HasBox(const ExpectedSetting& setting) {
  return setting.Control[0] != '\0' && !IsText(setting);
}
inline bool IsIn(const ExpectedSetting& setting, const std::string& key) {
  return setting.Key == key;
}

}  // namespace vantrel::test

#endif  // VANTREL_TESTS_SUPPORT_EXPECTEDSETTINGS_H_
