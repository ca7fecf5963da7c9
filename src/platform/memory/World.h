// The in-memory Windows: all that its processes share. Any number of processes live in one world,
// on one thread; it holds no global state, so worlds are independent of each other. What each part
// does not model stands in its own header; the world as a whole has no threads but those that
// Libraries has, no users but one, no sessions and no network.
#ifndef VANTREL_PLATFORM_MEMORY_WORLD_H_
#define VANTREL_PLATFORM_MEMORY_WORLD_H_

#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/Shell.h"
#include "platform/System.h"
#include "platform/memory/Calls.h"
#include "platform/memory/Clock.h"
#include "platform/memory/Desktop.h"
#include "platform/memory/FileTree.h"
#include "platform/memory/Libraries.h"
#include "platform/memory/Programs.h"
#include "platform/memory/RegistryTree.h"
#include "platform/memory/Tray.h"

namespace vantrel::platform::memory {

struct PlayedSound {
  ProcessId process = 0;
  std::string path;
  std::uint32_t flags = 0;
};

struct OpenedDocument {
  ProcessId process = 0;
  WindowHandle owner = 0;
  std::string verb;
  std::string file;
  std::string parameters;
  std::string directory;
  int showCommand = 0;
};

// The folder picker while it is open: how it was opened, and the folder that it is to select.
struct FolderPicker {
  BrowseInfo Info;
  std::string Selected;
};

struct World {
  World() : programs(files), libraries(files) {}
  World(const World&) = delete;
  World& operator=(const World&) = delete;

  RegistryTree registry;
  Desktop desktop;
  Clock clock;
  FileTree files;
  Programs programs;
  Libraries libraries;
  Tray tray;

  std::vector<PlayedSound> playedSounds;
  std::vector<OpenedDocument> openedDocuments;

  // The shell's special folders by number, and the paths behind the item lists that are not freed.
  std::map<int, std::string> specialFolders;
  std::map<ItemList, std::string> itemLists;
  ItemList nextItemList = 1;
  // Chooses in the folder picker; the empty text is a cancel. A picker without it is a misuse.
  std::function<std::string(const FolderPicker&)> pickFolder;
  // What lies in the Recycle Bin.
  std::vector<std::string> recycleBin;

  // The user's formats.
  std::string thousandsSeparator = ",";

  // The user's scheme of colours.
  bool highContrast = false;

  // The calls of all processes.
  Trace trace;

  // What GetVersionExA gives: Windows XP. The size is ignored.
  VersionRecord version{156, 5, 1, 2600, 2};

  // Who has claimed a program's name as a running instance.
  std::set<std::pair<std::string, ProcessId>> claims;
  ProcessId nextProcess = 1000;
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_WORLD_H_
