#include "app/console/State.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string_view>

#include "app/console/Screen.h"
#include "app/console/Words.h"
#include "fileutil/bmdlCookies.h"
#include "platform/memory/Process.h"
#include "platform/memory/RegFile.h"
#include "platform/memory/RegistryEditor.h"
#include "text/Strings.h"

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

constexpr const char* UserFolder = "C:\\Documents and Settings\\Administrator\\";

constexpr const char* HelpPages =
    "Allowedlist|Block Preferences|cleaning|Graph|IE Settings|Notification|Notificationsettings|"
    "settings|ViewToolbar|welcome";
constexpr const char* Sounds = "alert|click|crash|double|drop|pop|pop2|slip|vanish|vaporize|woosh";

// In the state, below HKEY_USERS. Each file and folder is a value by its path, a folder's with a
// backslash: a byte with its attributes, then a file's bytes. The clock comes last: a state that
// was cut has none.
constexpr const char* StateKey = "Vantrel Console";
constexpr const char* FilesKey = "Vantrel Console\\Files";
constexpr const char* EndKey = "Vantrel Console\\Files\\End";

[[noreturn]] void Refuse(const char* what, const std::string& path, const std::string& why) {
  throw CommandError(std::string("cannot ") + what + ' ' + Brief(path) + ": " + why);
}

memory::RegistryTree Kept(const memory::World& world) {
  memory::RegistryTree kept;
  Walk(world.files, "C:", [&](const std::string& path) {
    if (IsLink(world.files, path)) return;
    const std::string name = path + (world.files.IsFolder(path) ? "\\" : "");
    const char attributes = static_cast<char>(world.files.AttributesOf(path));
    kept.Set(HKeyUsers, FilesKey, name, platform::RegBinary,
             attributes + world.files.Read(path).value_or(""));
  });
  kept.SetString(HKeyUsers, EndKey, "Clock", TimeText(world.clock.LocalNow()));
  return kept;
}

void Restore(memory::FileTree& files, const std::string& path, const std::string& kept) {
  if (path.ends_with('\\')) {
    MakeFolder(files, path);
  } else {
    PutFile(files, path, kept.substr(std::min<std::size_t>(kept.size(), 1)));
  }
  files.SetAttributes(path, static_cast<unsigned char>(kept[0]));
}

// With a shell that knows the user's folders, whether they are there or not, and the registry
// editor.
std::unique_ptr<memory::World> EmptyWindows() {
  const std::string user = UserFolder;
  auto world = std::make_unique<memory::World>();
  world->specialFolders = {
      {fileutil::CSIDL_RECENT, user + "Recent"},
      {fileutil::CSIDL_APPDATA, user + "Application Data"},
      {fileutil::CSIDL_INTERNET_CACHE, user + "Local Settings\\Temporary Internet Files"},
      {fileutil::CSIDL_COOKIES, user + "Cookies"},
      {fileutil::CSIDL_HISTORY, user + "Local Settings\\History"},
  };
  memory::InstallRegistryEditor(*world);
  return world;
}

}  // namespace

std::unique_ptr<memory::World> FreshWindows() {
  auto world = EmptyWindows();
  for (const auto& [number, path] : world->specialFolders) world->files.MakeFolder(path);
  world->files.MakeFolder(std::string(UserFolder) + "Local Settings\\Temp");
  memory::ImportReg(world->registry, FreshRegistry);
  const auto put = [&world](const std::string& path) { world->files.Put(path, "stand-in"); };
  const std::string folder = "C:\\Program Files\\Vantrel\\";
  put("C:\\WINDOWS\\notepad.exe");
  put(memory::RegistryEditorPath);
  put("C:\\Program Files\\Internet Explorer\\iexplore.exe");
  put(memory::Process::DefaultExecutable);
  world->files.MakeFolder(folder + "Settings");
  world->files.MakeFolder("C:\\Program Files\\Internet Explorer\\PLUGINS");
  for (const std::string& page : text::Split(HelpPages, '|'))
    put(folder + "help\\" + page + ".htm");
  for (const std::string& name : text::Split(Sounds, '|')) put(folder + "Sound\\" + name + ".wav");
  return world;
}

std::string StateText(const memory::World& world) {
  std::string text = RegHeader;
  for (const platform::KeyHandle root :
       {platform::HKeyClassesRoot, platform::HKeyCurrentUser, platform::HKeyLocalMachine,
        memory::HKeyCurrentConfig, HKeyUsers}) {
    text += Exported(world.registry, root);
  }
  return text + Exported(Kept(world), HKeyUsers);
}

std::unique_ptr<memory::World> WindowsFromState(const std::string& text) {
  auto world = EmptyWindows();
  memory::RegistryTree& registry = world->registry;
  const bool read = memory::ImportReg(registry, text);
  const auto clock = registry.GetString(HKeyUsers, EndKey, "Clock");
  if (!read || !clock) throw CommandError("this is no state of the console, or its end is missing");
  SetClock(*world, *clock);
  for (const auto& file : registry.Values(HKeyUsers, FilesKey))
    Restore(world->files, file.name, file.data);
  registry.RemoveKey(HKeyUsers, StateKey);
  return world;
}

std::string Exported(const memory::RegistryTree& registry, platform::KeyHandle root,
                     const std::string& subkey) {
  return memory::ExportReg(registry, root, subkey, memory::RegFormat::Regedit4)
      .substr(std::string_view(RegHeader).size());
}

void SetClock(memory::World& world, const std::string& text) {
  memory::LocalTime time;
  int length = 0;  // stays 0 if a part is missing
  std::sscanf(text.c_str(), "%4d-%2d-%2d %2d:%2d:%2d%n", &time.year, &time.month, &time.day,
              &time.hour, &time.minute, &time.second, &length);
  const bool day = (std::chrono::year(time.year) / time.month / time.day).ok() && time.year > 1600;
  const bool hour = std::min({time.hour, time.minute, time.second}) >= 0 && time.hour < 24 &&
                    time.minute < 60 && time.second < 60;
  if (!day || !hour || length == 0 || static_cast<std::size_t>(length) != text.size()) {
    throw CommandError("there is no such time; it goes: 2004-03-15 12:00:00");
  }
  world.clock.SetLocalTime(time);
}

bool IsLink(const memory::FileTree& files, const std::string& path) {
  return (files.AttributesOf(path) & platform::AttributeReparsePoint) != 0;
}

void Walk(const memory::FileTree& files, const std::string& folder,
          const std::function<void(const std::string&)>& visit) {
  for (const std::string& name : files.List(folder)) {
    const std::string path = folder + '\\' + name;
    visit(path);
    if (files.IsFolder(path) && !IsLink(files, path)) Walk(files, path, visit);
  }
}

void MakeFolder(memory::FileTree& files, const std::string& path) {
  if (!files.MakePath(path + '\\') || !files.IsFolder(path))
    Refuse("make", path, "it is no folder's path");
}

void PutFile(memory::FileTree& files, const std::string& path, const std::string& content) {
  const bool folders = files.MakePath(path);
  const std::int32_t code = folders ? files.Write(path, content) : platform::ErrorPathNotFound;
  if (code == platform::ErrorSuccess) return;
  Refuse("write", path,
         files.IsFolder(path)                      ? "it is a folder"
         : code == platform::ErrorAccessDenied     ? "it is read-only"
         : code == platform::ErrorSharingViolation ? "it is locked"
         : code == platform::ErrorPathNotFound     ? "it has no folder"
                                                   : "it is no path");
}

std::string ReadRealFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  file.peek();  // a folder can be opened, but not read
  if (!file) Refuse("read", path, std::strerror(errno));
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

void WriteRealFile(const std::string& path, const std::string& content) {
  const std::string beside = path + ".new";
  std::ofstream file(beside, std::ios::binary | std::ios::trunc);
  file << content;
  file.close();
  if (file && std::rename(beside.c_str(), path.c_str()) == 0) return;
  const std::string why = std::strerror(errno);
  std::remove(beside.c_str());
  Refuse("write", path, why);
}

}  // namespace vantrel::console
