// The Notification panel: the rules among its boxes, the list of sounds, and the sound test.
#include <gmock/gmock.h>

#include "blocking/Attach.h"
#include "blocking/NotificationPanel.h"
#include "settings/FirstRun.h"
#include "settings/Load.h"
#include "support/ComponentFixture.h"
#include "windows/FrmFrameNotification.h"
#include "windows/frmMain.h"

namespace vantrel::blocking {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Notification : public test::ComponentFixture {
 protected:
  Notification() {
    AttachBlocking(program);
    settings::CheckAndCreateRegitry(program);
    process.Trace().Clear();
  }

  windows::FrmFrameNotification& Panel() { return *program.windows.FrmFrameNotification; }
  void Click(forms::Control& control) {
    AsEvent([&] { control.UserClick(); });
  }
  // Window, sound, image and Flash place holder, mouse cursor.
  std::vector<int> States() {
    return {Panel().chkNW.Value(), Panel().chkNS.Value(), Panel().chkNPH.Value(),
            Panel().chkNPHF.Value(), Panel().chkNMC.Value()};
  }
};

TEST_F(Notification, DesignStates) {
  EXPECT_THAT(States(), ElementsAre(0, 0, 0, 0, 0));
  EXPECT_EQ(Panel().chkNAll.Value(), 0);
  EXPECT_EQ(Panel().cmbsound.ListIndex(), -1);
  EXPECT_TRUE(Panel().cmbsound.Visible());
  EXPECT_FALSE(Panel().chkNMC.Enabled());
  EXPECT_EQ(Panel().cmbsound.ListCount(), 11);
}

TEST_F(Notification, EachBoxStoresItsFlag) {
  Click(Panel().chkNW);
  EXPECT_EQ(Number("Block Settings", "ShowNotification"), 1U);
  Click(Panel().chkNS);
  EXPECT_EQ(Number("Block Settings", "ShowSound"), 1U);
  Click(Panel().chkNPH);
  EXPECT_EQ(Number("Block Settings", "ShowPH"), 1U);
  Click(Panel().chkNPHF);
  EXPECT_EQ(Number("Block Settings", "ShowPHF"), 1U);
  EXPECT_EQ(BlockSaves(), 4);
  Click(Panel().chkNW);
  EXPECT_EQ(Number("Block Settings", "ShowNotification"), 0U);
}

TEST_F(Notification, TickingAnyBoxEndsDontNotifyAndLeavesTheOthers) {
  Panel().chkNAll.SetValue(1);
  Click(Panel().chkNW);
  EXPECT_EQ(Panel().chkNAll.Value(), 0);
  EXPECT_THAT(States(), ElementsAre(1, 0, 0, 0, 0));
  for (forms::CheckBox* box : {&Panel().chkNS, &Panel().chkNPH, &Panel().chkNPHF}) {
    Panel().chkNAll.SetValue(1);
    Click(*box);
    EXPECT_EQ(Panel().chkNAll.Value(), 0) << box->Name();
  }
}

TEST_F(Notification, EachBoxEndsDontNotifyBeforeItSaves) {
  for (forms::CheckBox* box : {&Panel().chkNW, &Panel().chkNS, &Panel().chkNPH, &Panel().chkNPHF}) {
    Panel().chkNAll.SetValue(1);
    process.Trace().Clear();
    std::vector<long> savesBefore;
    toolkit.Trace = [&](const std::string& line) {
      if (line == "FrmFrameNotification.chkNAll Value=0") savesBefore.push_back(BlockSaves());
    };
    Click(*box);
    toolkit.Trace = nullptr;
    EXPECT_THAT(savesBefore, ElementsAre(0)) << box->Name();
    EXPECT_EQ(BlockSaves(), 1) << box->Name();
  }
}

TEST_F(Notification, TheCursorBoxEndsDontNotifyAndSavesNothing) {
  Panel().chkNAll.SetValue(1);
  Panel().chkNMC.SetValue(1);
  EXPECT_EQ(Panel().chkNAll.Value(), 0);
  EXPECT_THAT(Writes(), IsEmpty());
}

TEST_F(Notification, DontNotifyClearsAllAndHidesTheSounds) {
  for (forms::CheckBox* box :
       {&Panel().chkNW, &Panel().chkNS, &Panel().chkNPH, &Panel().chkNPHF, &Panel().chkNMC}) {
    box->SetValue(1);
  }
  process.Trace().Clear();
  std::vector<std::string> changed;
  toolkit.Trace = [&](const std::string& line) {
    if (line.find(" Value=0") != std::string::npos) changed.push_back(line.substr(21));
  };
  Click(Panel().chkNAll);
  EXPECT_THAT(changed, ElementsAre("chkNMC Value=0", "chkNPH Value=0", "chkNPHF Value=0",
                                   "chkNS Value=0", "chkNW Value=0"));
  EXPECT_FALSE(Panel().cmbsound.Visible());
  EXPECT_EQ(BlockSaves(), 4);
  EXPECT_EQ(Panel().chkNAll.Value(), 1);
}

TEST_F(Notification, AGrayedBoxIsNotClearAndNotTicked) {
  for (forms::CheckBox* box :
       {&Panel().chkNW, &Panel().chkNS, &Panel().chkNPH, &Panel().chkNPHF, &Panel().chkNMC}) {
    Panel().chkNAll.SetValue(1);
    box->SetValue(2);
    EXPECT_EQ(Panel().chkNAll.Value(), 0) << box->Name();
  }
  Panel().chkNS.SetValue(2);
  EXPECT_TRUE(Panel().cmbsound.Visible());
  Panel().chkNAll.SetValue(2);
  EXPECT_EQ(Panel().chkNS.Value(), 2) << "the master clears them only when ticked";
}

TEST_F(Notification, DontNotifyWithAllBoxesClearSavesNothing) {
  Click(Panel().chkNAll);
  EXPECT_THAT(Writes(), IsEmpty());
}

TEST_F(Notification, ClearingDontNotifyBringsNothingBack) {
  Panel().chkNW.SetValue(1);
  Click(Panel().chkNAll);
  process.Trace().Clear();
  Click(Panel().chkNAll);
  EXPECT_THAT(States(), ElementsAre(0, 0, 0, 0, 0));
  EXPECT_THAT(Writes(), IsEmpty());
}

TEST_F(Notification, TheSoundBoxShowsAndHidesTheList) {
  Click(Panel().chkNS);
  EXPECT_TRUE(Panel().cmbsound.Visible());
  Click(Panel().chkNS);
  EXPECT_FALSE(Panel().cmbsound.Visible());
  EXPECT_TRUE(Panel().Label35.Visible());
}

TEST_F(Notification, AStoredClearSoundLeavesTheListVisible) {
  program.LoadingSettings = true;
  SetText("Block Settings", "NSounds", "pop");
  SetNumber("Block Settings", "ShowSound", 0);
  settings::LoadBlockSettings(program);
  program.LoadingSettings = false;
  EXPECT_EQ(Panel().cmbsound.Text(), "pop");
  EXPECT_EQ(Panel().chkNS.Value(), 0);
  EXPECT_TRUE(Panel().cmbsound.Visible());
  Click(Panel().chkNS);
  Click(Panel().chkNS);
  EXPECT_FALSE(Panel().cmbsound.Visible());
}

TEST_F(Notification, ASoundOnThatIsLoadedLeavesAHiddenListHidden) {
  Click(Panel().chkNS);
  Click(Panel().chkNS);
  ASSERT_FALSE(Panel().cmbsound.Visible());
  SetNumber("Block Settings", "ShowSound", 1);
  SetText("Block Settings", "NSounds", "pop");
  program.LoadingSettings = true;
  settings::LoadBlockSettings(program);
  program.LoadingSettings = false;
  EXPECT_EQ(Panel().chkNS.Value(), 1);
  EXPECT_FALSE(Panel().cmbsound.Visible()) << "a load leaves the list as it is, either way";
}

TEST_F(Notification, DefaultSetsTheFourBoxesAndKeepsTheSound) {
  Panel().chkNAll.SetValue(1);
  Panel().cmbsound.SetListIndex(5);
  process.Trace().Clear();
  Click(Panel().cmdDefaultNotify);
  EXPECT_THAT(States(), ElementsAre(0, 1, 1, 1, 0));
  EXPECT_EQ(Panel().chkNAll.Value(), 0);
  EXPECT_EQ(Panel().cmbsound.Text(), "pop");
  EXPECT_EQ(BlockSaves(), 3);
}

TEST_F(Notification, PickingASoundStoresItsNameWithTheSoundOff) {
  EXPECT_TRUE(Panel().chkNS.Value() == 0);
  AsEvent([&] { Panel().cmbsound.SetListIndex(6); });
  EXPECT_EQ(Text("Block Settings", "NSounds"), "pop2");
  EXPECT_EQ(Number("Block Settings", "ShowSound"), 0U);
}

TEST_F(Notification, LeavingTheListSavesForAnEntryAndForNone) {
  EXPECT_TRUE(Panel().cmbsound.UserLeaves());
  EXPECT_EQ(BlockSaves(), 1) << "the empty text is what stands one past the last entry";
  for (const int entry : {0, 10}) {
    Panel().cmbsound.SetListIndex(entry);
    process.Trace().Clear();
    EXPECT_TRUE(Panel().cmbsound.UserLeaves());
    EXPECT_EQ(BlockSaves(), 1) << entry;
  }
  EXPECT_THAT(process.Boxes(), IsEmpty());
}

// The list's own text, past the rule that it is an entry.
struct ListText : forms::ComboBox {
  static void Put(forms::ComboBox& list, const std::string& text) {
    (list.*(&ListText::SetWindowText))(text);
  }
};

TEST_F(Notification, LeavingTheListWithATextThatIsNoEntryPicksClickAndSavesNothing) {
  for (const char* text : {"siren", "POP", "pop "}) {
    Panel().cmbsound.SetListIndex(-1);
    ListText::Put(Panel().cmbsound, text);
    process.Trace().Clear();
    process.ClearBoxes();
    EXPECT_FALSE(Panel().cmbsound.UserLeaves()) << "the focus stays";
    ASSERT_EQ(process.Boxes().size(), 1U);
    EXPECT_EQ(process.Boxes()[0].text, "Please select a sound from the list");
    EXPECT_EQ(process.Boxes()[0].style, platform::StyleInformation);
    EXPECT_EQ(Panel().cmbsound.Text(), "click");
    EXPECT_EQ(Panel().cmbsound.ListIndex(), 1);
    EXPECT_EQ(toolkit.Focus(), &Panel().cmbsound);
    EXPECT_THAT(Writes(), IsEmpty()) << text;
  }
  EXPECT_TRUE(Panel().cmbsound.UserLeaves());
  EXPECT_EQ(BlockSaves(), 1) << "the corrected sound, on leaving again";
  AsEvent([&] { Panel().cmbsound.SetListIndex(3); });
  EXPECT_EQ(BlockSaves(), 2) << "picking saves as before";
}

// A box gives the screen's focus back to what was pressed, which is not a second leaving.
TEST_F(Notification, LeavingTheListWithAFailingSaveShowsOneBoxByMouseAndByTab) {
  program.windows.frmMain->Show();
  Panel().Show();
  process.AnswerBox = [&](const platform::memory::Box&) {
    toolkit.AtBorder([&] { toolkit.UserMovesFocus(&Panel().chkNW); });
    return platform::AnswerOk;
  };
  world.registry.Set(platform::HKeyCurrentUser, Tree("Block Settings"), "BpID", platform::RegSz,
                     "");
  Panel().cmbsound.SetFocus();
  EXPECT_TRUE(user.Click(Panel().chkNW));
  EXPECT_EQ(process.Boxes().size(), 2U) << "one of the list, one of the box";
  EXPECT_EQ(toolkit.Focus(), &Panel().chkNW);
  EXPECT_EQ(Panel().chkNW.Value(), 1);
  process.ClearBoxes();
  Panel().cmbsound.SetFocus();
  EXPECT_TRUE(user.Tab(true));
  EXPECT_EQ(process.Boxes().size(), 1U);
  EXPECT_EQ(toolkit.Focus(), &Panel().chkNS);
}

TEST_F(Notification, HidingThePanelWithTheFocusInTheListSavesNothing) {
  program.windows.frmMain->Show();
  Panel().Show();
  Panel().cmbsound.SetFocus();
  Panel().Hide();
  EXPECT_THAT(Writes(), IsEmpty());
  EXPECT_NE(toolkit.Focus(), &Panel().cmbsound);
}

TEST_F(Notification, PickingAnotherSoundSavesOnceAndTheSameOneNotAtAll) {
  AsEvent([&] { Panel().cmbsound.SetListIndex(3); });
  AsEvent([&] { Panel().cmbsound.SetListIndex(3); });
  EXPECT_EQ(BlockSaves(), 1);
}

TEST_F(Notification, NothingIsSavedDuringALoad) {
  program.LoadingSettings = true;
  for (forms::CheckBox* box : {&Panel().chkNW, &Panel().chkNS, &Panel().chkNPH, &Panel().chkNPHF}) {
    Click(*box);
  }
  AsEvent([&] { Panel().cmbsound.SetListIndex(3); });
  EXPECT_TRUE(Panel().cmbsound.UserLeaves());
  EXPECT_THAT(Writes(), IsEmpty());
  EXPECT_TRUE(Panel().cmbsound.Visible()) << "the list stays as it is";
}

TEST_F(Notification, DefaultSetsItsBoxesInOrder) {
  Panel().chkNW.SetValue(1);
  std::vector<std::string> changed;
  toolkit.Trace = [&](const std::string& line) {
    if (line.find(" Value=") != std::string::npos) changed.push_back(line.substr(21));
  };
  Click(Panel().cmdDefaultNotify);
  EXPECT_THAT(changed,
              ElementsAre("chkNW Value=0", "chkNS Value=1", "chkNPH Value=1", "chkNPHF Value=1"));
}

TEST_F(Notification, TheTestPlaysTheSelectedSoundWhateverTheBox) {
  Panel().cmbsound.SetText("POP");
  Click(Panel().Label35);
  ASSERT_EQ(world.playedSounds.size(), 1U);
  EXPECT_EQ(world.playedSounds[0].path, "C:\\Program Files\\Vantrel\\Sound\\pop.wav");
  EXPECT_EQ(world.playedSounds[0].flags, 3U);
}

TEST_F(Notification, TheTestWithoutASelectionIsSilent) {
  Click(Panel().Label35);
  ASSERT_EQ(world.playedSounds.size(), 1U);
  EXPECT_EQ(world.playedSounds[0].path, "C:\\Program Files\\Vantrel\\Sound\\.wav");
  EXPECT_THAT(process.Boxes(), IsEmpty());
}

TEST_F(Notification, AFailingSaveShowsTheInformationBox) {
  world.registry.Set(platform::HKeyCurrentUser, Tree("Block Settings"), "BpId", platform::RegSz,
                     "");
  Click(Panel().chkNPH);
  EXPECT_THAT(BoxTexts(), ElementsAre("Error occured: Invalid procedure call or argument"));
  EXPECT_EQ(Panel().chkNPH.Value(), 1);
}

class NotificationMade : public test::ComponentFixture {};

TEST_F(NotificationMade, WithTheSoundOnAndNoneSelectedTheFirstIsSelected) {
  program.windows.FrmFrameNotification.OnMade(
      [](windows::FrmFrameNotification& panel) { panel.chkNS.SetValue(1); });
  AttachBlocking(program);
  EXPECT_EQ(program.windows.FrmFrameNotification->cmbsound.Text(), "alert");
}

TEST_F(NotificationMade, WithTheSoundOnAndOneSelectedItStays) {
  program.windows.FrmFrameNotification.OnMade([](windows::FrmFrameNotification& panel) {
    panel.chkNS.SetValue(1);
    panel.cmbsound.SetListIndex(3);
  });
  AttachBlocking(program);
  EXPECT_EQ(program.windows.FrmFrameNotification->cmbsound.Text(), "double");
}

}  // namespace
}  // namespace vantrel::blocking
