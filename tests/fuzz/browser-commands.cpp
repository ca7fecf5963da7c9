// The browser's command in the registry, of any type and bytes, and targets to open with it: the
// browser is what stands up to the second quote, and what cannot be started is an error of files.
#include "fuzz/Fuzz.h"
#include "launch/OpenUrl.h"
#include "support/ProgramFixture.h"
#include "text/RuntimeError.h"

namespace {

using namespace vantrel;
using fuzz::Check;
using platform::HKeyClassesRoot;

constexpr const char* Key = "http\\shell\\open\\command";

struct Running {
  Running() {
    world.registry.MakeKey(HKeyClassesRoot, Key);
    copy.process.Trace().Stop();
  }

  platform::memory::World world;
  test::Copy copy{world};
};

// Up to the first quote behind the first character, which may be one itself.
std::string PlainBrowser(const std::string& command) {
  for (std::size_t at = 1; at < command.size(); ++at) {
    if (command[at] == '"') return command.substr(0, at + 1);
  }
  return {};
}

void TryOpening(Running& running, std::string target) {
  const std::string before = target;
  try {
    launch::OpenUrl(running.copy.program, target);
  } catch (const text::RuntimeError& error) {
    Check(error.Number() == text::ErrorNumber::FileNotFound ||
              error.Number() == text::ErrorNumber::PathNotFound ||
              error.Number() == text::ErrorNumber::PermissionDenied,
          "a browser that does not start is an error of files");
  }
  Check(target == before || target == '"' + before + '"', "the target is quoted at most");
  const std::size_t boxes = running.copy.process.Boxes().size();
  Check(boxes <= 1 && (boxes == 0 || before.size() < 5), "only a short target has a box");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Running running;
  fuzz::Input input(data, size);
  const std::uint32_t type = input.Byte() % 12;
  const std::string target = input.Text();
  const std::string command = input.Rest();
  running.world.registry.Set(HKeyClassesRoot, Key, "", type, command);
  const std::string browser = launch::GetDefaultBrowser(running.copy.program);
  if (type == platform::RegSz) {
    // The last byte is the terminator's.
    const std::string text = command.substr(0, command.size() - (command.empty() ? 0 : 1));
    Check(browser == PlainBrowser(text), "the browser is the plain one's");
  }
  TryOpening(running, target);
  running.copy.process.ClearBoxes();
  Check(running.copy.process.OpenKeys() == 0, "no key stays open");
  return 0;
}
