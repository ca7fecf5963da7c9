// How checked rows of the plug-in panel are removed, refused and left alone.
#include "unit/iemaintenance/PluginPanel.h"

namespace vantrel::iemaintenance {
namespace {

using platform::AnswerNo;
using platform::AnswerYes;
using platform::HKeyClassesRoot;
using platform::HKeyCurrentUser;
using platform::HKeyLocalMachine;
using test::ButtonTag;
using test::Extensions;
using test::Helpers;
using test::MenuExt;
using test::PluginPanel;
using test::ToolbarKey;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(PluginPanel, NothingCheckedShowsNoBoxAndRebuildsTheList) {
  Panel();
  Helper("{1}", "First");
  Panel().cmddeleteBHO.SetValue(true);
  EXPECT_THAT(Names(), ElementsAre("First"));
  EXPECT_TRUE(HasKey(HKeyLocalMachine, Helpers + "{1}"));
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

TEST_F(PluginPanel, EachKindIsAskedAboutAndRemovedInItsOwnWay) {
  OneOfEachKind();
  ASSERT_EQ(List().Count(), 5);
  DeleteAll({AnswerYes, AnswerYes, AnswerYes, AnswerYes, AnswerYes});
  EXPECT_THAT(BoxTexts(),
              ElementsAre("Delete selected BHO:Helper", "Delete selected Plug-ins:Plug-in",
                          "Delete selected Toolbar:Bar",
                          "Delete selected Internet explorer Right Click Menu Extension:Entry",
                          "Delete selected IEButton:Button"));
  for (const auto& box : process.Boxes()) {
    EXPECT_EQ(box.style, 68U);
    EXPECT_EQ(box.title, "Vantrel");
  }
  EXPECT_THAT(Rows(), IsEmpty());
  EXPECT_FALSE(HasKey(HKeyLocalMachine, Helpers + "{1}"));
  EXPECT_FALSE(world.files.Exists(PluginPath("a.dll")));
  EXPECT_FALSE(world.registry.Get(HKeyLocalMachine, ToolbarKey, "{2}"));
  EXPECT_FALSE(HasKey(HKeyCurrentUser, MenuExt + "Entry"));
  EXPECT_FALSE(HasKey(HKeyLocalMachine, Extensions + "{3}"));
}

TEST_F(PluginPanel, OnlyWhatIsNamedGoes) {
  OneOfEachKind();
  Helper("{9}", "Other");
  world.registry.MakeKey(HKeyLocalMachine, MenuExt + "Entry");
  world.registry.MakeKey(HKeyCurrentUser, ButtonTag + "{3}");
  world.registry.SetString(HKeyClassesRoot, "CLSID\\{1}\\InprocServer32", "", PluginPath("h.exe"));
  world.files.Put(PluginPath("h.exe"), "the helper's server");
  Show();
  Panel();
  process.Trace().Clear();
  DeleteAll({AnswerYes, AnswerNo, AnswerYes, AnswerYes, AnswerYes, AnswerYes});
  std::vector<std::string> calls = process.Trace().Lines();
  std::erase_if(calls, [](const std::string& line) {
    return line.find("Delete") == std::string::npos && !line.starts_with("RegSetValueExA");
  });
  const std::string path = '"' + PluginPath("a.dll") + '"';
  EXPECT_THAT(
      calls,
      ElementsAre(
          R"(MessageBoxA "Delete selected BHO:Helper" "Vantrel" 68 -> 6)",
          "RegDeleteKeyA HKLM\\" + Helpers + "{1} -> 0",
          R"(MessageBoxA "Delete selected BHO:Other" "Vantrel" 68 -> 7)",
          R"(MessageBoxA "Delete selected Plug-ins:Plug-in" "Vantrel" 68 -> 6)",
          "DeleteFileA " + path + " -> 0", "DeleteFileA " + path + " -> 2",
          R"(MessageBoxA "Delete selected Toolbar:Bar" "Vantrel" 68 -> 6)",
          std::string("RegDeleteValueA HKLM\\") + ToolbarKey + " \"{2}\" -> 0",
          R"(MessageBoxA "Delete selected Internet explorer Right Click Menu Extension:Entry")"
          R"( "Vantrel" 68 -> 6)",
          "RegDeleteKeyA HKCU\\" + MenuExt + "Entry -> 0",
          R"(MessageBoxA "Delete selected IEButton:Button" "Vantrel" 68 -> 6)",
          "RegDeleteKeyA HKLM\\" + ButtonTag + "{3} -> 0"));
  EXPECT_THAT(Names(), ElementsAre("Other"));
  EXPECT_TRUE(HasKey(HKeyClassesRoot, "CLSID\\{1}\\InprocServer32"));
  EXPECT_TRUE(world.files.Exists(PluginPath("h.exe")));
}

TEST_F(PluginPanel, NoForTheThirdOfFiveLeavesItAndTheOthersGo) {
  for (const char* id : {"{1}", "{2}", "{3}", "{4}", "{5}"}) Helper(id, id);
  Panel();
  DeleteAll({AnswerYes, AnswerYes, AnswerNo, AnswerYes, AnswerYes});
  EXPECT_EQ(process.Boxes().size(), 5U);
  EXPECT_THAT(Rows(), ElementsAre("B0|{3}|bho|BHO|D1|{3}|"));
}

TEST_F(PluginPanel, NoLeavesARowOfEachKindAlone) {
  OneOfEachKind();
  Panel();
  const std::string library = *world.files.Read(PluginPath("a.dll"));
  const auto calls = process.Faults().CallsOf("LoadLibraryA");
  DeleteAll({AnswerNo, AnswerNo, AnswerNo, AnswerNo, AnswerNo});
  EXPECT_EQ(List().Count(), 5);
  EXPECT_EQ(world.files.Read(PluginPath("a.dll")), library);
  EXPECT_EQ(process.Faults().CallsOf("LoadLibraryA"), calls);
}

TEST_F(PluginPanel, AnUncheckedRowIsPassedOver) {
  Helper("{1}", "First");
  Helper("{2}", "Second");
  Panel();
  List().Item(2).SetChecked(true);
  process.AnswerBoxes({AnswerYes});
  Panel().cmddeleteBHO.SetValue(true);
  EXPECT_THAT(BoxTexts(), ElementsAre("Delete selected BHO:Second"));
  EXPECT_THAT(Names(), ElementsAre("First"));
}

TEST_F(PluginPanel, ARowOfAnotherTypeIsPassedOver) {
  Panel();
  for (const char* type : {"", "bho", "Plug-ins", "MenuExt", "BHO "}) {
    forms::ListItem& row = List().Add(type, "row", "bho");
    row.AddSubItem("D1", type);
    row.SetTag("{1}");
  }
  Helper("{1}", "First");
  DeleteAll({});
  EXPECT_THAT(BoxTexts(), IsEmpty());
  EXPECT_THAT(Names(), ElementsAre("First"));
}

constexpr const char* Required = " is required by Vantrel to work properly";

TEST_F(PluginPanel, TheProgramsOwnEntriesAreRefusedByTheirNames) {
  Helper("{1}", "The GBHelper Class");
  Helper("{2}", "Other");
  Library("a.dll", "Grim Bolt engine");
  Library("b.dll", "GRIMBOLT");
  Bar("{4}", "Grim&bolt");
  Bar("{5}", "grim bolt");
  world.registry.readsWithoutAccess = true;
  Panel();
  DeleteAll({AnswerYes, AnswerYes});
  EXPECT_THAT(BoxTexts(), ElementsAre(std::string("Selected BHO:The GBHelper Class") + Required,
                                      "Delete selected BHO:Other",
                                      std::string("Selected BHO:Grim Bolt engine") + Required,
                                      std::string("Selected BHO:GRIMBOLT") + Required,
                                      std::string("Selected Toolbar:Grimbolt") + Required,
                                      "Delete selected Toolbar:grim bolt"));
  for (const std::size_t refusal : {0U, 2U, 3U, 4U}) {
    EXPECT_EQ(process.Boxes()[refusal].style, 64U);
    EXPECT_EQ(process.Boxes()[refusal].title, "Vantrel");
  }
  EXPECT_THAT(Names(),
              ElementsAre("The GBHelper Class", "Grim Bolt engine", "GRIMBOLT", "Grimbolt"));
}

// Each word protects its own type only, by the name that is shown and nothing else.
TEST_F(PluginPanel, WordsOfOtherTypesTagsAndFilesProtectNothing) {
  Helper("{gbhelper}", "grimbolt");
  Helper("{2}", "grim bolt");
  Library("gbhelper.dll", "");
  Library("grimbolt.dll", "gbhelper");
  Bar("{3}", "gbhelper");
  MenuExtension("grimbolt");
  MenuExtension("gbhelper");
  Button("{4}", "grimbolt gbhelper");
  world.registry.readsWithoutAccess = true;
  Panel();
  ASSERT_EQ(List().Count(), 8);
  DeleteAll(std::vector<int>(8, AnswerYes));
  EXPECT_THAT(Rows(), IsEmpty());
}

// What cannot be removed is not spoken of: its row is there again.
TEST_F(PluginPanel, AHelperObjectWithSubkeysComesBack) {
  Helper("{1}\\sub");
  Panel();
  DeleteAll({AnswerYes});
  EXPECT_EQ(process.Boxes().size(), 1U);
  EXPECT_THAT(Keys(), ElementsAre("B0"));
  EXPECT_FALSE(List().Item(1).Checked());
}

TEST_F(PluginPanel, AHelperObjectWithoutABraceComesBack) {
  Helper("no brace");
  Panel();
  DeleteAll({AnswerYes});
  EXPECT_THAT(BoxTexts(), ElementsAre("Delete selected BHO:"));
  EXPECT_TRUE(HasKey(HKeyLocalMachine, Helpers + "no brace"));
  EXPECT_THAT(Keys(), ElementsAre("B0"));
}

TEST_F(PluginPanel, ALockedLibraryComesBack) {
  Library("a.dll", "A");
  Panel();
  const std::string content = *world.files.Read(PluginPath("a.dll"));
  world.files.SetLocked(PluginPath("a.dll"), true);
  DeleteAll({AnswerYes});
  EXPECT_EQ(process.Boxes().size(), 1U);
  EXPECT_THAT(Keys(), ElementsAre("P0"));
  world.files.SetLocked(PluginPath("a.dll"), false);
  EXPECT_EQ(world.files.Read(PluginPath("a.dll")), content);
}

// Both deletes are refused; nothing takes the attribute away.
TEST_F(PluginPanel, AReadOnlyLibraryComesBack) {
  Library("a.dll", "A");
  Panel();
  const std::string content = *world.files.Read(PluginPath("a.dll"));
  world.files.SetReadOnly(PluginPath("a.dll"), true);
  DeleteAll({AnswerYes});
  EXPECT_EQ(process.Boxes().size(), 1U);
  EXPECT_THAT(Keys(), ElementsAre("P0"));
  EXPECT_EQ(world.files.Read(PluginPath("a.dll")), content);
}

TEST_F(PluginPanel, ARowWhoseLibraryIsGoneGoesAtTheRefresh) {
  Library("a.dll", "A");
  Panel();
  world.files.Remove(PluginPath("a.dll"));
  DeleteAll({AnswerYes});
  EXPECT_EQ(process.Boxes().size(), 1U);
  EXPECT_THAT(Keys(), IsEmpty());
}

TEST_F(PluginPanel, AToolbarOfAKeyThatIsReadOnlyComesBack) {
  Bar("{1}", "Bar");
  world.registry.readsWithoutAccess = true;
  world.registry.Refuse(HKeyLocalMachine, ToolbarKey, platform::memory::Refusal::Write);
  Panel();
  DeleteAll({AnswerYes});
  EXPECT_EQ(process.Boxes().size(), 1U);
  EXPECT_THAT(Keys(), ElementsAre("T0"));
}

TEST_F(PluginPanel, AMenuExtensionWithSubkeysComesBack) {
  MenuExtension("Entry\\sub");
  Panel();
  DeleteAll({AnswerYes});
  EXPECT_EQ(process.Boxes().size(), 1U);
  EXPECT_THAT(Keys(), ElementsAre("M0"));
}

TEST_F(PluginPanel, AButtonWithSubkeysComesBack) {
  Button("{1}", "Talk");
  world.registry.MakeKey(HKeyLocalMachine, Extensions + "{1}\\sub");
  Panel();
  DeleteAll({AnswerYes});
  EXPECT_EQ(process.Boxes().size(), 1U);
  EXPECT_THAT(Keys(), ElementsAre("IEB0"));
}

TEST_F(PluginPanel, ALibraryUnregistersItselfBeforeItIsOverwritten) {
  const std::string path = PluginPath("a.dll");
  Library("a.dll", "A");
  const std::string content = *world.files.Read(path);
  std::string seen;
  world.libraries.Register(path, {{"DllUnregisterServer", [&] {
                                     seen = *world.files.Read(path);
                                     return 0;
                                   }}});
  Panel();
  DeleteAll({AnswerYes});
  EXPECT_EQ(seen, content);
  EXPECT_FALSE(world.files.Exists(path));
  EXPECT_EQ(world.libraries.Loads(path), 0U);
}

TEST_F(PluginPanel, ALibraryThatRefusesOrHasNoEntryGoesAllTheSame) {
  Library("none.dll", "No library");
  Library("plain.dll", "Without the entry");
  world.libraries.Register(PluginPath("plain.dll"), {{"DllRegisterServer", [] { return 0; }}});
  Library("refuses.dll", "Refuses");
  world.libraries.Register(PluginPath("refuses.dll"), {{"DllUnregisterServer", [] { return -1; }}});
  Panel();
  DeleteAll({AnswerYes, AnswerYes, AnswerYes});
  EXPECT_THAT(world.files.List(test::PluginFolder), IsEmpty());
  EXPECT_THAT(Rows(), IsEmpty());
}

// The windows end with the thread that waited, as in a repair; the library is left as it is.
TEST_F(PluginPanel, ALibraryThatHangsEndsTheWindows) {
  Library("a.dll", "A");
  const std::string content = *world.files.Read(PluginPath("a.dll"));
  world.libraries.Register(PluginPath("a.dll"),
                           {{"DllUnregisterServer", platform::memory::Libraries::Hangs}});
  Panel();
  DeleteAll({AnswerYes});
  EXPECT_THAT(process.Trace().LinesOf("WaitForSingleObject"),
              ElementsAre(testing::HasSubstr(" 10000 ")));
  EXPECT_TRUE(process.ThreadExitCode().has_value());
  EXPECT_TRUE(process.Alive());
  world.libraries.Release();
  EXPECT_FALSE(process.Alive());
  EXPECT_EQ(world.files.Read(PluginPath("a.dll")), content);
}

// While a box is up the rest of the program lives; rows that go meanwhile are missed.
TEST_F(PluginPanel, AListThatShrinksWhileABoxIsUpEndsTheRun) {
  Helper("{1}", "First");
  Helper("{2}", "Second");
  Panel();
  process.WhileBoxIsUp = [&](const platform::memory::Box& box) {
    if (box.style != platform::StyleInformationYesNo) return;
    world.registry.RemoveKey(HKeyLocalMachine, Helpers + "{2}");
    Refresh();
  };
  DeleteAll({AnswerYes});
  EXPECT_FALSE(HasKey(HKeyLocalMachine, Helpers + "{1}"));
  EXPECT_EQ(process.Boxes().size(), 2U);
  EXPECT_EQ(process.Boxes()[1].text, "Run-time error '9':\r\n\r\nSubscript out of range");
}

class Shred : public PluginPanel {
 protected:
  const std::string path = "C:\\f.dll";

  void Put(std::size_t length) { world.files.Put(path, std::string(length, 'z')); }
  // The writes as "OFFSET LENGTH".
  std::vector<std::string> Writes() {
    std::vector<std::string> writes = process.Trace().LinesOf("WriteAt");
    for (std::string& line : writes) {
      line = line.substr(8, line.find(" -> ") - 8);
    }
    return writes;
  }
};

TEST_F(Shred, AFileIsWrittenOverInWholeBlocksAndGoes) {
  for (const std::size_t length : {0, 1, 4095, 4096, 4097, 8191, 8192}) {
    Put(length);
    process.Faults().FailEvery("DeleteFileA", platform::ErrorAccessDenied);
    ShredFile(program, path);
    process.Faults().Clear();
    EXPECT_EQ(world.files.Read(path), std::string((length / 4096 + 1) * 4096, ' '));
    Put(length);
    ShredFile(program, path);
    EXPECT_FALSE(world.files.Exists(path));
    EXPECT_EQ(process.OpenFiles(), 0U);
  }
}

TEST_F(Shred, EachBlockIsWrittenTwiceLettersFirst) {
  Put(4096);
  process.Faults().FailEvery("DeleteFileA", platform::ErrorAccessDenied);
  ShredFile(program, path);
  EXPECT_THAT(Writes(), ElementsAre("0 4096", "0 4096", "4096 4096", "4096 4096"));
  process.Faults().FailCall("WriteAt", 2, platform::ErrorAccessDenied);
  Put(1);
  ShredFile(program, path);
  EXPECT_EQ(world.files.Read(path), std::string(4096, 'X'));
}

TEST_F(Shred, AWriteThatFailsLeavesThePlaceWhereItIs) {
  Put(8192);
  process.Faults().FailEvery("DeleteFileA", platform::ErrorAccessDenied);
  process.Faults().FailCall("WriteAt", 1, platform::ErrorAccessDenied);
  process.Faults().FailCall("WriteAt", 3, platform::ErrorAccessDenied);
  process.Faults().FailCall("WriteAt", 4, platform::ErrorAccessDenied);
  ShredFile(program, path);
  EXPECT_THAT(Writes(),
              ElementsAre("0 4096", "0 4096", "4096 4096", "4096 4096", "4096 4096", "4096 4096"));
  EXPECT_EQ(world.files.Read(path), std::string(8192, ' '));
}

TEST_F(Shred, AFileIsDeletedTwice) {
  Put(1);
  process.Faults().FailCall("DeleteFileA", 1, platform::ErrorAccessDenied);
  ShredFile(program, path);
  EXPECT_FALSE(world.files.Exists(path));
  EXPECT_EQ(process.Trace().LinesOf("DeleteFileA").size(), 2U);
}

TEST_F(Shred, ALockedFileIsNeitherWrittenOverNorDeleted) {
  Put(4096);
  world.files.SetLocked(path, true);
  ShredFile(program, path);
  EXPECT_THAT(Writes(), IsEmpty());
  world.files.SetLocked(path, false);
  EXPECT_EQ(world.files.Read(path), std::string(4096, 'z'));
  EXPECT_EQ(process.OpenFiles(), 0U);
}

TEST_F(Shred, AFullDiskKeepsNoFileFromGoing) {
  Put(4096);
  world.files.SetFreeSpace(0);
  ShredFile(program, path);
  EXPECT_FALSE(world.files.Exists(path));
}

TEST_F(Shred, NothingAndAFolderAreLeftAlone) {
  world.files.MakeFolder("C:\\folder.dll");
  for (const char* none : {"", "C:\\none.dll", "C:\\no folder\\none.dll", "C:\\folder.dll"}) {
    ShredFile(program, none);
  }
  EXPECT_TRUE(world.files.IsFolder("C:\\folder.dll"));
  EXPECT_FALSE(world.files.Exists("C:\\none.dll"));
}

}  // namespace
}  // namespace vantrel::iemaintenance
