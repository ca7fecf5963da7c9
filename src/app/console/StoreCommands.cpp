#include <algorithm>

#include "app/console/Commands.h"
#include "app/console/State.h"
#include "platform/memory/RegFile.h"
#include "text/Strings.h"

namespace vantrel::console {
namespace {

namespace memory = platform::memory;

constexpr std::size_t DeepestKey = 512;

const Words& RootNames() {
  static const Words names{"HKCR", "HKCU", "HKLM", "HKU", "HKCC"};
  return names;
}

struct KeyPath {
  platform::KeyHandle root = 0;
  std::string subkey;  // empty for the root itself
};

// "HKCU\Software" or "HKEY_CURRENT_USER\Software".
KeyPath ParseKey(const std::string& text) {
  const std::size_t end = std::min(text.find('\\'), text.size());
  std::string root = text.substr(0, end);
  if (memory::RegistryTree::RootNamed(root) == 0) {
    root = RootNames()[PickName("registry root", root, RootNames())];
  }
  const Words parts = memory::PathParts(std::string_view(text).substr(end));
  if (parts.size() > DeepestKey) throw CommandError("the key lies too deep");
  for (const std::string& part : parts) {
    if (part.size() > memory::MaxKeyNameLength) throw CommandError("a key's name is too long");
  }
  return {memory::RegistryTree::RootNamed(root), Joined(parts, "\\")};
}

KeyPath ExistingKey(Session& session, const std::string& word) {
  KeyPath key = ParseKey(word);
  if (session.World().registry.HasKey(key.root, key.subkey)) return key;
  throw CommandError("no key " + Brief(word));
}

std::string ExportedKey(Session& session, const std::string& word) {
  const KeyPath key = ExistingKey(session, word);
  return Exported(session.World().registry, key.root, key.subkey);
}

void ShowRegistry(Session& session, const Words& words) {
  for (const std::string& word : words.empty() ? RootNames() : words) {
    const std::string exported = ExportedKey(session, word);
    for (std::string_view rest = exported; !rest.empty();) {
      const std::string_view line = text::TakeLine(rest);
      if (!line.empty()) session.Say(Printable(line));
    }
  }
}

// Pairs of hexadecimal digits.
std::string BytesOf(const std::string& digits) {
  if (digits.size() % 2 != 0) throw CommandError("the bytes must be pairs of hexadecimal digits");
  std::string data;
  for (std::size_t i = 0; i < digits.size(); i += 2) {
    data.push_back(static_cast<char>(ParseNumber("0x" + digits.substr(i, 2), 0, 255, "a byte")));
  }
  return data;
}

void SetRegistry(Session& session, const Words& words) {
  const KeyPath key = ParseKey(words[0]);
  const std::string& name = words[1];
  if (name.size() > memory::MaxValueNameLength) throw CommandError("the value's name is too long");
  const Words data(words.begin() + 3, words.end());
  memory::RegistryTree& registry = session.World().registry;
  const auto set = [&](std::uint32_t type, const std::string& bytes) {
    registry.Set(key.root, key.subkey, name, type, bytes);
  };
  const std::string end(1, '\0');
  const std::size_t type =
      PickName("type", words[2], {"binary", "multi", "string", "expand", "dword"});
  if (type == 0) return set(platform::RegBinary, BytesOf(Joined(data, "")));
  if (type == 1) return set(platform::RegMultiSz, Joined(data, end) + end + end);
  if (data.size() != 1) throw CommandError("the data must be one word; put it in quotes");
  if (type < 4) return set(type == 2 ? platform::RegSz : platform::RegExpandSz, data[0] + end);
  const auto number = ParseNumber(data[0], 0, 0xFFFFFFFFLL, "the number");
  registry.SetDword(key.root, key.subkey, name, static_cast<std::uint32_t>(number));
}

void DeleteRegistry(Session& session, const Words& words) {
  memory::RegistryTree& registry = session.World().registry;
  const KeyPath key = ExistingKey(session, words[0]);
  if (words.size() == 1 && key.subkey.empty()) throw CommandError("a root cannot be deleted");
  if (words.size() == 1) return registry.RemoveKey(key.root, key.subkey);
  if (!registry.Get(key.root, key.subkey, words[1])) {
    throw CommandError("no value " + Brief(words[1]));
  }
  registry.RemoveValue(key.root, key.subkey, words[1]);
}

void RefuseRegistry(Session& session, const Words& words) {
  constexpr memory::Refusal Refusals[] = {memory::Refusal::None, memory::Refusal::Write,
                                          memory::Refusal::All};
  const KeyPath key = ExistingKey(session, words[0]);
  const std::size_t place = PickName("right", words[1], {"none", "write", "all"});
  session.World().registry.Refuse(key.root, key.subkey, Refusals[place]);
}

void LoadRegistry(Session& session, const Words& words) {
  if (memory::ImportReg(session.World().registry, ReadRealFile(words[0]))) return;
  throw CommandError(Brief(words[0]) + " is no registration file");
}

// With backslashes, none at the end; without a drive it lies in the program's folder.
std::string FullPath(std::string path) {
  std::replace(path.begin(), path.end(), '/', '\\');
  while (path.ends_with('\\')) path.pop_back();
  return path.find(':') == std::string::npos ? "C:\\Program Files\\Vantrel\\" + path : path;
}

// Of a file, folder or link; a drive is none.
std::string ExistingPath(Session& session, const std::string& word) {
  std::string path = FullPath(word);
  if (path.size() > 3 && session.World().files.Exists(path)) return path;
  throw CommandError("no file " + Brief(path));
}

std::string ContentOf(Session& session, const std::string& word) {
  const auto content = session.World().files.Read(FullPath(word));
  if (!content) throw CommandError("no file " + Brief(FullPath(word)));
  return *content;
}

// What a file or folder can be marked as; each pair sets and clears.
struct Mark {
  const char* name;
  std::uint32_t attribute;  // 0 for the lock
  bool set;
};

constexpr Mark Marks[] = {
    {"readonly", platform::AttributeReadOnly, true},
    {"writable", platform::AttributeReadOnly, false},
    {"hidden", platform::AttributeHidden, true},
    {"visible", platform::AttributeHidden, false},
    {"system", platform::AttributeSystem, true},
    {"ordinary", platform::AttributeSystem, false},
    {"locked", 0, true},
    {"free", 0, false},
};

void MarkFile(Session& session, const Words& words) {
  memory::FileTree& files = session.World().files;
  const std::string path = ExistingPath(session, words[0]);
  const Mark& mark = Marks[PickName("mark", words[1], Texts(Marks, &Mark::name))];
  if (mark.attribute == 0) return files.SetLocked(path, mark.set);
  const std::uint32_t others = files.AttributesOf(path) & ~mark.attribute;
  files.SetAttributes(path, mark.set ? others | mark.attribute : others);
}

void ListFiles(Session& session, const Words& words) {
  const memory::FileTree& files = session.World().files;
  const std::string folder = words.empty() ? "C:" : FullPath(words[0]);
  if (!files.IsFolder(folder)) throw CommandError("no folder " + Brief(folder));
  Walk(files, folder, [&](const std::string& path) {
    const auto content = files.Read(path);
    std::string line = path + (content ? "  " + std::to_string(content->size()) : "\\");
    for (const Mark& mark : Marks) {
      const std::uint32_t attribute = files.AttributesOf(path) & mark.attribute;
      const bool marked = mark.attribute == 0 ? files.IsLocked(path) : attribute != 0;
      if (mark.set && marked) line += std::string(" ") + mark.name;
    }
    session.Say(Printable(line) + (IsLink(files, path) ? " link" : ""));
  });
}

void ShowFile(Session& session, const Words& words) {
  const std::string content = ContentOf(session, words[0]);
  for (std::string_view rest = content; !rest.empty();) {
    session.Say("  " + Printable(text::TakeLine(rest)));
  }
}

void MakeLink(Session& session, const Words& words) {
  memory::FileTree& files = session.World().files;
  const std::string path = FullPath(words[0]);
  const std::string target = ExistingPath(session, words[1]);
  MakeFolder(files, path.substr(0, path.rfind('\\')));
  if (files.Exists(path)) throw CommandError("there is something at " + Brief(path));
  files.MakeLink(path, target);
}

void Recycle(Session& session, const Words& words) {
  memory::World& world = session.World();
  if (words.empty()) return session.SayAll(world.recycleBin, "", "nothing");
  for (const std::string& word : words) {
    world.recycleBin.push_back(ExistingPath(session, word));
    world.files.Remove(world.recycleBin.back());
  }
}

constexpr Command Table[] = {
    {"registry show", "[KEY]",
     "shows a key with all below it, or the whole registry, as in a .reg file", ShowRegistry},
    {"registry set", "KEY NAME TYPE DATA ...",
     "sets a value: string, expand, dword, binary or multi; \"\" is the default value",
     SetRegistry},
    {"registry delete", "KEY [NAME]", "deletes a key with all below it, or a value",
     DeleteRegistry},
    {"registry refuse", "KEY none|write|all",
     "takes the user's rights to a key, or gives them back", RefuseRegistry},
    {"registry family", "nt|9x",
     "reads a key that was opened with an empty mask as that family of systems does",
     [](Session& session, const Words& words) {
       session.World().registry.readsWithoutAccess =
           PickName("family", words[0], {"nt", "9x"}) == 1;
     }},
    {"registry load", "FILE", "loads a .reg file of the real disk", LoadRegistry},
    {"registry save", "FILE KEY", "saves a key as a .reg file (REGEDIT4) on the real disk",
     [](Session& session, const Words& words) {
       WriteRealFile(words[0], RegHeader + ExportedKey(session, words[1]));
     }},
    {"files list", "[FOLDER]", "lists the folders and files of the in-memory disk", ListFiles},
    {"files show", "PATH", "shows a file", ShowFile},
    {"files put", "PATH [LINE ...]", "makes a file of these lines",
     [](Session& session, const Words& words) {
       std::string content;
       for (std::size_t i = 1; i < words.size(); ++i) content += words[i] + "\r\n";
       PutFile(session.World().files, FullPath(words[0]), content);
     }},
    {"files folder", "PATH", "makes a folder",
     [](Session& session, const Words& words) {
       MakeFolder(session.World().files, FullPath(words[0]));
     }},
    {"files link", "PATH TARGET", "makes a link, like a junction, to a file or folder", MakeLink},
    {"files delete", "PATH", "deletes a file, or a folder with all in it",
     [](Session& session, const Words& words) {
       session.World().files.Remove(ExistingPath(session, words[0]));
     }},
    {"files mark", "PATH readonly|writable|hidden|visible|system|ordinary|locked|free",
     "sets or clears an attribute, or the lock that another program holds", MarkFile},
    {"files load", "FILE PATH", "copies a file of the real disk in",
     [](Session& session, const Words& words) {
       PutFile(session.World().files, FullPath(words[1]), ReadRealFile(words[0]));
     }},
    {"files save", "PATH FILE", "copies a file out to the real disk",
     [](Session& session, const Words& words) {
       WriteRealFile(words[1], ContentOf(session, words[0]));
     }},
    {"bin", "[PATH ...]", "moves files and folders into the Recycle Bin, or lists what lies there",
     Recycle},
};

}  // namespace

std::span<const Command> StoreCommands() { return Table; }

}  // namespace vantrel::console
