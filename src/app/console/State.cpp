#include "app/console/State.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <string_view>

#include "app/console/Words.h"
#include "platform/memory/Process.h"
#include "platform/memory/RegFile.h"

namespace vantrel::console {
namespace {

namespace memory = platform::memory;
using memory::HKeyUsers;

constexpr const char* FreshRegistry = R"(REGEDIT4

[HKEY_LOCAL_MACHINE\SOFTWARE\Microsoft\IE Setup\Setup]
"Path"="C:\\Program Files\\Internet Explorer"
[HKEY_LOCAL_MACHINE\SOFTWARE\Microsoft\Internet Explorer]
"Version"="6.0.2900.2180"
[HKEY_LOCAL_MACHINE\SOFTWARE\Microsoft\Internet Explorer\Toolbar]
[HKEY_LOCAL_MACHINE\SOFTWARE\Microsoft\Windows\CurrentVersion\Explorer\Browser Helper Objects]
[HKEY_LOCAL_MACHINE\SOFTWARE\Microsoft\Windows\CurrentVersion\Run]
[HKEY_LOCAL_MACHINE\SYSTEM\CurrentControlSet\Services\Messenger]
"Start"=dword:00000002
[HKEY_CLASSES_ROOT\CLSID]
[HKEY_CLASSES_ROOT\http\shell\open\command]
@="\"C:\\Program Files\\Internet Explorer\\iexplore.exe\" -nohome"
[HKEY_CURRENT_USER\Software\Microsoft\Internet Explorer\Main]
"Start Page"="about:blank"
[HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Internet Settings\Zones\0]
"1200"=dword:00000000
"1201"=dword:00000001
)";

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

// In the state, below HKEY_USERS: the clock as a text, each file and folder with its attributes,
// and each file's bytes.
constexpr const char* StateKey = "Vantrel Console";
constexpr const char* AttributesKey = "Vantrel Console\\Attributes";
constexpr const char* ContentsKey = "Vantrel Console\\Contents";

constexpr std::string_view Header = "REGEDIT4\r\n\r\n";

// The key with all below it, without the file's header.
std::string Exported(const memory::RegistryTree& registry, platform::KeyHandle root) {
  return memory::ExportReg(registry, root, "", memory::RegFormat::Regedit4).substr(Header.size());
}

memory::RegistryTree Kept(const memory::World& world) {
  memory::RegistryTree kept;
  Walk(world.files, "C:", [&](const std::string& path) {
    kept.SetDword(HKeyUsers, AttributesKey, path, world.files.AttributesOf(path));
    if (world.files.IsFile(path)) {
      kept.Set(HKeyUsers, ContentsKey, path, platform::RegBinary, *world.files.Read(path));
    }
  });
  // Last in its file: a file that was cut has none.
  kept.SetString(HKeyUsers, std::string(ContentsKey) + "\\End", "Clock", ClockText(world));
  return kept;
}

void Restore(memory::World& world, const std::string& path, std::uint32_t attributes) {
  if ((attributes & platform::AttributeDirectory) != 0) {
    if (!world.files.MakePath(path + '\\')) throw CommandError("no folder can be " + Quoted(path));
  } else {
    const auto content = world.registry.Get(HKeyUsers, ContentsKey, path);
    PutFile(world.files, path, content ? content->data : "");
  }
}

std::uint32_t NumberOf(const memory::World& world, const std::string& path) {
  return world.registry.GetDword(HKeyUsers, AttributesKey, path).value_or(0);
}

}  // namespace

std::unique_ptr<memory::World> FreshWindows() {
  auto world = std::make_unique<memory::World>();
  memory::ImportReg(world->registry, FreshRegistry);
  const std::string folder = ProgramFolder;
  world->files.MakeFolder(folder + "Settings");
  world->files.MakeFolder("C:\\Program Files\\Internet Explorer\\PLUGINS");
  for (const char* page : HelpPages) {
    world->files.Put(folder + "help\\" + page,
                     "<html><body>" + std::string(page) + "</body></html>\r\n");
  }
  for (const char* name : Sounds) world->files.Put(folder + "Sound\\" + name + ".wav", "RIFF");
  for (const char* program : Programs) world->files.Put(program, "MZ");
  return world;
}

std::string StateText(const memory::World& world) {
  std::string text(Header);
  for (const platform::KeyHandle root :
       {platform::HKeyClassesRoot, platform::HKeyCurrentUser, platform::HKeyLocalMachine,
        memory::HKeyCurrentConfig, HKeyUsers}) {
    text += Exported(world.registry, root);
  }
  return text + Exported(Kept(world), HKeyUsers);
}

std::unique_ptr<memory::World> WindowsFromState(const std::string& text) {
  auto world = std::make_unique<memory::World>();
  if (!memory::ImportReg(world->registry, text)) {
    throw CommandError("this is no state of the console: it is no registration file");
  }
  const auto clock =
      world->registry.GetString(HKeyUsers, std::string(ContentsKey) + "\\End", "Clock");
  if (!clock) throw CommandError("the state is damaged: its end is missing");
  SetClock(*world, *clock);
  const auto entries = world->registry.Values(HKeyUsers, AttributesKey);
  for (const auto& entry : entries) Restore(*world, entry.name, NumberOf(*world, entry.name));
  for (const auto& entry : entries) {
    world->files.SetAttributes(entry.name, NumberOf(*world, entry.name));
  }
  world->registry.RemoveKey(HKeyUsers, StateKey);
  return world;
}

std::string ClockText(const memory::World& world) {
  const memory::LocalTime time = world.clock.LocalNow();
  std::array<char, 100> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", time.year, time.month,
                time.day, time.hour, time.minute, time.second);
  return text.data();
}

void SetClock(memory::World& world, const std::string& text) {
  memory::LocalTime time;
  int end = 0;
  const int parts = std::sscanf(text.c_str(), "%4d-%2d-%2d %2d:%2d:%2d%n", &time.year, &time.month,
                                &time.day, &time.hour, &time.minute, &time.second, &end);
  if (parts != 6 || static_cast<std::size_t>(end) != text.size()) {
    throw CommandError("the time goes: 2004-03-15 12:00:00");
  }
  const auto within = [](int part, int least, int most) { return part >= least && part <= most; };
  const bool day =
      within(time.year, 1601, 9999) && within(time.month, 1, 12) && within(time.day, 1, 31) &&
      std::chrono::year_month_day(std::chrono::year(time.year),
                                  std::chrono::month(static_cast<unsigned>(time.month)),
                                  std::chrono::day(static_cast<unsigned>(time.day)))
          .ok();
  if (!day) throw CommandError("there is no such day");
  if (!within(time.hour, 0, 23) || !within(time.minute, 0, 59) || !within(time.second, 0, 59)) {
    throw CommandError("there is no such time");
  }
  world.clock.SetLocalTime(time);
}

void Walk(const memory::FileTree& files, const std::string& folder,
          const std::function<void(const std::string&)>& visit) {
  for (const std::string& name : files.List(folder)) {
    const std::string path = folder + '\\' + name;
    if ((files.AttributesOf(path) & platform::AttributeReparsePoint) != 0) continue;
    visit(path);
    if (files.IsFolder(path)) Walk(files, path, visit);
  }
}

void PutFile(memory::FileTree& files, const std::string& path, const std::string& content) {
  const bool folders = files.MakePath(path);
  const std::int32_t code = folders ? files.Write(path, content) : platform::ErrorPathNotFound;
  if (code == platform::ErrorSuccess) return;
  const std::string why = files.IsFolder(path)                  ? "it is a folder"
                          : code == platform::ErrorPathNotFound ? "it has no folder"
                          : code == platform::ErrorInvalidName  ? "it is no name"
                          : code == platform::ErrorAccessDenied ? "it is read-only"
                          : code == platform::ErrorSharingViolation
                              ? "it is locked"
                              : "error " + std::to_string(code);
  throw CommandError("cannot write " + Quoted(path.substr(0, 200)) + ": " + why);
}

}  // namespace vantrel::console
