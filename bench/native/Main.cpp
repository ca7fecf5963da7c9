// The core's hot paths against the in-memory Windows, each beside a plain way to the same end on
// the same machine.
#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "Report.h"
#include "native/AllowList.h"
#include "native/Machine.h"
#include "settings/bmdlReg.h"
#include "statistics/RefreshCounters.h"
#include "windows/FrmFrameAllowList.h"
#include "windows/FrmFrameBlockPreferences.h"
#include "windows/FrmFrameGraph.h"

namespace vantrel::bench {
namespace {

constexpr std::array<const char*, 5> Counters = {"Popup", "DHTML", "WebDialog", "BannerAds",
                                                 "Flash"};
constexpr int Rows = 10000;
constexpr int SettingsValues = 16;
constexpr int MasterBoxes = 8;

// The shortest way to a number: open, query, close.
std::uint32_t PlainRead(platform::Registry& registry, const char* name) {
  platform::KeyHandle key = 0;
  std::uint32_t type = 0;
  std::uint32_t number = 0;
  std::array<char, 4> bytes{};
  std::uint32_t length = bytes.size();
  registry.RegOpenKeyExA(platform::HKeyCurrentUser, CountersKey, platform::KeyAllAccess, key);
  registry.RegQueryValueExA(key, name, type, bytes, length);
  registry.RegCloseKey(key);
  std::memcpy(&number, bytes.data(), sizeof number);
  return number;
}

void PlainWrite(platform::Registry& registry, const std::string& name, std::uint32_t number) {
  platform::KeyHandle key = 0;
  std::array<char, 4> bytes{};
  std::memcpy(bytes.data(), &number, sizeof number);
  registry.RegOpenKeyExA(platform::HKeyCurrentUser, SettingsKey, platform::KeyAllAccess, key);
  registry.RegSetValueExA(key, name, platform::RegDword, {bytes.data(), bytes.size()});
  registry.RegCloseKey(key);
}

void ReadValue(benchmark::State& state) {
  Machine machine;
  for (auto _ : state) {
    benchmark::DoNotOptimize(settings::ReadRegistryValue(
        machine.Registry(), platform::HKeyCurrentUser, CountersKey, "Flash"));
  }
}

void ReadValuePlain(benchmark::State& state) {
  Machine machine;
  for (auto _ : state) {
    benchmark::DoNotOptimize(std::to_string(PlainRead(machine.Registry(), "Flash")));
  }
}

// One count has changed since the last tick, as under a busy engine.
void CountOne(Machine& machine, std::uint32_t& count) {
  count = count % 200 + 1;
  machine.world.registry.SetDword(platform::HKeyCurrentUser, CountersKey, "Flash", count);
}

void Tick(benchmark::State& state) {
  Machine machine;
  std::uint32_t count = 0;
  for (auto _ : state) {
    CountOne(machine, count);
    statistics::RefreshCounters(machine.program);
  }
  const auto& shown = machine.program.windows.FrmFrameGraph->txtFlash;
  if (shown.Text() == "0") state.SkipWithError("the tick shows nothing");
}

// Six reads and the texts, with neither list nor totals.
void TickPlain(benchmark::State& state) {
  Machine machine;
  std::uint32_t count = 0;
  auto& graph = *machine.program.windows.FrmFrameGraph;
  const std::array<forms::TextBox*, 5> boxes = {&graph.txtPop, &graph.txtDHTML, &graph.txtWebD,
                                                &graph.txtBanner, &graph.txtFlash};
  for (auto _ : state) {
    CountOne(machine, count);
    PlainRead(machine.Registry(), Counters[0]);
    for (std::size_t counter = 0; counter < Counters.size(); ++counter) {
      boxes[counter]->SetText(std::to_string(PlainRead(machine.Registry(), Counters[counter])));
    }
  }
}

// All eight boxes change at each click: from ticked to clear and back.
void MasterClick(benchmark::State& state) {
  Machine machine;
  auto& panel = *machine.program.windows.FrmFrameBlockPreferences;
  panel.chkAll.SetValue(1);
  const auto boxes = {&panel.chkBPopup, &panel.chkBDhtml, &panel.chkBDialog,    &panel.chkBBanner,
                      &panel.chkBFlash, &panel.chkBAdv,   &panel.chkBDialogBox, &panel.chkBSpyware};
  int wanted = 1;
  for (auto _ : state) {
    panel.chkAll.UserClick();
    wanted = 1 - wanted;
    for (const forms::CheckBox* box : boxes) {
      if (box->Value() != wanted) state.SkipWithError("a box does not follow the master");
    }
  }
}

// Eight saves of the whole key, value by value, and no control.
void MasterClickPlain(benchmark::State& state) {
  Machine machine;
  std::vector<std::string> names;
  for (int value = 0; value < SettingsValues; ++value) names.push_back(std::to_string(value));
  std::uint32_t flag = 0;
  for (auto _ : state) {
    flag = 1 - flag;
    for (int box = 0; box < MasterBoxes; ++box) {
      for (const std::string& name : names) PlainWrite(machine.Registry(), name, flag);
    }
  }
}

void FillList(benchmark::State& state) {
  Machine machine;
  auto& list = machine.program.windows.FrmFrameAllowList->lstGroup;
  for (auto _ : state) {
    list.Clear();
    for (int row = 0; row < Rows; ++row) {
      auto& item = list.Add("M" + std::to_string(row), "site", "a");
      for (const char* key : {"P1", "D1", "W1", "B1", "F1"}) item.AddSubItem(key, "Blocked");
    }
  }
  list.Clear();
}

// The same texts in plain rows, with a map for the keys.
void FillListPlain(benchmark::State& state) {
  for (auto _ : state) {
    std::vector<std::vector<std::string>> rows;
    std::map<std::string, std::size_t> byKey;
    for (int row = 0; row < Rows; ++row) {
      byKey.emplace("M" + std::to_string(row), rows.size());
      rows.push_back({"site", "a"});
      for (const char* key : {"P1", "D1", "W1", "B1", "F1"}) {
        rows.back().push_back(key);
        rows.back().push_back("Blocked");
      }
    }
    benchmark::DoNotOptimize(rows);
  }
}

// A row of the table: a benchmark, and "/plain" behind its name its anchor.
struct Pair {
  const char* name;
  const char* what;
  const char* plainly;
  const char* mark;
};
constexpr Pair Pairs[] = {
    {"ReadRegistryValue", "registry value read, in memory", "open, query, close", ""},
    {"Tick", "tick, in memory", "its reads and texts", ""},
    {"MasterClick", "master box with its eight boxes, in memory", "eight saves", "20"},
    {"List10000", "list filled with 10,000 rows, in memory", "plain rows and a map", ""},
    {"EditSite10000", "one of 10,000 sites edited, in memory", "plain transcription", "x0.01"},
};

class RowReporter : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context& /*context*/) override { return true; }

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.error_occurred) std::fprintf(stderr, "%s\n", run.error_message.c_str());
      // Processor time: others may be at work on the machine.
      milliseconds_[run.benchmark_name()] =
          run.cpu_accumulated_time * 1000 / static_cast<double>(run.iterations);
    }
  }

  void Finalize() override {
    for (const Pair& pair : Pairs) {
      const auto found = milliseconds_.find(pair.name);
      if (found == milliseconds_.end()) continue;
      PrintRow(pair.what, found->second, "ms", pair.mark,
               {pair.plainly, milliseconds_[std::string(pair.name) + "/plain"]});
    }
  }

 private:
  std::map<std::string, double> milliseconds_;
};

void RegisterAll() {
  benchmark::RegisterBenchmark("ReadRegistryValue", ReadValue);
  benchmark::RegisterBenchmark("ReadRegistryValue/plain", ReadValuePlain);
  benchmark::RegisterBenchmark("Tick", Tick);
  benchmark::RegisterBenchmark("Tick/plain", TickPlain);
  benchmark::RegisterBenchmark("MasterClick", MasterClick);
  benchmark::RegisterBenchmark("MasterClick/plain", MasterClickPlain);
  benchmark::RegisterBenchmark("List10000", FillList);
  benchmark::RegisterBenchmark("List10000/plain", FillListPlain);
  RegisterAllowList();
}

}  // namespace
}  // namespace vantrel::bench

int main(int count, char** arguments) {
  benchmark::Initialize(&count, arguments);
  if (benchmark::ReportUnrecognizedArguments(count, arguments)) return 2;
  vantrel::bench::RegisterAll();
  vantrel::bench::RowReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  vantrel::bench::PrintListMemory();
  return 0;
}
