#include <gmock/gmock.h>

#include "platform/memory/Desktop.h"
#include "platform/memory/Process.h"

namespace vantrel::platform::memory {
namespace {

using testing::ElementsAre;

class MemoryDesktop : public testing::Test {
 protected:
  World world_;
  Process process_{world_};
  Desktop& desktop_ = world_.desktop;

  WindowHandle Make(WindowHandle parent, const std::string& caption) {
    return desktop_.MakeWindow(process_.Id(), parent, caption);
  }
};

TEST_F(MemoryDesktop, NewestWindowIsInFrontUntilAnotherComesForward) {
  const WindowHandle first = Make(0, "first");
  const WindowHandle second = Make(0, "second");
  EXPECT_THAT(desktop_.TopLevelWindows(), ElementsAre(second, first));
  const WindowHandle child = Make(first, "child");
  process_.Platform().desktop.SetForegroundWindow(child);
  EXPECT_THAT(desktop_.TopLevelWindows(), ElementsAre(first, second));
  EXPECT_EQ(desktop_.Foreground(), first);
}

TEST_F(MemoryDesktop, DescendantsComeEachBeforeItsOwnChildren) {
  const WindowHandle top = Make(0, "top");
  const WindowHandle back = Make(top, "back");
  const WindowHandle front = Make(top, "front");
  const WindowHandle below = Make(front, "below");
  EXPECT_THAT(desktop_.Descendants(top), ElementsAre(front, below, back));
  desktop_.BringToFront(back);
  EXPECT_THAT(desktop_.Descendants(top), ElementsAre(back, front, below));
}

TEST_F(MemoryDesktop, WindowWithoutAChildsStyleHasNoParentButIsEnumerated) {
  const WindowHandle top = Make(0, "top");
  const WindowHandle panel = Make(0, "panel");
  desktop_.SetParent(panel, top);
  EXPECT_EQ(desktop_.Parent(panel), 0U);
  EXPECT_EQ(desktop_.TreeParent(panel), top);
  desktop_.SetChildStyle(panel, true);
  EXPECT_EQ(desktop_.Parent(panel), top);
  EXPECT_THAT(desktop_.Descendants(top), ElementsAre(panel));
}

TEST_F(MemoryDesktop, WindowCannotBecomeItsOwnDescendant) {
  const WindowHandle top = Make(0, "top");
  const WindowHandle child = Make(top, "child");
  desktop_.SetParent(top, child);
  EXPECT_EQ(desktop_.TreeParent(top), 0U);
}

TEST_F(MemoryDesktop, DestroyingTakesDescendantsAndTheirMessages) {
  const WindowHandle top = Make(0, "top");
  const WindowHandle child = Make(top, "child");
  desktop_.Post({child, BmClick, 0, 0});
  desktop_.DestroyWindow(top);
  EXPECT_FALSE(desktop_.IsWindow(child));
  EXPECT_EQ(desktop_.PendingOf(process_.Id()), 0U);
  EXPECT_FALSE(desktop_.PumpProcess(process_.Id()));
}

TEST_F(MemoryDesktop, HandlerMayDestroyItsOwnWindow) {
  const WindowHandle window = Make(0, "window");
  desktop_.SetHandler(window, [&](const Message&) {
    desktop_.DestroyWindow(window);
    return false;
  });
  desktop_.SendText(window, WmSetText, 0, "text");
  EXPECT_FALSE(desktop_.IsWindow(window));
}

TEST_F(MemoryDesktop, HandledTextLeavesTheCaption) {
  const WindowHandle window = Make(0, "before");
  std::string seen;
  desktop_.SetHandler(window, [&](const Message& message) {
    seen = *message.text;
    return true;
  });
  EXPECT_TRUE(desktop_.SendText(window, WmSetText, 0, "after"));
  EXPECT_EQ(seen, "after");
  EXPECT_EQ(desktop_.Caption(window), "before");
}

TEST_F(MemoryDesktop, PostedMessagesWaitForTheirOwnProcess) {
  Process other(world_);
  const WindowHandle window = desktop_.MakeWindow(other.Id(), 0, "");
  int clicks = 0;
  desktop_.SetHandler(window, [&](const Message&) { return ++clicks > 0; });
  desktop_.Post({window, BmClick, 0, 0});
  EXPECT_FALSE(desktop_.PumpProcess(process_.Id()));
  EXPECT_EQ(clicks, 0);
  EXPECT_TRUE(desktop_.PumpProcess(other.Id()));
  EXPECT_EQ(clicks, 1);
}

TEST_F(MemoryDesktop, NestedPumpGoesOnWithWhatIsLeft) {
  std::vector<int> order;
  desktop_.Post(process_.Id(), [&] {
    order.push_back(1);
    desktop_.PumpProcess(process_.Id());
    order.push_back(3);
  });
  desktop_.Post(process_.Id(), [&] { order.push_back(2); });
  desktop_.PumpProcess(process_.Id());
  EXPECT_THAT(order, ElementsAre(1, 2, 3));
}

TEST_F(MemoryDesktop, ShowWindowTellsTheWindow) {
  const WindowHandle window = Make(0, "");
  std::vector<std::pair<std::uint32_t, std::uintptr_t>> seen;
  desktop_.SetHandler(window, [&](const Message& message) {
    seen.emplace_back(message.message, message.wParam);
    return true;
  });
  desktop_.ShowWindow(window, 6);
  desktop_.ShowWindow(window, SwRestore);
  desktop_.ShowWindow(window, SwRestore);
  desktop_.ShowWindow(window, 0);
  EXPECT_THAT(seen, ElementsAre(std::pair(WmShowWindow, 1U), std::pair(WmSize, 1U),
                                std::pair(WmSize, 0U), std::pair(WmShowWindow, 0U)));
}

TEST_F(MemoryDesktop, PointFallsThroughDisabledAndHiddenWindows) {
  const WindowHandle top = Make(0, "top");
  const WindowHandle child = Make(top, "child");
  desktop_.SetPlace(top, {10, 10, 100, 100});
  desktop_.SetPlace(child, {5, 5, 20, 20});
  EXPECT_EQ(desktop_.WindowAt({16, 16}), 0U);
  desktop_.SetVisible(top, true);
  desktop_.SetVisible(child, true);
  EXPECT_EQ(desktop_.WindowAt({16, 16}), child);
  EXPECT_EQ(desktop_.WindowAt({35, 16}), top);
  EXPECT_EQ(desktop_.WindowAt({110, 16}), 0U);
  desktop_.SetEnabled(child, false);
  EXPECT_EQ(desktop_.WindowAt({16, 16}), top);
}

TEST_F(MemoryDesktop, ChildIsOnScreenOnlyWithItsAncestors) {
  const WindowHandle top = Make(0, "top");
  const WindowHandle child = Make(top, "child");
  desktop_.SetVisible(child, true);
  EXPECT_FALSE(desktop_.OnScreen(child));
  desktop_.SetVisible(top, true);
  EXPECT_TRUE(desktop_.OnScreen(child));
  desktop_.SetIconic(top, true);
  EXPECT_FALSE(desktop_.OnScreen(child));
}

TEST_F(MemoryDesktop, FindsByNameAndCaption) {
  const WindowHandle top = Make(0, "top");
  const WindowHandle child = Make(top, "Ready for command");
  desktop_.SetControlName(child, "frmMain.cmdDummy");
  EXPECT_EQ(desktop_.FindByControlName("frmMain.cmdDummy"), child);
  EXPECT_EQ(desktop_.FindByControlName("frmMain.cmdDummy", process_.Id() + 1), 0U);
  EXPECT_EQ(desktop_.FindByCaption("Ready for command"), child);
  EXPECT_EQ(desktop_.FindByCaption("ready for command"), 0U);
}

TEST_F(MemoryDesktop, KeepsWhatHasNoEffect) {
  platform::Desktop& view = process_.Platform().desktop;
  view.keybd_event(0x5B, 0, 2, 0);
  view.SetWindowLongA(7, -4, 0);
  ASSERT_EQ(desktop_.keyEvents.size(), 1U);
  EXPECT_EQ(desktop_.keyEvents[0].key, 0x5B);
  ASSERT_EQ(desktop_.windowLongCalls.size(), 1U);
  EXPECT_EQ(desktop_.windowLongCalls[0].index, -4);
}

TEST_F(MemoryDesktop, WindowsGoWithTheirProcess) {
  auto other = std::make_unique<Process>(world_);
  const WindowHandle window = desktop_.MakeWindow(other->Id(), 0, "");
  other.reset();
  EXPECT_FALSE(desktop_.IsWindow(window));
}

TEST_F(MemoryDesktop, AskingAWindowThatIsGoneIsAMisuse) {
  testing::GTEST_FLAG(death_test_style) = "threadsafe";
  EXPECT_DEATH(desktop_.Caption(4711), "no such window");
}

}  // namespace
}  // namespace vantrel::platform::memory
