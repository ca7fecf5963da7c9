// The Customize Toolbar dialog by mouse and by keyboard, against the bytes of the two stored
// values.
#include <windows.h>

// After windows.h.
#include <commctrl.h>

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/OwnersMemory.h"
#include "support/Pointer.h"
#include "support/ProgramTest.h"

namespace vantrel::e2e {
namespace {

using Rows = std::vector<std::string>;

constexpr const char* ToolbarSettings = "Software\\Qorvel Softwares\\Toolbar Settings";
constexpr const char* List = "Toolbar Settings";
constexpr const char* Name = "Toolbar Name";
constexpr const char* WholeList = "1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19";
constexpr const char* Dialog = "frmcustom";
constexpr const char* Current = "frmcustom.lstvCurrent";
constexpr const char* NotShown = "frmcustom.lstvSet";
constexpr const char* EndOfLoad = "Some error occured while processing.";

class ToolbarTest : public ProgramTest {
 protected:
  void TearDown() override {
    program_.reset();
    ProgramTest::TearDown();
  }

  // Starts the program over a stored layout, and opens the dialog.
  void OpenOver(const StoredValue& list) {
    Write(HKEY_CURRENT_USER, ToolbarSettings, Name, Text("Mine"));
    Write(HKEY_CURRENT_USER, ToolbarSettings, List, list);
    program_.emplace();
    // No test is to go on without it.
    if (!program_->WaitUntilIdle()) throw std::runtime_error("the program did not become idle");
    Program().ChooseMenu("submnuIEToolbar");
  }
  void OpenOver(const std::string& list) {
    OpenOver(Text(list));
    ASSERT_TRUE(Program().WaitUntilVisible(Dialog));
  }
  void Reopen() const {
    Program().ChooseMenu("submnuIEToolbar");
    ASSERT_TRUE(Program().WaitUntilVisible(Dialog));
  }
  const Running& Program() const { return *program_; }

  bool IsGone() const {
    return WaitFor([&] { return Program().Find(Dialog) == nullptr; });
  }
  Rows RowsOf(const char* list) const { return Program().RowsOf(list, 1); }
  bool ShowsRows(const Rows& rows) const {
    return WaitFor([&] { return RowsOf(Current) == rows; });
  }
  int SelectedIn(const char* list) const {
    return static_cast<int>(SendMessageA(Program().Find(list), LVM_GETNEXTITEM,
                                         static_cast<WPARAM>(-1), LVNI_SELECTED)) +
           1;
  }
  RECT AreaOf(const char* list, int row) const {
    const OwnersMemory memory(Program().Process(), sizeof(RECT));
    RECT area{LVIR_LABEL, 0, 0, 0};
    memory.Write(&area, sizeof(area));
    SendMessageA(Program().Find(list), LVM_GETITEMRECT, static_cast<WPARAM>(row - 1),
                 memory.Address());
    memory.ReadInto(&area, sizeof(area));
    return area;
  }
  // The control of the program's that has the focus, by its name.
  std::string Focused() const {
    GUITHREADINFO thread{};
    thread.cbSize = sizeof(thread);
    GetGUIThreadInfo(GetWindowThreadProcessId(Program().Find("frmMain"), nullptr), &thread);
    return thread.hwndFocus == nullptr ? "" : ControlNameOf(thread.hwndFocus);
  }
  // A click of the mouse on the 1-based row.
  void ClickRow(const char* list, int row) const {
    const RECT area = AreaOf(list, row);
    const LPARAM at = MAKELPARAM(area.left + 4, (area.top + area.bottom) / 2);
    EXPECT_TRUE(PressInList(Program().Find(list), at));
    EXPECT_EQ(SelectedIn(list), row) << list;
  }
  void Click(const std::string& control) const {
    EXPECT_TRUE(Program().Click(std::string(Dialog) + '.' + control)) << control;
  }
  void Press(const std::string& control, int key) const {
    Program().PressKey(std::string(Dialog) + '.' + control, key);
  }

  // Both values are texts of exactly these bytes, and nothing else stands beside them.
  static void ExpectStored(const std::string& list, const std::string& name) {
    const Tree wanted{{"toolbar settings", Text(list)}, {"toolbar name", Text(name)}};
    EXPECT_EQ(Difference(wanted, ReadTree(HKEY_CURRENT_USER, ToolbarSettings)), "");
  }
  // The next box, also one without a text.
  std::optional<Box> NextBox() const {
    std::optional<Box> box;
    WaitFor([&] { return (box = Program().CurrentBox()).has_value(); });
    return box;
  }
  // Presses the buttons of the boxes that are to come, in this order.
  void AnswerBoxes(const Rows& texts) const {
    for (const std::string& text : texts) {
      const auto box = NextBox();
      ASSERT_TRUE(box) << text;
      EXPECT_EQ(box->text, text);
      EXPECT_EQ(box->title, "Vantrel");
      ASSERT_TRUE(Program().Answer(*box));
    }
  }
  // The load has ended in these boxes, and the dialog works on.
  void ExpectFailedLoad(const Rows& boxes, const Rows& rows) const {
    AnswerBoxes(boxes);
    ASSERT_TRUE(Program().WaitUntilVisible(Dialog));
    EXPECT_EQ(RowsOf(Current), rows);
    EXPECT_EQ(RowsOf(NotShown), Rows{});
    EXPECT_EQ(Program().TextOf("frmcustom.txttoolbarname"), "Vantrel");
    Click("cmdReset");
    EXPECT_EQ(RowsOf(Current).size(), 19U);
    EXPECT_EQ(Program().BoxCount(), 0U);
    EXPECT_TRUE(Program().Answers());
  }

 private:
  std::optional<Running> program_;
};

TEST_F(ToolbarTest, TheFirstRunsLayoutShowsAllButtons) {
  OpenOver(WholeList);
  EXPECT_EQ(
      RowsOf(Current),
      (Rows{"Home", "Seperator", "Clean", "Seperator", "Refresh", "Seperator", "Add Links",
            "Seperator", "On/Off", "Seperator", "Toolbar Settings", "Notification", "Graph",
            "IE Plugins", "IE Settings", "Seperator", "Options", "Seperator", "Help Vantrel"}));
  EXPECT_EQ(RowsOf(NotShown), Rows{});
  EXPECT_EQ(Program().TextOf(Dialog), "  Customize Toolbar - Vantrel");
  EXPECT_EQ(Program().TextOf("frmcustom.txttoolbarname"), "Vantrel");
  EXPECT_TRUE(Program().IsEnabled("frmcustom.cmdDone"));
  ExpectStored(WholeList, "Mine");
}

TEST_F(ToolbarTest, TheFocusGoesToAddAndComesBackToIt) {
  OpenOver(WholeList);
  EXPECT_TRUE(WaitFor([&] { return Focused() == "frmcustom.cmdAdd"; })) << Focused();
  SetForegroundWindow(Program().Find("frmMain"));
  ASSERT_TRUE(WaitFor([&] { return Focused().starts_with("frmMain"); })) << Focused();
  SetForegroundWindow(Program().Find(Dialog));
  EXPECT_TRUE(WaitFor([&] { return Focused() == "frmcustom.cmdAdd"; })) << Focused();
}

TEST_F(ToolbarTest, ALayoutByMouse) {
  OpenOver("3,5,9");
  ClickRow(Current, 1);
  Click("cmdMDown");
  EXPECT_TRUE(ShowsRows({"Refresh", "Clean", "On/Off"}));
  EXPECT_EQ(SelectedIn(Current), 2);
  ClickRow(Current, 3);
  Click("cmdRemove");
  EXPECT_TRUE(ShowsRows({"Refresh", "Clean"}));
  EXPECT_EQ(RowsOf(NotShown).size(), 17U);
  EXPECT_EQ(RowsOf(NotShown).back(), "On/Off");
  ClickRow(NotShown, 1);
  Click("cmdAdd");
  EXPECT_TRUE(ShowsRows({"Refresh", "Clean", "Home"}));
  ExpectStored("3,5,9", "Mine");
  Program().SetText("frmcustom.txttoolbarname", "My toolbar");
  Click("cmdDone");
  ExpectStored("5,3,1", "My toolbar");
  EXPECT_FALSE(Program().IsEnabled("frmcustom.cmdDone"));
  ClickRow(Current, 3);
  Click("cmdMUp");
  EXPECT_TRUE(Program().IsEnabled("frmcustom.cmdDone"));
  Click("Command1");
  EXPECT_TRUE(IsGone());
  ExpectStored("5,1,3", "My toolbar");
  Reopen();
  EXPECT_TRUE(ShowsRows({"Refresh", "Home", "Clean"}));
  EXPECT_EQ(Program().TextOf("frmcustom.txttoolbarname"), "Vantrel");
}

TEST_F(ToolbarTest, ALayoutByKeyboard) {
  OpenOver("3,5,9");
  Press("lstvCurrent", VK_END);
  EXPECT_TRUE(WaitFor([&] { return SelectedIn(Current) == 3; }));
  Press("cmdMUp", VK_SPACE);
  EXPECT_TRUE(ShowsRows({"Clean", "On/Off", "Refresh"}));
  Press("lstvCurrent", VK_UP);
  EXPECT_TRUE(WaitFor([&] { return SelectedIn(Current) == 1; }));
  Press("cmdRemove", VK_SPACE);
  EXPECT_TRUE(ShowsRows({"On/Off", "Refresh"}));
  Press("lstvSet", VK_END);
  EXPECT_TRUE(WaitFor([&] { return SelectedIn(NotShown) == 17; }));
  Press("cmdAdd", VK_SPACE);
  EXPECT_TRUE(ShowsRows({"On/Off", "Refresh", "Clean"}));
  Press("lstvCurrent", VK_RETURN);
  EXPECT_TRUE(IsGone());
  ExpectStored("9,5,3", "Vantrel");
  Reopen();
  Press("cmdReset", VK_SPACE);
  EXPECT_TRUE(WaitFor([&] { return RowsOf(Current).size() == 19; }));
  Press("lstvCurrent", VK_ESCAPE);
  EXPECT_TRUE(IsGone());
  ExpectStored("9,5,3", "Vantrel");
  EXPECT_EQ(Program().BoxCount(), 0U);
}

TEST_F(ToolbarTest, TheToolbarsCommandShowsTheLayoutAndASecondOneKeepsIt) {
  OpenOver("3,5,9");
  ClickRow(Current, 2);
  Click("cmdRemove");
  Running sender("/customtoolbar");
  ASSERT_TRUE(sender.WaitForExit());
  EXPECT_TRUE(Program().IsVisible(Dialog));
  EXPECT_FALSE(Program().IsVisible("frmMain"));
  EXPECT_EQ(RowsOf(Current), (Rows{"Clean", "On/Off"}));
}

TEST_F(ToolbarTest, AnEmptyToolbarIsReportedByTheNextLoad) {
  OpenOver("7");
  Click("cmdRemove");
  Click("Command1");
  EXPECT_TRUE(IsGone());
  ExpectStored("", "Vantrel");
  Program().ChooseMenu("submnuIEToolbar");
  ExpectFailedLoad({"", EndOfLoad}, {});
  Click("cmdDone");
  ExpectStored(WholeList, "Vantrel");
}

TEST_F(ToolbarTest, ANumberTwiceEndsTheLoad) {
  OpenOver(Text("5,1,5,7"));
  ExpectFailedLoad({"Key is not unique in collection", EndOfLoad}, {"Refresh", "Home"});
}

TEST_F(ToolbarTest, AHugeNumberEndsTheLoad) {
  OpenOver(Text("5,99999999999999999999,1"));
  ExpectFailedLoad({"Overflow", EndOfLoad}, {"Refresh"});
}

TEST_F(ToolbarTest, AHundredThousandNumbersAreAnEmptyList) {
  std::string list = "1";
  for (int number = 2; number <= 100000; ++number) list += ',' + std::to_string(number);
  OpenOver(Text(list));
  ExpectFailedLoad({"", EndOfLoad}, {});
}

TEST_F(ToolbarTest, AListOfBytesIsAnEmptyList) {
  OpenOver(StoredValue{REG_BINARY, "1,2,3"});
  ExpectFailedLoad({"", EndOfLoad}, {});
}

TEST_F(ToolbarTest, LettersAndNumbersThatAreNoButtonsGetRows) {
  OpenOver("abc,3,500");
  EXPECT_EQ(RowsOf(Current), (Rows{"", "Clean", "Clean"}));
  EXPECT_EQ(RowsOf(NotShown).size(), 18U);
  EXPECT_EQ(Program().BoxCount(), 0U);
  Click("Command1");
  EXPECT_TRUE(IsGone());
  ExpectStored("0,3,500", "Vantrel");
}

}  // namespace
}  // namespace vantrel::e2e
