// The engine's part of the contract, as a machine that is moved by looks at the world: it waits for
// its entry, reads what is blocked, counts, and keeps the log. It sleeps nowhere and knows no clock
// but the one it is given.
#ifndef VANTREL_TESTS_SUPPORT_ENGINE_ENGINE_H_
#define VANTREL_TESTS_SUPPORT_ENGINE_ENGINE_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "engine/AllowList.h"
#include "engine/Options.h"
#include "engine/World.h"

namespace vantrel::engine {

class Engine {
 public:
  // The world and the output must outlive the engine.
  Engine(Options options, World& world, std::ostream& output);

  // One look at the world and the blocks that are due since the last one. `now` is in milliseconds
  // since any moment before the first look and never goes back.
  void Step(std::uint64_t now);

  // True once the time is over or everything that was asked for is counted.
  bool Finished() const { return finished_; }
  // How long the caller may rest until the next look, in milliseconds.
  std::uint32_t Pause() const;

  // Prints what was counted.
  void PrintSummary() const;
  // 0 if the entry was ever there, else 1.
  int ExitCode() const { return seenEntry_ ? 0 : 1; }

 private:
  // A block that the settings and the allow list let happen.
  struct Target {
    std::size_t kind;
    std::string site;
  };

  bool LookForEntry();
  bool IsOn(const char* setting) const;
  bool Resting() const;
  std::vector<Target> Targets() const;
  std::string AllowListPath() const;
  std::uint64_t TakeDue(std::uint64_t now, std::size_t targets);
  void CountDue(std::uint64_t due, const std::vector<Target>& targets);
  bool Count(const Target& target);
  void MakeLog(const std::string& folder);
  void AppendLog(const std::string& lines);
  void TellTargets(const std::vector<Target>& targets);
  void Tell(const std::string& line) const;

  const Options options_;
  World& world_;
  std::ostream& output_;

  std::optional<std::uint64_t> start_;
  std::uint64_t last_ = 0;
  std::uint64_t credit_ = 0;  // in thousandths of a block
  std::size_t next_ = 0;
  std::string folder_;
  bool entry_ = false;
  bool seenEntry_ = false;
  bool finished_ = false;
  bool logFailed_ = false;
  std::string toldTargets_ = "?";
  std::array<std::uint64_t, Kinds.size()> counted_{};
};

}  // namespace vantrel::engine

#endif  // VANTREL_TESTS_SUPPORT_ENGINE_ENGINE_H_
