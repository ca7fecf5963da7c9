#include "platform/memory/RegistryTree.h"

#include <algorithm>
#include <array>

#include "platform/memory/Misuse.h"
#include "text/Strings.h"

namespace vantrel::platform::memory {
namespace {

struct RootRow {
  KeyHandle handle;
  const char* shortName;
  const char* longName;
};

constexpr std::array<RootRow, 5> Roots{{
    {HKeyClassesRoot, "HKCR", "HKEY_CLASSES_ROOT"},
    {HKeyCurrentUser, "HKCU", "HKEY_CURRENT_USER"},
    {HKeyLocalMachine, "HKLM", "HKEY_LOCAL_MACHINE"},
    {HKeyUsers, "HKU", "HKEY_USERS"},
    {HKeyCurrentConfig, "HKCC", "HKEY_CURRENT_CONFIG"},
}};

// The order of folded names, without a folded copy of each.
bool ComesBefore(std::string_view one, std::string_view other) {
  const auto fold = [](char c) {
    return static_cast<unsigned char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
  };
  return std::lexicographical_compare(one.begin(), one.end(), other.begin(), other.end(),
                                      [fold](char a, char b) { return fold(a) < fold(b); });
}

auto PlaceOf(const RegistryKey& key, std::string_view subkeyName) {
  return std::lower_bound(
      key.subkeys.begin(), key.subkeys.end(), subkeyName,
      [](const auto& subkey, std::string_view name) { return ComesBefore(subkey->name, name); });
}

// An open handle may keep a deleted key longer than its parent lives.
void MarkDeleted(RegistryKey& key) {
  for (const auto& subkey : key.subkeys) MarkDeleted(*subkey);
  key.name = key.Path() + " (deleted)";
  key.parent = nullptr;
  key.deleted = true;
}

}  // namespace

std::vector<std::string> PathParts(std::string_view path) {
  std::vector<std::string> parts;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find('\\'), path.size());
    if (end > 0) parts.emplace_back(path.substr(0, end));
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return parts;
}

RegistryKey* RegistryKey::Subkey(std::string_view subkeyName) const {
  const auto place = PlaceOf(*this, subkeyName);
  return place != subkeys.end() && text::EqualIgnoringCase((*place)->name, subkeyName)
             ? place->get()
             : nullptr;
}

RegistryKey& RegistryKey::MakeSubkey(std::string_view subkeyName) {
  if (RegistryKey* const there = Subkey(subkeyName)) return *there;
  auto made = std::make_shared<RegistryKey>();
  made->name = subkeyName;
  made->parent = this;
  return **subkeys.insert(PlaceOf(*this, subkeyName), std::move(made));
}

RegistryValue* RegistryKey::Value(std::string_view valueName) {
  for (RegistryValue& value : values) {
    if (text::EqualIgnoringCase(value.name, valueName)) return &value;
  }
  return nullptr;
}

void RegistryKey::SetValue(const std::string& valueName, std::uint32_t type,
                           std::string_view data) {
  if (RegistryValue* const there = Value(valueName)) {
    there->type = type;
    there->data = data;
    return;
  }
  values.push_back({valueName, type, std::string(data)});
}

bool RegistryKey::DeleteValue(std::string_view valueName) {
  return std::erase_if(values, [valueName](const RegistryValue& value) {
           return text::EqualIgnoringCase(value.name, valueName);
         }) > 0;
}

Refusal RegistryKey::EffectiveRefusal() const {
  for (const RegistryKey* key = this; key != nullptr; key = key->parent) {
    if (key->refusal) return *key->refusal;
  }
  return Refusal::None;
}

std::string RegistryKey::Path() const {
  return parent == nullptr ? name : parent->Path() + "\\" + name;
}

void Unlink(RegistryKey& key) {
  const auto kept = key.shared_from_this();
  std::erase(key.parent->subkeys, kept);
  MarkDeleted(key);
}

RegistryTree::RegistryTree() {
  for (const RootRow& row : Roots) {
    roots_[row.handle] = std::make_shared<RegistryKey>();
    roots_[row.handle]->name = row.shortName;
  }
}

std::shared_ptr<RegistryKey> RegistryTree::Root(KeyHandle root) const {
  const auto found = roots_.find(root);
  return found == roots_.end() ? nullptr : found->second;
}

KeyHandle RegistryTree::RootNamed(std::string_view name) {
  for (const RootRow& row : Roots) {
    if (text::EqualIgnoringCase(name, row.shortName) || text::EqualIgnoringCase(name, row.longName))
      return row.handle;
  }
  return 0;
}

std::string RegistryTree::LongNameOf(KeyHandle root) {
  for (const RootRow& row : Roots) {
    if (row.handle == root) return row.longName;
  }
  return {};
}

RegistryKey* RegistryTree::Find(KeyHandle root, const std::string& subkey) const {
  RegistryKey* key = Root(root).get();
  Require(key != nullptr, "not a predefined root");
  for (const std::string& part : PathParts(subkey)) {
    key = key->Subkey(part);
    if (key == nullptr) return nullptr;
  }
  return key;
}

RegistryKey& RegistryTree::Make(KeyHandle root, const std::string& subkey) {
  RegistryKey* key = Root(root).get();
  Require(key != nullptr, "not a predefined root");
  for (const std::string& part : PathParts(subkey)) key = &key->MakeSubkey(part);
  return *key;
}

void RegistryTree::MakeKey(KeyHandle root, const std::string& subkey) { Make(root, subkey); }

bool RegistryTree::HasKey(KeyHandle root, const std::string& subkey) const {
  return Find(root, subkey) != nullptr;
}

void RegistryTree::RemoveKey(KeyHandle root, const std::string& subkey) {
  RegistryKey* const key = Find(root, subkey);
  if (key == nullptr) return;
  Require(key->parent != nullptr, "a root cannot be removed");
  Unlink(*key);
}

std::vector<std::string> RegistryTree::Subkeys(KeyHandle root, const std::string& subkey) const {
  std::vector<std::string> names;
  if (const RegistryKey* const key = Find(root, subkey)) {
    for (const auto& each : key->subkeys) names.push_back(each->name);
  }
  return names;
}

std::vector<RegistryValue> RegistryTree::Values(KeyHandle root, const std::string& subkey) const {
  const RegistryKey* const key = Find(root, subkey);
  return key == nullptr ? std::vector<RegistryValue>() : key->values;
}

void RegistryTree::Set(KeyHandle root, const std::string& subkey, const std::string& valueName,
                       std::uint32_t type, std::string_view data) {
  Make(root, subkey).SetValue(valueName, type, data);
}

void RegistryTree::SetString(KeyHandle root, const std::string& subkey,
                             const std::string& valueName, const std::string& text) {
  Set(root, subkey, valueName, RegSz, text + '\0');
}

void RegistryTree::SetDword(KeyHandle root, const std::string& subkey, const std::string& valueName,
                            std::uint32_t number) {
  std::string bytes;
  for (int shift = 0; shift < 32; shift += 8) {
    bytes.push_back(static_cast<char>(number >> shift & 0xFF));
  }
  Set(root, subkey, valueName, RegDword, bytes);
}

void RegistryTree::RemoveValue(KeyHandle root, const std::string& subkey,
                               const std::string& valueName) {
  if (RegistryKey* const key = Find(root, subkey)) key->DeleteValue(valueName);
}

std::optional<RegistryValue> RegistryTree::Get(KeyHandle root, const std::string& subkey,
                                               const std::string& valueName) const {
  RegistryKey* const key = Find(root, subkey);
  const RegistryValue* const value = key == nullptr ? nullptr : key->Value(valueName);
  return value == nullptr ? std::nullopt : std::optional(*value);
}

std::optional<std::string> RegistryTree::GetString(KeyHandle root, const std::string& subkey,
                                                   const std::string& valueName) const {
  const auto value = Get(root, subkey, valueName);
  if (!value || (value->type != RegSz && value->type != RegExpandSz)) return std::nullopt;
  return value->data.substr(0, value->data.find('\0'));
}

std::optional<std::uint32_t> RegistryTree::GetDword(KeyHandle root, const std::string& subkey,
                                                    const std::string& valueName) const {
  const auto value = Get(root, subkey, valueName);
  if (!value || value->type != RegDword || value->data.size() != 4) return std::nullopt;
  std::uint32_t number = 0;
  for (int i = 3; i >= 0; --i) {
    number = number << 8 | static_cast<unsigned char>(value->data[static_cast<std::size_t>(i)]);
  }
  return number;
}

void RegistryTree::Refuse(KeyHandle root, const std::string& subkey, Refusal refusal) {
  Make(root, subkey).refusal = refusal;
}

}  // namespace vantrel::platform::memory
