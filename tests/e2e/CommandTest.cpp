// The command channel between real processes: later starts of the program as senders, a stranger
// that follows the protocol, and every state in which the receiver may be found.
#include "support/ProgramTest.h"

namespace vantrel::e2e {
namespace {

constexpr const char* Ready = "Ready for command";
constexpr const char* TraceLine = "Excuted with command: ";

struct PanelCommand {
  const char* command;
  const char* panel;
};

constexpr PanelCommand PanelCommands[] = {
    {"/clean", "FrmFrameHistory"},         {"/addlinks", "FrmFrameAllowList"},
    {"/notify", "FrmFrameNotification"},   {"/graph", "FrmFrameGraph"},
    {"/iesettings", "FrmFrameIESettings"}, {"/ieplugins", "FrmFrameIEPlugin"},
    {"/options", "FrmFrameSettings"},
};

class CommandTest : public ProgramTest {
 protected:
  // Starts a later copy with the command and waits until it has gone.
  static void Send(const std::string& command) {
    const Running sender(command);
    ASSERT_TRUE(sender.WaitForExit(30000)) << command.substr(0, 100);
  }
  // The same by the stranger; its exit code.
  static DWORD SendForeign(const std::string& command) {
    const Running stranger(command, HelperPath("foreign-sender.exe"));
    EXPECT_TRUE(stranger.WaitForExit());
    DWORD code = 99;
    GetExitCodeProcess(stranger.Process(), &code);
    return code;
  }
  // The trace grows by this line.
  void ExpectTraced(const Running& receiver, const std::string& command) {
    trace_ += (trace_.empty() ? "" : "\r\n") + (TraceLine + command);
    EXPECT_EQ(receiver.TextOf("frmMain.Text1"), trace_);
    EXPECT_EQ(receiver.TextOf("frmMain.cmdDummy"), Ready);
  }
  // A running copy with the empty command behind it.
  void AwaitReceiver(const Running& receiver) {
    ASSERT_TRUE(receiver.WaitUntilIdle());
    ExpectTraced(receiver, "");
  }

 private:
  std::string trace_;
};

TEST_F(CommandTest, EachPanelCommandShowsItsPanelOverWhatWasThere) {
  Running receiver;
  AwaitReceiver(receiver);
  const std::string title = receiver.TextOf("frmMain.lblVCP1");
  for (const PanelCommand& row : PanelCommands) {
    EXPECT_FALSE(receiver.IsShown(row.panel)) << row.command;
    Write(HKEY_CURRENT_USER, BlockSettings, "GDisabled", Dword(0));
    Send(row.command);
    EXPECT_TRUE(receiver.IsVisible(row.panel)) << row.command;
    ExpectTraced(receiver, row.command);
    // The sender's own way out writes it.
    EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U) << row.command;
  }
  // Nothing hides the earlier panels and nothing changes the title.
  for (const PanelCommand& row : PanelCommands) EXPECT_TRUE(receiver.IsShown(row.panel));
  EXPECT_EQ(receiver.TextOf("frmMain.lblVCP1"), title);
  EXPECT_TRUE(receiver.Alive());
}

TEST_F(CommandTest, TheToolbarsDialogShowsAloneAlsoIfTheWindowWasMinimizedInTheTray) {
  Running receiver;
  AwaitReceiver(receiver);
  ASSERT_TRUE(receiver.Click("FrmFrameSettings.chkGHideSystray"));
  HWND window = receiver.Find("frmMain");
  ShowWindow(window, SW_MINIMIZE);
  ASSERT_TRUE(WaitFor([&] { return IsIconic(window) != FALSE; }));
  receiver.PressCloseBox();
  ASSERT_TRUE(receiver.WaitUntilVisible("frmMain", false));
  Send("/customtoolbar");
  EXPECT_TRUE(receiver.IsVisible("frmcustom"));
  EXPECT_FALSE(receiver.IsShown("frmMain"));
}

TEST_F(CommandTest, OnOffTogglesBlocking) {
  Running receiver;
  AwaitReceiver(receiver);
  Send("/onoff");
  EXPECT_TRUE(receiver.IsEnabled("FrmFrameMain.cmdstart"));
  EXPECT_FALSE(KeyExists(HKEY_LOCAL_MACHINE, EngineKey));
  ExpectTraced(receiver, "/onoff");
  Send("/OnOFF");
  EXPECT_FALSE(receiver.IsEnabled("FrmFrameMain.cmdstart"));
  EXPECT_TRUE(KeyExists(HKEY_LOCAL_MACHINE, EngineKey));
  ExpectTraced(receiver, "/OnOFF");
  // The receiver wrote 0; the sender's way out came behind it.
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
  EXPECT_EQ(SendForeign("/onoff"), 0U);
  EXPECT_EQ(SendForeign("/onoff"), 0U);
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 0U);
}

TEST_F(CommandTest, OnOffBringsTheWelcomePanelBack) {
  Running receiver;
  AwaitReceiver(receiver);
  Send("/options");
  EXPECT_FALSE(receiver.IsShown("FrmFrameMain"));
  Send("/onoff");
  EXPECT_TRUE(receiver.IsVisible("FrmFrameMain"));
}

TEST_F(CommandTest, CustomToolbarShowsTheDialogAloneUntilTheNextCommand) {
  Running receiver;
  AwaitReceiver(receiver);
  Send("/customtoolbar");
  EXPECT_TRUE(receiver.IsVisible("frmcustom"));
  EXPECT_FALSE(receiver.IsVisible("frmMain"));
  ExpectTraced(receiver, "/customtoolbar");
  Send("");
  EXPECT_TRUE(receiver.IsVisible("frmMain"));
  ExpectTraced(receiver, "");
}

TEST_F(CommandTest, LetterCaseDoesNotMatterAndAnythingElseDoes) {
  Running receiver;
  AwaitReceiver(receiver);
  Send("/GRAPH");
  EXPECT_TRUE(receiver.IsVisible("FrmFrameGraph"));
  ExpectTraced(receiver, "/GRAPH");
  for (const char* unknown : {"clean", "/cleanx", "/clean now", "/ clean", "/clean /clean"}) {
    Send(unknown);
    ExpectTraced(receiver, unknown);
    EXPECT_FALSE(receiver.IsShown("FrmFrameHistory")) << unknown;
    EXPECT_TRUE(receiver.IsVisible("frmMain"));
  }
  EXPECT_EQ(SendForeign("/clean "), 0U);
  ExpectTraced(receiver, "/clean ");
  EXPECT_FALSE(receiver.IsShown("FrmFrameHistory"));
}

TEST_F(CommandTest, AMinimizedReceiverIsRestored) {
  Running receiver;
  AwaitReceiver(receiver);
  ShowWindow(receiver.Find("frmMain"), SW_MINIMIZE);
  ASSERT_TRUE(WaitFor([&] { return IsIconic(receiver.Find("frmMain")) != FALSE; }));
  Send("/notify");
  EXPECT_FALSE(IsIconic(receiver.Find("frmMain")));
  EXPECT_TRUE(receiver.IsVisible("FrmFrameNotification"));
  ShowWindow(receiver.Find("frmMain"), SW_MINIMIZE);
  ASSERT_TRUE(WaitFor([&] { return IsIconic(receiver.Find("frmMain")) != FALSE; }));
  EXPECT_EQ(SendForeign(""), 0U);
  EXPECT_FALSE(IsIconic(receiver.Find("frmMain")));
}

TEST_F(CommandTest, AReceiverInTheTrayIsFoundAndShown) {
  Running receiver;
  AwaitReceiver(receiver);
  receiver.ChooseMenu("MnuHide");
  ASSERT_TRUE(receiver.WaitUntilVisible("frmMain", false));
  Send("/graph");
  EXPECT_TRUE(receiver.IsVisible("frmMain"));
  EXPECT_TRUE(receiver.IsVisible("FrmFrameGraph"));
  // Closed to the tray as well.
  ASSERT_TRUE(receiver.Click("FrmFrameSettings.chkGHideSystray"));
  receiver.PressCloseBox();
  ASSERT_TRUE(receiver.WaitUntilVisible("frmMain", false));
  EXPECT_EQ(SendForeign("/clean"), 0U);
  EXPECT_TRUE(receiver.IsVisible("frmMain"));
  EXPECT_TRUE(receiver.IsVisible("FrmFrameHistory"));
}

TEST_F(CommandTest, AReceiverBusyWithACommandIsNotFoundAndTheCommandIsLost) {
  Running receiver;
  AwaitReceiver(receiver);
  // Half a delivery: the caption is the command, the click has yet to come.
  receiver.SetText("frmMain.cmdDummy", "/graph");
  Send("/clean");
  EXPECT_EQ(SendForeign("/notify"), 1U);
  EXPECT_EQ(receiver.TextOf("frmMain.cmdDummy"), "/graph");
  ASSERT_TRUE(receiver.Click("frmMain.cmdDummy"));
  ExpectTraced(receiver, "/graph");
  EXPECT_TRUE(receiver.IsVisible("FrmFrameGraph"));
  EXPECT_FALSE(receiver.IsShown("FrmFrameHistory"));
  EXPECT_FALSE(receiver.IsShown("FrmFrameNotification"));
}

TEST_F(CommandTest, AReceiverWithABoxUpCarriesTheCommandOut) {
  Running receiver;
  AwaitReceiver(receiver);
  receiver.ClickAndLeave("FrmFrameSettings.chkGShowToolbar");
  const auto box = receiver.WaitForBox();
  ASSERT_TRUE(box);
  Send("/clean");
  EXPECT_TRUE(receiver.IsShown("FrmFrameHistory"));
  ExpectTraced(receiver, "/clean");
  ASSERT_TRUE(receiver.Answer(*box));
  EXPECT_TRUE(WaitFor([&] { return !Read(HKEY_LOCAL_MACHINE, ToolbarKey, ToolbarId); }));
  EXPECT_TRUE(receiver.Answers());
}

TEST_F(CommandTest, WithTheReceiverGoneAStrangersCommandIsLostAndALaterStartIsTheFirst) {
  {
    Running receiver;
    AwaitReceiver(receiver);
    receiver.ChooseMenu("MnuExit");
    ASSERT_TRUE(receiver.WaitForExit());
  }
  EXPECT_EQ(SendForeign("/clean"), 1U);
  Running later("/clean");
  ASSERT_TRUE(later.WaitUntilIdle());
  EXPECT_EQ(later.TextOf("frmMain.Text1"), "Excuted with command: /clean");
}

TEST_F(CommandTest, ACommandOfAnyLengthIsHandedOverAndDoesNoHarm) {
  Running receiver;
  AwaitReceiver(receiver);
  const std::string longest = "/clean" + std::string(20000, 'x');
  Send(longest);
  EXPECT_EQ(receiver.TextOf("frmMain.cmdDummy"), Ready);
  const std::string trace = receiver.TextOf("frmMain.Text1");
  EXPECT_EQ(trace.rfind("Excuted with command: \r\nExcuted with command: /cleanxxxxx", 0), 0U);
  EXPECT_EQ(trace.find_first_not_of('x', trace.rfind('/') + 6), std::string::npos);
  EXPECT_FALSE(receiver.IsShown("FrmFrameHistory"));
  receiver.MouseClick("frmMain.LnkGraph");
  EXPECT_TRUE(receiver.WaitUntilVisible("FrmFrameGraph"));
}

TEST_F(CommandTest, ACommandOfAnyBytesIsTracedAsItCame) {
  Running receiver;
  AwaitReceiver(receiver);
  for (const char* odd : {"\xE4\xF6\xFC \xDF", "%s%n%d", "\"quoted\" 'and' not", "&clean", "a\tb",
                          "\x01\x02\x7F", "Ready for command"}) {
    Send(odd);
    ExpectTraced(receiver, odd);
  }
}

TEST_F(CommandTest, AFirstStartsPanelCommandLeavesOnlyItsTrace) {
  for (const PanelCommand& row : PanelCommands) {
    Running program(row.command);
    ASSERT_TRUE(program.WaitUntilIdle()) << row.command;
    EXPECT_EQ(program.TextOf("frmMain.Text1"), TraceLine + std::string(row.command));
    EXPECT_FALSE(program.IsShown(row.panel)) << row.command;
    EXPECT_TRUE(program.IsVisible("FrmFrameMain")) << row.command;
    EXPECT_TRUE(program.IsVisible("frmMain")) << row.command;
    EXPECT_EQ(program.TextOf("frmMain.lblVCP1"), "Welcome - Qorvel Software Vantrel ");
  }
}

TEST_F(CommandTest, AFirstStartWithOnOffEndsStarted) {
  Running program("/onoff");
  ASSERT_TRUE(program.WaitUntilIdle());
  EXPECT_TRUE(KeyExists(HKEY_LOCAL_MACHINE, EngineKey));
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 0U);
  EXPECT_TRUE(program.IsVisible("frmMain"));
}

TEST_F(CommandTest, AFirstStartWithAnUnknownCommandIsAPlainStart) {
  Running program("/nothing of the kind");
  ASSERT_TRUE(program.WaitUntilIdle());
  EXPECT_TRUE(program.IsVisible("frmMain"));
  EXPECT_TRUE(program.IsVisible("FrmFrameMain"));
}

TEST_F(CommandTest, AFirstStartWithCustomToolbarShowsTheDialogAlone) {
  Running program("/customtoolbar");
  // No layout is stored yet: the dialog's load says so, the first time without a text.
  for (const char* const text : {"", "Some error occured while processing."}) {
    const auto box = program.WaitForBox();
    ASSERT_TRUE(box) << text;
    EXPECT_EQ(box->text, text);
    ASSERT_TRUE(program.Answer(*box));
  }
  ASSERT_TRUE(program.WaitUntilIdle());
  EXPECT_TRUE(program.IsVisible("frmcustom"));
  EXPECT_FALSE(program.IsVisible("frmMain"));
  EXPECT_FALSE(program.IsEnabled("FrmFrameMain.cmdstart"));
}

}  // namespace
}  // namespace vantrel::e2e
