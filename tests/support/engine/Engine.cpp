#include "engine/Engine.h"

#include <algorithm>
#include <numeric>
#include <ostream>
#include <utility>

namespace vantrel::engine {
namespace {

constexpr std::uint32_t WorkingPause = 100;
constexpr std::uint32_t WaitingPause = 250;
constexpr std::uint64_t OneBlock = 1000;  // thousandths

// The page when no --site is given: it stands in no allow list.
constexpr const char* AnyPage = "(any page)";

}  // namespace

Engine::Engine(Options options, World& world, std::ostream& output)
    : options_(std::move(options)), world_(world), output_(output) {}

void Engine::Step(std::uint64_t now) {
  if (!start_) {
    start_ = last_ = now;
    Tell("waiting for the engine's entry");
  }
  const bool knewEntry = entry_;
  if (LookForEntry()) {
    if (!knewEntry) last_ = now;
    const auto targets = Targets();
    TellTargets(targets);
    CountDue(TakeDue(now, targets.size()), targets);
  }
  last_ = now;
  if (now - *start_ >= std::uint64_t{options_.seconds} * 1000) finished_ = true;
}

std::uint32_t Engine::Pause() const { return entry_ ? WorkingPause : WaitingPause; }

bool Engine::LookForEntry() {
  // A key without its folder is an entry that is being written or deleted.
  const std::string folder = world_.ReadText(Root::LocalMachine, EntryKey, PathValue).value_or("");
  const bool there = !folder.empty();
  if (there && folder != folder_) MakeLog(folder);
  if (there) folder_ = folder;
  if (there == entry_) return there;
  entry_ = there;
  toldTargets_ = "?";
  credit_ = 0;
  seenEntry_ = seenEntry_ || there;
  Tell(there ? "entry found, folder '" + folder_ + "'" : "entry gone, waiting for it");
  return there;
}

bool Engine::IsOn(const char* setting) const {
  return world_.ReadNumber(Root::CurrentUser, SettingsKey, setting).value_or(0) != 0;
}

bool Engine::Resting() const { return options_.obeyDisabled && IsOn(DisabledValue); }

std::string Engine::AllowListPath() const { return folder_ + "\\" + AllowListFile; }

std::vector<Engine::Target> Engine::Targets() const {
  std::vector<Target> targets;
  if (Resting()) return targets;
  std::array<bool, Kinds.size()> blocked{};
  for (std::size_t kind = 0; kind < Kinds.size(); ++kind) blocked[kind] = IsOn(Kinds[kind].setting);
  std::vector<std::string> sites = options_.sites;
  std::vector<AllowedSite> list;
  if (sites.empty()) {
    sites.push_back(AnyPage);
  } else {
    list = ParseAllowList(world_.ReadFile(AllowListPath()).value_or(""));
  }
  for (const std::string& site : sites) {
    const AllowedKinds allowed = AllowedOn(list, site);
    for (std::size_t kind = 0; kind < Kinds.size(); ++kind) {
      if (blocked[kind] && !allowed[kind]) targets.push_back({kind, site});
    }
  }
  return targets;
}

// At most a second's worth: whoever was asleep does not make up for it in one burst.
std::uint64_t Engine::TakeDue(std::uint64_t now, std::size_t targets) {
  if (options_.once) return targets;
  credit_ += (now - last_) * options_.rate;
  credit_ = std::min(credit_, std::uint64_t{options_.rate} * OneBlock);
  std::uint64_t due = credit_ / OneBlock;
  credit_ %= OneBlock;
  if (options_.total > 0) {
    const auto sofar = std::accumulate(counted_.begin(), counted_.end(), std::uint64_t{0});
    due = std::min(due, options_.total - sofar);
  }
  return due;
}

void Engine::CountDue(std::uint64_t due, const std::vector<Target>& targets) {
  std::string lines;
  for (std::uint64_t block = 0; block < due && !targets.empty(); ++block) {
    const Target& target = targets[next_++ % targets.size()];
    if (!Count(target)) continue;
    lines += world_.LocalTime() + " blocked " + Kinds[target.kind].counter + " on " + target.site +
             "\r\n";
    if (options_.verbose) Tell(std::string(Kinds[target.kind].counter) + " on " + target.site);
  }
  if (!lines.empty() && IsOn(KeepLogValue)) AppendLog(lines);
  const auto sofar = std::accumulate(counted_.begin(), counted_.end(), std::uint64_t{0});
  if (options_.once && !targets.empty()) finished_ = true;
  if (options_.total > 0 && sofar >= options_.total) finished_ = true;
}

// Reads anew each time: the control panel may have zeroed the counter since the last block.
bool Engine::Count(const Target& target) {
  const char* counter = Kinds[target.kind].counter;
  const std::uint32_t stored =
      world_.ReadNumber(Root::CurrentUser, CountersKey, counter).value_or(0);
  if (stored == options_.limit) {
    ++counted_[target.kind];
    return true;
  }
  // A counter past the limit is brought back to it.
  const std::uint32_t next = std::min(stored, options_.limit - 1) + 1;
  if (!world_.WriteNumber(CountersKey, counter, next)) return false;
  ++counted_[target.kind];
  return true;
}

// Whether lines are wanted or not: without the file the control panel resets nothing.
void Engine::MakeLog(const std::string& folder) {
  if (!world_.AppendToFile(folder, LogFile, "")) Tell("log.txt cannot be made");
}

void Engine::AppendLog(const std::string& lines) {
  const bool written = world_.AppendToFile(folder_, LogFile, lines);
  if (!written && !logFailed_) Tell("log.txt cannot be written, going on without it");
  logFailed_ = !written;
}

void Engine::TellTargets(const std::vector<Target>& targets) {
  std::string told;
  for (const Target& target : targets) {
    told += std::string(told.empty() ? "" : ", ") + Kinds[target.kind].counter;
    if (!options_.sites.empty()) told += " on " + target.site;
  }
  if (Resting()) told = "nothing, GDisabled is 1";
  if (told.empty()) told = "nothing";
  if (told == toldTargets_) return;
  toldTargets_ = told;
  Tell("blocking " + told);
}

void Engine::Tell(const std::string& line) const {
  output_ << "engine-double: " << line << "\n" << std::flush;
}

void Engine::PrintSummary() const {
  std::string line = "counted";
  for (std::size_t kind = 0; kind < Kinds.size(); ++kind) {
    line += std::string(kind == 0 ? " " : ", ") + Kinds[kind].counter + " " +
            std::to_string(counted_[kind]);
  }
  Tell(line);
}

}  // namespace vantrel::engine
