// The text link on the in-memory Windows: hovering, clicking, sizing, saving.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "controls/HyperLink.h"
#include "forms/Form.h"
#include "forms/headless/Toolkit.h"
#include "forms/headless/User.h"
#include "platform/memory/Process.h"
#include "platform/memory/World.h"
#include "text/RuntimeError.h"

namespace vantrel::controls {
namespace {

constexpr forms::Place LinkPlace{1500, 1500, 1500, 300};

struct LinkForm : forms::Form {
  LinkForm(forms::Toolkit& toolkit, const PropertyBag& saved, bool underlined)
      : Form(toolkit, "Form1", {.Caption = "Links", .Width = 6000, .Height = 6000}),
        Area(*this, "Area",
             {.At = {0, 0, 6000, 6000}, .TextFont = {.Bold = true, .Underline = underlined}}),
        Link(Area, "Link", {.At = LinkPlace, .ToolTipText = "Given by the window"}, saved) {}

  forms::Frame Area;
  HyperLink Link;
};

class HyperLinks : public testing::Test {
 protected:
  void Make(const PropertyBag& saved = {}, bool underlinedContainer = false) {
    form_ = std::make_unique<LinkForm>(toolkit_, saved, underlinedContainer);
    Link().UsePlatform(platform_);
    Link().MouseOver = [this](int, int, float, float) { events_.push_back("MouseOver"); };
    Link().MouseOut = [this] { events_.push_back("MouseOut"); };
    Link().Click = [this] { events_.push_back("Click"); };
    Link().Change = [this] { events_.push_back("Change"); };
    Link().PropertyChanged = [this](const std::string& name) { events_.push_back(name); };
    form_->Show();
  }

  HyperLink& Link() { return form_->Link; }
  forms::Label& Label() { return form_->Link.lblHyperlink; }

  // The mouse comes over the link, and goes to the desktop's far corner.
  void Enter() {
    const auto place = world_.desktop.ScreenPlace(Link().WindowHandle());
    world_.desktop.SetCursorPosition({place.left + 2, place.top + 2});
    EXPECT_TRUE(user_.PointAt(Link(), 30, 30));
  }
  void GoAway() { world_.desktop.SetCursorPosition({3000, 3000}); }
  void Poll() { world_.clock.Advance(HyperLink::PollInterval); }

  platform::memory::World world_;
  platform::memory::Process process_{world_};
  platform::Platform platform_ = process_.Platform();
  forms::headless::Toolkit toolkit_{world_.desktop, world_.clock, process_.Id()};
  forms::headless::User user_{toolkit_};
  std::vector<std::string> events_;
  std::unique_ptr<LinkForm> form_;
};

using Events = std::vector<std::string>;

TEST_F(HyperLinks, ANewLinkHasItsDefaults) {
  Make();
  EXPECT_EQ(Link().Caption(), "Hyperlink AX II");
  EXPECT_TRUE(Link().Enabled());
  EXPECT_EQ(Link().Alignment(), 0);
  EXPECT_TRUE(Link().AutoSize());
  EXPECT_EQ(Link().GetHyperLink(), HyperLink::SampleAddress);
  EXPECT_EQ(Link().HoverColor(), 255U);
  EXPECT_EQ(Link().Appearance(), 1);
  EXPECT_EQ(Link().BorderStyle(), 0);
  EXPECT_EQ(Link().ForeColor(), form_->Area.ForeColor());
  EXPECT_EQ(Link().BackColor(), form_->Area.BackColor());
  EXPECT_TRUE(Link().AutoToolTip());
  EXPECT_TRUE(Link().SoundOn());
  EXPECT_EQ(Link().SoundID(), 101);
  EXPECT_TRUE(Link().MOUnderline());
  EXPECT_TRUE(Link().MOPointer());
  EXPECT_TRUE(Link().Font().Bold);
  EXPECT_FALSE(Link().IsOver());
  EXPECT_FALSE(Link().myTimer.Enabled());
  EXPECT_EQ(Link().myTimer.Interval(), 50);
}

TEST_F(HyperLinks, TheTimerRunsOnlyWhileHovering) {
  Make();
  EXPECT_EQ(world_.clock.TimersOf(process_.Id()), 0U);
  Enter();
  EXPECT_EQ(world_.clock.TimersOf(process_.Id()), 1U);
  GoAway();
  Poll();
  EXPECT_EQ(world_.clock.TimersOf(process_.Id()), 0U);
}

TEST_F(HyperLinks, EnteringShowsTheHoverStateAndTellsOnce) {
  Make({{"forecolor", "&H00112233"}, {"hovercolor", "&H00445566"}});
  Enter();
  EXPECT_TRUE(Link().IsOver());
  EXPECT_EQ(Label().MousePointer(), 99);
  EXPECT_EQ(Link().SavedForeColor(), 0x112233U);
  EXPECT_EQ(Link().ForeColor(), 0x445566U);
  EXPECT_TRUE(Link().Font().Underline);
  EXPECT_EQ(Label().ToolTipText(), HyperLink::SampleAddress);
  EXPECT_TRUE(Link().myTimer.Enabled());
  Enter();
  EXPECT_EQ(events_, Events{"MouseOver"});
}

TEST_F(HyperLinks, MouseOverPassesOnWhereTheMouseIs) {
  Make();
  std::vector<float> at;
  Link().MouseOver = nullptr;
  Link().MouseOver = [&at](int, int, float x, float y) { at = {x, y}; };
  user_.PointAt(Link(), 45, 60);
  EXPECT_EQ(at, (std::vector<float>{45, 60}));
}

TEST_F(HyperLinks, WhileTheMouseStaysNothingHappens) {
  Make();
  Enter();
  world_.clock.Advance(1000);
  EXPECT_TRUE(Link().IsOver());
  EXPECT_EQ(events_, Events{"MouseOver"});
}

TEST_F(HyperLinks, LeavingIsNoticedByThePoll) {
  Make({{"forecolor", "&H00112233"}});
  Enter();
  GoAway();
  EXPECT_TRUE(Link().IsOver());
  Poll();
  EXPECT_FALSE(Link().IsOver());
  EXPECT_EQ(Link().ForeColor(), 0x112233U);
  EXPECT_FALSE(Link().Font().Underline);
  EXPECT_FALSE(Link().myTimer.Enabled());
  EXPECT_EQ(events_, (Events{"MouseOver", "MouseOut"}));
}

TEST_F(HyperLinks, ThePointerStaysAsItWasOnEntering) {
  Make();
  Enter();
  GoAway();
  Poll();
  EXPECT_EQ(Label().MousePointer(), 99);
}

TEST_F(HyperLinks, AWindowOnTopOfTheLinkCountsAsOutside) {
  Make();
  Enter();
  const auto cover = world_.desktop.MakeWindow(1, 0, "Another program");
  world_.desktop.SetPlace(cover, {0, 0, 2000, 2000});
  world_.desktop.SetVisible(cover, true);
  Poll();
  EXPECT_FALSE(Link().IsOver());
}

TEST_F(HyperLinks, WithoutItsFlagsAHoverChangesTheColourOnly) {
  Make({{"mounderline", "0"}, {"mopointer", "0"}});
  Enter();
  EXPECT_EQ(Label().MousePointer(), 0);
  EXPECT_FALSE(Link().Font().Underline);
  EXPECT_EQ(Link().ForeColor(), Link().HoverColor());
}

TEST_F(HyperLinks, AnUnderlinedContainerKeepsTheLinkUnderlined) {
  Make({}, true);
  Enter();
  GoAway();
  Poll();
  EXPECT_TRUE(Link().Font().Underline);
}

TEST_F(HyperLinks, AHoverColourSetDuringAHoverTakesEffectAtTheNextEntry) {
  Make();
  Enter();
  Link().SetHoverColor(0x123456);
  EXPECT_EQ(Link().ForeColor(), 255U);
  GoAway();
  Poll();
  Enter();
  EXPECT_EQ(Link().ForeColor(), 0x123456U);
}

TEST_F(HyperLinks, TheToolTipChangesOnlyAtTheNextEntry) {
  Make();
  Enter();
  Link().SetHyperLink("http://elsewhere.example/");
  EXPECT_EQ(Label().ToolTipText(), HyperLink::SampleAddress);
  GoAway();
  Poll();
  Enter();
  EXPECT_EQ(Label().ToolTipText(), "http://elsewhere.example/");
}

TEST_F(HyperLinks, WithoutAutoToolTipTheWindowsToolTipShows) {
  Make({{"autotooltip", "0"}});
  Enter();
  EXPECT_EQ(Label().ToolTipText(), "Given by the window");
}

TEST_F(HyperLinks, LeavingTakesItsStepsInTheirOrderAndStopsTheTimerLast) {
  Make({{"forecolor", "&H00112233"}});
  Enter();
  Label().SetMousePointer(0);
  GoAway();
  Events steps;
  toolkit_.Trace = [&](const std::string& line) {
    steps.push_back(line + (Link().IsOver() ? " over" : ""));
  };
  Link().MouseOut = nullptr;
  Link().MouseOut = [&] {
    steps.push_back(Link().myTimer.Enabled() ? "MouseOut, timer on" : "MouseOut, timer off");
  };
  Poll();
  EXPECT_EQ(steps, (Events{"Form1.Link.lblHyperlink ForeColor=&H00112233 BackColor=&H00FEF8F4",
                           "Form1.Link.lblHyperlink Underline=False",
                           "Form1.Link.lblHyperlink MousePointer=99", "MouseOut, timer on",
                           "Form1.Link.myTimer Enabled=False"}));
}

TEST_F(HyperLinks, WithoutItsFlagsLeavingChangesTheColourOnly) {
  Make({{"mounderline", "0"}, {"mopointer", "0"}});
  Link().SetFont({.Underline = true});
  Enter();
  GoAway();
  Poll();
  EXPECT_TRUE(Link().Font().Underline);
  EXPECT_EQ(Label().MousePointer(), 0);
  EXPECT_EQ(Link().ForeColor(), form_->Area.ForeColor());
}

// Whatever a handler does, its error is shown once and the link goes on.
TEST_F(HyperLinks, AnErrorOfTheMouseOutHandlerEndsAtItsOwnBorderAndTheTimerStops) {
  Make({{"forecolor", "&H00112233"}});
  std::vector<text::ErrorNumber> shown;
  toolkit_.OnUntrappedError = [&shown](const text::RuntimeError& error) {
    shown.push_back(error.Number());
  };
  Link().MouseOut = nullptr;
  Link().MouseOut = [] { throw text::RuntimeError(text::ErrorNumber::TypeMismatch); };
  Enter();
  GoAway();
  Poll();
  EXPECT_EQ(shown, std::vector{text::ErrorNumber::TypeMismatch});
  EXPECT_FALSE(Link().IsOver());
  EXPECT_EQ(Link().ForeColor(), 0x112233U);
  EXPECT_FALSE(Link().myTimer.Enabled());
}

TEST_F(HyperLinks, TicksDuringTheMouseOutHandlerRaiseNoSecond) {
  Make();
  Link().MouseOut = nullptr;
  Link().MouseOut = [this] {
    events_.push_back("MouseOut");
    Link().myTimer.Tick();
  };
  Enter();
  GoAway();
  Poll();
  EXPECT_EQ(events_, (Events{"MouseOver", "MouseOut"}));
  EXPECT_FALSE(Link().myTimer.Enabled());
}

TEST_F(HyperLinks, TheTimerGoesOnIfTheMouseComesBackDuringTheMouseOutHandler) {
  Make();
  Link().MouseOut = nullptr;
  Link().MouseOut = [this] { Enter(); };
  Enter();
  GoAway();
  Poll();
  EXPECT_TRUE(Link().IsOver());
  EXPECT_TRUE(Link().myTimer.Enabled());
}

TEST_F(HyperLinks, TheEndOfTheProgramPassesThroughMouseOut) {
  Make();
  Link().MouseOut = nullptr;
  Link().MouseOut = [this] { toolkit_.End(); };
  Enter();
  EXPECT_THROW(Link().MouseLeave(), forms::EndProgram);
}

TEST_F(HyperLinks, AClickOpensTheAddressUnderTheHourglassThenTells) {
  Make();
  toolkit_.SetScreenPointer(7);
  std::vector<std::string> lines;
  toolkit_.Trace = [&lines](const std::string& line) { lines.push_back(line); };
  Link().Click = nullptr;
  Link().Click = [&] {
    events_.push_back("Click after " + std::to_string(world_.openedDocuments.size()));
  };
  Link().lblHyperlink.UserClick();
  ASSERT_EQ(world_.openedDocuments.size(), 1U);
  const auto& opened = world_.openedDocuments[0];
  EXPECT_EQ(opened.owner, 0U);
  EXPECT_EQ(opened.verb, "Open");
  EXPECT_EQ(opened.file, HyperLink::SampleAddress);
  EXPECT_EQ(opened.parameters, "");
  EXPECT_EQ(opened.directory, "");
  EXPECT_EQ(opened.showCommand, 1);
  EXPECT_EQ(lines, (Events{"Screen MousePointer=11", "Screen MousePointer=7"}));
  EXPECT_EQ(events_, Events{"Click after 1"});
}

TEST_F(HyperLinks, WithoutAnAddressAClickOnlyTells) {
  Make({{"hyperlink", ""}});
  std::vector<std::string> lines;
  toolkit_.Trace = [&lines](const std::string& line) { lines.push_back(line); };
  Link().lblHyperlink.UserClick();
  EXPECT_TRUE(world_.openedDocuments.empty());
  EXPECT_TRUE(lines.empty());
  EXPECT_EQ(events_, Events{"Click"});
}

TEST_F(HyperLinks, AFailedOpeningGoesUnnoticed) {
  Make();
  process_.Faults().FailEvery("ShellExecuteA", 2);
  Link().lblHyperlink.UserClick();
  EXPECT_EQ(toolkit_.ScreenPointer(), 0);
  EXPECT_EQ(events_, Events{"Click"});
}

TEST_F(HyperLinks, AnErrorOfTheClicksHandlerEndsAtItsOwnBorder) {
  Make({{"hyperlink", ""}});
  std::vector<text::ErrorNumber> shown;
  toolkit_.OnUntrappedError = [&shown](const text::RuntimeError& error) {
    shown.push_back(error.Number());
  };
  Link().Click = nullptr;
  Link().Click = [] { throw text::RuntimeError(text::ErrorNumber::FileNotFound); };
  EXPECT_NO_THROW(Link().UserClick());
  EXPECT_EQ(shown, std::vector{text::ErrorNumber::FileNotFound});
}

TEST_F(HyperLinks, TheEndOfTheProgramPassesThroughAClick) {
  Make({{"hyperlink", ""}});
  Link().Click = nullptr;
  Link().Click = [this] { toolkit_.End(); };
  EXPECT_THROW(Link().UserClick(), forms::EndProgram);
}

TEST_F(HyperLinks, MousePressesArePassedOn) {
  Make({{"hyperlink", ""}});
  Link().MouseDown = [this](int button, int, float, float) {
    events_.push_back("MouseDown " + std::to_string(button));
  };
  Link().MouseUp = [this](int button, int, float, float) {
    events_.push_back("MouseUp " + std::to_string(button));
  };
  EXPECT_TRUE(user_.Click(Link()));
  EXPECT_EQ(events_, (Events{"MouseDown 1", "MouseUp 1", "Click"}));
}

TEST_F(HyperLinks, AKeyPressDoesWhatAClickDoes) {
  Make({{"hyperlink", ""}});
  Link().KeyPressed();
  EXPECT_EQ(events_, Events{"Click"});
  EXPECT_TRUE(Link().IsTabStop());
}

TEST_F(HyperLinks, ADisabledLinkIsNotClicked) {
  Make({{"hyperlink", ""}});
  Link().SetEnabled(false);
  events_.clear();
  Link().UserClick();
  Link().KeyPressed();
  EXPECT_FALSE(user_.Click(Link()));
  EXPECT_TRUE(events_.empty());
}

TEST_F(HyperLinks, SettersReportTheirChange) {
  Make();
  Link().SetFont({.Size = 9});
  Link().SetEnabled(true);
  Link().SetAlignment(2);
  Link().SetAutoSize(false);
  Link().SetHyperLink("");
  Link().SetHoverColor(1);
  Link().SetAppearance(0);
  Link().SetBorderStyle(1);
  Link().SetForeColor(2);
  Link().SetBackColor(3);
  Link().SetAutoToolTip(false);
  Link().SetSoundOn(false);
  Link().SetSoundID(102);
  Link().SetMOUnderline(false);
  Link().SetMOPointer(false);
  EXPECT_EQ(events_, (Events{"Font", "Enabled", "Alignment", "AutoSize", "HyperLink", "HoverColor",
                             "Appearance", "BorderStyle", "ForeColor", "BackColor", "AutoToolTip",
                             "SoundOn", "SoundID", "MOUnderline", "MOPointer"}));
  EXPECT_FALSE(Link().MOPointer());
  EXPECT_EQ(Link().Font().Size, 9);
  EXPECT_EQ(Label().Alignment(), forms::Align::Center);
  EXPECT_EQ(Link().SoundID(), 102);
  EXPECT_EQ(Label().Appearance(), 0);
  EXPECT_EQ(Label().BorderStyle(), 1);
}

TEST_F(HyperLinks, ANewCaptionTellsTheChangeOfTextFirst) {
  Make();
  Link().SetCaption("Elsewhere");
  EXPECT_EQ(events_, (Events{"Change", "Caption"}));
  EXPECT_EQ(Label().Caption(), "Elsewhere");
  EXPECT_EQ(Link().WindowText(), "Elsewhere");
}

TEST_F(HyperLinks, ATextSetFromOutsideIsTheCaption) {
  Make();
  world_.desktop.SendText(Link().WindowHandle(), platform::WmSetText, 0, "From outside");
  EXPECT_EQ(Link().Caption(), "From outside");
}

TEST_F(HyperLinks, AnAddressReadsBackTrimmed) {
  Make();
  Link().SetHyperLink("  http://www.example.com/x y  ");
  EXPECT_EQ(Link().GetHyperLink(), "http://www.example.com/x y");
}

TEST_F(HyperLinks, WhoHoldsItAsAnyControlReachesTheSameProperties) {
  Make();
  forms::Control& any = Link();
  any.SetForeColor(0x010203);
  any.SetBackColor(0x040506);
  any.SetEnabled(false);
  EXPECT_EQ(events_, (Events{"ForeColor", "BackColor", "Enabled"}));
  EXPECT_EQ(Label().ForeColor(), 0x010203U);
  EXPECT_EQ(any.ForeColor(), 0x010203U);
  EXPECT_EQ(Label().BackColor(), 0x040506U);
  EXPECT_FALSE(Label().Enabled());
  EXPECT_FALSE(any.Enabled());
}

TEST_F(HyperLinks, AnUnknownAlignmentIsRefused) {
  Make();
  EXPECT_THROW(Link().SetAlignment(3), text::RuntimeError);
  EXPECT_THROW(Link().SetAlignment(-1), text::RuntimeError);
}

TEST_F(HyperLinks, AnUnknownAppearanceOrBorderIsRefused) {
  Make();
  for (const std::int16_t unknown : {-1, 2}) {
    EXPECT_THROW(Link().SetAppearance(unknown), text::RuntimeError);
    EXPECT_THROW(Link().SetBorderStyle(unknown), text::RuntimeError);
  }
  EXPECT_TRUE(events_.empty());
}

TEST_F(HyperLinks, WithAutoSizeTheLinkTakesTheLabelsSize) {
  Make();
  Label().Move({0, 0, 900, 210});
  Link().SetCaption("Shorter");
  EXPECT_EQ(Link().At(), (forms::Place{LinkPlace.Left, LinkPlace.Top, 900, 210}));
}

TEST_F(HyperLinks, WithoutAutoSizeTheLabelIsCutAtTheLinksSize) {
  Make({{"autosize", "0"}});
  Label().Move({0, 0, 9000, 210});
  Link().SetCaption("A caption that is far too long for the room that the link has been given");
  EXPECT_EQ(Label().At(), (forms::Place{0, 0, LinkPlace.Width, LinkPlace.Height}));
  EXPECT_EQ(Link().At(), LinkPlace);
}

// The label has been given another size behind the link's back; what the setter reports, it reports
// before the link follows.
TEST_F(HyperLinks, TheSettersThatMayChangeTheSizeReportAndThenFollowTheLabel) {
  const std::vector<std::function<void(HyperLink&)>> setters{
      [](HyperLink& link) { link.SetFont({.Size = 12}); },
      [](HyperLink& link) { link.SetAlignment(1); },
      [](HyperLink& link) { link.SetAutoSize(true); },
      [](HyperLink& link) { link.SetCaption(link.Caption()); }};
  for (const auto& set : setters) {
    Make();
    const forms::Place before = Link().At();
    Label().Move({0, 0, 900, 210});
    std::vector<forms::Place> reported;
    Link().PropertyChanged = nullptr;
    Link().PropertyChanged = [&](const std::string&) { reported.push_back(Link().At()); };
    set(Link());
    EXPECT_EQ(reported, std::vector{before});
    EXPECT_EQ(Link().At(), (forms::Place{LinkPlace.Left, LinkPlace.Top, 900, 210}));
  }
}

TEST_F(HyperLinks, WithAutoSizeTakenAwayTheLabelFollowsTheLink) {
  Make();
  const forms::Place before = Link().At();
  Label().Move({0, 0, 900, 210});
  Link().SetAutoSize(false);
  EXPECT_EQ(Link().At(), before);
  EXPECT_EQ(Label().At(), (forms::Place{0, 0, before.Width, before.Height}));
}

TEST_F(HyperLinks, TheSizeFollowsBeforeAChangeIsTold) {
  Make();
  Label().Move({0, 0, 900, 210});
  forms::Place told;
  Link().Change = nullptr;
  Link().Change = [&] { told = Link().At(); };
  Link().SetCaption("Shorter");
  EXPECT_EQ(told, (forms::Place{LinkPlace.Left, LinkPlace.Top, 900, 210}));
}

TEST_F(HyperLinks, AChangeOfSizeIsTakenOver) {
  Make({{"autosize", "0"}});
  Link().Move({0, 0, 750, 450});
  EXPECT_EQ(Label().At(), (forms::Place{0, 0, 750, 450}));
}

TEST_F(HyperLinks, AboutDoesNothing) {
  Make();
  Link().About();
  EXPECT_TRUE(events_.empty());
}

TEST_F(HyperLinks, WithoutAPlatformTheMouseCountsAsGone) {
  LinkForm form(toolkit_, {}, false);
  EXPECT_FALSE(form.Link.IsMouseOver());
  EXPECT_NO_THROW(form.Link.UserClick());
}

PropertyBag Bag(const HyperLink& link) {
  PropertyBag bag;
  link.WriteProperties(bag);
  return bag;
}

// What differs from the defaults is saved, and nothing else but the extent.
Events Saved(const HyperLink& link) {
  const PropertyBag bag = Bag(link);
  Events saved;
  for (const auto& [name, text] : bag.Entries()) saved.push_back(name + "=" + text);
  return saved;
}

TEST_F(HyperLinks, ANewLinkSavesItsExtentAndItsCaption) {
  Make();
  EXPECT_EQ(Saved(Link()), (Events{"_extentx=1500", "_extenty=300", "caption=Hyperlink AX II"}));
}

TEST_F(HyperLinks, TheCaptionLeftOutIsNotTheOneThatAMissingOneReadsAs) {
  Make({{"caption", "Hyperlink AX"}});
  EXPECT_EQ(Saved(Link()), (Events{"_extentx=1500", "_extenty=300"}));
}

TEST_F(HyperLinks, EveryPropertyIsSavedAndRead) {
  const PropertyBag all{{"font", "950;-1;-1;Arial"},
                        {"enabled", "0"},
                        {"caption", "All"},
                        {"alignment", "2"},
                        {"autosize", "0"},
                        {"hyperlink", ""},
                        {"hovercolor", "&H80000002"},
                        {"appearance", "0"},
                        {"borderstyle", "1"},
                        {"forecolor", "&H8000000D"},
                        {"backcolor", "&H00FEECDD"},
                        {"autotooltip", "0"},
                        {"soundon", "0"},
                        {"soundid", "-7"},
                        {"mounderline", "0"},
                        {"mopointer", "0"}};
  Make(all);
  Events expected{"_extentx=1500", "_extenty=300"};
  for (const auto& [name, text] : all.Entries()) expected.push_back(name + "=" + text);
  EXPECT_EQ(Saved(Link()), expected);
  EXPECT_STREQ(Link().Font().Name, "Arial");
  EXPECT_EQ(Link().Font().Size, 9.5);
  EXPECT_EQ(Link().HoverColor(), forms::SystemColor(2));
  EXPECT_EQ(Link().ForeColor(), forms::SystemColor(13));
  EXPECT_EQ(Link().Appearance(), 0);
  EXPECT_EQ(Label().Appearance(), 0);
  EXPECT_EQ(Link().BorderStyle(), 1);
  EXPECT_EQ(Label().BorderStyle(), 1);
}

TEST_F(HyperLinks, ReadingWhatWasSavedGivesTheSameLink) {
  Make({{"autosize", "0"}, {"borderstyle", "1"}, {"appearance", "0"}, {"caption", "Same"}});
  Link().Move({LinkPlace.Left, LinkPlace.Top, 750, 450});
  Link().SetFont({.Name = "Arial", .Size = 8.25});
  const PropertyBag saved = Bag(Link());
  const Events before = Saved(Link());
  Make(saved);
  EXPECT_EQ(Saved(Link()), before);
}

TEST_F(HyperLinks, TheSavedExtentIsRead) {
  Make({{"autosize", "0"}, {"_extentx", "750"}, {"_extenty", "450"}});
  EXPECT_EQ(Link().At(), (forms::Place{LinkPlace.Left, LinkPlace.Top, 750, 450}));
  EXPECT_EQ(Label().At(), (forms::Place{0, 0, 750, 450}));
}

TEST_F(HyperLinks, AnExtentOfNothingIsOne) {
  Make({{"autosize", "0"}, {"_extentx", "0"}, {"_extenty", "0"}});
  EXPECT_EQ(Link().At(), (forms::Place{LinkPlace.Left, LinkPlace.Top, 0, 0}));
}

TEST_F(HyperLinks, AnExtentReadLaterIsTakenWhateverTheSizeWas) {
  Make();
  Link().ReadProperties({{"_extentx", "750"}, {"_extenty", "450"}, {"autosize", "0"}});
  EXPECT_EQ(Link().At(), (forms::Place{LinkPlace.Left, LinkPlace.Top, 750, 450}));
  Link().ReadProperties({{"autosize", "0"}});
  EXPECT_EQ(Link().At(), (forms::Place{LinkPlace.Left, LinkPlace.Top, 750, 450}));
}

TEST_F(HyperLinks, ASavedFontKeepsItsHundredthsAndAnyName) {
  const forms::Font font{.Name = "A;b;", .Size = 8.25, .Bold = true};
  Make();
  Link().SetFont(font);
  const PropertyBag saved = Bag(Link());
  EXPECT_EQ(saved.ReadProperty("font", ""), "825;-1;0;A;b;");
  Make(saved);
  EXPECT_TRUE(Link().Font() == font) << Link().Font().Name << ", " << Link().Font().Size;
}

// Its text would not distinguish it from its neighbours.
TEST_F(HyperLinks, TheContainersFontIsTakenAsItIsAndNotSaved) {
  Make();
  form_->Area.SetTextFont({.Name = "Arial", .Size = 8.125});
  Link().ReadProperties({});
  EXPECT_TRUE(Link().Font() == form_->Area.TextFont()) << Link().Font().Size;
  EXPECT_FALSE(Bag(Link()).Contains("font"));
  Link().SetFont({.Name = "Arial", .Size = 8.124});
  EXPECT_TRUE(Bag(Link()).Contains("font"));
}

TEST_F(HyperLinks, TheContainersColoursAreTakenAndNotSaved) {
  Make();
  form_->Area.SetForeColor(0x112233);
  form_->Area.SetBackColor(0x445566);
  Link().ReadProperties({});
  EXPECT_EQ(Link().ForeColor(), 0x112233U);
  EXPECT_EQ(Link().BackColor(), 0x445566U);
  EXPECT_FALSE(Bag(Link()).Contains("forecolor"));
  EXPECT_FALSE(Bag(Link()).Contains("backcolor"));
  Link().SetForeColor(0x010203);
  Link().SetBackColor(0x040506);
  EXPECT_EQ(Bag(Link()).ReadProperty("forecolor", ""), "&H00010203");
  EXPECT_EQ(Bag(Link()).ReadProperty("backcolor", ""), "&H00040506");
}

TEST_F(HyperLinks, DirectlyOnAWindowTheWindowIsTheContainer) {
  struct BareForm : forms::Form {
    explicit BareForm(forms::Toolkit& toolkit)
        : Form(toolkit, "Form2", {.Width = 6000, .Height = 6000, .BackColor = 0x778899}) {}
    HyperLink Link{*this, "Link", {.At = LinkPlace}};
  };
  BareForm form(toolkit_);
  EXPECT_EQ(form.Link.ForeColor(), forms::palette::WindowText);
  EXPECT_EQ(form.Link.BackColor(), 0x778899U);
  EXPECT_FALSE(Bag(form.Link).Contains("forecolor"));
  EXPECT_FALSE(Bag(form.Link).Contains("backcolor"));
}

TEST_F(HyperLinks, NamesAreFoundInAnyCaseAndOrder) {
  Make({{"SoundID", "5"}, {"HOVERCOLOR", "16711680"}, {"Caption", "Mixed"}});
  EXPECT_EQ(Link().Caption(), "Mixed");
  EXPECT_EQ(Link().HoverColor(), 0xFF0000U);
  EXPECT_EQ(Link().SoundID(), 5);
}

TEST_F(HyperLinks, ReadingReportsNoChangeOfProperties) {
  Make();
  Link().ReadProperties({{"hyperlink", "http://read.example/"}});
  EXPECT_TRUE(events_.empty());
  EXPECT_EQ(Link().GetHyperLink(), "http://read.example/");
}

TEST_F(HyperLinks, ReadingResetsWhatIsMissing) {
  Make({{"caption", "Told"}, {"soundid", "5"}});
  Link().ReadProperties({});
  EXPECT_EQ(Link().Caption(), "Hyperlink AX II");
  EXPECT_EQ(Link().SoundID(), 101);
}

TEST_F(HyperLinks, WhatIsNoValueIsRefused) {
  Make();
  for (const PropertyBag& bad :
       {PropertyBag{{"soundid", "many"}}, PropertyBag{{"soundid", "40000"}},
        PropertyBag{{"alignment", "9"}}, PropertyBag{{"forecolor", "&Hxyz"}},
        PropertyBag{{"font", "Arial"}}, PropertyBag{{"font", "Arial;8;0;0"}},
        PropertyBag{{"appearance", "2"}}, PropertyBag{{"borderstyle", "-1"}},
        PropertyBag{{"_extentx", "wide"}}, PropertyBag{{"_extentx", "-1"}},
        PropertyBag{{"_extenty", "-1"}}, PropertyBag{{"enabled", ""}}}) {
    EXPECT_THROW(Link().ReadProperties(bad), text::RuntimeError) << bad.Entries()[0].Name;
  }
}

TEST(PropertyBags, KeepOneTextAName) {
  PropertyBag bag;
  bag.WriteProperty("Caption", "One", "");
  bag.WriteProperty("caption", "Two", "");
  bag.WriteProperty("caption", "", "");
  ASSERT_EQ(bag.Entries().size(), 1U);
  EXPECT_EQ(bag.ReadProperty("CAPTION", "none"), "Two");
  EXPECT_EQ(bag.ReadProperty("colour", "none"), "none");
  EXPECT_TRUE(bag.Contains("CAPTION"));
  EXPECT_FALSE(bag.Contains("colour"));
}

}  // namespace
}  // namespace vantrel::controls
