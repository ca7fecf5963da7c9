// The toolbar's layout: the stored list and name byte by byte, and the dialog that arranges it.
#include <gmock/gmock.h>

#include "settings/FirstRun.h"
#include "support/ComponentFixture.h"
#include "toolbar/Attach.h"
#include "toolbar/Catalogue.h"
#include "windows/frmMain.h"
#include "windows/frmcustom.h"

namespace vantrel::toolbar {
namespace {

using platform::HKeyCurrentUser;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

constexpr const char* Key = "Toolbar Settings";
constexpr const char* List = "Toolbar Settings";
constexpr const char* Name = "Toolbar Name";
constexpr const char* WholeList = "1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19";
constexpr const char* EndOfLoad = "Some error occured while processing.";
constexpr const char* KeyTaken = "Key is not unique in collection";

using Rows = std::vector<std::string>;

// "B5 Refresh"; the icon only where it is not the caption.
Rows RowsOf(const forms::ListView& list) {
  Rows rows;
  for (int row = 1; row <= list.Count(); ++row) {
    const forms::ListItem& item = list.Item(row);
    std::string line = item.Key() + ' ' + item.Text();
    if (item.Icon() != item.Text()) line += " with icon " + item.Icon();
    rows.push_back(line);
    if (list.Find(item.Key()) != &item) rows.push_back("not found by its key");
  }
  return rows;
}

Rows KeysOf(const forms::ListView& list) {
  Rows keys;
  for (int row = 1; row <= list.Count(); ++row) keys.push_back(list.Item(row).Key());
  return keys;
}

Rows WholeCatalogue() {
  Rows rows;
  for (const Entry& entry : Catalogue) {
    rows.push_back(RowKey(entry.Number) + ' ' + entry.Caption);
  }
  return rows;
}

class Toolbar : public test::ComponentFixture {
 protected:
  Toolbar() {
    AttachToolbar(program);
    SetText(Key, Name, "Vantrel");
    SetText(Key, List, WholeList);
  }

  // Opens the dialog over the stored list, anew if it is open.
  windows::frmcustom& Open(const std::string& list) {
    SetText(Key, List, list);
    return Open();
  }
  windows::frmcustom& Reopen() {
    user.Close(Dialog());
    return Open();
  }
  windows::frmcustom& Open() {
    AsEvent([&] { program.windows.frmcustom->Show(); });
    return Dialog();
  }
  windows::frmcustom& Dialog() { return *program.windows.frmcustom; }
  const forms::ListView& Current() { return Dialog().lstvCurrent; }
  const forms::ListView& NotShown() { return Dialog().lstvSet; }

  std::optional<std::string> StoredList() const { return Text(Key, List); }
  std::optional<std::string> StoredName() const { return Text(Key, Name); }
  std::optional<platform::memory::RegistryValue> Stored(const char* value) const {
    return world.registry.Get(HKeyCurrentUser, Tree(Key), value);
  }
  void Save() { EXPECT_TRUE(user.Click(Dialog().cmdDone)); }

  // The dialog works on: Reset fills it, and a save stores the whole list.
  void ExpectUsable() {
    process.ClearBoxes();
    EXPECT_TRUE(Dialog().Visible());
    EXPECT_EQ(Dialog().txttoolbarname.Text(), "Vantrel");
    EXPECT_TRUE(user.Click(Dialog().cmdReset));
    EXPECT_THAT(RowsOf(Current()), ElementsAreArray(WholeCatalogue()));
    EXPECT_THAT(RowsOf(NotShown()), IsEmpty());
    Save();
    EXPECT_THAT(BoxTexts(), IsEmpty());
    EXPECT_EQ(process.OpenKeys(), 0U);
  }
  // The boxes of a load that does not succeed: plain, with the application's title.
  void ExpectLoadFails(const std::string& description) {
    const std::string title = program::ApplicationTitle;
    EXPECT_THAT(BoxTexts(), ElementsAre(description, EndOfLoad));
    for (const auto& box : process.Boxes()) {
      EXPECT_EQ(box.style, platform::StylePlain);
      EXPECT_EQ(box.title, title);
    }
  }
};

// The stored layout.

TEST_F(Toolbar, TheFirstRunsListIsTheWholeCatalogueInItsOrder) {
  Open();
  EXPECT_THAT(RowsOf(Current()),
              ElementsAre("B1 Home", "B2 Seperator", "B3 Clean", "B4 Seperator", "B5 Refresh",
                          "B6 Seperator", "B7 Add Links", "B8 Seperator", "B9 On/Off",
                          "B10 Seperator", "B11 Toolbar Settings", "B12 Notification", "B13 Graph",
                          "B14 IE Plugins", "B15 IE Settings", "B16 Seperator", "B17 Options",
                          "B18 Seperator", "B19 Help Vantrel"));
  EXPECT_THAT(RowsOf(NotShown()), IsEmpty());
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

TEST_F(Toolbar, AFirstRunStoresThatList) {
  RemoveValue(Key, Name);
  settings::CheckAndCreateRegitry(program);
  EXPECT_EQ(StoredList(), WholeList);
  EXPECT_EQ(StoredName(), "Vantrel");
}

TEST_F(Toolbar, EachCaptionHasItsPicture) {
  Open();
  for (const Entry& entry : Catalogue) {
    EXPECT_GT(Dialog().ImageList1.NumberOf(entry.Caption), 0) << entry.Caption;
  }
}

TEST_F(Toolbar, WhatTheListDoesNotNameIsNotShownInTheCataloguesOrder) {
  Open("1,3,5");
  EXPECT_THAT(RowsOf(Current()), ElementsAre("B1 Home", "B3 Clean", "B5 Refresh"));
  EXPECT_THAT(RowsOf(NotShown()),
              ElementsAre("B2 Seperator", "B4 Seperator", "B6 Seperator", "B7 Add Links",
                          "B8 Seperator", "B9 On/Off", "B10 Seperator", "B11 Toolbar Settings",
                          "B12 Notification", "B13 Graph", "B14 IE Plugins", "B15 IE Settings",
                          "B16 Seperator", "B17 Options", "B18 Seperator", "B19 Help Vantrel"));
}

TEST_F(Toolbar, ASavedOrderComesBack) {
  Open("5,1");
  Save();
  EXPECT_EQ(StoredList(), "5,1");
  Reopen();
  EXPECT_THAT(RowsOf(Current()), ElementsAre("B5 Refresh", "B1 Home"));
}

TEST_F(Toolbar, ABlankInTheListDoesNotMatterAndIsNotWritten) {
  Open("1, 3");
  EXPECT_THAT(RowsOf(Current()), ElementsAre("B1 Home", "B3 Clean"));
  Save();
  EXPECT_EQ(StoredList(), "1,3");
}

TEST_F(Toolbar, LettersReadAsNumberZeroWithoutACaption) {
  Open("abc,3");
  EXPECT_THAT(RowsOf(Current()), ElementsAre("B0 ", "B3 Clean"));
  EXPECT_EQ(NotShown().Count(), 18);
  EXPECT_THAT(BoxTexts(), IsEmpty());
  Save();
  EXPECT_EQ(StoredList(), "0,3");
}

TEST_F(Toolbar, ANumberThatIsNoEntrysGetsTheCaptionBeforeIt) {
  Open("20,3,32767,5,0");
  EXPECT_THAT(RowsOf(Current()),
              ElementsAre("B20 ", "B3 Clean", "B32767 Clean", "B5 Refresh", "B0 Refresh"));
  Save();
  EXPECT_EQ(StoredList(), "20,3,32767,5,0");
}

TEST_F(Toolbar, OnlyLeadingDigitsCount) {
  for (const auto& [part, key] :
       {std::pair{"3x", "B3"}, std::pair{"003", "B3"}, std::pair{"3.9", "B3"},
        std::pair{"3 9", "B3"}, std::pair{"   3   ", "B3"}, std::pair{"-3", "B0"},
        std::pair{"+3", "B0"}, std::pair{"&h3", "B0"}, std::pair{"1e1", "B1"},
        std::pair{" ", "B0"}}) {
    Open(part);
    EXPECT_THAT(KeysOf(Current()), ElementsAre(key)) << part;
    user.Close(Dialog());
  }
}

TEST_F(Toolbar, AnEmptyPartReadsAsZero) {
  Open("1,");
  EXPECT_THAT(RowsOf(Current()), ElementsAre("B1 Home", "B0 Home"));
  Reopen();
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

TEST_F(Toolbar, BothValuesAreWrittenAsTextsWithoutATerminatorTheListFirst) {
  Open("5,1");
  process.Trace().Clear();
  Save();
  EXPECT_THAT(Writes(), ElementsAre("Toolbar Settings \"Toolbar Settings\" 1 \"5,1\" -> 0",
                                    "Toolbar Settings \"Toolbar Name\" 1 \"Vantrel\" -> 0"));
  EXPECT_EQ(Stored(List)->data, "5,1");
  EXPECT_EQ(Stored(Name)->data, "Vantrel");
}

TEST_F(Toolbar, NothingElseIsWrittenByALoadOrASave) {
  Open("5,1");
  EXPECT_THAT(Writes(), IsEmpty());
  Save();
  EXPECT_EQ(Writes().size(), 2U);
}

TEST_F(Toolbar, ASaveMakesNoKey) {
  Open();
  world.registry.RemoveKey(HKeyCurrentUser, Tree(Key));
  Save();
  EXPECT_FALSE(world.registry.HasKey(HKeyCurrentUser, Tree(Key)));
  EXPECT_THAT(BoxTexts(), IsEmpty());
  EXPECT_FALSE(Dialog().cmdDone.Enabled());
}

TEST_F(Toolbar, ASaveKeepsTheTypeOfAValue) {
  Open("7,1");
  SetNumber(Key, Name, 5);
  world.registry.Set(HKeyCurrentUser, Tree(Key), List, platform::RegBinary, "ab");
  Save();
  EXPECT_EQ(Stored(Name)->type, platform::RegDword);
  EXPECT_EQ(Number(Key, Name), 0U);
  EXPECT_EQ(Stored(List)->type, platform::RegBinary);
  EXPECT_EQ(Stored(List)->data.size(), 1024U);
}

// The error path of the load.

TEST_F(Toolbar, AMissingListEndsTheLoadBehindAnEmptyBox) {
  RemoveValue(Key, List);
  Open();
  ExpectLoadFails("");
  EXPECT_THAT(RowsOf(Current()), IsEmpty());
  EXPECT_THAT(RowsOf(NotShown()), IsEmpty());
  ExpectUsable();
  EXPECT_EQ(StoredList(), WholeList);
}

TEST_F(Toolbar, AnEmptyToolbarIsStoredAsAnEmptyTextWhichTheNextLoadReports) {
  Open("3,9");
  for (int row = 0; row < 2; ++row) EXPECT_TRUE(user.Click(Dialog().cmdRemove));
  EXPECT_THAT(RowsOf(Current()), IsEmpty());
  Save();
  EXPECT_EQ(Stored(List)->type, platform::RegSz);
  EXPECT_EQ(Stored(List)->data, "");
  Reopen();
  ExpectLoadFails("");
  ExpectUsable();
}

TEST_F(Toolbar, AnEmptyNameCannotBeReadBack) {
  Open("3");
  user.Type(Dialog().txttoolbarname, "");
  Save();
  EXPECT_EQ(Stored(Name)->data, "");
  Reopen();
  ExpectLoadFails("Invalid procedure call or argument");
  EXPECT_THAT(RowsOf(Current()), IsEmpty());
  ExpectUsable();
}

TEST_F(Toolbar, ANumberThatStandsTwiceEndsTheLoadThere) {
  Open("5,1,5,7");
  ExpectLoadFails(KeyTaken);
  EXPECT_THAT(RowsOf(Current()), ElementsAre("B5 Refresh", "B1 Home"));
  EXPECT_THAT(RowsOf(NotShown()), IsEmpty());
  ExpectUsable();
}

TEST_F(Toolbar, LettersTwiceAreANumberTwice) {
  Open("abc,,3");
  ExpectLoadFails(KeyTaken);
  ExpectUsable();
}

TEST_F(Toolbar, ANumberBeyondSixteenBitsEndsTheLoadThere) {
  for (const std::string& huge :
       {std::string("32768"), std::string("4294967297"), std::string(900, '9')}) {
    Open("5," + huge + ",1");
    ExpectLoadFails("Overflow");
    EXPECT_THAT(RowsOf(Current()), ElementsAre("B5 Refresh"));
    ExpectUsable();
    user.Close(Dialog());
  }
}

TEST_F(Toolbar, AListThatIsTooLongToReadIsAnEmptyOne) {
  std::string list = "1";
  for (int number = 2; number <= 100000; ++number) list += ',' + std::to_string(number);
  Open(list);
  ExpectLoadFails("");
  ExpectUsable();
  // A value beyond the buffer is not overwritten either.
  EXPECT_EQ(StoredList(), list);
}

TEST_F(Toolbar, ListsOfOtherTypesAreEmptyOrANumber) {
  for (const std::uint32_t type : {platform::RegBinary, platform::RegExpandSz, 7U, 11U, 0U}) {
    world.registry.Set(HKeyCurrentUser, Tree(Key), List, type, "1,2");
    Open();
    ExpectLoadFails("");
    ExpectUsable();
    user.Close(Dialog());
  }
  SetNumber(Key, List, 7);
  Open();
  EXPECT_THAT(BoxTexts(), IsEmpty());
  EXPECT_THAT(RowsOf(Current()), ElementsAre("B7 Add Links"));
}

TEST_F(Toolbar, AListThatIsMendedWhileTheBoxIsUpIsReadOn) {
  world.registry.Set(HKeyCurrentUser, Tree(Key), Name, platform::RegSz, "");
  process.WhileBoxIsUp = [&](const platform::memory::Box&) { SetText(Key, Name, "Mended"); };
  Open("3,1");
  EXPECT_THAT(BoxTexts(), ElementsAre("Invalid procedure call or argument"));
  EXPECT_EQ(Dialog().ToolbarName, "Mended");
  EXPECT_THAT(RowsOf(Current()), ElementsAre("B3 Clean", "B1 Home"));
  EXPECT_EQ(NotShown().Count(), 17);
}

TEST_F(Toolbar, TheDialogMayBeUsedAndClosedWhileABoxOfItsLoadIsUp) {
  SetText(Key, List, "1,1");
  process.WhileBoxIsUp = [&](const platform::memory::Box&) {
    if (BoxTexts().size() > 1) return;
    AsEvent([&] { program.windows.frmcustom->Show(); });
    EXPECT_TRUE(user.Click(Dialog().cmdReset));
    EXPECT_TRUE(user.Close(Dialog()));
  };
  AsEvent([&] { program.windows.frmcustom->Show(); });
  // Whoever has asked for it still gets it, loaded anew.
  EXPECT_THAT(BoxTexts(), ElementsAre(KeyTaken, EndOfLoad, KeyTaken, EndOfLoad));
  EXPECT_THAT(RowsOf(Current()), ElementsAre("B1 Home"));
  ExpectUsable();
}

// The dialog.

TEST_F(Toolbar, TheDialogOpensWithUnsavedChangesAndTheConstantName) {
  SetText(Key, Name, "Mine");
  Open();
  EXPECT_EQ(Dialog().Caption(), "  Customize Toolbar - Vantrel");
  EXPECT_EQ(Dialog().ToolbarName, "Mine");
  EXPECT_EQ(Dialog().txttoolbarname.Text(), "Vantrel");
  EXPECT_TRUE(Dialog().cmdDone.Enabled());
  EXPECT_EQ(Dialog().ActiveList, "");
}

TEST_F(Toolbar, TheFocusGoesToAddWheneverTheDialogBecomesActive) {
  Open();
  EXPECT_EQ(toolkit.Focus(), &Dialog().cmdAdd);
  Dialog().txttoolbarname.SetFocus();
  AsEvent([&] { program.windows.frmMain->Show(); });
  Open();
  EXPECT_EQ(toolkit.Focus(), &Dialog().cmdAdd);
}

TEST_F(Toolbar, OkStraightAwayWritesTheListUnchangedAndTheConstantName) {
  SetText(Key, Name, "Mine");
  Open("9,5");
  EXPECT_TRUE(user.Click(Dialog().Command1));
  EXPECT_EQ(StoredList(), "9,5");
  EXPECT_EQ(StoredName(), "Vantrel");
  EXPECT_FALSE(program.windows.frmcustom.Loaded());
}

TEST_F(Toolbar, OkBehindASaveWritesNothingMore) {
  Open();
  Save();
  EXPECT_FALSE(Dialog().cmdDone.Enabled());
  SetText(Key, List, "1");
  EXPECT_TRUE(user.Click(Dialog().Command1));
  EXPECT_EQ(StoredList(), "1");
  EXPECT_FALSE(program.windows.frmcustom.Loaded());
}

TEST_F(Toolbar, ClosingByTheFrameDropsTheChangesWithoutAQuestion) {
  Open("9,5");
  EXPECT_TRUE(user.Click(Dialog().cmdReset));
  EXPECT_TRUE(user.Close(Dialog()));
  EXPECT_EQ(StoredList(), "9,5");
  EXPECT_THAT(BoxTexts(), IsEmpty());
  Open();
  EXPECT_THAT(RowsOf(Current()), ElementsAre("B9 On/Off", "B5 Refresh"));
}

TEST_F(Toolbar, EscapeClosesAndEnterPressesOk) {
  Open("9,5");
  EXPECT_TRUE(user.Click(Dialog().cmdReset));
  EXPECT_TRUE(user.Escape());
  EXPECT_FALSE(program.windows.frmcustom.Loaded());
  EXPECT_EQ(StoredList(), "9,5");
  Open();
  EXPECT_TRUE(user.Click(Dialog().lstvCurrent, 2));
  EXPECT_TRUE(user.Click(Dialog().cmdMUp));
  Dialog().lstvCurrent.SetFocus();
  EXPECT_TRUE(user.Enter());
  EXPECT_FALSE(program.windows.frmcustom.Loaded());
  EXPECT_EQ(StoredList(), "5,9");
}

TEST_F(Toolbar, ASecondOpeningOnlyShowsTheDialog) {
  Open("9,5");
  EXPECT_TRUE(user.Click(Dialog().cmdRemove));
  Open("1");
  EXPECT_THAT(RowsOf(Current()), ElementsAre("B5 Refresh"));
}

TEST_F(Toolbar, AnotherNameIsStoredAndNeverShown) {
  Open();
  user.Type(Dialog().txttoolbarname, "Mine, all mine");
  Save();
  EXPECT_EQ(StoredName(), "Mine, all mine");
  Reopen();
  EXPECT_EQ(Dialog().ToolbarName, "Mine, all mine");
  EXPECT_EQ(Dialog().txttoolbarname.Text(), "Vantrel");
}

TEST_F(Toolbar, ANewNameAloneIsNoChange) {
  Open();
  Save();
  user.Type(Dialog().txttoolbarname, "Mine");
  EXPECT_FALSE(Dialog().cmdDone.Enabled());
}

TEST_F(Toolbar, ARowThatWasRemovedAndAddedStandsAtTheEnd) {
  Open("3,5,9");
  EXPECT_TRUE(user.Click(Dialog().lstvCurrent, 2));
  Save();
  EXPECT_TRUE(user.Click(Dialog().cmdRemove));
  EXPECT_TRUE(Dialog().cmdDone.Enabled());
  EXPECT_THAT(RowsOf(Current()), ElementsAre("B3 Clean", "B9 On/Off"));
  EXPECT_EQ(NotShown().Count(), 17);
  EXPECT_EQ(RowsOf(NotShown()).back(), "B5 Refresh");
  EXPECT_TRUE(user.Click(Dialog().lstvSet, 17));
  EXPECT_TRUE(user.Click(Dialog().cmdAdd));
  EXPECT_THAT(RowsOf(Current()), ElementsAre("B3 Clean", "B9 On/Off", "B5 Refresh"));
  EXPECT_EQ(NotShown().Count(), 16);
  Save();
  EXPECT_EQ(StoredList(), "3,9,5");
}

TEST_F(Toolbar, AListKeepsARowSelectedBehindARemoval) {
  Open("3,5,9");
  EXPECT_TRUE(user.Click(Dialog().lstvCurrent, 3));
  EXPECT_TRUE(user.Click(Dialog().cmdRemove));
  ASSERT_NE(Current().SelectedItem(), nullptr);
  EXPECT_EQ(Current().SelectedItem()->Key(), "B5");
}

TEST_F(Toolbar, AddAndRemoveWithNothingToMoveMarkAChange) {
  Open();
  Save();
  EXPECT_TRUE(user.Click(Dialog().cmdAdd));
  EXPECT_TRUE(Dialog().cmdDone.Enabled());
  EXPECT_THAT(RowsOf(Current()), ElementsAreArray(WholeCatalogue()));
  for (int row = 0; row < 19; ++row) EXPECT_TRUE(user.Click(Dialog().cmdRemove));
  EXPECT_EQ(Current().Count(), 0);
  Save();
  EXPECT_TRUE(user.Click(Dialog().cmdRemove));
  EXPECT_TRUE(Dialog().cmdDone.Enabled());
  EXPECT_EQ(NotShown().Count(), 19);
}

TEST_F(Toolbar, AMoveBeforeAnyClickOnARowMovesNothingAndMarksAChange) {
  for (const bool up : {true, false}) {
    Open("3,5,9");
    Save();
    EXPECT_TRUE(user.Click(up ? Dialog().cmdMUp : Dialog().cmdMDown));
    EXPECT_THAT(KeysOf(Current()), ElementsAre("B3", "B5", "B9"));
    EXPECT_EQ(Current().DropHighlight(), 0);
    EXPECT_TRUE(Dialog().cmdDone.Enabled());
    user.Close(Dialog());
  }
}

TEST_F(Toolbar, AMoveTakesARowPastItsNeighbourWithItsKeySelectedAndHighlighted) {
  Open("3,5,9");
  Save();
  EXPECT_TRUE(user.Click(Dialog().lstvCurrent, 1));
  EXPECT_EQ(Dialog().ActiveList, "lstvCurrent");
  EXPECT_TRUE(user.Click(Dialog().cmdMDown));
  EXPECT_TRUE(Dialog().cmdDone.Enabled());
  EXPECT_THAT(RowsOf(Current()), ElementsAre("B5 Refresh", "B3 Clean", "B9 On/Off"));
  EXPECT_EQ(Current().SelectedIndex(), 2);
  EXPECT_EQ(Current().DropHighlight(), 2);
  EXPECT_TRUE(user.Click(Dialog().cmdMDown));
  EXPECT_THAT(RowsOf(Current()), ElementsAre("B5 Refresh", "B9 On/Off", "B3 Clean"));
  EXPECT_EQ(Current().DropHighlight(), 3);
  EXPECT_TRUE(user.Click(Dialog().cmdMUp));
  EXPECT_THAT(RowsOf(Current()), ElementsAre("B5 Refresh", "B3 Clean", "B9 On/Off"));
  EXPECT_EQ(Current().SelectedIndex(), 2);
  EXPECT_EQ(Current().DropHighlight(), 2);
  Save();
  EXPECT_EQ(StoredList(), "5,3,9");
}

TEST_F(Toolbar, TheEndsOfTheListAreKept) {
  Open("3,5,9");
  EXPECT_TRUE(user.Click(Dialog().lstvCurrent, 1));
  Save();
  EXPECT_TRUE(user.Click(Dialog().cmdMUp));
  EXPECT_EQ(Current().SelectedIndex(), 1);
  EXPECT_EQ(Current().DropHighlight(), 1);
  EXPECT_TRUE(Dialog().cmdDone.Enabled());
  EXPECT_TRUE(user.Click(Dialog().lstvCurrent, 3));
  EXPECT_TRUE(user.Click(Dialog().cmdMDown));
  EXPECT_EQ(Current().SelectedIndex(), 3);
  EXPECT_EQ(Current().DropHighlight(), 3);
  EXPECT_THAT(KeysOf(Current()), ElementsAre("B3", "B5", "B9"));
}

TEST_F(Toolbar, TheListOfWhatIsNotShownMovesWhenItWasClickedLastAndIsNotStored) {
  Open("3,5,9");
  EXPECT_TRUE(user.Click(Dialog().lstvCurrent, 1));
  EXPECT_TRUE(user.Click(Dialog().lstvSet, 2));
  EXPECT_EQ(Dialog().ActiveList, "lstvSet");
  EXPECT_TRUE(user.Click(Dialog().cmdMUp));
  EXPECT_THAT(KeysOf(Current()), ElementsAre("B3", "B5", "B9"));
  EXPECT_EQ(NotShown().Item(1).Key(), "B2");
  EXPECT_EQ(NotShown().Item(2).Key(), "B1");
  EXPECT_EQ(NotShown().DropHighlight(), 1);
  Save();
  EXPECT_EQ(StoredList(), "3,5,9");
}

TEST_F(Toolbar, AMoveInAListThatHasBecomeEmptyMovesNothing) {
  Open("3");
  EXPECT_TRUE(user.Click(Dialog().lstvCurrent, 1));
  EXPECT_TRUE(user.Click(Dialog().cmdRemove));
  EXPECT_TRUE(user.Click(Dialog().cmdMUp));
  EXPECT_TRUE(user.Click(Dialog().cmdMDown));
  EXPECT_THAT(BoxTexts(), IsEmpty());
  EXPECT_EQ(NotShown().Count(), 19);
}

TEST_F(Toolbar, ResetShowsTheWholeCatalogueAndStoresNothing) {
  Open("9,5");
  Save();
  EXPECT_TRUE(user.Click(Dialog().cmdReset));
  EXPECT_THAT(RowsOf(Current()), ElementsAreArray(WholeCatalogue()));
  EXPECT_THAT(RowsOf(NotShown()), IsEmpty());
  EXPECT_TRUE(Dialog().cmdDone.Enabled());
  EXPECT_EQ(StoredList(), "9,5");
}

TEST_F(Toolbar, ARowThatIsNoEntrysIsMovedLikeAnyOther) {
  Open("99,3");
  EXPECT_TRUE(user.Click(Dialog().lstvCurrent, 1));
  EXPECT_TRUE(user.Click(Dialog().cmdMDown));
  EXPECT_TRUE(user.Click(Dialog().cmdRemove));
  EXPECT_EQ(RowsOf(NotShown()).back(), "B99 ");
  EXPECT_THAT(KeysOf(Current()), ElementsAre("B3"));
}

TEST_F(Toolbar, ASaveThatFailsShowsItsErrorAndLeavesTheButtonEnabled) {
  SetNumber(Key, Name, 1);
  Open("9,5");
  user.Type(Dialog().txttoolbarname, "99999999999");
  Save();
  ASSERT_THAT(BoxTexts(), ElementsAre("Error occured: Overflow"));
  EXPECT_EQ(process.Boxes()[0].style, platform::StyleInformation);
  EXPECT_TRUE(Dialog().cmdDone.Enabled());
  EXPECT_TRUE(Dialog().Visible());
  // "Ok" tries once more and closes the dialog all the same.
  EXPECT_TRUE(user.Click(Dialog().Command1));
  EXPECT_EQ(BoxTexts().size(), 2U);
  EXPECT_FALSE(program.windows.frmcustom.Loaded());
}

TEST_F(Toolbar, TheDialogMayBeClosedAndReopenedWhileTheBoxOfAFailedSaveIsUp) {
  SetNumber(Key, Name, 1);
  Open("9,5");
  user.Type(Dialog().txttoolbarname, "99999999999");
  process.WhileBoxIsUp = [&](const platform::memory::Box&) {
    user.Close(Dialog());
    Open("1");
  };
  EXPECT_TRUE(user.Click(Dialog().Command1));
  EXPECT_TRUE(Dialog().Visible());
  EXPECT_THAT(KeysOf(Current()), ElementsAre("B1"));
}

}  // namespace
}  // namespace vantrel::toolbar
