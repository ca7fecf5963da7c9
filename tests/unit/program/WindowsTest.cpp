// The window singletons: when a window is made, and what an error on the way leaves.
#include <gmock/gmock.h>

#include <memory>

#include "program/Windows.h"
#include "support/ComponentFixture.h"
#include "text/RuntimeError.h"
#include "windows/FrmFrameLog.h"

namespace vantrel::program {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Panel = windows::FrmFrameLog;

class WindowSlots : public test::ComponentFixture {
 protected:
  WindowSlot<Panel>& slot = program.windows.FrmFrameLog;
  int loads = 0;
};

// Fails when it is first called.
struct FailingOnce {
  void operator()() {
    if (calls++ == 0) throw text::RuntimeError(text::ErrorNumber::PathNotFound);
  }
  int calls = 0;
};

TEST_F(WindowSlots, AWindowIsMadeByItsFirstUseAndKept) {
  EXPECT_FALSE(slot.Loaded());
  slot.EnsureLoaded();
  EXPECT_TRUE(slot.Loaded());
  Panel& made = *slot;
  slot.EnsureLoaded();
  EXPECT_EQ(&*slot, &made);
  EXPECT_THAT(toolkit.LoadedForms(), ElementsAre(&made));
}

TEST_F(WindowSlots, AnAttachThatFailsOnceLeavesTheWindowToTheNextUse) {
  FailingOnce fail;
  slot.OnMade([&fail](Panel&) { fail(); });
  slot.OnMade([this](Panel& panel) { panel.Load = [this] { ++loads; }; });
  AsEvent([&] { slot.EnsureLoaded(); });
  EXPECT_THAT(process.Boxes(), testing::SizeIs(1)) << "the error shows";
  EXPECT_THAT(toolkit.LoadedForms(), IsEmpty());
  AsEvent([&] { slot.EnsureLoaded(); });
  EXPECT_TRUE(slot.Loaded());
  EXPECT_EQ(loads, 1);
  EXPECT_EQ(fail.calls, 2) << "the behaviour is attached anew";
}

TEST_F(WindowSlots, AnInitializeThatFailsOnceLeavesTheWindowToTheNextUse) {
  FailingOnce fail;
  slot.OnMade([&](Panel& panel) {
    panel.Initialize = [&fail] { fail(); };
    panel.Load = [this] { ++loads; };
  });
  AsEvent([&] { slot.EnsureLoaded(); });
  EXPECT_FALSE(slot.Loaded());
  AsEvent([&] { slot.EnsureLoaded(); });
  EXPECT_TRUE(slot.Loaded());
  EXPECT_EQ(loads, 1);
}

TEST_F(WindowSlots, AWindowMayBeUsedWhileItIsMade) {
  Panel* seen = nullptr;
  slot.OnMade([&](Panel& panel) { panel.Initialize = [&] { seen = &*slot; }; });
  Panel& made = *slot;
  EXPECT_EQ(seen, &made);
}

TEST_F(WindowSlots, AWindowThatUnloadsItselfInItsLoadIsMadeAnewByTheNextUse) {
  slot.OnMade([this](Panel& panel) {
    panel.Load = [this, &panel] {
      if (++loads > 1) return;
      panel.Unload();
      slot.EnsureLoaded();
    };
  });
  AsEvent([&] { slot.EnsureLoaded(); });
  EXPECT_EQ(loads, 2);
  EXPECT_TRUE(slot.Loaded());
}

TEST_F(WindowSlots, AWindowThatIsMadeAnewOutlivesTheEventThatUnloadedIt) {
  std::weak_ptr<int> first;
  slot.OnMade([&](Panel& panel) {
    const auto mark = std::make_shared<int>();
    if (++loads == 1) first = mark;
    panel.Load = [mark] {};
  });
  slot.EnsureLoaded();
  AsEvent([&] {
    slot->Unload();
    slot.EnsureLoaded();
    EXPECT_EQ(loads, 2);
    EXPECT_FALSE(first.expired());
  });
  EXPECT_TRUE(first.expired());
}

}  // namespace
}  // namespace vantrel::program
