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
  bool Empty() const { return bytes_.empty(); }
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

// The bytes over and over, until they are longer than the program's buffer for a value.
inline std::string BeyondTheBuffer(const std::string& bytes) {
  std::string longer = bytes.empty() ? "0" : bytes;
  while (longer.size() <= 1024) longer += longer;
  return longer;
}

// One input in `many`, chosen by its bytes: for a check that takes its time. A fuzzer that likes
// what the check reaches cannot steer it.
inline bool IsOneIn(std::size_t many, const std::string& bytes) {
  std::uint32_t hash = 2166136261U;
  for (const char c : bytes) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
  return hash % many == 0;
}

inline void Check(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

}  // namespace vantrel::fuzz

#endif  // VANTREL_TESTS_FUZZ_FUZZ_H_
