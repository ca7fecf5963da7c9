#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Sample.h"
#include "forms/headless/Toolkit.h"
#include "platform/Desktop.h"

namespace vantrel::forms::headless {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t WmMouseMove = 512;
constexpr std::uint32_t WmClose = 16;

TEST_F(Headless, EveryWindowedControlHasARecordWithItsName) {
  form.EnsureLoaded();
  EXPECT_EQ("frmSample", desktop.ControlName(form.hWnd()));
  EXPECT_EQ("frmSample", desktop.Caption(form.hWnd()));
  EXPECT_FALSE(desktop.Visible(form.hWnd()));
  EXPECT_EQ(OwnProcess, desktop.Owner(form.hWnd()));
  EXPECT_EQ(form.label.WindowHandle(), desktop.FindByControlName("frmSample.label"));
  EXPECT_EQ(form.inside.WindowHandle(), desktop.FindByCaption("Inside"));
  EXPECT_EQ(form.frame.WindowHandle(), desktop.Parent(form.inside.WindowHandle()));
  EXPECT_EQ(form.hWnd(), desktop.Parent(form.frame.WindowHandle()));
  EXPECT_EQ(0U, form.image.WindowHandle());
  EXPECT_EQ(0U, form.timer.WindowHandle());
}

TEST_F(Headless, TheRecordFollowsTheModel) {
  form.Show();
  form.inside.SetCaption("New");
  form.inside.SetEnabled(false);
  form.inside.SetVisible(false);
  form.inside.Move({150, 300, 450, 600});
  form.SetCaption("Title");
  const Handle window = form.inside.WindowHandle();
  EXPECT_TRUE(desktop.Visible(form.hWnd()));
  EXPECT_EQ("Title", desktop.Caption(form.hWnd()));
  EXPECT_EQ("New", desktop.Caption(window));
  EXPECT_FALSE(desktop.Enabled(window));
  EXPECT_FALSE(desktop.Visible(window));
  EXPECT_EQ(10, desktop.Place(window).left);
  EXPECT_EQ(20, desktop.Place(window).top);
  EXPECT_EQ(30, desktop.Place(window).width);
  EXPECT_EQ(40, desktop.Place(window).height);
}

TEST_F(Headless, AnUnloadedWindowIsGoneWithItsControls) {
  form.Show();
  const Handle window = form.hWnd();
  const Handle button = form.inside.WindowHandle();
  form.Unload();
  EXPECT_FALSE(desktop.IsWindow(window));
  EXPECT_FALSE(desktop.IsWindow(button));
  EXPECT_EQ(0U, clock.TimersOf(OwnProcess));
}

TEST_F(Headless, APanelInAWindowThatIsGoneLosesItsRecordAndLivesOn) {
  form.Show();
  panel.EnsureLoaded();
  desktop.SetParent(panel.hWnd(), form.hWnd());
  panel.SetHost(&form);
  panel.Show();
  form.Unload();
  panel.label.SetCaption("still");
  panel.Hide();
  panel.Unload();
  EXPECT_FALSE(panel.Loaded());
  EXPECT_THAT(desktop.TopLevelWindows(), IsEmpty());
}

TEST_F(Headless, ATextSentIsTheModels) {
  form.EnsureLoaded();
  form.text.Change = Note("change");
  desktop.SendText(form.text.WindowHandle(), platform::WmSetText, 0, "sent");
  desktop.SendText(form.inside.WindowHandle(), platform::WmSetText, 0, "/clean");
  desktop.SendText(form.sound.WindowHandle(), platform::WmSetText, 0, "boing");
  desktop.SendText(form.hWnd(), platform::WmSetText, 0, "Titled");
  EXPECT_EQ("sent", form.text.Text());
  EXPECT_EQ("/clean", form.inside.Caption());
  EXPECT_EQ("/clean", desktop.Caption(form.inside.WindowHandle()));
  EXPECT_EQ("", form.sound.Text());
  EXPECT_EQ("", desktop.Caption(form.sound.WindowHandle()));
  EXPECT_EQ("Titled", form.Caption());
  EXPECT_THAT(notes, ElementsAre("change"));
}

TEST_F(Headless, AClickSentActsInAHiddenWindowButNotOnADisabledButton) {
  form.EnsureLoaded();
  form.inside.SetVisible(false);
  form.inside.Click = Note("click");
  desktop.Send(Sent(form.inside.WindowHandle(), platform::BmClick));
  form.inside.SetEnabled(false);
  desktop.Send(Sent(form.inside.WindowHandle(), platform::BmClick));
  desktop.Send(Sent(form.check.WindowHandle(), platform::BmClick));
  desktop.Send(Sent(form.label.WindowHandle(), platform::BmClick));
  EXPECT_EQ(Checked, form.check.Value());
  EXPECT_THAT(notes, ElementsAre("click"));
}

TEST_F(Headless, AClickSentMayUnloadItsWindow) {
  form.EnsureLoaded();
  form.inside.Click = [&] { form.Unload(); };
  desktop.Send(Sent(form.inside.WindowHandle(), platform::BmClick));
  EXPECT_FALSE(form.Loaded());
}

TEST_F(Headless, AnErrorStaysInTheReceiver) {
  form.EnsureLoaded();
  toolkit.OnUntrappedError = [&](const text::RuntimeError& error) {
    notes.push_back(error.Description());
  };
  form.inside.Click = [] { throw text::RuntimeError(text::ErrorNumber::Overflow); };
  desktop.Send(Sent(form.inside.WindowHandle(), platform::BmClick));
  EXPECT_THAT(notes, ElementsAre("Overflow"));
}

TEST_F(Headless, AMouseMoveComesInTheWindowsUnits) {
  form.EnsureLoaded();
  form.MouseMove = [&](int button, int shift, float x, float y) {
    notes.push_back(std::to_string(button) + " " + std::to_string(shift) + " " +
                    std::to_string(static_cast<int>(x)) + " " +
                    std::to_string(static_cast<int>(y)));
  };
  desktop.Send(Sent(form.hWnd(), WmMouseMove, 515));
  form.SetScaleMode(ScaleMode::Pixels);
  desktop.Send({form.hWnd(), WmMouseMove, 2 + 8, 517 + (0xFFFFU << 16U), nullptr});
  EXPECT_THAT(notes, ElementsAre("0 0 7725 0", "2 2 517 -1"));
}

TEST_F(Headless, PostedMessagesWaitForAPump) {
  form.EnsureLoaded();
  form.MouseMove = [&](int, int, float, float) { notes.push_back("move"); };
  desktop.Post(Sent(form.hWnd(), WmMouseMove));
  EXPECT_THAT(notes, IsEmpty());
  toolkit.DoEvents();
  EXPECT_THAT(notes, ElementsAre("move"));
}

TEST_F(Headless, QueuedEventsRunInOrderDuringAPump) {
  toolkit.WhenPumped([&] {
    notes.push_back("first");
    toolkit.WhenPumped([&] { notes.push_back("third"); });
  });
  toolkit.WhenPumped([&] { notes.push_back("second"); });
  EXPECT_TRUE(toolkit.Pump());
  EXPECT_FALSE(toolkit.Pump());
  EXPECT_THAT(notes, ElementsAre("first", "second", "third"));
}

TEST_F(Headless, ASecondClickReentersAHandlerThatPumps) {
  form.Show();
  form.ok.Click = [&] {
    notes.push_back("in");
    toolkit.DoEvents();
    notes.push_back("out");
  };
  toolkit.WhenPumped([&] { user.Click(form.ok); });
  user.Click(form.ok);
  EXPECT_THAT(notes, ElementsAre("in", "in", "out", "out"));
}

TEST_F(Headless, EndDuringAPumpComesOutOfThePump) {
  toolkit.WhenPumped([&] { toolkit.End(); });
  toolkit.WhenPumped([&] { notes.push_back("behind the end"); });
  EXPECT_THROW(toolkit.DoEvents(), EndProgram);
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(Headless, ATimerTicksOnTheClock) {
  form.timer.Tick = Note("tick");
  clock.Advance(5000);
  form.EnsureLoaded();
  clock.Advance(1999);
  EXPECT_THAT(notes, IsEmpty());
  clock.Advance(1);
  form.timer.SetEnabled(false);
  clock.Advance(5000);
  EXPECT_THAT(notes, ElementsAre("tick"));
  form.timer.SetInterval(50);
  form.timer.SetEnabled(true);
  clock.Advance(150);
  EXPECT_EQ(4U, notes.size());
  form.timer.SetInterval(0);
  clock.Advance(1000);
  EXPECT_EQ(4U, notes.size());
}

TEST_F(Headless, ATickMayDisableItsTimerOrUnloadItsWindow) {
  form.EnsureLoaded();
  panel.EnsureLoaded();
  form.timer.Tick = [&] { form.timer.SetEnabled(false); };
  panel.timer.Tick = [&] { panel.Unload(); };
  clock.Advance(6000);
  EXPECT_FALSE(panel.Loaded());
  EXPECT_EQ(0U, clock.TimersOf(OwnProcess));
}

TEST_F(Headless, TheTraceTellsWhatTheScreenWouldShow) {
  toolkit.Trace = [&](const std::string& line) { notes.push_back(line); };
  form.Load = [&] {
    form.check.SetValue(Checked);
    form.ok.SetEnabled(false);
    form.image.SetPicture(form.images, 2);
  };
  form.Show();
  form.SetCaption("Title");
  form.text.SetText("x");
  form.list.Add("A", "A", "");
  form.timer.SetInterval(50);
  toolkit.SetScreenPointer(PointerHourglass);
  form.Hide();
  form.Unload();
  toolkit.Trace = nullptr;
  EXPECT_THAT(
      notes,
      ElementsAre("frmSample Load", "frmSample.check Value=1", "frmSample.ok Enabled=False",
                  "frmSample.image Picture=images(2)", "frmSample Show", "frmSample Caption=Title",
                  "frmSample.text Text=x", "frmSample.list Count=1", "frmSample.timer Interval=50",
                  "Screen MousePointer=11", "frmSample Hide", "frmSample Unload"));
}

TEST_F(Headless, ASurfaceIsOneRecordAndIsToldItsSize) {
  form.EnsureLoaded();
  EXPECT_NE(0U, form.link.WindowHandle());
  EXPECT_EQ(0U, form.link.face.WindowHandle());
  form.link.Move({0, 0, 600, 300});
  EXPECT_EQ(1, form.link.resizes);
}

TEST_F(Headless, TheCloseBoxAsksWithItsMode) {
  form.QueryUnload = [&](bool& cancel, int mode) {
    notes.push_back(std::to_string(mode));
    cancel = true;
  };
  form.Show();
  EXPECT_TRUE(user.Close(form));
  desktop.Send(Sent(form.hWnd(), WmClose));
  EXPECT_TRUE(form.Loaded());
  EXPECT_THAT(notes, ElementsAre("0", "0"));
  panel.Show();
  EXPECT_FALSE(user.Close(panel));
}

TEST_F(Headless, TheEndOfTheSessionUnloadsEachWindowThatIsNotHosted) {
  form.Show();
  panel.EnsureLoaded();
  panel.SetHost(&form);
  panel.QueryUnload = [&](bool&, int) { notes.push_back("panel"); };
  form.QueryUnload = [&](bool&, int mode) { notes.push_back(std::to_string(mode)); };
  toolkit.SystemEnds();
  EXPECT_FALSE(form.Loaded());
  EXPECT_THAT(notes, ElementsAre("2"));
}

TEST_F(Headless, AnotherProgramMayRestoreTheWindow) {
  form.EnsureLoaded();
  form.Resize = Note("resize");
  form.SetWindowState(WindowState::Minimized);
  EXPECT_TRUE(desktop.Iconic(form.hWnd()));
  desktop.ShowWindow(form.hWnd(), platform::SwRestore);
  EXPECT_EQ(WindowState::Normal, form.WindowState());
  EXPECT_TRUE(form.Visible());
  EXPECT_THAT(notes, ElementsAre("resize", "resize"));
}

TEST_F(Headless, AModalWindowRunsTheQueueUntilItIsClosed) {
  form.Show();
  toolkit.WhenPumped([&] {
    notes.push_back(user.CanReach(form.ok) ? "reached behind" : "blocked");
    EXPECT_FALSE(desktop.Enabled(form.hWnd()));
    EXPECT_TRUE(user.Click(panel.ok));
  });
  panel.ok.Click = [&] { panel.Unload(); };
  panel.ShowModal();
  EXPECT_FALSE(panel.Loaded());
  EXPECT_TRUE(desktop.Enabled(form.hWnd()));
  EXPECT_EQ(nullptr, toolkit.ModalForm());
  EXPECT_THAT(notes, ElementsAre("blocked"));
}

TEST_F(Headless, AModalWindowMayWaitForMore) {
  toolkit.WaitForEvents = [&] {
    toolkit.WhenPumped([&] { form.Hide(); });
    return true;
  };
  form.ShowModal();
  EXPECT_FALSE(form.Visible());
}

TEST_F(Headless, ANestedModalWindowGivesTheOuterBack) {
  SampleForm inner(toolkit, "inner");
  form.Show();
  panel.ok.Click = [&] {
    inner.ShowModal();
    EXPECT_TRUE(desktop.Enabled(panel.hWnd()));
    EXPECT_FALSE(desktop.Enabled(form.hWnd()));
    EXPECT_EQ(&panel, toolkit.ModalForm());
    panel.Hide();
  };
  toolkit.WhenPumped([&] { user.Click(panel.ok); });
  toolkit.WhenPumped([&] { inner.Hide(); });
  panel.ShowModal();
  EXPECT_FALSE(inner.Visible());
  EXPECT_TRUE(desktop.Enabled(form.hWnd()));
}

using HeadlessDeathTest = Headless;

TEST_F(HeadlessDeathTest, AModalWindowThatNobodyClosesStopsTheProgram) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_DEATH(form.ShowModal(), "frmSample is open modally");
}

TEST_F(Headless, APopupMenuRaisesTheChosenEntry) {
  form.leave.Click = Note("leave");
  form.EnsureLoaded();
  form.PopupMenu(form.tray);
  EXPECT_THAT(notes, IsEmpty());
  toolkit.ChooseFromPopup = [](Menu& menu) { return menu.Entries().front(); };
  form.PopupMenu(form.tray);
  EXPECT_THAT(notes, ElementsAre("leave"));
}

TEST_F(Headless, TwoProcessesKeepApart) {
  Toolkit other(desktop, clock, 12);
  SampleForm foreign(other, "frmSample");
  form.EnsureLoaded();
  foreign.EnsureLoaded();
  other.WhenPumped([&] { notes.push_back("other"); });
  EXPECT_FALSE(toolkit.Pump());
  EXPECT_TRUE(other.Pump());
  EXPECT_EQ(foreign.ok.WindowHandle(), desktop.FindByControlName("frmSample.ok", 12));
  EXPECT_EQ(form.ok.WindowHandle(), desktop.FindByControlName("frmSample.ok", OwnProcess));
}

}  // namespace
}  // namespace vantrel::forms::headless
