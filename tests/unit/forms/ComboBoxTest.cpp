#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Bench.h"
#include "forms/ComboBox.h"

namespace vantrel::forms {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Combos : public testing::Test {
 protected:
  Combos() {
    for (ComboBox* combo : {&form.editable, &form.pickOnly}) {
      combo->Click = [this, combo] { notes.push_back("click " + combo->Text()); };
      combo->Change = [this, combo] { notes.push_back("change " + combo->Text()); };
    }
  }

  NotingToolkit toolkit;
  BenchForm form{toolkit};
  Notes notes;
};

TEST_F(Combos, AnEditableOneChangesHoweverItsTextDoes) {
  form.editable.SetText("typed");
  form.editable.AssignWindowText("sent");
  form.editable.SetListIndex(1);
  EXPECT_THAT(notes, ElementsAre("change typed", "change sent", "change Dial Up", "click Dial Up"));
}

TEST_F(Combos, AnEditableOneTakesAnyTextAndItsCase) {
  form.editable.SetText("dial up");
  EXPECT_EQ("dial up", form.editable.Text());
  EXPECT_EQ(1, form.editable.ListIndex());
  form.editable.SetText("Modem");
  EXPECT_EQ(-1, form.editable.ListIndex());
}

TEST_F(Combos, TheFirstTextIsTheDesigns) {
  EXPECT_EQ("Custom", form.editable.Text());
  EXPECT_EQ(0, form.editable.ListIndex());
  EXPECT_EQ("", form.pickOnly.Text());
  EXPECT_EQ(-1, form.pickOnly.ListIndex());
}

TEST_F(Combos, APickOnlyOneSelectsTheEntryWithoutRegardToCase) {
  form.pickOnly.SetText("Alert");
  EXPECT_EQ(0, form.pickOnly.ListIndex());
  EXPECT_EQ("alert", form.pickOnly.Text());
  EXPECT_THAT(notes, ElementsAre("click alert"));
}

TEST_F(Combos, APickOnlyOneKeepsItsSelectionForATextThatIsNoEntry) {
  form.pickOnly.SetText("crash");
  notes.clear();
  form.pickOnly.SetText("boing");
  form.pickOnly.SetText("");
  form.pickOnly.AssignWindowText("boing");
  EXPECT_EQ("crash", form.pickOnly.Text());
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(Combos, SelectingTheSelectedEntryDoesNothing) {
  form.pickOnly.SetListIndex(2);
  form.pickOnly.SetListIndex(2);
  form.pickOnly.SetText("CRASH");
  EXPECT_THAT(notes, ElementsAre("click crash"));
}

TEST_F(Combos, TheSelectionCanBeTakenAway) {
  form.pickOnly.SetListIndex(2);
  form.pickOnly.SetListIndex(-1);
  EXPECT_EQ("", form.pickOnly.Text());
  EXPECT_THAT(notes, ElementsAre("click crash", "click "));
}

TEST_F(Combos, AnIndexOutsideTheListIsAnInvalidValue) {
  EXPECT_EQ(380, ErrorOf([&] { form.pickOnly.SetListIndex(3); }));
  EXPECT_EQ(380, ErrorOf([&] { form.pickOnly.SetListIndex(-2); }));
}

TEST_F(Combos, TheEntryPastTheLastReadsAsEmpty) {
  EXPECT_EQ(3, form.pickOnly.ListCount());
  EXPECT_EQ("crash", form.pickOnly.List(2));
  EXPECT_EQ("", form.pickOnly.List(3));
  EXPECT_EQ("", form.pickOnly.List(-1));
}

TEST_F(Combos, ValidationMayKeepTheFocus) {
  form.pickOnly.Validate = [&](bool& keep) { keep = form.pickOnly.Text().empty(); };
  EXPECT_FALSE(form.pickOnly.UserLeaves());
  form.pickOnly.SetText("drop");
  form.pickOnly.SetText("click");
  EXPECT_TRUE(form.pickOnly.UserLeaves());
  EXPECT_TRUE(form.editable.UserLeaves());
}

}  // namespace
}  // namespace vantrel::forms
