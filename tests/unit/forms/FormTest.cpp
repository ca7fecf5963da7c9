#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Bench.h"
#include "forms/Form.h"

namespace vantrel::forms {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class Forms : public testing::Test {
 protected:
  Event<>::Handler Note(const std::string& what) {
    return [this, what] { notes.push_back(what); };
  }

  NotingToolkit toolkit;
  BenchForm form{toolkit};
  BenchForm panel{toolkit, "FrmFramePanel"};
  Notes notes;
};

TEST_F(Forms, InitializeThenLoadOnce) {
  form.Initialize = Note("initialize");
  form.Load = Note("load");
  form.EnsureLoaded();
  form.EnsureLoaded();
  EXPECT_THAT(notes, ElementsAre("initialize", "load"));
}

TEST_F(Forms, LoadFindsTheWindowMadeAndListed) {
  form.Load = [&] {
    EXPECT_TRUE(form.Loaded());
    EXPECT_NE(0U, form.hWnd());
    EXPECT_THAT(toolkit.LoadedForms(), ElementsAre(&form));
    form.EnsureLoaded();
    panel.EnsureLoaded();
  };
  form.EnsureLoaded();
  EXPECT_THAT(toolkit.LoadedForms(), ElementsAre(&form, &panel));
}

TEST_F(Forms, ATouchInInitializeLoadsTheWindow) {
  form.Initialize = [&] {
    form.EnsureLoaded();
    notes.push_back("initialized");
  };
  form.Load = Note("load");
  form.EnsureLoaded();
  EXPECT_THAT(notes, ElementsAre("load", "initialized"));
}

TEST_F(Forms, AnUnloadedWindowLoadsAgainWithoutInitialize) {
  form.Initialize = Note("initialize");
  form.Load = Note("load");
  form.EnsureLoaded();
  form.Unload();
  EXPECT_EQ(0U, form.hWnd());
  form.Show();
  EXPECT_THAT(notes, ElementsAre("initialize", "load", "load"));
}

TEST_F(Forms, WithoutAWindowThereAreNoHandles) {
  EXPECT_EQ(0U, form.hWnd());
  EXPECT_EQ(0U, form.IconHandle());
  EXPECT_EQ(0U, form.button.WindowHandle());
  form.Hide();
  form.Unload();
  EXPECT_FALSE(form.Loaded());
}

TEST_F(Forms, ShowLoadsShowsAndActivates) {
  form.Load = Note("load");
  form.Activate = Note("activate");
  form.Show();
  EXPECT_TRUE(form.Visible());
  EXPECT_THAT(notes, ElementsAre("load", "activate"));
}

TEST_F(Forms, ShowingAVisibleWindowOnlyActivatesIt) {
  form.Activate = Note("form");
  panel.Activate = Note("panel");
  form.Show();
  form.Show();
  panel.Show();
  toolkit.notes.clear();
  form.Show();
  EXPECT_THAT(toolkit.notes, IsEmpty());
  EXPECT_THAT(notes, ElementsAre("form", "panel", "form"));
}

TEST_F(Forms, AHiddenWindowIsNoLongerTheActiveOne) {
  form.Activate = Note("activate");
  form.Show();
  form.Hide();
  EXPECT_EQ(nullptr, toolkit.ActiveForm());
  form.BecomesActive();
  form.Show();
  EXPECT_THAT(notes, ElementsAre("activate", "activate"));
}

TEST_F(Forms, APanelOfAHiddenWindowIsVisibleButNotActive) {
  panel.Activate = Note("activate");
  form.EnsureLoaded();
  panel.SetHost(&form);
  panel.Show();
  EXPECT_TRUE(panel.Visible());
  EXPECT_FALSE(panel.Shown());
  EXPECT_FALSE(panel.button.Reachable());
  EXPECT_THAT(notes, IsEmpty());
  form.Show();
  EXPECT_TRUE(panel.Shown());
  panel.Show();
  EXPECT_THAT(notes, ElementsAre("activate"));
}

TEST_F(Forms, ASizeFromCodeRaisesResizeLikeTheUsers) {
  form.Resize = Note("resize");
  form.SetWidth(4000);
  form.SetWidth(4000);
  form.UserResizes(5000, 2000, WindowState::Normal);
  form.UserResizes(5000, 2000, WindowState::Normal);
  EXPECT_EQ(5000, form.Width());
  EXPECT_THAT(notes, ElementsAre("resize", "resize"));
}

TEST_F(Forms, AResizeHandlerMayEnforceAMinimum) {
  form.Resize = [&] {
    notes.push_back("resize");
    if (form.Width() < 3000) form.SetWidth(3000);
  };
  form.UserResizes(100, 2000, WindowState::Normal);
  EXPECT_EQ(3000, form.Width());
  EXPECT_THAT(notes, ElementsAre("resize", "resize"));
}

TEST_F(Forms, AMinimizedWindowKeepsItsSize) {
  form.UserResizes(160, 30, WindowState::Minimized);
  EXPECT_EQ(3000, form.Width());
  EXPECT_EQ(WindowState::Minimized, form.WindowState());
}

TEST_F(Forms, AChangeOfStateIsOneResizeHoweverTheScreenTakesPart) {
  form.Resize = Note("resize");
  form.EnsureLoaded();
  form.SetWindowState(WindowState::Minimized);
  EXPECT_THAT(notes, ElementsAre("resize"));
  PeerOf(form).WhenChanged = [&](Aspect aspect) {
    if (aspect == Aspect::State) form.UserResizes(9000, 9000, WindowState::Maximized);
  };
  form.SetWindowState(WindowState::Maximized);
  EXPECT_THAT(notes, ElementsAre("resize", "resize"));
  EXPECT_EQ(9000, form.Width());
}

TEST_F(Forms, UnloadAsksThenTellsThenGoes) {
  form.QueryUnload = [&](bool&, int mode) { notes.push_back("query " + std::to_string(mode)); };
  form.Unloading = [&](bool&) {
    EXPECT_TRUE(form.Loaded());
    notes.push_back("unload");
  };
  form.Show();
  form.Unload();
  EXPECT_FALSE(form.Loaded());
  EXPECT_FALSE(form.Visible());
  EXPECT_THAT(toolkit.LoadedForms(), IsEmpty());
  EXPECT_THAT(toolkit.notes, Contains("button gone"));
  EXPECT_EQ("frmBench gone", toolkit.notes.back());
  EXPECT_THAT(notes, ElementsAre("query 1", "unload"));
}

TEST_F(Forms, QueryUnloadMayCancel) {
  form.QueryUnload = [](bool& cancel, int) { cancel = true; };
  form.Unloading = [&](bool&) { notes.push_back("unload"); };
  form.Show();
  form.Unload(UnloadByCloseBox);
  EXPECT_TRUE(form.Visible());
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(Forms, UnloadMayCancelAndBeAskedAgain) {
  bool cancels = true;
  form.Unloading = [&](bool& cancel) { cancel = cancels; };
  form.EnsureLoaded();
  form.Unload();
  EXPECT_TRUE(form.Loaded());
  cancels = false;
  form.Unload();
  EXPECT_FALSE(form.Loaded());
}

TEST_F(Forms, AnUnloadInsideItsOwnUnloadReturnsAtOnce) {
  form.QueryUnload = [&](bool&, int) { notes.push_back("query"); };
  form.Unloading = [&](bool&) {
    notes.push_back("unload");
    for (Form* each : std::vector<Form*>(toolkit.LoadedForms())) each->Unload();
    EXPECT_TRUE(form.Loaded());
  };
  form.EnsureLoaded();
  panel.EnsureLoaded();
  form.Unload();
  EXPECT_THAT(notes, ElementsAre("query", "unload"));
  EXPECT_THAT(toolkit.LoadedForms(), IsEmpty());
}

TEST_F(Forms, AnUnloadInsideItsOwnQueryIsAFullOne) {
  form.QueryUnload = [&](bool&, int mode) {
    notes.push_back("query " + std::to_string(mode));
    if (mode == UnloadByCloseBox) form.Unload();
    notes.push_back("behind " + std::to_string(mode));
  };
  form.Unloading = [&](bool&) { notes.push_back("unload"); };
  form.EnsureLoaded();
  form.Unload(UnloadByCloseBox);
  EXPECT_FALSE(form.Loaded());
  EXPECT_THAT(notes, ElementsAre("query 0", "query 1", "behind 1", "unload", "behind 0"));
}

TEST_F(Forms, AnErrorInUnloadKeepsTheWindow) {
  form.Unloading = [](bool&) { throw text::RuntimeError(text::ErrorNumber::DiskFull); };
  form.EnsureLoaded();
  EXPECT_EQ(61, ErrorOf([&] { form.Unload(); }));
  EXPECT_TRUE(form.Loaded());
  form.Unloading = nullptr;
  form.Unload();
  EXPECT_FALSE(form.Loaded());
}

TEST_F(Forms, AWindowThatGoesLetsItsPanelsGo) {
  form.Show();
  panel.EnsureLoaded();
  panel.SetHost(&form);
  panel.Show();
  form.Unload();
  EXPECT_EQ(nullptr, panel.Host());
  EXPECT_EQ(nullptr, toolkit.ActiveForm());
}

TEST_F(Forms, ControlsOfAnUnloadedWindowMayStillBeChanged) {
  form.EnsureLoaded();
  form.Unload();
  toolkit.notes.clear();
  form.text.SetText("kept");
  EXPECT_EQ("kept", form.text.Text());
  EXPECT_THAT(toolkit.notes, IsEmpty());
}

TEST_F(Forms, ADestroyedWindowIsNoLongerListed) {
  {
    BenchForm brief(toolkit, "brief");
    brief.Show();
    brief.text.SetFocus();
  }
  EXPECT_THAT(toolkit.LoadedForms(), IsEmpty());
  EXPECT_EQ(nullptr, toolkit.ActiveForm());
  EXPECT_EQ(nullptr, toolkit.Focus());
}

TEST_F(Forms, ShowModalReturnsBehindTheLoop) {
  form.EnsureLoaded();
  PeerOf(form).WhenModal = [&] {
    EXPECT_TRUE(form.Visible());
    form.Hide();
  };
  form.ShowModal();
  EXPECT_FALSE(form.Visible());
}

TEST_F(Forms, WhatIsShownBehindAModalWindowLeavesThatActive) {
  panel.Activate = Note("activate");
  form.EnsureLoaded();
  PeerOf(form).WhenModal = [&] {
    panel.Show();
    EXPECT_TRUE(panel.Visible());
    EXPECT_EQ(&form, toolkit.ActiveForm());
  };
  form.ShowModal();
  EXPECT_THAT(notes, IsEmpty());
  panel.Show();
  EXPECT_THAT(notes, ElementsAre("activate"));
}

TEST_F(Forms, AModalWindowMayUnloadItself) {
  form.EnsureLoaded();
  PeerOf(form).WhenModal = [&] { notes.push_back("open"); };
  form.ShowModal();
  form.button.Click = [&] { form.Unload(); };
  form.button.UserClick();
  EXPECT_FALSE(form.Loaded());
  EXPECT_THAT(notes, ElementsAre("open"));
}

TEST_F(Forms, APopupRaisesTheClickOfTheEntry) {
  form.leave.Click = Note("leave");
  form.EnsureLoaded();
  form.PopupMenu(form.leave);
  EXPECT_THAT(notes, ElementsAre("leave"));
}

TEST_F(Forms, TheFocusTellsBothSides) {
  form.Show();
  form.text.GotFocus = Note("text got");
  form.text.LostFocus = Note("text lost");
  form.button.GotFocus = Note("button got");
  form.text.SetFocus();
  form.text.SetFocus();
  form.button.SetFocus();
  EXPECT_EQ(&form.button, toolkit.Focus());
  EXPECT_THAT(notes, ElementsAre("text got", "text lost", "button got"));
}

TEST_F(Forms, TheUserIsAskedBeforeTheFocusMovesAndCodeIsNot) {
  form.Show();
  form.pickOnly.Validate = [&](bool& keep) {
    notes.push_back("validate");
    keep = true;
  };
  form.pickOnly.LostFocus = Note("lost");
  form.pickOnly.SetFocus();
  EXPECT_FALSE(toolkit.UserMovesFocus(&form.button));
  EXPECT_EQ(&form.pickOnly, toolkit.Focus());
  form.button.SetFocus();
  EXPECT_THAT(notes, ElementsAre("validate", "lost"));
}

TEST_F(Forms, AValidatedFocusMoves) {
  form.Show();
  form.pickOnly.Validate = [&](bool&) { notes.push_back("validate"); };
  form.pickOnly.LostFocus = Note("lost");
  form.button.GotFocus = Note("got");
  form.pickOnly.SetFocus();
  EXPECT_TRUE(toolkit.UserMovesFocus(&form.button));
  EXPECT_TRUE(toolkit.UserMovesFocus(nullptr));
  EXPECT_THAT(notes, ElementsAre("validate", "lost", "got"));
}

// A box that the question brings up takes the screen's focus, and gives it to what was pressed.
TEST_F(Forms, AControlIsAskedOnceHoweverTheScreensFocusMovesMeanwhile) {
  form.Show();
  form.pickOnly.Validate = [&](bool&) {
    notes.push_back("validate");
    EXPECT_TRUE(toolkit.UserMovesFocus(&form.button));
    EXPECT_TRUE(toolkit.UserMovesFocus(nullptr));
    EXPECT_EQ(&form.pickOnly, toolkit.Focus());
  };
  form.button.GotFocus = Note("got");
  form.pickOnly.SetFocus();
  EXPECT_TRUE(toolkit.UserMovesFocus(&form.button));
  EXPECT_EQ(&form.button, toolkit.Focus());
  EXPECT_THAT(notes, ElementsAre("validate", "got"));
}

TEST_F(Forms, AnErrorOfTheQuestionIsShownOnceAndKeepsNothing) {
  form.Show();
  form.pickOnly.Validate = [&](bool& keep) {
    keep = true;
    throw text::RuntimeError(text::ErrorNumber::TypeMismatch);
  };
  toolkit.OnUntrappedError = [&](const text::RuntimeError&) {
    notes.push_back("error");
    EXPECT_TRUE(toolkit.UserMovesFocus(&form.button));
  };
  form.pickOnly.SetFocus();
  EXPECT_TRUE(toolkit.UserMovesFocus(&form.button));
  EXPECT_EQ(&form.button, toolkit.Focus());
  EXPECT_THAT(notes, ElementsAre("error"));
}

TEST_F(Forms, TheEndOfTheProgramLeavesTheQuestion) {
  form.Show();
  form.pickOnly.Validate = [&](bool&) { toolkit.End(); };
  form.pickOnly.SetFocus();
  EXPECT_THROW(toolkit.UserMovesFocus(&form.button), EndProgram);
}

TEST_F(Forms, AHiddenPanelGivesTheFocusToTheWindowAroundAndAsksNobody) {
  form.Show();
  panel.EnsureLoaded();
  panel.SetHost(&form);
  panel.Show();
  panel.pickOnly.Validate = [&](bool&) { notes.push_back("validate"); };
  panel.pickOnly.LostFocus = Note("lost");
  form.text.GotFocus = Note("got");
  panel.pickOnly.SetFocus();
  // What the screen moves when its window goes is behind the model's own move.
  PeerOf(panel).WhenChanged = [&](Aspect) { EXPECT_EQ(&form.text, toolkit.Focus()); };
  panel.Hide();
  EXPECT_EQ(&form.text, toolkit.Focus());
  EXPECT_THAT(notes, ElementsAre("lost", "got"));
}

TEST_F(Forms, AHandlerThatMovesTheFocusItselfIsLeftToIt) {
  form.Show();
  form.text.LostFocus = [&] { form.check.SetFocus(); };
  form.button.GotFocus = Note("button got");
  form.text.SetFocus();
  EXPECT_FALSE(toolkit.UserMovesFocus(&form.button));
  EXPECT_EQ(&form.check, toolkit.Focus());
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(Forms, WhatIsDisabledOrHiddenGivesTheFocusAwayFirst) {
  form.Show();
  form.text.SetFocus();
  form.text.LostFocus = [&] { EXPECT_TRUE(form.text.Enabled()); };
  form.text.SetEnabled(false);
  EXPECT_EQ(&form.button, toolkit.Focus());
  form.button.SetVisible(false);
  EXPECT_EQ(&form.check, toolkit.Focus());
}

TEST_F(Forms, WhatIsDisabledOrHiddenTakesNoFocus) {
  form.Show();
  form.frame.SetEnabled(false);
  form.one.SetFocus();
  form.text.SetVisible(false);
  form.text.SetFocus();
  EXPECT_EQ(nullptr, toolkit.Focus());
}

TEST_F(Forms, AHiddenWindowLosesTheFocus) {
  form.Show();
  form.text.SetFocus();
  form.text.LostFocus = Note("lost");
  form.Hide();
  EXPECT_EQ(nullptr, toolkit.Focus());
  EXPECT_THAT(notes, ElementsAre("lost"));
}

TEST_F(Forms, TabGoesThroughTheWindowThenItsPanels) {
  form.Show();
  panel.EnsureLoaded();
  panel.SetHost(&form);
  EXPECT_THAT(form.TabOrder(), Not(Contains(&panel.text)));
  panel.Show();
  panel.frame.SetEnabled(false);
  const std::vector<Control*> order = form.TabOrder();
  EXPECT_EQ(&form.text, order.front());
  EXPECT_EQ(&panel.files, order.back());
  EXPECT_THAT(order, Not(Contains(&panel.one)));
  EXPECT_THAT(order, Not(Contains(&form.label)));
  EXPECT_EQ(&form.button, form.NextTabStop(&form.text));
  EXPECT_EQ(&form.text, form.NextTabStop(&panel.files));
  EXPECT_EQ(&panel.files, form.NextTabStop(&form.text, true));
  EXPECT_EQ(&form.text, form.NextTabStop(nullptr));
}

TEST_F(Forms, TabVisitsOneOptionOfAGroup) {
  form.Show();
  EXPECT_THAT(form.TabOrder(), Contains(&form.one));
  EXPECT_THAT(form.TabOrder(), Not(Contains(&form.two)));
  form.two.SetValue(true);
  EXPECT_THAT(form.TabOrder(), Not(Contains(&form.one)));
  EXPECT_THAT(form.TabOrder(), Contains(&form.two));
  form.two.SetValue(false);
  EXPECT_THAT(form.TabOrder(), Contains(&form.one));
  form.one.SetEnabled(false);
  EXPECT_THAT(form.TabOrder(), Contains(&form.two));
  // A group of its own.
  EXPECT_THAT(form.TabOrder(), Contains(&form.lone));
}

TEST_F(Forms, AWindowThatCannotBeMadeIsNotLoaded) {
  toolkit.Refusing = true;
  form.Load = Note("load");
  EXPECT_EQ(7, ErrorOf([&] { form.EnsureLoaded(); }));
  EXPECT_FALSE(form.Loaded());
  EXPECT_THAT(toolkit.LoadedForms(), IsEmpty());
  toolkit.Refusing = false;
  form.EnsureLoaded();
  EXPECT_TRUE(form.Loaded());
  EXPECT_THAT(notes, ElementsAre("load"));
}

}  // namespace
}  // namespace vantrel::forms
