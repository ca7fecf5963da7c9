// The real windows, driven by messages and keys as by a user and by other processes.
#include <gtest/gtest.h>
#include <windows.h>

// After windows.h.
#include <commctrl.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "ProgramPictures.h"
#include "forms/Bars.h"
#include "forms/Chart.h"
#include "forms/ComboBox.h"
#include "forms/Controls.h"
#include "forms/FileListBox.h"
#include "forms/Form.h"
#include "forms/ListView.h"
#include "forms/UserControl.h"
#include "forms/win32/Colors.h"
#include "forms/win32/Handles.h"
#include "forms/win32/Painting.h"

namespace vantrel::forms::win32 {
namespace {

struct Surface : UserControl {
  Surface(Form& form, const char* name, const Design& design) : UserControl(form, name, design) {}
  Control* Face() override { return &Text; }
  void KeyPressed() override { ++Pressed; }

  Label Text{*this, "Text", {.Caption = "Surface"}};
  int Pressed = 0;
};

// One control a kind, in a main window.
struct Everything : Form {
  explicit Everything(Toolkit& toolkit)
      : Form(toolkit, "Everything",
             {.Caption = "Everything",
              .Width = 9300,
              .Height = 6998,
              .Left = -1,
              .Frame = Border::Sizable,
              .Inside = {9000, 5830},
              .Smallest = {6000, 4500}}) {}

  Menu File{*this, "File", "&File"};
  Menu Leave{File, "Leave", "&Leave"};
  Menu Tray{*this, "Tray", "Tray", false};
  Menu Above{Tray, "Above", "Above"};
  Menu LineAbove{Tray, "LineAbove", "-"};
  Menu Between{Tray, "Between", "Between", false};
  Menu LineBelow{Tray, "LineBelow", "-"};
  Menu Below{Tray, "Below", "Below"};
  ImageList Icons{*this, "Icons", {"one", "two"}};
  Toolbar Tools{*this,
                "Tools",
                {.At = {0, 0, 9000, 500}, .Anchored = {.Right = true}},
                Icons,
                {{"First", 1}, {}, {"Last", 2}}};
  Label Head{*this,
             "Head",
             {.Caption = "Head",
              .At = {0, 500, 9000, 180},
              .Drawn = Look::Title,
              .Anchored = {.Right = true}}};
  Label Before{*this, "Before", {.Caption = "&Name:", .At = {100, 700, 900, 250}}};
  TextBox Name{*this, "Name", {.Caption = "", .At = {1100, 700, 2000, 300}}};
  CheckBox Tick{*this, "Tick", {.Caption = "&Tick", .At = {100, 1100, 1500, 250}, .Index = 3}};
  Frame Group{*this, "Group", {.Caption = "Group", .At = {100, 1400, 4000, 1200}}};
  OptionButton One{Group, "One", {.Caption = "One", .At = {100, 300, 1500, 250}}, true};
  OptionButton Two{Group, "Two", {.Caption = "Two", .At = {100, 600, 1500, 250}}};
  CommandButton Push{*this, "Push", {.Caption = "&Push", .At = {4500, 700, 1200, 350}}};
  CommandButton Hidden{
      *this, "Hidden", {.Caption = "Hidden", .At = {4500, 1100, 1200, 350}, .Visible = false}};
  Label Link{
      *this, "Link", {.Caption = "A &link", .At = {4500, 1500, 1200, 250}, .Drawn = Look::Link}};
  ComboBox Pick{
      *this, "Pick", {.At = {4500, 1900, 1500, 300}}, ComboStyle::PickOnly, {"Red", "Green"}};
  ComboBox Type{
      *this, "Type", {.At = {4500, 2300, 1500, 300}}, ComboStyle::Editable, {"Red", "Green"}};
  ListView List{*this,
                "List",
                {.At = {100, 2800, 4000, 1500}},
                {.Columns = {{"Name", 2000}, {"Value", 1500}}, .CheckBoxes = true}};
  FileListBox Files{*this, "Files", {.At = {4500, 2800, 2000, 1500}}};
  Chart Bars{*this,
             "Bars",
             {.At = {6600, 700, 2400, 2000}},
             "R1",
             {{"Pop", palette::Popups, "3"}, {"Flash", palette::Flash, "4"}}};
  ProgressBar Progress{*this, "Progress", {.At = {100, 4500, 2000, 250}}};
  Surface Own{*this, "Own", {.At = {2500, 4500, 1000, 250}}};
  StatusBar Status{
      *this,
      "Status",
      {.At = {0, 5500, 9000, 330}, .Anchored = {.Top = false, .Right = true, .Bottom = true}},
      {{StatusPanelKind::Text, "Ready", 0}, {StatusPanelKind::Date, "", 1500}}};
  Timer Clock{*this, "Clock", 10, false};
};

struct Panel : Form {
  Panel(Toolkit& toolkit, const char* name)
      : Form(toolkit, name, {.Width = 3000, .Height = 1500, .Left = 1500, .Top = 3000}) {}
  CommandButton Inside{*this, "Inside", {.Caption = "Inside", .At = {100, 100, 1200, 350}}};
};

struct Question : Form {
  explicit Question(Toolkit& toolkit)
      : Form(toolkit, "Question",
             {.Caption = "Question",
              .Width = 3000,
              .Height = 2000,
              .Left = -1,
              .Frame = Border::Dialog}) {}
  CommandButton Yes{*this, "Yes", {.Caption = "Yes", .At = {100, 100, 1200, 350}, .Default = true}};
  CommandButton No{*this, "No", {.Caption = "No", .At = {100, 600, 1200, 350}, .Cancel = true}};
};

HWND HandleOf(const Control& control) { return reinterpret_cast<HWND>(control.WindowHandle()); }
HWND HandleOf(const Form& form) { return reinterpret_cast<HWND>(form.hWnd()); }

std::string NameOf(HWND window) {
  char name[256] = "";
  const auto atom = static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(GetPropA(window, "ControlName")));
  GlobalGetAtomNameA(atom, name, sizeof name);
  return name;
}

std::string TextOf(HWND window) {
  char text[256] = "";
  SendMessageA(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
  return text;
}

void SetText(HWND window, const char* text) {
  SendMessageA(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
}

class RealWindows : public testing::Test {
 protected:
  RealWindows()
      : toolkit(MakeWin32Toolkit(tests::ProgramPictures(), [this] { return highContrast; })),
        form(*toolkit) {
    form.EnsureLoaded();
    form.Show();
    toolkit->DoEvents();
  }
  ~RealWindows() override {
    form.Unload();
    // What an ended program leaves in the queue is not for the next test.
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
    }
  }

  void Key(WPARAM key) {
    const HWND focus = GetFocus();
    PostMessageA(focus != nullptr ? focus : HandleOf(form), WM_KEYDOWN, key, 0);
    toolkit->DoEvents();
  }

  bool highContrast = false;
  std::unique_ptr<Win32Toolkit> toolkit;
  Everything form;
};

TEST_F(RealWindows, CarryTheirNames) {
  EXPECT_EQ(NameOf(HandleOf(form)), "Everything");
  EXPECT_EQ(NameOf(HandleOf(form.Push)), "Everything.Push");
  EXPECT_EQ(NameOf(HandleOf(form.Tick)), "Everything.Tick(3)");
}

TEST_F(RealWindows, LeaveNoNamesBehind) {
  const std::string name = "Everything.Push";
  form.Unload();
  EXPECT_EQ(GlobalFindAtomA(name.c_str()), 0);
}

TEST_F(RealWindows, TakeATextFromOutsideAsTheirOwn) {
  int changes = 0;
  form.Name.Change = [&] { ++changes; };
  SetText(HandleOf(form.Name), "typed");
  SetText(HandleOf(form.Push), "/clean");
  SetText(HandleOf(form.Before), "Label");
  EXPECT_EQ(form.Name.Text(), "typed");
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(form.Push.Caption(), "/clean");
  EXPECT_EQ(TextOf(HandleOf(form.Push)), "/clean");
  EXPECT_EQ(TextOf(HandleOf(form.Before)), "Label");
}

TEST_F(RealWindows, ShowWhatTheModelSays) {
  form.Name.SetText("from code");
  form.Tick.SetValue(Grayed);
  form.Two.SetValue(true);
  form.Type.SetText("Blue");
  form.Pick.SetListIndex(1);
  EXPECT_EQ(TextOf(HandleOf(form.Name)), "from code");
  EXPECT_EQ(SendMessageA(HandleOf(form.Tick), BM_GETCHECK, 0, 0), BST_INDETERMINATE);
  EXPECT_EQ(SendMessageA(HandleOf(form.One), BM_GETCHECK, 0, 0), BST_UNCHECKED);
  EXPECT_EQ(SendMessageA(HandleOf(form.Two), BM_GETCHECK, 0, 0), BST_CHECKED);
  EXPECT_EQ(TextOf(HandleOf(form.Type)), "Blue");
  EXPECT_EQ(SendMessageA(HandleOf(form.Pick), CB_GETCURSEL, 0, 0), 1);
}

TEST_F(RealWindows, KeepTheModelInStepWithStatesSetFromOutside) {
  SendMessageA(HandleOf(form.Tick), BM_SETCHECK, BST_CHECKED, 0);
  SendMessageA(HandleOf(form.Two), BM_SETCHECK, BST_CHECKED, 0);
  SendMessageA(HandleOf(form.Pick), CB_SETCURSEL, 1, 0);
  SendMessageA(HandleOf(form.Name), EM_REPLACESEL, 0, reinterpret_cast<LPARAM>("pasted"));
  EXPECT_EQ(form.Tick.Value(), Checked);
  EXPECT_TRUE(form.Two.Value());
  EXPECT_EQ(form.Pick.Text(), "Green");
  EXPECT_EQ(form.Name.Text(), "pasted");
}

TEST_F(RealWindows, ButtonsClickAtOnceEvenHidden) {
  int clicks = 0;
  form.Hidden.Click = [&] { ++clicks; };
  form.Hide();
  SendMessageA(HandleOf(form.Hidden), BM_CLICK, 0, 0);
  EXPECT_EQ(clicks, 1);
}

TEST_F(RealWindows, DisabledButtonsDoNotClick) {
  int clicks = 0;
  form.Push.Click = [&] { ++clicks; };
  form.Push.SetEnabled(false);
  SendMessageA(HandleOf(form.Push), BM_CLICK, 0, 0);
  EXPECT_EQ(clicks, 0);
}

TEST_F(RealWindows, AClickMayUnloadItsOwnWindow) {
  form.Push.Click = [&] { form.Unload(); };
  const HWND window = HandleOf(form.Push);
  SendMessageA(window, BM_CLICK, 0, 0);
  EXPECT_FALSE(form.Loaded());
  EXPECT_FALSE(IsWindow(window));
}

TEST_F(RealWindows, TheMouseMayUnloadItsOwnWindow) {
  form.Link.Click = [&] { form.Unload(); };
  const HWND window = HandleOf(form.Link);
  SendMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  SendMessageA(window, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
  EXPECT_FALSE(IsWindow(window));
}

TEST_F(RealWindows, ATickMayUnloadItsOwnWindow) {
  form.Clock.Tick = [&] { form.Unload(); };
  SendMessageA(HandleOf(form), WM_TIMER, form.Controls().size(), 0);
  EXPECT_TRUE(form.Loaded()) << "a timer that does not run does not tick";
  form.Clock.SetEnabled(true);
  SendMessageA(HandleOf(form), WM_TIMER, form.Controls().size(), 0);
  EXPECT_FALSE(form.Loaded());
}

TEST_F(RealWindows, ErrorsStopAtTheBorder) {
  int shown = 0;
  toolkit->OnUntrappedError = [&](const text::RuntimeError&) { ++shown; };
  form.Push.Click = [] { throw text::RuntimeError(text::ErrorNumber::InvalidPropertyValue); };
  SendMessageA(HandleOf(form.Push), BM_CLICK, 0, 0);
  EXPECT_EQ(shown, 1);
}

TEST_F(RealWindows, TheEndLeavesEveryLoop) {
  form.Push.Click = [&] { toolkit->End(); };
  PostMessageA(HandleOf(form.Push), BM_CLICK, 0, 0);
  toolkit->RunMessageLoop();
  EXPECT_TRUE(toolkit->Ending());
}

TEST_F(RealWindows, ALogOffUnloadsTheMainWindow) {
  int mode = -1;
  form.QueryUnload = [&](bool&, int asked) { mode = asked; };
  EXPECT_TRUE(SendMessageA(HandleOf(form), WM_QUERYENDSESSION, 0, 0));
  SendMessageA(HandleOf(form), WM_ENDSESSION, TRUE, 0);
  EXPECT_EQ(mode, UnloadBySystem);
  EXPECT_FALSE(form.Loaded());
}

TEST_F(RealWindows, TheCloseBoxAsksFirst) {
  int mode = -1;
  form.QueryUnload = [&](bool& cancel, int asked) {
    mode = asked;
    cancel = true;
  };
  SendMessageA(HandleOf(form), WM_CLOSE, 0, 0);
  EXPECT_EQ(mode, UnloadByCloseBox);
  EXPECT_TRUE(form.Loaded());
}

TEST_F(RealWindows, ANewTaskbarIsTold) {
  int told = 0;
  toolkit->TaskbarCreated = [&] { ++told; };
  SendMessageA(HandleOf(form), RegisterWindowMessageA("TaskbarCreated"), 0, 0);
  EXPECT_EQ(told, 1);
}

TEST_F(RealWindows, MenuCommandsReachTheirEntries) {
  int left = 0;
  form.Leave.Click = [&] { ++left; };
  SendMessageA(HandleOf(form), WM_COMMAND, static_cast<WPARAM>(form.Leave.Identifier()), 0);
  EXPECT_EQ(left, 1);
}

// The texts of a menu's entries in order, "-" for a line.
std::vector<std::string> EntriesOf(HMENU menu) {
  std::vector<std::string> entries;
  for (UINT at = 0; at < static_cast<UINT>(GetMenuItemCount(menu)); ++at) {
    char text[64] = "-";
    GetMenuStringA(menu, at, text, sizeof text, MF_BYPOSITION);
    const bool line = (GetMenuState(menu, at, MF_BYPOSITION) & MF_SEPARATOR) != 0;
    entries.emplace_back(line ? "-" : text);
  }
  return entries;
}

// Also two lines with nothing visible between them.
TEST_F(RealWindows, APopupShowsEveryVisibleEntryAndLine) {
  constexpr UINT AskMenu = 0x01E1;  // MN_GETHMENU
  std::vector<std::string> shown;
  int ticks = 0;
  form.Clock.Tick = [&] {
    const HWND popup = FindWindowA("#32768", nullptr);
    if (popup != nullptr && IsWindowVisible(popup) != FALSE) {
      shown = EntriesOf(reinterpret_cast<HMENU>(SendMessageA(popup, AskMenu, 0, 0)));
    }
    if (!shown.empty() || ++ticks > 500) EndMenu();
  };
  form.Clock.SetEnabled(true);
  form.PopupMenu(form.Tray);
  form.Clock.SetEnabled(false);
  EXPECT_EQ(shown, (std::vector<std::string>{"Above", "-", "-", "Below"}));
}

TEST_F(RealWindows, ToolButtonsAreToldByTheirNumber) {
  int pressed = 0;
  form.Tools.ButtonClick = [&](int index) { pressed = index; };
  SendMessageA(HandleOf(form), WM_COMMAND, 3, reinterpret_cast<LPARAM>(HandleOf(form.Tools)));
  EXPECT_EQ(pressed, 3);
}

TEST_F(RealWindows, MouseMovesReachTheWindowInTwips) {
  float x = 0;
  form.MouseMove = [&](int, int, float moved, float) { x = moved; };
  SendMessageA(HandleOf(form), WM_MOUSEMOVE, 1, 515);
  EXPECT_FLOAT_EQ(x, static_cast<float>(515 * toolkit->TwipsPerPixelX()));
  SendMessageA(HandleOf(form), WM_MOUSEMOVE, 0, MAKELPARAM(-3, 0));
  EXPECT_FLOAT_EQ(x, static_cast<float>(-3 * toolkit->TwipsPerPixelX()));
}

TEST_F(RealWindows, SizesRoundTripInTwips) {
  form.Resize = [&] {
    if (form.Width() < 9300) form.SetWidth(9300);
  };
  RECT area{};
  GetWindowRect(HandleOf(form), &area);
  SetWindowPos(HandleOf(form), nullptr, 0, 0, 100, area.bottom - area.top,
               SWP_NOMOVE | SWP_NOZORDER);
  EXPECT_EQ(form.Width(), 9300);
  EXPECT_EQ(form.Height(), 6998);
  RECT after{};
  GetWindowRect(HandleOf(form), &after);
  EXPECT_EQ(after.right - after.left, area.right - area.left);
}

// In its parent's inside.
RECT PlaceOf(const Control& control) {
  RECT area{};
  GetWindowRect(HandleOf(control), &area);
  MapWindowPoints(nullptr, GetParent(HandleOf(control)), reinterpret_cast<POINT*>(&area), 2);
  return area;
}

TEST_F(RealWindows, BarsAndTitleGoWithTheMainWindow) {
  // Back to a size that they have had before, and to the one that they were designed in.
  for (const auto& [width, height] : {std::pair{12000, 9000}, {7000, 5000}, {9300, 6998}}) {
    form.SetWidth(width);
    form.SetHeight(height);
    RECT inside{};
    GetClientRect(HandleOf(form), &inside);
    for (const Control* bar : std::initializer_list<Control*>{&form.Tools, &form.Head}) {
      EXPECT_EQ(PlaceOf(*bar).left, 0) << bar->Name();
      EXPECT_NEAR(PlaceOf(*bar).right, inside.right, 1) << bar->Name() << " at " << width;
    }
    EXPECT_NEAR(PlaceOf(form.Status).right, inside.right, 1) << width;
    EXPECT_NEAR(PlaceOf(form.Status).bottom, inside.bottom, 1) << height;
  }
}

TEST_F(RealWindows, WhatIsSizedIsPaintedWhole) {
  for (const int width : {12000, 9000}) {
    toolkit->DoEvents();
    RedrawWindow(HandleOf(form), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    form.SetWidth(width);
    for (const Control* bar :
         std::initializer_list<Control*>{&form.Tools, &form.Head, &form.Status}) {
      RECT inside{};
      RECT pending{};
      GetClientRect(HandleOf(*bar), &inside);
      GetUpdateRect(HandleOf(*bar), &pending, FALSE);
      EXPECT_TRUE(EqualRect(&pending, &inside)) << bar->Name() << " at " << width;
    }
  }
}

TEST_F(RealWindows, TheFrameStopsAtItsMinimum) {
  MINMAXINFO limits{};
  SendMessageA(HandleOf(form), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
  EXPECT_EQ(limits.ptMinTrackSize.x, std::lround(6000 / toolkit->TwipsPerPixelX()));
  EXPECT_EQ(limits.ptMinTrackSize.y, std::lround(4500 / toolkit->TwipsPerPixelX()));
  ShowWindow(HandleOf(form), SW_MAXIMIZE);
  limits = {};
  SendMessageA(HandleOf(form), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
  EXPECT_EQ(limits.ptMinTrackSize.x, 0) << "a maximized window is left alone";
}

TEST_F(RealWindows, TabVisitsEachStopOnceAndComesBack) {
  const std::vector<const Control*> expected{&form.Name,  &form.Tick, &form.One,  &form.Push,
                                             &form.Link,  &form.Pick, &form.Type, &form.List,
                                             &form.Files, &form.Own};
  SetFocus(HandleOf(form.Name));
  for (std::size_t step = 0; step < expected.size(); ++step) {
    EXPECT_EQ(toolkit->Focus(), expected[step]) << expected[step]->Name();
    Key(VK_TAB);
  }
  EXPECT_EQ(toolkit->Focus(), &form.Name);
}

TEST_F(RealWindows, ArrowsChooseWithinAGroup) {
  SetFocus(HandleOf(form.One));
  Key(VK_DOWN);
  EXPECT_TRUE(form.Two.Value());
  EXPECT_EQ(toolkit->Focus(), &form.Two);
  Key(VK_DOWN);
  EXPECT_TRUE(form.One.Value());
}

TEST_F(RealWindows, AccessKeysReachLabelsTargetsAndPress) {
  int clicks = 0;
  form.Push.Click = [&] { ++clicks; };
  SetFocus(HandleOf(form.Push));
  PostMessageA(GetFocus(), WM_SYSCHAR, 'n', 1 << 29);
  toolkit->DoEvents();
  EXPECT_EQ(toolkit->Focus(), &form.Name);
  PostMessageA(GetFocus(), WM_SYSCHAR, 'p', 1 << 29);
  toolkit->DoEvents();
  EXPECT_EQ(clicks, 1);
}

TEST_F(RealWindows, LinksAndSurfacesTakeEnterAndSpace) {
  int clicks = 0;
  form.Link.Click = [&] { ++clicks; };
  SetFocus(HandleOf(form.Link));
  Key(VK_RETURN);
  Key(VK_SPACE);
  EXPECT_EQ(clicks, 2);
  SetFocus(HandleOf(form.Own));
  Key(VK_RETURN);
  EXPECT_EQ(form.Own.Pressed, 1);
}

TEST_F(RealWindows, DisablingTheFocusedControlMovesTheFocusFirst) {
  SetFocus(HandleOf(form.Push));
  form.Push.SetEnabled(false);
  EXPECT_EQ(toolkit->Focus(), &form.Link);
  EXPECT_EQ(GetFocus(), HandleOf(form.Link));
}

TEST_F(RealWindows, AComboBoxMayKeepTheFocus) {
  form.Pick.Validate = [](bool& keepFocus) { keepFocus = true; };
  SetFocus(HandleOf(form.Pick));
  Key(VK_TAB);
  EXPECT_EQ(toolkit->Focus(), &form.Pick);
  EXPECT_EQ(GetFocus(), HandleOf(form.Pick));
}

TEST_F(RealWindows, AUserControlShowsItsFace) {
  EXPECT_EQ(TextOf(HandleOf(form.Own)), "Surface");
  form.Own.Text.SetCaption("Changed");
  EXPECT_EQ(TextOf(HandleOf(form.Own)), "Changed");
  int clicks = 0;
  form.Own.Text.Click = [&] { ++clicks; };
  SendMessageA(HandleOf(form.Own), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  SendMessageA(HandleOf(form.Own), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
  EXPECT_EQ(clicks, 1);
}

TEST_F(RealWindows, AChartSaysItsColumns) {
  form.Bars.SetColumn(2);
  form.Bars.SetData("12");
  EXPECT_EQ(TextOf(HandleOf(form.Bars)), "3, 12");
  SetText(HandleOf(form.Bars), "Ads");
  EXPECT_EQ(form.Bars.WindowText(), "Ads");
  EXPECT_EQ(TextOf(HandleOf(form.Bars)), "Ads: 3, 12");
}

TEST_F(RealWindows, AProgressSetFromOutsideIsTheModels) {
  const HWND bar = HandleOf(form.Progress);
  EXPECT_EQ(SendMessageA(bar, PBM_SETPOS, 40, 0), 0);
  EXPECT_EQ(form.Progress.Value(), 40);
  EXPECT_EQ(SendMessageA(bar, PBM_SETPOS, 400, 0), 40);
  EXPECT_EQ(form.Progress.Value(), 100);
  EXPECT_EQ(SendMessageA(bar, PBM_GETPOS, 0, 0), 100);
}

TEST_F(RealWindows, AnEntryChosenByItsTextIsTheModels) {
  int chosen = 0;
  form.Pick.Click = [&] { ++chosen; };
  const HWND pick = HandleOf(form.Pick);
  const auto select = [&](const char* text) {
    return SendMessageA(pick, CB_SELECTSTRING, static_cast<WPARAM>(-1),
                        reinterpret_cast<LPARAM>(text));
  };
  EXPECT_EQ(select("Gre"), 1);
  EXPECT_EQ(form.Pick.ListIndex(), 1);
  EXPECT_EQ(SendMessageA(pick, CB_GETCURSEL, 0, 0), 1);
  EXPECT_EQ(chosen, 1);
  EXPECT_EQ(select("Blue"), CB_ERR);
  EXPECT_EQ(select(nullptr), CB_ERR);
  EXPECT_EQ(form.Pick.ListIndex(), 1);
}

TEST_F(RealWindows, AListsRowsAreNotTakenFromOutside) {
  form.List.Add("one", "One", "");
  const HWND list = HandleOf(form.List);
  ASSERT_EQ(SendMessageA(list, LVM_GETITEMCOUNT, 0, 0), 1);
  SendMessageA(list, LVM_DELETEALLITEMS, 0, 0);
  SendMessageA(list, LVM_DELETEITEM, 0, 0);
  SendMessageA(list, LVM_SETITEMCOUNT, 7, 0);
  EXPECT_EQ(SendMessageA(list, LVM_GETITEMCOUNT, 0, 0), 1);
}

TEST_F(RealWindows, CheckMarksAreDrawnAnewInANewScheme) {
  const HWND list = HandleOf(form.List);
  const LRESULT before = SendMessageA(list, LVM_GETIMAGELIST, LVSIL_STATE, 0);
  EXPECT_NE(before, 0);
  SendMessageA(list, WM_SYSCOLORCHANGE, 0, 0);
  const LRESULT after = SendMessageA(list, LVM_GETIMAGELIST, LVSIL_STATE, 0);
  EXPECT_NE(after, 0);
  EXPECT_NE(after, before);
}

TEST_F(RealWindows, TheFirstColumnTakesTheRoomThatTheOthersLeave) {
  const HWND list = HandleOf(form.List);
  RECT inside{};
  GetClientRect(list, &inside);
  const auto width = [&](WPARAM column) {
    return SendMessageA(list, LVM_GETCOLUMNWIDTH, column, 0);
  };
  EXPECT_EQ(width(1), std::lround(1500 / toolkit->TwipsPerPixelX()));
  EXPECT_EQ(width(0) + width(1), inside.right);
}

std::string StatusPart(HWND bar, int part) {
  char text[100] = "";
  SendMessageA(bar, SB_GETTEXTA, static_cast<WPARAM>(part), reinterpret_cast<LPARAM>(text));
  return text;
}

TEST_F(RealWindows, TheStatusBarTellsTheDateInTheUsersForm) {
  SYSTEMTIME now{};
  char date[100] = "";
  GetLocalTime(&now);
  GetDateFormatA(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &now, nullptr, date, sizeof date);
  EXPECT_EQ(StatusPart(HandleOf(form.Status), 0), "Ready");
  EXPECT_EQ(StatusPart(HandleOf(form.Status), 1), date);
}

TEST_F(RealWindows, ToolButtonsBearTheirTipsAsTexts) {
  const HWND bar = HandleOf(form.Tools);
  TBBUTTON button{};
  ASSERT_TRUE(SendMessageA(bar, TB_GETBUTTON, 0, reinterpret_cast<LPARAM>(&button)));
  char text[100] = "";
  SendMessageA(bar, TB_GETBUTTONTEXTA, static_cast<WPARAM>(button.idCommand),
               reinterpret_cast<LPARAM>(text));
  EXPECT_STREQ(text, "First");
}

TEST_F(RealWindows, AListShowsItsRowsToWhoeverLooks) {
  for (int row = 1; row <= 10'000; ++row) {
    form.List.Add("k" + std::to_string(row), "Row " + std::to_string(row), "");
  }
  const HWND list = HandleOf(form.List);
  EXPECT_EQ(SendMessageA(list, LVM_GETITEMCOUNT, 0, 0), 10'000);
  char text[40] = "";
  LVITEMA item{};
  item.pszText = text;
  item.cchTextMax = sizeof text;
  SendMessageA(list, LVM_GETITEMTEXTA, 7, reinterpret_cast<LPARAM>(&item));
  EXPECT_STREQ(text, "Row 8");
  EXPECT_EQ(SendMessageA(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED), 0);
}

TEST_F(RealWindows, ARowOfAListHasATipOfItsOwn) {
  form.List.Add("a", "First", "");
  form.List.Add("b", "Second", "").SetToolTipText("C:\\b.dll");
  const HWND list = HandleOf(form.List);
  const auto tipOf = [list](int row) {
    char text[8] = "none";
    NMLVGETINFOTIPA asked{};
    asked.hdr = {list, static_cast<UINT_PTR>(GetDlgCtrlID(list)), LVN_GETINFOTIPA};
    asked.iItem = row;
    asked.pszText = text;
    asked.cchTextMax = sizeof text;
    SendMessageA(GetParent(list), WM_NOTIFY, asked.hdr.idFrom, reinterpret_cast<LPARAM>(&asked));
    return std::string(text);
  };
  EXPECT_EQ(tipOf(0), "none");
  EXPECT_EQ(tipOf(1), "C:\\b.dl");  // as far as there is room
  EXPECT_EQ(tipOf(2), "none");
  EXPECT_EQ(tipOf(-1), "none");
}

TEST_F(RealWindows, AListIsCheckedAndSelectedFromOutside) {
  form.List.Add("a", "First", "");
  form.List.Add("b", "Second", "");
  LVITEMA item{};
  item.stateMask = LVIS_STATEIMAGEMASK;
  item.state = INDEXTOSTATEIMAGEMASK(2);
  SendMessageA(HandleOf(form.List), LVM_SETITEMSTATE, 1, reinterpret_cast<LPARAM>(&item));
  EXPECT_TRUE(form.List.Item(2).Checked());
  EXPECT_EQ(SendMessageA(HandleOf(form.List), LVM_GETITEMSTATE, 1, LVIS_STATEIMAGEMASK),
            static_cast<LRESULT>(INDEXTOSTATEIMAGEMASK(2)));
  item.stateMask = LVIS_SELECTED;
  item.state = LVIS_SELECTED;
  SendMessageA(HandleOf(form.List), LVM_SETITEMSTATE, 1, reinterpret_cast<LPARAM>(&item));
  EXPECT_EQ(form.List.SelectedIndex(), 2);
}

TEST_F(RealWindows, ARebuildOfTheSameRowsPaintsNothing) {
  const auto fill = [&] {
    form.List.Clear();
    form.List.Add("a", "First", "").AddSubItem("", "1");
    form.List.Add("b", "Second", "").AddSubItem("", "2");
  };
  fill();
  toolkit->DoEvents();
  UpdateWindow(HandleOf(form.List));
  fill();
  SendMessageA(HandleOf(form.List), LVM_GETITEMCOUNT, 0, 0);
  EXPECT_FALSE(GetUpdateRect(HandleOf(form.List), nullptr, FALSE));
  form.List.Item(2).SetSubText(1, "3");
  SendMessageA(HandleOf(form.List), LVM_GETITEMCOUNT, 0, 0);
  EXPECT_TRUE(GetUpdateRect(HandleOf(form.List), nullptr, FALSE));
}

// Whether a new window is one that a taskbar hears of.
std::vector<HWND> madeOnTheDesktop;
LRESULT CALLBACK NoteTopLevel(int code, WPARAM window, LPARAM creation) {
  if (code == HCBT_CREATEWND) {
    const auto& shape = *reinterpret_cast<CBT_CREATEWNDA*>(creation)->lpcs;
    const bool hasParent = shape.hwndParent != nullptr && (shape.style & WS_CHILD) != 0;
    if (!hasParent) madeOnTheDesktop.push_back(reinterpret_cast<HWND>(window));
  }
  return CallNextHookEx(nullptr, code, window, creation);
}

// A taskbar takes note of every window that is made on the desktop, and keeps it when it becomes a
// child.
TEST_F(RealWindows, PanelsAreNeverOnTheDesktop) {
  madeOnTheDesktop.clear();
  const HHOOK hook = SetWindowsHookExA(WH_CBT, NoteTopLevel, nullptr, GetCurrentThreadId());
  ASSERT_NE(hook, nullptr);
  Panel panel(*toolkit, "Hosted");
  panel.EnsureLoaded();
  EXPECT_NE(GetAncestor(HandleOf(panel), GA_PARENT), GetDesktopWindow());
  SetParent(HandleOf(panel), HandleOf(form));
  panel.SetHost(&form);
  panel.Show();
  UnhookWindowsHookEx(hook);
  EXPECT_TRUE(madeOnTheDesktop.empty());
  EXPECT_TRUE(IsWindowVisible(HandleOf(panel)));
  panel.Unload();
}

std::vector<COLORREF> Painted(HWND window) {
  RECT area{};
  GetClientRect(window, &area);
  const HDC screen = GetDC(nullptr);
  const HDC context = CreateCompatibleDC(screen);
  const HBITMAP picture = CreateCompatibleBitmap(screen, area.right, area.bottom);
  ReleaseDC(nullptr, screen);
  const HGDIOBJ before = SelectObject(context, picture);
  SendMessageA(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(context), PRF_CLIENT);
  std::vector<COLORREF> pixels;
  for (int y = 0; y < area.bottom; ++y) {
    for (int x = 0; x < area.right; ++x) pixels.push_back(GetPixel(context, x, y));
  }
  SelectObject(context, before);
  DeleteObject(picture);
  DeleteDC(context);
  return pixels;
}

// The 1-based rows of a list that are painted in the colour of what is highlighted.
std::vector<int> HighlightedRows(HWND list, int count) {
  const std::vector<COLORREF> pixels = Painted(list);
  RECT inside{};
  GetClientRect(list, &inside);
  const COLORREF highlight = Colors([] { return false; }).Of(palette::Highlight);
  std::vector<int> rows;
  for (int row = 1; row <= count; ++row) {
    RECT area{LVIR_LABEL, 0, 0, 0};
    SendMessageA(list, LVM_GETITEMRECT, static_cast<WPARAM>(row - 1),
                 reinterpret_cast<LPARAM>(&area));
    const auto line = pixels.begin() + (area.top + area.bottom) / 2 * inside.right;
    const auto painted = std::count(line + area.left, line + area.right, highlight);
    if (painted > (area.right - area.left) / 2) rows.push_back(row);
  }
  return rows;
}

// The selected row's own colours are pale while the list has no focus.
TEST_F(RealWindows, TheHighlightedRowOfAListShowsWithoutTheFocus) {
  for (const char* text : {"First", "Second", "Third"}) form.List.Add(text, text, "");
  form.Name.SetFocus();
  const HWND list = HandleOf(form.List);
  EXPECT_EQ(HighlightedRows(list, 3), std::vector<int>());
  for (const int row : {2, 3, 1}) {
    form.List.SetDropHighlight(row);
    EXPECT_EQ(HighlightedRows(list, 3), std::vector<int>{row});
    form.List.Select(row);
    EXPECT_EQ(HighlightedRows(list, 3), std::vector<int>{row});
  }
  form.List.SetDropHighlight(0);
  EXPECT_EQ(HighlightedRows(list, 3), std::vector<int>());
}

TEST_F(RealWindows, BlanksBehindAnOptionsTextAreNotMarked) {
  form.One.SetFocus();
  const std::vector<COLORREF> without = Painted(HandleOf(form.One));
  form.One.SetCaption("One   ");
  EXPECT_EQ(Painted(HandleOf(form.One)), without);
  EXPECT_EQ(TextOf(HandleOf(form.One)), "One   ");
}

class Hosted : public RealWindows {
 protected:
  Hosted() : lower(*toolkit, "Lower"), upper(*toolkit, "Upper") {
    for (Panel* panel : {&lower, &upper}) {
      panel->EnsureLoaded();
      SetParent(HandleOf(*panel), HandleOf(form));
      panel->SetHost(&form);
      panel->Show();
    }
  }
  ~Hosted() override {
    upper.Unload();
    lower.Unload();
  }

  Panel lower;
  Panel upper;
};

TEST_F(Hosted, PanelsAreChildrenAtTheirPlace) {
  EXPECT_EQ(GetParent(HandleOf(upper)), HandleOf(form));
  EXPECT_TRUE(IsChild(HandleOf(form), HandleOf(upper)));
  RECT area{};
  GetWindowRect(HandleOf(upper), &area);
  MapWindowPoints(nullptr, HandleOf(form), reinterpret_cast<POINT*>(&area), 2);
  EXPECT_EQ(area.left, static_cast<LONG>(1500 / toolkit->TwipsPerPixelX()));
  EXPECT_EQ(area.top, static_cast<LONG>(3000 / toolkit->TwipsPerPixelX()));
}

TEST_F(Hosted, LaterPanelsLieAbove) {
  EXPECT_EQ(GetTopWindow(HandleOf(form)), HandleOf(upper));
  EXPECT_EQ(GetWindow(HandleOf(upper), GW_HWNDNEXT), HandleOf(lower));
}

TEST_F(Hosted, APanelShownAgainStaysWhereItLay) {
  lower.Hide();
  lower.Show();
  EXPECT_EQ(GetTopWindow(HandleOf(form)), HandleOf(upper));
  EXPECT_EQ(GetWindow(HandleOf(upper), GW_HWNDNEXT), HandleOf(lower));
}

TEST_F(Hosted, TabGoesThroughTheUpperPanelOnly) {
  SetFocus(HandleOf(form.Own));
  Key(VK_TAB);
  EXPECT_EQ(toolkit->Focus(), &upper.Inside);
  Key(VK_TAB);
  EXPECT_EQ(toolkit->Focus(), &form.Name);
}

TEST_F(Hosted, AHiddenPanelGivesTheFocusBack) {
  SetFocus(HandleOf(upper.Inside));
  upper.Hide();
  EXPECT_TRUE(GetFocus() != nullptr && !IsChild(HandleOf(upper), GetFocus()));
}

struct PanelWithAList : Panel {
  using Panel::Panel;
  ComboBox Pick{*this, "Pick", {.At = {100, 600, 1500, 300}}, ComboStyle::PickOnly, {"Red"}};
};

TEST_F(Hosted, APanelThatIsHiddenWithTheFocusInItsListAsksNobody) {
  PanelWithAList panel(*toolkit, "Listing");
  panel.EnsureLoaded();
  SetParent(HandleOf(panel), HandleOf(form));
  panel.SetHost(&form);
  panel.Show();
  int asked = 0;
  panel.Pick.Validate = [&](bool&) { ++asked; };
  SetFocus(HandleOf(panel.Pick));
  ASSERT_EQ(toolkit->Focus(), &panel.Pick);
  panel.Hide();
  EXPECT_EQ(asked, 0);
  EXPECT_EQ(toolkit->Focus(), &form.Name);
  EXPECT_EQ(GetFocus(), HandleOf(form.Name));
  panel.Unload();
}

TEST_F(RealWindows, AModalDialogDisablesTheOthersAndAnswersToItsKeys) {
  Question question(*toolkit);
  int yes = 0;
  bool othersEnabled = true;
  question.Yes.Click = [&] { ++yes; };
  question.No.Click = [&] {
    othersEnabled = IsWindowEnabled(HandleOf(form)) != FALSE;
    question.Unload();
  };
  question.Activate = [&] {
    PostMessageA(HandleOf(question.Yes), WM_KEYDOWN, VK_RETURN, 0);
    PostMessageA(HandleOf(question.Yes), WM_KEYDOWN, VK_ESCAPE, 0);
  };
  question.ShowModal();
  EXPECT_EQ(yes, 1);
  EXPECT_FALSE(othersEnabled);
  EXPECT_TRUE(IsWindowEnabled(HandleOf(form)));
}

TEST_F(RealWindows, APressThatLostTheMouseIsNoClickOfALink) {
  int clicks = 0;
  form.Link.Click = [&] { ++clicks; };
  const HWND link = HandleOf(form.Link);
  SendMessageA(link, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
  ReleaseCapture();
  SendMessageA(link, WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
  SendMessageA(link, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
  SendMessageA(link, WM_LBUTTONUP, 0, MAKELPARAM(-3, 3));
  EXPECT_EQ(clicks, 0);
  SendMessageA(link, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
  SendMessageA(link, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(4, 4));
  SendMessageA(link, WM_LBUTTONUP, 0, MAKELPARAM(4, 4));
  EXPECT_EQ(clicks, 1);
}

// The second of two quick presses comes as a double-click.
TEST_F(RealWindows, EveryQuickPressCounts) {
  int clicks = 0;
  form.List.Add("a", "A", "");
  form.List.Click = [&] { ++clicks; };
  form.Tools.ButtonClick = [&](int) { ++clicks; };
  form.Own.Text.Click = [&] { ++clicks; };
  form.Two.Click = [&] {
    ++clicks;
    form.Two.SetValue(false);
  };
  for (Control* control : {static_cast<Control*>(&form.Push), static_cast<Control*>(&form.Tick),
                           static_cast<Control*>(&form.Link)}) {
    control->Click = [&] { ++clicks; };
  }
  RECT tool{};
  SendMessageA(HandleOf(form.Tools), TB_GETITEMRECT, 2, reinterpret_cast<LPARAM>(&tool));
  constexpr POINT Inside{10, 5};     // pixels
  constexpr POINT FirstRow{40, 30};  // below the header
  for (const auto& [control, point] :
       {std::pair<Control*, POINT>{&form.Push, Inside},
        std::pair<Control*, POINT>{&form.Tick, Inside},
        std::pair<Control*, POINT>{&form.Two, Inside},
        std::pair<Control*, POINT>{&form.Link, Inside},
        std::pair<Control*, POINT>{&form.Own, Inside},
        std::pair<Control*, POINT>{&form.Tools, {tool.left + 5, tool.top + 5}},
        std::pair<Control*, POINT>{&form.List, FirstRow}}) {
    clicks = 0;
    const LPARAM place = MAKELPARAM(point.x, point.y);
    for (const UINT press : {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK, WM_LBUTTONDOWN, WM_LBUTTONDBLCLK}) {
      PostMessageA(HandleOf(*control), press, MK_LBUTTON, place);
      PostMessageA(HandleOf(*control), WM_LBUTTONUP, 0, place);
      toolkit->DoEvents();
    }
    EXPECT_EQ(clicks, 4) << control->Name();
  }
  EXPECT_EQ(form.Tick.Value(), Unchecked);
}

// A box takes the focus and gives it back to what was pressed, here by the window's own way; the
// release comes while it is up.
TEST_F(RealWindows, APressThatBringsUpABoxOfWhatItLeavesIsAClickBehindIt) {
  for (Control* control : {static_cast<Control*>(&form.Tick), static_cast<Control*>(&form.Push),
                           static_cast<Control*>(&form.Link)}) {
    int asked = 0;
    int clicks = 0;
    control->Click = [&] { ++clicks; };
    form.Pick.SetFocus();
    form.Pick.Validate = [&](bool&) {
      ++asked;
      SendMessageA(HandleOf(form), WM_ACTIVATE, WA_INACTIVE, 0);
      SetFocus(nullptr);
      toolkit->DoEvents();
      SetFocus(HandleOf(form));
    };
    PostMessageA(HandleOf(*control), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    PostMessageA(HandleOf(*control), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    MSG message;
    ASSERT_TRUE(PeekMessageA(&message, HandleOf(*control), WM_LBUTTONDOWN, WM_LBUTTONDOWN, 1));
    // What the box receives is of a later moment than the press.
    const DWORD pressed = GetTickCount();
    while (GetTickCount() == pressed) {
    }
    PostMessageA(HandleOf(form), WM_NULL, 0, 0);
    DispatchMessageA(&message);
    toolkit->DoEvents();
    EXPECT_EQ(asked, 1) << control->Name();
    EXPECT_EQ(clicks, 1) << control->Name();
    EXPECT_EQ(GetFocus(), HandleOf(*control));
    EXPECT_EQ(toolkit->Focus(), control);
    EXPECT_EQ(GetCapture(), nullptr);
    form.Pick.Validate = nullptr;
  }
}

TEST_F(RealWindows, APressThatTheFocusIsRefusedToIsNoClick) {
  int clicks = 0;
  form.Push.Click = [&] { ++clicks; };
  form.Link.Click = form.Push.Click;
  form.Pick.SetFocus();
  form.Pick.Validate = [](bool& keep) { keep = true; };
  for (Control* control : {static_cast<Control*>(&form.Push), static_cast<Control*>(&form.Link)}) {
    SendMessageA(HandleOf(*control), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    SendMessageA(HandleOf(*control), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
  }
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(GetFocus(), HandleOf(form.Pick));
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(RealWindows, AControlThatDoesNotTakeTheFocusLeavesItWhereItWas) {
  form.Pick.SetFocus();
  form.Pick.SetListIndex(0);
  form.Pick.Validate = [](bool& keep) { keep = true; };
  const HWND before = GetFocus();
  SetFocus(HandleOf(form.Name));
  EXPECT_EQ(GetFocus(), before);
  EXPECT_EQ(toolkit->Focus(), &form.Pick);
  // Nor does it go on as if it had it.
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  ASSERT_TRUE(GetGUIThreadInfo(GetCurrentThreadId(), &info));
  EXPECT_NE(info.hwndCaret, HandleOf(form.Name));
}

// A window that erases its ground before it paints shows that ground for a moment.
TEST_F(RealWindows, OwnWindowsEraseNothing) {
  const HDC screen = GetDC(nullptr);
  const HDC context = CreateCompatibleDC(screen);
  const HBITMAP picture = CreateCompatibleBitmap(screen, 50, 50);
  ReleaseDC(nullptr, screen);
  const HGDIOBJ before = SelectObject(context, picture);
  for (const HWND window : {HandleOf(form), HandleOf(form.Link), HandleOf(form.Group),
                            HandleOf(form.Bars), HandleOf(form.Own)}) {
    PatBlt(context, 0, 0, 50, 50, WHITENESS);
    EXPECT_NE(SendMessageA(window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(context), 0), 0)
        << NameOf(window);
    EXPECT_EQ(GetPixel(context, 5, 5), RGB(255, 255, 255)) << NameOf(window);
  }
  SelectObject(context, before);
  DeleteObject(picture);
  DeleteDC(context);
}

TEST_F(RealWindows, ADialogIsAsLargeInsideAsItIsDesigned) {
  Question question(*toolkit);
  question.Show();
  RECT inside{};
  GetClientRect(HandleOf(question), &inside);
  EXPECT_EQ(inside.right, std::lround(3000 / toolkit->TwipsPerPixelX()));
  EXPECT_EQ(inside.bottom, std::lround(2000 / toolkit->TwipsPerPixelX()));
  EXPECT_EQ(question.Width(), 3000);
  question.SetWidth(4500);
  GetClientRect(HandleOf(question), &inside);
  EXPECT_EQ(inside.right, std::lround(4500 / toolkit->TwipsPerPixelX()));
  question.Unload();
}

TEST_F(RealWindows, AControlOfAHiddenWindowIsThereWhenItsHandleIsAskedFor) {
  Question hidden(*toolkit);
  hidden.EnsureLoaded();
  EXPECT_EQ(FindWindowExA(HandleOf(hidden), nullptr, "Button", "Yes"), nullptr);
  const HWND yes = HandleOf(hidden.Yes);
  EXPECT_NE(yes, nullptr);
  EXPECT_EQ(FindWindowExA(HandleOf(hidden), nullptr, "Button", "Yes"), yes);
  hidden.Unload();
}

// Windows changes the colours first and reports it then; what is painted between is of one scheme.
TEST(SchemeColors, StayAsTheyWereUntilTheProgramIsTold) {
  Colors colors([] { return false; });
  const int index = COLOR_WINDOWTEXT;
  const COLORREF before = GetSysColor(index);
  const COLORREF other = before ^ 0xFFFFFFU;
  ASSERT_TRUE(SetSysColors(1, &index, &other));
  ASSERT_EQ(GetSysColor(index), other);
  EXPECT_EQ(colors.Of(palette::WindowText), before);
  colors.Refresh();
  EXPECT_EQ(colors.Of(palette::WindowText), other);
  ASSERT_TRUE(SetSysColors(1, &index, &before));
  colors.Refresh();
  EXPECT_EQ(colors.Of(palette::WindowText), before);
}

// The low half of a handle is its place among all objects: behind so many new ones no gap is left,
// and the last place grows with every object that was not freed.
unsigned LastPlace() {
  std::vector<HBRUSH> brushes(512);
  unsigned last = 0;
  for (HBRUSH& brush : brushes) {
    brush = CreateSolidBrush(RGB(1, 2, 3));
    last = std::max(last, static_cast<unsigned>(reinterpret_cast<ULONG_PTR>(brush) & 0xFFFFU));
  }
  for (const HBRUSH brush : brushes) DeleteObject(brush);
  return last;
}

TEST_F(RealWindows, NothingIsLeftOfAWindowThatWasUnloaded) {
  const auto cycle = [&] {
    Question question(*toolkit);
    question.Show();
    toolkit->DoEvents();
    question.Unload();
  };
  cycle();
  const unsigned before = LastPlace();
  for (int count = 0; count < 12; ++count) cycle();
  EXPECT_LE(LastPlace(), before + 6);
}

constexpr UINT DpiChanged = 0x02E0;  // WM_DPICHANGED

class ChangesOfScreen : public RealWindows {
 protected:
  void SetDpi(int dpi) {
    SendMessageA(HandleOf(form), DpiChanged, static_cast<WPARAM>(MAKELONG(dpi, dpi)), 0);
  }
  // A timer has no window at all.
  bool GoesWithTheInside(const Control& control) const {
    return control.Anchored() != Anchors{} || control.Peer() == nullptr ||
           HandleOf(control) == nullptr;
  }
  // Where every control lies in its parent, but for those that go with the window's inside: the
  // frame around that is the desktop's.
  std::vector<std::string> Places() const {
    std::vector<std::string> places;
    for (const Control* control : form.Controls()) {
      if (GoesWithTheInside(*control)) continue;
      const RECT area = PlaceOf(*control);
      places.push_back(control->Name() + ": " + std::to_string(area.left) + ", " +
                       std::to_string(area.top) + " to " + std::to_string(area.right) + ", " +
                       std::to_string(area.bottom));
    }
    return places;
  }
  LOGFONTA FontOf(const Control& control) const {
    LOGFONTA font{};
    const LRESULT handle = SendMessageA(HandleOf(control), WM_GETFONT, 0, 0);
    EXPECT_NE(GetObjectA(reinterpret_cast<HGDIOBJ>(handle), sizeof font, &font), 0)
        << control.Name();
    return font;
  }
  static RECT WorkArea() {
    RECT area{};
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &area, 0);
    return area;
  }
  static bool LiesWithin(const RECT& area, const RECT& around) {
    RECT common{};
    return IntersectRect(&common, &area, &around) && EqualRect(&common, &area);
  }
  RECT OnScreen() const {
    RECT area{};
    GetWindowRect(HandleOf(form), &area);
    return area;
  }
  COLORREF Ground() const {
    const WindowContext context(HandleOf(form));
    RedrawWindow(HandleOf(form), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    return GetPixel(context.Get(), 5, ClientArea(HandleOf(form)).bottom - 60);
  }
};

TEST_F(ChangesOfScreen, ANewResolutionScalesPlacesAndFonts) {
  const std::vector<std::string> before = Places();
  const RECT push = PlaceOf(form.Push);
  const RECT main = OnScreen();
  const LONG height = FontOf(form.Push).lfHeight;
  SetDpi(144);
  EXPECT_DOUBLE_EQ(toolkit->TwipsPerPixelX(), 10);
  EXPECT_EQ(OnScreen().right - OnScreen().left, MulDiv(main.right - main.left, 3, 2));
  EXPECT_EQ(form.Width(), 9300);
  EXPECT_EQ(PlaceOf(form.Push).left, MulDiv(push.left, 3, 2));
  EXPECT_EQ(PlaceOf(form.Push).right, MulDiv(push.right, 3, 2));
  EXPECT_NEAR(FontOf(form.Push).lfHeight, height * 1.5, 1);
  SetDpi(96);
  EXPECT_EQ(Places(), before);
  EXPECT_EQ(FontOf(form.Push).lfHeight, height);
  EXPECT_EQ(OnScreen().right - OnScreen().left, main.right - main.left);
}

TEST_F(ChangesOfScreen, AWindowMadeLaterIsAsOneThatHasFollowed) {
  SetDpi(144);
  const std::vector<std::string> followed = Places();
  Everything later(*toolkit);
  later.Show();
  const auto heightOf = [](const Control& control) {
    return PlaceOf(control).bottom - PlaceOf(control).top;
  };
  for (std::size_t index = 0; index < form.Controls().size(); ++index) {
    const Control& one = *form.Controls()[index];
    const Control& other = *later.Controls()[index];
    if (GoesWithTheInside(one)) continue;
    const RECT followedPlace = PlaceOf(one);
    const RECT freshPlace = PlaceOf(other);
    EXPECT_TRUE(EqualRect(&followedPlace, &freshPlace))
        << one.Name() << " " << heightOf(one) << " " << heightOf(other);
  }
  for (const UINT column : {0U, 1U}) {
    EXPECT_EQ(SendMessageA(HandleOf(form.List), LVM_GETCOLUMNWIDTH, column, 0),
              SendMessageA(HandleOf(later.List), LVM_GETCOLUMNWIDTH, column, 0));
  }
  EXPECT_EQ(SendMessageA(HandleOf(form.Tools), TB_GETBUTTONSIZE, 0, 0),
            SendMessageA(HandleOf(later.Tools), TB_GETBUTTONSIZE, 0, 0));
  EXPECT_EQ(SendMessageA(HandleOf(form.Tools), TB_BUTTONCOUNT, 0, 0), 3);
  later.Unload();
}

TEST_F(ChangesOfScreen, WhatIsNoResolutionIsNotFollowed) {
  for (const int dpi : {0, 1, 95, 481, 65535}) {
    SetDpi(dpi);
    EXPECT_DOUBLE_EQ(toolkit->TwipsPerPixelX(), 15) << dpi;
  }
  // Nor is an address that another program made up.
  SendMessageA(HandleOf(form), DpiChanged, MAKELONG(96, 96), 0x7777);
  EXPECT_TRUE(LiesWithin(OnScreen(), WorkArea()));
}

TEST_F(ChangesOfScreen, FontsAreMadeAnew) {
  // A face that was installed or removed stands behind the same name.
  const LOGFONTA before = FontOf(form.Push);
  const LRESULT old = SendMessageA(HandleOf(form.Push), WM_GETFONT, 0, 0);
  for (const auto& [message, first] :
       {std::pair<UINT, WPARAM>{WM_FONTCHANGE, 0}, {WM_SETTINGCHANGE, SPI_SETNONCLIENTMETRICS}}) {
    SendMessageA(HandleOf(form), message, first, 0);
    EXPECT_NE(SendMessageA(HandleOf(form.Push), WM_GETFONT, 0, 0), old) << message;
    EXPECT_EQ(FontOf(form.Push).lfHeight, before.lfHeight);
    SendMessageA(HandleOf(form.Push), WM_SETFONT, static_cast<WPARAM>(old), FALSE);
  }
}

TEST_F(ChangesOfScreen, TheWindowComesBackToTheScreen) {
  for (const auto& [message, first] :
       {std::pair<UINT, WPARAM>{WM_DISPLAYCHANGE, 32}, {WM_SETTINGCHANGE, SPI_SETWORKAREA}}) {
    SetWindowPos(HandleOf(form), nullptr, 5000, 4000, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    SendMessageA(HandleOf(form), message, first, MAKELPARAM(1024, 768));
    EXPECT_TRUE(LiesWithin(OnScreen(), WorkArea())) << message;
  }
}

TEST_F(ChangesOfScreen, TheChoiceOfHighContrastIsFollowed) {
  const COLORREF own = Ground();
  highContrast = true;
  SendMessageA(HandleOf(form), WM_SETTINGCHANGE, SPI_SETHIGHCONTRAST, 0);
  EXPECT_EQ(Ground(), GetSysColor(COLOR_WINDOW));
  EXPECT_NE(Ground(), own);
  highContrast = false;
  SendMessageA(HandleOf(form), WM_SETTINGCHANGE, SPI_SETHIGHCONTRAST, 0);
  EXPECT_EQ(Ground(), own);
}

TEST_F(ChangesOfScreen, ADozenOfThemLeavesNothingBehind) {
  const auto cycle = [&] {
    for (const int dpi : {144, 96}) SetDpi(dpi);
    highContrast = !highContrast;
    SendMessageA(HandleOf(form), WM_SYSCOLORCHANGE, 0, 0);
    SendMessageA(HandleOf(form), WM_FONTCHANGE, 0, 0);
    toolkit->DoEvents();
  };
  cycle();
  cycle();
  const unsigned before = LastPlace();
  for (int count = 0; count < 12; ++count) cycle();
  EXPECT_LE(LastPlace(), before + 6);
}

}  // namespace
}  // namespace vantrel::forms::win32
