#include "app/console/Console.h"

#include <utility>

#include "app/console/Commands.h"
#include "app/console/Words.h"

namespace vantrel::console {
namespace {

// Before and After of a session, whatever comes between.
class Around {
 public:
  explicit Around(Session& session) : session_(session) { session_.Before(); }
  ~Around() { session_.After(); }
  Around(const Around&) = delete;
  Around& operator=(const Around&) = delete;

 private:
  Session& session_;
};

}  // namespace

Console::Console(std::istream& in, std::ostream& out, ConsoleOptions options)
    : in_(in), out_(out), options_(options), session_(out) {
  session_.DoNext = [this] { return DoNext(); };
}

bool Console::Run() {
  while (DoNext()) {
  }
  return !failed_;
}

// False at the end of the lines. Also called while a modal window waits, from within a command.
bool Console::DoNext() {
  std::string line;
  if (session_.Quitting || !ReadLine(line)) return false;
  if (options_.Echo) out_ << "> " << Printable(line.substr(0, LongestLine)) << '\n';
  DoLine(line);
  out_.flush();
  return !session_.Quitting;
}

bool Console::ReadLine(std::string& line) {
  if (options_.Prompt) out_ << "> " << std::flush;
  if (!std::getline(in_, line)) return false;
  if (!line.empty() && line.back() == '\r') line.pop_back();
  return true;
}

void Console::DoLine(const std::string& line) {
  try {
    const Words words = SplitWords(line);
    if (words.empty()) return;
    const Call call = FindCommand(words);
    const Around around(session_);
    call.What->Run(session_, call.Behind);
  } catch (const CommandError& error) {
    Fail(error.what());
  }
}

void Console::Fail(const std::string& why) {
  out_ << "error: " << Printable(why) << '\n';
  failed_ = true;
  if (!options_.KeepGoing) session_.Quitting = true;
}

}  // namespace vantrel::console
