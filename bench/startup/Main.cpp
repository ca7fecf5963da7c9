// Measures Vantrel.exe beside the bare window program, in one run and in turn: start to idle, the
// idle tick, a command from its sender's start to its panel, a panel switch, the toolbar's dialog,
// long allow lists. Prints medians and ratios.
#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "startup/AllowList.h"
#include "startup/Probe.h"
#include "startup/Report.h"

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
constexpr double WantedSize = 1.5 * 1024 * 1024;

struct StartTimes {
  Times idle;
  Times processor;
};

void MeasureStart(const std::string& executable, const char* title, StartTimes& times) {
  Probe probe(executable, "", title);
  times.idle.push_back(probe.WaitUntilIdle());
  // Painting comes after the messages: it is over when the next half second brings nothing more.
  double before = -1;
  WaitUntil(
      [&] {
        Sleep(200);
        const double now = probe.ProcessorTime();
        const bool still = now == before;
        before = now;
        return still;
      },
      5000);
  times.processor.push_back(probe.ProcessorTime());
  probe.Close();
}

void MeasureStarts(const Options& options) {
  StartTimes program;
  StartTimes bare;
  StartTimes warmUp;
  MeasureStart(options.bare, BareTitle, warmUp);
  MeasureStart(options.program, ProgramTitle, warmUp);
  for (int run = 0; run < options.runs; ++run) {
    MeasureStart(options.bare, BareTitle, bare);
    MeasureStart(options.program, ProgramTitle, program);
  }
  PrintRow("start to idle", Median(program.idle), Median(bare.idle), "ms", "<= 1.5");
  PrintRow("processor time of a start, with painting", Median(program.processor),
           Median(bare.processor), "ms", "");
}

// Processor time a second over the given time, in milliseconds; the slowest answer in it.
struct IdleResult {
  double perSecond = 0;
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
  result.perSecond = (probe.ProcessorTime() - before) * 1000 / (Now() - start);
  return result;
}

IdleResult MeasureIdleOf(const std::string& executable, const char* title, int seconds) {
  Probe probe(executable, "", title);
  probe.WaitUntilIdle();
  const IdleResult result = MeasureIdle(probe, seconds);
  probe.Close();
  return result;
}

// A tick comes every 2 seconds.
double PerTick(const IdleResult& idle) { return idle.perSecond * 2; }

void MeasureTicks(const Options& options) {
  const auto bare = MeasureIdleOf(options.bare, BareTitle, options.idleSeconds);
  const auto program = MeasureIdleOf(options.program, ProgramTitle, options.idleSeconds);
  PrintRow("processor time of an idle tick", PerTick(program), PerTick(bare), "ms", "");
  PrintAlone("idle, share of a core", program.perSecond / 10, "%", "< 1 %");
}

void MeasureUnderLoad(const Options& options) {
  if (options.engine.empty()) return;
  Probe program(options.program, "", ProgramTitle);
  program.WaitUntilIdle();
  Probe engine(options.engine, "--rate 1000 --seconds " + std::to_string(options.idleSeconds + 10),
               "");
  const auto idle = MeasureIdle(program, options.idleSeconds);
  PrintAlone("1000 counts a second, share of a core", idle.perSecond / 10, "%", "< 1 %");
  PrintAlone("1000 counts a second, slowest answer", idle.slowestAnswer, "ms", "< 100 ms");
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
  Times ended;
  Times bare;
  Probe program(options.program, "", ProgramTitle);
  program.WaitUntilIdle();
  for (const CommandRow& row : Commands) {
    HWND panel = program.Find(row.panel);
    const double before = Now();
    Probe sender(options.program, row.command, ProgramTitle);
    if (!ShowsUp(panel)) std::printf("%s shows no %s\n", row.command, row.panel);
    shown.push_back(Now() - before);
    ended.push_back(sender.WaitForEnd());
    bare.push_back(Probe(options.bare, "--exit", "").WaitForEnd());
  }
  PrintRow("command: sender's start to panel shown", Median(shown), Median(bare), "ms", "<= 2");
  PrintRow("command: sender's start to its end", Median(ended), Median(bare), "ms", "");
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

void MeasureProgramSwitches(const Probe& program, Times& times) {
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

void MeasureBareSwitches(const Probe& bare, Times& times) {
  for (UINT panel = 1; panel <= Links.size(); ++panel) {
    const double before = Now();
    SendMessageA(bare.Main(), WM_APP + panel, 0, 0);
    bare.RoundTrip();
    times.push_back(Now() - before);
  }
}

void MeasureSwitches(const Options& options) {
  Times programTimes;
  Times bareTimes;
  {
    Probe bare(options.bare, "", BareTitle);
    bare.WaitUntilIdle();
    for (int round = 0; round < 3; ++round) MeasureBareSwitches(bare, bareTimes);
    bare.Close();
  }
  Probe program(options.program, "", ProgramTitle);
  program.WaitUntilIdle();
  for (int round = 0; round < 3; ++round) MeasureProgramSwitches(program, programTimes);
  PrintRow("panel switch", Median(programTimes), Median(bareTimes), "ms", "< 50 ms");
  PrintRow("panel switch, the slowest", Highest(programTimes), Highest(bareTimes), "ms", "< 50 ms");
  program.Close();
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
  PrintRow("toolbar dialog, opened and painted", Median(programTimes), Median(bareTimes), "ms",
           "<= 30 ms");
  PrintRow("toolbar dialog, the slowest", Highest(programTimes), Highest(bareTimes), "ms", "");
}

double FileSize(const std::string& path) {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &data);
  return data.nFileSizeLow;
}

void PrintSize(const Options& options) {
  const double size = FileSize(options.program);
  PrintAlone("size of Vantrel.exe", size / 1024, "KB", size < WantedSize ? "< 1536 KB" : "TOO BIG");
}

int Run(const Options& options) {
  PrintHead();
  PrintSize(options);
  MeasureStarts(options);
  MeasureCommands(options);
  MeasureSwitches(options);
  MeasureDialogs(options);
  MeasureAllowLists(options.program);
  MeasureTicks(options);
  MeasureUnderLoad(options);
  return 0;
}

constexpr const char* Usage =
    "usage: bench-startup VANTREL.EXE BARE.EXE [ENGINE-DOUBLE.EXE] [--runs N] [--idle SECONDS]\n";

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
  if (files.size() < 2 || files.size() > 3) throw std::invalid_argument("programs are missing");
  options.program = files[0];
  options.bare = files[1];
  if (files.size() == 3) options.engine = files[2];
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
