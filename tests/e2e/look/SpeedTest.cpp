// A click on a link shows the whole panel at once, and a mouse that rests on a link costs nothing.
#include <algorithm>
#include <cstdio>

#include "LookFixture.h"
#include "Pixels.h"

namespace vantrel::e2e {
namespace {

constexpr double SwitchBound = 50;  // milliseconds
constexpr int Rounds = 5;
constexpr double RestShare = 0.02;  // of one processor, while the mouse rests on a link

double Milliseconds() {
  LARGE_INTEGER ticks{};
  LARGE_INTEGER perSecond{};
  QueryPerformanceCounter(&ticks);
  QueryPerformanceFrequency(&perSecond);
  return 1000.0 * static_cast<double>(ticks.QuadPart) / static_cast<double>(perSecond.QuadPart);
}

BOOL CALLBACK NotePending(HWND window, LPARAM parameter) {
  if (IsWindowVisible(window) && GetUpdateRect(window, nullptr, FALSE)) {
    *reinterpret_cast<bool*>(parameter) = true;
  }
  return TRUE;
}

bool IsPainted(HWND panel) {
  bool pending = false;
  NotePending(panel, reinterpret_cast<LPARAM>(&pending));
  EnumChildWindows(panel, NotePending, reinterpret_cast<LPARAM>(&pending));
  return IsWindowVisible(panel) && !pending;
}

class SpeedTest : public LookFixture {
 protected:
  double CpuMilliseconds() const {
    FILETIME ignored{};
    FILETIME kernel{};
    FILETIME user{};
    GetProcessTimes(Program().Process(), &ignored, &ignored, &kernel, &user);
    return (kernel.dwLowDateTime + static_cast<double>(user.dwLowDateTime)) / 10000.0;
  }

  double CpuOfTwoSeconds() const {
    const double before = CpuMilliseconds();
    // The time that is measured, not a wait for anything.
    WaitForSingleObject(Program().Process(), 2000);
    return CpuMilliseconds() - before;
  }
};

TEST_F(SpeedTest, APanelIsPaintedSoonAfterTheClick) {
  Start();
  for (const Screen& screen : Panels) ASSERT_TRUE(Shown().Open(screen));
  std::vector<double> all;
  for (int round = 0; round < Rounds; ++round) {
    for (const Screen& screen : Panels) {
      HWND link = Shown().Find(screen.Opener);
      HWND panel = Shown().Find(screen.Panel);
      const double start = Milliseconds();
      SendMessageA(link, BM_CLICK, 0, 0);
      ASSERT_TRUE(WaitFor([&] { return IsPainted(panel); }));
      all.push_back(Milliseconds() - start);
    }
  }
  std::sort(all.begin(), all.end());
  const double median = all[all.size() / 2];
  std::printf("a panel switch: median %.1f ms, most %.1f ms\n", median, all.back());
  EXPECT_LT(median, SwitchBound);
}

// Nothing half-painted is left for a later message.
TEST_F(SpeedTest, APanelIsWholeWhenTheClickIsOver) {
  Start();
  for (int round = 0; round < 2; ++round) {
    for (const Screen& screen : Panels) {
      DWORD_PTR answer = 0;
      ASSERT_NE(SendMessageTimeoutA(Shown().Find(screen.Opener), BM_CLICK, 0, 0, SMTO_BLOCK,
                                    DefaultBound, &answer),
                0);
      EXPECT_TRUE(IsPainted(Shown().Find(screen.Panel))) << screen.Panel;
    }
  }
}

TEST_F(SpeedTest, AMouseThatRestsOnALinkCostsNothing) {
  Start();
  SetForegroundWindow(Main());
  SetCursorPos(0, 0);
  const double away = CpuOfTwoSeconds();
  const RECT link = OnScreen(Shown().Find("frmMain.LnkGraph"));
  const std::vector<COLORREF> atRest = PixelsOf(link);
  SetCursorPos(link.left + 5, link.top + 5);
  ASSERT_TRUE(WaitFor([&] { return PixelsOf(link) != atRest; })) << "the link does not hover";
  const double over = CpuOfTwoSeconds();
  std::printf("two seconds: %.0f ms of processor with the mouse away, %.0f ms over a link\n", away,
              over);
  EXPECT_LT(over - away, 2000 * RestShare);
}

}  // namespace
}  // namespace vantrel::e2e
