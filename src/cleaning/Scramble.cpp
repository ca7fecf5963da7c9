#include "cleaning/Scramble.h"

#include <algorithm>

#include "cleaning/CleaningTarget.h"
#include "fileutil/NumberedFile.h"
#include "text/ErrorTrap.h"

namespace vantrel::cleaning {
namespace {

using program::Program;

constexpr std::uint64_t LastPass = 50000;

// The whole part of `range` times a random number, plus `first`.
char RandomCharacter(RandomNumbers& random, int range, int first) {
  return static_cast<char>(static_cast<int>(range * random.Next()) + first);
}

// One row for what lies inside the file and one for the byte that makes it grow: should the disk
// be full, only the growth fails.
std::vector<Overwrite> SplitAtEnd(const std::string& head, std::uint64_t length) {
  std::vector<Overwrite> rows;
  const std::size_t inside = std::min<std::uint64_t>(head.size(), length);
  if (inside > 0) rows.push_back({0, head.substr(0, inside)});
  if (inside < head.size()) rows.push_back({inside, head.substr(inside)});
  return rows;
}

}  // namespace

// The low bits of such an engine repeat soon: the number is made of the upper 32.
double RandomNumbers::Next() {
  constexpr double Step = 1.0 / 4294967296.0;
  return static_cast<double>(engine_() >> 32U) * Step;
}

std::vector<Overwrite> OverwritesOf(std::uint64_t length, int fileNumber, RandomNumbers& random) {
  const auto passes = static_cast<std::size_t>(std::min(length, LastPass) + 1);
  const auto marked = static_cast<std::size_t>(fileNumber - 1);
  std::string head(passes, '\0');
  char mark = 0;
  for (char& byte : head) {
    mark = RandomCharacter(random, 160, 1);
    byte = RandomCharacter(random, 60, 2);
  }
  // Each pass writes the marked byte anew; only the pass that stands on it itself, and is the
  // last, leaves its own.
  if (marked + 1 < passes) head[marked] = mark;
  std::vector<Overwrite> rows = SplitAtEnd(head, length);
  if (marked >= passes) rows.push_back({marked, std::string(1, mark)});
  return rows;
}

void ScrambleFile(Program& program, const std::string& path) {
  text::ErrorTrap trap;
  trap([&] {
    fileutil::NumberedFile file(program, path, platform::FileAccess::ReadWriteNoLink);
    RandomNumbers random(program.platform.system.GetTickCount());
    for (const Overwrite& row : OverwritesOf(file.Length(), file.Number(), random)) {
      trap([&] { file.WriteAt(row.Offset, row.Bytes); });
    }
  });
}

void ScrambleAndKill(Program& program, const std::string& path) {
  if (!IsCleaningTarget(path)) return;
  ScrambleFile(program, path);
  program.platform.folders.DeleteFileA(path);
}

}  // namespace vantrel::cleaning
