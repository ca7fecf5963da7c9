#include <algorithm>
#include <array>

#include "app/console/Commands.h"
#include "app/console/Names.h"
#include "app/console/State.h"
#include "app/console/Words.h"
#include "platform/memory/RegFile.h"
#include "text/Strings.h"

namespace vantrel::console {
namespace {

namespace memory = platform::memory;

constexpr std::size_t DeepestKey = 512;
constexpr std::array RootNames{"HKCR", "HKCU", "HKLM", "HKU", "HKCC"};

struct KeyPath {
  platform::KeyHandle root = 0;
  std::string subkey;  // empty for the root itself
};

// "HKCU\Software" or "HKEY_CURRENT_USER\Software".
KeyPath ParseKey(const std::string& text) {
  const std::size_t end = std::min(text.find('\\'), text.size());
  const std::string root = text.substr(0, end);
  KeyPath key{memory::RegistryTree::RootNamed(root), {}};
  if (key.root == 0) {
    const std::vector<std::string> names(RootNames.begin(), RootNames.end());
    throw CommandError("no registry root " + Quoted(root.substr(0, 40)) + Suggestion(root, names));
  }
  const std::vector<std::string> parts = memory::PathParts(std::string_view(text).substr(end));
  if (parts.size() > DeepestKey) throw CommandError("the key lies too deep");
  for (const std::string& part : parts) {
    if (part.size() > memory::MaxKeyNameLength) throw CommandError("a key's name is too long");
    key.subkey += (key.subkey.empty() ? "" : "\\") + part;
  }
  return key;
}

KeyPath ExistingKey(Session& session, const std::string& word) {
  KeyPath key = ParseKey(word);
  if (!session.World().registry.HasKey(key.root, key.subkey)) {
    throw CommandError("no key " + Quoted(word.substr(0, 200)));
  }
  return key;
}

// In the older form, which keeps every byte of the names and texts.
std::string Exported(Session& session, const KeyPath& key) {
  return memory::ExportReg(session.World().registry, key.root, key.subkey,
                           memory::RegFormat::Regedit4);
}

// A text's lines, line ends left out.
std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines = text::Split(text, '\n');
  if (!lines.empty() && lines.back().empty()) lines.pop_back();
  for (std::string& line : lines) {
    if (line.ends_with('\r')) line.pop_back();
  }
  return lines;
}

void ShowKey(Session& session, const KeyPath& key) {
  const std::vector<std::string> lines = Lines(Exported(session, key));
  // Without the file's first line.
  for (std::size_t i = 1; i < lines.size(); ++i) {
    if (!lines[i].empty()) session.Say(Printable(lines[i]));
  }
}

void ShowRegistry(Session& session, const Words& words) {
  if (!words.empty()) return ShowKey(session, ExistingKey(session, words.front()));
  for (const char* root : RootNames) ShowKey(session, ParseKey(root));
}

const std::string& OneWord(const Words& words) {
  if (words.size() != 1) throw CommandError("the data must be one word; put it in quotes");
  return words.front();
}

std::string TextData(const Words& words) { return OneWord(words) + '\0'; }

std::string MultiData(const Words& words) {
  std::string data;
  for (const std::string& word : words) data += word + '\0';
  return data + '\0';
}

std::string DwordData(const Words& words) {
  const auto number = ParseNumber(OneWord(words), 0, 0xFFFFFFFFLL, "the number");
  std::string bytes;
  for (int shift = 0; shift < 32; shift += 8) {
    bytes.push_back(static_cast<char>(number >> shift & 0xFF));
  }
  return bytes;
}

// Pairs of hexadecimal digits, in any number of words.
std::string BinaryData(const Words& words) {
  std::string digits;
  for (const std::string& word : words) digits += word;
  std::string data;
  for (std::size_t i = 0; i < digits.size(); i += 2) {
    const std::string pair = digits.substr(i, 2);
    if (pair.size() < 2) throw CommandError("the bytes must be pairs of hexadecimal digits");
    data.push_back(static_cast<char>(ParseNumber("0x" + pair, 0, 255, "a byte")));
  }
  return data;
}

struct TypeRow {
  const char* name;
  std::uint32_t type;
  std::string (*data)(const Words&);
};

constexpr std::array Types{
    TypeRow{"string", platform::RegSz, TextData},
    TypeRow{"expand", platform::RegExpandSz, TextData},
    TypeRow{"dword", platform::RegDword, DwordData},
    TypeRow{"binary", platform::RegBinary, BinaryData},
    TypeRow{"multi", platform::RegMultiSz, MultiData},
};

void SetRegistry(Session& session, const Words& words) {
  const KeyPath key = ParseKey(words[0]);
  if (words[1].size() > memory::MaxValueNameLength) {
    throw CommandError("the value's name is too long");
  }
  const TypeRow& row = PickRow("type", words[2], Types);
  session.World().registry.Set(key.root, key.subkey, words[1], row.type,
                               row.data(Words(words.begin() + 3, words.end())));
}

void DeleteRegistry(Session& session, const Words& words) {
  memory::RegistryTree& registry = session.World().registry;
  const KeyPath key = ExistingKey(session, words[0]);
  if (words.size() == 2) {
    if (!registry.Get(key.root, key.subkey, words[1])) {
      throw CommandError("no value " + Quoted(words[1].substr(0, 200)));
    }
    return registry.RemoveValue(key.root, key.subkey, words[1]);
  }
  if (key.subkey.empty()) throw CommandError("a root cannot be deleted");
  registry.RemoveKey(key.root, key.subkey);
}

void RefuseRegistry(Session& session, const Words& words) {
  constexpr memory::Refusal Refusals[] = {memory::Refusal::None, memory::Refusal::Write,
                                          memory::Refusal::All};
  const KeyPath key = ExistingKey(session, words[0]);
  const std::size_t place = PickName("right", words[1], {"none", "write", "all"});
  session.World().registry.Refuse(key.root, key.subkey, Refusals[place]);
}

void LoadRegistry(Session& session, const Words& words) {
  if (memory::ImportReg(session.World().registry, ReadRealFile(words.front()))) return;
  throw CommandError(Quoted(words.front().substr(0, 200)) + " is no registration file");
}

void SaveRegistry(Session& session, const Words& words) {
  WriteRealFile(words[0], Exported(session, ExistingKey(session, words[1])));
}

// With backslashes; without a drive it lies in the program's folder.
std::string FullPath(std::string path) {
  std::replace(path.begin(), path.end(), '/', '\\');
  return path.find(':') == std::string::npos ? "C:\\Program Files\\Vantrel\\" + path : path;
}

std::string ExistingFile(Session& session, const std::string& word) {
  std::string path = FullPath(word);
  if (!session.World().files.IsFile(path)) throw CommandError("no file " + Quoted(path));
  return path;
}

void ListFiles(Session& session, const Words& words) {
  const memory::FileTree& files = session.World().files;
  std::string folder = words.empty() ? "C:" : FullPath(words.front());
  if (!files.IsFolder(folder)) throw CommandError("no folder " + Quoted(folder));
  while (folder.ends_with('\\')) folder.pop_back();
  Walk(files, folder, [&](const std::string& path) {
    if (!files.IsFile(path)) return;
    session.Say(Printable(path) + "  " + std::to_string(files.Read(path)->size()) +
                (files.IsReadOnly(path) ? " readonly" : "") +
                (files.IsHidden(path) ? " hidden" : ""));
  });
}

void ShowFile(Session& session, const Words& words) {
  const auto content = session.World().files.Read(ExistingFile(session, words.front()));
  for (const std::string& line : Lines(*content)) session.Say("  " + Printable(line));
}

void PutLines(Session& session, const Words& words) {
  std::string content;
  for (std::size_t i = 1; i < words.size(); ++i) content += words[i] + "\r\n";
  PutFile(session.World().files, FullPath(words.front()), content);
}

void DeleteFile(Session& session, const Words& words) {
  const std::string path = FullPath(words.front());
  memory::FileTree& files = session.World().files;
  // A drive stays.
  if (path.size() < 4 || !files.Exists(path)) throw CommandError("no file " + Quoted(path));
  files.Remove(path);
}

void MarkFile(Session& session, const Words& words) {
  memory::FileTree& files = session.World().files;
  const std::string path = ExistingFile(session, words[0]);
  const std::size_t mark = PickName("mark", words[1], {"readonly", "writable", "locked", "free"});
  if (mark < 2) return files.SetReadOnly(path, mark == 0);
  files.SetLocked(path, mark == 2);
}

void LoadFile(Session& session, const Words& words) {
  PutFile(session.World().files, FullPath(words[1]), ReadRealFile(words[0]));
}

void SaveFile(Session& session, const Words& words) {
  WriteRealFile(words[1], *session.World().files.Read(ExistingFile(session, words[0])));
}

constexpr std::array Table{
    Command{"registry show", "[KEY]",
            "shows a key with all below it, or the whole registry, as in a .reg file", 0, 1,
            ShowRegistry},
    Command{"registry set", "KEY NAME TYPE DATA ...",
            "sets a value: string, expand, dword, binary or multi; \"\" is the default value", 4,
            AnyNumber, SetRegistry},
    Command{"registry delete", "KEY [NAME]", "deletes a key with all below it, or a value", 1, 2,
            DeleteRegistry},
    Command{"registry refuse", "KEY none | write | all",
            "takes the user's rights to a key, or gives them back", 2, 2, RefuseRegistry},
    Command{"registry load", "FILE", "loads a .reg file of the real disk", 1, 1, LoadRegistry},
    Command{"registry save", "FILE KEY", "saves a key as a .reg file (REGEDIT4) on the real disk",
            2, 2, SaveRegistry},
    Command{"files list", "[FOLDER]", "lists the files of the in-memory disk", 0, 1, ListFiles},
    Command{"files show", "PATH", "shows a file", 1, 1, ShowFile},
    Command{"files put", "PATH [LINE ...]", "makes a file of these lines", 1, AnyNumber, PutLines},
    Command{"files delete", "PATH", "deletes a file, or a folder with all in it", 1, 1, DeleteFile},
    Command{"files mark", "PATH readonly | writable | locked | free",
            "protects a file from the program, or frees it", 2, 2, MarkFile},
    Command{"files load", "FILE PATH", "copies a file of the real disk in", 2, 2, LoadFile},
    Command{"files save", "PATH FILE", "copies a file out to the real disk", 2, 2, SaveFile},
};

}  // namespace

std::span<const Command> StoreCommands() { return Table; }

}  // namespace vantrel::console
