// Buttons, boxes and lists as a user presses them: twice in a row, and by the keyboard; and what is
// left when the focus moves to them.
#include "support/Pointer.h"
#include "support/ProgramTest.h"

namespace vantrel::e2e {
namespace {

constexpr int BoxMark = 8;  // pixels from the left: on the mark, whatever the caption's length

class PressTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    program_.emplace();
    ASSERT_TRUE(program_->WaitUntilIdle());
    SetForegroundWindow(Program().Find("frmMain"));
  }
  void TearDown() override {
    program_.reset();
    ProgramTest::TearDown();
  }
  const Running& Program() const { return *program_; }
  void Open(const std::string& entry, const std::string& panel) {
    Program().ChooseMenu(entry);
    ASSERT_TRUE(Program().WaitUntilVisible(panel));
  }
  void Press(const std::string& control, int times) const {
    PressOn(Program().Find(control), times, BoxMark);
  }
  // The control that has the focus, by its name.
  std::string Focused() const {
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(GetWindowThreadProcessId(Program().Find("frmMain"), nullptr), &info);
    return ControlNameOf(info.hwndFocus);
  }
  static std::uint32_t Stored(const std::string& name) { return Number(BlockSettings, name); }
  // Answers the box that is up and sees that no other follows it but those that are expected.
  void AnswerBoxes(std::size_t expected) {
    for (std::size_t count = 0; count < expected; ++count) {
      const auto box = Program().WaitForBox();
      ASSERT_TRUE(box) << count;
      EXPECT_EQ(box->text, "Error occured: Invalid procedure call or argument") << count;
      ASSERT_TRUE(Program().Answer(*box)) << count;
    }
    ASSERT_TRUE(Program().Answers());
    EXPECT_EQ(Program().BoxCount(), 0U);
  }
  // Every save of the block settings fails from here on.
  static void BreakSaves() { Write(HKEY_CURRENT_USER, BlockSettings, "BpID", Text("")); }
  void PutFocusInSounds() {
    Open("MnuNotification", "FrmFrameNotification");
    // Beside the arrow: the focus comes with the press, the list opens and closes.
    PressOn(Program().Find("FrmFrameNotification.cmbsound"), 2, BoxMark);
    ASSERT_TRUE(WaitFor([&] { return Focused() == "FrmFrameNotification.cmbsound"; }));
    ASSERT_TRUE(Program().Answers());
  }

 private:
  std::optional<Running> program_;
};

TEST_F(PressTest, QuickPressesOfABoxAreStoredOneByOne) {
  Open("MnuAdBlocking", "FrmFrameBlockPreferences");
  const std::string box = "FrmFrameBlockPreferences.chkBFlash";
  const std::uint32_t before = Stored("Flash");
  // The presses come one after the other: once that of the other box is stored, so are all.
  const auto pressAll = [&](int times) {
    const std::uint32_t other = Stored("Popup");
    Press(box, times);
    Press("FrmFrameBlockPreferences.chkBPopup", 1);
    return WaitFor([&] { return Stored("Popup") == 1 - other; });
  };
  ASSERT_TRUE(pressAll(1));
  EXPECT_EQ(Stored("Flash"), 1 - before);
  ASSERT_TRUE(pressAll(2));
  EXPECT_EQ(Stored("Flash"), 1 - before);
  ASSERT_TRUE(pressAll(3));
  EXPECT_EQ(Stored("Flash"), before);
  EXPECT_EQ(Program().CheckOf(box), static_cast<int>(before));
  Program().PressKey(box, VK_SPACE);
  EXPECT_TRUE(WaitFor([&] { return Stored("Flash") == 1 - before; }));
}

TEST_F(PressTest, QuickPressesOfAButtonEachCount) {
  const std::string stop = "FrmFrameMain.cmdstop";
  ASSERT_TRUE(Program().IsEnabled(stop));
  Press(stop, 2);
  EXPECT_TRUE(WaitFor([&] { return Program().IsEnabled("FrmFrameMain.cmdstart"); }));
  Press("FrmFrameMain.cmdstart", 2);
  EXPECT_TRUE(WaitFor([&] { return Program().IsEnabled(stop); }));
  EXPECT_TRUE(WaitFor([] { return Stored("GDisabled") == 0; }));
}

TEST_F(PressTest, AFailingSaveOfTheListThatIsLeftByMouseShowsOneBoxAndThePressAnother) {
  PutFocusInSounds();
  BreakSaves();
  Press("FrmFrameNotification.chkNW", 1);
  AnswerBoxes(2);
  EXPECT_EQ(Program().CheckOf("FrmFrameNotification.chkNW"), BST_CHECKED);
  EXPECT_EQ(Focused(), "FrmFrameNotification.chkNW");
}

TEST_F(PressTest, AFailingSaveOfTheListThatIsLeftByTabShowsOneBoxAndTheKeyAnother) {
  PutFocusInSounds();
  BreakSaves();
  Program().PressKey("FrmFrameNotification.cmbsound", VK_TAB);
  AnswerBoxes(1);
  const std::string next = Focused();
  EXPECT_NE(next, "FrmFrameNotification.cmbsound");
  EXPECT_NE(next, "");
}

TEST_F(PressTest, HidingThePanelWithTheFocusInItsListSavesNothing) {
  PutFocusInSounds();
  BreakSaves();
  Program().ChooseMenu("submnugraph");
  ASSERT_TRUE(Program().WaitUntilVisible("FrmFrameGraph"));
  ASSERT_TRUE(Program().Answers());
  EXPECT_EQ(Program().BoxCount(), 0U);
}

}  // namespace
}  // namespace vantrel::e2e
