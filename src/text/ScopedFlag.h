// A flag that is up while something runs, however that ends.
#ifndef VANTREL_TEXT_SCOPEDFLAG_H_
#define VANTREL_TEXT_SCOPEDFLAG_H_

namespace vantrel::text {

// Raises the flag, and lowers it at the end of its own life, also where it was up before. The flag
// must outlive it.
class ScopedFlag {
 public:
  explicit ScopedFlag(bool& flag) : flag_(flag) { flag_ = true; }
  ~ScopedFlag() { flag_ = false; }
  ScopedFlag(const ScopedFlag&) = delete;
  ScopedFlag& operator=(const ScopedFlag&) = delete;

 private:
  bool& flag_;
};

}  // namespace vantrel::text

#endif  // VANTREL_TEXT_SCOPEDFLAG_H_
