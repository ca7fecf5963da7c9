#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Sample.h"
#include "forms/headless/User.h"

namespace vantrel::forms::headless {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Hand : public Headless {
 protected:
  Hand() {
    form.Show();
    for (Control* control : form.Controls()) {
      control->Click = nullptr;
      control->Click = [this, control] { notes.push_back(control->Name()); };
    }
  }
};

TEST_F(Hand, ReachesOnlyWhatShowsAndIsEnabled) {
  EXPECT_TRUE(user.Click(form.inside));
  form.frame.SetEnabled(false);
  EXPECT_FALSE(user.Click(form.inside));
  form.ok.SetVisible(false);
  EXPECT_FALSE(user.Click(form.ok));
  form.SetWindowState(WindowState::Minimized);
  EXPECT_FALSE(user.Click(form.check));
  form.SetWindowState(WindowState::Normal);
  form.Hide();
  EXPECT_FALSE(user.Click(form.check));
  EXPECT_FALSE(user.Click(panel.ok));
  EXPECT_THAT(notes, ElementsAre("inside"));
}

TEST_F(Hand, DoesNotReachAPanelOfAHiddenWindow) {
  panel.EnsureLoaded();
  panel.SetHost(&form);
  panel.Show();
  EXPECT_TRUE(user.Click(panel.ok));
  form.Hide();
  EXPECT_FALSE(user.Click(panel.ok));
}

TEST_F(Hand, PressesAndLetsGoBeforeItClicks) {
  form.ok.MouseDown = [&](int button, int, float, float) {
    notes.push_back("down " + std::to_string(button));
  };
  form.ok.MouseUp = [&](int, int, float, float) { notes.push_back("up"); };
  user.Click(form.ok);
  EXPECT_THAT(notes, ElementsAre("down 1", "up", "ok"));
}

TEST_F(Hand, ClicksASurfaceByItsFace) {
  form.link.face.MouseDown = [&](int, int, float, float) { notes.push_back("down"); };
  EXPECT_TRUE(user.Click(form.link));
  form.link.face.MouseMove = [&](int, int, float x, float) {
    notes.push_back("move " + std::to_string(static_cast<int>(x)));
  };
  form.link.MouseMove = form.link.face.MouseMove;
  EXPECT_TRUE(user.PointAt(form.link, 30));
  EXPECT_THAT(notes, ElementsAre("down", "face", "move 30"));
}

TEST_F(Hand, MovesTheFocusToWhatTakesOne) {
  user.Click(form.text);
  user.Click(form.label);
  EXPECT_EQ(&form.text, toolkit.Focus());
  user.Click(form.ok);
  EXPECT_EQ(&form.ok, toolkit.Focus());
}

TEST_F(Hand, IsHeldByAValidation) {
  form.sound.Validate = [&](bool& keep) { keep = true; };
  EXPECT_TRUE(user.Choose(form.sound, "click"));
  notes.clear();
  EXPECT_FALSE(user.Click(form.ok));
  EXPECT_FALSE(user.Tab());
  EXPECT_EQ(&form.sound, toolkit.Focus());
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(Hand, TypesWhereTextIsTyped) {
  EXPECT_TRUE(user.Type(form.text, "x"));
  EXPECT_TRUE(user.Type(form.combo, "y"));
  EXPECT_FALSE(user.Type(form.fixed, "z"));
  EXPECT_FALSE(user.Type(form.sound, "alert"));
  EXPECT_FALSE(user.Type(form.ok, "z"));
  EXPECT_EQ("x", form.text.Text());
  EXPECT_EQ("y", form.combo.Text());
}

TEST_F(Hand, ChoosesEntriesThatAreThere) {
  EXPECT_TRUE(user.Choose(form.combo, "Dial Up"));
  EXPECT_FALSE(user.Choose(form.combo, "Modem"));
  EXPECT_FALSE(user.Choose(form.sound, "ALERT"));
  EXPECT_EQ(1, form.combo.ListIndex());
}

TEST_F(Hand, ClicksAndChecksRows) {
  form.list.Add("A", "A", "");
  form.list.Add("B", "B", "");
  EXPECT_TRUE(user.Click(form.list, 2));
  EXPECT_FALSE(user.Click(form.list, 3));
  EXPECT_TRUE(user.Check(form.list, 1, true));
  EXPECT_FALSE(user.Check(form.list, 0, true));
  EXPECT_EQ(2, form.list.SelectedIndex());
  EXPECT_TRUE(form.list.Item(1).Checked());
}

TEST_F(Hand, PressesToolButtonsButNoSeparators) {
  form.bar.ButtonClick = [&](int index) { notes.push_back(std::to_string(index)); };
  EXPECT_TRUE(user.Press(form.bar, 3));
  EXPECT_FALSE(user.Press(form.bar, 2));
  EXPECT_FALSE(user.Press(form.bar, 4));
  EXPECT_THAT(notes, ElementsAre("3"));
}

TEST_F(Hand, SelectsWhatTheMenuBarOffers) {
  form.open.Click = Note("open");
  form.leave.Click = Note("leave");
  EXPECT_TRUE(user.Select(form.open));
  EXPECT_FALSE(user.Select(form.line));
  EXPECT_FALSE(user.Select(form.leave));
  form.file.SetEnabled(false);
  EXPECT_FALSE(user.Select(form.open));
  EXPECT_THAT(notes, ElementsAre("open"));
}

TEST_F(Hand, TabsForthAndBackAndAround) {
  EXPECT_TRUE(user.Tab());
  EXPECT_EQ(&form.inside, toolkit.Focus());
  EXPECT_TRUE(user.Tab());
  EXPECT_EQ(&form.text, toolkit.Focus());
  EXPECT_TRUE(user.Tab(true));
  EXPECT_TRUE(user.Tab(true));
  EXPECT_EQ(&form.cancel, toolkit.Focus());
}

TEST_F(Hand, PressesTheDefaultTheFocusedAndTheCancelButton) {
  EXPECT_TRUE(user.Enter());
  user.Click(form.inside);
  EXPECT_TRUE(user.Enter());
  EXPECT_TRUE(user.Escape());
  EXPECT_THAT(notes, ElementsAre("ok", "inside", "inside", "cancel"));
}

TEST_F(Hand, FollowsTheLinkThatHasTheFocusByEnterAndSpace) {
  for (Control* link :
       {static_cast<Control*>(&form.link), static_cast<Control*>(&form.plainLink)}) {
    link->SetFocus();
    EXPECT_TRUE(user.Enter());
    EXPECT_TRUE(user.Space());
  }
  EXPECT_THAT(notes, ElementsAre("face", "face", "plainLink", "plainLink"));
}

TEST_F(Hand, AnswersADialogWhateverHadTheFocusBehindIt) {
  SampleForm dialog(toolkit, "frmDialog", Border::Dialog);
  dialog.ok.Click = Note("answer");
  form.plainLink.SetFocus();
  toolkit.WhenPumped([&] {
    EXPECT_FALSE(user.Space());
    EXPECT_TRUE(user.Enter());
    dialog.Hide();
  });
  dialog.ShowModal();
  EXPECT_THAT(notes, ElementsAre("answer"));
}

TEST_F(Hand, LeavesEnterToATextOfSeveralLines) {
  form.lines.SetFocus();
  EXPECT_FALSE(user.Enter());
  EXPECT_FALSE(user.Space());
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(Hand, PressesAndTicksWhatHasTheFocusBySpace) {
  form.check.SetFocus();
  EXPECT_TRUE(user.Space());
  EXPECT_EQ(Checked, form.check.Value());
  form.ok.SetFocus();
  EXPECT_TRUE(user.Space());
  form.list.Add("row", "Row", "");
  form.list.SetFocus();
  EXPECT_TRUE(user.Space());
  EXPECT_TRUE(form.list.Item(1).Checked());
  EXPECT_THAT(notes, ElementsAre("check", "ok"));
}

TEST_F(Hand, ClosesADialogWithoutACancelButtonByEscape) {
  Form plain(toolkit, "frmPlain", {.Caption = "Plain", .Left = -1, .Frame = Border::Dialog});
  SampleForm withButton(toolkit, "frmButton", Border::Dialog);
  withButton.cancel.Click = Note("cancel");
  withButton.Show();
  EXPECT_TRUE(user.Escape());
  EXPECT_TRUE(withButton.Loaded());
  EXPECT_THAT(notes, ElementsAre("cancel"));
  plain.Show();
  EXPECT_TRUE(user.Escape());
  EXPECT_FALSE(plain.Loaded());
}

TEST_F(Hand, ActsNoMoreOnceTheProgramEnds) {
  form.ok.Click = nullptr;
  form.ok.Click = [&] { toolkit.End(); };
  EXPECT_TRUE(user.Click(form.ok));
  EXPECT_FALSE(user.Click(form.check));
  EXPECT_TRUE(toolkit.Ending());
}

}  // namespace
}  // namespace vantrel::forms::headless
