// The allow list's acts on long lists, beside the plain way that scans the file for each record.
#ifndef VANTREL_BENCH_NATIVE_ALLOWLIST_H_
#define VANTREL_BENCH_NATIVE_ALLOWLIST_H_

namespace vantrel::bench {

void RegisterAllowList();

}  // namespace vantrel::bench

#endif  // VANTREL_BENCH_NATIVE_ALLOWLIST_H_
