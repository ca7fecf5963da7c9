// What the fuzzers share: an input taken apart from its front, and a check that ends the run.
#ifndef VANTREL_TESTS_FUZZ_FUZZ_H_
#define VANTREL_TESTS_FUZZ_FUZZ_H_

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace vantrel::fuzz {

class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : bytes_(data, data + size) {}

  // 0 behind the end.
  std::uint8_t Byte() {
    const std::string taken = Take(1);
    return taken.empty() ? 0 : static_cast<std::uint8_t>(taken[0]);
  }
  // A text whose length stands before it in a byte.
  std::string Text() { return Take(Byte()); }
  std::string Rest() { return Take(bytes_.size()); }

 private:
  std::string Take(std::size_t count) {
    count = std::min(count, bytes_.size());
    const std::string taken = bytes_.substr(0, count);
    bytes_.erase(0, count);
    return taken;
  }

  std::string bytes_;
};

inline void Check(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

}  // namespace vantrel::fuzz

#endif  // VANTREL_TESTS_FUZZ_FUZZ_H_
