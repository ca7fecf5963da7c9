#include <gmock/gmock.h>

#include "platform/memory/Process.h"

namespace vantrel::platform::memory {
namespace {

using testing::ElementsAre;

class MemoryProcess : public testing::Test {
 protected:
  int Ask(const std::string& text, std::uint32_t style) {
    return process_.Platform().dialogs.MessageBoxA(0, text, "Vantrel", style);
  }

  std::int32_t Start(const std::string& application, const std::string& commandLine) {
    return process_.Platform().processes.CreateProcessA(application, commandLine, ShowNormal);
  }

  World world_;
  Process process_{world_, Process::DefaultExecutable, "/clean now"};
};

TEST_F(MemoryProcess, KnowsItselfByItsExecutable) {
  System& system = process_.Platform().system;
  EXPECT_EQ(system.ProgramFolder(), "C:\\Program Files\\Vantrel");
  EXPECT_EQ(system.ProgramName(), "Vantrel");
  EXPECT_EQ(system.CommandLineTail(), "/clean now");
  EXPECT_TRUE(world_.files.IsFile("C:\\Program Files\\Vantrel\\Vantrel.exe"));
}

TEST_F(MemoryProcess, DrivesRootKeepsItsBackslash) {
  Process atRoot(world_, "D:\\a.b.exe");
  EXPECT_EQ(atRoot.Platform().system.ProgramFolder(), "D:\\");
  EXPECT_EQ(atRoot.Platform().system.ProgramName(), "a.b");
}

TEST_F(MemoryProcess, BoxesAreAnsweredByTheScript) {
  process_.AnswerBoxes({AnswerNo, AnswerYes});
  EXPECT_EQ(Ask("only OK", StyleInformation), AnswerOk);
  EXPECT_EQ(Ask("first?", StyleQuestionYesNo), AnswerNo);
  EXPECT_EQ(Ask("second?", StyleInformationYesNo), AnswerYes);
  EXPECT_EQ(process_.UnusedAnswers(), 0U);
  EXPECT_THAT(process_.Boxes(),
              ElementsAre(Box{0, "only OK", "Vantrel", 64}, Box{0, "first?", "Vantrel", 36},
                          Box{0, "second?", "Vantrel", 68}));
}

TEST_F(MemoryProcess, QuestionWithoutAnAnswerIsAMisuse) {
  testing::GTEST_FLAG(death_test_style) = "threadsafe";
  EXPECT_DEATH(Ask("really?", StyleQuestionYesNo), "no answer for the box \"really\\?\"");
  process_.AnswerBoxes({AnswerOk});
  EXPECT_DEATH(Ask("really?", StyleQuestionYesNo), "wrong answer");
}

TEST_F(MemoryProcess, WhileABoxIsUpATestActs) {
  std::string seen;
  process_.WhileBoxIsUp = [&](const Box& box) { seen = box.text; };
  Ask("hello", StylePlain);
  EXPECT_EQ(seen, "hello");
}

TEST_F(MemoryProcess, OwnAnswererTakesTheScriptsPlace) {
  process_.AnswerBox = [](const Box&) { return AnswerNo; };
  EXPECT_EQ(Ask("really?", StyleQuestionYesNo), AnswerNo);
}

TEST_F(MemoryProcess, SoundsAndDocumentsAreKept) {
  world_.files.Put("C:\\Sound\\a.wav", "RIFF");
  Sound& sound = process_.Platform().sound;
  EXPECT_TRUE(sound.sndPlaySoundA("C:\\sound\\A.wav", SndAsync));
  EXPECT_FALSE(sound.sndPlaySoundA("C:\\Sound\\b.wav", SndAsync));
  EXPECT_EQ(world_.playedSounds.size(), 2U);
  EXPECT_GT(process_.Platform().shell.ShellExecuteA(0, "open", "a.htm", "", "", 1), 32);
  EXPECT_EQ(world_.openedDocuments.at(0).file, "a.htm");
}

TEST_F(MemoryProcess, StartedProgramIsRecordedWithItsArguments) {
  world_.files.Put("C:\\My Dir\\x.exe", "");
  EXPECT_EQ(Start("", "\"C:\\My Dir\\x.exe\"  -s \"a b\""), 0);
  const StartedProcess& started = world_.programs.Started().at(0);
  EXPECT_EQ(started.starter, process_.Id());
  EXPECT_EQ(started.program, "C:\\My Dir\\x.exe");
  EXPECT_EQ(started.arguments, "-s \"a b\"");
  EXPECT_EQ(started.showCommand, ShowNormal);
}

TEST_F(MemoryProcess, UnquotedPathRunsTheShortestBeginning) {
  world_.files.Put("C:\\My Dir\\x.exe", "");
  EXPECT_EQ(Start("", "C:\\My Dir\\x.exe -s"), 0);
  world_.files.Put("C:\\My.exe", "");
  EXPECT_EQ(Start("", "C:\\My Dir\\x.exe -s"), 0);
  EXPECT_EQ(world_.programs.Started().at(0).program, "C:\\My Dir\\x.exe");
  EXPECT_EQ(world_.programs.Started().at(1).program, "C:\\My.exe");
  EXPECT_EQ(world_.programs.Started().at(1).arguments, "Dir\\x.exe -s");
}

TEST_F(MemoryProcess, ApplicationInFrontOfTheCommandLine) {
  world_.files.Put("C:\\My Dir\\x.exe", "");
  EXPECT_EQ(Start("C:\\My Dir\\x.exe", "C:\\My Dir\\x.exe /clean"), 0);
  EXPECT_EQ(world_.programs.Started().at(0).arguments, "/clean");
}

TEST_F(MemoryProcess, ApplicationBesideACommandLineWithANameOfItsOwn) {
  world_.files.Put("C:\\My Dir\\x.exe", "");
  for (const char* name : {"x", "\"C:\\My Dir\\x.exe\"", "My\" \"Dir", "\"x\"y"}) {
    world_.programs.ClearStarted();
    EXPECT_EQ(Start("C:\\My Dir\\x.exe", std::string(name) + " \t-s \"a b"), 0);
    EXPECT_EQ(world_.programs.Started().at(0).arguments, "-s \"a b") << name;
  }
  EXPECT_EQ(Start("C:\\My Dir\\x.exe", "x"), 0);
  EXPECT_EQ(world_.programs.Started().at(1).arguments, "");
}

TEST_F(MemoryProcess, NamesWithoutAFolderAreFoundInWindowsFolders) {
  world_.programs.Register("C:\\Windows\\regedit.exe", nullptr);
  EXPECT_EQ(Start("", "regedit /s a.reg"), 0);
  EXPECT_EQ(world_.programs.Started().at(0).program, "C:\\Windows\\regedit.exe");
}

TEST_F(MemoryProcess, RegisteredProgramRuns) {
  std::string seen;
  world_.programs.Register("C:\\Program Files\\Vantrel\\Vantrel.exe",
                           [&](const StartedProcess& started) {
                             Process second(world_, started.program, started.arguments);
                             seen = second.Platform().system.CommandLineTail();
                           });
  EXPECT_EQ(Start("", "\"C:\\Program Files\\Vantrel\\Vantrel.exe\" /onoff"), 0);
  EXPECT_EQ(seen, "/onoff");
}

TEST_F(MemoryProcess, ElevationGoesThroughTheShellOrIsRefused) {
  world_.files.Put("C:\\x.exe", "");
  world_.programs.RequireElevation("C:\\X.EXE");
  EXPECT_EQ(Start("", "C:\\x.exe"), 0);
  EXPECT_TRUE(world_.programs.Started().at(0).elevated);
  world_.programs.RefuseElevation(1223);
  EXPECT_EQ(Start("", "C:\\x.exe"), 1223);
  EXPECT_EQ(world_.programs.Started().size(), 1U);
}

TEST_F(MemoryProcess, TimersAndClaimsGoWithTheProcess) {
  auto other = std::make_unique<Process>(world_);
  world_.clock.SetTimer(other->Id(), 10, [] { FAIL(); });
  EXPECT_FALSE(other->Platform().system.PreviousInstanceRuns());
  other.reset();
  world_.clock.Advance(100);
  EXPECT_FALSE(process_.Platform().system.PreviousInstanceRuns());
}

}  // namespace
}  // namespace vantrel::platform::memory
