// Blocking started and stopped in every way, in any order: after each the buttons, the boxes, the
// totals and the tray show what is stored.
#include "Soak.h"
#include "support/ExpectedSettings.h"
#include "support/TrayCatcher.h"

namespace vantrel::e2e {
namespace {

constexpr std::uint32_t Unsaved = 7;  // no save writes it
constexpr const char* Counters[] = {"Popup", "DHTML", "WebDialog", "BannerAds", "Flash"};

class StartStopTest : public SoakTest {
 protected:
  void SetUp() override {
    SoakTest::SetUp();
    ASSERT_TRUE(tray_.InPlace()) << "another window takes the calls for icons";
    program_.emplace();
    ASSERT_TRUE(program_->WaitUntilIdle());
    // The close box hides from here on, and the general settings are stored.
    ASSERT_TRUE(program_->Click("FrmFrameSettings.chkGHideSystray"));
  }
  void TearDown() override {
    program_.reset();
    SoakTest::TearDown();
  }

  // The ways; each returns when the program is done.
  void PressStart() {
    ASSERT_TRUE(program_->Click("FrmFrameMain.cmdstart"));
    if (!started_) Become(true, 0);
  }
  void PressStop() {
    ASSERT_TRUE(program_->Click("FrmFrameMain.cmdstop"));
    if (started_) Become(false, 1);
  }
  // The engine's value says off also where these start: this is meant.
  void ChooseStart() {
    AwaitSave([this] { program_->ChooseMenu("MnuStartBlocking"); });
    Become(true, 1);
  }
  void ChooseStop() {
    AwaitSave([this] { program_->ChooseMenu("MnuStop"); });
    Become(false, 1);
  }
  void PressStartTool() {
    AwaitSave([this] { program_->PressTool(3); });
    Become(true, 1);
  }
  void PressStopTool() {
    AwaitSave([this] { program_->PressTool(4); });
    Become(false, 1);
  }
  // The sender's way out writes 1 behind what the command has written.
  void SendOnOff() {
    Send("/onoff");
    Become(!started_, 1);
  }
  void SendNothing() {
    Send("");
    disabled_ = 1;
  }
  // What a window in the tray is brought back by, and how it gets there.
  void HideOrShow() {
    if (shown_) {
      program_->ChooseMenu("MnuHide");
    } else {
      program_->TrayCallback(WM_LBUTTONDBLCLK);
    }
    shown_ = !shown_;
    ASSERT_TRUE(program_->WaitUntilVisible("frmMain", shown_));
  }
  void CloseOrOpen() {
    if (shown_) {
      AwaitSave([this] { program_->PressCloseBox(); });
      disabled_ = 1;
    } else {
      program_->ChooseMenu("mnusysOpen");
    }
    shown_ = !shown_;
    ASSERT_TRUE(program_->WaitUntilVisible("frmMain", shown_));
  }
  // The engine counts; the program reads it with its next tick.
  void CountBlocked() {
    total_ = 0;
    for (const char* counter : Counters) {
      const int count = Random(150);
      Write(HKEY_CURRENT_USER, BlockLog, counter, Dword(static_cast<std::uint32_t>(count)));
      total_ += count;
    }
    EXPECT_TRUE(program_->WaitForText("FrmFrameMain.lblno", std::to_string(total_)));
  }

  void Check() const {
    EXPECT_EQ(program_->IsEnabled("FrmFrameMain.cmdstart"), !started_);
    EXPECT_EQ(program_->IsEnabled("FrmFrameMain.cmdstop"), started_);
    EXPECT_EQ(Read(HKEY_LOCAL_MACHINE, EngineKey, "Path").has_value(), started_);
    EXPECT_EQ(KeyExists(HKEY_LOCAL_MACHINE, EngineKey), started_);
    EXPECT_EQ(Number(BlockSettings, "GDisabled"), disabled_);
    EXPECT_EQ(program_->IsVisible("frmMain"), shown_);
    EXPECT_EQ(tray_.Icons(), 1U);
    EXPECT_EQ(program_->TextOf("FrmFrameGraph.lbltotallog"),
              "Total: " + std::to_string(total_) + " Ads blocked.");
    CheckBoxes();
  }

 private:
  void Become(bool started, std::uint32_t disabled) {
    started_ = started;
    disabled_ = disabled;
  }
  // Posts something that saves, and waits until the program has handled it.
  void AwaitSave(const std::function<void()>& post) const {
    Write(HKEY_CURRENT_USER, BlockSettings, "GDisabled", Dword(Unsaved));
    post();
    EXPECT_TRUE(WaitFor([] { return Number(BlockSettings, "GDisabled") != Unsaved; }));
    EXPECT_TRUE(program_->Answers());
  }
  void Send(const std::string& command) {
    const Running sender(command);
    ASSERT_TRUE(sender.WaitForExit(30000));
    shown_ = true;
  }
  void CheckBoxes() const {
    for (const test::ExpectedSetting& setting : test::ExpectedSettings) {
      if (!test::HasBox(setting)) continue;
      const std::string key = std::string(RootKey) + '\\' + setting.Key;
      EXPECT_EQ(static_cast<std::uint32_t>(program_->CheckOf(setting.Control)),
                Number(key, setting.Name))
          << setting.Control;
    }
  }

  TrayCatcher tray_;
  std::optional<Running> program_;
  bool started_ = true;
  std::uint32_t disabled_ = 0;
  bool shown_ = true;
  int total_ = 0;

 public:
  struct Way {
    const char* name;
    void (StartStopTest::*carryOut)();
    int weight;
  };
  static constexpr Way Ways[] = {
      {"the button Start", &StartStopTest::PressStart, 3},
      {"the button Stop", &StartStopTest::PressStop, 3},
      {"Start Blocking of the menu", &StartStopTest::ChooseStart, 2},
      {"Stop of the menu", &StartStopTest::ChooseStop, 2},
      {"the tool Start", &StartStopTest::PressStartTool, 2},
      {"the tool Stop", &StartStopTest::PressStopTool, 2},
      {"the command /onoff", &StartStopTest::SendOnOff, 4},
      {"another start", &StartStopTest::SendNothing, 1},
      {"Hide or the icon", &StartStopTest::HideOrShow, 2},
      {"the close box or the tray's menu", &StartStopTest::CloseOrOpen, 2},
      {"the engine", &StartStopTest::CountBlocked, 1},
  };
};

TEST_F(StartStopTest, WhatIsShownIsWhatIsStoredAfterEachStartAndStop) {
  std::vector<int> weights;
  for (const Way& way : Ways) weights.push_back(way.weight);
  std::discrete_distribution<std::size_t> choose(weights.begin(), weights.end());
  const int rounds = Count({30, 1000});
  for (int round = 0; round < rounds && !HasFailure(); ++round) {
    const Way& way = Ways[choose(Generator())];
    SCOPED_TRACE("round " + std::to_string(round) + ": " + way.name);
    (this->*way.carryOut)();
    Check();
  }
}

}  // namespace
}  // namespace vantrel::e2e
