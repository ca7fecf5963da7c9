#include <gmock/gmock.h>

#include <random>
#include <sstream>

#include "app/console/Commands.h"
#include "app/console/State.h"

namespace vantrel::console {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr Options KeepGoing{.KeepGoing = true};

std::string Output(const std::string& lines, Options options = KeepGoing) {
  std::istringstream in(lines);
  std::ostringstream out;
  Session(in, out, options).Run();
  return out.str();
}

TEST(Console, StopsAtTheFirstErrorUnlessToldOtherwise) {
  std::istringstream in("jump\nclock\n");
  std::ostringstream out;
  EXPECT_FALSE(Session(in, out, {}).Run());
  EXPECT_THAT(out.str(), testing::StartsWith("error: no command \"jump\"; there are start, "));
  EXPECT_THAT(out.str(), Not(HasSubstr("2004")));
  EXPECT_THAT(Output("jump\nclock\n"), HasSubstr("2004-03-15 12:00:00"));
}

TEST(Console, TakesLinesThatEndAsOnWindows) {
  EXPECT_EQ(Output("clock\r\n\r\n# a remark\r\n"), "2004-03-15 12:00:00\n");
}

TEST(Console, StopsAtQuit) { EXPECT_EQ(Output("quit\nclock\n"), ""); }

TEST(Console, NeedsARunningProgramForWindows) {
  for (const char* line : {"show", "click a", "close", "exit", "tray left", "command /clean"}) {
    EXPECT_EQ(Output(line), "error: the program does not run; start it first\n") << line;
  }
}

TEST(Console, StartsOneCopyAndHandsTheSecondStartOver) {
  const std::string text = Output("start\nstart /clean\nprocesses\n");
  EXPECT_THAT(text, HasSubstr("copy 1 runs\nscreen: frmMain with FrmFrameMain\n"));
  EXPECT_THAT(text, HasSubstr("screen: frmMain with FrmFrameHistory\ncopy 2 has ended\n"));
}

TEST(Console, EndsTheProgramByItsExitEntryAlsoFromTheTray) {
  EXPECT_THAT(Output("start\nexit\n"), HasSubstr("copy 1 has ended"));
  EXPECT_THAT(Output("start\nclick LnkSettings\ntick chkGHideSystray\nclose\nexit\ntray\n"),
              HasSubstr("copy 1 has ended\nno icon\n"));
}

TEST(Console, ClosesForGoodWithoutTheTraySetting) {
  EXPECT_THAT(Output("start\nclose\n"), HasSubstr("copy 1 has ended"));
}

TEST(Console, BringsTheWindowBackByADoubleClickOnTheIcon) {
  EXPECT_THAT(Output("start\nclick LnkSettings\ntick chkGHideSystray\nclose\ntray left\n"),
              HasSubstr("screen: no window\nscreen: frmMain with FrmFrameMain\n"));
}

TEST(Console, SaysWhyAControlCannotBeReached) {
  const std::string text = Output("start\nclick cmdstart\nclick frmMain.cmdDummy\nclick chkGLog\n");
  EXPECT_THAT(text, HasSubstr("cannot: FrmFrameMain.cmdstart is disabled"));
  EXPECT_THAT(text, HasSubstr("cannot: frmMain.cmdDummy is hidden"));
  EXPECT_THAT(text, HasSubstr("cannot: FrmFrameSettings is hidden"));
}

TEST(Console, ClicksByCaption) {
  EXPECT_THAT(Output("start\nclick stop\nshow cmdstart\n"), HasSubstr("\"Start\"\n"));
}

TEST(Console, TakesWhatIsInFrontOfSeveralThatFit) {
  const std::string text = Output(
      "start\nclick \"Ad Blocking\"\nshow Frame1\nclick LnkWelcome\nshow Frame4\nshow Frame1\n");
  EXPECT_THAT(text, testing::ContainsRegex("frame    Frame1 \"Block Preferences\"(.|\n)*"
                                           "frame    Frame4(.|\n)*frame    Frame1 \"\""));
}

TEST(Console, GoesOnInsideAModalWindow) {
  const std::string text =
      Output("start\nmenu Help/About\nclick Settings\nclick CmdOK\nshow lblno\n");
  EXPECT_THAT(text, HasSubstr("FrmAbout (modal)"));
  EXPECT_THAT(text, HasSubstr("cannot: FrmAbout is open in front"));
  EXPECT_THAT(text, HasSubstr("label    lblno \"0\""));
}

TEST(Console, EndsWithAModalWindowOpen) {
  EXPECT_THAT(Output("start\nmenu Help/About\n"), HasSubstr("FrmAbout (modal)"));
  EXPECT_THAT(Output("start\nmenu Help/About\nquit\nclock\n"), Not(HasSubstr("2004")));
  EXPECT_THAT(Output("start\nmenu Help/About\njump\nclock\n", {}), Not(HasSubstr("2004")));
}

TEST(Console, HandsACommandOverWhileAModalWindowIsOpen) {
  EXPECT_THAT(Output("start\nmenu Help/About\nstart /clean\nlogoff\nclock\n"),
              HasSubstr("copy 1 has ended"));
}

TEST(Console, AnswersBoxesAsTold) {
  const std::string refused =
      "registry set \"HKLM\\SOFTWARE\\Microsoft\\Internet Explorer\" Version string 1\nstart\n";
  EXPECT_THAT(Output("answer yes\n" + refused + "boxes\n"), HasSubstr("-> OK\n"));
  EXPECT_THAT(Output("answer maybe\n"), HasSubstr("error: no answer \"maybe\""));
}

TEST(Console, ShowsAndTracesTheCallsToWindows) {
  EXPECT_THAT(Output("start\ntrace show\n"), HasSubstr("call: RegOpenKeyExA"));
  EXPECT_THAT(Output("start\ntrace on\nadvance 2000\n"), HasSubstr("call: Reg"));
}

TEST(Console, LetsCallsFail) {
  EXPECT_THAT(Output("fail CreateProcessA every 2\nstart\nclick cmdtest\n"),
              Not(HasSubstr("started:")));
  EXPECT_THAT(Output("fail FreeLibrary 1 5\nfail CreateThread every 8\n"), "");
  EXPECT_THAT(Output("fail zzzz 1 5\n"),
              HasSubstr("error: no call \"zzzz\"; there are RegOpenKeyExA, RegOpenKeyA, "));
  EXPECT_THAT(Output("fail any every 5\n"), HasSubstr("error: "));
}

TEST(Console, NamesTheChoicesWhereNoneIsNear) {
  EXPECT_EQ(Output("registry\n"),
            "error: no registry command \"\"; there are show, set, delete, refuse, family, load "
            "and save\n");
  EXPECT_EQ(Output("state\n"), "error: no state command \"\"; there are load and save\n");
  EXPECT_EQ(
      Output("files put a\nfiles mark a zzzz\n"),
      "error: no mark \"zzzz\"; there are readonly, writable, hidden, visible, system, ordinary, "
      "locked and free\n");
}

TEST(Console, SetsAndShowsValuesOfEachType) {
  EXPECT_EQ(Output("registry set HKCU\\A n string \"two words\"\n"
                   "registry set HKCU\\A \"\" expand %a%\n"
                   "registry set HKCU\\A d dword 0x10\n"
                   "registry set HKCU\\A b binary 0102 ff\n"
                   "registry set HKCU\\A m multi a b\n"
                   "registry show HKCU\\A\n"),
            "[HKEY_CURRENT_USER\\A]\n"
            "\"n\"=\"two words\"\n"
            "@=hex(2):25,61,25,00\n"
            "\"d\"=dword:00000010\n"
            "\"b\"=hex:01,02,ff\n"
            "\"m\"=hex(7):61,00,62,00,00\n");
}

TEST(Console, RefusesValuesThatAreNone) {
  for (const char* data : {"dword x", "dword 0x100000000", "dword 1 2", "string a b", "binary 1",
                           "binary 0g", "nothing 1"}) {
    EXPECT_THAT(Output(std::string("registry set HKCU\\A n ") + data + '\n'), HasSubstr("error: "))
        << data;
  }
  EXPECT_THAT(Output("registry set HKXX\\A n dword 1\n"), HasSubstr("no registry root \"HKXX\""));
  EXPECT_THAT(Output("registry show HKCU\\None\n"), HasSubstr("no key"));
  std::string deep = "HKCU";
  for (int level = 0; level < 20000; ++level) deep += "\\a";
  EXPECT_THAT(Output("registry set " + deep + " n dword 1\n"), HasSubstr("lies too deep"));
  EXPECT_THAT(Output("registry set HKCU\\" + std::string(256, 'a') + " n dword 1\n"),
              HasSubstr("a key's name is too long"));
}

TEST(Console, ResizesNoSmallerThanTheProgramAllows) {
  EXPECT_THAT(Output("start\nsize 100 100\n"), HasSubstr("frmMain 9300 x 6825"));
}

TEST(Console, ShowsAndChangesFiles) {
  EXPECT_EQ(Output("files put Settings\\a.txt one \"two words\"\nfiles show Settings\\a.txt\n"),
            "  one\n  two words\n");
  EXPECT_THAT(Output("files put C:\\WINDOWS x\n"), HasSubstr("is a folder"));
  EXPECT_THAT(Output("files put C:\\a x\nfiles put C:\\a\\b x\n"), HasSubstr("it has no folder"));
  EXPECT_THAT(Output("files put D:\\a x\nfiles put C: x\nfiles put C:a x\n"), HasSubstr("error: "));
  EXPECT_THAT(Output("files put a x\nfiles mark a readonly\nfiles put a y\n"),
              HasSubstr("it is read-only"));
  EXPECT_THAT(Output("files delete C:\\\n"), HasSubstr("error: no file"));
  EXPECT_THAT(Output("files delete C:\\WINDOWS\nfiles list C:\\WINDOWS\n"), HasSubstr("no folder"));
}

TEST(Console, ListsFoldersFilesAndTheirMarks) {
  EXPECT_EQ(
      Output("files folder C:\\d\\empty\nfiles put C:\\d\\f x\nfiles link C:\\d\\l C:\\WINDOWS\n"
             "files mark C:\\d\\f readonly\nfiles mark C:\\d\\f system\n"
             "files mark C:\\d\\f locked\nfiles mark C:\\d\\empty hidden\nfiles list C:/d/\n"
             "files mark C:\\d\\f writable\nfiles mark C:\\d\\f ordinary\n"
             "files mark C:\\d\\f free\nfiles mark C:\\d\\empty visible\nfiles list C:\\d\n"),
      "C:\\d\\empty\\ hidden\nC:\\d\\f  3 readonly system locked\nC:\\d\\l\\ link\n"
      "C:\\d\\empty\\\nC:\\d\\f  3\nC:\\d\\l\\ link\n");
}

TEST(Console, RefusesFoldersAndLinksThatCannotBe) {
  EXPECT_THAT(Output("files put C:\\a x\nfiles folder C:\\a\n"),
              HasSubstr("cannot make \"C:\\a\""));
  EXPECT_THAT(Output("files put C:\\a x\nfiles folder C:\\a\\b\n"), HasSubstr("cannot make"));
  EXPECT_THAT(Output("files folder D:\\a\n"), HasSubstr("cannot make"));
  EXPECT_THAT(Output("files put C:\\a x\nfiles link C:\\a\\b C:\\WINDOWS\n"),
              HasSubstr("cannot make"));
  EXPECT_THAT(Output("files link C:\\WINDOWS C:\\WINDOWS\n"), HasSubstr("there is something at"));
  EXPECT_THAT(Output("files link C:\\l C:\\None\nfiles link C: C:\\WINDOWS\n"),
              HasSubstr("no file"));
  EXPECT_THAT(Output("files link C:a C:\\WINDOWS\n"), HasSubstr("error: "));
}

TEST(Console, MovesFilesIntoTheRecycleBin) {
  EXPECT_EQ(
      Output(
          "bin\nfiles put C:\\a x\nfiles put C:\\b\\c x\nbin C:\\a C:\\b\nbin\nfiles show C:\\a\n"),
      "nothing\nC:\\a\nC:\\b\nerror: no file \"C:\\a\"\n");
  EXPECT_THAT(Output("bin C:\\\n"), HasSubstr("error: no file"));
}

TEST(Console, KnowsTheFamilyOfSystems) {
  std::istringstream in("registry family 9x\n");
  std::ostringstream out;
  Session session(in, out, {});
  EXPECT_TRUE(session.Run());
  EXPECT_TRUE(session.World().registry.readsWithoutAccess);
}

TEST(Console, ChoosesInFolderPickers) {
  std::istringstream in("pick C:\\d\n");
  std::ostringstream out;
  Session session(in, out, {});
  EXPECT_EQ(session.World().pickFolder({}), "");
  EXPECT_TRUE(session.Run());
  EXPECT_EQ(session.World().pickFolder({{}, "C:\\a"}), "C:\\d");
  EXPECT_EQ(out.str(),
            "folder picker at \"\" -> Cancel\nfolder picker at \"C:\\a\" -> \"C:\\d\"\n");
}

TEST(Console, SavesAndLoadsRegistrationFiles) {
  const std::string file = testing::TempDir() + "console-test.reg";
  Output("registry set HKCU\\A n string \"two words\"\nregistry save " + file + " HKCU\\A\n");
  EXPECT_THAT(ReadRealFile(file), testing::StartsWith("REGEDIT4"));
  EXPECT_THAT(Output("registry load " + file + "\nregistry show HKCU\\A\n"),
              HasSubstr("\"n\"=\"two words\"\n"));
  WriteRealFile(file, "[HKEY_CURRENT_USER\\A]\n");
  EXPECT_THAT(Output("registry load " + file + "\n"), HasSubstr("is no registration file"));
}

TEST(Console, SetsTheClock) {
  EXPECT_EQ(Output("clock 2005-12-31 23:59:58\nadvance 2000\nclock\n"),
            "2005-12-31 23:59:58\n2006-01-01 00:00:00\n");
  for (const char* time :
       {"2005-02-30 0:0:0", "2005-02-03 24:0:0", "2005-02-03 0:60:0", "2005-02-03 0:0:60",
        "2005-02-03 0:0:-1", "2005-02-03", "2005-02-03 0:0:0x", "1600-01-01 0:0:0"}) {
    EXPECT_EQ(Output(std::string("clock ") + time + "\n"),
              "error: there is no such time; it goes: 2004-03-15 12:00:00\n")
        << time;
  }
}

TEST(Console, KeepsTheStateWithoutWindows) {
  std::istringstream in("start\nclick \"Ad Blocking\"\nuntick chkBFlash\nexit\n");
  std::ostringstream out;
  Session first(in, out, {});
  ASSERT_TRUE(first.Run());
  std::istringstream more("start\nshow chkBFlash\n");
  std::ostringstream later;
  Session second(more, later, {});
  second.Replace(WindowsFromState(StateText(first.World())));
  EXPECT_TRUE(second.Run());
  EXPECT_THAT(later.str(), HasSubstr("check    chkBFlash [ ]"));
}

// Lines of commands, names and bytes in any order; those that touch the real disk are left out.
TEST(Console, SurvivesAnyLines) {
  std::vector<std::string> words{"cmdstart",    "frmMain", "LnkGraph", "1",         "2000",
                                 "\"\"",        "HKCU\\A", "string",   "C:\\x",     "dword",
                                 "all",         "left",    "right",    "File/Exit", "Help/About",
                                 "yes",         "none",    "locked",   "every",     "any",
                                 "\xFF\x01",    "\"open",  "-1",       "minimize",  "chkBFlash",
                                 "cmbinternet", "Custom",  "escape",   "on",        "off"};
  for (const Command& command : Commands()) {
    const std::string name = command.Name;
    const bool real = name.find("load") != std::string::npos ||
                      name.find("save") != std::string::npos || name == "quit";
    for (int copies = 0; !real && copies < 2; ++copies) words.push_back(name);
  }
  std::mt19937 random(1);
  std::string lines;
  for (int line = 0; line < 3000; ++line) {
    if (line % 25 == 0) lines += "start\n";
    for (unsigned count = random() % 4 + 1; count > 0; --count) {
      lines += words[random() % words.size()] + ' ';
    }
    lines += '\n';
  }
  EXPECT_THAT(Output(lines + "clock\n"), HasSubstr("error: "));
}

TEST(Console, SurvivesAnyBytes) {
  std::mt19937 random(2);
  std::string bytes;
  for (int i = 0; i < 20000; ++i) bytes.push_back(static_cast<char>(random() % 256));
  EXPECT_THAT(Output(bytes + "\nclock\n"), HasSubstr("2004-03-15"));
  EXPECT_THAT(Output(std::string(1000000, 'a') + "\nclock\n"), HasSubstr("2004-03-15"));
}

}  // namespace
}  // namespace vantrel::console
