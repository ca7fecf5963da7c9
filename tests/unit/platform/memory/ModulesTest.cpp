#include <gmock/gmock.h>

#include "platform/memory/Process.h"

namespace vantrel::platform::memory {
namespace {

using testing::ElementsAre;

const std::string Path = "C:\\Program Files\\Vantrel\\x.dll";

struct ThreadIsGone {};

class MemoryModules : public testing::Test {
 protected:
  ThreadHandle StartEntry(const std::string& name) {
    const ModuleHandle library = modules_.LoadLibraryA(Path);
    std::uint32_t identifier = 0;
    return modules_.CreateThread(0, 0, modules_.GetProcAddress(library, name), 0, 0, identifier);
  }

  World world_;
  Process process_{world_};
  Modules& modules_ = process_.Platform().modules;
};

TEST_F(MemoryModules, RegisteredLibraryGoesWithItsFile) {
  world_.libraries.Register(Path, {});
  EXPECT_TRUE(world_.files.IsFile(Path));
  EXPECT_NE(modules_.LoadLibraryA(Path), 0U);
  world_.files.Remove(Path);
  EXPECT_EQ(modules_.LoadLibraryA(Path), 0U);
}

TEST_F(MemoryModules, LoadsAreCountedOverAllProcessesAndGoWithThem) {
  world_.libraries.Register(Path, {});
  modules_.LoadLibraryA(Path);
  {
    Process other(world_);
    other.Platform().modules.LoadLibraryA(Path);
    other.Platform().modules.LoadLibraryA(Path);
    EXPECT_EQ(world_.libraries.Loads("c:\\program files\\vantrel\\X.DLL"), 3U);
  }
  EXPECT_EQ(world_.libraries.Loads(Path), 1U);
}

TEST_F(MemoryModules, PlannedFailuresGiveWhatTheSystemGives) {
  world_.libraries.Register(Path, {{"Run", [] { return 0; }}});
  const ThreadHandle thread = StartEntry("Run");
  const ModuleHandle library = modules_.LoadLibraryA(Path);
  const EntryAddress entry = modules_.GetProcAddress(library, "Run");
  for (const char* call : {"LoadLibraryA", "GetProcAddress", "FreeLibrary", "CreateThread",
                           "WaitForSingleObject", "GetExitCodeThread", "CloseHandle"}) {
    process_.Faults().FailEvery(call, 8);
  }
  std::uint32_t number = 3;
  EXPECT_EQ(modules_.LoadLibraryA(Path), 0U);
  EXPECT_EQ(modules_.GetProcAddress(library, "Run"), 0U);
  EXPECT_FALSE(modules_.FreeLibrary(library));
  EXPECT_EQ(modules_.CreateThread(0, 0, entry, 0, 0, number), 0U);
  EXPECT_EQ(modules_.WaitForSingleObject(thread, 1), WaitFailed);
  EXPECT_FALSE(modules_.GetExitCodeThread(thread, number));
  EXPECT_FALSE(modules_.CloseHandle(thread));
  EXPECT_EQ(number, 3U);
  EXPECT_EQ(process_.OpenThreads(), 1U);
}

TEST_F(MemoryModules, ExitThreadTakesTheWindowsAndLeavesTheStack) {
  process_.EndThread = [] { throw ThreadIsGone{}; };
  world_.desktop.MakeWindow(process_.Id(), 0, "main");
  world_.clock.SetTimer(process_.Id(), 10, [] { FAIL(); });
  process_.Trace().Start();
  EXPECT_THROW(modules_.ExitThread(9), ThreadIsGone);
  EXPECT_EQ(process_.ThreadExitCode(), 9U);
  EXPECT_FALSE(process_.Alive());
  EXPECT_THAT(world_.desktop.TopLevelWindows(), testing::IsEmpty());
  world_.clock.Advance(100);
  EXPECT_THAT(process_.Trace().Lines(), ElementsAre("ExitThread 9"));
}

TEST_F(MemoryModules, ProcessLivesOnInALibraryThatHangs) {
  process_.EndThread = [] { throw ThreadIsGone{}; };
  world_.libraries.Register(Path, {{"Run", Libraries::Hangs}});
  StartEntry("Run");
  EXPECT_EQ(world_.libraries.RunningThreads(process_.Id()), 1U);
  EXPECT_THROW(modules_.ExitThread(StillActive), ThreadIsGone);
  EXPECT_TRUE(process_.Alive());
  world_.libraries.Release();
  EXPECT_FALSE(process_.Alive());
}

TEST_F(MemoryModules, MisuseStopsTheProgram) {
  testing::GTEST_FLAG(death_test_style) = "threadsafe";
  world_.libraries.Register(Path, {{"Run", Libraries::Hangs}});
  std::uint32_t identifier = 0;
  EXPECT_DEATH(modules_.CreateThread(0, 0, 0x1234, 0, 0, identifier), "needs a library's entry");
  EXPECT_DEATH(modules_.WaitForSingleObject(StartEntry("Run"), 0xFFFFFFFFU), "never end");
  EXPECT_DEATH(modules_.ExitThread(0), "needs EndThread");
}

}  // namespace
}  // namespace vantrel::platform::memory
