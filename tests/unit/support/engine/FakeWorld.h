// A world in three maps for the tests of the double. It has no access rights and no case folding:
// names are written as the contract spells them. Keys exist if they were made.
#ifndef VANTREL_TESTS_UNIT_SUPPORT_ENGINE_FAKEWORLD_H_
#define VANTREL_TESTS_UNIT_SUPPORT_ENGINE_FAKEWORLD_H_

#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include "engine/Contract.h"
#include "engine/World.h"

namespace vantrel::engine {

class FakeWorld final : public World {
 public:
  using Name = std::pair<std::string, std::string>;

  std::set<std::string> keys;
  std::map<Name, std::string> texts;
  std::map<Name, std::uint32_t> numbers;
  std::map<std::string, std::string> files;
  bool diskRefuses = false;

  void PutEntry(const std::string& folder) {
    keys.insert(EntryKey);
    texts[{EntryKey, PathValue}] = folder;
  }
  void RemoveEntry() { keys.erase(EntryKey); }

  // As after a first start: everything blocked, the log kept, the counters 0.
  void PutFirstRun() {
    keys.insert({SettingsKey, CountersKey});
    for (const Kind& kind : Kinds) {
      Setting(kind.setting) = 1;
      Counter(kind.counter) = 0;
    }
    Setting(KeepLogValue) = 1;
    Setting(DisabledValue) = 0;
  }
  std::uint32_t& Setting(const std::string& name) { return numbers[{SettingsKey, name}]; }
  std::uint32_t& Counter(const std::string& name) { return numbers[{CountersKey, name}]; }

  std::optional<std::string> ReadText(Root, const std::string& key,
                                      const std::string& name) override {
    const auto found = texts.find({key, name});
    if (found == texts.end() || !keys.contains(key)) return std::nullopt;
    return found->second;
  }
  std::optional<std::uint32_t> ReadNumber(Root, const std::string& key,
                                          const std::string& name) override {
    const auto found = numbers.find({key, name});
    return found == numbers.end() ? std::nullopt : std::optional(found->second);
  }
  bool WriteNumber(const std::string& key, const std::string& name, std::uint32_t number) override {
    if (!keys.contains(key)) return false;
    numbers[{key, name}] = number;
    return true;
  }
  std::optional<std::string> ReadFile(const std::string& path) override {
    const auto found = files.find(path);
    return found == files.end() ? std::nullopt : std::optional(found->second);
  }
  bool AppendToFile(const std::string& folder, const std::string& name,
                    const std::string& bytes) override {
    if (!diskRefuses) files[folder + "\\" + name] += bytes;
    return !diskRefuses;
  }
  std::string LocalTime() override { return "2006-05-04 03:02:01"; }
};

}  // namespace vantrel::engine

#endif  // VANTREL_TESTS_UNIT_SUPPORT_ENGINE_FAKEWORLD_H_
