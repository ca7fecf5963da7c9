#include <gmock/gmock.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "app/console/Commands.h"
#include "app/console/Console.h"

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

TEST(Document, HoldsTheTableOfCommands) { EXPECT_THAT(Document(), HasSubstr(HelpDocument())); }

TEST(Document, TranscriptsAreWhatTheConsoleSays) {
  const std::vector<std::string> transcripts = Transcripts();
  ASSERT_GE(transcripts.size(), 2U);
  for (const std::string& transcript : transcripts) {
    std::istringstream in(CommandsOf(transcript));
    std::ostringstream out;
    Console(in, out, {.KeepGoing = true, .Echo = true}).Run();
    EXPECT_EQ(out.str(), transcript);
  }
}

}  // namespace
}  // namespace vantrel::console
