#include "platform/memory/TracedPlatform.h"

#include <algorithm>
#include <utility>

#include "platform/memory/Misuse.h"

namespace vantrel::platform::memory {
namespace {

// "0x" and capital hexadecimal digits.
std::string HexText(std::uint64_t number) {
  std::string digits;
  do {
    digits.insert(digits.begin(), "0123456789ABCDEF"[number & 0xF]);
    number >>= 4;
  } while (number != 0);
  return "0x" + digits;
}

// Arguments whose text is made only when it is asked for.
struct Hex {
  std::uint64_t number;
  std::string Text() const { return HexText(number); }
};

struct Key {
  const HandleNames& names;
  KeyHandle handle;
  const std::string& subkey;

  std::string Text() const {
    std::string path = names.key(handle);
    if (path.empty()) path = HexText(handle);
    return subkey.empty() ? path : path + '\\' + subkey;
  }
};

struct Window {
  const HandleNames& names;
  WindowHandle handle;

  std::string Text() const {
    const std::string name = names.window(handle);
    return name.empty() ? HexText(handle) : name;
  }
};

struct Module {
  const HandleNames& names;
  ModuleHandle handle;

  std::string Text() const {
    const std::string path = names.module(handle);
    return path.empty() ? HexText(handle) : '"' + path + '"';
  }
};

struct Entry {
  const HandleNames& names;
  EntryAddress address;

  std::string Text() const { return '"' + names.entry(address) + '"'; }
};

// A stored value: a string in quotes, any other byte by byte.
struct Data {
  std::uint32_t type;
  std::string_view bytes;

  std::string Text() const {
    std::string text = std::to_string(type);
    if (type == RegSz) return text + " \"" + std::string(bytes) + '"';
    for (const char byte : bytes) {
      text += ' ' + HexText(static_cast<unsigned char>(byte)).substr(2);
    }
    return text;
  }
};

template <typename Family>
class Traced : public Family {
 public:
  Traced(Family& next, CallGate& gate, const HandleNames& names)
      : next_(next), gate_(gate), names_(names) {}

 protected:
  memory::Key Key(KeyHandle handle, const std::string& subkey = None) const {
    return {names_, handle, subkey};
  }
  memory::Window Window(WindowHandle handle) const { return {names_, handle}; }
  memory::Module Module(ModuleHandle handle) const { return {names_, handle}; }
  memory::Entry Entry(EntryAddress address) const { return {names_, address}; }

  Family& next_;
  CallGate& gate_;

 private:
  static inline const std::string None;

  const HandleNames& names_;
};

class TracedRegistry : public Traced<Registry> {
 public:
  using Traced::Traced;

  std::int32_t RegOpenKeyExA(KeyHandle root, const std::string& subkey, std::uint32_t access,
                             KeyHandle& opened) override {
    return gate_.Code(
        "RegOpenKeyExA", [&] { return next_.RegOpenKeyExA(root, subkey, access, opened); },
        Key(root, subkey), Hex{access});
  }

  std::int32_t RegOpenKeyA(KeyHandle root, const std::string& subkey, KeyHandle& opened) override {
    return gate_.Code(
        "RegOpenKeyA", [&] { return next_.RegOpenKeyA(root, subkey, opened); }, Key(root, subkey));
  }

  std::int32_t RegCreateKeyExA(KeyHandle root, const std::string& subkey, std::uint32_t access,
                               bool withSecurityRecord, KeyHandle& opened) override {
    return gate_.Code(
        "RegCreateKeyExA",
        [&] { return next_.RegCreateKeyExA(root, subkey, access, withSecurityRecord, opened); },
        Key(root, subkey), Hex{access}, withSecurityRecord ? "with a security record" : "");
  }

  std::int32_t RegQueryValueExA(KeyHandle key, const std::string& valueName, std::uint32_t& type,
                                std::span<char> buffer, std::uint32_t& length) override {
    return gate_.Code(
        "RegQueryValueExA",
        [&] { return next_.RegQueryValueExA(key, valueName, type, buffer, length); }, Key(key),
        valueName, length);
  }

  std::int32_t RegSetValueExA(KeyHandle key, const std::string& valueName, std::uint32_t type,
                              std::string_view data) override {
    return gate_.Code(
        "RegSetValueExA", [&] { return next_.RegSetValueExA(key, valueName, type, data); },
        Key(key), valueName, Data{type, data});
  }

  std::int32_t RegDeleteKeyA(KeyHandle root, const std::string& subkey) override {
    return gate_.Code(
        "RegDeleteKeyA", [&] { return next_.RegDeleteKeyA(root, subkey); }, Key(root, subkey));
  }

  std::int32_t RegDeleteValueA(KeyHandle key, const std::string& valueName) override {
    return gate_.Code(
        "RegDeleteValueA", [&] { return next_.RegDeleteValueA(key, valueName); }, Key(key),
        valueName);
  }

  std::int32_t RegEnumValueA(KeyHandle key, std::uint32_t index, std::uint32_t nameRoom,
                             std::string& name, std::uint32_t& type, std::uint32_t dataRoom,
                             std::string& data) override {
    return gate_.Code(
        "RegEnumValueA",
        [&] { return next_.RegEnumValueA(key, index, nameRoom, name, type, dataRoom, data); },
        Key(key), index);
  }

  std::int32_t RegEnumKeyA(KeyHandle key, std::uint32_t index, std::uint32_t nameRoom,
                           std::string& name) override {
    return gate_.Code(
        "RegEnumKeyA", [&] { return next_.RegEnumKeyA(key, index, nameRoom, name); }, Key(key),
        index);
  }

  std::int32_t RegCloseKey(KeyHandle key) override {
    return gate_.Code(
        "RegCloseKey", [&] { return next_.RegCloseKey(key); }, Key(key));
  }
};

class TracedDesktop : public Traced<platform::Desktop> {
 public:
  using Traced::Traced;

  void InitCommonControls() override {
    gate_.Void("InitCommonControls", [&] { next_.InitCommonControls(); });
  }

  void EnumWindows(const Visitor& visit) override {
    gate_.Void("EnumWindows", [&] { next_.EnumWindows(visit); });
  }

  void EnumChildWindows(WindowHandle parent, const Visitor& visit) override {
    gate_.Void(
        "EnumChildWindows", [&] { next_.EnumChildWindows(parent, visit); }, Window(parent));
  }

  int GetWindowTextA(WindowHandle window, std::span<char> buffer) override {
    return gate_.Value(
        "GetWindowTextA", [&] { return next_.GetWindowTextA(window, buffer); }, Window(window),
        buffer.size());
  }

  WindowHandle GetParent(WindowHandle window) override {
    return gate_.Value(
        "GetParent", [&] { return next_.GetParent(window); }, Window(window));
  }

  bool IsIconic(WindowHandle window) override {
    return gate_.Value(
        "IsIconic", [&] { return next_.IsIconic(window); }, Window(window));
  }

  void ShowWindow(WindowHandle window, int command) override {
    gate_.Void(
        "ShowWindow", [&] { next_.ShowWindow(window, command); }, Window(window), command);
  }

  void SetForegroundWindow(WindowHandle window) override {
    gate_.Void(
        "SetForegroundWindow", [&] { next_.SetForegroundWindow(window); }, Window(window));
  }

  void SetParent(WindowHandle child, WindowHandle parent) override {
    gate_.Void(
        "SetParent", [&] { next_.SetParent(child, parent); }, Window(child), Window(parent));
  }

  void SendMessageA(WindowHandle window, std::uint32_t message, std::uintptr_t first,
                    std::uintptr_t second) override {
    gate_.Void(
        "SendMessageA", [&] { next_.SendMessageA(window, message, first, second); }, Window(window),
        message, first, second);
  }

  void SendTextMessageA(WindowHandle window, std::uint32_t message, std::uintptr_t first,
                        const std::string& text) override {
    gate_.Void(
        "SendMessageA", [&] { next_.SendTextMessageA(window, message, first, text); },
        Window(window), message, first, text);
  }

  void SetWindowLongA(WindowHandle window, int index, std::int32_t value) override {
    gate_.Void(
        "SetWindowLongA", [&] { next_.SetWindowLongA(window, index, value); }, Window(window),
        index, value);
  }

  void keybd_event(std::uint8_t key, std::uint8_t scan, std::uint32_t flags,
                   std::uintptr_t extra) override {
    gate_.Void(
        "keybd_event", [&] { next_.keybd_event(key, scan, flags, extra); }, key, scan, flags,
        extra);
  }

  Point GetCursorPos() override {
    Point point;
    gate_.Void("GetCursorPos", [&] { point = next_.GetCursorPos(); });
    return point;
  }

  WindowHandle WindowFromPoint(Point point) override {
    return gate_.Value(
        "WindowFromPoint", [&] { return next_.WindowFromPoint(point); }, point.x, point.y);
  }
};

class TracedShell : public Traced<Shell> {
 public:
  using Traced::Traced;

  bool Shell_NotifyIconA(std::uint32_t message, const NotifyIconData& data) override {
    return gate_.Value(
        "Shell_NotifyIconA", [&] { return next_.Shell_NotifyIconA(message, data); }, message, "id",
        data.uID);
  }

  std::intptr_t ShellExecuteA(WindowHandle owner, const std::string& verb, const std::string& file,
                              const std::string& parameters, const std::string& directory,
                              int showCommand) override {
    return gate_.Run(
        "ShellExecuteA",
        [&] { return next_.ShellExecuteA(owner, verb, file, parameters, directory, showCommand); },
        // Its failures are the numbers up to 32.
        [](std::int32_t code) { return std::clamp(code, 0, 32); }, verb, file, parameters,
        directory, showCommand);
  }

  std::int32_t SHGetSpecialFolderLocation(WindowHandle owner, int folder, ItemList& list) override {
    return gate_.Code(
        "SHGetSpecialFolderLocation",
        [&] { return next_.SHGetSpecialFolderLocation(owner, folder, list); }, Window(owner),
        folder);
  }

  bool SHGetPathFromIDListA(ItemList list, std::span<char> buffer) override {
    return gate_.Value("SHGetPathFromIDListA",
                       [&] { return next_.SHGetPathFromIDListA(list, buffer); });
  }

  ItemList SHBrowseForFolderA(const BrowseInfo& info) override {
    return gate_.Value(
        "SHBrowseForFolderA", [&] { return next_.SHBrowseForFolderA(info); }, Window(info.Owner),
        info.Prompt, info.Flags);
  }

  void CoTaskMemFree(ItemList list) override {
    gate_.Void("CoTaskMemFree", [&] { next_.CoTaskMemFree(list); });
  }

  std::int32_t SHEmptyRecycleBinA(WindowHandle owner, const std::string& root,
                                  std::uint32_t flags) override {
    return gate_.Code(
        "SHEmptyRecycleBinA", [&] { return next_.SHEmptyRecycleBinA(owner, root, flags); },
        Window(owner), root, flags);
  }

  void SHUpdateRecycleBinIcon() override {
    gate_.Void("SHUpdateRecycleBinIcon", [&] { next_.SHUpdateRecycleBinIcon(); });
  }
};

class TracedFiles : public Traced<Files> {
 public:
  using Traced::Traced;

  bool FileExists(const std::string& path) override {
    return gate_.Value(
        "FileExists", [&] { return next_.FileExists(path); }, path);
  }

  std::int32_t FileLength(const std::string& path, std::uint64_t& length) override {
    return gate_.Code(
        "FileLength", [&] { return next_.FileLength(path, length); }, path);
  }

  std::int32_t ReadTextFile(const std::string& path, std::string& content) override {
    content.clear();  // as after a failure
    return gate_.Code(
        "ReadTextFile", [&] { return next_.ReadTextFile(path, content); }, path);
  }

  std::int32_t CreateTextFile(const std::string& path) override {
    return gate_.Code(
        "CreateTextFile", [&] { return next_.CreateTextFile(path); }, path);
  }

  std::int32_t WriteTextFile(const std::string& path, const std::string& content) override {
    return gate_.Code(
        "WriteTextFile", [&] { return next_.WriteTextFile(path, content); }, path, content.size());
  }

  std::int32_t AppendTextFile(const std::string& path, const std::string& content) override {
    return gate_.Code(
        "AppendTextFile", [&] { return next_.AppendTextFile(path, content); }, path,
        content.size());
  }
};

class TracedProcesses : public Traced<Processes> {
 public:
  using Traced::Traced;

  std::int32_t CreateProcessA(const std::string& application, const std::string& commandLine,
                              int showCommand) override {
    return gate_.Code(
        "CreateProcessA",
        [&] { return next_.CreateProcessA(application, commandLine, showCommand); }, application,
        commandLine, showCommand);
  }
};

class TracedSound : public Traced<Sound> {
 public:
  using Traced::Traced;

  bool sndPlaySoundA(const std::string& path, std::uint32_t flags) override {
    return gate_.Value(
        "sndPlaySoundA", [&] { return next_.sndPlaySoundA(path, flags); }, path, flags);
  }
};

class TracedDialogs : public Traced<Dialogs> {
 public:
  using Traced::Traced;

  int MessageBoxA(WindowHandle owner, const std::string& text, const std::string& title,
                  std::uint32_t style) override {
    return gate_.Value(
        "MessageBoxA", [&] { return next_.MessageBoxA(owner, text, title, style); }, text, title,
        style);
  }
};

class TracedSystem : public Traced<System> {
 public:
  using Traced::Traced;

  std::int32_t GetVersionExA(VersionRecord& record) override {
    return gate_.Value(
        "GetVersionExA", [&] { return next_.GetVersionExA(record); }, record.size);
  }

  std::string CommandLineTail() override {
    return gate_.Sure("CommandLineTail", [&] { return next_.CommandLineTail(); });
  }

  std::string ProgramFolder() override {
    return gate_.Sure("ProgramFolder", [&] { return next_.ProgramFolder(); });
  }

  std::string ProgramName() override {
    return gate_.Sure("ProgramName", [&] { return next_.ProgramName(); });
  }

  bool PreviousInstanceRuns() override {
    return gate_.Value("PreviousInstanceRuns", [&] { return next_.PreviousInstanceRuns(); });
  }

  std::string WindowsFolder() override {
    return gate_.Sure("WindowsFolder", [&] { return next_.WindowsFolder(); });
  }

  std::string ThousandsSeparator() override {
    return gate_.Sure("ThousandsSeparator", [&] { return next_.ThousandsSeparator(); });
  }

  std::string ShortDate() override {
    return gate_.Sure("ShortDate", [&] { return next_.ShortDate(); });
  }

  std::string ShortTime() override {
    return gate_.Sure("ShortTime", [&] { return next_.ShortTime(); });
  }

  bool HighContrast() override {
    return gate_.Sure("HighContrast", [&] { return next_.HighContrast(); });
  }

  std::uint32_t GetTickCount() override {
    return gate_.Sure("GetTickCount", [&] { return next_.GetTickCount(); });
  }
};

class TracedModules : public Traced<Modules> {
 public:
  using Traced::Traced;

  ModuleHandle LoadLibraryA(const std::string& path) override {
    return gate_.Value(
        "LoadLibraryA", [&] { return next_.LoadLibraryA(path); }, path);
  }

  EntryAddress GetProcAddress(ModuleHandle module, const std::string& name) override {
    return gate_.Value(
        "GetProcAddress", [&] { return next_.GetProcAddress(module, name); }, Module(module), name);
  }

  bool FreeLibrary(ModuleHandle module) override {
    return gate_.Value(
        "FreeLibrary", [&] { return next_.FreeLibrary(module); }, Module(module));
  }

  ThreadHandle CreateThread(std::uint32_t security, std::uint32_t stackSize, EntryAddress routine,
                            std::uintptr_t parameter, std::uint32_t flags,
                            std::uint32_t& identifier) override {
    return gate_.Value(
        "CreateThread",
        [&] {
          return next_.CreateThread(security, stackSize, routine, parameter, flags, identifier);
        },
        security, stackSize, Entry(routine), parameter, flags);
  }

  std::uint32_t WaitForSingleObject(ThreadHandle thread, std::uint32_t milliseconds) override {
    return gate_.Run(
        "WaitForSingleObject", [&] { return next_.WaitForSingleObject(thread, milliseconds); },
        [](std::int32_t) { return WaitFailed; }, Hex{thread}, milliseconds);
  }

  bool GetExitCodeThread(ThreadHandle thread, std::uint32_t& exitCode) override {
    return gate_.Value(
        "GetExitCodeThread", [&] { return next_.GetExitCodeThread(thread, exitCode); },
        Hex{thread});
  }

  [[noreturn]] void ExitThread(std::uint32_t exitCode) override {
    // It cannot fail.
    gate_.Void(
        "ExitThread", [] {}, exitCode);
    next_.ExitThread(exitCode);
    Misuse("ExitThread came back");
  }

  bool CloseHandle(ThreadHandle thread) override {
    return gate_.Value(
        "CloseHandle", [&] { return next_.CloseHandle(thread); }, Hex{thread});
  }
};

class TracedFolders : public Traced<Folders> {
 public:
  using Traced::Traced;

  bool FolderExists(const std::string& path) override {
    return gate_.Value(
        "FolderExists", [&] { return next_.FolderExists(path); }, path);
  }

  std::int32_t ListFolder(const std::string& pattern,
                          std::vector<DirectoryEntry>& entries) override {
    const auto list = [&] { return next_.ListFolder(pattern, entries); };
    const std::size_t before = entries.size();
    return gate_.Run(
        "ListFolder", list,
        [&](std::int32_t code) {
          if (gate_.faults.EntriesBeforeFailure() == 0) return code;
          list();
          entries.resize(std::min(entries.size(), before + gate_.faults.EntriesBeforeFailure()));
          return code;
        },
        pattern);
  }

  std::int32_t DeleteFileA(const std::string& path) override {
    return gate_.Code(
        "DeleteFileA", [&] { return next_.DeleteFileA(path); }, path);
  }

  std::int32_t RemoveDirectoryA(const std::string& path) override {
    return gate_.Code(
        "RemoveDirectoryA", [&] { return next_.RemoveDirectoryA(path); }, path);
  }

  std::int32_t SetFileAttributesA(const std::string& path, std::uint32_t attributes) override {
    return gate_.Code(
        "SetFileAttributesA", [&] { return next_.SetFileAttributesA(path, attributes); }, path,
        attributes);
  }

  bool MakeSureDirectoryPathExists(const std::string& path) override {
    return gate_.Value(
        "MakeSureDirectoryPathExists", [&] { return next_.MakeSureDirectoryPathExists(path); },
        path);
  }
};

const char* AccessText(FileAccess access) {
  switch (access) {
    case FileAccess::Read:
      return "read";
    case FileAccess::ReadWrite:
      return "write";
    case FileAccess::ReadWriteNoLink:
      return "write, no link";
  }
  return "";
}

class TracedBinaryFiles : public Traced<BinaryFiles> {
 public:
  using Traced::Traced;

  std::int32_t OpenFile(const std::string& path, FileAccess access,
                        OpenFileHandle& opened) override {
    return gate_.Code(
        "OpenFile", [&] { return next_.OpenFile(path, access, opened); }, path, AccessText(access));
  }

  std::uint64_t FileLength(OpenFileHandle file) override {
    return gate_.Value("OpenFileLength", [&] { return next_.FileLength(file); });
  }

  std::int32_t ReadAt(OpenFileHandle file, std::uint64_t offset, std::span<char> buffer,
                      std::size_t& count) override {
    count = 0;  // as after a failure
    return gate_.Code(
        "ReadAt", [&] { return next_.ReadAt(file, offset, buffer, count); }, offset, buffer.size());
  }

  std::int32_t WriteAt(OpenFileHandle file, std::uint64_t offset, std::string_view bytes) override {
    return gate_.Code(
        "WriteAt", [&] { return next_.WriteAt(file, offset, bytes); }, offset, bytes.size());
  }

  void CloseFile(OpenFileHandle file) override {
    gate_.Void("CloseFile", [&] { next_.CloseFile(file); });
  }
};

}  // namespace

struct TracedPlatform::Decorators {
  Decorators(const platform::Platform& next, CallGate& gate, const HandleNames& names)
      : registry(next.registry, gate, names),
        desktop(next.desktop, gate, names),
        shell(next.shell, gate, names),
        files(next.files, gate, names),
        processes(next.processes, gate, names),
        sound(next.sound, gate, names),
        dialogs(next.dialogs, gate, names),
        system(next.system, gate, names),
        modules(next.modules, gate, names),
        folders(next.folders, gate, names),
        binaryFiles(next.binaryFiles, gate, names),
        all{registry, desktop, shell,   files,   processes,  sound,
            dialogs,  system,  modules, folders, binaryFiles} {}

  TracedRegistry registry;
  TracedDesktop desktop;
  TracedShell shell;
  TracedFiles files;
  TracedProcesses processes;
  TracedSound sound;
  TracedDialogs dialogs;
  TracedSystem system;
  TracedModules modules;
  TracedFolders folders;
  TracedBinaryFiles binaryFiles;
  platform::Platform all;
};

TracedPlatform::TracedPlatform(const platform::Platform& next, CallGate& gate, HandleNames names)
    : names_(std::move(names)), decorators_(std::make_unique<Decorators>(next, gate, names_)) {}

TracedPlatform::~TracedPlatform() = default;

platform::Platform TracedPlatform::Platform() const { return decorators_->all; }

}  // namespace vantrel::platform::memory
