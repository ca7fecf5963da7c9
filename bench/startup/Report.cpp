#include "startup/Report.h"

#include <algorithm>
#include <cstdio>

namespace vantrel::bench {

double Median(Times times) {
  std::sort(times.begin(), times.end());
  const std::size_t middle = times.size() / 2;
  return times.size() % 2 == 1 ? times[middle] : (times[middle - 1] + times[middle]) / 2;
}

double Highest(const Times& times) { return *std::max_element(times.begin(), times.end()); }

void PrintHead() {
  std::printf("%-44s %12s %12s %8s  %s\n", "", "Vantrel", "bare", "ratio", "wanted");
}

void PrintRow(const char* what, double program, double bare, const char* unit, const char* wanted) {
  char ratio[32] = "-";
  if (bare > 0) std::snprintf(ratio, sizeof(ratio), "%.2f", program / bare);
  std::printf("%-44s %9.2f %-2s %9.2f %-2s %8s  %s\n", what, program, unit, bare, unit, ratio,
              wanted);
  std::fflush(stdout);
}

void PrintAlone(const char* what, double value, const char* unit, const char* wanted) {
  std::printf("%-44s %9.2f %-2s %12s %8s  %s\n", what, value, unit, "", "", wanted);
  std::fflush(stdout);
}

}  // namespace vantrel::bench
