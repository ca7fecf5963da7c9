// Settings and counters of any type and bytes under a running program: a load leaves each box with
// what it had or what is stored, up to the first value that cannot be read, and is silent; a
// refresh of the counters shows one box at most.
#include <optional>
#include <utility>
#include <vector>

#include "fuzz/Fuzz.h"
#include "settings/bmdlReg.h"
#include "shell/Attach.h"
#include "shell/Startup.h"
#include "statistics/RefreshCounters.h"
#include "support/ProgramFixture.h"
#include "support/SettingBoxes.h"
#include "text/Numbers.h"
#include "text/RuntimeError.h"

namespace {

using namespace vantrel;
using fuzz::Check;
using platform::HKeyCurrentUser;
using test::ExpectedSetting;
using test::ExpectedSettings;

std::string KeyOf(const ExpectedSetting& setting) {
  return std::string(test::RootKey) + "\\" + setting.Key;
}

// One started copy for all inputs: a program runs for days.
struct Running {
  Running() {
    test::FillMachine(world);
    copy.process.AnswerBox = [](const platform::memory::Box&) { return platform::AnswerOk; };
    shell::AttachProgram(copy.program);
    shell::Start(copy.program);
    copy.process.Trace().Stop();
    for (const ExpectedSetting& setting : ExpectedSettings) {
      if (test::HasBox(setting)) boxes.push_back(&test::BoxOf(copy.Windows(), setting));
    }
  }
  std::vector<int> States() const {
    std::vector<int> states;
    for (const forms::CheckBox* box : boxes) states.push_back(box->Value());
    return states;
  }

  platform::memory::World world;
  test::Copy copy{world};
  std::vector<forms::CheckBox*> boxes;
};

// What the input stores, until the object dies.
class Planted {
 public:
  Planted(Running& running, fuzz::Input& input) : registry_(running.world.registry) {
    while (!input.Empty()) {
      const ExpectedSetting& setting = ExpectedSettings[input.Byte() % std::size(ExpectedSettings)];
      const std::uint8_t type = input.Byte() % 12;
      before_.push_back({&setting, registry_.Get(HKeyCurrentUser, KeyOf(setting), setting.Name)});
      registry_.Set(HKeyCurrentUser, KeyOf(setting), setting.Name, type, input.Text());
    }
  }
  ~Planted() {
    for (auto it = before_.rbegin(); it != before_.rend(); ++it) {
      const auto& [setting, value] = *it;
      registry_.RemoveValue(HKeyCurrentUser, KeyOf(*setting), setting->Name);
      if (value) {
        registry_.Set(HKeyCurrentUser, KeyOf(*setting), setting->Name, value->type, value->data);
      }
    }
  }
  Planted(const Planted&) = delete;
  Planted& operator=(const Planted&) = delete;

 private:
  platform::memory::RegistryTree& registry_;
  std::vector<std::pair<const ExpectedSetting*, std::optional<platform::memory::RegistryValue>>>
      before_;
};

// The sound's name sets its box as well, before the box's own value is read.
bool FollowsTheSound(const ExpectedSetting& setting, int state) {
  return std::string(setting.Name) == "ShowSound" && state != forms::Grayed;
}

bool Holds(Running& running, const ExpectedSetting& setting, int state) {
  try {
    return state ==
           text::CInt(settings::ReadRegistryValue(running.copy.program.platform.registry,
                                                  HKeyCurrentUser, KeyOf(setting), setting.Name));
  } catch (const text::RuntimeError&) {
    return false;
  }
}

void CheckLoad(Running& running) {
  const std::vector<int> before = running.States();
  shell::LoadInitialSettings(running.copy.program);
  Check(running.copy.process.Boxes().empty(), "a load is silent");
  const std::vector<int> behind = running.States();
  std::size_t box = 0;
  for (const ExpectedSetting& setting : ExpectedSettings) {
    if (!test::HasBox(setting)) continue;
    const int state = behind[box];
    Check(state >= 0 && state <= 2, "a box has one of its states");
    Check(state == before[box] || FollowsTheSound(setting, state) || Holds(running, setting, state),
          "a box has what is stored");
    ++box;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Running running;
  fuzz::Input input(data, size);
  const Planted planted(running, input);
  CheckLoad(running);
  statistics::RefreshCounters(running.copy.program);
  Check(running.copy.process.Boxes().size() <= 1, "a refresh shows one box at most");
  Check(running.copy.process.OpenKeys() == 0, "no key stays open");
  running.copy.process.ClearBoxes();
  return 0;
}
