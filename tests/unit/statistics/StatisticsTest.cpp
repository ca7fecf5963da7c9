// The counters from the store to the displays, their reset, and the two panels that show them.
#include <gmock/gmock.h>

#include "fileutil/FileErrors.h"
#include "statistics/Attach.h"
#include "statistics/BlockLog.h"
#include "statistics/DetailLogPanel.h"
#include "statistics/GraphPanel.h"
#include "statistics/RefreshCounters.h"
#include "support/ComponentFixture.h"
#include "windows/FrmFrameGraph.h"
#include "windows/FrmFrameLog.h"
#include "windows/FrmFrameMain.h"
#include "windows/frmMain.h"

namespace vantrel::statistics {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using text::ErrorNumber;
using text::RuntimeError;

constexpr const char* LogFile = "C:\\Program Files\\Vantrel\\Settings\\log.txt";
constexpr const char* Names[] = {"Popup", "DHTML", "WebDialog", "BannerAds", "Flash"};

class Statistics : public test::ComponentFixture {
 protected:
  Statistics() { AttachStatistics(program); }

  windows::FrmFrameGraph& Graph() { return *program.windows.FrmFrameGraph; }
  windows::FrmFrameLog& Log() { return *program.windows.FrmFrameLog; }
  windows::FrmFrameMain& Welcome() { return *program.windows.FrmFrameMain; }

  void Store(const std::vector<std::uint32_t>& counts) {
    for (std::size_t i = 0; i < counts.size(); ++i) SetNumber("Block Log", Names[i], counts[i]);
  }
  std::vector<std::string> Boxes() {
    return {Graph().txtPop.Text(), Graph().txtDHTML.Text(), Graph().txtWebD.Text(),
            Graph().txtBanner.Text(), Graph().txtFlash.Text()};
  }
  std::vector<std::string> Rows() {
    std::vector<std::string> rows;
    for (int row = 1; row <= Log().lstLog.Count(); ++row) {
      const forms::ListItem& item = Log().lstLog.Item(row);
      rows.push_back(item.Key() + ":" + item.Text() + ":" + item.Sub(1).Key + ":" +
                     item.Sub(1).Text);
    }
    return rows;
  }
  std::vector<std::string> Bars() {
    std::vector<std::string> bars;
    for (const auto& column : Graph().MSChart1.Columns()) bars.push_back(column.Data);
    return bars;
  }
  std::string Total() { return Graph().lbltotallog.Caption(); }
  std::vector<std::uint32_t> Stored() {
    std::vector<std::uint32_t> counts;
    for (const char* name : Names) counts.push_back(Number("Block Log", name).value_or(999));
    return counts;
  }
  // Both panels stand, over a store of these counts; nothing traced yet.
  void Open(const std::vector<std::uint32_t>& counts) {
    Store(counts);
    Graph();
    Log();
    process.Trace().Clear();
  }
};

TEST_F(Statistics, TheCountersReachBoxesTotalAndRows) {
  Store({1, 2, 3, 4, 5});
  RefreshCounters(program);
  EXPECT_THAT(Boxes(), ElementsAre("1", "2", "3", "4", "5"));
  EXPECT_EQ(Total(), "Total: 15 Ads blocked.");
  EXPECT_EQ(Welcome().lblno.Caption(), "15");
  EXPECT_THAT(Rows(), ElementsAre("P:Popup Windows:P1:1", "D:DHTML Fly-Ins:D1:2",
                                  "W:Webpage Dialog:W1:3", "B:Banners:B1:4", "F:Flash Ads:F1:5"));
}

TEST_F(Statistics, WithoutABlockLogEveryDisplayStays) {
  GetBlockLog(program);
  EXPECT_THAT(process.Trace().LinesOf("RegOpenKeyExA"), testing::SizeIs(1));
  EXPECT_EQ(Welcome().lblno.Caption(), "0");
  EXPECT_FALSE(program.windows.FrmFrameGraph.Loaded());
}

TEST_F(Statistics, OnlyTheFirstCounterTellsWhetherThereIsABlockLog) {
  Store({1, 2, 3, 4, 5});
  Graph();
  RemoveValue("Block Log", "Popup");
  SetNumber("Block Log", "Flash", 50);
  GetBlockLog(program);
  EXPECT_THAT(Boxes(), ElementsAre("1", "2", "3", "4", "5"));
}

TEST_F(Statistics, AReadTestsTheFirstValueAndThenReadsAllFiveInOrder) {
  Open({1, 2, 3, 4, 5});
  GetBlockLog(program);
  std::vector<std::string> names;
  for (const std::string& line : process.Trace().LinesOf("RegQueryValueExA")) {
    const auto from = line.find('"') + 1;
    names.push_back(line.substr(from, line.find('"', from) - from));
  }
  EXPECT_THAT(names, ElementsAre("Popup", "Popup", "DHTML", "WebDialog", "BannerAds", "Flash"));
}

TEST_F(Statistics, TheTotalWrapsAt16BitsWithoutAnError) {
  Store({20000, 20000, 0, 0, 0});
  GetBlockLog(program);
  EXPECT_EQ(Total(), "Total: -25536 Ads blocked.");
  EXPECT_EQ(Welcome().lblno.Caption(), "-25536");
  Store({32767, 32767, 32767, 32767, 32767});
  GetBlockLog(program);
  EXPECT_EQ(Total(), "Total: 32763 Ads blocked.");
}

TEST_F(Statistics, ACounterAbove32767FillsTheBoxesAndLeavesTheTotals) {
  Open({1, 2, 3, 4, 5});
  Store({40000, 9, 9, 9, 9});
  try {
    GetBlockLog(program);
    FAIL() << "an overflow was due";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), ErrorNumber::Overflow);
  }
  EXPECT_THAT(Boxes(), ElementsAre("40000", "9", "9", "9", "9"));
  EXPECT_EQ(Total(), "Total: 15 Ads blocked.");
  EXPECT_EQ(Welcome().lblno.Caption(), "15");
}

TEST_F(Statistics, ACounterWithALowInnerByteIsMisread) {
  Store({261, 0, 0, 0, 0});
  GetBlockLog(program);
  EXPECT_EQ(Welcome().lblno.Caption(), "21");
}

TEST_F(Statistics, AMissingCounterIsATypeMismatchAndLeavesItsBoxEmpty) {
  Open({1, 2, 3, 4, 5});
  RemoveValue("Block Log", "WebDialog");
  EXPECT_THROW(GetBlockLog(program), RuntimeError);
  EXPECT_THAT(Boxes(), ElementsAre("1", "2", "", "4", "5"));
}

TEST_F(Statistics, OnlyTheReadAtStartKeepsTheTotal) {
  Store({1, 2, 3, 4, 5});
  GetBlockLog(program);
  EXPECT_EQ(program.TotalBlocked, 0);
  ReadBlockLogAtStart(program);
  EXPECT_EQ(program.TotalBlocked, 15);
  world.registry.RemoveKey(platform::HKeyCurrentUser, Tree("Block Log"));
  ReadBlockLogAtStart(program);
  EXPECT_EQ(program.TotalBlocked, 15);
}

TEST_F(Statistics, TheFirstReadBringsBothPanelsIntoBeingHidden) {
  Store({1, 2, 3, 4, 5});
  GetBlockLog(program);
  EXPECT_TRUE(program.windows.FrmFrameGraph.Loaded());
  EXPECT_TRUE(program.windows.FrmFrameLog.Loaded());
  EXPECT_FALSE(Graph().Visible());
  EXPECT_FALSE(Log().Visible());
  EXPECT_EQ(Graph().Host(), &*program.windows.frmMain);
  EXPECT_EQ(Log().Host(), &*program.windows.frmMain);
}

TEST_F(Statistics, TheDetailLogsOwnReadWritesZerosOnlyWithoutABlockLog) {
  Open({1, 2, 3, 4, 5});
  FrmFrameLog::GetBlockLog(program);
  EXPECT_THAT(Writes(), IsEmpty());
  RemoveValue("Block Log", "Popup");
  Graph().txtPop.SetText("11");
  FrmFrameLog::GetBlockLog(program);
  EXPECT_THAT(Stored(), ElementsAre(0, 0, 0, 0, 0));
  EXPECT_THAT(Writes(), testing::SizeIs(5));
  EXPECT_EQ(Writes()[0], "Block Log \"Popup\" 4 0 0 0 0 -> 0");
  EXPECT_EQ(Writes()[4], "Block Log \"Flash\" 4 0 0 0 0 -> 0");
  EXPECT_EQ(Total(), "Total: 25 Ads blocked.") << "of the boxes, not of the zeros";
}

TEST_F(Statistics, TheDetailLogMadeFirstOverAnEmptyKeyFillsIt) {
  world.registry.MakeKey(platform::HKeyCurrentUser, Tree("Block Log"));
  Log();
  EXPECT_THAT(Stored(), ElementsAre(0, 0, 0, 0, 0));
}

// Its rows need the Graph panel, whose own refresh fills them.
TEST_F(Statistics, TheDetailLogMadeBeforeTheGraphHasItsRowsOnce) {
  Store({1, 2, 3, 4, 5});
  // Nobody has touched the Graph panel: the read finds no log just then.
  process.Faults().FailNthCall(1, platform::ErrorAccessDenied);
  Log();
  EXPECT_EQ(Log().lstLog.Count(), 5);
  EXPECT_THAT(process.Boxes(), IsEmpty());
}

TEST_F(Statistics, WithoutItsKeyTheDetailLogsOwnReadCreatesNone) {
  Log();
  EXPECT_FALSE(world.registry.HasKey(platform::HKeyCurrentUser, Tree("Block Log")));
  EXPECT_THAT(process.Boxes(), IsEmpty());
}

TEST_F(Statistics, ClearingWritesZerosOnlyWithABlockLog) {
  Open({1, 2, 3, 4, 5});
  Graph().txtPop.SetText("11");
  ClearBlockLog(program);
  EXPECT_THAT(Stored(), ElementsAre(0, 0, 0, 0, 0));
  EXPECT_EQ(Total(), "Total: 25 Ads blocked.") << "of the boxes, not of the zeros";
  RemoveValue("Block Log", "Popup");
  process.Trace().Clear();
  ClearBlockLog(program);
  EXPECT_THAT(Writes(), IsEmpty());
}

TEST_F(Statistics, ARefreshThatFailsShowsAPlainBoxAndLeavesTheRows) {
  Open({1, 2, 3, 4, 5});
  SetNumber("Block Log", "Popup", 40000);
  RefreshCounters(program);
  ASSERT_EQ(process.Boxes().size(), 1U);
  EXPECT_EQ(process.Boxes()[0].text, "Overflow");
  EXPECT_EQ(process.Boxes()[0].style, platform::StylePlain);
  EXPECT_EQ(Rows()[0], "P:Popup Windows:P1:1");
}

TEST_F(Statistics, ARefreshWhileTheErrorsBoxIsUpShowsNoSecondOne) {
  Open({1, 2, 3, 4, 5});
  SetNumber("Block Log", "Popup", 40000);
  process.WhileBoxIsUp = [this](const auto&) {
    if (process.Boxes().size() == 1) RefreshCounters(program);
  };
  RefreshCounters(program);
  EXPECT_THAT(BoxTexts(), ElementsAre("Overflow"));
  RefreshCounters(program);
  EXPECT_EQ(BoxTexts().size(), 2U) << "with the first box gone the next error is shown";
}

TEST_F(Statistics, AStoreOfBadCountersAtTheMakingShowsBoxesAndBothPanelsStand) {
  Store({40000, 0, 0, 0, 0});
  AsEvent([&] { Graph(); });
  AsEvent([&] { Log(); });
  EXPECT_TRUE(program.windows.FrmFrameGraph.Loaded());
  EXPECT_TRUE(program.windows.FrmFrameLog.Loaded());
  for (const std::string& text : BoxTexts()) EXPECT_EQ(text, "Overflow");
  EXPECT_EQ(Bars()[0], "40000");
}

TEST_F(Statistics, ARefreshSelectsTheFirstRow) {
  Open({1, 2, 3, 4, 5});
  Log().lstLog.Select(4);
  RefreshCounters(program);
  EXPECT_EQ(Log().lstLog.SelectedIndex(), 1);
}

TEST_F(Statistics, ARefreshReplacesAListThatIsNotWhole) {
  Open({1, 2, 3, 4, 5});
  Log().lstLog.Clear();
  Log().lstLog.Add("P", "Popup Windows", "");
  RefreshCounters(program);
  EXPECT_THAT(process.Boxes(), IsEmpty());
  EXPECT_THAT(Rows(), testing::SizeIs(5));
}

TEST_F(Statistics, TheChartIsDrawnOnceAtThePanelsMaking) {
  Open({1, 2, 3, 4, 5});
  EXPECT_THAT(Bars(), ElementsAre("1", "2", "3", "4", "5"));
  Store({10, 20, 30, 40, 50});
  RefreshCounters(program);
  EXPECT_THAT(Boxes(), ElementsAre("10", "20", "30", "40", "50"));
  EXPECT_EQ(Total(), "Total: 150 Ads blocked.");
  EXPECT_THAT(Bars(), ElementsAre("1", "2", "3", "4", "5"));
  Graph().Show();
  EXPECT_THAT(Bars(), ElementsAre("1", "2", "3", "4", "5"));
}

TEST_F(Statistics, TheChartHasOneRowAndItsDesignedLabels) {
  EXPECT_EQ(Graph().MSChart1.RowLabel(), "R1");
  std::vector<std::string> labels;
  for (const auto& column : Graph().MSChart1.Columns()) labels.push_back(column.Label);
  EXPECT_THAT(labels, ElementsAre("System", "GDI", "User", "C4", "C5"));
}

TEST_F(Statistics, WithoutABlockLogTheChartShowsTheDesignTexts) {
  Graph();
  EXPECT_THAT(Boxes(), ElementsAre("59", "45", "25", "66", "90"));
  EXPECT_THAT(Bars(), ElementsAre("59", "45", "25", "66", "90"));
}

TEST_F(Statistics, AnEmptyBoxMakesAnEmptyColumn) {
  Graph().txtWebD.SetText("");
  DrawBlockGraph(program);
  EXPECT_EQ(Bars()[2], "");
  EXPECT_EQ(Graph().MSChart1.Column(), 5);
}

TEST_F(Statistics, TheTwoPanelsTakeEachOthersPlace) {
  Open({1, 2, 3, 4, 5});
  std::vector<std::string> shown;
  toolkit.Trace = [&](const std::string& line) { shown.push_back(line); };
  Log().Show();
  shown.clear();
  AsEvent([&] { Log().Command11.UserClick(); });
  EXPECT_THAT(shown, ElementsAre("FrmFrameGraph Show", "FrmFrameLog Hide"));
  shown.clear();
  AsEvent([&] { Graph().Command12.UserClick(); });
  EXPECT_THAT(shown, ElementsAre("FrmFrameGraph Hide", "FrmFrameLog Show"));
}

class ResetLog : public Statistics {
 protected:
  ResetLog() { world.files.Put(LogFile, "what the engine wrote\r\n"); }
  void Reset() {
    AsEvent([&] { Log().lblResetLog.UserClick(); });
  }
};

TEST_F(ResetLog, EmptiesTheFileAndZeroesEverything) {
  Open({1, 2, 3, 4, 5});
  Reset();
  EXPECT_EQ(world.files.Read(LogFile), "\r\n");
  EXPECT_THAT(Boxes(), ElementsAre("0", "0", "0", "0", "0"));
  EXPECT_EQ(Total(), "Total: 0 Ads blocked.");
  EXPECT_EQ(Welcome().lblno.Caption(), "0");
  EXPECT_THAT(Stored(), ElementsAre(0, 0, 0, 0, 0));
  ASSERT_EQ(process.Boxes().size(), 1U);
  EXPECT_EQ(process.Boxes()[0].text, "Log cleared");
  EXPECT_EQ(process.Boxes()[0].style, platform::StyleInformation);
}

TEST_F(ResetLog, GoesInItsOrder) {
  Open({1, 2, 3, 4, 5});
  std::vector<std::string> order;
  toolkit.Trace = [&](const std::string& line) {
    order.push_back(line.substr(0, line.find('=')) +
                    (world.files.Read(LogFile) == "\r\n" ? " behind the file" : "") +
                    (Number("Block Log", "Popup") == 0U ? " behind the store" : ""));
  };
  Reset();
  const std::string graph = "FrmFrameGraph.";
  const std::string behind = " behind the file";
  EXPECT_THAT(order,
              ElementsAre(graph + "txtPop Text" + behind, graph + "txtDHTML Text" + behind,
                          graph + "txtWebD Text" + behind, graph + "txtBanner Text" + behind,
                          graph + "txtFlash Text" + behind, graph + "lbltotallog Caption" + behind,
                          "FrmFrameMain.lblno Caption" + behind));
}

TEST_F(ResetLog, LeavesTheRowsAndTheChartUntilTheNextRefresh) {
  Open({1, 2, 3, 4, 5});
  Reset();
  EXPECT_EQ(Rows()[0], "P:Popup Windows:P1:1");
  RefreshCounters(program);
  EXPECT_EQ(Rows()[0], "P:Popup Windows:P1:0");
  EXPECT_EQ(Bars()[0], "1");
}

TEST_F(ResetLog, WithoutALogFileDoesNothingAtAll) {
  world.files.Remove(LogFile);
  Open({1, 2, 3, 4, 5});
  Reset();
  EXPECT_THAT(Boxes(), ElementsAre("1", "2", "3", "4", "5"));
  EXPECT_THAT(Stored(), ElementsAre(1, 2, 3, 4, 5));
  EXPECT_THAT(process.Boxes(), IsEmpty());
  EXPECT_FALSE(world.files.IsFile(LogFile));
}

TEST_F(ResetLog, WithoutTheFirstCounterClearsTheFileAndTheBoxesOnly) {
  Open({1, 2, 3, 4, 5});
  RemoveValue("Block Log", "Popup");
  Reset();
  EXPECT_EQ(world.files.Read(LogFile), "\r\n");
  EXPECT_THAT(Boxes(), ElementsAre("0", "0", "0", "0", "0"));
  EXPECT_THAT(Writes(), IsEmpty());
  EXPECT_THAT(BoxTexts(), ElementsAre("Log cleared"));
}

TEST_F(ResetLog, WithAFirstCounterOfNoBytesEndsInItsErrorBehindTheFileAndTheBoxes) {
  Open({1, 2, 3, 4, 5});
  world.registry.Set(platform::HKeyCurrentUser, Tree("Block Log"), "Popup", platform::RegDword, "");
  Reset();
  EXPECT_THAT(BoxTexts(),
              ElementsAre("Run-time error '5':\r\n\r\nInvalid procedure call or argument"));
  EXPECT_EQ(world.files.Read(LogFile), "\r\n");
  EXPECT_THAT(Boxes(), ElementsAre("0", "0", "0", "0", "0"));
  EXPECT_EQ(Number("Block Log", "Flash"), 5U);
}

TEST_F(ResetLog, EmptiesAHugeFile) {
  world.files.Put(LogFile, std::string(1 << 22, 'x'));
  Open({1, 2, 3, 4, 5});
  Reset();
  EXPECT_EQ(world.files.Read(LogFile), "\r\n");
}

TEST_F(ResetLog, TellsItsEndOnlyWhenEverythingIsDone) {
  Open({1, 2, 3, 4, 5});
  bool told = false;
  process.WhileBoxIsUp = [&](const auto&) {
    told = true;
    EXPECT_THAT(Stored(), ElementsAre(0, 0, 0, 0, 0));
  };
  Reset();
  process.WhileBoxIsUp = nullptr;
  EXPECT_TRUE(told);
}

TEST_F(ResetLog, OfALockedOrReadOnlyFileTellsTheErrorAndLeavesTheCounters) {
  Open({1, 2, 3, 4, 5});
  world.files.SetLocked(LogFile, true);
  Reset();
  world.files.SetLocked(LogFile, false);
  world.files.SetReadOnly(LogFile, true);
  Reset();
  EXPECT_THAT(BoxTexts(), ElementsAre("Run-time error '70':\r\n\r\nPermission denied",
                                      "Run-time error '70':\r\n\r\nPermission denied"));
  EXPECT_THAT(Stored(), ElementsAre(1, 2, 3, 4, 5));
  EXPECT_THAT(Boxes(), ElementsAre("1", "2", "3", "4", "5"));
}

TEST_F(ResetLog, ViewLogHandsTheFileToTheBrowserInItsOwnSpelling) {
  AsEvent([&] { Log().Label54.UserClick(); });
  ASSERT_EQ(world.programs.Started().size(), 1U);
  EXPECT_EQ(world.programs.Started()[0].arguments,
            "\"C:\\Program Files\\Vantrel/Settings/Log.txt\"");
}

TEST_F(ResetLog, ViewLogWithoutALogFileDoesNothing) {
  world.files.Remove(LogFile);
  AsEvent([&] { Log().Label54.UserClick(); });
  EXPECT_THAT(world.programs.Started(), IsEmpty());
  EXPECT_THAT(process.Boxes(), IsEmpty());
}

TEST(FileErrors, EachCodeHasItsError) {
  EXPECT_EQ(fileutil::FileErrorNumber(2), ErrorNumber::FileNotFound);
  EXPECT_EQ(fileutil::FileErrorNumber(3), ErrorNumber::PathNotFound);
  EXPECT_EQ(fileutil::FileErrorNumber(5), ErrorNumber::PermissionDenied);
  EXPECT_EQ(fileutil::FileErrorNumber(32), ErrorNumber::PermissionDenied);
  EXPECT_EQ(fileutil::FileErrorNumber(112), ErrorNumber::DiskFull);
  EXPECT_EQ(fileutil::FileErrorNumber(19), ErrorNumber::PermissionDenied);
  EXPECT_EQ(fileutil::FileErrorNumber(21), ErrorNumber::DeviceUnavailable);
  EXPECT_EQ(fileutil::FileErrorNumber(39), ErrorNumber::DiskFull);
  EXPECT_EQ(fileutil::FileErrorNumber(123), ErrorNumber::BadFileNameOrNumber);
  EXPECT_EQ(fileutil::FileErrorNumber(206), ErrorNumber::BadFileNameOrNumber);
  EXPECT_EQ(fileutil::FileErrorNumber(31), ErrorNumber::DeviceIoError);
  EXPECT_NO_THROW(fileutil::RaiseFileError(0));
}

}  // namespace
}  // namespace vantrel::statistics
