// The allow list's acts on long lists, beside the plain way that scans the file for each record.
#ifndef VANTREL_BENCH_NATIVE_ALLOWLIST_H_
#define VANTREL_BENCH_NATIVE_ALLOWLIST_H_

namespace vantrel::bench {

void RegisterAllowList();

// The row of the heap that the rows of 100,000 sites keep.
void PrintListMemory();

}  // namespace vantrel::bench

#endif  // VANTREL_BENCH_NATIVE_ALLOWLIST_H_
