#include <gmock/gmock.h>

#include <cstring>

#include "platform/memory/Process.h"
#include "platform/memory/Tray.h"

namespace vantrel::platform::memory {
namespace {

class MemoryTray : public testing::Test {
 protected:
  NotifyIconData Data(const char* tip) const {
    NotifyIconData data;
    data.hWnd = window_;
    data.uID = 1;
    data.uFlags = 7;
    data.uCallbackMessage = 512;
    data.hIcon = 5;
    std::strncpy(data.szTip.data(), tip, data.szTip.size());
    return data;
  }

  bool Notify(std::uint32_t message, const NotifyIconData& data) {
    return process_.Platform().shell.Shell_NotifyIconA(message, data);
  }

  World world_;
  Process process_{world_};
  WindowHandle window_ = world_.desktop.MakeWindow(process_.Id(), 0, "owner");
};

TEST_F(MemoryTray, IconIsAddedOnceAndDeletedOnce) {
  EXPECT_FALSE(Notify(NimDelete, Data("tip")));
  EXPECT_TRUE(Notify(NimAdd, Data("tip")));
  EXPECT_FALSE(Notify(NimAdd, Data("tip")));
  ASSERT_EQ(world_.tray.Icons().size(), 1U);
  EXPECT_EQ(world_.tray.Icons()[0].tip, "tip");
  EXPECT_TRUE(Notify(NimDelete, Data("tip")));
  EXPECT_TRUE(world_.tray.Icons().empty());
}

TEST_F(MemoryTray, FlagsSayWhatCounts) {
  Notify(NimAdd, Data("before"));
  NotifyIconData change = Data("after");
  change.uFlags = 2;
  change.hIcon = 9;
  EXPECT_TRUE(Notify(NimModify, change));
  EXPECT_EQ(world_.tray.Icons()[0].tip, "before");
  EXPECT_EQ(world_.tray.Icons()[0].icon, 9U);
}

TEST_F(MemoryTray, TipEndsAtItsNulOrWithTheField) {
  NotifyIconData data = Data("");
  data.szTip.fill('x');
  Notify(NimAdd, data);
  EXPECT_EQ(world_.tray.Icons()[0].tip, std::string(64, 'x'));
}

TEST_F(MemoryTray, MouseReachesTheWindowWithIdAndCode) {
  Message seen;
  world_.desktop.SetHandler(window_, [&](const Message& message) {
    seen = message;
    return true;
  });
  Notify(NimAdd, Data("tip"));
  world_.tray.Mouse(world_.desktop, world_.tray.Icons()[0], 515);
  EXPECT_EQ(seen.message, 512U);
  EXPECT_EQ(seen.wParam, 1U);
  EXPECT_EQ(seen.lParam, 515U);
}

TEST_F(MemoryTray, NothingWithoutAnArea) {
  Notify(NimAdd, Data("tip"));
  world_.tray.SetPresent(false);
  EXPECT_TRUE(world_.tray.Icons().empty());
  EXPECT_FALSE(Notify(NimAdd, Data("tip")));
}

}  // namespace
}  // namespace vantrel::platform::memory
