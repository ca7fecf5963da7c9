#include <gmock/gmock.h>

#include "app/console/Commands.h"
#include "app/console/Words.h"

namespace vantrel::console {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StrEq;

TEST(FindCommand, TakesNamesOfOneWordAndOfTwo) {
  EXPECT_THAT(FindCommand({"click", "x"}).What->Name, StrEq("click"));
  const Call call = FindCommand({"registry", "show", "HKCU"});
  EXPECT_THAT(call.What->Name, StrEq("registry show"));
  EXPECT_THAT(call.Behind, ElementsAre("HKCU"));
}

TEST(FindCommand, TakesBeginningsThatFitOneOnly) {
  EXPECT_THAT(FindCommand({"REG", "sh"}).What->Name, StrEq("registry show"));
  EXPECT_THROW(FindCommand({"s"}), CommandError);
  EXPECT_THROW(FindCommand({"registry", "s"}), CommandError);
}

TEST(FindCommand, RefusesUnknownOnesAndWrongNumbersOfWords) {
  EXPECT_THROW(FindCommand({"jump"}), CommandError);
  EXPECT_THROW(FindCommand({""}), CommandError);
  EXPECT_THROW(FindCommand({"registry"}), CommandError);
  EXPECT_THROW(FindCommand({"registry", "jump"}), CommandError);
  EXPECT_THROW(FindCommand({"click"}), CommandError);
  EXPECT_THROW(FindCommand({"click", "a", "b"}), CommandError);
}

TEST(Commands, HaveNamesThatAreApart) {
  for (const Command& command : Commands()) {
    EXPECT_LE(command.Least, command.Most) << command.Name;
    // A word is either a command or a family, so that one name never begins another with a blank.
    for (const Command& other : Commands()) {
      const std::string name = command.Name;
      EXPECT_TRUE(&command == &other ||
                  (name != other.Name && !std::string(other.Name).starts_with(name + ' ')))
          << name;
    }
  }
}

TEST(HelpText, TellsEveryCommand) {
  for (const Command& command : Commands()) EXPECT_THAT(HelpText({}), HasSubstr(command.Help));
  EXPECT_THAT(HelpText({"files", "put"}), HasSubstr("makes a file of these lines"));
  EXPECT_THROW(HelpText({"jump"}), CommandError);
}

}  // namespace
}  // namespace vantrel::console
