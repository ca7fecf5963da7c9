// What a user or another program can ask of the running program beside the operations that have
// sweeps of their own: one row each, run once for every call that it makes of Windows, with that
// one call failing. Nothing crashes or hangs, no key stays open, no box comes up but the
// operation's own and that of an error, and the program is usable behind it.
#include <functional>

#include "shell/Navigation.h"
#include "unit/shell/FaultSweep.h"
#include "windows/FrmAbout.h"
#include "windows/FrmFrameBlockPreferences.h"
#include "windows/FrmFrameGraph.h"
#include "windows/FrmFrameIESettings.h"
#include "windows/FrmFrameLog.h"
#include "windows/FrmFrameMain.h"
#include "windows/FrmFrameNotification.h"
#include "windows/FrmFrameSettings.h"
#include "windows/frmMain.h"
#include "windows/frmcustom.h"

namespace vantrel::shell {
namespace {

using program::Windows;
using test::Machine;
using testing::AnyOf;
using testing::AnyOfArray;
using testing::Each;
using testing::StartsWith;
using windows::frmMain;

using Act = std::function<void(Machine&)>;
using Panel = void (*)(program::Program&);

// A click on the control of a window.
template <class Form, class Control>
Act Click(program::WindowSlot<Form> Windows::*window, Control Form::*control) {
  return [window, control](Machine& machine) {
    EXPECT_TRUE(machine.copy->user.Click((*(machine.copy->Windows().*window)).*control));
  };
}
Act Link(controls::HyperLink frmMain::*link) {
  return [link](Machine& machine) {
    machine.copy->toolkit.AtBorder([&] { ((*machine.copy->Windows().frmMain).*link).Click(); });
  };
}
Act Select(forms::Menu frmMain::*entry) {
  return [entry](Machine& machine) {
    EXPECT_TRUE(machine.copy->user.Select((*machine.copy->Windows().frmMain).*entry));
  };
}
Act Press(int button) {
  return [button](Machine& machine) {
    EXPECT_TRUE(machine.copy->user.Press(machine.copy->Windows().frmMain->Toolbar1, button));
  };
}
// As any other program can send it.
Act Command(const char* command) {
  return [command](Machine& machine) {
    const auto button = machine.copy->Windows().frmMain->cmdDummy.WindowHandle();
    machine.world.desktop.SendText(button, platform::WmSetText, 0, command);
    machine.world.desktop.Send({button, platform::BmClick, 0, 0, nullptr});
  };
}
Act TrayMouse(std::uint32_t code) {
  return [code](Machine& machine) {
    machine.world.tray.Mouse(machine.world.desktop, machine.world.tray.Icons().at(0), code);
  };
}
Act TrayEntry(forms::Menu frmMain::*entry) {
  return [entry](Machine& machine) {
    machine.copy->toolkit.ChooseFromPopup = [&machine, entry](forms::Menu&) {
      return &((*machine.copy->Windows().frmMain).*entry);
    };
    TrayMouse(517)(machine);
  };
}

void ShowAbout(Machine& machine) {
  machine.copy->toolkit.WhenPumped([&machine] {
    auto& windows = machine.copy->Windows();
    if (windows.FrmAbout.Loaded()) windows.FrmAbout->CmdOK.SetValue(true);
  });
  Select (&frmMain::submnuAbout)(machine);
}
void OpenHelpFrame(program::Program& program) { program.windows.frmMain->LnkHelp.Click(); }
void ChooseConnection(Machine& machine) {
  auto& panel = *machine.copy->Windows().FrmFrameBlockPreferences;
  EXPECT_TRUE(machine.copy->user.Choose(panel.cmbinternet, "Dial Up"));
}
void ChooseSound(Machine& machine) {
  auto& panel = *machine.copy->Windows().FrmFrameNotification;
  EXPECT_TRUE(machine.copy->user.Choose(panel.cmbsound, "pop"));
}
void Browse(Machine& machine) {
  machine.world.pickFolder = [](const auto&) { return std::string("C:\\chosen"); };
  Click(&Windows::FrmFrameIESettings, &windows::FrmFrameIESettings::cmdBrowseIESettings)(machine);
}
// With something to bring back.
void ShowChangedSettings(program::Program& program) {
  CaseSettings(program);
  for (forms::CheckBox windows::FrmFrameSettings::*box :
       {&windows::FrmFrameSettings::chkGHideSystray, &windows::FrmFrameSettings::chkGLog}) {
    forms::CheckBox& changed = (*program.windows.FrmFrameSettings).*box;
    changed.SetValue(1 - changed.Value());
  }
}
void ShowTickedNotification(program::Program& program) {
  CaseNotify(program);
  program.windows.FrmFrameNotification->chkNPH.SetValue(forms::Checked);
}
// Behind a change, so that it is stored.
void CloseToolbarDialog(Machine& machine) {
  auto& dialog = *machine.copy->Windows().frmcustom;
  EXPECT_TRUE(machine.copy->user.Click(dialog.Command1));
}
void OpenChangedToolbarDialog(program::Program& program) {
  ShowToolbarDialog(program);
  program.windows.frmcustom->cmdReset.SetValue(true);
}
void Tick(Machine& machine) { machine.world.clock.Advance(2000); }
void RestartShell(Machine& machine) {
  machine.world.tray.SetPresent(false);
  machine.world.tray.SetPresent(true);
  machine.copy->toolkit.TaskbarCreated();
}

struct Operation {
  const char* Name;
  Panel Show;  // the panel that shows before; none: the Welcome panel
  Act Run;

  friend void PrintTo(const Operation& operation, std::ostream* out) { *out << operation.Name; }
};

using Block = windows::FrmFrameBlockPreferences;
using General = windows::FrmFrameSettings;
using Notify = windows::FrmFrameNotification;
using Welcome = windows::FrmFrameMain;
using Log = windows::FrmFrameLog;

Act OnBlock(forms::CheckBox Block::*box) { return Click(&Windows::FrmFrameBlockPreferences, box); }
Act OnGeneral(forms::CheckBox General::*box) { return Click(&Windows::FrmFrameSettings, box); }
Act OnNotify(forms::CheckBox Notify::*box) { return Click(&Windows::FrmFrameNotification, box); }

const Operation Operations[] = {
    {"Panels: Welcome", CaseGraph, Link(&frmMain::LnkWelcome)},
    {"Panels: Ad Blocking", nullptr, Link(&frmMain::LnkAdBlocking)},
    {"Panels: Settings", nullptr, Link(&frmMain::LnkSettings)},
    {"Panels: Clean", nullptr, Link(&frmMain::lnkClean)},
    {"Panels: Allowed List", nullptr, Link(&frmMain::LnkAllowedList)},
    {"Panels: Notification", nullptr, Link(&frmMain::LnkNotification)},
    {"Panels: IE Settings", nullptr, Link(&frmMain::LnkIESettings)},
    {"Panels: IE Plugins", nullptr, Link(&frmMain::LnkIePlug)},
    {"Panels: Graph", nullptr, Link(&frmMain::LnkGraph)},
    {"Panels: Detail Log", nullptr, Link(&frmMain::LnkLog)},
    {"Panels: Help", nullptr, Link(&frmMain::LnkHelp)},
    {"Check and Repair", nullptr, Link(&frmMain::lnkCheckAndRepair)},

    {"Blocking: Start by the menu", nullptr, Select(&frmMain::MnuStartBlocking)},
    {"Blocking: Stop by the menu", nullptr, Select(&frmMain::MnuStop)},
    {"Blocking: Test by the menu", nullptr, Select(&frmMain::mnutest)},
    {"Blocking: Test", nullptr, Click(&Windows::FrmFrameMain, &Welcome::cmdtest)},
    {"Blocking: refresh of the counters", nullptr, Tick},
    {"Window: Panic", CaseGraph, Select(&frmMain::MnuPanic)},
    {"Window: Hide", nullptr, Select(&frmMain::MnuHide)},
    {"Window: minimize all", nullptr, Press(11)},
    {"Help: About", nullptr, ShowAbout},
    {"Help: Launch Help", nullptr, Select(&frmMain::submnuLaunchHelp)},
    {"Help: a panel's page", nullptr, Click(&Windows::FrmFrameMain, &Welcome::Label6)},
    {"Help: the vendor's site", nullptr, Click(&Windows::FrmFrameMain, &Welcome::Label62)},
    {"Help: the help frame's pages", OpenHelpFrame, Click(&Windows::frmMain, &frmMain::Label32)},

    {"Commands: clean", nullptr, Command("/clean")},
    {"Commands: addlinks", nullptr, Command("/addlinks")},
    {"Commands: onoff", nullptr, Command("/onoff")},
    {"Commands: customtoolbar", nullptr, Command("/customtoolbar")},
    {"Commands: notify", nullptr, Command("/notify")},
    {"Commands: graph", nullptr, Command("/graph")},
    {"Commands: ieplugins", nullptr, Command("/ieplugins")},
    {"Commands: iesettings", nullptr, Command("/iesettings")},
    {"Commands: options", nullptr, Command("/options")},
    {"Commands: an unknown one", nullptr, Command("anything")},

    {"Tray: double-click", nullptr, TrayMouse(515)},
    {"Tray: Open", nullptr, TrayEntry(&frmMain::mnusysOpen)},
    {"Tray: Block Settings", nullptr, TrayEntry(&frmMain::mnusysBlock)},
    {"Tray: Allow List", nullptr, TrayEntry(&frmMain::MNuAllow)},
    {"Tray: History cleaning", nullptr, TrayEntry(&frmMain::mnusysCleaning)},
    {"Tray: the shell starts again", nullptr, RestartShell},

    {"Welcome: connection", nullptr, Click(&Windows::FrmFrameMain, &Welcome::optDial)},
    {"Welcome: start minimized", nullptr, Click(&Windows::FrmFrameMain, &Welcome::ChkMinimize)},

    {"Ad Blocking: connection", CaseAdBlocking, ChooseConnection},
    {"Ad Blocking: all", CaseAdBlocking, OnBlock(&Block::chkAll)},
    {"Ad Blocking: pop-ups", CaseAdBlocking, OnBlock(&Block::chkBPopup)},
    {"Ad Blocking: messenger ads", CaseAdBlocking, OnBlock(&Block::chkBDialogBox)},
    {"Ad Blocking: spyware", CaseAdBlocking, OnBlock(&Block::chkBSpyware)},

    {"Settings: hide to the tray", CaseSettings, OnGeneral(&General::chkGHideSystray)},
    {"Settings: start with Windows", CaseSettings, OnGeneral(&General::chkGSWindows)},
    {"Settings: look for updates", CaseSettings, OnGeneral(&General::chkGUpdate)},
    {"Settings: keep a log", CaseSettings, OnGeneral(&General::chkGLog)},
    {"Settings: toolbar", CaseSettings, OnGeneral(&General::chkGShowToolbar)},
    {"Settings: script errors", CaseSettings, OnGeneral(&General::chkScript)},
    {"Settings: Reset", ShowChangedSettings,
     Click(&Windows::FrmFrameSettings, &General::cmdresetSettings)},
    {"Settings: Check Update", CaseSettings, Click(&Windows::FrmFrameSettings, &General::Command4)},

    {"Notification: none", ShowTickedNotification, OnNotify(&Notify::chkNAll)},
    {"Notification: sound", CaseNotify, OnNotify(&Notify::chkNS)},
    {"Notification: place holders", CaseNotify, OnNotify(&Notify::chkNPH)},
    {"Notification: another sound", CaseNotify, ChooseSound},
    {"Notification: play the sound", CaseNotify,
     Click(&Windows::FrmFrameNotification, &Notify::Label35)},
    {"Notification: Default", CaseNotify,
     Click(&Windows::FrmFrameNotification, &Notify::cmdDefaultNotify)},

    {"Detail Log: reset", CaseLog, Click(&Windows::FrmFrameLog, &Log::lblResetLog)},
    {"Detail Log: View Log", CaseLog, Click(&Windows::FrmFrameLog, &Log::Label54)},
    {"Detail Log: Graph", CaseLog, Click(&Windows::FrmFrameLog, &Log::Command11)},

    {"IE Settings: browse for a folder", CaseIESettings, Browse},
    {"Toolbar: store and close", OpenChangedToolbarDialog, CloseToolbarDialog},
};

void OpenPanel(Machine& machine, Panel show) {
  for (const char* file : {"log.txt", "AllowList.txt"}) {
    machine.world.files.Put(std::string("C:\\Program Files\\Vantrel\\Settings\\") + file, "");
  }
  machine.MakeStarted();
  machine.copy->process.AnswerBox = [](const platform::memory::Box& box) {
    return (box.style & 0xF) == 0 ? platform::AnswerOk : platform::AnswerYes;
  };
  if (show != nullptr) machine.copy->toolkit.AtBorder([&] { show(machine.copy->program); });
}

// The program goes on, from wherever the operation left it.
void ExpectGoesOn(Machine& machine) {
  ASSERT_FALSE(machine.copy->toolkit.Ending());
  machine.copy->process.ClearBoxes();
  machine.copy->toolkit.ChooseFromPopup = nullptr;
  auto& windows = machine.copy->Windows();
  if (windows.frmcustom.Loaded()) {
    EXPECT_TRUE(machine.copy->user.Close(*windows.frmcustom));
  }
  windows.frmMain->Show();
  machine.ExpectUsable();
}

class OperationsFaultSweep : public testing::TestWithParam<Operation> {};

TEST_P(OperationsFaultSweep, GoesOn) {
  const Operation& operation = GetParam();
  Machine clean;
  OpenPanel(clean, operation.Show);
  operation.Run(clean);
  const std::vector<std::string> boxes = Machine::BoxTexts(*clean.copy);
  test::Sweep(
      operation.Name, [&](Machine& machine) { OpenPanel(machine, operation.Show); }, operation.Run,
      [&](Machine& machine) {
        // An error's description, alone or in a sentence; an empty toolbar's error has none.
        const auto anError =
            AnyOf("", "Type mismatch", "Permission denied", StartsWith("Run-time error '"),
                  StartsWith("Some error occured"));
        EXPECT_THAT(machine.BoxTexts(*machine.copy), Each(AnyOf(AnyOfArray(boxes), anError)));
        // A library that cannot be waited for takes the program with it.
        if (!machine.FailedIs("WaitForSingleObject ")) ExpectGoesOn(machine);
      });
}

INSTANTIATE_TEST_SUITE_P(, OperationsFaultSweep, testing::ValuesIn(Operations));

}  // namespace
}  // namespace vantrel::shell
