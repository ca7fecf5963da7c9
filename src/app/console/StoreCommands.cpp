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

// Of every type but a number's.
std::string DataOf(std::uint32_t type, const Words& words) {
  const std::string end(1, '\0');
  if (type == platform::RegBinary) return BytesOf(Joined(words, ""));
  if (type == platform::RegMultiSz) return Joined(words, end) + end + end;
  return words[0] + end;
}

void SetRegistry(Session& session, const Words& words) {
  constexpr std::uint32_t Types[] = {platform::RegSz, platform::RegExpandSz, platform::RegDword,
                                     platform::RegBinary, platform::RegMultiSz};
  const KeyPath key = ParseKey(words[0]);
  const std::string& name = words[1];
  if (name.size() > memory::MaxValueNameLength) throw CommandError("the value's name is too long");
  const std::size_t row =
      PickName("type", words[2], {"string", "expand", "dword", "binary", "multi"});
  if (row < 3 && words.size() != 4) {
    throw CommandError("the data must be one word; put it in quotes");
  }
  if (Types[row] == platform::RegDword) {
    const auto number = ParseNumber(words[3], 0, 0xFFFFFFFFLL, "the number");
    return session.World().registry.SetDword(key.root, key.subkey, name,
                                             static_cast<std::uint32_t>(number));
  }
  session.World().registry.Set(key.root, key.subkey, name, Types[row],
                               DataOf(Types[row], Words(words.begin() + 3, words.end())));
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

// With backslashes; without a drive it lies in the program's folder.
std::string FullPath(std::string path) {
  std::replace(path.begin(), path.end(), '/', '\\');
  return path.find(':') == std::string::npos ? "C:\\Program Files\\Vantrel\\" + path : path;
}

std::string ExistingFile(Session& session, const std::string& word) {
  std::string path = FullPath(word);
  if (!session.World().files.IsFile(path)) throw CommandError("no file " + Brief(path));
  return path;
}

void ListFiles(Session& session, const Words& words) {
  const memory::FileTree& files = session.World().files;
  std::string folder = words.empty() ? "C:" : FullPath(words[0]);
  if (!files.IsFolder(folder)) throw CommandError("no folder " + Brief(folder));
  while (folder.ends_with('\\')) folder.pop_back();
  Walk(files, folder, [&](const std::string& path) {
    if (!files.IsFile(path)) return;
    session.Say(Printable(path) + "  " + std::to_string(files.Read(path)->size()) +
                (files.IsReadOnly(path) ? " readonly" : "") +
                (files.IsHidden(path) ? " hidden" : ""));
  });
}

void ShowFile(Session& session, const Words& words) {
  const std::string content = *session.World().files.Read(ExistingFile(session, words[0]));
  for (std::string_view rest = content; !rest.empty();) {
    session.Say("  " + Printable(text::TakeLine(rest)));
  }
}

void DeleteFile(Session& session, const Words& words) {
  const std::string path = FullPath(words[0]);
  memory::FileTree& files = session.World().files;
  // A drive stays.
  if (path.size() < 4 || !files.Exists(path)) throw CommandError("no file " + Brief(path));
  files.Remove(path);
}

void MarkFile(Session& session, const Words& words) {
  memory::FileTree& files = session.World().files;
  const std::string path = ExistingFile(session, words[0]);
  const std::size_t mark = PickName("mark", words[1], {"readonly", "writable", "locked", "free"});
  if (mark < 2) return files.SetReadOnly(path, mark == 0);
  files.SetLocked(path, mark == 2);
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
    {"registry load", "FILE", "loads a .reg file of the real disk", LoadRegistry},
    {"registry save", "FILE KEY", "saves a key as a .reg file (REGEDIT4) on the real disk",
     [](Session& session, const Words& words) {
       WriteRealFile(words[0], RegHeader + ExportedKey(session, words[1]));
     }},
    {"files list", "[FOLDER]", "lists the files of the in-memory disk", ListFiles},
    {"files show", "PATH", "shows a file", ShowFile},
    {"files put", "PATH [LINE ...]", "makes a file of these lines",
     [](Session& session, const Words& words) {
       std::string content;
       for (std::size_t i = 1; i < words.size(); ++i) content += words[i] + "\r\n";
       PutFile(session.World().files, FullPath(words[0]), content);
     }},
    {"files delete", "PATH", "deletes a file, or a folder with all in it", DeleteFile},
    {"files mark", "PATH readonly|writable|locked|free",
     "protects a file from the program, or frees it", MarkFile},
    {"files load", "FILE PATH", "copies a file of the real disk in",
     [](Session& session, const Words& words) {
       PutFile(session.World().files, FullPath(words[1]), ReadRealFile(words[0]));
     }},
    {"files save", "PATH FILE", "copies a file out to the real disk",
     [](Session& session, const Words& words) {
       WriteRealFile(words[1], *session.World().files.Read(ExistingFile(session, words[0])));
     }},
};

}  // namespace

std::span<const Command> StoreCommands() { return Table; }

}  // namespace vantrel::console
