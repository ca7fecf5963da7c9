// What the desktop promises about windows, messages and the cursor.
#include <gmock/gmock.h>

#include <array>
#include <vector>

#include "contract/Subject.h"

namespace vantrel::platform::contract {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class DesktopContract : public ContractTest {
 protected:
  std::vector<WindowHandle> TopLevel() {
    std::vector<WindowHandle> windows;
    desktop_.EnumWindows([&](WindowHandle window) {
      windows.push_back(window);
      return true;
    });
    return windows;
  }

  std::vector<WindowHandle> Below(WindowHandle parent) {
    std::vector<WindowHandle> windows;
    desktop_.EnumChildWindows(parent, [&](WindowHandle window) {
      windows.push_back(window);
      return true;
    });
    return windows;
  }

  std::string Caption(WindowHandle window, std::size_t room = 128) {
    std::vector<char> buffer(room, '#');
    const int length = desktop_.GetWindowTextA(window, buffer);
    EXPECT_TRUE(length == 0 || buffer[static_cast<std::size_t>(length)] == 0);
    return {buffer.data(), static_cast<std::size_t>(length)};
  }

  Desktop& desktop_ = platform_.desktop;
};

INSTANTIATE_TEST_SUITE_P(All, DesktopContract, AllKinds, KindName);

TEST_P(DesktopContract, EnumerationGivesTopLevelWindowsAndHiddenOnes) {
  const WindowHandle top = subject_->MakeWindow(0, "top", {0, 0});
  const WindowHandle child = subject_->MakeWindow(top, "child", {0, 0});
  subject_->Hide(top);
  EXPECT_THAT(TopLevel(), Contains(top));
  EXPECT_THAT(TopLevel(), Not(Contains(child)));
}

TEST_P(DesktopContract, EnumerationStopsWhenTold) {
  subject_->MakeWindow(0, "one", {0, 0});
  subject_->MakeWindow(0, "two", {0, 0});
  int visits = 0;
  desktop_.EnumWindows([&](WindowHandle) { return ++visits < 1; });
  EXPECT_EQ(visits, 1);
}

TEST_P(DesktopContract, ChildrenAreEnumeratedWithTheirOwn) {
  const WindowHandle top = subject_->MakeWindow(0, "top", {0, 0});
  const WindowHandle child = subject_->MakeWindow(top, "child", {0, 0});
  const WindowHandle grandchild = subject_->MakeWindow(child, "grandchild", {0, 0});
  subject_->Hide(child);
  EXPECT_THAT(Below(top), ElementsAre(child, grandchild));
  EXPECT_THAT(Below(grandchild), IsEmpty());
}

TEST_P(DesktopContract, ParentOfAChildOnly) {
  const WindowHandle top = subject_->MakeWindow(0, "top", {0, 0});
  const WindowHandle child = subject_->MakeWindow(top, "child", {0, 0});
  EXPECT_EQ(desktop_.GetParent(child), top);
  EXPECT_EQ(desktop_.GetParent(top), 0U);
  EXPECT_EQ(desktop_.GetParent(0), 0U);
}

TEST_P(DesktopContract, SetParentMovesAChild) {
  const WindowHandle one = subject_->MakeWindow(0, "one", {0, 0});
  const WindowHandle two = subject_->MakeWindow(0, "two", {0, 0});
  const WindowHandle child = subject_->MakeWindow(one, "child", {0, 0});
  desktop_.SetParent(child, two);
  EXPECT_EQ(desktop_.GetParent(child), two);
  EXPECT_THAT(Below(one), IsEmpty());
  EXPECT_THAT(Below(two), ElementsAre(child));
}

TEST_P(DesktopContract, CaptionIsCutToTheRoom) {
  const WindowHandle window = subject_->MakeWindow(0, "Ready for command", {0, 0});
  EXPECT_EQ(Caption(window), "Ready for command");
  EXPECT_EQ(Caption(window, 6), "Ready");
  EXPECT_EQ(Caption(window, 18), "Ready for command");
  EXPECT_EQ(Caption(window, 17), "Ready for comman");
}

TEST_P(DesktopContract, NoWindowHasNoCaption) {
  EXPECT_EQ(Caption(0), "");
  const WindowHandle window = subject_->MakeWindow(0, "", {0, 0});
  EXPECT_EQ(Caption(window), "");
}

TEST_P(DesktopContract, SentTextBecomesTheCaption) {
  const WindowHandle window = subject_->MakeWindow(0, "before", {0, 0});
  desktop_.SendTextMessageA(window, WmSetText, 0, "/onoff");
  EXPECT_EQ(Caption(window), "/onoff");
  desktop_.SendTextMessageA(window, WmSetText, 0, "");
  EXPECT_EQ(Caption(window), "");
  desktop_.SendTextMessageA(window, WmSetText, 0, std::string("a\0b", 3));
  EXPECT_EQ(Caption(window), "a");
}

TEST_P(DesktopContract, LongTextsArriveWhole) {
  const WindowHandle window = subject_->MakeWindow(0, "", {0, 0});
  const std::string text(5000, 't');
  desktop_.SendTextMessageA(window, WmSetText, 0, text);
  EXPECT_EQ(Caption(window, 6000), text);
}

TEST_P(DesktopContract, SentMessageIsHandledBeforeTheReturn) {
  const WindowHandle window = subject_->MakeWindow(0, "", {0, 0});
  subject_->Hide(window);
  desktop_.SendMessageA(window, BmClick, 0, 0);
  EXPECT_EQ(subject_->ClicksOf(window), 1);
}

TEST_P(DesktopContract, MessagesToNoWindowHaveNoEffect) {
  const WindowHandle gone = subject_->MakeWindow(0, "", {0, 0});
  subject_->DestroyWindow(gone);
  for (const WindowHandle window : {WindowHandle{0}, gone}) {
    desktop_.SendMessageA(window, BmClick, 0, 0);
    desktop_.SendTextMessageA(window, WmSetText, 0, "text");
    desktop_.ShowWindow(window, SwRestore);
    desktop_.SetForegroundWindow(window);
    EXPECT_FALSE(desktop_.IsIconic(window));
    EXPECT_EQ(Caption(window), "");
  }
}

TEST_P(DesktopContract, MinimizedWindowIsRestored) {
  const WindowHandle window = subject_->MakeWindow(0, "", {0, 0});
  EXPECT_FALSE(desktop_.IsIconic(window));
  subject_->Minimize(window);
  EXPECT_TRUE(desktop_.IsIconic(window));
  desktop_.ShowWindow(window, SwRestore);
  EXPECT_FALSE(desktop_.IsIconic(window));
}

TEST_P(DesktopContract, ZeroAsWindowProcedureLeavesTheWindowAlive) {
  const WindowHandle window = subject_->MakeWindow(0, "alive", {0, 0});
  desktop_.SetWindowLongA(window, -4, 0);
  desktop_.SendMessageA(window, BmClick, 0, 0);
  EXPECT_EQ(subject_->ClicksOf(window), 1);
  EXPECT_EQ(Caption(window), "alive");
}

TEST_P(DesktopContract, WindowUnderAPointIsTheDeepestOne) {
  const WindowHandle top = subject_->MakeWindow(0, "top", {300, 300});
  const WindowHandle child = subject_->MakeWindow(top, "child", {50, 20});
  desktop_.SetForegroundWindow(top);
  EXPECT_EQ(desktop_.WindowFromPoint({301, 301}), top);
  EXPECT_EQ(desktop_.WindowFromPoint({350, 320}), child);
  subject_->Hide(child);
  EXPECT_EQ(desktop_.WindowFromPoint({350, 320}), top);
}

}  // namespace
}  // namespace vantrel::platform::contract
