#include "app/console/FreshWindows.h"

#include <array>
#include <string>

#include "platform/memory/Process.h"

namespace vantrel::console {
namespace {

namespace memory = platform::memory;
using platform::HKeyClassesRoot;
using platform::HKeyCurrentUser;
using platform::HKeyLocalMachine;
using platform::KeyHandle;

struct TextRow {
  KeyHandle root;
  const char* key;
  const char* name;
  const char* text;
};

constexpr std::array Texts{
    TextRow{HKeyLocalMachine, "SOFTWARE\\Microsoft\\Internet Explorer", "Version", "6.0.2900.2180"},
    TextRow{HKeyClassesRoot, "http\\shell\\open\\command", "",
            "\"C:\\Program Files\\Internet Explorer\\iexplore.exe\" -nohome"},
    TextRow{HKeyCurrentUser, "Software\\Microsoft\\Internet Explorer\\Main", "Start Page",
            "about:blank"},
};

struct NumberRow {
  KeyHandle root;
  const char* key;
  const char* name;
  std::uint32_t number;
};

constexpr const char* InternetSettings =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\Zones\\0";

constexpr std::array Numbers{
    NumberRow{HKeyCurrentUser, InternetSettings, "1200", 0},
    NumberRow{HKeyCurrentUser, InternetSettings, "1201", 1},
    NumberRow{HKeyLocalMachine, "SYSTEM\\CurrentControlSet\\Services\\Messenger", "Start", 2},
};

struct KeyRow {
  KeyHandle root;
  const char* key;
};

constexpr std::array Keys{
    KeyRow{HKeyCurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Run"},
    KeyRow{HKeyLocalMachine, "SOFTWARE\\Microsoft\\Internet Explorer\\Toolbar"},
    KeyRow{HKeyLocalMachine,
           "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects"},
    KeyRow{HKeyClassesRoot, "CLSID"},
};

constexpr const char* ProgramFolder = "C:\\Program Files\\Vantrel\\";

constexpr std::array HelpPages{
    "Allowedlist.htm",
    "Block Preferences.htm",
    "cleaning.htm",
    "Graph.htm",
    "IE Settings.htm",
    "Notification.htm",
    "Notificationsettings.htm",
    "settings.htm",
    "ViewToolbar.htm",
    "welcome.htm",
};

constexpr std::array Sounds{
    "alert", "click", "crash",  "double",   "drop",  "pop",
    "pop2",  "slip",  "vanish", "vaporize", "woosh",
};

constexpr std::array Programs{
    memory::Process::DefaultExecutable,
    "C:\\Program Files\\Internet Explorer\\iexplore.exe",
    "C:\\WINDOWS\\notepad.exe",
};

void FillRegistry(memory::RegistryTree& registry) {
  for (const KeyRow& row : Keys) registry.MakeKey(row.root, row.key);
  for (const TextRow& row : Texts) registry.SetString(row.root, row.key, row.name, row.text);
  for (const NumberRow& row : Numbers) registry.SetDword(row.root, row.key, row.name, row.number);
}

void FillFiles(memory::FileTree& files) {
  const std::string folder = ProgramFolder;
  files.MakeFolder(folder + "Settings");
  for (const char* page : HelpPages) {
    files.Put(folder + "help\\" + page, "<html><body>" + std::string(page) + "</body></html>\r\n");
  }
  for (const char* name : Sounds) files.Put(folder + "Sound\\" + name + ".wav", "RIFF");
  for (const char* program : Programs) files.Put(program, "MZ");
}

}  // namespace

std::unique_ptr<memory::World> FreshWindows() {
  auto world = std::make_unique<memory::World>();
  FillRegistry(world->registry);
  FillFiles(world->files);
  return world;
}

}  // namespace vantrel::console
