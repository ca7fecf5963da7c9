#include <gmock/gmock.h>

#include <sstream>

#include "app/console/Commands.h"

namespace vantrel::console {
namespace {

using testing::HasSubstr;

// What the command fails with, or else what it prints.
std::string Outcome(const Words& words) {
  std::istringstream in;
  std::ostringstream out;
  Session session(in, out, {});
  try {
    RunCommand(session, words);
  } catch (const CommandError& error) {
    return error.what();
  }
  return out.str();
}

TEST(RunCommand, TakesNamesOfOneWordAndOfTwo) {
  EXPECT_EQ(Outcome({"clock"}), "2004-03-15 12:00:00\n");
  EXPECT_THAT(Outcome({"registry", "show", "HKLM"}), HasSubstr("[HKEY_LOCAL_MACHINE\\SOFTWARE]"));
}

TEST(RunCommand, TakesBeginningsThatFitOneOnly) {
  EXPECT_THAT(Outcome({"REG", "sh", "HKLM"}), HasSubstr("[HKEY_LOCAL_MACHINE\\SOFTWARE]"));
  EXPECT_THAT(Outcome({"s"}), HasSubstr("more than one command is \"s\": start, sounds, "));
  EXPECT_EQ(Outcome({"registry", "s"}),
            "more than one registry command is \"s\": show, set or save");
}

TEST(RunCommand, RefusesUnknownOnes) {
  EXPECT_THAT(Outcome({"jump"}), HasSubstr("no command \"jump\""));
  EXPECT_THAT(Outcome({""}), HasSubstr("no command \"\""));
  EXPECT_THAT(Outcome({"registry"}), HasSubstr("no registry command \"\""));
  EXPECT_THAT(Outcome({"registry", "jump"}), HasSubstr("no registry command \"jump\""));
}

TEST(RunCommand, TakesAsManyWordsAsItsUsageHas) {
  EXPECT_EQ(Outcome({"click"}), "it goes: click CONTROL");
  EXPECT_EQ(Outcome({"click", "a", "b"}), "it goes: click CONTROL");
  EXPECT_EQ(Outcome({"boxes", "a"}), "it goes: boxes");
  EXPECT_THAT(Outcome({"clock", "a", "b", "c"}), HasSubstr("it goes: clock"));
  EXPECT_THAT(Outcome({"registry", "set", "HKCU\\A", "n", "multi"}), HasSubstr("it goes: "));
  EXPECT_EQ(Outcome({"registry", "set", "HKCU\\A", "n", "multi", "a", "b", "c"}), "");
  EXPECT_EQ(Outcome({"answer"}), "");
  EXPECT_EQ(Outcome({"answer", "yes", "no", "yes"}), "");
}

TEST(Commands, HaveNamesThatAreApart) {
  for (const Command& command : Commands()) {
    // A word is either a command or a family, so that one name never begins another with a blank.
    for (const Command& other : Commands()) {
      const std::string name = command.Name;
      EXPECT_TRUE(&command == &other ||
                  (name != other.Name && !std::string(other.Name).starts_with(name + ' ')))
          << name;
    }
  }
}

TEST(HelpText, HasEveryCommand) {
  for (const Command& command : Commands()) EXPECT_THAT(HelpText({}), HasSubstr(command.Help));
  EXPECT_THAT(HelpText({"files", "put"}), HasSubstr("makes a file of these lines"));
  EXPECT_THROW(HelpText({"jump"}), CommandError);
}

}  // namespace
}  // namespace vantrel::console
