#include <gmock/gmock.h>

#include "launch/bmdlRegUnReg.h"
#include "support/ComponentFixture.h"

namespace vantrel::launch {
namespace {

using platform::memory::Libraries;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string Path = "C:\\Program Files\\Vantrel\\GBHelper.dll";

class RegUnReg : public test::ComponentFixture {
 protected:
  RegUnReg() { process.Trace().Clear(); }

  // A library whose entries count their calls and give the code back.
  void PutLibrary(std::int32_t exitCode = 0) {
    world.libraries.Register(
        Path, {{"DllRegisterServer", [this, exitCode] { return ++registered, exitCode; }},
               {"DllUnregisterServer", [this, exitCode] { return ++unregistered, exitCode; }}});
  }
  std::int32_t Register(const std::string& path = Path) {
    return RegisterDll(program.platform.modules, path);
  }
  std::int32_t Unregister(const std::string& path = Path) {
    return UnregisterDll(program.platform.modules, path);
  }
  void ExpectNothingHeld() {
    EXPECT_EQ(world.libraries.Loads(Path), 0U);
    EXPECT_EQ(process.OpenThreads(), 0U);
  }

  int registered = 0;
  int unregistered = 0;
};

TEST_F(RegUnReg, EachEntryRunsOnceAndHasAStatusOfItsOwn) {
  PutLibrary();
  EXPECT_EQ(Register(), 4);
  EXPECT_EQ(registered, 1);
  EXPECT_EQ(unregistered, 0);
  EXPECT_EQ(Unregister(), 5);
  EXPECT_EQ(registered, 1);
  EXPECT_EQ(unregistered, 1);
  ExpectNothingHeld();
}

TEST_F(RegUnReg, TheCallsOfARegistrationInTheirOrder) {
  PutLibrary();
  Register();
  EXPECT_THAT(process.Trace().Lines(),
              ElementsAre("LoadLibraryA \"" + Path + "\" -> 268435456",
                          "GetProcAddress \"" + Path + "\" \"DllRegisterServer\" -> 4198400",
                          "CreateThread 0 0 \"DllRegisterServer\" 0 0 -> 64",
                          "WaitForSingleObject 0x40 10000 -> 0", "CloseHandle 0x40 -> true",
                          "FreeLibrary \"" + Path + "\" -> true"));
}

TEST_F(RegUnReg, AnEmptyPathTouchesNothing) {
  EXPECT_EQ(Register(""), 7);
  EXPECT_EQ(Unregister(""), 7);
  EXPECT_THAT(process.Trace().Lines(), IsEmpty());
}

TEST_F(RegUnReg, AMissingLibraryIsNotLoaded) {
  EXPECT_EQ(Register(), 1);
  EXPECT_EQ(Unregister(), 1);
  EXPECT_THAT(process.Trace().Names(), ElementsAre("LoadLibraryA", "LoadLibraryA"));
}

TEST_F(RegUnReg, AFileThatIsNoLibraryIsNotLoaded) {
  world.files.Put(Path, "text");
  EXPECT_EQ(Register(), 1);
}

TEST_F(RegUnReg, ALibraryWithoutTheEntryIsFreedAgain) {
  world.libraries.Register(Path, {{"DllUnregisterServer", [] { return 0; }}});
  EXPECT_EQ(Register(), 2);
  EXPECT_EQ(Unregister(), 5);
  ExpectNothingHeld();
}

TEST_F(RegUnReg, AnEntryOfAnotherCaseIsNone) {
  world.libraries.Register(Path, {{"dllregisterserver", [] { return 0; }}});
  EXPECT_EQ(Register(), 2);
}

TEST_F(RegUnReg, WithoutAThreadNothingRuns) {
  PutLibrary();
  process.Faults().FailEvery("CreateThread", 8);
  EXPECT_EQ(Register(), 0);
  EXPECT_EQ(Unregister(), 0);
  EXPECT_EQ(registered + unregistered, 0);
  ExpectNothingHeld();
  EXPECT_THAT(process.Trace().LinesOf("CloseHandle"), IsEmpty());
}

TEST_F(RegUnReg, ALibraryThatRefusesCountsAsRegistered) {
  PutLibrary(static_cast<std::int32_t>(0x80004005));
  EXPECT_EQ(Register(), 4);
  EXPECT_EQ(Unregister(), 5);
  EXPECT_THAT(process.Trace().LinesOf("GetExitCodeThread"), IsEmpty());
}

TEST_F(RegUnReg, ALibraryThatHangsEndsTheProgramsOwnThread) {
  world.libraries.Register(Path, {{"DllRegisterServer", Libraries::Hangs}});
  AsEvent([&] {
    Register();
    ADD_FAILURE() << "the call came back";
  });
  EXPECT_EQ(process.ThreadExitCode(), platform::StillActive);
  EXPECT_EQ(process.Trace().Lines().back(), "ExitThread 259");
  // Neither handle was given back.
  EXPECT_EQ(world.libraries.Loads(Path), 1U);
  EXPECT_EQ(process.OpenThreads(), 1U);
}

TEST_F(RegUnReg, TheProcessLivesAsLongAsTheLibraryThatHangs) {
  world.libraries.Register(Path, {{"DllUnregisterServer", Libraries::Hangs}});
  EXPECT_TRUE(process.Alive());
  AsEvent([&] { Unregister(); });
  EXPECT_TRUE(toolkit.Ending());
  EXPECT_TRUE(process.Alive());
  world.libraries.Release();
  EXPECT_FALSE(process.Alive());
}

TEST_F(RegUnReg, AWaitThatFailsIsTakenForOneThatWasTooLong) {
  PutLibrary(17);
  process.Faults().FailEvery("WaitForSingleObject", 6);
  AsEvent([&] { Register(); });
  EXPECT_EQ(process.ThreadExitCode(), 17U);
}

TEST_F(RegUnReg, WithoutAnExitCodeTheThreadEndsWithZero) {
  world.libraries.Register(Path, {{"DllRegisterServer", Libraries::Hangs}});
  process.Faults().FailEvery("GetExitCodeThread", 6);
  AsEvent([&] { Register(); });
  EXPECT_EQ(process.ThreadExitCode(), 0U);
}

// Lets the calls through until the one that is to raise an error.
class Failing : public platform::Modules {
 public:
  Failing(Modules& real, const std::string& call) : real_(real), call_(call) {}

  platform::ModuleHandle LoadLibraryA(const std::string& path) override {
    FailAt("LoadLibraryA");
    return real_.LoadLibraryA(path);
  }
  platform::EntryAddress GetProcAddress(platform::ModuleHandle module,
                                        const std::string& name) override {
    FailAt("GetProcAddress");
    return real_.GetProcAddress(module, name);
  }
  bool FreeLibrary(platform::ModuleHandle module) override { return real_.FreeLibrary(module); }
  platform::ThreadHandle CreateThread(std::uint32_t security, std::uint32_t stackSize,
                                      platform::EntryAddress routine, std::uintptr_t parameter,
                                      std::uint32_t flags, std::uint32_t& identifier) override {
    FailAt("CreateThread");
    return real_.CreateThread(security, stackSize, routine, parameter, flags, identifier);
  }
  std::uint32_t WaitForSingleObject(platform::ThreadHandle thread,
                                    std::uint32_t milliseconds) override {
    FailAt("WaitForSingleObject");
    return real_.WaitForSingleObject(thread, milliseconds);
  }
  bool GetExitCodeThread(platform::ThreadHandle thread, std::uint32_t& exitCode) override {
    return real_.GetExitCodeThread(thread, exitCode);
  }
  void ExitThread(std::uint32_t exitCode) override { real_.ExitThread(exitCode); }
  bool CloseHandle(platform::ThreadHandle thread) override { return real_.CloseHandle(thread); }

 private:
  void FailAt(const std::string& call) const {
    if (call == call_) throw text::RuntimeError(text::ErrorNumber::FileNotFound);
  }

  Modules& real_;
  const std::string call_;
};

TEST_F(RegUnReg, AFailureInsideIsTheStatusAndNothingStaysHeld) {
  PutLibrary();
  for (const char* call :
       {"LoadLibraryA", "GetProcAddress", "CreateThread", "WaitForSingleObject"}) {
    Failing failing(program.platform.modules, call);
    EXPECT_EQ(RegisterDll(failing, Path), 53) << call;
    EXPECT_EQ(UnregisterDll(failing, Path), 53) << call;
    ExpectNothingHeld();
  }
}

}  // namespace
}  // namespace vantrel::launch
