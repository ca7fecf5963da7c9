#include "shell/LinkTargets.h"

#include <type_traits>
#include <variant>

#include "launch/OpenUrl.h"
#include "shell/EachOnce.h"
#include "windows/FrmAbout.h"
#include "windows/FrmFrameAllowList.h"
#include "windows/FrmFrameBlockPreferences.h"
#include "windows/FrmFrameGraph.h"
#include "windows/FrmFrameHistory.h"
#include "windows/FrmFrameIEPlugin.h"
#include "windows/FrmFrameIESettings.h"
#include "windows/FrmFrameLog.h"
#include "windows/FrmFrameMain.h"
#include "windows/FrmFrameNotification.h"
#include "windows/FrmFrameSettings.h"
#include "windows/frmMain.h"

namespace vantrel::shell {
namespace {

using launch::Base;
using program::Program;
using program::Windows;
using windows::FrmAbout;
using windows::FrmFrameAllowList;
using windows::FrmFrameBlockPreferences;
using windows::FrmFrameGraph;
using windows::FrmFrameHistory;
using windows::FrmFrameIEPlugin;
using windows::FrmFrameIESettings;
using windows::FrmFrameLog;
using windows::FrmFrameMain;
using windows::FrmFrameNotification;
using windows::FrmFrameSettings;
using windows::frmMain;

template <class Window>
using LabelOf = forms::Label Window::*;

// A label of one of the windows, or an entry of the main window's menus.
using Source = std::variant<
    LabelOf<frmMain>, LabelOf<FrmAbout>, LabelOf<FrmFrameMain>, LabelOf<FrmFrameBlockPreferences>,
    LabelOf<FrmFrameSettings>, LabelOf<FrmFrameHistory>, LabelOf<FrmFrameAllowList>,
    LabelOf<FrmFrameNotification>, LabelOf<FrmFrameIESettings>, LabelOf<FrmFrameIEPlugin>,
    LabelOf<FrmFrameGraph>, LabelOf<FrmFrameLog>, forms::Menu frmMain::*>;

struct Row {
  Source source;
  launch::Target target;
};

constexpr Row Rows[] = {
    // The vendor's sites.
    {&frmMain::Label29, {Base::FirstHost, "/Vantrel/Help.htm"}},
    {&frmMain::Label31, {Base::FirstHost, "/Vantrel/Faqs.htm"}},
    {&frmMain::Label30, {Base::FirstHost, "/Vantrel"}},
    {&FrmAbout::Label30, {Base::FirstHost, "/Vantrel"}},
    {&FrmFrameMain::Label62, {Base::FirstHost, "/Vantrel"}},
    {&frmMain::mnusysupdates, {Base::SecondHost, "/Vantrel/Update.asp"}},
    {&frmMain::mnusystellf, {Base::FirstHost, "/Vantrel/TellaFriend.asp"}},
    // The help pages.
    {&frmMain::Label32, launch::WelcomeHelp},
    {&frmMain::Label57, launch::WelcomeHelp},
    {&frmMain::Label61, launch::WelcomeHelp},
    {&FrmAbout::Label61, launch::WelcomeHelp},
    {&FrmFrameMain::Label6, launch::WelcomeHelp},
    {&FrmFrameMain::Label9, {Base::ProgramFolder, "\\help\\settings.htm#MinimizeOnStartup"}},
    {&FrmFrameBlockPreferences::Label12, {Base::ProgramFolder, "\\help\\Block Preferences.htm"}},
    {&FrmFrameBlockPreferences::Label17,
     {Base::ProgramFolder, "\\help\\Block Preferences.htm#BlockAllPopupAds"}},
    {&FrmFrameBlockPreferences::Label18,
     {Base::ProgramFolder, "\\help\\Block Preferences.htm#Pop-UpAds"}},
    {&FrmFrameBlockPreferences::Label2,
     {Base::ProgramFolder, "\\help\\Block Preferences.htm#AutomaticSpywareDownloads"}},
    {&FrmFrameBlockPreferences::Label20,
     {Base::ProgramFolder, "\\help\\Block Preferences.htm#WebPageDialogs"}},
    {&FrmFrameBlockPreferences::Label21,
     {Base::ProgramFolder, "\\help\\Block Preferences.htm#BannerAds"}},
    {&FrmFrameBlockPreferences::Label22,
     {Base::ProgramFolder, "\\help\\Block Preferences.htm#DHTMLFly-inAds"}},
    {&FrmFrameBlockPreferences::Label23,
     {Base::ProgramFolder, "\\help\\Block Preferences.htm#FlashAds"}},
    {&FrmFrameBlockPreferences::Label24,
     {Base::ProgramFolder, "\\help\\Block Preferences.htm#Adssecuresites"}},
    {&FrmFrameBlockPreferences::Label7,
     {Base::ProgramFolder, "\\help\\Block Preferences.htm#MessengerAds"}},
    {&FrmFrameSettings::lblHGS, {Base::ProgramFolder, "\\help\\settings.htm"}},
    {&FrmFrameSettings::Label13, {Base::ProgramFolder, "\\help\\settings.htm#Browsertoolbar"}},
    {&FrmFrameSettings::Label14, {Base::ProgramFolder, "\\help\\settings.htm#Hidetotray"}},
    {&FrmFrameSettings::Label15, {Base::ProgramFolder, "\\help\\settings.htm#StartwithWindows"}},
    {&FrmFrameSettings::Label16, {Base::ProgramFolder, "\\help\\settings.htm#KeepALog"}},
    {&FrmFrameSettings::Label25, {Base::ProgramFolder, "\\help\\settings.htm#Automaticupdates"}},
    {&FrmFrameSettings::lblviewtoolbar, {Base::ProgramFolder, "\\help\\ViewToolbar.htm"}},
    {&FrmFrameHistory::Label19, {Base::ProgramFolder, "\\help\\cleaning.htm"}},
    {&FrmFrameHistory::Label47, {Base::ProgramFolder, "\\help\\cleaning.htm#DeleteCache"}},
    {&FrmFrameHistory::Label48, {Base::ProgramFolder, "\\help\\cleaning.htm#Deletecookies"}},
    {&FrmFrameAllowList::Label39, {Base::ProgramFolder, "\\help\\Allowedlist.htm"}},
    {&FrmFrameNotification::Label42, {Base::ProgramFolder, "\\help\\Notificationsettings.htm"}},
    {&FrmFrameNotification::Label49,
     {Base::ProgramFolder, "\\help\\Notificationsettings.htm#Displaynotification"}},
    // A page of its own name, unlike its neighbours'; this is meant.
    {&FrmFrameNotification::Label50, {Base::ProgramFolder, "\\help\\Notification.htm#cursor"}},
    {&FrmFrameNotification::Label51,
     {Base::ProgramFolder, "\\help\\Notificationsettings.htm#Playsound"}},
    {&FrmFrameNotification::Label52,
     {Base::ProgramFolder, "\\help\\Notificationsettings.htm#DisplayholdersImage"}},
    {&FrmFrameNotification::Label53,
     {Base::ProgramFolder, "\\help\\Notificationsettings.htm#DisplayholdersFlash"}},
    {&FrmFrameNotification::Label58,
     {Base::ProgramFolder, "\\help\\Notificationsettings.htm#DontNotify"}},
    {&FrmFrameIESettings::Label38, {Base::ProgramFolder, "\\help\\IE Settings.htm"}},
    {&FrmFrameIESettings::Label37, {Base::ProgramFolder, "\\help\\IE Settings.htm#backup"}},
    {&FrmFrameIESettings::Label55, {Base::ProgramFolder, "\\help\\IE Settings.htm#restore"}},
    {&FrmFrameIEPlugin::Label41, {Base::ProgramFolder, "\\help\\IE Settings.htm#IEPluginsandBHO"}},
    {&FrmFrameGraph::Label44, {Base::ProgramFolder, "\\help\\Graph.htm#GraphicalDisplay"}},
    // Spelt with a small g; this is meant.
    {&FrmFrameLog::Label46, {Base::ProgramFolder, "\\help\\graph.htm#DetailedLog"}},
};

static_assert(EachOnce(Rows, &Row::source), "a control opens one page");

template <class Window, class Member>
void Bind(Program& program, Window& window, Member Window::*member, const launch::Target& target) {
  (window.*member).Click = [&program, &target] { launch::Open(program, target); };
}

// Binds the rows whose control stands on this window.
template <class Window>
void BindRowsOf(Program& program, Window& window) {
  for (const Row& row : Rows) {
    std::visit(
        [&](auto member) {
          if constexpr (std::is_invocable_v<decltype(member), Window&>) {
            Bind(program, window, member, row.target);
          }
        },
        row.source);
  }
}

template <class Slot>
void AttachTo(Program& program, Slot& slot) {
  slot.OnMade([&program](auto& window) { BindRowsOf(program, window); });
}

}  // namespace

void AttachLinkTargets(Program& program) {
  Windows& windows = program.windows;
  AttachTo(program, windows.frmMain);
  AttachTo(program, windows.FrmAbout);
  AttachTo(program, windows.FrmFrameMain);
  AttachTo(program, windows.FrmFrameBlockPreferences);
  AttachTo(program, windows.FrmFrameSettings);
  AttachTo(program, windows.FrmFrameHistory);
  AttachTo(program, windows.FrmFrameAllowList);
  AttachTo(program, windows.FrmFrameNotification);
  AttachTo(program, windows.FrmFrameIESettings);
  AttachTo(program, windows.FrmFrameIEPlugin);
  AttachTo(program, windows.FrmFrameGraph);
  AttachTo(program, windows.FrmFrameLog);
}

}  // namespace vantrel::shell
