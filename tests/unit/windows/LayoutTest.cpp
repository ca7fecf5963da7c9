// What holds of the layout of every window, without regard to how anything is drawn.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "Designs.h"
#include "forms/Placement.h"
#include "forms/SpokenName.h"

namespace vantrel::windows {
namespace {

using forms::Control;
using forms::Form;
using forms::Place;

int Right(const Place& place) { return place.Left + place.Width; }
int Bottom(const Place& place) { return place.Top + place.Height; }

bool Overlap(const Place& one, const Place& other) {
  return one.Left < Right(other) && other.Left < Right(one) && one.Top < Bottom(other) &&
         other.Top < Bottom(one);
}

// Whether it has a place at all: timers have none, and what a link is made of is its own affair.
bool IsPlaced(const Control& control) {
  return dynamic_cast<const forms::Timer*>(&control) == nullptr &&
         dynamic_cast<const forms::UserControl*>(control.Container()) == nullptr;
}

Place Inside(const Form& form) {
  const forms::Size& inside = form.Designed().Inside;
  if (form.Designed().Frame == forms::Border::Sizable) return {0, 0, inside.Width, inside.Height};
  return {0, 0, form.Width(), form.Height()};
}

Place InsideOf(const Control& control) {
  if (control.Container() == nullptr) return Inside(control.Owner());
  return {0, 0, control.Container()->At().Width, control.Container()->At().Height};
}

class Layout : public testing::Test {
 protected:
  void ForEach(const std::function<void(Control&)>& check) {
    for (Form* form : designs_.All()) {
      for (Control* control : form->Controls()) {
        if (!IsPlaced(*control)) continue;
        SCOPED_TRACE(control->QualifiedName());
        check(*control);
      }
    }
  }

  Designs designs_;
};

TEST_F(Layout, EverythingLiesOnTheGrid) {
  ForEach([](Control& control) {
    for (const int twips :
         {control.At().Left, control.At().Top, control.At().Width, control.At().Height}) {
      EXPECT_EQ(twips % GridStep, 0);
    }
  });
}

TEST_F(Layout, EverythingLiesInsideItsContainer) {
  ForEach([](Control& control) {
    const Place inside = InsideOf(control);
    EXPECT_GE(control.At().Left, 0);
    EXPECT_GE(control.At().Top, 0);
    EXPECT_LE(Right(control.At()), inside.Width);
    EXPECT_LE(Bottom(control.At()), inside.Height);
    EXPECT_GT(control.At().Width, 0);
    EXPECT_GT(control.At().Height, 0);
  });
}

TEST_F(Layout, NothingVisibleOverlapsItsNeighbour) {
  for (Form* form : designs_.All()) {
    const std::vector<Control*>& controls = form->Controls();
    for (std::size_t one = 0; one < controls.size(); ++one) {
      for (std::size_t other = one + 1; other < controls.size(); ++other) {
        const Control& first = *controls[one];
        const Control& second = *controls[other];
        if (first.Container() != second.Container() || !IsPlaced(first) || !IsPlaced(second) ||
            !first.Visible() || !second.Visible()) {
          continue;
        }
        EXPECT_FALSE(Overlap(first.At(), second.At()))
            << first.QualifiedName() << " and " << second.QualifiedName();
      }
    }
  }
}

TEST_F(Layout, WhatLiesInAFrameKeepsClearOfItsLineAndCaption) {
  ForEach([](Control& control) {
    const auto* frame = dynamic_cast<forms::Frame*>(control.Container());
    if (frame == nullptr || frame->Caption().empty()) return;
    EXPECT_GE(control.At().Top, Steps(15));
    EXPECT_GE(control.At().Left, Steps(8));
    EXPECT_LE(Right(control.At()), frame->At().Width - Steps(8));
    EXPECT_LE(Bottom(control.At()), frame->At().Height - Steps(3));
  });
}

TEST_F(Layout, PanelsLieAtOnePlaceRightOfTheColumnBelowTheTitle) {
  for (const Form* panel : designs_.Panels) {
    EXPECT_EQ(panel->Designed().Left, PanelPlace.Left);
    EXPECT_EQ(panel->Designed().Top, PanelPlace.Top);
    EXPECT_EQ(panel->Width(), Steps(462));
    EXPECT_EQ(panel->Height(), Steps(304));
  }
  EXPECT_EQ(designs_.Main.frahelp.At(), PanelPlace);
  EXPECT_FALSE(Overlap(PanelPlace, designs_.Main.PicBase.At()));
  EXPECT_FALSE(Overlap(PanelPlace, designs_.Main.lblVCP1.At()));
  EXPECT_FALSE(Overlap(PanelPlace, designs_.Main.sbStatusBar.At()));
}

TEST_F(Layout, TheMainWindowHasItsStartSize) {
  EXPECT_EQ(designs_.Main.Width(), 9300);
  EXPECT_EQ(designs_.Main.Height(), 6998);
}

TEST_F(Layout, TheMainWindowGetsNoSmallerThanItsMinimum) {
  EXPECT_EQ(designs_.Main.Designed().Smallest, (forms::Size{9300, 6825}));
}

// Of the main window in an inside of this size.
std::map<std::string, Place> AnchoredPlaces(const Form& main, const forms::Size& inside) {
  std::map<std::string, Place> places;
  for (const Control* control : main.Controls()) {
    if (control->Anchored() == forms::Anchors{}) continue;
    places[control->Name()] =
        forms::PlaceWithin(inside, control->At(), control->Anchored(), main.Designed().Inside);
  }
  return places;
}

TEST_F(Layout, BarsTitleAndColumnGoWithTheMainWindow) {
  const std::map<std::string, Place> expected{{"Toolbar1", {0, 0, 15000, 510}},
                                              {"PicBase", {0, 510, 2250, 9160}},
                                              {"lblVCP1", {2250, 510, 12750, 420}},
                                              {"sbStatusBar", {0, 9670, 15000, 330}}};
  EXPECT_EQ(AnchoredPlaces(designs_.Main, {15000, 10000}), expected);
}

TEST_F(Layout, OnlyWhatLiesOnTheMainWindowItselfIsAnchored) {
  ForEach([this](Control& control) {
    if (control.Anchored() == forms::Anchors{}) return;
    EXPECT_EQ(&control.Owner(), &designs_.Main);
    EXPECT_EQ(control.Container(), nullptr);
  });
}

TEST_F(Layout, TheCountersNamesStandUnderTheirBoxes) {
  const FrmFrameGraph& graph = designs_.Graph;
  const std::vector<std::pair<const Control*, const Control*>> pairs{
      {&graph.txtPop, &graph.Label1_1},
      {&graph.txtDHTML, &graph.Label1_2},
      {&graph.txtWebD, &graph.Label1_3},
      {&graph.txtBanner, &graph.Label1_4},
      {&graph.txtFlash, &graph.Label1_5}};
  for (const auto& [box, name] : pairs) {
    SCOPED_TRACE(box->Name());
    EXPECT_EQ(name->At().Left, box->At().Left);
    EXPECT_EQ(name->At().Width, box->At().Width);
    EXPECT_EQ(name->At().Top, Bottom(box->At()) + Steps(1));
  }
}

TEST_F(Layout, LinksOfTheColumnAreTwentyStepsApartBesideTheirIcons) {
  int links = 0;
  const Control* before = nullptr;
  for (const Control* control : designs_.Main.Controls()) {
    if (dynamic_cast<const controls::HyperLink*>(control) == nullptr) continue;
    ++links;
    if (before != nullptr && control->At().Top - before->At().Top < Steps(40)) {
      EXPECT_EQ(control->At().Top - before->At().Top, Steps(20)) << control->Name();
    }
    before = control;
  }
  EXPECT_EQ(links, 12);
}

TEST_F(Layout, ButtonsAreOfOneHeight) {
  ForEach([](Control& control) {
    if (dynamic_cast<forms::CommandButton*>(&control) != nullptr) {
      EXPECT_EQ(control.At().Height, Steps(23));
    }
  });
}

// Those beside or below each other in one container.
TEST_F(Layout, ButtonsOfAGroupAreOfOneWidth) {
  ForEach([this](Control& control) {
    // The main window's own are never shown.
    if (dynamic_cast<forms::CommandButton*>(&control) == nullptr ||
        &control.Owner() == &designs_.Main) {
      return;
    }
    for (const Control* other : control.Owner().Controls()) {
      const bool inGroup =
          dynamic_cast<const forms::CommandButton*>(other) != nullptr &&
          other->Container() == control.Container() &&
          (other->At().Left == control.At().Left || other->At().Top == control.At().Top);
      if (inGroup) {
        EXPECT_EQ(other->At().Width, control.At().Width) << other->Name();
      }
    }
  });
}

TEST_F(Layout, ColumnsFillTheirListsButForTheScrollBar) {
  ForEach([this](Control& control) {
    const auto* list = dynamic_cast<forms::ListView*>(&control);
    if (list == nullptr) return;
    int width = 0;
    for (const forms::Column& column : list->Columns()) width += column.Width;
    // The five counters never need one.
    const int scrollBar = list == &designs_.Log.lstLog ? 0 : Steps(18);
    EXPECT_EQ(width, list->At().Width - Steps(4) - scrollBar);
  });
}

TEST_F(Layout, WhateverTabVisitsHasANameOfItsOwn) {
  std::set<std::string> names;
  ForEach([&names](Control& control) {
    if (!control.IsTabStop()) return;
    // Never seen, whatever the user does.
    static const std::set<std::string> unseen{"Text1", "txtCommand", "flbpluginsfile"};
    if (unseen.count(control.Name()) > 0) return;
    const std::string name = forms::SpokenName(control);
    EXPECT_NE(name, "");
    EXPECT_TRUE(names.insert(control.Owner().Name() + '|' + name).second) << name;
  });
}

std::string TabOrderOf(const Form& form) {
  std::string order;
  for (const Control* control : form.Controls()) {
    if (!control->IsTabStop() || !IsPlaced(*control)) continue;
    if (!order.empty()) order += ' ';
    order += control->QualifiedName().substr(form.Name().size() + 1);
  }
  return order;
}

TEST_F(Layout, TabGoesInReadingOrder) {
  const std::map<std::string, std::string> orders{
      {"frmMain",
       "LnkWelcome LnkAdBlocking LnkSettings LnkAllowedList LnkNotification lnkClean "
       "LnkIESettings LnkIePlug lnkCheckAndRepair LnkGraph LnkLog LnkHelp Label57 "
       "Label29 Label31 Label32 Label61 Label30 cmdDummy Text1 cmdADDBHO cmdRemoveBHO"},
      {"frmcustom",
       "lstvSet cmdAdd cmdRemove cmdMUp cmdMDown cmdReset lstvCurrent txttoolbarname "
       "cmdDone Command1"},
      {"FrmFrameMain",
       "optDial optMedium optFast cmdstart cmdstop cmdtest ChkMinimize Label9 Label62 "
       "Label6 txtCommand"},
      {"FrmFrameBlockPreferences",
       "cmbinternet Label12 chkAll Label17 chkBPopup Label18 chkBDhtml Label22 "
       "chkBDialog Label20 chkBBanner Label21 chkBFlash Label23 chkBAdv Label24 "
       "chkBDialogBox Label7 chkBSpyware Label2 chkBFull cmdsave"},
      {"FrmFrameSettings",
       "lblHGS chkGHideSystray Label14 chkGSWindows Label15 chkGUpdate Label25 chkGLog "
       "Label16 chkGShowToolbar lblviewtoolbar Label13 chkScript cmdtoolbar Command4 "
       "cmdresetSettings"},
      {"FrmFrameHistory",
       "chkCacheHistory chkCacheInternet chkCacheRecent chkCachetemp chkCacheHURL "
       "chkWindowsRunHistory chkWindowsFindHistory chkWindowsRecDoc chkWindowsRB "
       "lblRefresh Label19 optBit(8) optBit(9) Label47 CmdDeleteCache optIE "
       "optNetscape optOpera txtcookies urls Label48 cmddeleteCookies"},
      {"FrmFrameAllowList",
       "Label39 txtName chkAPopups chkADhtml chkADialog chkABanner chkAFlash "
       "chkADialogBox cmdAddWebsite cmdEditAllowed cmdRemove lstGroup"},
      {"FrmFrameNotification",
       "Label42 chkNAll Label58 chkNW Label49 chkNS cmbsound Label35 Label51 chkNPH "
       "Label52 chkNPHF Label53 chkNMC Label50 cmdDefaultNotify"},
      {"FrmFrameIESettings",
       "Label38 txtIESettings cmdBrowseIESettings Label37 cmdBackupIESettings "
       "txtBackup Label55 chktakebackup cmdRestoreIESettings"},
      {"FrmFrameIEPlugin", "Label41 lstBHO cmdRefreshBHO cmddeleteBHO flbpluginsfile"},
      {"FrmFrameGraph", "Label44 txtPop txtDHTML txtWebD txtBanner txtFlash Command12"},
      {"FrmFrameLog", "Label46 lstLog lblResetLog Label54 Command11"},
      {"FrmAbout", "Label30 Label61 CmdOK"},
  };
  for (const Form* form : designs_.All()) {
    EXPECT_EQ(TabOrderOf(*form), orders.at(form->Name())) << form->Name();
  }
}

TEST_F(Layout, EachHelpLinkTellsOnWhat) {
  ForEach([](Control& control) {
    const auto* label = dynamic_cast<forms::Label*>(&control);
    if (label != nullptr && label->IsTabStop() && label->Caption() == "Help") {
      EXPECT_NE(label->ToolTipText(), "");
    }
  });
}

// The letter behind the first single "&", in lower case; 0 without one.
char AccessKey(const std::string& caption) {
  for (std::size_t at = 0; at + 1 < caption.size(); ++at) {
    if (caption[at] != '&') continue;
    if (caption[at + 1] != '&') return static_cast<char>(caption[at + 1] | 0x20);
    ++at;
  }
  return 0;
}

TEST_F(Layout, NoTwoControlsOfAWindowShareAnAccessKey) {
  std::map<const Form*, std::set<char>> used;
  ForEach([&used](Control& control) {
    if (dynamic_cast<forms::CaptionedControl*>(&control) == nullptr || !control.Visible()) return;
    if (const char key = AccessKey(control.WindowText())) {
      EXPECT_TRUE(used[&control.Owner()].insert(key).second) << key;
    }
  });
}

}  // namespace
}  // namespace vantrel::windows
