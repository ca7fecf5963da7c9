// Overwriting files with random characters before they go.
#ifndef VANTREL_CLEANING_SCRAMBLE_H_
#define VANTREL_CLEANING_SCRAMBLE_H_

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "program/Program.h"

namespace vantrel::cleaning {

// Random numbers from 0 up to but not including 1. A large file takes 100,002 of them, so that
// their modulus is one that costs no division: 2 to the power of 64. The multiplier and the
// increment are Knuth's.
class RandomNumbers {
 public:
  explicit RandomNumbers(std::uint32_t seed) : engine_(seed) {}
  double Next();

 private:
  std::linear_congruential_engine<std::uint64_t, 6364136223846793005U, 1442695040888963407U, 0>
      engine_;
};

// What the passes over a file leave: bytes at places, in the order of writing.
struct Overwrite {
  std::uint64_t Offset = 0;  // 0-based
  std::string Bytes;
};

// The bytes that at most 50,001 passes leave in a file of `length` bytes that is open under the
// number. Pass i, from 0 to the length inclusive, writes a character of code 1 to 160 at the
// position that equals the file number, which is meant, and then one of code 2 to 61 at position
// i + 1, counted from 1. A file shorter than the limit grows by one byte.
std::vector<Overwrite> OverwritesOf(std::uint64_t length, int fileNumber, RandomNumbers& random);

// Overwrites an existing file in place, never what a link leads to. Errors are ignored.
void ScrambleFile(program::Program& program, const std::string& path);

// Overwrites the file and deletes it, of a link the link alone; no effect on what is no cleaning
// target. Errors are ignored.
void ScrambleAndKill(program::Program& program, const std::string& path);

}  // namespace vantrel::cleaning

#endif  // VANTREL_CLEANING_SCRAMBLE_H_
