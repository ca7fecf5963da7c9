// The Detail Log panel: the counters as a table, the way to the engine's log file, and the reset
// of both. The log file is never read here.
#ifndef VANTREL_STATISTICS_DETAILLOGPANEL_H_
#define VANTREL_STATISTICS_DETAILLOGPANEL_H_

#include "program/Program.h"

namespace vantrel::statistics {

// Empties the log file and sets the counters to zero, boxes, totals and store; nothing at all if
// there is no log file. The rows follow at the next refresh. An error of the file passes through
// and leaves the counters alone.
void lblResetLog_Click(program::Program& program);

// Shows the Graph panel in this panel's place.
void Command11_Click(program::Program& program);

void Attach(program::Program& program, windows::FrmFrameLog& form);

}  // namespace vantrel::statistics

#endif  // VANTREL_STATISTICS_DETAILLOGPANEL_H_
