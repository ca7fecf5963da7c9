// What the plug-in panel lists: five sources, row by row.
#include <cstdio>
#include <set>

#include "fileutil/modFileInfo.h"
#include "unit/iemaintenance/PluginPanel.h"

namespace vantrel::iemaintenance {
namespace {

using platform::HKeyClassesRoot;
using platform::HKeyCurrentUser;
using platform::HKeyLocalMachine;
using test::ButtonTag;
using test::Extensions;
using test::Helpers;
using test::MenuExt;
using test::PluginFolder;
using test::PluginPanel;
using test::ToolbarKey;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;

TEST_F(PluginPanel, AHelperObjectShowsItsClassesNameAndKeepsItsId) {
  Helper("{1}", "First");
  Helper("{2}");
  EXPECT_THAT(Rows(), ElementsAre("B0|First|bho|BHO|D1|{1}|", "B1||bho|BHO|D1|{2}|"));
  EXPECT_EQ(Total(), " Total:2 BHO's/Plug-ins found.");
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

TEST_F(PluginPanel, AHelperObjectsIdEndsAtItsFirstBrace) {
  Helper("{1}tail}", "no class of this name");
  Class("{1}", "First");
  Helper("no brace", "no class of this name");
  world.registry.SetString(HKeyClassesRoot, "CLSID", "", "no class");
  Helper(" {2} ", "no class of this name");
  Class("{2}", "Second");
  EXPECT_THAT(Rows(), ElementsAre("B0|Second|bho|BHO|D1|{2}|", "B1||bho|BHO|D1||",
                                  "B2|First|bho|BHO|D1|{1}|"));
}

TEST_F(PluginPanel, ANameOf255CharactersEndsTheWalk) {
  Helper("{1}" + std::string(251, 'a'), "");
  Helper("{2}" + std::string(252, 'a'), "");
  Helper("{3}", "");
  EXPECT_THAT(Rows(), ElementsAre("B0||bho|BHO|D1|{1}|"));
  EXPECT_EQ(Total(), " Total:1 BHO's/Plug-ins found.");
}

TEST_F(PluginPanel, IdsAndNamesOfAnyBytesAreTakenAsTheyStand) {
  std::string bytes;
  for (int code = 0x80; code <= 0xFF; ++code) bytes.push_back(static_cast<char>(code));
  Helper("{" + bytes + "}", bytes);
  MenuExtension(bytes);
  Button("{" + bytes + "}", bytes);
  Bar("{" + bytes + "}", bytes);
  world.registry.readsWithoutAccess = true;
  EXPECT_THAT(Rows(), ElementsAre("B0|" + bytes + "|bho|BHO|D1|{" + bytes + "}|",
                                  "T0|" + bytes + "|tb|Toolbar|D1|{" + bytes + "}|",
                                  "M0|" + bytes + "|mnu|Menu Ext|M1|" + MenuExt + bytes + "|",
                                  "IEB0|" + bytes + "|bho|IEButton|IE10|" + ButtonTag + "{" +
                                      bytes + "}|"));
}

TEST_F(PluginPanel, AClassWithoutATextGivesARowWithoutAName) {
  Helper("{1}");
  world.registry.Set(HKeyClassesRoot, "CLSID\\{1}", "", platform::RegBinary, "abc");
  Helper("{2}");
  world.registry.Set(HKeyClassesRoot, "CLSID\\{2}", "", platform::RegExpandSz, "abc");
  Helper("{3}");  // a read that fails with an error, ignored
  world.registry.Set(HKeyClassesRoot, "CLSID\\{3}", "", platform::RegSz, "");
  Helper("{4}");
  world.registry.Set(HKeyClassesRoot, "CLSID\\{4}", "", platform::RegSz, "no terminator");
  Helper("{5}");
  world.registry.SetDword(HKeyClassesRoot, "CLSID\\{5}", "", 7);
  EXPECT_THAT(Rows(),
              ElementsAre("B0||bho|BHO|D1|{1}|", "B1||bho|BHO|D1|{2}|", "B2||bho|BHO|D1|{3}|",
                          "B3|no terminator|bho|BHO|D1|{4}|", "B4|7|bho|BHO|D1|{5}|"));
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

TEST_F(PluginPanel, TheFirstTotalCountsHelperObjectsAlone) {
  Helper("{1}");
  Library("a.dll", "A");
  std::vector<std::string> totals;
  toolkit.Trace = [&totals](const std::string& line) {
    if (line.starts_with("FrmFrameIEPlugin.lblTotalBHO Caption=")) totals.push_back(line);
  };
  Panel();
  EXPECT_THAT(totals,
              ElementsAre("FrmFrameIEPlugin.lblTotalBHO Caption= Total:1 BHO(s) found.",
                          "FrmFrameIEPlugin.lblTotalBHO Caption= Total:2 BHO's/Plug-ins found."));
}

TEST_F(PluginPanel, LibrariesOfThePluginFolderShowTheirProducts) {
  Library("A.DLL", "Product A");
  Library("b.txt", "no library");
  Library("c.dll", "");
  Library(".dll", "Only an ending");
  Library("dll", "no ending");
  world.files.Put(PluginPath("empty.dll"), "");
  world.files.MakeFolder(PluginPath("folder.dll"));
  Library("hidden.dll", "Hidden");
  world.files.SetHidden(PluginPath("hidden.dll"), true);
  Library("read-only.dll", "Read-only");
  world.files.SetReadOnly(PluginPath("read-only.dll"), true);
  const auto row = [](const std::string& key, const std::string& name, const std::string& file) {
    return key + "|" + name + "|pgn|Plugins|PM1|" + PluginPath(file) + "|" + PluginPath(file);
  };
  EXPECT_THAT(Rows(),
              ElementsAre(row("P0", "Only an ending", ".dll"), row("P1", "Product A", "A.DLL"),
                          row("P3", "", "c.dll"), row("P6", "Read-only", "read-only.dll")));
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

TEST_F(PluginPanel, ALibraryThatCannotBeReadStaysWithoutAName) {
  Library("a.dll", "A");
  world.files.SetLocked(PluginPath("a.dll"), true);
  EXPECT_THAT(Names(), ElementsAre(""));
  EXPECT_THAT(BoxTexts(), IsEmpty());
  EXPECT_EQ(process.OpenFiles(), 0U);
}

TEST_F(PluginPanel, ALibraryThatVanishesMeanwhileIsShownAsAnError) {
  Library("a.dll", "A");
  Library("b.dll", "B");
  process.Faults().FailCall("FileLength", 1, platform::ErrorFileNotFound);
  EXPECT_THAT(Keys(), ElementsAre("P1"));
  EXPECT_THAT(BoxTexts(), ElementsAre("Some error occured: File not found"));
}

TEST_F(PluginPanel, AMissingPluginFolderShowsTheBox) {
  world.files.Remove(PluginFolder);
  Button("{1}", "still listed");
  EXPECT_THAT(Names(), ElementsAre("still listed"));
  ASSERT_THAT(BoxTexts(), ElementsAre("Some error occured: Path not found"));
  EXPECT_EQ(process.Boxes()[0].style, platform::StylePlain);
  EXPECT_EQ(process.Boxes()[0].title, "Vantrel");
  EXPECT_EQ(Total(), " Total:1 BHO's/Plug-ins found.");
}

TEST_F(PluginPanel, AFileInThePluginFoldersPlaceShowsTheBox) {
  world.files.Remove(PluginFolder);
  world.files.Put(PluginFolder, "a file");
  EXPECT_THAT(Keys(), IsEmpty());
  EXPECT_THAT(BoxTexts(), ElementsAre("Some error occured: Path not found"));
}

TEST_F(PluginPanel, APluginFolderThatCannotBeListedShowsTheBox) {
  process.Faults().FailCall("ListFolder", 1, platform::ErrorAccessDenied);
  Library("a.dll", "A");
  EXPECT_THAT(Keys(), IsEmpty());
  EXPECT_THAT(BoxTexts(), ElementsAre("Some error occured: Permission denied"));
}

TEST_F(PluginPanel, AFolderThatIsGoneAtTheRefreshLeavesNoPluginFile) {
  Library("a.dll", "A");
  EXPECT_THAT(Keys(), ElementsAre("P0"));
  world.files.Remove(PluginFolder);
  Refresh();
  EXPECT_THAT(Keys(), IsEmpty());
  EXPECT_THAT(BoxTexts(), ElementsAre("Some error occured: Path not found"));
}

// Without a text the folder is "\PLUGINS" of the current drive.
TEST_F(PluginPanel, WithoutTheBrowsersPathTheFolderIsThatOfTheDrive) {
  world.registry.RemoveValue(HKeyLocalMachine, test::BrowserSetupKey, "Path");
  EXPECT_EQ(Panel().flbpluginsfile.Path(), "\\PLUGINS");
  EXPECT_THAT(BoxTexts(), ElementsAre("Some error occured: Path not found"));
}

TEST_F(PluginPanel, APathOfZeroBytesIsAnEmptyOne) {
  world.registry.Set(HKeyLocalMachine, test::BrowserSetupKey, "Path", platform::RegSz, "");
  EXPECT_EQ(Panel().flbpluginsfile.Path(), "\\PLUGINS");
  EXPECT_THAT(BoxTexts(), ElementsAre("Some error occured: Path not found"));
}

// Only a plain text is a folder's name.
TEST_F(PluginPanel, APathOfAnotherTypeIsAnEmptyOne) {
  for (const std::uint32_t type : {platform::RegExpandSz, platform::RegBinary}) {
    world.registry.Set(HKeyLocalMachine, test::BrowserSetupKey, "Path", type, "C:\\Browser");
    LoadPluginList(program);
    EXPECT_EQ(Panel().flbpluginsfile.Path(), "\\PLUGINS");
  }
}

TEST_F(PluginPanel, FilesBeyondA16BitNumberAreNotListed) {
  constexpr int Count = 32769;
  for (int file = 0; file < Count; ++file) {
    char name[20];
    std::snprintf(name, sizeof name, "%05d%s", file, file < 32766 ? ".txt" : ".dll");
    world.files.Put(PluginPath(name), "MZ");
  }
  EXPECT_THAT(Keys(), ElementsAre("P32766", "P32767"));
  EXPECT_THAT(BoxTexts(), ElementsAre("Some error occured: Overflow"));
}

TEST_F(PluginPanel, MenuExtensionsAreTheUsersOwn) {
  MenuExtension("&Open in new");
  world.registry.MakeKey(HKeyLocalMachine, MenuExt + "the machine's");
  EXPECT_THAT(Rows(), ElementsAre("M0|&Open in new|mnu|Menu Ext|M1|" + MenuExt + "&Open in new|"));
}

TEST_F(PluginPanel, AMenuExtensionsNameLosesBlanksInFrontOnly) {
  MenuExtension("  a b  ");
  MenuExtension("   ");
  EXPECT_THAT(Rows(), ElementsAre("M0||mnu|Menu Ext|M1|" + MenuExt + "|",
                                  "M1|a b  |mnu|Menu Ext|M1|" + MenuExt + "a b  |"));
}

TEST_F(PluginPanel, AButtonWithoutATextGetsNoRowAndSkipsANumber) {
  Button("{1}", " Talk ");
  world.registry.MakeKey(HKeyLocalMachine, Extensions + "{2}");
  Button("{3}", "Search");
  EXPECT_THAT(Rows(), ElementsAre("IEB0|Talk|bho|IEButton|IE10|" + ButtonTag + "{1}|",
                                  "IEB2|Search|bho|IEButton|IE12|" + ButtonTag + "{3}|"));
}

TEST_F(PluginPanel, AButtonsTextOfBlanksIsAText) {
  Button("{1}", "  ");
  EXPECT_THAT(Rows(), ElementsAre("IEB0||bho|IEButton|IE10|" + ButtonTag + "{1}|"));
}

TEST_F(PluginPanel, AButtonsIdKeepsBlanksInFrontAndEndsAtItsBrace) {
  Button(" {1}", "Talk");
  Button("{2}tail", "not read");
  Button("{2}", "Search");
  EXPECT_THAT(Rows(), ElementsAre("IEB0|Talk|bho|IEButton|IE10|" + ButtonTag + " {1}|",
                                  "IEB1|Search|bho|IEButton|IE11|" + ButtonTag + "{2}|",
                                  "IEB2|Search|bho|IEButton|IE12|" + ButtonTag + "{2}|"));
}

TEST_F(PluginPanel, AButtonWithoutABraceReadsTheTextOfTheKeyAboveIt) {
  Button("no brace", "not read");
  EXPECT_THAT(Rows(), IsEmpty());
  world.registry.SetString(HKeyLocalMachine, Extensions, "ButtonText", "Above");
  Refresh();
  EXPECT_THAT(Rows(), ElementsAre("IEB0|Above|bho|IEButton|IE10|" + ButtonTag + "|"));
}

TEST_F(PluginPanel, AButtonsTextThatDoesNotFitIsNone) {
  Button("{1}", std::string(254, 'x'));
  Button("{2}", std::string(255, 'x'));
  world.registry.Set(HKeyLocalMachine, Extensions + "{3}", "ButtonText", platform::RegBinary,
                     "any type.");
  EXPECT_THAT(Names(), ElementsAre(std::string(254, 'x'), "any type"));
}

TEST_F(PluginPanel, OnSystemsOfTheNtFamilyThereIsNoToolbarRow) {
  Bar("{1}", "Bar");
  EXPECT_THAT(Rows(), IsEmpty());
  EXPECT_THAT(process.Trace().LinesOf("RegOpenKeyExA"),
              testing::Contains("RegOpenKeyExA HKLM\\SOFTWARE\\Microsoft\\Internet "
                                "Explorer\\Toolbar\\ 0x0 -> 0"));
  EXPECT_THAT(process.Trace().LinesOf("RegEnumValueA"), ElementsAre(EndsWith(" 0 -> 5")));
  EXPECT_EQ(process.OpenKeys(), 0U);
}

class OldWindows : public PluginPanel {
 protected:
  OldWindows() { world.registry.readsWithoutAccess = true; }
  void Value(const std::string& name, std::uint32_t type, const std::string& data) {
    world.registry.Set(HKeyLocalMachine, ToolbarKey, name, type, data);
  }
};

TEST_F(OldWindows, TextAndBinaryValuesOfTheToolbarKeyAreToolbars) {
  Value("{1}", platform::RegSz, "x");
  Value("{2}", platform::RegDword, std::string(4, '\1'));
  Value("{3}", platform::RegBinary, "ab");
  Value("{4}", platform::RegExpandSz, "x");
  Value("{5}", platform::RegSz, "");
  Value("", platform::RegSz, "the default");
  Class("{1}", "&Radio &Bar&&");
  world.registry.SetString(HKeyClassesRoot, "CLSID\\{1}\\InprocServer32", "", "C:\\r&d.dll");
  Class("{5}", "Third");
  EXPECT_THAT(Rows(),
              ElementsAre("T0|Radio Bar|tb|Toolbar|D1|{1}|C:\\r&d.dll", "T1||tb|Toolbar|D1|{3}|",
                          "T2|Third|tb|Toolbar|D1|{5}|", "T3||tb|Toolbar|D1||"));
  EXPECT_EQ(process.OpenKeys(), 0U);
}

TEST_F(OldWindows, ToolbarsBeyondTheFirstHundredAreListed) {
  for (int value = 0; value < 321; ++value) Value(std::to_string(value), platform::RegSz, "x");
  EXPECT_EQ(List().Count(), 321);
  EXPECT_EQ(List().Item(321).Key(), "T320");
  EXPECT_EQ(List().Item(321).Tag(), "320");
}

TEST_F(OldWindows, AValueThatDoesNotFitEndsTheToolbars) {
  Value(std::string(259, 'a'), platform::RegSz, std::string(4096, 'x'));
  Value("{1}", platform::RegSz, std::string(4097, 'x'));
  Value("{2}", platform::RegSz, "x");
  EXPECT_EQ(List().Count(), 1);
  world.registry.RemoveValue(HKeyLocalMachine, ToolbarKey, "{1}");
  Value(std::string(260, 'a'), platform::RegSz, "x");
  Refresh();
  EXPECT_EQ(List().Count(), 2);
}

TEST_F(OldWindows, AToolbarsClassThatCannotBeReadLeavesTheRow) {
  Value("{1}", platform::RegSz, "x");
  world.registry.Set(HKeyClassesRoot, "CLSID\\{1}", "", platform::RegSz, "");
  world.registry.SetString(HKeyClassesRoot, "CLSID\\{1}\\InprocServer32", "", "C:\\r.dll");
  EXPECT_THAT(Rows(), ElementsAre("T0||tb|Toolbar|D1|{1}|C:\\r.dll"));
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

TEST_F(OldWindows, AnEmptyKeyEnumeratesTheRootItself) {
  world.registry.SetString(HKeyLocalMachine, "", "{9}", "x");
  Panel();
  EnumToolbarValues(program, HKeyLocalMachine, "");
  EXPECT_THAT(Rows(), ElementsAre("T0||tb|Toolbar|D1|{9}|"));
}

// An old row keeps its key; its number is used up all the same.
TEST_F(OldWindows, WithoutTheClearOldToolbarsStay) {
  Value("{1}", platform::RegSz, "x");
  Class("{1}", "First");
  EXPECT_THAT(Keys(), ElementsAre("T0"));
  world.registry.RemoveKey(HKeyLocalMachine, Helpers);
  Value("{2}", platform::RegSz, "x");
  Class("{1}", "Renamed");
  Class("{2}", "Second");
  Refresh();
  EXPECT_THAT(Rows(), ElementsAre("T0|First|tb|Toolbar|D1|{1}|", "T1|Second|tb|Toolbar|D1|{2}|"));
}

TEST_F(OldWindows, TheKindsStandInTheirOrder) {
  OneOfEachKind();
  EXPECT_THAT(Keys(), ElementsAre("B0", "P0", "T0", "M0", "IEB0"));
  EXPECT_EQ(Total(), " Total:5 BHO's/Plug-ins found.");
}

TEST_F(PluginPanel, AWalkGivesTheNumberOfItsSubkeys) {
  Helper("{1}");
  Helper("{2}");
  Panel();
  std::int32_t count = 7;
  SubKeyCount(program, HKeyLocalMachine, Helpers, count);
  EXPECT_EQ(count, 2);
  MenuExtension("a");
  SubKeyCountMenuExt(program, HKeyCurrentUser, MenuExt, count);
  EXPECT_EQ(count, 1);
  for (const char* id : {"{1}", "{2}", "{3}"}) {
    world.registry.MakeKey(HKeyLocalMachine, Extensions + id);
  }
  SubKeyCountButton(program, HKeyLocalMachine, Extensions, count);
  EXPECT_EQ(count, 3);
  SubKeyCounttb(program, HKeyLocalMachine, Extensions, count);
  EXPECT_EQ(count, 3);
  for (const auto walk : {SubKeyCount, SubKeyCountMenuExt, SubKeyCountButton, SubKeyCounttb}) {
    count = 7;
    walk(program, HKeyLocalMachine, "Software\\no such key\\", count);
    EXPECT_EQ(count, 0);
  }
}

TEST_F(PluginPanel, AToolbarThatIsASubkeyShowsNoNameOfItsOwn) {
  Helper("{1}", "First");
  Panel();
  world.registry.MakeKey(HKeyLocalMachine, "Software\\Bars\\ {2} ");
  world.registry.MakeKey(HKeyLocalMachine, "Software\\Bars\\{3}");
  List().Clear();
  MenuExtension("a");
  std::int32_t count = 0;
  SubKeyCountMenuExt(program, HKeyCurrentUser, MenuExt, count);
  SubKeyCounttb(program, HKeyLocalMachine, "Software\\Bars\\", count);
  EXPECT_THAT(Rows(), ElementsAre("M0|a|mnu|Menu Ext|M1|" + MenuExt + "a|",
                                  "B0|ToolBar|tb|name|F1||", "B1|ToolBar|tb|name|F1||"));
  for (const auto& [row, id] : {std::pair(2, "{2} "), std::pair(3, "{3}")}) {
    EXPECT_EQ(List().Item(row).Sub(2).Key, "D1");
    EXPECT_EQ(List().Item(row).Sub(2).Text, id);
  }
  EXPECT_EQ(process.OpenKeys(), 0U);
}

TEST_F(PluginPanel, OnlyTheKeyOfHelperObjectsClearsTheList) {
  Helper("{1}", "First");
  MenuExtension("a");
  EXPECT_THAT(Keys(), ElementsAre("B0", "M0"));
  world.registry.RemoveKey(HKeyLocalMachine, Helpers);
  MenuExtension("b");
  Button("{1}", "Talk");
  std::vector<std::string> totals;
  toolkit.Trace = [&totals](const std::string& line) {
    if (line.find("lblTotalBHO") != std::string::npos) totals.push_back(line);
  };
  Refresh();
  // The row of the first menu extension has its key still; that error is ignored.
  EXPECT_THAT(Keys(), ElementsAre("B0", "M0", "M1", "IEB0"));
  EXPECT_THAT(totals,
              ElementsAre("FrmFrameIEPlugin.lblTotalBHO Caption= Total:0 BHO(s) found.",
                          "FrmFrameIEPlugin.lblTotalBHO Caption= Total:4 BHO's/Plug-ins found."));
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

// The plug-in files are added by the routine's own statements, whose errors are shown.
TEST_F(PluginPanel, AnOldRowOfAPluginFileShowsTheBox) {
  Library("a.dll", "A");
  EXPECT_THAT(Keys(), ElementsAre("P0"));
  world.registry.RemoveKey(HKeyLocalMachine, Helpers);
  Library("b.dll", "B");
  Refresh();
  EXPECT_THAT(Names(), ElementsAre("A", "B"));
  EXPECT_THAT(BoxTexts(), ElementsAre("Some error occured: Key is not unique in collection"));
}

TEST_F(PluginPanel, CheckMarksAreLostAtTheRefresh) {
  Helper("{1}");
  Show();
  Panel().Show();
  EXPECT_TRUE(user.Check(List(), 1, true));
  EXPECT_TRUE(user.Click(Panel().cmdRefreshBHO));
  EXPECT_FALSE(List().Item(1).Checked());
}

TEST_F(PluginPanel, WindowMessagesRunAfterEachSubkey) {
  Helper("{1}");
  Helper("{2}");
  MenuExtension("a");
  world.registry.MakeKey(HKeyLocalMachine, Extensions + "{3}");
  std::vector<std::size_t> rows;
  toolkit.DuringDoEvents = [&] { rows.push_back(Keys().size()); };
  Panel();
  EXPECT_THAT(rows, ElementsAre(1, 2, 3, 3));
}

TEST_F(PluginPanel, ARefreshWhileTheListIsBeingFilledAddsNothingTwice) {
  Helper("{1}", "First");
  Helper("{2}", "Second");
  MenuExtension("a");
  Panel();
  for (int when = 1; when <= 3; ++when) {
    int pumps = 0;
    toolkit.DuringDoEvents = [&] {
      if (++pumps == when) Refresh();
    };
    Refresh();
    EXPECT_THAT(Keys(), testing::UnorderedElementsAre("B0", "B1", "M0"));
    EXPECT_EQ(process.OpenKeys(), 0U);
  }
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

TEST_F(PluginPanel, ADeletionWhileTheListIsBeingFilledDeletesWhatStands) {
  Helper("{1}", "First");
  Helper("{2}", "Second");
  bool pressed = false;
  toolkit.DuringDoEvents = [&] {
    if (!std::exchange(pressed, true)) DeleteAll({platform::AnswerYes});
  };
  Panel();
  EXPECT_FALSE(HasKey(HKeyLocalMachine, Helpers + "{1}"));
  // The walk goes on with its index in the key that has become shorter.
  EXPECT_THAT(Names(), ElementsAre("Second"));
  EXPECT_THAT(BoxTexts(), ElementsAre("Delete selected BHO:First"));
}

TEST_F(PluginPanel, AnEndWhileTheListIsBeingFilledClosesTheKeys) {
  Helper("{1}");
  Panel();
  toolkit.DuringDoEvents = [&] { toolkit.End(); };
  AsEvent([&] { Refresh(); });
  EXPECT_TRUE(toolkit.Ending());
  EXPECT_EQ(process.OpenKeys(), 0U);
}

TEST_F(PluginPanel, NothingIsReadTwiceInOneLoad) {
  for (int i = 0; i < 20; ++i) {
    const std::string id = "{" + std::to_string(i) + "}";
    Helper(id, "Helper");
    Button(id, "Button");
    MenuExtension(id);
    Bar(id + "t", "Bar");
    Library(std::to_string(i) + ".dll", "Product");
  }
  world.registry.readsWithoutAccess = true;
  Panel();
  ASSERT_EQ(List().Count(), 100);
  std::set<std::string> reads;
  for (const char* call : {"RegQueryValueExA", "RegEnumKeyA", "RegEnumValueA", "ListFolder",
                           "FileLength", "OpenFile"}) {
    for (const std::string& line : process.Trace().LinesOf(call)) {
      EXPECT_TRUE(reads.insert(line).second) << line << " stands there twice";
    }
  }
}

// The calls of one load, each with its root, path and mask.
TEST_F(PluginPanel, TheCallsOfALoadStandInTheirOrder) {
  OneOfEachKind();
  Show();
  process.Trace().Clear();
  Panel();
  std::vector<std::string> calls = process.Trace().Lines();
  std::erase_if(calls, [](const std::string& line) { return !line.starts_with("Reg"); });
  for (std::string& line : calls) {
    line = fileutil::ReplaceAll(line, Helpers.substr(0, Helpers.size() - 1), "Helpers");
    line = fileutil::ReplaceAll(line, "\\SOFTWARE\\Microsoft\\Internet Explorer", "");
    line = fileutil::ReplaceAll(line, "\\Software\\Microsoft\\Internet Explorer", "");
    line = fileutil::ReplaceAll(line, "\\SOFTWARE\\Microsoft\\IE Setup", "");
    line = fileutil::ReplaceAll(line, "\\Software\\Microsoft\\IE Setup", "");
  }
  EXPECT_THAT(
      calls,
      ElementsAre("RegOpenKeyA HKLM\\Helpers\\ -> 0",  //
                  "RegEnumKeyA HKLM\\Helpers 0 -> 0", "RegOpenKeyExA HKCR\\CLSID\\{1} 0xF003F -> 0",
                  "RegQueryValueExA HKCR\\CLSID\\{1} \"\" 1024 -> 0",
                  "RegCloseKey HKCR\\CLSID\\{1} -> 0", "RegEnumKeyA HKLM\\Helpers 1 -> 259",
                  "RegCloseKey HKLM\\Helpers -> 0", "RegOpenKeyExA HKLM\\Setup 0xF003F -> 0",
                  "RegQueryValueExA HKLM\\Setup \"Path\" 1024 -> 0",
                  "RegCloseKey HKLM\\Setup -> 0",  //
                  "RegOpenKeyExA HKLM\\Toolbar\\ 0x0 -> 0", "RegEnumValueA HKLM\\Toolbar 0 -> 0",
                  "RegOpenKeyExA HKCR\\CLSID\\{2} 0xF003F -> 0",
                  "RegQueryValueExA HKCR\\CLSID\\{2} \"\" 1024 -> 0",
                  "RegCloseKey HKCR\\CLSID\\{2} -> 0",
                  "RegOpenKeyExA HKCR\\CLSID\\{2}\\InprocServer32 0xF003F -> 2",
                  "RegCloseKey 0x0 -> 6",  //
                  "RegEnumValueA HKLM\\Toolbar 1 -> 259",
                  "RegCloseKey HKLM\\Toolbar -> 0",  //
                  "RegOpenKeyA HKCU\\MenuExt\\ -> 0", "RegEnumKeyA HKCU\\MenuExt 0 -> 0",
                  "RegEnumKeyA HKCU\\MenuExt 1 -> 259", "RegCloseKey HKCU\\MenuExt -> 0",
                  "RegOpenKeyA HKLM\\Extensions\\ -> 0", "RegEnumKeyA HKLM\\Extensions 0 -> 0",
                  "RegOpenKeyA HKLM\\Extensions\\{3} -> 0",
                  "RegQueryValueExA HKLM\\Extensions\\{3} \"ButtonText\" 255 -> 0",
                  "RegCloseKey HKLM\\Extensions\\{3} -> 0", "RegEnumKeyA HKLM\\Extensions 1 -> 259",
                  "RegCloseKey HKLM\\Extensions -> 0"));
}

TEST_F(PluginPanel, ALongListIsThereRowByRow) {
  constexpr int Helpers = 300;
  constexpr int Libraries = 700;
  for (int i = 0; i < Helpers; ++i) Helper("{" + std::to_string(1000 + i) + "}", "Helper");
  for (int i = 0; i < Libraries; ++i) Library(std::to_string(1000 + i) + ".dll", "Product");
  std::vector<int> counts;
  toolkit.DuringDoEvents = [&] { counts.push_back(List().Count()); };
  Panel();
  // Shown with the helpers one by one, and again while the libraries are listed and read.
  ASSERT_GE(counts.size(), static_cast<std::size_t>(Helpers));
  for (int i = 0; i < Helpers; ++i) ASSERT_EQ(counts[i], i + 1);
  EXPECT_EQ(List().Item(Helpers).Key(), "B299");
  EXPECT_EQ(List().Count(), Helpers + Libraries);
  EXPECT_EQ(Total(), " Total:1000 BHO's/Plug-ins found.");
}

}  // namespace
}  // namespace vantrel::iemaintenance
