// What a test learns and steers about the calls that a process makes of the in-memory Windows: a
// trace of them as text lines, and a plan of which of them shall fail. CallNames.h has their names.
#ifndef VANTREL_PLATFORM_MEMORY_CALLS_H_
#define VANTREL_PLATFORM_MEMORY_CALLS_H_

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel::platform::memory {

// One line a call, in the order of the calls' ends: the name, the arguments, and after " -> " the
// result of a call that has one, e.g. "RegOpenKeyExA HKCU\Software\Qorvel 0xF003F -> 0". Nothing
// is recorded before Start, and no line is made; asking for lines then is a misuse.
class Trace {
 public:
  void Start() { records_ = true; }
  void Stop() { records_ = false; }
  bool Records() const { return records_; }

  // No effect on a trace that does not record.
  void Add(const std::string& line);
  void Clear() { lines_.clear(); }

  const std::vector<std::string>& Lines() const;
  // The lines whose call has the name.
  std::vector<std::string> LinesOf(const std::string& name) const;
  // The names alone.
  std::vector<std::string> Names() const;

 private:
  bool records_ = false;
  std::vector<std::string> lines_;
};

// Counts every call of one process and says which fail. A failing call has no effect and gives
// what it gives in the system when it fails: the error code where it returns one, else false, 0 or
// nothing; a listing may give entries first. Calls that cannot fail are counted and succeed. A name
// that no call has is a misuse.
class FaultPlan {
 public:
  FaultPlan();

  // The n-th call from now on, counted from 1, whatever its name.
  void FailNthCall(std::size_t n, std::int32_t errorCode);
  // The n-th call of this name from now on.
  void FailCall(std::string_view name, std::size_t n, std::int32_t errorCode);
  // Every call of this name.
  void FailEvery(std::string_view name, std::int32_t errorCode);
  // How many entries a listing of a folder gives before it fails; none at first.
  void SetEntriesBeforeFailure(std::size_t entries) { entriesBeforeFailure_ = entries; }
  std::size_t EntriesBeforeFailure() const { return entriesBeforeFailure_; }
  // Forgets the plan; the counters go on.
  void Clear();

  // All calls so far, and those of one name.
  std::size_t Calls() const { return calls_; }
  std::size_t CallsOf(std::string_view name) { return Of(name).calls; }
  // How many calls were made to fail.
  std::size_t Failed() const { return failed_; }

  // Counts a call; its error code if it shall fail.
  std::optional<std::int32_t> Count(std::string_view name);

 private:
  struct OneName {
    std::size_t calls = 0;
    std::map<std::size_t, std::int32_t> failing;  // by number
    std::optional<std::int32_t> failingEvery;
  };

  OneName& Of(std::string_view name);

  std::size_t calls_ = 0;
  std::size_t failed_ = 0;
  std::size_t entriesBeforeFailure_ = 0;
  std::map<std::size_t, std::int32_t> failing_;  // by number
  std::map<std::string_view, OneName> names_;
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_CALLS_H_
