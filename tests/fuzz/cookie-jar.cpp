// Cookie jars of any bytes: the list has the hosts that a plain reading finds, up to the line that
// ends it, and the click is silent.
#include "cleaning/Attach.h"
#include "fileutil/bmdlCookies.h"
#include "fuzz/Fuzz.h"
#include "support/ProgramFixture.h"
#include "windows/FrmFrameHistory.h"

namespace {

using namespace vantrel;
using fuzz::Check;

constexpr const char* Jar = "C:\\User\\Mozilla\\p\\cookies.txt";

struct Running {
  Running() {
    test::FillMachine(world);
    world.specialFolders[fileutil::CSIDL_APPDATA] = "C:\\User";
    world.registry.SetString(platform::HKeyLocalMachine,
                             "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\Netscp.exe",
                             "Path", "C:\\Netscape");
    copy = std::make_unique<test::Copy>(world);
    cleaning::AttachCleaning(copy->program);
  }

  windows::FrmFrameHistory& Panel() { return *copy->Windows().FrmFrameHistory; }

  platform::memory::World world;
  std::unique_ptr<test::Copy> copy;
};

std::string WithoutBlanks(std::string text) {
  while (!text.empty() && text.front() == ' ') text.erase(0, 1);
  while (!text.empty() && text.back() == ' ') text.pop_back();
  return text;
}

// The hosts, character by character; `whole` says whether the reading came to the jar's end.
std::vector<std::string> PlainHosts(const std::string& jar, bool& whole) {
  std::vector<std::string> hosts;
  std::string line;
  whole = true;
  for (std::size_t at = 0; at <= jar.size(); ++at) {
    if (at < jar.size() && jar[at] != '\n') {
      line += jar[at];
      continue;
    }
    if (at < jar.size() && !line.empty() && line.back() == '\r') line.pop_back();
    if (line.size() > 3 && line[0] == '.') {
      const long length = static_cast<long>(line.find('/') + 1) - 7;
      if (length < 0) {
        whole = false;
        return hosts;
      }
      hosts.push_back(WithoutBlanks(line.substr(0, static_cast<std::size_t>(length))));
    }
    line.clear();
  }
  return hosts;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Running running;
  const std::string jar(data, data + size);
  running.world.files.Put(Jar, jar);
  windows::FrmFrameHistory& panel = running.Panel();
  panel.lblcookies.SetCaption("before");
  panel.optOpera.SetValue(true);
  panel.optNetscape.SetValue(true);
  bool whole = false;
  const std::vector<std::string> hosts = PlainHosts(jar, whole);
  Check(panel.urls.Count() == static_cast<int>(hosts.size()), "the list has the jar's hosts");
  for (std::size_t row = 0; row < hosts.size(); ++row) {
    const forms::ListItem& item = panel.urls.Item(static_cast<int>(row) + 1);
    Check(item.Text() == hosts[row], "a row has its host");
    Check(item.Key() == "NC" + std::to_string(row + 1), "a row has its key");
  }
  Check(panel.lblcookies.Caption().ends_with(" Kbs") == whole, "only a whole jar shows its size");
  Check(running.copy->process.Boxes().empty(), "no box comes up");
  running.copy->process.Trace().Clear();
  running.world.trace.Clear();
  return 0;
}
