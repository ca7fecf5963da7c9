// Measures Vantrel.exe beside the bare window program, in one run: start to idle, a command from
// its sender's start to its panel, panel switches, the toolbar's dialog, long allow lists, what it
// takes when idle and under load.
#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "Report.h"
#include "startup/AllowList.h"
#include "startup/Probe.h"

namespace vantrel::bench {
namespace {

struct Options {
  std::string program;
  std::string bare;
  std::string engine;
  int runs = 7;
  int idleSeconds = 20;
};

constexpr const char* BareTitle = "Bare window program";
constexpr UINT OpenBareDialog = WM_APP + 50;

double MeasureStart(const std::string& executable, const char* title) {
  Probe probe(executable, "", title);
  const double time = probe.WaitUntilIdle();
  probe.Close();
  return time;
}

void MeasureStarts(const Options& options) {
  Times program;
  Times bare;
  MeasureStart(options.bare, BareTitle);
  MeasureStart(options.program, ProgramTitle);
  for (int run = 0; run < options.runs; ++run) {
    bare.push_back(MeasureStart(options.bare, BareTitle));
    program.push_back(MeasureStart(options.program, ProgramTitle));
  }
  PrintRow("start to idle", Median(program), "ms", "x1.2", {"bare window program", Median(bare)});
}

// Processor time in percent of a core over the given time; the slowest answer in it; the private
// memory at its end.
struct IdleResult {
  double share = 0;
  double memory = 0;
  double slowestAnswer = 0;
};

IdleResult MeasureIdle(const Probe& probe, int seconds) {
  IdleResult result;
  Sleep(3000);  // Until the start's last paint and first tick are over.
  const double before = probe.ProcessorTime();
  const double start = Now();
  while (Now() - start < seconds * 1000.0) {
    Sleep(500);
    result.slowestAnswer = std::max(result.slowestAnswer, probe.RoundTrip());
  }
  result.share = (probe.ProcessorTime() - before) * 100 / (Now() - start);
  result.memory = probe.PrivateKilobytes();
  return result;
}

IdleResult MeasureIdleOf(const std::string& executable, const char* title, int seconds) {
  Probe probe(executable, "", title);
  probe.WaitUntilIdle();
  const IdleResult result = MeasureIdle(probe, seconds);
  probe.Close();
  return result;
}

void MeasureIdles(const Options& options) {
  const auto bare = MeasureIdleOf(options.bare, BareTitle, options.idleSeconds);
  const auto program = MeasureIdleOf(options.program, ProgramTitle, options.idleSeconds);
  PrintRow("idle, share of a core", program.share, "%", "1", {"bare window program", bare.share});
  PrintRow("private memory when idle", program.memory, "KB", "",
           {"bare window program", bare.memory});
}

void MeasureUnderLoad(const Options& options) {
  Probe program(options.program, "", ProgramTitle);
  program.WaitUntilIdle();
  Probe engine(options.engine, "--rate 1000 --seconds " + std::to_string(options.idleSeconds + 10),
               "");
  const auto idle = MeasureIdle(program, options.idleSeconds);
  PrintRow("1,000 counts a second, share of a core", idle.share, "%", "1");
  PrintRow("1,000 counts a second, slowest answer", idle.slowestAnswer, "ms", "100");
  program.Close();
}

// Each command shows its panel for the first time, so that a copy takes all of them once.
struct CommandRow {
  const char* command;
  const char* panel;
};
constexpr std::array<CommandRow, 7> Commands = {{
    {"/clean", "FrmFrameHistory"},
    {"/addlinks", "FrmFrameAllowList"},
    {"/notify", "FrmFrameNotification"},
    {"/graph", "FrmFrameGraph"},
    {"/iesettings", "FrmFrameIESettings"},
    {"/ieplugins", "FrmFrameIEPlugin"},
    {"/options", "FrmFrameSettings"},
}};

bool ShowsUp(HWND panel) {
  return WaitUntil([&] { return IsWindowVisible(panel) != FALSE; }, 10000);
}

void MeasureCommands(const Options& options) {
  Times shown;
  Times bare;
  Probe program(options.program, "", ProgramTitle);
  program.WaitUntilIdle();
  for (const CommandRow& row : Commands) {
    HWND panel = program.Find(row.panel);
    const double before = Now();
    Probe sender(options.program, row.command, ProgramTitle);
    if (!ShowsUp(panel)) std::printf("%s shows no %s\n", row.command, row.panel);
    shown.push_back(Now() - before);
    sender.WaitForEnd();
    bare.push_back(Probe(options.bare, "--exit", "").WaitForEnd());
  }
  PrintRow("command: sender's start to panel shown", Median(shown), "ms", "x1.5",
           {"bare process", Median(bare)});
  program.Close();
}

struct LinkRow {
  const char* link;
  const char* panel;
};
constexpr std::array<LinkRow, 8> Links = {{
    {"frmMain.LnkAdBlocking", "FrmFrameBlockPreferences"},
    {"frmMain.LnkSettings", "FrmFrameSettings"},
    {"frmMain.lnkClean", "FrmFrameHistory"},
    {"frmMain.LnkAllowedList", "FrmFrameAllowList"},
    {"frmMain.LnkNotification", "FrmFrameNotification"},
    {"frmMain.LnkIESettings", "FrmFrameIESettings"},
    {"frmMain.LnkGraph", "FrmFrameGraph"},
    {"frmMain.LnkLog", "FrmFrameLog"},
}};

constexpr int SwitchRounds = 3;

Times MeasureProgramSwitches(const Options& options) {
  Probe program(options.program, "", ProgramTitle);
  program.WaitUntilIdle();
  Times times;
  for (int round = 0; round < SwitchRounds; ++round) {
    for (const LinkRow& row : Links) {
      HWND link = program.Find(row.link);
      HWND panel = program.Find(row.panel);
      const double before = Now();
      PostMessageA(link, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
      PostMessageA(link, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
      if (!ShowsUp(panel)) std::printf("%s shows no %s\n", row.link, row.panel);
      program.RoundTrip();
      times.push_back(Now() - before);
    }
  }
  program.Close();
  return times;
}

Times MeasureBareSwitches(const Options& options) {
  Probe bare(options.bare, "", BareTitle);
  bare.WaitUntilIdle();
  Times times;
  for (UINT turn = 0; turn < SwitchRounds * Links.size(); ++turn) {
    const double before = Now();
    SendMessageA(bare.Main(), WM_APP + 1 + turn % Links.size(), 0, 0);
    bare.RoundTrip();
    times.push_back(Now() - before);
  }
  bare.Close();
  return times;
}

void MeasureSwitches(const Options& options) {
  const Times bare = MeasureBareSwitches(options);
  const Times times = MeasureProgramSwitches(options);
  PrintRow("panel switch", Median(times), "ms", "50", {"bare window program", Median(bare)});
  const auto slowest = std::max_element(times.begin(), times.end()) - times.begin();
  const std::string panel = Links[static_cast<std::size_t>(slowest) % Links.size()].panel;
  PrintRow("panel switch, the slowest (" + panel + ")", Highest(times), "ms", "50",
           {"bare window program", Highest(bare)});
}

constexpr const char* DialogTitle = "  Customize Toolbar - Vantrel";
constexpr const char* BareDialogTitle = "Bare dialog";
constexpr int Openings = 15;

// From the request to a window whose every part is painted; closes the window again. The request
// returns when it has been handled.
double MeasureOpening(const std::function<void()>& request, const char* title) {
  const double before = Now();
  request();
  HWND dialog = FindWindowA(nullptr, title);
  const auto painted = [&] {
    return IsWindowVisible(dialog) != FALSE &&
           FindChild(dialog, [](HWND window) {
             return GetUpdateRect(window, nullptr, FALSE) != FALSE;
           }) == nullptr;
  };
  if (!WaitUntil(painted, 10000)) std::printf("%s does not show\n", title);
  const double time = Now() - before;
  PostMessageA(dialog, WM_CLOSE, 0, 0);
  WaitUntil([&] { return IsWindow(dialog) == FALSE; }, 10000);
  return time;
}

Times MeasureOpenings(const std::function<void()>& request, const char* title) {
  MeasureOpening(request, title);
  Times times;
  for (int opening = 0; opening < Openings; ++opening) {
    times.push_back(MeasureOpening(request, title));
  }
  return times;
}

void MeasureDialogs(const Options& options) {
  Probe bare(options.bare, "", BareTitle);
  bare.WaitUntilIdle();
  const Times bareTimes =
      MeasureOpenings([&] { SendMessageA(bare.Main(), OpenBareDialog, 0, 0); }, BareDialogTitle);
  bare.Close();
  Probe program(options.program, "", ProgramTitle);
  program.WaitUntilIdle();
  HWND button = program.Find("FrmFrameSettings.cmdtoolbar");
  const Times programTimes =
      MeasureOpenings([&] { SendMessageA(button, BM_CLICK, 0, 0); }, DialogTitle);
  program.Close();
  PrintRow("toolbar's dialog opened and painted", Median(programTimes), "ms", "30",
           {"bare dialog of as many controls", Median(bareTimes)});
}

int Run(const Options& options) {
  MeasureStarts(options);
  MeasureCommands(options);
  MeasureSwitches(options);
  MeasureDialogs(options);
  MeasureAllowLists(options.program);
  MeasureIdles(options);
  MeasureUnderLoad(options);
  return 0;
}

constexpr const char* Usage =
    "usage: bench-startup VANTREL.EXE BARE.EXE ENGINE-DOUBLE.EXE [--runs N] [--idle SECONDS]\n";

// Positive numbers only; throws on anything else.
int Number(const std::string& text) {
  const int number = std::atoi(text.c_str());
  if (number <= 0) throw std::invalid_argument("'" + text + "' is no number");
  return number;
}

Options Parse(const std::vector<std::string>& arguments) {
  Options options;
  std::vector<std::string> files;
  for (std::size_t index = 0; index < arguments.size(); ++index) {
    const bool runs = arguments[index] == "--runs";
    if (!runs && arguments[index] != "--idle") {
      files.push_back(arguments[index]);
      continue;
    }
    if (++index == arguments.size()) throw std::invalid_argument("a number is missing");
    (runs ? options.runs : options.idleSeconds) = Number(arguments[index]);
  }
  if (files.size() != 3) throw std::invalid_argument("programs are missing");
  options.program = files[0];
  options.bare = files[1];
  options.engine = files[2];
  return options;
}

}  // namespace
}  // namespace vantrel::bench

int main(int count, char** arguments) {
  using namespace vantrel::bench;
  try {
    return Run(Parse(std::vector<std::string>(arguments + 1, arguments + count)));
  } catch (const std::invalid_argument& error) {
    std::fprintf(stderr, "bench-startup: %s\n%s", error.what(), Usage);
    return 2;
  } catch (const std::runtime_error& error) {
    std::fprintf(stderr, "bench-startup: %s\n", error.what());
    return 1;
  }
}
