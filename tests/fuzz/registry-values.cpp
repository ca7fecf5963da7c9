// Stored values of any type and bytes: each reader gives a text or one of its errors, an update
// leaves the value's type, and no key stays open.
#include "fuzz/Fuzz.h"
#include "platform/memory/Process.h"
#include "settings/RegistryConversions.h"
#include "settings/bmdlReg.h"
#include "settings/bmdlRegAPI.h"
#include "text/RuntimeError.h"

namespace {

using namespace vantrel;
using fuzz::Check;
using platform::HKeyCurrentUser;
using text::ErrorNumber;

constexpr const char* Key = "Software\\Any";
constexpr const char* Name = "Value";

bool IsKnownError(ErrorNumber number) {
  return number == ErrorNumber::InvalidProcedureCall || number == ErrorNumber::Overflow ||
         number == ErrorNumber::TypeMismatch;
}

template <class Act>
void Try(Act act) {
  try {
    act();
  } catch (const text::RuntimeError& error) {
    Check(IsKnownError(error.Number()), "a reader fails with error 5, 6 or 13");
  }
}

void TryReading(platform::Registry& registry, const platform::memory::RegistryValue& stored) {
  Try([&] {
    const std::string text = settings::ReadRegistryValue(registry, HKeyCurrentUser, Key, Name);
    if (stored.data.size() > 1024) Check(text.empty(), "a value beyond the buffer reads as none");
    if (stored.type != platform::RegSz && stored.type != platform::RegDword) {
      Check(text.empty(), "a value of another type reads as none");
    }
  });
  const auto rows = settings::EnumerateRegistryValues(registry, HKeyCurrentUser, Key);
  Check(rows.size() <= 1, "one value is one row");
}

void TryUpdate(platform::Registry& registry, platform::memory::RegistryTree& tree,
               const std::string& text) {
  const auto before = tree.Get(HKeyCurrentUser, Key, Name);
  Try([&] {
    const bool done = settings::UpdateRegistryValue(registry, HKeyCurrentUser, Key, Name, text);
    Check(done == (before->data.size() <= 1024), "an update fails only beyond the buffer");
  });
  const auto behind = tree.Get(HKeyCurrentUser, Key, Name);
  Check(behind->type == before->type, "an update keeps the type");
  if (behind->type == platform::RegSz && before->data.size() <= 1024) {
    Check(behind->data == text, "an update of a text stores its bytes");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const std::uint8_t kind = input.Byte();
  const std::uint32_t type = kind % 12;
  const std::string text = input.Text();
  const std::string rest = input.Rest();
  const std::string bytes = kind < 240 ? rest : fuzz::BeyondTheBuffer(rest);
  static platform::memory::World world;
  static platform::memory::Process process(world);
  platform::Registry& registry = process.Platform().registry;
  world.registry.Set(HKeyCurrentUser, Key, Name, type, bytes);
  TryReading(registry, *world.registry.Get(HKeyCurrentUser, Key, Name));
  TryUpdate(registry, world.registry, text);
  Try([&] { settings::TextFromStored(type, bytes); });
  Try([&] { settings::AsNumber(text); });
  Check(process.OpenKeys() == 0, "no key stays open");
  return 0;
}
