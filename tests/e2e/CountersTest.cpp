// The counters as an engine leaves them in the registry: where they show, what too large a one
// does, and what a reset does and leaves alone.
#include <array>

#include "support/Folders.h"
#include "support/ProgramTest.h"

namespace vantrel::e2e {
namespace {

constexpr std::array<const char*, 5> Values = {"Popup", "DHTML", "WebDialog", "BannerAds", "Flash"};
constexpr std::array<const char*, 5> Boxes = {"txtPop", "txtDHTML", "txtWebD", "txtBanner",
                                              "txtFlash"};
constexpr std::array<const char*, 5> RowLabels = {"Popup Windows", "DHTML Fly-Ins",
                                                  "Webpage Dialog", "Banners", "Flash Ads"};

using Counts = std::array<std::uint32_t, 5>;

class CountersTest : public ProgramTest {
 protected:
  static void Count(const Counts& counts) {
    for (std::size_t i = 0; i < Values.size(); ++i) {
      Write(HKEY_CURRENT_USER, BlockLog, Values[i], Dword(counts[i]));
    }
  }
  static Counts Stored() {
    Counts counts{};
    for (std::size_t i = 0; i < Values.size(); ++i) counts[i] = Number(BlockLog, Values[i]);
    return counts;
  }
  static bool BoxesShow(const Running& program, const std::array<std::string, 5>& texts) {
    for (std::size_t i = 0; i < Boxes.size(); ++i) {
      if (program.TextOf(std::string("FrmFrameGraph.") + Boxes[i]) != texts[i]) return false;
    }
    return true;
  }
  static void ExpectRows(const Running& program, const std::array<std::string, 5>& texts) {
    std::vector<std::string> expected;
    for (std::size_t i = 0; i < RowLabels.size(); ++i) {
      expected.push_back(std::string(RowLabels[i]) + "|" + texts[i]);
    }
    std::vector<std::string> rows;
    WaitFor([&] {
      rows = program.RowsOf("FrmFrameLog.lstLog", 2);
      return rows == expected;
    });
    EXPECT_EQ(rows, expected);
  }
  // All displays within a tick or two.
  static void ExpectShown(const Running& program, const std::array<std::string, 5>& texts,
                          const std::string& total) {
    EXPECT_TRUE(WaitFor([&] { return BoxesShow(program, texts); }));
    EXPECT_TRUE(program.WaitForText("FrmFrameMain.lblno", total));
    EXPECT_EQ(program.TextOf("FrmFrameGraph.lbltotallog"), "Total: " + total + " Ads blocked.");
    ExpectRows(program, texts);
  }
  static void ClickReset(const Running& program) { program.MouseClick("FrmFrameLog.lblResetLog"); }
  static void ExpectBox(const Running& program, const std::string& text) {
    const auto box = program.WaitForBox();
    ASSERT_TRUE(box);
    EXPECT_EQ(box->title, "Vantrel");
    EXPECT_EQ(box->text, text);
    ASSERT_TRUE(program.Answer(*box));
  }
};

TEST_F(CountersTest, CountsFromOutsideShowEverywhereWithinATickButNotInTheChart) {
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  ExpectShown(program, {"0", "0", "0", "0", "0"}, "0");
  const std::string chart = program.TextOf("FrmFrameGraph.MSChart1");
  EXPECT_FALSE(chart.empty());
  Count({1, 20, 255, 4, 5});
  ExpectShown(program, {"1", "20", "255", "4", "5"}, "285");
  // Also while blocking is off and the window is in the tray.
  ASSERT_TRUE(program.Click("FrmFrameMain.cmdstop"));
  program.ChooseMenu("MnuHide");
  Count({2, 20, 255, 4, 5});
  ExpectShown(program, {"2", "20", "255", "4", "5"}, "286");
  EXPECT_EQ(program.TextOf("FrmFrameGraph.MSChart1"), chart);
}

TEST_F(CountersTest, TheChartKeepsTheNumbersOfTheStart) {
  Count({3, 1, 4, 1, 5});
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  const std::string chart = program.TextOf("FrmFrameGraph.MSChart1");
  EXPECT_EQ(chart, "Blocked ads by kind: 3, 1, 4, 1, 5");
  Count({9, 9, 9, 9, 9});
  program.MouseClick("frmMain.LnkGraph");
  ASSERT_TRUE(program.WaitUntilVisible("FrmFrameGraph"));
  ExpectShown(program, {"9", "9", "9", "9", "9"}, "45");
  EXPECT_EQ(program.TextOf("FrmFrameGraph.MSChart1"), chart);
}

TEST_F(CountersTest, NumbersWithASmallInnerByteAreMisreadAndTotalsWrap) {
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  Count({261, 515, 4096, 300, 0});
  ExpectShown(program, {"21", "35", "256", "300", "0"}, "612");
  Count({20000, 20000, 0, 0, 0});
  ExpectShown(program, {"20000", "20000", "0", "0", "0"}, "-25536");
}

TEST_F(CountersTest, ALogThatGoesAwayLeavesTheLastNumbers) {
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  Count({7, 6, 5, 4, 3});
  ExpectShown(program, {"7", "6", "5", "4", "3"}, "25");
  DeleteTree(HKEY_CURRENT_USER, BlockLog);
  // A whole tick later: what it changes is seen by a counter that comes back.
  Write(HKEY_CURRENT_USER, BlockLog, "DHTML", Dword(99));
  ASSERT_TRUE(program.Click("FrmFrameMain.cmdstop"));
  ExpectShown(program, {"7", "6", "5", "4", "3"}, "25");
  Count({8, 6, 5, 4, 3});
  ExpectShown(program, {"8", "6", "5", "4", "3"}, "26");
  EXPECT_EQ(program.BoxCount(), 0U);
}

TEST_F(CountersTest, ACounterOfAnotherTypeIsAnEmptyOneAndSaysSo) {
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  Write(HKEY_CURRENT_USER, BlockLog, "Flash", {REG_BINARY, "abc"});
  const auto box = program.WaitForBox();
  ASSERT_TRUE(box);
  EXPECT_EQ(box->text, "Type mismatch");
  EXPECT_EQ(program.TextOf("FrmFrameGraph.txtFlash"), "");
  Write(HKEY_CURRENT_USER, BlockLog, "Flash", Text("12"));
  ASSERT_TRUE(program.Answer(*box));
  ExpectShown(program, {"0", "0", "0", "0", "12"}, "12");
}

TEST_F(CountersTest, TheBoxOfATooLargeCounterDoesNotPileUpAndLeavesTheProgramUsable) {
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  Count({40000, 1, 1, 1, 1});
  const auto box = program.WaitForBox();
  ASSERT_TRUE(box);
  EXPECT_EQ(box->title, "Vantrel");
  EXPECT_EQ(box->text, "Overflow");
  // Ticks go on behind the box: they fill the boxes with what is stored now.
  Count({40001, 2, 2, 2, 2});
  EXPECT_TRUE(WaitFor([&] { return BoxesShow(program, {"40001", "2", "2", "2", "2"}); }));
  Count({50000, 3, 3, 3, 3});
  EXPECT_TRUE(WaitFor([&] { return BoxesShow(program, {"50000", "3", "3", "3", "3"}); }));
  EXPECT_EQ(program.BoxCount(), 1U);
  EXPECT_EQ(program.TextOf("FrmFrameMain.lblno"), "0");
  // The program answers, commands and all.
  Running sender("/graph");
  ASSERT_TRUE(sender.WaitForExit());
  EXPECT_TRUE(program.IsShown("FrmFrameGraph"));
  // Answered, it comes again with the next tick, and no more when the cause is gone.
  ASSERT_TRUE(program.Answer(*box));
  const auto again = program.WaitForBox();
  ASSERT_TRUE(again);
  EXPECT_EQ(again->text, "Overflow");
  Count({1, 2, 3, 4, 5});
  ASSERT_TRUE(program.Answer(*again));
  ExpectShown(program, {"1", "2", "3", "4", "5"}, "15");
  EXPECT_EQ(program.BoxCount(), 0U);
}

TEST_F(CountersTest, WithoutALogFileAResetDoesNothing) {
  const ProgramCopy copy("Vantrel reset");
  Running program("", copy.Executable());
  ASSERT_TRUE(program.WaitUntilIdle());
  Count({1, 2, 3, 4, 5});
  ExpectShown(program, {"1", "2", "3", "4", "5"}, "15");
  ClickReset(program);
  program.ChooseMenu("MnuStop");
  ASSERT_TRUE(WaitFor([&] { return program.IsEnabled("FrmFrameMain.cmdstart"); }));
  EXPECT_EQ(program.BoxCount(), 0U);
  EXPECT_EQ(Stored(), (Counts{1, 2, 3, 4, 5}));
  EXPECT_TRUE(BoxesShow(program, {"1", "2", "3", "4", "5"}));
}

TEST_F(CountersTest, AResetEmptiesTheLogAndTheCountersAndKeepsTheChart) {
  const ProgramCopy copy("Vantrel reset");
  WriteFileBytes(copy.LogFile(), "one\r\ntwo\r\n");
  Count({1, 2, 3, 4, 5});
  Running program("", copy.Executable());
  ASSERT_TRUE(program.WaitUntilIdle());
  ExpectShown(program, {"1", "2", "3", "4", "5"}, "15");
  const std::string chart = program.TextOf("FrmFrameGraph.MSChart1");
  program.MouseClick("frmMain.LnkLog");
  ASSERT_TRUE(program.WaitUntilVisible("FrmFrameLog"));
  ClickReset(program);
  const auto box = program.WaitForBox();
  ASSERT_TRUE(box);
  EXPECT_EQ(box->text, "Log cleared");
  EXPECT_EQ(ReadFileBytes(copy.LogFile()), "\r\n");
  EXPECT_EQ(Stored(), (Counts{0, 0, 0, 0, 0}));
  EXPECT_EQ(program.TextOf("FrmFrameMain.lblno"), "0");
  ASSERT_TRUE(program.Answer(*box));
  ExpectShown(program, {"0", "0", "0", "0", "0"}, "0");
  EXPECT_EQ(program.TextOf("FrmFrameGraph.MSChart1"), chart);
}

TEST_F(CountersTest, AResetWithoutTheFirstCounterEmptiesTheLogAlone) {
  const ProgramCopy copy("Vantrel reset");
  WriteFileBytes(copy.LogFile(), "one\r\n");
  Running program("", copy.Executable());
  ASSERT_TRUE(program.WaitUntilIdle());
  Count({1, 2, 3, 4, 5});
  ExpectShown(program, {"1", "2", "3", "4", "5"}, "15");
  DeleteValue(HKEY_CURRENT_USER, BlockLog, "Popup");
  ClickReset(program);
  ExpectBox(program, "Log cleared");
  EXPECT_EQ(ReadFileBytes(copy.LogFile()), "\r\n");
  EXPECT_EQ(Number(BlockLog, "DHTML"), 2U);
  EXPECT_EQ(Read(HKEY_CURRENT_USER, BlockLog, "Popup"), std::nullopt);
  EXPECT_TRUE(BoxesShow(program, {"0", "0", "0", "0", "0"}));
  EXPECT_EQ(program.TextOf("FrmFrameMain.lblno"), "0");
}

TEST_F(CountersTest, ALockedLogEndsTheResetInABoxBeforeAnythingIsReset) {
  const ProgramCopy copy("Vantrel reset");
  WriteFileBytes(copy.LogFile(), "one\r\n");
  Running program("", copy.Executable());
  ASSERT_TRUE(program.WaitUntilIdle());
  Count({1, 2, 3, 4, 5});
  ExpectShown(program, {"1", "2", "3", "4", "5"}, "15");
  HANDLE lock = CreateFileA(copy.LogFile().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                            FILE_ATTRIBUTE_NORMAL, nullptr);
  ASSERT_NE(lock, INVALID_HANDLE_VALUE);
  ClickReset(program);
  ExpectBox(program, "Run-time error '70':\r\n\r\nPermission denied");
  CloseHandle(lock);
  EXPECT_EQ(ReadFileBytes(copy.LogFile()), "one\r\n");
  EXPECT_EQ(Stored(), (Counts{1, 2, 3, 4, 5}));
  ExpectShown(program, {"1", "2", "3", "4", "5"}, "15");
  // Let go, it is reset after all.
  ClickReset(program);
  ExpectBox(program, "Log cleared");
  EXPECT_EQ(Stored(), (Counts{0, 0, 0, 0, 0}));
}

TEST_F(CountersTest, AReadOnlyLogIsResetExactlyIfTheSystemLetsItBeWritten) {
  const ProgramCopy copy("Vantrel reset");
  WriteFileBytes(copy.LogFile(), "one\r\n");
  Running program("", copy.Executable());
  ASSERT_TRUE(program.WaitUntilIdle());
  Count({1, 2, 3, 4, 5});
  ExpectShown(program, {"1", "2", "3", "4", "5"}, "15");
  SetFileAttributesA(copy.LogFile().c_str(), FILE_ATTRIBUTE_READONLY);
  // Wine lets root write such a file; Windows lets nobody.
  HANDLE tried = CreateFileA(copy.LogFile().c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                             FILE_ATTRIBUTE_NORMAL, nullptr);
  const bool writable = tried != INVALID_HANDLE_VALUE;
  if (writable) CloseHandle(tried);
  ClickReset(program);
  ExpectBox(program, writable ? "Log cleared" : "Run-time error '70':\r\n\r\nPermission denied");
  SetFileAttributesA(copy.LogFile().c_str(), FILE_ATTRIBUTE_NORMAL);
  EXPECT_EQ(Stored(), writable ? (Counts{0, 0, 0, 0, 0}) : (Counts{1, 2, 3, 4, 5}));
  EXPECT_EQ(ReadFileBytes(copy.LogFile()), writable ? "\r\n" : "one\r\n");
  EXPECT_TRUE(program.Answers());
}

}  // namespace
}  // namespace vantrel::e2e
