#include "statistics/RefreshCounters.h"

#include <string>

#include "statistics/BlockLog.h"
#include "text/ScopedFlag.h"
#include "windows/FrmFrameGraph.h"
#include "windows/FrmFrameLog.h"

namespace vantrel::statistics {
namespace {

using program::Program;

// What the detail log shows for a counter: the text of its box.
const std::string& CountText(Program& program, const Counter& counter) {
  return ((*program.windows.FrmFrameGraph).*counter.Box).Text();
}

void AddRows(Program& program, forms::ListView& list) {
  list.Clear();
  for (const Counter& counter : Counters) {
    const std::string count = CountText(program, counter);
    list.Add(counter.RowKey, counter.RowLabel, "").AddSubItem(counter.CountKey, count);
  }
}

// Only the counts that differ are touched, so that nothing else is repainted.
void UpdateRows(Program& program, forms::ListView& list) {
  int row = 0;
  for (const Counter& counter : Counters) {
    list.Item(++row).SetSubText(1, CountText(program, counter));
  }
}

// The rows come out as freshly added ones, with the first selected.
void ShowRows(Program& program) {
  // A panel that is made now fills the list itself, before anybody looks at it here.
  program.windows.FrmFrameGraph.EnsureLoaded();
  forms::ListView& list = program.windows.FrmFrameLog->lstLog;
  if (list.Count() == static_cast<int>(Counters.size())) {
    UpdateRows(program, list);
    list.Select(1);
  } else {
    AddRows(program, list);
  }
}

void ShowRefreshError(Program& program, const text::RuntimeError& error) {
  if (program.RefreshErrorShown) return;
  const text::ScopedFlag shown(program.RefreshErrorShown);
  program.MsgBox(error.Description());
}

void Refresh(Program& program, void (*read)(Program&)) {
  try {
    read(program);
    ShowRows(program);
  } catch (const text::RuntimeError& error) {
    ShowRefreshError(program, error);
  }
}

}  // namespace

void RefreshCounters(Program& program) { Refresh(program, GetBlockLog); }

void FrmFrameLog::RefreshCounters(Program& program) { Refresh(program, FrmFrameLog::GetBlockLog); }

}  // namespace vantrel::statistics
