#include "contract/Subject.h"

#include <map>
#include <string>
#include <utility>

namespace vantrel::platform::contract {
namespace {

std::map<std::string, int>& CasesByKind() {
  static std::map<std::string, int> counts;
  return counts;
}

// A suite that ran on one side only has compared nothing. A filtered run is a person's choice.
class BothSidesRan : public testing::Environment {
 public:
  void TearDown() override {
    if (testing::GTEST_FLAG(filter) != "*") return;
    EXPECT_GT(CasesByKind()["Memory"], 0);
#ifdef _WIN32
    EXPECT_GT(CasesByKind()["Windows"], 0);
    EXPECT_EQ(CasesByKind()["Windows"], CasesByKind()["Memory"]);
#endif
  }
};

const auto* const counting = testing::AddGlobalTestEnvironment(new BothSidesRan);

void DeleteTree(Registry& registry, const std::string& path) {
  KeyHandle key = 0;
  if (registry.RegOpenKeyExA(HKeyCurrentUser, path, KeyRead, key) != ErrorSuccess) return;
  std::string name;
  while (registry.RegEnumKeyA(key, 0, 300, name) == ErrorSuccess) {
    DeleteTree(registry, path + '\\' + name);
  }
  registry.RegCloseKey(key);
  registry.RegDeleteKeyA(HKeyCurrentUser, path);
}

}  // namespace

ContractTest::ContractTest() : subject_(GetParam().make()), platform_(subject_->Platform()) {
  ++CasesByKind()[GetParam().name];
  SweepKeys();
}

void ContractTest::SweepKeys() { DeleteTree(platform_.registry, OwnKey); }

}  // namespace vantrel::platform::contract
