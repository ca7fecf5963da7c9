#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

#include "Bench.h"
#include "forms/Toolkit.h"

namespace vantrel::forms {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

static_assert(noexcept(std::declval<Toolkit&>().AtBorder({})));

class Borders : public testing::Test {
 protected:
  Borders() {
    toolkit.OnUntrappedError = [this](const text::RuntimeError& error) {
      errors.push_back(static_cast<int>(error.Number()));
    };
  }

  NotingToolkit toolkit;
  BenchForm form{toolkit};
  std::vector<int> errors;
};

TEST_F(Borders, AnUntrappedErrorIsShownAndLost) {
  toolkit.AtBorder([] { throw text::RuntimeError(text::ErrorNumber::Overflow); });
  toolkit.AtBorder([] {});
  EXPECT_THAT(errors, ElementsAre(6));
  EXPECT_FALSE(toolkit.Ending());
}

TEST_F(Borders, AnyOtherExceptionIsShownAsTheNearestError) {
  toolkit.AtBorder([] { throw std::bad_alloc(); });
  toolkit.AtBorder([] { throw std::out_of_range("far"); });
  EXPECT_THAT(errors, ElementsAre(7, 5));
}

TEST_F(Borders, AnErrorOfTheErrorBoxIsLetGo) {
  toolkit.OnUntrappedError = [](const text::RuntimeError&) { throw std::logic_error("no box"); };
  toolkit.AtBorder([] { throw text::RuntimeError(text::ErrorNumber::Overflow); });
  toolkit.OnUntrappedError = nullptr;
  toolkit.AtBorder([] { throw text::RuntimeError(text::ErrorNumber::Overflow); });
  EXPECT_FALSE(toolkit.Ending());
}

TEST_F(Borders, TheErrorBoxMayEndTheProgram) {
  toolkit.OnUntrappedError = [this](const text::RuntimeError&) { toolkit.End(); };
  toolkit.AtBorder([] { throw text::RuntimeError(text::ErrorNumber::Overflow); });
  EXPECT_TRUE(toolkit.Ending());
}

TEST_F(Borders, AnInnerBorderKeepsItsErrorFromTheOuter) {
  bool wentOn = false;
  toolkit.AtBorder([&] {
    toolkit.AtBorder([] { throw text::RuntimeError(text::ErrorNumber::DiskFull); });
    wentOn = true;
  });
  EXPECT_TRUE(wentOn);
  EXPECT_THAT(errors, ElementsAre(61));
}

TEST_F(Borders, EndUnwindsThroughNestedHandlersAndPumps) {
  Notes notes;
  form.button.Click = [&] { toolkit.End(); };
  toolkit.WhenPumped = [&] {
    toolkit.AtBorder([&] {
      form.button.SetValue(true);
      notes.push_back("behind the end");
    });
    notes.push_back("the pump goes on");
  };
  form.check.Click = [&] {
    toolkit.DoEvents();
    notes.push_back("behind the pump");
  };
  toolkit.AtBorder([&] {
    form.check.SetValue(Checked);
    notes.push_back("behind the click");
  });
  EXPECT_TRUE(toolkit.Ending());
  EXPECT_THAT(notes, ElementsAre("the pump goes on"));
  EXPECT_THAT(errors, IsEmpty());
}

TEST_F(Borders, EndReachesTheEntryPoint) {
  EXPECT_THROW(toolkit.End(), EndProgram);
  EXPECT_TRUE(toolkit.Ending());
  EXPECT_THROW(toolkit.DoEvents(), EndProgram);
  EXPECT_THROW(toolkit.ThrowIfEnding(), EndProgram);
}

TEST_F(Borders, NoEventRunsOnceTheProgramEnds) {
  toolkit.AtBorder([&] { toolkit.End(); });
  bool ran = false;
  toolkit.AtBorder([&] { ran = true; });
  EXPECT_FALSE(ran);
}

TEST_F(Borders, EndInsideAnUnloadStopsIt) {
  form.Unloading = [&](bool&) { toolkit.End(); };
  form.EnsureLoaded();
  EXPECT_THROW(form.Unload(), EndProgram);
}

TEST_F(Borders, EndInsideAModalWindowComesOutOfIt) {
  form.EnsureLoaded();
  PeerOf(form).WhenModal = [&] { toolkit.AtBorder([&] { toolkit.End(); }); };
  EXPECT_THROW(form.ShowModal(), EndProgram);
}

// Notes its own end.
class Mortal : public BenchForm {
 public:
  Mortal(Toolkit& toolkit, Notes& notes) : BenchForm(toolkit, "mortal"), notes_(notes) {}
  ~Mortal() override {
    notes_.push_back("destroyed");
    Tools().Discard(std::move(Last));
  }

  std::unique_ptr<Form> Last;  // discarded on the way out

 private:
  Notes& notes_;
};

// One that discards another on its way out, which does the same.
std::unique_ptr<Mortal> ThreeInARow(Toolkit& toolkit, Notes& notes) {
  std::unique_ptr<Mortal> first;
  for (int i = 0; i < 3; ++i) {
    auto before = std::make_unique<Mortal>(toolkit, notes);
    before->Last = std::move(first);
    first = std::move(before);
  }
  return first;
}

TEST_F(Borders, ADiscardedWindowOutlivesTheEventsThatRun) {
  Notes notes;
  auto owned = std::make_unique<Mortal>(toolkit, notes);
  Mortal& mortal = *owned;
  mortal.EnsureLoaded();
  mortal.button.Click = [&] {
    mortal.Unload();
    toolkit.Discard(std::move(owned));
    toolkit.AtBorder([] {});
    mortal.text.SetText("still there");
    notes.push_back(mortal.text.Text());
  };
  toolkit.AtBorder([&] {
    mortal.button.UserClick();
    notes.push_back("end of the event");
  });
  EXPECT_THAT(notes, ElementsAre("still there", "end of the event", "destroyed"));
}

TEST_F(Borders, AWindowDiscardedInAPumpOutlivesThePump) {
  Notes notes;
  auto owned = std::make_unique<Mortal>(toolkit, notes);
  toolkit.WhenPumped = [&] {
    toolkit.AtBorder([&] { toolkit.Discard(std::move(owned)); });
    notes.push_back("end of the pump");
  };
  toolkit.DoEvents();
  EXPECT_THAT(notes, ElementsAre("end of the pump"));
  toolkit.AtBorder([] {});
  EXPECT_THAT(notes, ElementsAre("end of the pump", "destroyed"));
}

TEST_F(Borders, WindowsDiscardedByDiscardedOnesGoWithTheSameBorder) {
  Notes notes;
  toolkit.AtBorder([&] { toolkit.Discard(ThreeInARow(toolkit, notes)); });
  EXPECT_THAT(notes, ElementsAre("destroyed", "destroyed", "destroyed"));
}

TEST(Toolkits, TakeWindowsDiscardedByDiscardedOnesWithThemToo) {
  Notes notes;
  {
    NotingToolkit toolkit;
    toolkit.Discard(ThreeInARow(toolkit, notes));
  }
  EXPECT_THAT(notes, ElementsAre("destroyed", "destroyed", "destroyed"));
}

TEST(Toolkits, TakeTheirDiscardedWindowsWithThem) {
  Notes notes;
  {
    NotingToolkit toolkit;
    toolkit.Discard(std::make_unique<Mortal>(toolkit, notes));
    toolkit.Discard(nullptr);
    EXPECT_THAT(notes, IsEmpty());
  }
  EXPECT_THAT(notes, ElementsAre("destroyed"));
}

TEST(Toolkits, TellAChangeOfTheScreensPointer) {
  NotingToolkit toolkit;
  toolkit.SetScreenPointer(PointerHourglass);
  toolkit.SetScreenPointer(PointerHourglass);
  EXPECT_EQ(PointerHourglass, toolkit.ScreenPointer());
  EXPECT_THAT(toolkit.notes, ElementsAre("screen pointer"));
}

}  // namespace
}  // namespace vantrel::forms
