#include "cleaning/Scramble.h"

#include <algorithm>
#include <string_view>
#include <utility>

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

// What of a row lies inside a file of `length` bytes.
std::string_view InsideOf(const Overwrite& row, std::uint64_t length) {
  const std::uint64_t room = length > row.Offset ? length - row.Offset : 0;
  return std::string_view(row.Bytes).substr(0, std::min<std::uint64_t>(row.Bytes.size(), room));
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
  std::vector<Overwrite> rows{{0, std::move(head)}};
  if (marked >= passes) rows.push_back({marked, std::string(1, mark)});
  return rows;
}

void ScrambleFile(Program& program, const std::string& path) {
  text::ErrorTrap trap;
  trap([&] {
    fileutil::NumberedFile file(program, path, platform::FileAccess::ReadWriteNoLink);
    RandomNumbers random(program.platform.system.GetTickCount());
    const std::uint64_t length = file.Length();
    for (const Overwrite& row : OverwritesOf(length, file.Number(), random)) {
      if (trap([&] { file.WriteAt(row.Offset, row.Bytes); })) continue;
      // On a full disk a file cannot grow; what is in it is overwritten all the same.
      trap([&] { file.WriteAt(row.Offset, InsideOf(row, length)); });
    }
  });
}

void ScrambleAndKill(Program& program, const std::string& path) {
  if (!IsCleaningTarget(path)) return;
  ScrambleFile(program, path);
  program.platform.folders.DeleteFileA(path);
}

}  // namespace vantrel::cleaning
