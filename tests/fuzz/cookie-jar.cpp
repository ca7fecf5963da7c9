// Cookie jars of any bytes: the list has the hosts that a plain reading finds, up to the line that
// ends it, and the click is silent.
#include "cleaning/Attach.h"
#include "cleaning/Cookies.h"
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
    copy->process.Trace().Stop();
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

// Whether the reading came to the jar's end.
bool ReadsWhole(Running& running) {
  try {
    cleaning::ReadNetscapeCookies(running.copy->program, Jar);
    return true;
  } catch (const text::RuntimeError& error) {
    Check(error.Number() == text::ErrorNumber::InvalidProcedureCall, "a line ends it by error 5");
    return false;
  }
}

// The same by the option's click, which looks for the jar and shows its size.
bool ClickShowsSize(Running& running) {
  windows::FrmFrameHistory& panel = running.Panel();
  panel.lblcookies.SetCaption("before");
  panel.optOpera.SetValue(true);
  panel.optNetscape.SetValue(true);
  Check(running.copy->process.Boxes().empty(), "no box comes up");
  return panel.lblcookies.Caption().ends_with(" Kbs");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Running running;
  const std::string jar(data, data + size);
  running.world.files.Put(Jar, jar);
  bool whole = false;
  const std::vector<std::string> hosts = PlainHosts(jar, whole);
  const bool clicks = fuzz::IsOneIn(256, jar);
  Check((clicks ? ClickShowsSize(running) : ReadsWhole(running)) == whole,
        "a reading ends where the plain one does");
  windows::FrmFrameHistory& panel = running.Panel();
  Check(panel.urls.Count() == static_cast<int>(hosts.size()), "the list has the jar's hosts");
  for (std::size_t row = 0; row < hosts.size(); ++row) {
    const forms::ListItem& item = panel.urls.Item(static_cast<int>(row) + 1);
    Check(item.Text() == hosts[row], "a row has its host");
    Check(item.Key() == "NC" + std::to_string(row + 1), "a row has its key");
  }
  return 0;
}
