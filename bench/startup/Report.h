// The rows that are printed: what was measured, its unit and what is wanted of it, beside the bare
// program's where there is one.
#ifndef VANTREL_BENCH_STARTUP_REPORT_H_
#define VANTREL_BENCH_STARTUP_REPORT_H_

#include <vector>

namespace vantrel::bench {

using Times = std::vector<double>;

// Of at least one time.
double Median(Times times);
double Highest(const Times& times);

void PrintHead();
void PrintRow(const char* what, double program, double bare, const char* unit, const char* wanted);
void PrintAlone(const char* what, double value, const char* unit, const char* wanted);

}  // namespace vantrel::bench

#endif  // VANTREL_BENCH_STARTUP_REPORT_H_
