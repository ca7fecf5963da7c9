// The Welcome panel: its buttons and options, and the refresh behind its timer.
#include <gmock/gmock.h>

#include "blocking/Attach.h"
#include "blocking/WelcomePanel.h"
#include "launch/Targets.h"
#include "settings/FirstRun.h"
#include "statistics/Attach.h"
#include "support/ComponentFixture.h"
#include "windows/FrmFrameBlockPreferences.h"
#include "windows/FrmFrameGraph.h"
#include "windows/FrmFrameLog.h"
#include "windows/FrmFrameMain.h"

namespace vantrel::blocking {
namespace {

using platform::HKeyCurrentUser;
using platform::HKeyLocalMachine;
using test::EngineKey;
using testing::ElementsAre;
using testing::IsEmpty;

class WelcomePanel : public test::ComponentFixture {
 protected:
  WelcomePanel() {
    statistics::AttachStatistics(program);
    AttachBlocking(program);
    settings::CheckAndCreateRegitry(program);
    Panel();
    program.windows.FrmFrameGraph.EnsureLoaded();
    program.windows.FrmFrameLog.EnsureLoaded();
    process.Trace().Clear();
  }

  windows::FrmFrameMain& Panel() { return *program.windows.FrmFrameMain; }
  windows::FrmFrameBlockPreferences& Block() { return *program.windows.FrmFrameBlockPreferences; }
  void Click(forms::Control& control) {
    AsEvent([&] { control.UserClick(); });
  }
  void Tick() { world.clock.Advance(2000); }
  std::vector<std::string> Rows() {
    std::vector<std::string> rows;
    forms::ListView& list = program.windows.FrmFrameLog->lstLog;
    for (int row = 1; row <= list.Count(); ++row) {
      rows.push_back(list.Item(row).Text() + "=" + list.Item(row).Sub(1).Text);
    }
    return rows;
  }
};

TEST_F(WelcomePanel, StartAndStopAreTheButtons) {
  Click(Panel().cmdstart);
  EXPECT_TRUE(program.BlockingActive);
  Click(Panel().cmdstop);
  EXPECT_FALSE(program.BlockingActive);
}

TEST_F(WelcomePanel, ADisabledStartButtonIsPressedByCodeAllTheSame) {
  Click(Panel().cmdstart);
  process.Trace().Clear();
  Panel().cmdstart.SetValue(true);
  EXPECT_EQ(BlockSaves(), 1);
}

TEST_F(WelcomePanel, TestStartsAgainAndOpensTheTestPage) {
  Click(Panel().cmdstart);
  world.registry.RemoveKey(HKeyLocalMachine, EngineKey);
  process.Trace().Clear();
  Click(Panel().cmdtest);
  EXPECT_EQ(BlockSaves(), 1);
  EXPECT_TRUE(world.registry.HasKey(HKeyLocalMachine, EngineKey));
  ASSERT_EQ(world.programs.Started().size(), 1U);
  EXPECT_EQ(world.programs.Started()[0].arguments, launch::TestPage);
}

TEST_F(WelcomePanel, TestOpensNoPageWhenTheStartFails) {
  world.registry.Set(HKeyCurrentUser, Tree("Block Settings"), "BpId", platform::RegSz, "");
  Click(Panel().cmdtest);
  EXPECT_THAT(BoxTexts(),
              ElementsAre("Run-time error '5':\r\n\r\nInvalid procedure call or argument"));
  EXPECT_THAT(world.programs.Started(), IsEmpty());
}

TEST_F(WelcomePanel, TestWhileStoppedStartsFirst) {
  Click(Panel().cmdstop);
  Click(Panel().cmdtest);
  EXPECT_TRUE(program.BlockingActive);
  EXPECT_EQ(Number("Block Settings", "GDisabled"), 0U);
}

TEST_F(WelcomePanel, TheOptionsChooseThePresetsOneAfterTheOther) {
  EXPECT_TRUE(Panel().optMedium.Value());
  Click(Panel().optDial);
  EXPECT_EQ(Block().cmbinternet.Text(), "Dial Up");
  EXPECT_EQ(Block().chkBBanner.Value(), 0);
  Click(Panel().optFast);
  EXPECT_EQ(Block().cmbinternet.Text(), "High Speed /T1 Line");
  EXPECT_EQ(Block().chkBBanner.Value(), 1);
  Click(Panel().optMedium);
  EXPECT_EQ(Block().cmbinternet.Text(), "DSL/Cable");
  EXPECT_EQ(Block().chkBDhtml.Value(), 0);
}

TEST_F(WelcomePanel, MinimizeIsStoredAtOnceWithAllOfItsKey) {
  Click(Panel().ChkMinimize);
  EXPECT_EQ(Number("Settings", "Minimize"), 1U);
  EXPECT_EQ(GeneralSaves(), 1);
  program.LoadingSettings = true;
  Click(Panel().ChkMinimize);
  EXPECT_EQ(GeneralSaves(), 1);
}

TEST_F(WelcomePanel, MinimizeThatCannotBeSavedShowsTheInformationBox) {
  world.registry.Set(HKeyCurrentUser, Tree("Settings"), "BpId", platform::RegSz, "");
  Click(Panel().ChkMinimize);
  EXPECT_THAT(BoxTexts(), ElementsAre("Error occured: Invalid procedure call or argument"));
}

TEST_F(WelcomePanel, ATickReadsTheStoreSixTimesAndWritesNothing) {
  Tick();
  EXPECT_THAT(process.Trace().LinesOf("RegQueryValueExA"), testing::SizeIs(6));
  EXPECT_EQ(process.Trace().Lines().size(), 18U) << "an open and a close for each";
}

TEST_F(WelcomePanel, ATickWithoutNewsRepaintsNothing) {
  Tick();
  std::vector<std::string> changes;
  toolkit.Trace = [&](const std::string& line) { changes.push_back(line); };
  Tick();
  EXPECT_THAT(changes, IsEmpty());
}

TEST_F(WelcomePanel, ATickShowsOnlyWhatChanged) {
  Tick();
  SetNumber("Block Log", "DHTML", 2);
  std::vector<std::string> changes;
  toolkit.Trace = [&](const std::string& line) {
    changes.push_back(line.substr(0, line.find_first_of(" (")));
  };
  Tick();
  EXPECT_THAT(changes, ElementsAre("FrmFrameGraph.txtDHTML", "FrmFrameGraph.lbltotallog",
                                   "FrmFrameMain.lblno", "FrmFrameLog.lstLog"));
}

TEST_F(WelcomePanel, TheDisplaysFollowTheEngineWithinOneTickAlsoWhileStopped) {
  Click(Panel().cmdstop);
  SetNumber("Block Log", "Popup", 3);
  SetNumber("Block Log", "Flash", 20);
  Tick();
  EXPECT_EQ(Panel().lblno.Caption(), "23");
  EXPECT_EQ(program.windows.FrmFrameGraph->txtFlash.Text(), "20");
  EXPECT_THAT(Rows(), ElementsAre("Popup Windows=3", "DHTML Fly-Ins=0", "Webpage Dialog=0",
                                  "Banners=0", "Flash Ads=20"));
}

TEST_F(WelcomePanel, AnActivationRefreshesToo) {
  SetNumber("Block Log", "Popup", 3);
  Panel().Activate();
  EXPECT_EQ(Panel().lblno.Caption(), "3");
}

TEST_F(WelcomePanel, CountersOfZero) {
  Tick();
  EXPECT_EQ(Panel().lblno.Caption(), "0");
  EXPECT_EQ(program.windows.FrmFrameGraph->lbltotallog.Caption(), "Total: 0 Ads blocked.");
}

TEST_F(WelcomePanel, ABlockLogThatVanishesLeavesTheLastGoodTexts) {
  SetNumber("Block Log", "Popup", 3);
  Tick();
  world.registry.RemoveKey(HKeyCurrentUser, Tree("Block Log"));
  Tick();
  EXPECT_EQ(Panel().lblno.Caption(), "3");
  EXPECT_EQ(Rows()[0], "Popup Windows=3");
  EXPECT_THAT(process.Boxes(), IsEmpty());
}

TEST_F(WelcomePanel, ACounterOutOfRangeShowsAPlainBoxAtEveryTick) {
  SetNumber("Block Log", "BannerAds", 40000);
  Tick();
  ASSERT_EQ(process.Boxes().size(), 1U);
  EXPECT_EQ(process.Boxes()[0].text, "Overflow");
  EXPECT_EQ(process.Boxes()[0].title, "Vantrel");
  EXPECT_EQ(process.Boxes()[0].style, platform::StylePlain);
  Tick();
  EXPECT_THAT(BoxTexts(), ElementsAre("Overflow", "Overflow"));
  SetNumber("Block Log", "BannerAds", 7);
  Tick();
  EXPECT_EQ(process.Boxes().size(), 2U);
  EXPECT_EQ(Panel().lblno.Caption(), "7");
}

TEST_F(WelcomePanel, NoSecondBoxOpensWhileTheFirstIsUpAndTheProgramStaysUsable) {
  SetNumber("Block Log", "Popup", 40000);
  bool inside = false;
  process.WhileBoxIsUp = [&](const auto&) {
    inside = true;
    Panel().Timer1.Tick();
    Panel().Timer1.Tick();
    EXPECT_EQ(program.windows.FrmFrameGraph->txtPop.Text(), "40000") << "the tick still reads";
    SetNumber("Block Log", "Popup", 5);
    Panel().Timer1.Tick();
    EXPECT_EQ(Panel().lblno.Caption(), "5");
    Click(Panel().cmdstart);
    EXPECT_TRUE(program.BlockingActive);
    SetNumber("Block Log", "Popup", 40000);
  };
  AsEvent([&] { Panel().Timer1.Tick(); });
  EXPECT_TRUE(inside);
  EXPECT_EQ(process.Boxes().size(), 1U);
  process.WhileBoxIsUp = nullptr;
  Tick();
  EXPECT_EQ(process.Boxes().size(), 2U) << "the next tick tells again";
}

struct BadCounter {
  const char* Name;
  std::uint32_t Type;
  std::string Data;
  const char* Box;
};

class BadCounters : public WelcomePanel, public testing::WithParamInterface<BadCounter> {};

TEST_P(BadCounters, EndTheRefreshWithTheirErrorAndNeverTheNextTick) {
  world.registry.Set(HKeyCurrentUser, Tree("Block Log"), "DHTML", GetParam().Type, GetParam().Data);
  Tick();
  EXPECT_THAT(BoxTexts(), ElementsAre(GetParam().Box));
  SetNumber("Block Log", "DHTML", 4);
  Tick();
  EXPECT_EQ(Panel().lblno.Caption(), "4");
}

INSTANTIATE_TEST_SUITE_P(
    , BadCounters,
    testing::Values(
        BadCounter{"OtherType", platform::RegBinary, "1234", "Type mismatch"},
        BadCounter{"NoBytes", platform::RegDword, "", "Invalid procedure call or argument"},
        BadCounter{"EmptyText", platform::RegSz, std::string(1, '\0'), "Type mismatch"},
        BadCounter{"Words", platform::RegSz, "many", "Type mismatch"},
        BadCounter{"Above16Bits", platform::RegDword, std::string("\x10\x20\x11\0", 4), "Overflow"},
        BadCounter{"Above31Bits", platform::RegDword, "\xFF\xFF\xFF\xFF", "Overflow"}),
    [](const auto& info) { return info.param.Name; });

TEST_F(WelcomePanel, ABlockLogDeletedWhileATickReadsIsATypeMismatchOnce) {
  SetNumber("Block Log", "Popup", 3);
  Tick();
  for (std::size_t read = 2; read <= 6; ++read) {
    process.ClearBoxes();
    process.Faults().FailCall("RegOpenKeyExA", read, platform::ErrorFileNotFound);
    Tick();
    EXPECT_THAT(BoxTexts(), ElementsAre("Type mismatch")) << "at read " << read;
    EXPECT_EQ(Panel().lblno.Caption(), "3");
  }
  process.ClearBoxes();
  Tick();
  EXPECT_THAT(process.Boxes(), IsEmpty());
  EXPECT_EQ(Rows()[0], "Popup Windows=3");
}

TEST_F(WelcomePanel, ADeletedCounterIsATypeMismatch) {
  RemoveValue("Block Log", "DHTML");
  Tick();
  EXPECT_THAT(BoxTexts(), ElementsAre("Type mismatch"));
  EXPECT_EQ(program.windows.FrmFrameGraph->txtDHTML.Text(), "");
}

}  // namespace
}  // namespace vantrel::blocking
