#include "statistics/GraphPanel.h"

#include "program/PanelHosting.h"
#include "statistics/BlockLog.h"
#include "statistics/RefreshCounters.h"
#include "windows/FrmFrameGraph.h"
#include "windows/FrmFrameLog.h"

namespace vantrel::statistics {

using program::Program;

void DrawBlockGraph(Program& program) {
  windows::FrmFrameGraph& panel = *program.windows.FrmFrameGraph;
  int column = 0;
  for (const Counter& counter : Counters) {
    panel.MSChart1.SetColumn(++column);
    panel.MSChart1.SetData((panel.*counter.Box).Text());
  }
}

void Command12_Click(Program& program) {
  program.windows.FrmFrameGraph->Hide();
  program.windows.FrmFrameLog->Show();
}

void Attach(Program& program, windows::FrmFrameGraph& form) {
  // The chart is drawn here alone; the boxes go on following the counters.
  form.Load = [&program, &form] {
    program::HostPanel(program, form);
    RefreshCounters(program);
    DrawBlockGraph(program);
  };
  form.Command12.Click = [&program] { Command12_Click(program); };
}

}  // namespace vantrel::statistics
