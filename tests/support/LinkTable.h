// Every control and menu entry that opens a page, with what the browser is to be started with: the
// one table that the tests of the links share, whatever they run the program on.
#ifndef VANTREL_TESTS_SUPPORT_LINKTABLE_H_
#define VANTREL_TESTS_SUPPORT_LINKTABLE_H_

#include <string>

namespace vantrel::test {

struct LinkRow {
  const char* name;    // "Window.control"
  const char* target;  // behind the program's folder for a local page, else as it stands
  bool isLocal;
};

inline constexpr LinkRow LinkTable[] = {
    {"frmMain.Label29", "\"www.qorvel.example/Vantrel/Help.htm\"", false},
    {"frmMain.Label31", "\"www.qorvel.example/Vantrel/Faqs.htm\"", false},
    {"frmMain.Label30", "\"www.qorvel.example/Vantrel\"", false},
    {"FrmAbout.Label30", "\"www.qorvel.example/Vantrel\"", false},
    {"FrmFrameMain.Label62", "\"www.qorvel.example/Vantrel\"", false},
    {"frmMain.mnusysupdates", "\"update.qorvel.example/Vantrel/Update.asp\"", false},
    {"frmMain.mnusystellf", "\"www.qorvel.example/Vantrel/TellaFriend.asp\"", false},
    {"FrmFrameSettings.Command4", "http://www.qorvel.example/vantrel/updates.html", false},
    {"frmMain.mnutest", "http://www.popuptest.example/", false},
    {"FrmFrameMain.cmdtest", "http://www.popuptest.example/", false},
    {"frmMain.LnkHelp", "\\help\\welcome.htm", true},
    {"frmMain.submnuLaunchHelp", "\\help\\welcome.htm", true},
    {"frmMain.Label32", "\\help\\welcome.htm", true},
    {"frmMain.Label57", "\\help\\welcome.htm", true},
    {"frmMain.Label61", "\\help\\welcome.htm", true},
    {"FrmAbout.Label61", "\\help\\welcome.htm", true},
    {"FrmFrameMain.Label6", "\\help\\welcome.htm", true},
    {"FrmFrameMain.Label9", "\\help\\settings.htm#MinimizeOnStartup", true},
    {"FrmFrameBlockPreferences.Label12", "\\help\\Block Preferences.htm", true},
    {"FrmFrameBlockPreferences.Label17", "\\help\\Block Preferences.htm#BlockAllPopupAds", true},
    {"FrmFrameBlockPreferences.Label18", "\\help\\Block Preferences.htm#Pop-UpAds", true},
    {"FrmFrameBlockPreferences.Label2", "\\help\\Block Preferences.htm#AutomaticSpywareDownloads",
     true},
    {"FrmFrameBlockPreferences.Label20", "\\help\\Block Preferences.htm#WebPageDialogs", true},
    {"FrmFrameBlockPreferences.Label21", "\\help\\Block Preferences.htm#BannerAds", true},
    {"FrmFrameBlockPreferences.Label22", "\\help\\Block Preferences.htm#DHTMLFly-inAds", true},
    {"FrmFrameBlockPreferences.Label23", "\\help\\Block Preferences.htm#FlashAds", true},
    {"FrmFrameBlockPreferences.Label24", "\\help\\Block Preferences.htm#Adssecuresites", true},
    {"FrmFrameBlockPreferences.Label7", "\\help\\Block Preferences.htm#MessengerAds", true},
    {"FrmFrameSettings.lblHGS", "\\help\\settings.htm", true},
    {"FrmFrameSettings.Label13", "\\help\\settings.htm#Browsertoolbar", true},
    {"FrmFrameSettings.Label14", "\\help\\settings.htm#Hidetotray", true},
    {"FrmFrameSettings.Label15", "\\help\\settings.htm#StartwithWindows", true},
    {"FrmFrameSettings.Label16", "\\help\\settings.htm#KeepALog", true},
    {"FrmFrameSettings.Label25", "\\help\\settings.htm#Automaticupdates", true},
    {"FrmFrameSettings.lblviewtoolbar", "\\help\\ViewToolbar.htm", true},
    {"FrmFrameHistory.Label19", "\\help\\cleaning.htm", true},
    {"FrmFrameHistory.Label47", "\\help\\cleaning.htm#DeleteCache", true},
    {"FrmFrameHistory.Label48", "\\help\\cleaning.htm#Deletecookies", true},
    {"FrmFrameAllowList.Label39", "\\help\\Allowedlist.htm", true},
    {"FrmFrameNotification.Label42", "\\help\\Notificationsettings.htm", true},
    {"FrmFrameNotification.Label49", "\\help\\Notificationsettings.htm#Displaynotification", true},
    {"FrmFrameNotification.Label50", "\\help\\Notification.htm#cursor", true},
    {"FrmFrameNotification.Label51", "\\help\\Notificationsettings.htm#Playsound", true},
    {"FrmFrameNotification.Label52", "\\help\\Notificationsettings.htm#DisplayholdersImage", true},
    {"FrmFrameNotification.Label53", "\\help\\Notificationsettings.htm#DisplayholdersFlash", true},
    {"FrmFrameNotification.Label58", "\\help\\Notificationsettings.htm#DontNotify", true},
    {"FrmFrameIESettings.Label38", "\\help\\IE Settings.htm", true},
    {"FrmFrameIESettings.Label37", "\\help\\IE Settings.htm#backup", true},
    {"FrmFrameIESettings.Label55", "\\help\\IE Settings.htm#restore", true},
    {"FrmFrameIEPlugin.Label41", "\\help\\IE Settings.htm#IEPluginsandBHO", true},
    {"FrmFrameGraph.Label44", "\\help\\Graph.htm#GraphicalDisplay", true},
    {"FrmFrameLog.Label46", "\\help\\graph.htm#DetailedLog", true},
};

// What stands behind the browser and a blank on the command line.
inline std::string ExpectedArgument(const LinkRow& row, const std::string& programFolder) {
  return row.isLocal ? '"' + programFolder + row.target + '"' : row.target;
}

}  // namespace vantrel::test

#endif  // VANTREL_TESTS_SUPPORT_LINKTABLE_H_
