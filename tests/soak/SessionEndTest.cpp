// The end of the session, met with every panel shown, in every state of the window and with every
// box up: the system waits for no program, so this one ends within a second.
#include <algorithm>
#include <cstdio>

#include "Soak.h"
#include "support/Folders.h"
#include "support/WindowStates.h"

namespace vantrel::e2e {
namespace {

// In milliseconds. A busy machine takes its time for everything: there it is that many times as
// long as the start before took.
constexpr DWORD EndsWithin = 1000;
constexpr DWORD StartsOnBusyMachine = 3;

// How the program gets there; false if it did not.
struct Situation {
  std::string name;
  std::function<bool(const Running&)> enter;
};

Situation Panel(const char* link, const char* panel) {
  return {panel, [link, panel](const Running& program) {
            program.MouseClick(link);
            return program.WaitUntilVisible(panel);
          }};
}
Situation BoxOf(const char* button, const char* text) {
  return {text, [button, text](const Running& program) {
            program.ClickAndLeave(button);
            const auto box = program.WaitForBox();
            return box && box->text == text;
          }};
}
Situation BoxOfLabel(const char* label, const char* text) {
  return {text, [label, text](const Running& program) {
            program.MouseClick(label);
            const auto box = program.WaitForBox();
            return box && box->text == text;
          }};
}
bool OpenFolderPicker(const Running& program) {
  program.ClickAndLeave("FrmFrameIESettings.cmdBrowseIESettings");
  return WaitFor([&] { return program.BoxCount() == 1; });
}
bool NameNoSite(const Running& program) {
  program.SetText("FrmFrameAllowList.txtName", "");
  program.ClickAndLeave("FrmFrameAllowList.cmdAddWebsite");
  return program.WaitForBox().has_value();
}
bool AskAboutSite(const Running& program) {
  program.MouseClick("frmMain.LnkAllowedList");
  if (!program.WaitUntilVisible("FrmFrameAllowList")) return false;
  program.ClickAndLeave("FrmFrameAllowList.cmdRemove");
  return program.WaitForBox().has_value();
}
// A box in front of a dialog in front of the window.
bool OpenBoxOverAbout(const Running& program) {
  if (!OpenAbout(program)) return false;
  program.ClickAndLeave("FrmFrameSettings.chkGShowToolbar");
  return program.WaitForBox().has_value();
}

std::vector<Situation> Situations() {
  std::vector<Situation> situations = {
      Panel("frmMain.LnkWelcome", "FrmFrameMain"),
      Panel("frmMain.LnkAdBlocking", "FrmFrameBlockPreferences"),
      Panel("frmMain.LnkSettings", "FrmFrameSettings"),
      Panel("frmMain.lnkClean", "FrmFrameHistory"),
      Panel("frmMain.LnkAllowedList", "FrmFrameAllowList"),
      Panel("frmMain.LnkNotification", "FrmFrameNotification"),
      Panel("frmMain.LnkIESettings", "FrmFrameIESettings"),
      Panel("frmMain.LnkIePlug", "FrmFrameIEPlugin"),
      Panel("frmMain.LnkGraph", "FrmFrameGraph"),
      Panel("frmMain.LnkLog", "FrmFrameLog"),
      BoxOf("FrmFrameIESettings.cmdRestoreIESettings",
            "Please close all the instances of Internet Explorer"),
      BoxOfLabel("FrmFrameLog.lblResetLog", "Log cleared"),
      {"the folder picker", OpenFolderPicker},
      {"a site without a name", NameNoSite},
      {"the question about a site", AskAboutSite},
      {"a box over About", OpenBoxOverAbout},
  };
  for (const WindowState& state : WindowStates()) situations.push_back({state.name, state.enter});
  return situations;
}

class SessionEndTest : public SoakTest {
 protected:
  void SetUp() override {
    SoakTest::SetUp();
    const std::string flags = ", Popup= 1 ,DHTML = 1, WebDialog =1 ,Banner = 1, Flash = 1 , ";
    WriteFileBytes(copy_.Folder() + "\\Settings\\AllowList.txt",
                   "id =1" + flags + "a\r\nid =2" + flags + "b\r\n");
    WriteFileBytes(copy_.LogFile(), "one line\r\n");
  }
  static DWORD_PTR Send(const Running& program, UINT message, WPARAM ends) {
    DWORD_PTR answer = 99;
    SendMessageTimeoutA(program.Find("frmMain"), message, ends, 0, SMTO_NORMAL, DefaultBound,
                        &answer);
    return answer;
  }
  // Returns how long it took.
  DWORD EndSessionIn(const Situation& situation) const {
    const DWORD started = GetTickCount();
    const Running program("", copy_.Executable());
    const bool idle = program.WaitUntilIdle();
    const DWORD bound = std::max(EndsWithin, (GetTickCount() - started) * StartsOnBusyMachine);
    if (!idle || !situation.enter(program)) {
      ADD_FAILURE() << "the program did not get there";
      return 0;
    }
    const DWORD start = GetTickCount();
    EXPECT_EQ(Send(program, WM_QUERYENDSESSION, 0), 1U);
    Send(program, WM_ENDSESSION, TRUE);
    EXPECT_TRUE(program.WaitForExit());
    const DWORD time = GetTickCount() - start;
    EXPECT_LE(time, bound);
    DWORD code = 99;
    GetExitCodeProcess(program.Process(), &code);
    EXPECT_EQ(code, 0U);
    EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
    return time;
  }

  const ProgramCopy copy_{"VantrelSessionEnd"};
};

TEST_F(SessionEndTest, EndsTheProgramWithinASecondWhateverIsUp) {
  std::vector<Situation> situations = Situations();
  std::shuffle(situations.begin(), situations.end(), Generator());
  const int all = static_cast<int>(situations.size());
  situations.resize(static_cast<std::size_t>(std::min(all, Count({10, all}))));
  DWORD longest = 0;
  for (const Situation& situation : situations) {
    SCOPED_TRACE(situation.name);
    longest = std::max(longest, EndSessionIn(situation));
  }
  std::printf("%zu ends of the session, the longest in %lu ms\n", situations.size(), longest);
}

}  // namespace
}  // namespace vantrel::e2e
