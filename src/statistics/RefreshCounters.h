// The refresh of everything that shows the counters: boxes, totals and the rows of the detail log.
// The Welcome panel runs it every two seconds, the Graph and Detail Log panels when they are made.
#ifndef VANTREL_STATISTICS_REFRESHCOUNTERS_H_
#define VANTREL_STATISTICS_REFRESHCOUNTERS_H_

#include "program/Program.h"

namespace vantrel::statistics {

// GetBlockLog, then the five rows. An error ends the refresh with a plain box of its description;
// while such a box is up a further error is silent, so that boxes never pile up.
void RefreshCounters(program::Program& program);

namespace FrmFrameLog {

// The detail log's own: it begins with the GetBlockLog of that panel instead.
void RefreshCounters(program::Program& program);

}  // namespace FrmFrameLog

}  // namespace vantrel::statistics

#endif  // VANTREL_STATISTICS_REFRESHCOUNTERS_H_
