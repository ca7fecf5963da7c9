// Binds the statistics to their panels.
#ifndef VANTREL_STATISTICS_ATTACH_H_
#define VANTREL_STATISTICS_ATTACH_H_

#include "program/Program.h"

namespace vantrel::statistics {

// Binds the Graph and Detail Log panels' behaviour, whenever they are made.
void AttachStatistics(program::Program& program);

}  // namespace vantrel::statistics

#endif  // VANTREL_STATISTICS_ATTACH_H_
