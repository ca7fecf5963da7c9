// What the contract cannot ask of both sides: the end of a real thread from within.
#include <gtest/gtest.h>

#include "platform/Modules.h"
#include "platform/win32/Win32Platform.h"

namespace vantrel::platform::win32 {
namespace {

struct Leaving {
  Modules& modules;
  bool cameBack = false;
};

unsigned long __stdcall Leave(void* parameter) {
  auto& leaving = *static_cast<Leaving*>(parameter);
  leaving.modules.ExitThread(31);
  leaving.cameBack = true;
  return 1;
}

TEST(Win32Modules, ExitThreadEndsTheCallingThreadAtOnce) {
  const auto platform = MakeWin32Platform();
  Modules& modules = platform->Platform().modules;
  Leaving leaving{modules};
  std::uint32_t identifier = 0;
  const ThreadHandle thread =
      modules.CreateThread(0, 0, reinterpret_cast<EntryAddress>(&Leave),
                           reinterpret_cast<std::uintptr_t>(&leaving), 0, identifier);
  ASSERT_NE(thread, 0U);
  EXPECT_EQ(modules.WaitForSingleObject(thread, 10000), WaitObject);
  std::uint32_t code = 0;
  EXPECT_TRUE(modules.GetExitCodeThread(thread, code));
  EXPECT_EQ(code, 31U);
  EXPECT_FALSE(leaving.cameBack);
  EXPECT_TRUE(modules.CloseHandle(thread));
}

}  // namespace
}  // namespace vantrel::platform::win32
