#include <array>
#include <cstdio>

#include "app/console/Boxes.h"
#include "app/console/Handlers.h"
#include "app/console/Names.h"
#include "app/console/Paths.h"
#include "app/console/StateFile.h"
#include "app/console/Words.h"
#include "text/Strings.h"

namespace vantrel::console {
namespace {

namespace memory = platform::memory;

constexpr long long LongestAdvance = 24LL * 60 * 60 * 1000;

// The calls that the program makes of Windows.
const std::vector<std::string>& CallNames() {
  static const std::vector<std::string> names{
      "RegOpenKeyExA",        "RegOpenKeyA",         "RegCreateKeyExA",    "RegQueryValueExA",
      "RegSetValueExA",       "RegDeleteKeyA",       "RegDeleteValueA",    "RegEnumValueA",
      "RegEnumKeyA",          "RegCloseKey",         "InitCommonControls", "EnumWindows",
      "EnumChildWindows",     "GetWindowTextA",      "GetParent",          "IsIconic",
      "ShowWindow",           "SetForegroundWindow", "SetParent",          "SendMessageA",
      "SendTextMessageA",     "SetWindowLongA",      "keybd_event",        "GetCursorPos",
      "WindowFromPoint",      "Shell_NotifyIconA",   "ShellExecuteA",      "FileExists",
      "FileLength",           "ReadTextFile",        "CreateTextFile",     "WriteTextFile",
      "AppendTextFile",       "CreateProcessA",      "sndPlaySoundA",      "MessageBoxA",
      "GetVersionExA",        "CommandLineTail",     "ProgramFolder",      "ProgramName",
      "PreviousInstanceRuns",
  };
  return names;
}

std::string ClockText(const memory::LocalTime& time) {
  std::array<char, 100> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", time.year, time.month,
                time.day, time.hour, time.minute, time.second);
  return text.data();
}

memory::LocalTime ParseClock(const std::string& date, const std::string& time) {
  const std::vector<std::string> day = text::Split(date, '-');
  const std::vector<std::string> hour = text::Split(time, ':');
  if (day.size() != 3 || hour.size() != 3) {
    throw CommandError("the time goes: 2004-03-15 12:00:00");
  }
  const auto part = [](const std::string& digits, int least, int most) {
    return static_cast<int>(ParseNumber(digits, least, most, "a part of the time"));
  };
  return {part(day[0], 1601, 9999), part(day[1], 1, 12),  part(day[2], 1, 31),
          part(hour[0], 0, 23),     part(hour[1], 0, 59), part(hour[2], 0, 59)};
}

Fault ParseFault(const Words& words) {
  if (words.size() != 3) throw CommandError("it goes: fail CALL N CODE, or: fail clear");
  const bool any = text::EqualIgnoringCase(words[0], "any");
  const bool every = text::EqualIgnoringCase(words[1], "every");
  if (any && every) throw CommandError("not every call of any name can fail");
  Fault fault;
  if (!any) fault.Call = CallNames()[PickName("call", words[0], CallNames())];
  fault.Nth = every ? 0 : static_cast<std::size_t>(ParseNumber(words[1], 1, 1000000, "N"));
  fault.Code = static_cast<std::int32_t>(ParseNumber(words[2], 1, 0x7FFFFFFF, "the code"));
  return fault;
}

}  // namespace

void Advance(Session& session, const Words& words) {
  session.Advance(static_cast<std::uint64_t>(
      ParseNumber(words.front(), 0, LongestAdvance, "the time in milliseconds")));
}

void ShowClock(Session& session, const Words& words) {
  if (words.size() == 1) throw CommandError("the time goes: 2004-03-15 12:00:00");
  if (words.size() == 2) SetClock(session.World(), ParseClock(words[0], words[1]));
  session.Say(ClockText(session.World().clock.LocalNow()));
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

}  // namespace vantrel::console
