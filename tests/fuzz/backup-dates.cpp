// Date files of any bytes: the view holds what the lines give one by one, and no box comes up.
#include "fuzz/Fuzz.h"
#include "iemaintenance/Attach.h"
#include "iemaintenance/SettingsBackup.h"
#include "support/ProgramFixture.h"
#include "windows/FrmFrameIESettings.h"

namespace {

using namespace vantrel;
using fuzz::Check;

constexpr const char* Path = "C:\\Program Files\\Vantrel\\Settings\\IESettings\\IE Backup date.txt";

struct Running {
  Running() {
    test::FillMachine(world);
    copy = std::make_unique<test::Copy>(world);
    iemaintenance::AttachIEMaintenance(copy->program);
    copy->process.Trace().Stop();
  }

  forms::TextBox& View() { return copy->Windows().FrmFrameIESettings->txtBackup; }

  platform::memory::World world;
  std::unique_ptr<test::Copy> copy;
};

// The plain way: a character at a time, a line at a time into a box that ends a text at its NUL.
std::string PlainlyShown(const std::string& content) {
  std::string shown;
  std::string line;
  const auto append = [&] {
    if (!shown.empty()) shown += "\r\n";
    shown = (shown + line).c_str();
    line.clear();
  };
  for (const char c : content) {
    if (c != '\n') {
      line += c;
      continue;
    }
    if (line.ends_with('\r')) line.pop_back();
    append();
  }
  if (!line.empty()) append();
  return shown;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Running running;
  fuzz::Input input(data, size);
  const std::string content = input.Rest();
  running.world.files.Put(Path, content);
  iemaintenance::ShowBackupDate(running.copy->program, Path);
  Check(running.View().Text() == PlainlyShown(content), "the view holds the lines");
  Check(running.copy->process.Boxes().empty(), "no box comes up");
  return 0;
}
