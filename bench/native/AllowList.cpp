#include "native/AllowList.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <string>
#include <vector>

#include "allowlist/AllowListPanel.h"
#include "allowlist/SiteList.h"
#include "native/Machine.h"
#include "support/PlainSiteFile.h"
#include "windows/FrmFrameAllowList.h"

namespace vantrel::bench {
namespace {

constexpr const char* Path = "C:\\Program Files\\Vantrel\\Settings\\AllowList.txt";
constexpr int EditedRows = 10000;

test::plain::Site SiteAt(int row) {
  return {"www.site" + std::to_string(row) + ".example", 1, 0, 1, 0, 1};
}

std::string FileOf(int rows) {
  std::string content;
  for (int row = 0; row < rows; ++row) content += test::plain::Line(row / 2 + 1, SiteAt(row));
  return content;
}

void Load(Machine& machine) {
  allowlist::LoadAllowList(machine.program, allowlist::LoadFailure::IsSilent);
}

// The heap in use, per byte of the file, once the rows stand in the list.
void LoadSites(benchmark::State& state) {
  Machine machine;
  machine.program.windows.FrmFrameAllowList.EnsureLoaded();
  const auto rows = static_cast<int>(state.range(0));
  const std::string content = FileOf(rows);
  machine.world.files.Put(Path, content);
  const auto before = static_cast<double>(mallinfo2().uordblks);
  Load(machine);
  state.counters["heap/file"] =
      (static_cast<double>(mallinfo2().uordblks) - before) / static_cast<double>(content.size());
  for (auto _ : state) Load(machine);
  if (machine.program.windows.FrmFrameAllowList->lstGroup.Count() != rows) {
    state.SkipWithError("the list has not all rows");
  }
}

// One row changed: all rows written anew, the list read again.
void EditSite(benchmark::State& state) {
  Machine machine;
  machine.world.files.Put(Path, FileOf(EditedRows));
  Load(machine);
  windows::FrmFrameAllowList& panel = *machine.program.windows.FrmFrameAllowList;
  for (auto _ : state) {
    panel.txtName.SetText("edited.example");
    allowlist::cmdEditAllowed_Click(machine.program);
  }
  if (panel.lblstatus.Caption() != "Edited Successfully") state.SkipWithError("not edited");
}

void EditSitePlain(benchmark::State& state) {
  Machine machine;
  std::vector<test::plain::Site> sites;
  for (int row = 0; row < EditedRows; ++row) sites.push_back(SiteAt(row));
  for (auto _ : state) {
    if (!test::plain::RewriteSiteFile(machine.program.platform.files, Path, sites)) {
      state.SkipWithError("not edited");
    }
    benchmark::DoNotOptimize(test::plain::LoadRows(machine.world.files.Read(Path).value_or("")));
  }
}

}  // namespace

void RegisterAllowList() {
  benchmark::RegisterBenchmark("LoadSites", LoadSites)
      ->Arg(10000)
      ->Arg(100000)
      ->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("EditSite10000", EditSite)->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("EditSite10000/plain", EditSitePlain)->Unit(benchmark::kMillisecond);
}

}  // namespace vantrel::bench
