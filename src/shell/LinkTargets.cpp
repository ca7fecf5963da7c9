#include "shell/LinkTargets.h"

#include <iterator>
#include <string_view>
#include <type_traits>
#include <variant>

#include "launch/OpenUrl.h"
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

// A label of one of the windows, or an entry of the main window's menus. Nothing for a control that
// does something else before its page opens: its own act opens it.
using Source = std::variant<std::monostate, LabelOf<frmMain>, LabelOf<FrmAbout>,
                            LabelOf<FrmFrameMain>, LabelOf<FrmFrameBlockPreferences>,
                            LabelOf<FrmFrameSettings>, LabelOf<FrmFrameHistory>,
                            LabelOf<FrmFrameAllowList>, LabelOf<FrmFrameNotification>,
                            LabelOf<FrmFrameIESettings>, LabelOf<FrmFrameIEPlugin>,
                            LabelOf<FrmFrameGraph>, LabelOf<FrmFrameLog>, forms::Menu frmMain::*>;

struct Row {
  const char* name;
  Source source;
  launch::Target target;
};

constexpr Source OwnAct{};

#define VANTREL_LINK(window, control) #window "." #control, Source(&window::control)

constexpr Row Rows[] = {
    // The vendor's sites.
    {VANTREL_LINK(frmMain, Label29), {Base::FirstHost, "/Vantrel/Help.htm"}},
    {VANTREL_LINK(frmMain, Label31), {Base::FirstHost, "/Vantrel/Faqs.htm"}},
    {VANTREL_LINK(frmMain, Label30), {Base::FirstHost, "/Vantrel"}},
    {VANTREL_LINK(FrmAbout, Label30), {Base::FirstHost, "/Vantrel"}},
    {VANTREL_LINK(FrmFrameMain, Label62), {Base::FirstHost, "/Vantrel"}},
    {VANTREL_LINK(frmMain, mnusysupdates), {Base::SecondHost, "/Vantrel/Update.asp"}},
    {VANTREL_LINK(frmMain, mnusystellf), {Base::FirstHost, "/Vantrel/TellaFriend.asp"}},
    {"FrmFrameSettings.Command4", OwnAct, launch::UpdatesPage},
    // The outside test page, behind a start of blocking.
    {"frmMain.mnutest", OwnAct, launch::PopupTestPage},
    {"FrmFrameMain.cmdtest", OwnAct, launch::PopupTestPage},
    // The help pages; the first three show the Help frame before.
    {"frmMain.LnkHelp", OwnAct, launch::WelcomeHelp},
    {"frmMain.submnuLaunchHelp", OwnAct, launch::WelcomeHelp},
    {"frmMain.Toolbar1(15)", OwnAct, launch::WelcomeHelp},
    {VANTREL_LINK(frmMain, Label32), launch::WelcomeHelp},
    {VANTREL_LINK(frmMain, Label57), launch::WelcomeHelp},
    {VANTREL_LINK(frmMain, Label61), launch::WelcomeHelp},
    {VANTREL_LINK(FrmAbout, Label61), launch::WelcomeHelp},
    {VANTREL_LINK(FrmFrameMain, Label6), launch::WelcomeHelp},
    {VANTREL_LINK(FrmFrameMain, Label9),
     {Base::ProgramFolder, "\\help\\settings.htm#MinimizeOnStartup"}},
    {VANTREL_LINK(FrmFrameBlockPreferences, Label12),
     {Base::ProgramFolder, "\\help\\Block Preferences.htm"}},
    {VANTREL_LINK(FrmFrameBlockPreferences, Label17),
     {Base::ProgramFolder, "\\help\\Block Preferences.htm#BlockAllPopupAds"}},
    {VANTREL_LINK(FrmFrameBlockPreferences, Label18),
     {Base::ProgramFolder, "\\help\\Block Preferences.htm#Pop-UpAds"}},
    {VANTREL_LINK(FrmFrameBlockPreferences, Label2),
     {Base::ProgramFolder, "\\help\\Block Preferences.htm#AutomaticSpywareDownloads"}},
    {VANTREL_LINK(FrmFrameBlockPreferences, Label20),
     {Base::ProgramFolder, "\\help\\Block Preferences.htm#WebPageDialogs"}},
    {VANTREL_LINK(FrmFrameBlockPreferences, Label21),
     {Base::ProgramFolder, "\\help\\Block Preferences.htm#BannerAds"}},
    {VANTREL_LINK(FrmFrameBlockPreferences, Label22),
     {Base::ProgramFolder, "\\help\\Block Preferences.htm#DHTMLFly-inAds"}},
    {VANTREL_LINK(FrmFrameBlockPreferences, Label23),
     {Base::ProgramFolder, "\\help\\Block Preferences.htm#FlashAds"}},
    {VANTREL_LINK(FrmFrameBlockPreferences, Label24),
     {Base::ProgramFolder, "\\help\\Block Preferences.htm#Adssecuresites"}},
    {VANTREL_LINK(FrmFrameBlockPreferences, Label7),
     {Base::ProgramFolder, "\\help\\Block Preferences.htm#MessengerAds"}},
    {VANTREL_LINK(FrmFrameSettings, lblHGS), {Base::ProgramFolder, "\\help\\settings.htm"}},
    {VANTREL_LINK(FrmFrameSettings, Label13),
     {Base::ProgramFolder, "\\help\\settings.htm#Browsertoolbar"}},
    {VANTREL_LINK(FrmFrameSettings, Label14),
     {Base::ProgramFolder, "\\help\\settings.htm#Hidetotray"}},
    {VANTREL_LINK(FrmFrameSettings, Label15),
     {Base::ProgramFolder, "\\help\\settings.htm#StartwithWindows"}},
    {VANTREL_LINK(FrmFrameSettings, Label16),
     {Base::ProgramFolder, "\\help\\settings.htm#KeepALog"}},
    {VANTREL_LINK(FrmFrameSettings, Label25),
     {Base::ProgramFolder, "\\help\\settings.htm#Automaticupdates"}},
    {VANTREL_LINK(FrmFrameSettings, lblviewtoolbar),
     {Base::ProgramFolder, "\\help\\ViewToolbar.htm"}},
    {VANTREL_LINK(FrmFrameHistory, Label19), {Base::ProgramFolder, "\\help\\cleaning.htm"}},
    {VANTREL_LINK(FrmFrameHistory, Label47),
     {Base::ProgramFolder, "\\help\\cleaning.htm#DeleteCache"}},
    {VANTREL_LINK(FrmFrameHistory, Label48),
     {Base::ProgramFolder, "\\help\\cleaning.htm#Deletecookies"}},
    {VANTREL_LINK(FrmFrameAllowList, Label39), {Base::ProgramFolder, "\\help\\Allowedlist.htm"}},
    {VANTREL_LINK(FrmFrameNotification, Label42),
     {Base::ProgramFolder, "\\help\\Notificationsettings.htm"}},
    {VANTREL_LINK(FrmFrameNotification, Label49),
     {Base::ProgramFolder, "\\help\\Notificationsettings.htm#Displaynotification"}},
    // A page of its own name, unlike its neighbours'; this is meant.
    {VANTREL_LINK(FrmFrameNotification, Label50),
     {Base::ProgramFolder, "\\help\\Notification.htm#cursor"}},
    {VANTREL_LINK(FrmFrameNotification, Label51),
     {Base::ProgramFolder, "\\help\\Notificationsettings.htm#Playsound"}},
    {VANTREL_LINK(FrmFrameNotification, Label52),
     {Base::ProgramFolder, "\\help\\Notificationsettings.htm#DisplayholdersImage"}},
    {VANTREL_LINK(FrmFrameNotification, Label53),
     {Base::ProgramFolder, "\\help\\Notificationsettings.htm#DisplayholdersFlash"}},
    {VANTREL_LINK(FrmFrameNotification, Label58),
     {Base::ProgramFolder, "\\help\\Notificationsettings.htm#DontNotify"}},
    {VANTREL_LINK(FrmFrameIESettings, Label38), {Base::ProgramFolder, "\\help\\IE Settings.htm"}},
    {VANTREL_LINK(FrmFrameIESettings, Label37),
     {Base::ProgramFolder, "\\help\\IE Settings.htm#backup"}},
    {VANTREL_LINK(FrmFrameIESettings, Label55),
     {Base::ProgramFolder, "\\help\\IE Settings.htm#restore"}},
    {VANTREL_LINK(FrmFrameIEPlugin, Label41),
     {Base::ProgramFolder, "\\help\\IE Settings.htm#IEPluginsandBHO"}},
    {VANTREL_LINK(FrmFrameGraph, Label44),
     {Base::ProgramFolder, "\\help\\Graph.htm#GraphicalDisplay"}},
    // Spelt with a small g; this is meant.
    {VANTREL_LINK(FrmFrameLog, Label46), {Base::ProgramFolder, "\\help\\graph.htm#DetailedLog"}},
};

#undef VANTREL_LINK

constexpr bool NamesAreUnique() {
  for (std::size_t one = 0; one < std::size(Rows); ++one) {
    for (std::size_t other = one + 1; other < std::size(Rows); ++other) {
      if (std::string_view(Rows[one].name) == Rows[other].name) return false;
    }
  }
  return true;
}
static_assert(NamesAreUnique(), "a control opens one page");

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

void ForEachLinkTarget(
    const std::function<void(const std::string& name, const launch::Target& target)>& visit) {
  for (const Row& row : Rows) visit(row.name, row.target);
}

}  // namespace vantrel::shell
