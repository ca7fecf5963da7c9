// The program with an allow list of very many sites: the list read and shown, a row of it edited.
#ifndef VANTREL_BENCH_STARTUP_ALLOWLIST_H_
#define VANTREL_BENCH_STARTUP_ALLOWLIST_H_

#include <string>

namespace vantrel::bench {

// Prints its rows. The file beside the program is there as before afterwards.
void MeasureAllowLists(const std::string& program);

}  // namespace vantrel::bench

#endif  // VANTREL_BENCH_STARTUP_ALLOWLIST_H_
