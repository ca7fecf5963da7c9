// The rows that a benchmark prints for bench/table: what was measured and its mark, beside the
// plain way to the same end.
#ifndef VANTREL_BENCH_REPORT_H_
#define VANTREL_BENCH_REPORT_H_

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace vantrel::bench {

using Times = std::vector<double>;

// Of at least one time.
inline double Median(Times times) {
  std::sort(times.begin(), times.end());
  const std::size_t middle = times.size() / 2;
  return times.size() % 2 == 1 ? times[middle] : (times[middle - 1] + times[middle]) / 2;
}

inline double Highest(const Times& times) { return *std::max_element(times.begin(), times.end()); }

// The plain way and what it came to, in the row's unit.
struct Anchor {
  std::string what;
  double value = 0;
};

// `mark` is what is wanted: "x1.2" for at most 1.2 times the anchor, "50" for at most 50 of the
// unit,
// "" where nothing is.
inline void PrintRow(const std::string& what, double value, const char* unit, const char* mark,
                     const Anchor& anchor = {}) {
  std::printf("%s\t%.6g\t%s\t%s\t%s\t%.6g\n", what.c_str(), value, unit, mark, anchor.what.c_str(),
              anchor.value);
  std::fflush(stdout);
}

}  // namespace vantrel::bench

#endif  // VANTREL_BENCH_REPORT_H_
