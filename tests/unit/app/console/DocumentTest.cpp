#include <gmock/gmock.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "app/console/Commands.h"
#include "text/Strings.h"

// docs/console.md says what is so: its transcripts are replayed, its table is the console's own.
namespace vantrel::console {
namespace {

using testing::HasSubstr;

std::string Document() {
  std::ifstream file(VANTREL_CONSOLE_DOCUMENT, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

std::vector<std::string> Transcripts() {
  const std::string text = Document();
  const std::string open = "```console\n";
  std::vector<std::string> transcripts;
  for (std::size_t at = text.find(open); at != std::string::npos; at = text.find(open, at)) {
    at += open.size();
    transcripts.push_back(text.substr(at, text.find("```\n", at) - at));
  }
  return transcripts;
}

std::string CommandsOf(const std::string& transcript) {
  std::istringstream lines(transcript);
  std::string commands;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("> ")) commands += line.substr(2) + '\n';
  }
  return commands;
}

// The bars of alternatives would end a column.
std::string InColumn(const std::string& text) { return Joined(text::Split(text, '|'), "\\|"); }

TEST(Document, HoldsTheTableOfCommands) {
  std::string table = "| command | what it does |\n|---|---|\n";
  for (const Command& command : Commands()) {
    const std::string arguments = command.Arguments;
    table += "| `" + InColumn(command.Name + (arguments.empty() ? "" : " " + arguments)) + "` | " +
             InColumn(command.Help) + " |\n";
  }
  EXPECT_THAT(Document(), HasSubstr(table));
}

TEST(Document, TranscriptsAreWhatTheConsoleSays) {
  const std::vector<std::string> transcripts = Transcripts();
  ASSERT_GE(transcripts.size(), 5U);
  for (const std::string& transcript : transcripts) {
    std::istringstream in(CommandsOf(transcript));
    std::ostringstream out;
    Session(in, out, {.KeepGoing = true, .Echo = true}).Run();
    EXPECT_EQ(out.str(), transcript);
  }
}

}  // namespace
}  // namespace vantrel::console
