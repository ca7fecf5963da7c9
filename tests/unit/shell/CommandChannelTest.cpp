#include <gmock/gmock.h>

#include "shell/CommandChannel.h"
#include "shell/Navigation.h"
#include "shell/bmdlActivate.h"
#include "unit/shell/ShellTest.h"
#include "windows/FrmAbout.h"
#include "windows/FrmFrameGraph.h"
#include "windows/FrmFrameHistory.h"
#include "windows/FrmFrameMain.h"
#include "windows/FrmFrameNotification.h"
#include "windows/FrmFrameSettings.h"
#include "windows/frmMain.h"
#include "windows/frmcustom.h"

namespace vantrel::shell {
namespace {

using test::BlockSettings;
using test::Copy;
using testing::ElementsAre;
using testing::IsEmpty;

class CommandChannel : public test::ShellTest {
 protected:
  void SetUp() override {
    copy = StartCopy();
    Main().Text1.SetText("");
  }
  program::Windows& Windows() { return copy->Windows(); }
  windows::frmMain& Main() { return *Windows().frmMain; }

  // What any other program may do, by the protocol alone.
  void SendFromOutside(const std::string& command) {
    SendTo(world.desktop.FindByCaption("Ready for command"), command);
  }
  void SendTo(platform::WindowHandle button, const std::string& command) {
    world.desktop.SendText(button, 12, 0, command);
    world.desktop.Send({button, 245, 0, 0, nullptr});
  }

  std::unique_ptr<Copy> copy;
};

struct PanelCommand {
  const char* command;
  const char* panel;
};

TEST_F(CommandChannel, EachPanelCommandShowsItsPanelAndKeepsTheTitle) {
  constexpr PanelCommand Commands[] = {
      {"/clean", "FrmFrameHistory"},         {"/addlinks", "FrmFrameAllowList"},
      {"/notify", "FrmFrameNotification"},   {"/graph", "FrmFrameGraph"},
      {"/iesettings", "FrmFrameIESettings"}, {"/ieplugins", "FrmFrameIEPlugin"},
  };
  std::vector<std::string> shown = {"FrmFrameMain"};
  for (const auto& [command, panel] : Commands) {
    StartAgain(command);
    const auto now = ShownPanels(*copy);
    EXPECT_THAT(now, testing::Contains(panel)) << command;
    // Nothing is hidden: the panels that showed stay.
    EXPECT_EQ(now.size(), shown.size() + 1) << command;
    shown = now;
    EXPECT_TRUE(Main().Visible());
    EXPECT_EQ(Main().lblVCP1.Caption(), "Welcome - Qorvel Software Vantrel ") << command;
    EXPECT_EQ(Main().cmdDummy.Caption(), "Ready for command") << command;
  }
}

TEST_F(CommandChannel, OptionsShowsTheGeneralSettingsInPlaceOfTheWelcomePanel) {
  StartAgain("/options");
  EXPECT_THAT(ShownPanels(*copy), ElementsAre("FrmFrameSettings"));
}

TEST_F(CommandChannel, OnOffInMixedCaseTogglesBlocking) {
  StartAgain("/OnOff");
  EXPECT_FALSE(copy->program.BlockingActive);
  EXPECT_FALSE(EngineEntryStands());
  EXPECT_TRUE(copy->Windows().FrmFrameMain->cmdstart.Enabled());
  StartAgain("/ONOFF");
  EXPECT_TRUE(copy->program.BlockingActive);
  EXPECT_TRUE(EngineEntryStands());
  // The sender's own exit follows and writes 1 although blocking has started.
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
}

TEST_F(CommandChannel, OnOffShowsTheWelcomePanelBesideWhatShows) {
  StartAgain("/options");
  StartAgain("/onoff");
  EXPECT_THAT(ShownPanels(*copy),
              testing::UnorderedElementsAre("FrmFrameMain", "FrmFrameSettings"));
}

TEST_F(CommandChannel, TheToolbarsDialogShowsAloneAndTheMainWindowStaysHidden) {
  StartAgain("/customtoolbar");
  EXPECT_FALSE(Main().Visible());
  EXPECT_TRUE(copy->Windows().frmcustom->Visible());
  EXPECT_EQ(Main().cmdDummy.Caption(), "Ready for command");
  // The next command finds the channel open though the window is hidden.
  StartAgain("");
  EXPECT_TRUE(Main().Visible());
}

TEST_F(CommandChannel, TheDialogShowsAloneAlsoIfTheWindowWasMinimisedInTheTray) {
  Windows().FrmFrameSettings->chkGHideSystray.SetValue(forms::Checked);
  world.desktop.ShowWindow(Main().hWnd(), 6);
  // As the taskbar closes it.
  world.desktop.Send({Main().hWnd(), 16, 0, 0, nullptr});
  ASSERT_FALSE(Main().Visible());
  ASSERT_TRUE(world.desktop.Iconic(Main().hWnd()));
  StartAgain("/customtoolbar");
  EXPECT_FALSE(world.desktop.Visible(Main().hWnd()));
  EXPECT_TRUE(Windows().frmcustom->Visible());
}

TEST_F(CommandChannel, AnUnknownCommandBringsTheWindowForwardAndChangesNoPanel) {
  for (const char* command : {"", "clean", "/clean ", "/clean now", " /clean", "/unknown"}) {
    Main().Hide();
    StartAgain(command);
    EXPECT_TRUE(Main().Visible()) << command;
    EXPECT_THAT(ShownPanels(*copy), ElementsAre("FrmFrameMain")) << command;
  }
}

TEST_F(CommandChannel, APlainSecondStartRestoresAMinimisedWindow) {
  world.desktop.ShowWindow(Main().hWnd(), 6);
  ASSERT_EQ(Main().WindowState(), forms::WindowState::Minimized);
  StartAgain("");
  EXPECT_FALSE(world.desktop.Iconic(Main().hWnd()));
  EXPECT_EQ(world.desktop.Foreground(), Main().hWnd());
}

TEST_F(CommandChannel, AfterThreeCommandsTheTraceHoldsThreeLines) {
  for (const char* command : {"/clean", "", "/Notify"}) StartAgain(command);
  EXPECT_EQ(Main().Text1.Text(),
            "Excuted with command: /clean\r\nExcuted with command: \r\nExcuted with command: "
            "/Notify");
}

TEST_F(CommandChannel, AForeignSenderNeedsOnlyTheProtocol) {
  SendFromOutside("/graph");
  EXPECT_TRUE(copy->Windows().FrmFrameGraph->Visible());
  EXPECT_EQ(Main().cmdDummy.Caption(), "Ready for command");
}

TEST_F(CommandChannel, WhileACommandIsDeliveredTheButtonIsNotFound) {
  platform::WindowHandle during = 1;
  copy->toolkit.WhenPumped([&] { during = FindWindowByCaption(copy->program, ReadyForCommand); });
  SendFromOutside("/graph");
  EXPECT_EQ(during, 0U);
}

TEST_F(CommandChannel, AProcessSearchesOnce) {
  const platform::WindowHandle found = FindWindowByCaption(copy->program, ReadyForCommand);
  ASSERT_EQ(found, Main().cmdDummy.WindowHandle());
  EXPECT_EQ(FindWindowByCaption(copy->program, "a caption of nobody's"), found);
}

TEST_F(CommandChannel, ATextWrittenDuringADeliveryIsNotTheCommand) {
  Main().Text1.Change = [this] { Main().cmdDummy.SetCaption("/graph"); };
  SendFromOutside("/clean");
  EXPECT_TRUE(copy->Windows().FrmFrameHistory->Visible());
  EXPECT_FALSE(copy->Windows().FrmFrameGraph->Visible());
  EXPECT_EQ(Main().cmdDummy.Caption(), "Ready for command");
}

// Nothing guards a panel's yield: who knows the button need not find it again.
TEST_F(CommandChannel, ASenderThatFoundTheButtonEarlierIsServedWithinAnotherDelivery) {
  const auto button = world.desktop.FindByCaption("Ready for command");
  bool shownWithin = false;
  copy->toolkit.WhenPumped([&] {
    SendTo(button, "/notify");
    shownWithin = Windows().FrmFrameNotification->Visible();
  });
  SendTo(button, "/graph");
  EXPECT_TRUE(shownWithin);
  EXPECT_THAT(ShownPanels(*copy),
              ElementsAre("FrmFrameMain", "FrmFrameNotification", "FrmFrameGraph"));
  EXPECT_EQ(Main().Text1.Text(), "Excuted with command: /graph\r\nExcuted with command: /notify");
  EXPECT_EQ(Main().cmdDummy.Caption(), "Ready for command");
  EXPECT_TRUE(Main().Visible());
  // And the channel is open for the next.
  SendFromOutside("/clean");
  EXPECT_TRUE(Windows().FrmFrameHistory->Visible());
}

TEST_F(CommandChannel, AModalDialogStaysInFrontOfWhatACommandShows) {
  for (const char* command : {"", "/graph", "/customtoolbar"}) {
    bool delivered = false;
    copy->toolkit.WaitForEvents = [&] {
      copy->toolkit.WhenPumped([&] {
        SendFromOutside(command);
        delivered = true;
        EXPECT_EQ(copy->toolkit.ActiveForm(), &*Windows().FrmAbout) << command;
        EXPECT_EQ(world.desktop.Foreground(), Windows().FrmAbout->hWnd()) << command;
        EXPECT_FALSE(copy->user.CanReach(Main()));
        EXPECT_TRUE(copy->user.Enter());
      });
      return true;
    };
    EXPECT_TRUE(copy->user.Select(Main().submnuAbout));
    EXPECT_TRUE(delivered);
    EXPECT_FALSE(Windows().FrmAbout.Loaded()) << command;
    EXPECT_EQ(Main().Visible(), std::string(command) != "/customtoolbar");
    SendFromOutside("");
    EXPECT_TRUE(copy->user.CanReach(Main())) << command;
  }
}

TEST_F(CommandChannel, AnUntrappedErrorOfACommandLeavesTheChannelOpen) {
  world.registry.Set(platform::HKeyCurrentUser, BlockSettings, "BpId", platform::RegDword, "");
  SendFromOutside("/onoff");
  EXPECT_THAT(BoxTexts(*copy),
              ElementsAre("Run-time error '5':\r\n\r\nInvalid procedure call or argument"));
  EXPECT_EQ(Main().cmdDummy.Caption(), "Ready for command");
  EXPECT_TRUE(Main().Visible());
  StartAgain("/graph");
  EXPECT_TRUE(Main().Visible());
  EXPECT_TRUE(copy->Windows().FrmFrameGraph->Visible());
}

TEST_F(CommandChannel, WithoutAReceiverTheCommandIsLostSilently) {
  Main().cmdDummy.SetCaption("something else");
  auto second = MakeCopy("/clean");
  Start(second->program);
  EXPECT_TRUE(second->toolkit.Ending());
  EXPECT_THAT(BoxTexts(*second), IsEmpty());
  EXPECT_FALSE(copy->Windows().FrmFrameHistory->Visible());
}

TEST_F(CommandChannel, TheFirstMatchOnTheDesktopReceivesTheCommand) {
  const auto other = world.desktop.MakeWindow(77, 0, "another program");
  const auto button = world.desktop.MakeWindow(77, other, "Ready for command");
  StartAgain("/clean");
  EXPECT_EQ(world.desktop.Caption(button), "/clean");
  EXPECT_FALSE(copy->Windows().FrmFrameHistory->Visible());
}

TEST_F(CommandChannel, ATopLevelWindowWithTheCaptionIsNotCompared) {
  const auto other = world.desktop.MakeWindow(77, 0, "Ready for command");
  StartAgain("/clean");
  EXPECT_EQ(world.desktop.Caption(other), "Ready for command");
  EXPECT_TRUE(copy->Windows().FrmFrameHistory->Visible());
}

TEST_F(CommandChannel, CommandsOfAnyBytesAndLengthsAreUnknownOnes) {
  const std::string anything("\x01\xFF\x80\"%s\t", 8);
  for (const std::string& command : {std::string(100000, 'x'), anything, std::string("\"")}) {
    StartAgain(command);
    EXPECT_THAT(ShownPanels(*copy), ElementsAre("FrmFrameMain"));
    EXPECT_EQ(Main().cmdDummy.Caption(), "Ready for command");
  }
}

TEST_F(CommandChannel, TheSendersCallsComeInTheirOrder) {
  auto second = MakeCopy("/clean");
  second->process.Trace().Clear();
  SendCommand(second->program, "/clean");
  std::vector<std::string> names;
  for (const std::string& name : second->process.Trace().Names()) {
    if (name != "GetWindowTextA" && name != "EnumChildWindows") names.push_back(name);
  }
  EXPECT_THAT(names, ElementsAre("EnumWindows", "GetParent", "IsIconic", "SetForegroundWindow",
                                 "SendMessageA", "SendMessageA"));
}

TEST_F(CommandChannel, TheSearchEndsAtTheFirstWindowWithTheCaption) {
  const auto parent = world.desktop.MakeWindow(77, 0, "parent");
  for (int i = 0; i < 2; ++i) world.desktop.MakeWindow(77, parent, "twice");
  std::vector<platform::WindowHandle> children;
  platform::Desktop& desktop = copy->program.platform.desktop;
  desktop.EnumChildWindows(parent, [&](platform::WindowHandle child) {
    children.push_back(child);
    return true;
  });
  ASSERT_EQ(children.size(), 2U);
  EXPECT_EQ(FindWindowByCaption(copy->program, "twice"), children[0]);
}

TEST_F(CommandChannel, NoWindowIsNotActivated) {
  copy->process.Trace().Clear();
  ActivateWindow(copy->program.platform.desktop, 0);
  EXPECT_THAT(copy->process.Trace().Names(), testing::IsEmpty());
}

TEST_F(CommandChannel, ASenderThatIsEndedWhileItWaitsEnds) {
  auto second = MakeCopy("/notify");
  copy->toolkit.WhenPumped([&] { second->toolkit.AtBorder([&] { second->toolkit.End(); }); });
  EXPECT_THROW(SendCommand(second->program, "/notify"), forms::EndProgram);
}

TEST_F(CommandChannel, ACaptionIsCutAt127Characters) {
  const auto window = world.desktop.MakeWindow(77, 0, std::string(300, 'w'));
  EXPECT_EQ(GetWindowCaption(copy->program.platform.desktop, window), std::string(127, 'w'));
  EXPECT_EQ(GetWindowCaption(copy->program.platform.desktop, 0), "");
  const auto narrow = world.desktop.MakeWindow(77, 0, "w");
  EXPECT_EQ(GetWindowCaption(copy->program.platform.desktop, narrow), "w");
}

TEST_F(CommandChannel, OneGulpLoadsAndShowsTheToolbarsDialog) {
  OneGulp(copy->program, "/CustomToolbar");
  EXPECT_FALSE(Main().Visible());
  EXPECT_TRUE(Windows().frmcustom->Visible());
  EXPECT_EQ(Main().Text1.Text(), "");
}

TEST_F(CommandChannel, OneGulpShowsTheOwnPanelOfEachCommandAndKeepsTheTitle) {
  const std::pair<const char*, std::vector<std::string>> cases[] = {
      {"/clean", {"FrmFrameMain", "FrmFrameHistory"}},
      {"/addlinks", {"FrmFrameMain", "FrmFrameAllowList"}},
      {"/notify", {"FrmFrameMain", "FrmFrameNotification"}},
      {"/graph", {"FrmFrameMain", "FrmFrameGraph"}},
      {"/iesettings", {"FrmFrameMain", "FrmFrameIESettings"}},
      {"/ieplugins", {"FrmFrameMain", "FrmFrameIEPlugin"}},
      {"/options", {"FrmFrameSettings"}},
      {"/onoff", {"FrmFrameMain"}},
  };
  for (const auto& [command, shown] : cases) {
    HideAll(copy->program);
    OneGulp(copy->program, command);
    EXPECT_THAT(ShownPanels(*copy), testing::ElementsAreArray(shown)) << command;
    EXPECT_EQ(Main().lblVCP1.Caption(), "Welcome - Qorvel Software Vantrel ") << command;
  }
  EXPECT_EQ(Main().Text1.Text(), "");
}

TEST_F(CommandChannel, OneGulpShowsAPanelWithoutTraceOrFinalShow) {
  Main().Hide();
  OneGulp(copy->program, "/CLEAN");
  EXPECT_TRUE(copy->Windows().FrmFrameHistory->Visible());
  EXPECT_FALSE(Main().Visible());
  EXPECT_EQ(Main().Text1.Text(), "");
}

TEST_F(CommandChannel, OneGulpDoesNotToggle) {
  Main().Hide();
  OneGulp(copy->program, "/onoff");
  EXPECT_TRUE(copy->program.BlockingActive);
  EXPECT_TRUE(Main().Visible());
}

TEST_F(CommandChannel, OneGulpTakesAnUnknownCommandForTheWelcomePanel) {
  copy->Windows().FrmFrameMain->Hide();
  OneGulp(copy->program, "whatever");
  EXPECT_TRUE(copy->Windows().FrmFrameMain->Visible());
}

}  // namespace
}  // namespace vantrel::shell
