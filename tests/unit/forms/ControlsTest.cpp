#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Bench.h"
#include "forms/Controls.h"

namespace vantrel::forms {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Controls : public testing::Test {
 protected:
  Controls() {
    form.EnsureLoaded();
    toolkit.notes.clear();
  }

  Event<>::Handler Note(const std::string& what) {
    return [this, what] { toolkit.notes.push_back(what); };
  }

  NotingToolkit toolkit;
  BenchForm form{toolkit};
  Notes& notes = toolkit.notes;
};

TEST_F(Controls, AreNamedAfterTheirWindowAndIndex) {
  EXPECT_EQ("frmBench.button", form.button.QualifiedName());
  EXPECT_EQ("frmBench.two(1)", form.two.QualifiedName());
}

TEST_F(Controls, AreFoundByNameWithoutRegardToCase) {
  EXPECT_EQ(&form.button, form.FindControl("BUTTON"));
  EXPECT_EQ(&form.two, form.FindControl("two(1)"));
  EXPECT_EQ(nullptr, form.FindControl("two"));
  EXPECT_EQ(nullptr, form.FindControl(""));
}

TEST_F(Controls, AssignmentOfWhatIsThereDoesNothing) {
  form.check.Click = Note("click");
  form.text.Change = Note("change");
  form.label.Change = Note("change");
  form.editable.Change = Note("change");
  form.editable.Click = Note("click");
  form.check.SetValue(Unchecked);
  form.text.SetText("");
  form.label.SetCaption("Label");
  form.editable.SetText("Custom");
  form.editable.SetListIndex(0);
  form.one.SetValue(true);
  form.label.SetVisible(true);
  form.label.SetEnabled(true);
  form.label.SetToolTipText("");
  form.label.Move(form.label.At());
  form.label.SetForeColor(form.label.ForeColor());
  form.label.SetBackColor(form.label.BackColor());
  form.label.SetTextFont(form.label.TextFont());
  form.label.SetMousePointer(0);
  form.label.SetAlignment(Align::Left);
  form.timer.SetInterval(2000);
  form.progress.SetValue(0);
  form.progress.SetMin(0);
  form.progress.SetMax(100);
  form.chart.SetData("1");
  form.SetCaption("Bench");
  form.SetWidth(3000);
  form.SetHeight(2000);
  form.SetWindowState(WindowState::Normal);
  form.SetMousePointer(0);
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(Controls, AChangeIsShownBeforeItsEvent) {
  form.text.Change = [&] { notes.push_back("change to " + form.text.Text()); };
  form.text.SetText("x");
  EXPECT_THAT(notes, ElementsAre("text changed 0", "change to x"));
}

TEST_F(Controls, AChangeFromCodeRaisesLikeTheUsers) {
  form.check.Click = Note("click");
  form.check.SetValue(Checked);
  form.check.UserClick();
  EXPECT_THAT(notes, ElementsAre("check changed 5", "click", "check changed 5", "click"));
}

TEST_F(Controls, ATextFromOutsideIsAssigned) {
  form.text.Change = Note("change");
  form.button.AssignWindowText("/clean");
  form.text.AssignWindowText("x");
  EXPECT_EQ("/clean", form.button.Caption());
  EXPECT_EQ("x", form.text.Text());
  EXPECT_THAT(notes, ElementsAre("button changed 0", "text changed 0", "change"));
}

TEST_F(Controls, CascadesNest) {
  form.check.Click = [&] {
    notes.push_back("in");
    form.text.SetText("seen");
    notes.push_back("out");
  };
  form.text.Change = Note("change");
  form.check.SetValue(Checked);
  EXPECT_THAT(notes, ElementsAre("check changed 5", "in", "text changed 0", "change", "out"));
}

TEST_F(Controls, AHandlerMayChangeItsOwnControlAgain) {
  form.check.Click = [&] {
    notes.push_back(std::to_string(form.check.Value()));
    form.check.SetValue(Grayed);
  };
  form.check.SetValue(Checked);
  EXPECT_EQ(Grayed, form.check.Value());
  EXPECT_THAT(notes, ElementsAre("check changed 5", "1", "check changed 5", "2"));
}

TEST_F(Controls, AnEventIsBoundOnce) {
  form.button.Click = Note("first");
  EXPECT_THROW(form.button.Click = Note("second"), std::logic_error);
  form.button.SetValue(true);
  EXPECT_THAT(notes, ElementsAre("first"));
}

TEST_F(Controls, AHandlerMayReleaseItsEventAndBindAnother) {
  form.button.Click = [&] {
    form.button.Click = nullptr;
    form.button.Click = Note("second");
    notes.push_back("first");
  };
  form.button.SetValue(true);
  form.button.SetValue(true);
  EXPECT_THAT(notes, ElementsAre("first", "second"));
}

TEST_F(Controls, AnErrorPassesToTheStatementThatRaisedTheEvent) {
  form.text.Change = [] { throw text::RuntimeError(text::ErrorNumber::DiskFull); };
  form.check.Click = [&] {
    EXPECT_EQ(61, ErrorOf([&] { form.text.SetText("x"); }));
    notes.push_back("went on");
  };
  form.check.SetValue(Checked);
  EXPECT_EQ("went on", notes.back());
  EXPECT_EQ("x", form.text.Text());
}

TEST_F(Controls, ACheckBoxTakesThreeStatesAndNoOther) {
  form.check.SetValue(Grayed);
  EXPECT_EQ(380, ErrorOf([&] { form.check.SetValue(3); }));
  EXPECT_EQ(380, ErrorOf([&] { form.check.SetValue(-1); }));
  EXPECT_EQ(Grayed, form.check.Value());
}

TEST_F(Controls, TheUserTicksAClearBoxAndClearsAnyOther) {
  form.check.UserClick();
  EXPECT_EQ(Checked, form.check.Value());
  form.check.UserClick();
  EXPECT_EQ(Unchecked, form.check.Value());
  form.check.SetValue(Grayed);
  form.check.UserClick();
  EXPECT_EQ(Unchecked, form.check.Value());
}

TEST_F(Controls, DisabledControlsGetNoClickFromTheUser) {
  form.button.Click = Note("click");
  form.button.SetEnabled(false);
  form.check.SetEnabled(false);
  form.lone.SetEnabled(false);
  form.toolbar.ButtonClick = [&](int) { notes.push_back("press"); };
  form.toolbar.SetEnabled(false);
  notes.clear();
  form.toolbar.UserPresses(1);
  form.button.UserClick();
  form.check.UserClick();
  form.lone.UserClick();
  EXPECT_THAT(notes, IsEmpty());
  EXPECT_FALSE(form.lone.Value());
}

TEST_F(Controls, AButtonsValueClicksItEvenDisabled) {
  form.button.Click = Note("click");
  form.button.SetEnabled(false);
  notes.clear();
  form.button.SetValue(false);
  form.button.SetValue(true);
  EXPECT_THAT(notes, ElementsAre("click"));
}

TEST_F(Controls, AnOptionClearsTheOthersOfItsContainerAndClicksOnce) {
  form.one.Click = Note("one");
  form.two.Click = Note("two");
  form.lone.SetValue(true);
  notes.clear();
  form.two.SetValue(true);
  EXPECT_FALSE(form.one.Value());
  EXPECT_TRUE(form.two.Value());
  EXPECT_TRUE(form.lone.Value());
  EXPECT_THAT(notes, ElementsAre("one changed 5", "two changed 5", "two"));
}

TEST_F(Controls, ClearingAnOptionClicksNothing) {
  form.one.Click = Note("one");
  form.one.SetValue(false);
  EXPECT_FALSE(form.two.Value());
  EXPECT_THAT(notes, ElementsAre("one changed 5"));
}

TEST_F(Controls, AnOptionsHandlerSeesTheWholeGroup) {
  form.two.Click = [&] { EXPECT_FALSE(form.one.Value()); };
  form.two.UserClick();
  EXPECT_TRUE(form.two.Value());
}

TEST_F(Controls, AProgressBarKeepsToItsRange) {
  form.progress.SetMax(50);
  form.progress.SetValue(50);
  EXPECT_EQ(380, ErrorOf([&] { form.progress.SetValue(51); }));
  EXPECT_EQ(380, ErrorOf([&] { form.progress.SetValue(-1); }));
  EXPECT_EQ(50, form.progress.Value());
}

TEST_F(Controls, AProgressBarsRangeIsNeverEmpty) {
  EXPECT_EQ(380, ErrorOf([&] { form.progress.SetMax(0); }));
  EXPECT_EQ(380, ErrorOf([&] { form.progress.SetMin(100); }));
  form.progress.SetValue(80);
  form.progress.SetMax(60);
  EXPECT_EQ(60, form.progress.Value());
  form.progress.SetMin(10);
  EXPECT_EQ(60, form.progress.Value());
}

TEST_F(Controls, ATimersIntervalHas16Bits) {
  form.timer.SetInterval(65535);
  EXPECT_EQ(380, ErrorOf([&] { form.timer.SetInterval(65536); }));
  EXPECT_EQ(380, ErrorOf([&] { form.timer.SetInterval(-1); }));
  form.timer.SetInterval(0);
  EXPECT_THAT(notes, ElementsAre("timer changed 5", "timer changed 5"));
}

TEST_F(Controls, ALabelTellsThatItTakesTheSizeOfItsText) {
  form.label.SetAutoSize(true);
  form.label.SetAutoSize(true);
  EXPECT_THAT(notes, ElementsAre("label changed 3"));
}

TEST_F(Controls, AnImageTakesItsPictureByNumberOrKey) {
  form.image.SetPicture(form.images, "SEARCH");
  EXPECT_EQ(2, form.image.Number());
  form.image.SetPicture(form.images, 1);
  EXPECT_EQ(1, form.image.Number());
  EXPECT_EQ(&form.images, form.image.List());
  EXPECT_EQ(35601, ErrorOf([&] { form.image.SetPicture(form.images, 3); }));
  EXPECT_EQ(35601, ErrorOf([&] { form.image.SetPicture(form.images, 0); }));
  EXPECT_EQ(35601, ErrorOf([&] { form.image.SetPicture(form.images, "Away"); }));
  EXPECT_EQ(1, form.image.Number());
  EXPECT_EQ("frmBench.images", form.images.QualifiedName());
}

TEST_F(Controls, AChartIsFilledThroughItsCurrentColumn) {
  form.chart.SetColumn(2);
  EXPECT_EQ("2", form.chart.Data());
  form.chart.SetData("9");
  EXPECT_EQ("9", form.chart.Columns()[1].Data);
  EXPECT_EQ("1", form.chart.Columns()[0].Data);
  EXPECT_EQ(9, ErrorOf([&] { form.chart.SetColumn(3); }));
  EXPECT_EQ(9, ErrorOf([&] { form.chart.SetColumn(0); }));
}

TEST_F(Controls, AFileListReadsItsFolder) {
  form.files.ReadFolder = [](const std::string& path) { return Notes{path + "a", path + "b"}; };
  form.files.SetPath("C:\\");
  EXPECT_EQ(2, form.files.ListCount());
  EXPECT_EQ("C:\\b", form.files.List(1));
  EXPECT_EQ("", form.files.List(2));
  EXPECT_EQ("", form.files.List(-1));
}

TEST_F(Controls, AFileListThatCannotReadIsEmpty) {
  form.files.ReadFolder = [](const std::string&) { return Notes{"a"}; };
  form.files.SetPath("C:\\");
  form.files.ReadFolder = [](const std::string&) -> Notes {
    throw text::RuntimeError(text::ErrorNumber::PathNotFound);
  };
  EXPECT_EQ(76, ErrorOf([&] { form.files.SetPath("Q:\\"); }));
  EXPECT_EQ(0, form.files.ListCount());
  EXPECT_EQ("Q:\\", form.files.Path());
}

TEST_F(Controls, AStatusBarHasItsPanels) {
  form.status.SetPanelText(1, "Busy");
  form.status.SetPanelText(1, "Busy");
  EXPECT_EQ("Busy", form.status.Panels()[0].Text);
  EXPECT_EQ(9, ErrorOf([&] { form.status.SetPanelText(2, "x"); }));
  EXPECT_EQ(9, ErrorOf([&] { form.status.SetPanelText(0, "x"); }));
  EXPECT_THAT(notes, ElementsAre("status changed 0"));
}

TEST_F(Controls, AToolbarPressesButtonsOnly) {
  form.toolbar.ButtonClick = [&](int index) { notes.push_back(std::to_string(index)); };
  for (int index = 0; index <= 4; ++index) form.toolbar.UserPresses(index);
  EXPECT_THAT(notes, ElementsAre("1", "3"));
}

TEST_F(Controls, MenusAreNumberedInTheOrderOfTheirMaking) {
  EXPECT_THAT(form.Menus(), ElementsAre(&form.file, &form.tray));
  EXPECT_THAT(form.AllMenus(),
              ElementsAre(&form.file, &form.open, &form.line, &form.tray, &form.leave));
  EXPECT_EQ(Menu::FirstIdentifier + 1, form.open.Identifier());
  EXPECT_EQ(&form.leave, form.FindMenu(Menu::FirstIdentifier + 4));
  EXPECT_EQ(nullptr, form.FindMenu(Menu::FirstIdentifier + 5));
}

TEST_F(Controls, DisabledEntriesAndSeparatorsAreNotChosen) {
  form.open.Click = Note("open");
  form.line.Click = Note("line");
  form.open.UserClick();
  form.open.SetEnabled(false);
  form.open.UserClick();
  form.line.UserClick();
  EXPECT_THAT(notes, ElementsAre("open"));
}

}  // namespace
}  // namespace vantrel::forms
