// Every panel and both dialogs, shown again and again: what the program holds of the system does
// not grow.
#include <cstdio>

#include "Resources.h"
#include "Soak.h"
#include "support/WindowStates.h"

namespace vantrel::e2e {
namespace {

constexpr long HandlesMore = 5;
constexpr long long PercentMore = 1;

struct LinkedPanel {
  const char* link;
  const char* panel;
};
constexpr LinkedPanel Panels[] = {
    {"frmMain.LnkWelcome", "FrmFrameMain"},
    {"frmMain.LnkAdBlocking", "FrmFrameBlockPreferences"},
    {"frmMain.LnkSettings", "FrmFrameSettings"},
    {"frmMain.lnkClean", "FrmFrameHistory"},
    {"frmMain.LnkAllowedList", "FrmFrameAllowList"},
    {"frmMain.LnkNotification", "FrmFrameNotification"},
    {"frmMain.LnkIESettings", "FrmFrameIESettings"},
    {"frmMain.LnkIePlug", "FrmFrameIEPlugin"},
    {"frmMain.LnkGraph", "FrmFrameGraph"},
    {"frmMain.LnkLog", "FrmFrameLog"},
};

class ResourcesTest : public SoakTest {
 protected:
  static void ShowEverything(const Running& program) {
    for (const LinkedPanel& row : Panels) {
      program.MouseClick(row.link);
      ASSERT_TRUE(program.WaitUntilVisible(row.panel)) << row.panel;
    }
    ASSERT_TRUE(OpenAbout(program));
    ASSERT_TRUE(CloseAbout(program));
    ASSERT_TRUE(OpenToolbarDialog(program));
    ASSERT_TRUE(CloseToolbarDialog(program));
    ASSERT_TRUE(program.Answers());
  }
  static void ShowEverything(const Running& program, int rounds) {
    for (int round = 0; round < rounds && !HasFatalFailure(); ++round) ShowEverything(program);
  }
};

TEST_F(ResourcesTest, AllPanelsAndDialogsManyTimesCostNothing) {
  const Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  ShowEverything(program, Count({5, 50}));
  const Resources before = ResourcesOf(program.Process());
  const int rounds = Count({10, 500});
  ShowEverything(program, rounds);
  const Resources after = ResourcesOf(program.Process());
  std::printf("%d rounds: %s before, %s after\n", rounds, Show(before).c_str(),
              Show(after).c_str());
  EXPECT_LE(after.Gdi, before.Gdi + HandlesMore);
  EXPECT_LE(after.User, before.User + HandlesMore);
  EXPECT_LE(after.Kernel, before.Kernel + HandlesMore);
  EXPECT_LE(after.PrivateBytes, before.PrivateBytes * (100 + PercentMore) / 100);
}

}  // namespace
}  // namespace vantrel::e2e
