#include <gmock/gmock.h>

#include "shell/CheckAndRepair.h"
#include "unit/shell/ShellTest.h"
#include "windows/frmMain.h"

namespace vantrel::shell {
namespace {

using platform::HKeyClassesRoot;
using platform::memory::Box;
using platform::memory::Libraries;
using test::Copy;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string Folder = "C:\\Program Files\\Vantrel";
const std::string Helper = Folder + "\\GBHelper.dll";
const std::string Toolbar = Folder + "\\GBToolbar.dll";

constexpr const char* HelperKey = "GBHelper.HelperBHO\\Clsid";
constexpr const char* ToolbarClass = "Grimbolt.Toolbar\\Clsid";
constexpr const char* TypeLibraries[] = {
    "TypeLib\\{CF9D9B76-EC4B-470D-99DC-AEC6F36A9261}\\1.0\\0\\win32",
    "TypeLib\\{3181A65A-CC39-4CDE-A4DF-2E889E6F1AF1}\\1.51\\0\\win32",
    "TypeLib\\{C88FCAC2-DE90-11D3-9876-8517F6B99C68}\\1.6\\0\\win32",
};

// A started copy beside its two libraries, which write their keys as real ones do.
class Repair : public test::ShellTest {
 protected:
  void SetUp() override {
    PutLibrary(Helper, HelperKey);
    PutLibrary(Toolbar, ToolbarClass);
    copy = StartCopy();
    copy->process.Trace().Clear();
  }

  void PutLibrary(const std::string& path, const char* key) {
    world.libraries.Register(path, {{"DllRegisterServer", [this, key] {
                                       Know(key);
                                       return 0;
                                     }}});
  }
  void Know(const char* key) { world.registry.SetString(HKeyClassesRoot, key, "", "{class}"); }
  bool Known(const char* key) const {
    return world.registry.GetString(HKeyClassesRoot, key, "") == "{class}";
  }
  void KnowTypeLibraries() {
    for (const char* key : TypeLibraries) Know(key);
  }
  void Click() {
    copy->toolkit.AtBorder([this] { copy->Windows().frmMain->lnkCheckAndRepair.Click(); });
  }
  void ExpectTheOneBox() {
    EXPECT_THAT(copy->process.Boxes(), ElementsAre(Box{copy->Windows().frmMain->hWnd(),
                                                       "Repaired Successfully!", "Vantrel", 64}));
  }
  // The libraries that were asked for, in their order.
  std::vector<std::string> Loads() { return copy->process.Trace().LinesOf("LoadLibraryA"); }

  std::unique_ptr<Copy> copy;
};

TEST_F(Repair, WithEverythingThereNoLibraryIsTouched) {
  Know(HelperKey);
  Know(ToolbarClass);
  KnowTypeLibraries();
  Click();
  EXPECT_THAT(Loads(), IsEmpty());
  ExpectTheOneBox();
}

TEST_F(Repair, LibrariesThatWindowsDoesNotKnowAreRegisteredInTheirOrder) {
  Click();
  EXPECT_TRUE(Known(HelperKey));
  EXPECT_TRUE(Known(ToolbarClass));
  ASSERT_EQ(Loads().size(), 2U);
  EXPECT_THAT(Loads()[0], testing::HasSubstr(Helper));
  EXPECT_THAT(Loads()[1], testing::HasSubstr(Toolbar));
  ExpectTheOneBox();
}

TEST_F(Repair, OnlyTheMissingLibraryIsRegistered) {
  Know(HelperKey);
  Click();
  EXPECT_TRUE(Known(ToolbarClass));
  ASSERT_EQ(Loads().size(), 1U);
  EXPECT_THAT(Loads()[0], testing::HasSubstr(Toolbar));
  ExpectTheOneBox();
}

TEST_F(Repair, AllFiveValuesAreReadBeforeAnythingIsDone) {
  Click();
  const auto& lines = copy->process.Trace().Lines();
  std::vector<std::string> opened;
  for (const std::string& line : lines) {
    if (line.starts_with("LoadLibraryA")) break;
    if (line.starts_with("RegOpenKeyExA")) opened.push_back(line);
  }
  EXPECT_THAT(
      opened,
      ElementsAre(
          "RegOpenKeyExA HKCR\\GBHelper.HelperBHO\\Clsid\\ 0xF003F -> 2",
          "RegOpenKeyExA HKCR\\Grimbolt.Toolbar\\Clsid\\ 0xF003F -> 2",
          "RegOpenKeyExA HKCR\\TypeLib\\{CF9D9B76-EC4B-470D-99DC-AEC6F36A9261}\\1.0\\0\\win32\\ "
          "0xF003F -> 2",
          "RegOpenKeyExA HKCR\\TypeLib\\{3181A65A-CC39-4CDE-A4DF-2E889E6F1AF1}\\1.51\\0\\win32 "
          "0xF003F -> 2",
          "RegOpenKeyExA HKCR\\TypeLib\\{C88FCAC2-DE90-11D3-9876-8517F6B99C68}\\1.6\\0\\win32 "
          "0xF003F -> 2"));
  // Nothing is read again behind the first library.
  EXPECT_EQ(copy->process.Trace().LinesOf("RegOpenKeyExA").size(), 5U);
}

TEST_F(Repair, AMissingLibraryFileIsNotTold) {
  world.files.Remove(Helper);
  Click();
  EXPECT_FALSE(Known(HelperKey));
  EXPECT_TRUE(Known(ToolbarClass));
  ExpectTheOneBox();
}

TEST_F(Repair, ALibraryWithoutTheEntryIsNotTold) {
  world.libraries.Register(Helper, {});
  Click();
  EXPECT_FALSE(Known(HelperKey));
  EXPECT_TRUE(Known(ToolbarClass));
  ExpectTheOneBox();
}

TEST_F(Repair, MissingTypeLibrariesAreLeftAlone) {
  Know(HelperKey);
  Know(ToolbarClass);
  Click();
  EXPECT_THAT(Loads(), IsEmpty());
  for (const char* key : TypeLibraries) EXPECT_FALSE(Known(key)) << key;
  ExpectTheOneBox();
}

TEST_F(Repair, ATextThatLeadsToNoLibraryIsGoodEnough) {
  Know(HelperKey);
  Know(ToolbarClass);
  world.files.Remove(Helper);
  Click();
  EXPECT_THAT(Loads(), IsEmpty());
  ExpectTheOneBox();
}

TEST_F(Repair, AnEmptyTextAndAValueOfNoTextAreAsGoodAsNone) {
  world.registry.SetString(HKeyClassesRoot, HelperKey, "", "");
  world.registry.Set(HKeyClassesRoot, ToolbarClass, "", 3, "bytes");
  Click();
  EXPECT_TRUE(Known(HelperKey));
  EXPECT_TRUE(Known(ToolbarClass));
  ExpectTheOneBox();
}

TEST_F(Repair, AValueOfNoBytesIsAsGoodAsNone) {
  world.registry.Set(HKeyClassesRoot, HelperKey, "", platform::RegSz, "");
  Click();
  EXPECT_TRUE(Known(HelperKey));
  ExpectTheOneBox();
}

TEST_F(Repair, WhatMayNotBeReadIsRegisteredAnew) {
  Know(HelperKey);
  world.registry.Refuse(HKeyClassesRoot, "GBHelper.HelperBHO", platform::memory::Refusal::Write);
  Click();
  EXPECT_THAT(Loads(), testing::Contains(testing::HasSubstr(Helper)));
  ExpectTheOneBox();
}

TEST_F(Repair, NoFailingCallIsToldAndNothingStaysOpen) {
  Click();
  const auto names = copy->process.Trace().Names();
  ASSERT_EQ(names.back(), "MessageBoxA");
  for (std::size_t n = 1; n < names.size(); ++n) {
    SCOPED_TRACE(names[n - 1] + ", call " + std::to_string(n));
    world.registry.RemoveKey(HKeyClassesRoot, "GBHelper.HelperBHO");
    world.registry.RemoveKey(HKeyClassesRoot, "Grimbolt.Toolbar");
    copy = nullptr;
    copy = StartCopy();
    copy->process.Faults().FailNthCall(n, 5);
    Click();
    EXPECT_EQ(copy->process.OpenKeys(), 0U);
    // A wait that fails is a library that hangs.
    if (names[n - 1] == "WaitForSingleObject") {
      EXPECT_TRUE(copy->process.ThreadExitCode());
    } else {
      ExpectTheOneBox();
    }
  }
}

TEST_F(Repair, NoPanelIsHiddenAndTheTitleStays) {
  copy->Windows().frmMain->LnkGraph.Click();
  const auto shown = ShownPanels(*copy);
  Click();
  EXPECT_EQ(ShownPanels(*copy), shown);
  EXPECT_EQ(copy->Windows().frmMain->lblVCP1.Caption(), "Graphs - Qorvel Software Vantrel ");
  EXPECT_THAT(copy->process.Trace().LinesOf("RegSetValueExA"), IsEmpty());
}

TEST_F(Repair, ALibraryThatHangsTakesTheWindowWithIt) {
  world.libraries.Register(Helper, {{"DllRegisterServer", Libraries::Hangs}});
  Click();
  EXPECT_THAT(copy->process.Boxes(), IsEmpty());
  EXPECT_FALSE(Known(ToolbarClass));
  EXPECT_THAT(world.desktop.TopLevelWindows(), IsEmpty());
  EXPECT_TRUE(copy->process.Alive());
  world.libraries.Release();
  EXPECT_FALSE(copy->process.Alive());
}

}  // namespace
}  // namespace vantrel::shell
