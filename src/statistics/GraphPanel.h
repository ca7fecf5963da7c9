// The Graph panel: the counters in coloured boxes, their total, and a chart that keeps the numbers
// of the panel's creation.
#ifndef VANTREL_STATISTICS_GRAPHPANEL_H_
#define VANTREL_STATISTICS_GRAPHPANEL_H_

#include "program/Program.h"

namespace vantrel::statistics {

// Gives the chart's five columns the texts of the boxes; an empty box makes an empty column.
void DrawBlockGraph(program::Program& program);

// Shows the Detail Log in this panel's place.
void Command12_Click(program::Program& program);

void Attach(program::Program& program, windows::FrmFrameGraph& form);

}  // namespace vantrel::statistics

#endif  // VANTREL_STATISTICS_GRAPHPANEL_H_
