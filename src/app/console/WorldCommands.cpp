#include <array>

#include "app/console/Boxes.h"
#include "app/console/Commands.h"
#include "app/console/Names.h"
#include "app/console/State.h"
#include "app/console/Words.h"
#include "platform/memory/CallNames.h"
#include "text/Strings.h"

namespace vantrel::console {
namespace {

namespace memory = platform::memory;

constexpr long long LongestAdvance = 24LL * 60 * 60 * 1000;

Fault ParseFault(const Words& words) {
  if (words.size() != 3) throw CommandError("it goes: fail CALL N CODE, or: fail clear");
  const bool any = text::EqualIgnoringCase(words[0], "any");
  const bool every = text::EqualIgnoringCase(words[1], "every");
  if (any && every) throw CommandError("not every call of any name can fail");
  Fault fault;
  const std::vector<std::string> calls(memory::CallNames.begin(), memory::CallNames.end());
  if (!any) fault.Call = calls[PickName("call", words[0], calls)];
  fault.Nth = every ? 0 : static_cast<std::size_t>(ParseNumber(words[1], 1, 1000000, "N"));
  fault.Code = static_cast<std::int32_t>(ParseNumber(words[2], 1, 0x7FFFFFFF, "the code"));
  return fault;
}

void Advance(Session& session, const Words& words) {
  session.Advance(static_cast<std::uint64_t>(
      ParseNumber(words.front(), 0, LongestAdvance, "the time in milliseconds")));
}

void ShowClock(Session& session, const Words& words) {
  if (!words.empty()) SetClock(session.World(), Joined(words));
  session.Say(ClockText(session.World()));
}

void Answer(Session& session, const Words& words) {
  std::vector<int> answers;
  for (const std::string& word : words) answers.push_back(ButtonNamed(word));
  if (words.empty()) session.Answers.clear();
  session.Answers.insert(session.Answers.end(), answers.begin(), answers.end());
}

void ShowBoxes(Session& session, const Words&) {
  for (const std::string& line : session.BoxLines) session.Say(line);
  if (session.BoxLines.empty()) session.Say("no box");
}

void ShowProcesses(Session& session, const Words&) {
  const auto& started = session.World().programs.Started();
  for (const auto& copy : session.Copies()) {
    session.Say("copy " + std::to_string(copy->Number) + " runs");
  }
  for (const memory::StartedProcess& process : started) {
    session.Say("started " + Printable(process.commandLine));
  }
  if (session.Copies().empty() && started.empty()) session.Say("no process");
}

void ShowSounds(Session& session, const Words&) {
  const auto& sounds = session.World().playedSounds;
  for (const memory::PlayedSound& sound : sounds) session.Say(Printable(sound.path));
  if (sounds.empty()) session.Say("no sound");
}

void Trace(Session& session, const Words& words) {
  const std::size_t what = PickName("trace", words.front(), {"on", "off", "show"});
  if (what == 2) return session.SayLastCalls();
  session.TracePrinted = what == 0;
}

void Fail(Session& session, const Words& words) {
  if (words.size() == 1 && text::EqualIgnoringCase(words.front(), "clear")) {
    return session.ClearFaults();
  }
  session.Fail(ParseFault(words));
}

void LoadState(Session& session, const Words& words) {
  session.Replace(WindowsFromState(ReadRealFile(words.front())));
}

void SaveState(Session& session, const Words& words) {
  WriteRealFile(words.front(), StateText(session.World()));
}

constexpr std::array Table{
    Command{"advance", "MILLISECONDS", "moves the clock on; timers tick", 1, 1, Advance},
    Command{"clock", "[YEAR-MONTH-DAY HOUR:MINUTE:SECOND]", "shows or sets the clock", 0, 2,
            ShowClock},
    Command{"answer", "[BUTTON ...]",
            "answers for boxes to come: yes, no, ok, cancel ...; without one, forgets them", 0, 100,
            Answer},
    Command{"boxes", "", "lists the message boxes so far, with their answers", 0, 0, ShowBoxes},
    Command{"processes", "", "lists the copies that run and the programs they started", 0, 0,
            ShowProcesses},
    Command{"sounds", "", "lists the sounds that were played", 0, 0, ShowSounds},
    Command{"trace", "on | off | show",
            "prints the calls to Windows after each command; or those of the last one", 1, 1,
            Trace},
    Command{"fail", "CALL N CODE | clear",
            "lets the n-th call of a name (or any; or every) fail with an error code", 1, 3, Fail},
    Command{"state load", "FILE", "replaces the Windows by a saved one", 1, 1, LoadState},
    Command{"state save", "FILE", "saves clock, registry and files", 1, 1, SaveState},
};

}  // namespace

std::span<const Command> WorldCommands() { return Table; }

}  // namespace vantrel::console
