#include "statistics/Attach.h"

#include "statistics/DetailLogPanel.h"
#include "statistics/GraphPanel.h"
#include "windows/FrmFrameGraph.h"
#include "windows/FrmFrameLog.h"

namespace vantrel::statistics {

void AttachStatistics(program::Program& program) {
  program.windows.FrmFrameGraph.OnMade(
      [&program](windows::FrmFrameGraph& form) { Attach(program, form); });
  program.windows.FrmFrameLog.OnMade(
      [&program](windows::FrmFrameLog& form) { Attach(program, form); });
}

}  // namespace vantrel::statistics
