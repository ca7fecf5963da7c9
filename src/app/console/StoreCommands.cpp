#include "app/console/Handlers.h"
#include "app/console/Names.h"
#include "app/console/Paths.h"
#include "app/console/RegistryText.h"
#include "app/console/StateFile.h"
#include "app/console/Words.h"
#include "platform/memory/RegFile.h"
#include "text/Strings.h"

namespace vantrel::console {
namespace {

namespace memory = platform::memory;

KeyPath ExistingKey(Session& session, const std::string& word) {
  KeyPath key = ParseKey(word);
  if (!session.World().registry.HasKey(key.Root, key.Subkey)) {
    throw CommandError("no key " + Quoted(word.substr(0, 200)));
  }
  return key;
}

std::string ExistingFile(Session& session, const std::string& word) {
  std::string path = FilePath(word);
  if (!session.World().files.IsFile(path)) throw CommandError("no file " + Quoted(path));
  return path;
}

void ListFolder(Session& session, const std::string& folder) {
  const memory::FileTree& files = session.World().files;
  for (const std::string& name : files.List(folder)) {
    const std::string path = folder + '\\' + name;
    if (files.IsFolder(path)) {
      ListFolder(session, path);
      continue;
    }
    session.Say(Printable(path) + "  " + std::to_string(files.Read(path).value_or("").size()) +
                (files.IsReadOnly(path) ? " readonly" : "") +
                (files.IsHidden(path) ? " hidden" : ""));
  }
}

}  // namespace

void ShowRegistry(Session& session, const Words& words) {
  if (!words.empty()) {
    return session.Write(TreeText(session.World().registry, ExistingKey(session, words.front())));
  }
  for (const char* root : {"HKCR", "HKCU", "HKLM", "HKU", "HKCC"}) {
    session.Write(TreeText(session.World().registry, ParseKey(root)));
  }
}

void SetRegistry(Session& session, const Words& words) {
  const KeyPath key = ParseKey(words[0]);
  const memory::RegistryValue value =
      ParseValue(words[1], words[2], Words(words.begin() + 3, words.end()));
  session.World().registry.Set(key.Root, key.Subkey, value.name, value.type, value.data);
}

void DeleteRegistry(Session& session, const Words& words) {
  memory::RegistryTree& registry = session.World().registry;
  const KeyPath key = ExistingKey(session, words[0]);
  if (words.size() == 2) {
    if (!registry.Get(key.Root, key.Subkey, words[1])) {
      throw CommandError("no value " + Quoted(words[1].substr(0, 200)));
    }
    return registry.RemoveValue(key.Root, key.Subkey, words[1]);
  }
  if (key.Subkey.empty()) throw CommandError("a root cannot be deleted");
  registry.RemoveKey(key.Root, key.Subkey);
}

void RefuseRegistry(Session& session, const Words& words) {
  constexpr memory::Refusal Refusals[] = {memory::Refusal::None, memory::Refusal::Write,
                                          memory::Refusal::All};
  const KeyPath key = ExistingKey(session, words[0]);
  const std::size_t place = PickName("right", words[1], {"none", "write", "all"});
  session.World().registry.Refuse(key.Root, key.Subkey, Refusals[place]);
}

void LoadRegistry(Session& session, const Words& words) {
  if (memory::ImportReg(session.World().registry, ReadRealFile(words.front()))) return;
  throw CommandError(Quoted(words.front().substr(0, 200)) + " is no registration file");
}

// In the older form, which keeps every byte of the names and texts.
void SaveRegistry(Session& session, const Words& words) {
  const KeyPath key = ExistingKey(session, words[1]);
  WriteRealFile(words[0], memory::ExportReg(session.World().registry, key.Root, key.Subkey,
                                            memory::RegFormat::Regedit4));
}

void ListFiles(Session& session, const Words& words) {
  const std::string folder = words.empty() ? "C:" : FolderPath(words.front());
  if (!session.World().files.IsFolder(folder)) throw CommandError("no folder " + Quoted(folder));
  ListFolder(session, folder);
}

void ShowFile(Session& session, const Words& words) {
  const std::string path = ExistingFile(session, words.front());
  std::vector<std::string> lines = text::Split(session.World().files.Read(path).value_or(""), '\n');
  if (!lines.empty() && lines.back().empty()) lines.pop_back();
  for (std::string& line : lines) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    session.Say("  " + Printable(line));
  }
}

void PutLines(Session& session, const Words& words) {
  std::string content;
  for (std::size_t i = 1; i < words.size(); ++i) content += words[i] + "\r\n";
  PutFile(session.World().files, FilePath(words.front()), content);
}

void DeleteFile(Session& session, const Words& words) {
  const std::string path = FilePath(words.front());
  memory::FileTree& files = session.World().files;
  if (!files.IsFile(path) && !files.IsFolder(path)) throw CommandError("no file " + Quoted(path));
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
  PutFile(session.World().files, FilePath(words[1]), ReadRealFile(words[0]));
}

void SaveFile(Session& session, const Words& words) {
  const std::string path = ExistingFile(session, words[0]);
  WriteRealFile(words[1], session.World().files.Read(path).value_or(""));
}

}  // namespace vantrel::console
