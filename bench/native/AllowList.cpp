#include "native/AllowList.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <string>
#include <vector>

#include "Report.h"
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
  benchmark::RegisterBenchmark("EditSite10000", EditSite);
  benchmark::RegisterBenchmark("EditSite10000/plain", EditSitePlain);
}

void PrintListMemory() {
  Machine machine;
  machine.program.windows.FrmFrameAllowList.EnsureLoaded();
  const std::string content = FileOf(100000);
  machine.world.files.Put(Path, content);
  const auto before = static_cast<double>(mallinfo2().uordblks);
  Load(machine);
  PrintRow("memory of 100,000 sites", (static_cast<double>(mallinfo2().uordblks) - before) / 1024,
           "KB", "x4", {"their file", static_cast<double>(content.size()) / 1024});
}

}  // namespace vantrel::bench
