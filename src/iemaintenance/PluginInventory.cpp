#include "iemaintenance/PluginInventory.h"

#include <functional>
#include <limits>

#include "fileutil/FileErrors.h"
#include "fileutil/modFileInfo.h"
#include "settings/bmdlReg.h"
#include "settings/bmdlRegAPI.h"
#include "text/ErrorTrap.h"
#include "text/Strings.h"
#include "windows/FrmFrameIEPlugin.h"

namespace vantrel::iemaintenance {
namespace {

using platform::KeyHandle;
using program::Program;
using windows::FrmFrameIEPlugin;

constexpr const char* BrowserSetupKey = "Software\\Microsoft\\IE Setup\\Setup";
constexpr const char* ToolbarValuesKey = "SOFTWARE\\Microsoft\\Internet Explorer\\Toolbar\\";
constexpr const char* MenuExtKey = "SOFTWARE\\Microsoft\\Internet Explorer\\MenuExt\\";
constexpr const char* ExtensionsKey = "SOFTWARE\\Microsoft\\Internet Explorer\\Extensions\\";
// What a button's tag begins with; the other spelling is meant.
constexpr const char* ButtonTagKey = "Software\\Microsoft\\Internet Explorer\\Extensions\\";

FrmFrameIEPlugin& Panel(Program& program) { return *program.windows.FrmFrameIEPlugin; }

// One row before it stands in the list.
struct Row {
  std::string Key;
  std::string Name;
  const char* Icon;
  const char* Type;
  std::string TypeKey;
  std::string Tag;
  std::string ToolTip;
};

// Raises error 35602 if the key is taken; the list is then as it was.
void AddRow(Program& program, const Row& row) {
  forms::ListItem& item = Panel(program).lstBHO.Add(row.Key, row.Name, row.Icon);
  item.AddSubItem(row.TypeKey, row.Type);
  item.SetTag(row.Tag);
  item.SetToolTipText(row.ToolTip);
}

std::string ClassValue(Program& program, const std::string& key) {
  return settings::ReadRegistryValue(program.platform.registry, platform::HKeyClassesRoot,
                                     "CLSID\\" + key, "");
}

// A subkey's name in the buffer of the walk: blanks in front are trimmed, blanks behind the name
// stand before its terminator and stay.
std::string WithoutLeadingBlanks(const std::string& name) {
  const std::size_t first = name.find_first_not_of(' ');
  return first == std::string::npos ? std::string() : name.substr(first);
}

// Up to and including the first "}"; empty where there is none.
std::string ClassIdOf(const std::string& name) { return name.substr(0, name.find('}') + 1); }

// Closes the key of a walk, also where a message that runs meanwhile ends the program.
struct ClosedAtEnd {
  platform::Registry& Registry;
  KeyHandle Key;
  ~ClosedAtEnd() { Registry.RegCloseKey(Key); }
};

using TakeSubKey = std::function<void(const std::string& name, std::int32_t index)>;

// The walk that the three kinds share: `opened` runs once the key is open, `take` for each subkey.
void WalkSubKeys(Program& program, KeyHandle root, const std::string& key, std::int32_t& count,
                 const std::function<void()>& opened, const TakeSubKey& take) {
  constexpr std::uint32_t NameRoom = 255;
  platform::Registry& registry = program.platform.registry;
  count = 0;
  KeyHandle handle = 0;
  if (registry.RegOpenKeyA(root, key, handle) != platform::ErrorSuccess) return;
  const ClosedAtEnd closed{registry, handle};
  opened();
  text::ErrorTrap trap;
  std::int32_t index = 0;
  std::string name;
  while (registry.RegEnumKeyA(handle, static_cast<std::uint32_t>(index), NameRoom, name) ==
         platform::ErrorSuccess) {
    trap([&] { take(name, index); });
    ++index;
    program.DoEvents();
  }
  count = index;
}

// An entry without an id has no class and no name; the key above the classes may have a text.
void AddHelperObject(Program& program, const std::string& name, std::int32_t index) {
  const std::string id = ClassIdOf(WithoutLeadingBlanks(name));
  std::string shown;
  text::ErrorTrap trap;
  trap([&] {
    if (!id.empty()) shown = ClassValue(program, id);
  });
  AddRow(program, {"B" + std::to_string(index), shown, "bho", TypeBho, "D1", id, ""});
}

void AddMenuExtension(Program& program, const std::string& name, std::int32_t index) {
  const std::string shown = WithoutLeadingBlanks(name);
  AddRow(program,
         {"M" + std::to_string(index), shown, "mnu", TypeMenuExt, "M1", MenuExtKey + shown, ""});
}

// A subkey without a text gets no row, and its number is not used again.
void AddButton(Program& program, KeyHandle root, const std::string& key, const std::string& name,
               std::int32_t index) {
  const std::string id = ClassIdOf(name);
  const std::string shown = settings::ReadRegistryString(program, root, key + id, "ButtonText");
  if (shown.empty()) return;
  const std::string number = std::to_string(index);
  AddRow(program, {"IEB" + number, text::Trim(shown), "bho", TypeIEButton, "IE1" + number,
                   ButtonTagKey + id, ""});
}

void AddToolbar(Program& program, const std::string& id, std::int32_t index) {
  std::string name;
  std::string server;
  text::ErrorTrap trap;
  // The text is a menu caption.
  trap([&] { name = fileutil::ReplaceAll(ClassValue(program, id), "&", ""); });
  trap([&] { server = ClassValue(program, id + "\\InprocServer32"); });
  trap([&] {
    AddRow(program, {"T" + std::to_string(index), name, "tb", TypeToolbar, "D1", id, server});
  });
}

// A path that cannot be read is an empty one.
void ShowPluginFolder(Program& program, text::ErrorTrap& trap) {
  std::string setup;
  trap([&] {
    setup = settings::ReadRegistryValue(program.platform.registry, platform::HKeyLocalMachine,
                                        BrowserSetupKey, "Path");
  });
  trap([&] { Panel(program).flbpluginsfile.SetPath(setup + "\\PLUGINS"); });
}

void AddPluginFile(Program& program, std::int16_t index) {
  const forms::FileListBox& files = Panel(program).flbpluginsfile;
  constexpr std::size_t EndingLength = 4;
  const std::string name = files.List(index);
  if (name.size() < EndingLength ||
      text::LowerCase(name.substr(name.size() - EndingLength)) != ".dll") {
    return;
  }
  const std::string path = files.Path() + '\\' + name;
  std::uint64_t length = 0;
  fileutil::RaiseFileError(program.platform.files.FileLength(path, length));
  if (length == 0) return;
  AddRow(program, {"P" + std::to_string(index), fileutil::GetProductName(program, path), "pgn",
                   TypePlugins, "PM1", path, path});
}

// The index is a 16-bit number: files beyond it are not listed, with an error.
void AddPluginFiles(Program& program, text::ErrorTrap& trap) {
  const int count = Panel(program).flbpluginsfile.ListCount();
  for (int index = 0; index < count; ++index) {
    if (index > std::numeric_limits<std::int16_t>::max()) {
      trap([] { throw text::RuntimeError(text::ErrorNumber::Overflow); });
      return;
    }
    trap([&] { AddPluginFile(program, static_cast<std::int16_t>(index)); });
  }
}

}  // namespace

void SubKeyCount(Program& program, KeyHandle root, const std::string& key, std::int32_t& count) {
  WalkSubKeys(
      program, root, key, count, [&program] { Panel(program).lstBHO.Clear(); },
      [&program](const std::string& name, std::int32_t index) {
        AddHelperObject(program, name, index);
      });
}

void SubKeyCountMenuExt(Program& program, KeyHandle root, const std::string& key,
                        std::int32_t& count) {
  WalkSubKeys(
      program, root, key, count, [] {},
      [&program](const std::string& name, std::int32_t index) {
        AddMenuExtension(program, name, index);
      });
}

void SubKeyCountButton(Program& program, KeyHandle root, const std::string& key,
                       std::int32_t& count) {
  WalkSubKeys(
      program, root, key, count, [] {},
      [&program, root, &key](const std::string& name, std::int32_t index) {
        AddButton(program, root, key, name, index);
      });
}

void SubKeyCounttb(Program& program, KeyHandle root, const std::string& key, std::int32_t& count) {
  WalkSubKeys(
      program, root, key, count, [] {},
      [&program](const std::string& name, std::int32_t index) {
        forms::ListItem& item =
            Panel(program).lstBHO.Add("B" + std::to_string(index), "ToolBar", "tb");
        item.AddSubItem("F1", "name");
        item.AddSubItem("D1", WithoutLeadingBlanks(name));
      });
}

void EnumToolbarValues(Program& program, KeyHandle root, const std::string& key) {
  constexpr std::uint32_t NoAccess = 0;
  constexpr std::uint32_t LastIndex = 999999;
  constexpr std::uint32_t NameRoom = 260;
  constexpr std::uint32_t DataRoom = 4096;
  platform::Registry& registry = program.platform.registry;
  KeyHandle handle = root;
  if (!key.empty() &&
      registry.RegOpenKeyExA(root, key, NoAccess, handle) != platform::ErrorSuccess) {
    return;
  }
  const ClosedAtEnd closed{registry, handle};
  std::int32_t counter = 0;
  std::string name;
  std::string data;
  std::uint32_t type = 0;
  for (std::uint32_t index = 0; index <= LastIndex; ++index) {
    if (registry.RegEnumValueA(handle, index, NameRoom, name, type, DataRoom, data) !=
        platform::ErrorSuccess) {
      break;
    }
    const bool isToolbar = type == platform::RegSz || type == platform::RegBinary;
    if (isToolbar) AddToolbar(program, name, counter++);
  }
}

void LoadPluginList(Program& program) {
  FrmFrameIEPlugin& panel = Panel(program);
  text::ErrorTrap trap;
  std::int32_t count = 0;
  SubKeyCount(program, platform::HKeyLocalMachine, HelperObjectsKey, count);
  panel.lblTotalBHO.SetCaption(" Total:" + std::to_string(count) + " BHO(s) found.");
  ShowPluginFolder(program, trap);
  AddPluginFiles(program, trap);
  EnumToolbarValues(program, platform::HKeyLocalMachine, ToolbarValuesKey);
  SubKeyCountMenuExt(program, platform::HKeyCurrentUser, MenuExtKey, count);
  SubKeyCountButton(program, platform::HKeyLocalMachine, ExtensionsKey, count);
  panel.lblTotalBHO.SetCaption(" Total:" + std::to_string(panel.lstBHO.Count()) +
                               " BHO's/Plug-ins found.");
  if (trap.Last()) program.MsgBox("Some error occured: " + trap.Last()->Description());
}

}  // namespace vantrel::iemaintenance
