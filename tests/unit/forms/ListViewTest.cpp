#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Bench.h"
#include "forms/ListView.h"

namespace vantrel::forms {
namespace {

using testing::ElementsAre;

class Lists : public testing::Test {
 protected:
  Lists() { form.EnsureLoaded(); }

  Notes Texts() const {
    Notes texts;
    for (int row = 1; row <= list.Count(); ++row) texts.push_back(list.Item(row).Text());
    return texts;
  }
  void Fill() {
    for (const char* key : {"A", "B", "C"}) list.Add(key, key, "");
  }

  NotingToolkit toolkit;
  BenchForm form{toolkit};
  ListView& list = form.list;
};

TEST_F(Lists, AKeyStandsOnce) {
  list.Add("B1", "one", "icon");
  EXPECT_EQ(35602, ErrorOf([&] { list.Add("B1", "two", ""); }));
  EXPECT_EQ(1, list.Count());
  EXPECT_EQ("one", list.Find("B1")->Text());
  EXPECT_EQ("icon", list.Find("B1")->Icon());
  EXPECT_EQ(nullptr, list.Find("B2"));
}

TEST_F(Lists, LettersFindARowFromAPlaceOnAndAroundTheEnd) {
  for (const char* text : {"alpha", "Beta", "alps", ""}) list.Add("", text, "");
  EXPECT_EQ(list.FindPrefix("al", 1), 1);
  EXPECT_EQ(list.FindPrefix("AL", 2), 3);
  EXPECT_EQ(list.FindPrefix("al", 4), 1);
  EXPECT_EQ(list.FindPrefix("b", 3), 2);
  EXPECT_EQ(list.FindPrefix("beta", -1), 2);
  EXPECT_EQ(list.FindPrefix("alpha1", 1), 0);
  EXPECT_EQ(list.FindPrefix("c", 9), 0);
  list.Clear();
  EXPECT_EQ(list.FindPrefix("a", 1), 0);
}

TEST_F(Lists, TheEmptyKeyIsNoKey) {
  list.Add("", "one", "");
  list.Add("", "two", "");
  EXPECT_EQ(2, list.Count());
  EXPECT_EQ(nullptr, list.Find(""));
}

TEST_F(Lists, AKeyMovesOnceItsRowIsGone) {
  list.Add("B1", "one", "");
  ListItem& copy = list.Add("", "one", "");
  EXPECT_EQ(35602, ErrorOf([&] { copy.SetKey("B1"); }));
  EXPECT_EQ("", copy.Key());
  list.Remove(1);
  copy.SetKey("B1");
  EXPECT_EQ(&copy, list.Find("B1"));
  copy.SetKey("B1");
  copy.SetKey("B2");
  EXPECT_EQ(nullptr, list.Find("B1"));
}

TEST_F(Lists, RowsAreAddedAtTheEndOrBeforeAnIndex) {
  Fill();
  list.Add("D", "D", "", 1);
  list.Add("E", "E", "", 5);
  EXPECT_THAT(Texts(), ElementsAre("D", "A", "B", "C", "E"));
  EXPECT_EQ(9, ErrorOf([&] { list.Add("F", "F", "", 7); }));
  EXPECT_EQ(9, ErrorOf([&] { list.Add("F", "F", "", -1); }));
  EXPECT_EQ(nullptr, list.Find("F"));
}

TEST_F(Lists, RowsAreCountedFromOne) {
  Fill();
  EXPECT_EQ(9, ErrorOf([&] { list.Item(0); }));
  EXPECT_EQ(9, ErrorOf([&] { list.Item(4); }));
  EXPECT_EQ(9, ErrorOf([&] { list.Remove(4); }));
  EXPECT_EQ(9, ErrorOf([&] { list.Select(0); }));
}

TEST_F(Lists, AListWithRowsHasASelectedRow) {
  EXPECT_EQ(0, list.SelectedIndex());
  EXPECT_EQ(nullptr, list.SelectedItem());
  Fill();
  EXPECT_EQ(1, list.SelectedIndex());
  list.Select(2);
  list.Clear();
  EXPECT_EQ(0, list.SelectedIndex());
  Fill();
  EXPECT_EQ(1, list.SelectedIndex());
}

TEST_F(Lists, TheSelectionStaysWithItsRow) {
  Fill();
  list.Select(2);
  list.Add("D", "D", "", 1);
  EXPECT_EQ("B", list.SelectedItem()->Text());
  list.Remove(1);
  EXPECT_EQ("B", list.SelectedItem()->Text());
  list.Remove(3);
  EXPECT_EQ("B", list.SelectedItem()->Text());
}

TEST_F(Lists, TheRowThatTakesTheSelectedOnesPlaceIsSelected) {
  Fill();
  list.Select(2);
  list.Remove(2);
  EXPECT_EQ("C", list.SelectedItem()->Text());
  list.Remove(2);
  EXPECT_EQ("A", list.SelectedItem()->Text());
  list.Remove(1);
  EXPECT_EQ(0, list.SelectedIndex());
}

TEST_F(Lists, TheDropHighlightStaysWithItsRow) {
  Fill();
  list.SetDropHighlight(2);
  list.Add("D", "D", "", 1);
  EXPECT_EQ(3, list.DropHighlight());
  list.Remove(1);
  EXPECT_EQ(2, list.DropHighlight());
  list.Remove(2);
  EXPECT_EQ(0, list.DropHighlight());
  EXPECT_EQ(9, ErrorOf([&] { list.SetDropHighlight(9); }));
  PeerOf(list).changes = 0;
  list.SetDropHighlight(0);
  EXPECT_EQ(0, PeerOf(list).changes);
}

TEST_F(Lists, SubItemsAreCountedFromOne) {
  ListItem& row = list.Add("A", "A", "");
  row.AddSubItem("kind", "Allowed");
  EXPECT_EQ("Allowed", row.Sub(1).Text);
  EXPECT_EQ("kind", row.Sub(1).Key);
  row.SetSubText(1, "Block");
  EXPECT_EQ("Block", row.Sub(1).Text);
  EXPECT_EQ(35601, ErrorOf([&] { row.Sub(0); }));
  EXPECT_EQ(35601, ErrorOf([&] { row.SetSubText(2, "x"); }));
}

TEST_F(Lists, ARowKeepsItsTagItsTipAndItsIconBesideItsSubItems) {
  ListItem& row = list.Add("A", "A", "icon");
  EXPECT_EQ("", row.Tag() + row.ToolTipText());
  row.AddSubItem("kind", "Allowed");
  row.AddSubItem("", "");
  row.SetTag("tag");
  row.SetToolTipText("tip");
  row.SetSubText(2, "Last");
  EXPECT_EQ("icon tag tip", row.Icon() + " " + row.Tag() + " " + row.ToolTipText());
  EXPECT_EQ("kind Allowed", row.Sub(1).Key + " " + row.Sub(1).Text);
  EXPECT_EQ("Last", row.Sub(2).Text);
}

TEST_F(Lists, TheUsersClickSelectsThenTells) {
  Fill();
  Notes notes;
  list.ItemClick = [&](ListItem& row) {
    notes.push_back("item " + row.Text() + " of " + list.SelectedItem()->Text());
  };
  list.Click = [&] { notes.push_back("click"); };
  list.UserSelects(2);
  list.UserSelects(2);
  list.UserSelects(4);
  list.Select(3);
  EXPECT_THAT(notes, ElementsAre("item B of B", "click", "item B of B", "click"));
}

TEST_F(Lists, TheUsersCheckTells) {
  Fill();
  int checks = 0;
  list.ItemCheck = [&](ListItem& row) { checks += row.Checked() ? 1 : 10; };
  list.UserChecks(1, true);
  list.UserChecks(1, true);
  EXPECT_EQ(1, checks);
  list.UserChecks(1, false);
  EXPECT_EQ(11, checks);
}

TEST_F(Lists, WhereThereIsNoRowTheUserNeitherClicksNorChecks) {
  Fill();
  PeerOf(list).changes = 0;
  list.ItemClick = [](ListItem& row) { ADD_FAILURE() << row.Text(); };
  list.ItemCheck = [](ListItem& row) { ADD_FAILURE() << row.Text(); };
  list.Click = [] { ADD_FAILURE() << "clicked"; };
  for (const int index : {-1, 0, 4}) {
    list.UserSelects(index);
    list.UserChecks(index, true);
  }
  EXPECT_EQ(0, PeerOf(list).changes);
}

TEST_F(Lists, ADisabledListIsNeitherClickedNorChecked) {
  Fill();
  list.SetEnabled(false);
  list.ItemClick = [](ListItem& row) { ADD_FAILURE() << row.Text(); };
  list.UserSelects(2);
  list.UserChecks(2, true);
  EXPECT_EQ(1, list.SelectedIndex());
  EXPECT_FALSE(list.Item(2).Checked());
}

TEST_F(Lists, WithoutCheckBoxesNothingIsChecked) {
  struct PlainForm : Form {
    explicit PlainForm(Toolkit& toolkit) : Form(toolkit, "frmPlain", {}) {}
    ListView list{*this, "list", {}, {.Columns = {{"Name", 900}}}};
  } plain{toolkit};
  plain.list.Add("A", "A", "");
  plain.list.UserChecks(1, true);
  EXPECT_FALSE(plain.list.Item(1).Checked());
}

TEST_F(Lists, AHandlerMayRemoveTheRowThatWasClicked) {
  Fill();
  list.ItemClick = [&](ListItem&) { list.Clear(); };
  list.UserSelects(3);
  EXPECT_EQ(0, list.Count());
}

TEST_F(Lists, AChangeOfARowIsToldAndNoChangeIsNot) {
  ListItem& row = list.Add("A", "A", "");
  row.AddSubItem("", "x");
  PeerOf(list).changes = 0;
  row.SetText("A");
  row.SetSubText(1, "x");
  row.SetChecked(false);
  list.Select(1);
  EXPECT_EQ(0, PeerOf(list).changes);
  row.SetText("B");
  row.SetSubText(1, "y");
  row.SetChecked(true);
  EXPECT_EQ(3, PeerOf(list).changes);
}

TEST_F(Lists, TenThousandRowsTellOnceEach) {
  PeerOf(list).changes = 0;
  for (int row = 0; row < 10000; ++row) list.Add(std::to_string(row), "row", "");
  EXPECT_EQ(10000, PeerOf(list).changes);
  EXPECT_EQ("row", list.Find("9999")->Text());
  list.Clear();
  EXPECT_EQ(10001, PeerOf(list).changes);
  EXPECT_EQ(nullptr, list.Find("9999"));
  list.Clear();
  EXPECT_EQ(10001, PeerOf(list).changes);
}

}  // namespace
}  // namespace vantrel::forms
