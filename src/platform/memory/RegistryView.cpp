#include "platform/memory/RegistryView.h"

#include <algorithm>
#include <vector>

#include "platform/memory/Misuse.h"

namespace vantrel::platform::memory {
namespace {

constexpr std::uint32_t QueryValue = 0x1;
constexpr std::uint32_t SetValue = 0x2;
constexpr std::uint32_t CreateSubKey = 0x4;
constexpr std::uint32_t EnumerateSubKeys = 0x8;
constexpr std::uint32_t Delete = 0x10000;
constexpr std::uint32_t MaximumAllowed = 0x02000000;
// Set value, create subkey, create link, delete, write the security record and the owner.
constexpr std::uint32_t WriteRights = 0xD0026;
constexpr std::uint32_t GenericRead = 0x80000000;
constexpr std::uint32_t GenericWrite = 0x40000000;
constexpr std::uint32_t GenericExecute = 0x20000000;
constexpr std::uint32_t GenericAll = 0x10000000;
constexpr std::uint32_t KeyWrite = 0x20006;

constexpr std::int32_t ErrorBadPathName = 161;

// What the A calls convert at most: a key's path, and any name.
constexpr std::size_t MaxPathLength = 260;
constexpr std::size_t MaxTextLength = 32766;

std::uint32_t MapGeneric(std::uint32_t access) {
  std::uint32_t mapped = access & 0x0FFFFFFF;
  if ((access & (GenericRead | GenericExecute)) != 0) mapped |= KeyRead;
  if ((access & GenericWrite) != 0) mapped |= KeyWrite;
  if ((access & GenericAll) != 0) mapped |= KeyAllAccess;
  return mapped;
}

// What may be had of a key at most.
std::uint32_t Allowed(const RegistryKey& key) {
  switch (key.EffectiveRefusal()) {
    case Refusal::None:
      return KeyAllAccess;
    case Refusal::Write:
      return KeyAllAccess & ~WriteRights;
    case Refusal::All:
      return 0;
  }
  return 0;
}

// A name as the A calls take it: up to its first NUL.
std::string UpToNul(const std::string& name) { return {name.c_str()}; }

// The parts of a path below a root; or the code for a path that the calls refuse.
std::int32_t SplitPath(KeyHandle root, const std::string& subkey, std::vector<std::string>& parts) {
  const std::string path = UpToNul(subkey);
  if (path.size() > MaxPathLength) return ErrorMoreData;
  if (path.starts_with('\\') && root != HKeyClassesRoot) return ErrorBadPathName;
  parts = PathParts(path);
  for (const std::string& part : parts) {
    if (part.size() > MaxKeyNameLength) return ErrorInvalidParameter;
  }
  return ErrorSuccess;
}

}  // namespace

RegistryView::OpenKey RegistryView::Lookup(KeyHandle handle) const {
  if (auto root = tree_.Root(handle)) {
    const std::uint32_t granted = Allowed(*root);
    return {std::move(root), granted};
  }
  const auto found = open_.find(handle);
  return found == open_.end() ? OpenKey() : found->second;
}

std::int32_t RegistryView::Check(const OpenKey& open, std::uint32_t rights) const {
  if (!open.key) return ErrorInvalidHandle;
  if ((open.granted & rights) != rights) return ErrorAccessDenied;
  return open.key->deleted ? ErrorKeyDeleted : ErrorSuccess;
}

std::int32_t RegistryView::Walk(KeyHandle root, const std::string& subkey,
                                std::shared_ptr<RegistryKey>& found) const {
  const OpenKey open = Lookup(root);
  if (const std::int32_t code = Check(open, 0); code != ErrorSuccess) return code;
  std::vector<std::string> parts;
  if (const std::int32_t code = SplitPath(root, subkey, parts); code != ErrorSuccess) return code;
  found = open.key;
  for (const std::string& part : parts) {
    RegistryKey* const below = found->Subkey(part);
    if (below == nullptr) return ErrorFileNotFound;
    found = below->shared_from_this();
  }
  return ErrorSuccess;
}

std::int32_t RegistryView::Grant(const std::shared_ptr<RegistryKey>& key, std::uint32_t access,
                                 KeyHandle& opened) {
  const std::uint32_t allowed = Allowed(*key);
  std::uint32_t granted = MapGeneric(access) & KeyAllAccess;
  if ((granted & ~allowed) != 0 || key->EffectiveRefusal() == Refusal::All) {
    return ErrorAccessDenied;
  }
  if ((access & MaximumAllowed) != 0) granted = allowed;
  if (access == 0 && tree_.readsWithoutAccess) granted = QueryValue;
  opened = next_;
  next_ += 4;
  open_[opened] = {key, granted};
  return ErrorSuccess;
}

std::int32_t RegistryView::RegOpenKeyExA(KeyHandle root, const std::string& subkey,
                                         std::uint32_t access, KeyHandle& opened) {
  // A root is not opened again.
  if (UpToNul(subkey).empty() && tree_.Root(root)) {
    opened = root;
    return ErrorSuccess;
  }
  std::shared_ptr<RegistryKey> key;
  if (const std::int32_t code = Walk(root, subkey, key); code != ErrorSuccess) return code;
  return Grant(key, access, opened);
}

std::int32_t RegistryView::RegCreateKeyExA(KeyHandle root, const std::string& subkey,
                                           std::uint32_t access, bool /*withSecurityRecord*/,
                                           KeyHandle& opened) {
  const OpenKey open = Lookup(root);
  if (const std::int32_t code = Check(open, 0); code != ErrorSuccess) return code;
  std::vector<std::string> parts;
  if (const std::int32_t code = SplitPath(root, subkey, parts); code != ErrorSuccess) return code;
  std::shared_ptr<RegistryKey> key = open.key;
  for (const std::string& part : parts) {
    if (key->Subkey(part) == nullptr && (Allowed(*key) & CreateSubKey) == 0) {
      return ErrorAccessDenied;
    }
    key = key->MakeSubkey(part).shared_from_this();
  }
  return Grant(key, access, opened);
}

std::int32_t RegistryView::RegQueryValueExA(KeyHandle key, const std::string& valueName,
                                            std::uint32_t& type, std::span<char> buffer,
                                            std::uint32_t& length) {
  const OpenKey open = Lookup(key);
  if (const std::int32_t code = Check(open, QueryValue); code != ErrorSuccess) return code;
  const std::string name = UpToNul(valueName);
  if (name.size() > MaxTextLength) return ErrorInvalidParameter;
  const RegistryValue* const value = open.key->Value(name);
  if (value == nullptr) return ErrorFileNotFound;
  const std::uint32_t room = length;
  Require(room <= buffer.size(), "the room is larger than the buffer");
  type = value->type;
  length = static_cast<std::uint32_t>(value->data.size());
  if (length > room) return ErrorMoreData;
  std::copy(value->data.begin(), value->data.end(), buffer.begin());
  // A text without a terminator gets one where there is space; it is not counted.
  const bool terminated = value->data.ends_with('\0');
  if (HoldsText(type) && length > 0 && length < room && !terminated) buffer[length] = '\0';
  return ErrorSuccess;
}

std::int32_t RegistryView::RegSetValueExA(KeyHandle key, const std::string& valueName,
                                          std::uint32_t type, std::string_view data) {
  const OpenKey open = Lookup(key);
  if (const std::int32_t code = Check(open, SetValue); code != ErrorSuccess) return code;
  const std::string name = UpToNul(valueName);
  if (name.size() > MaxValueNameLength) return ErrorInvalidParameter;
  open.key->SetValue(name, type, data);
  return ErrorSuccess;
}

std::int32_t RegistryView::RegDeleteKeyA(KeyHandle root, const std::string& subkey) {
  std::shared_ptr<RegistryKey> key;
  if (const std::int32_t code = Walk(root, subkey, key); code != ErrorSuccess) return code;
  const bool allowed = (Allowed(*key) & Delete) != 0;
  if (!allowed || !key->subkeys.empty() || key->parent == nullptr) return ErrorAccessDenied;
  Unlink(*key);
  return ErrorSuccess;
}

std::int32_t RegistryView::RegDeleteValueA(KeyHandle key, const std::string& valueName) {
  const OpenKey open = Lookup(key);
  if (const std::int32_t code = Check(open, SetValue); code != ErrorSuccess) return code;
  const std::string name = UpToNul(valueName);
  if (name.size() > MaxTextLength) return ErrorInvalidParameter;
  return open.key->DeleteValue(name) ? ErrorSuccess : ErrorFileNotFound;
}

std::int32_t RegistryView::RegEnumValueA(KeyHandle key, std::uint32_t index, std::uint32_t nameRoom,
                                         std::string& name, std::uint32_t& type,
                                         std::uint32_t dataRoom, std::string& data) {
  const OpenKey open = Lookup(key);
  if (const std::int32_t code = Check(open, QueryValue); code != ErrorSuccess) return code;
  if (index >= open.key->values.size()) return ErrorNoMoreItems;
  const RegistryValue& value = open.key->values[index];
  if (value.name.size() >= nameRoom || value.data.size() > dataRoom) return ErrorMoreData;
  name = value.name;
  type = value.type;
  data = value.data;
  return ErrorSuccess;
}

std::int32_t RegistryView::RegEnumKeyA(KeyHandle key, std::uint32_t index, std::uint32_t nameRoom,
                                       std::string& name) {
  const OpenKey open = Lookup(key);
  if (const std::int32_t code = Check(open, EnumerateSubKeys); code != ErrorSuccess) return code;
  if (index >= open.key->subkeys.size()) return ErrorNoMoreItems;
  if (open.key->subkeys[index]->name.size() >= nameRoom) return ErrorMoreData;
  name = open.key->subkeys[index]->name;
  return ErrorSuccess;
}

std::int32_t RegistryView::RegCloseKey(KeyHandle key) {
  if (tree_.Root(key)) return ErrorSuccess;
  return open_.erase(key) > 0 ? ErrorSuccess : ErrorInvalidHandle;
}

std::string RegistryView::PathOf(KeyHandle handle) const {
  const OpenKey open = Lookup(handle);
  return open.key ? open.key->Path() : std::string();
}

std::int32_t RegistryView::RegOpenKeyA(KeyHandle root, const std::string& subkey,
                                       KeyHandle& opened) {
  if (!UpToNul(subkey).empty()) return RegOpenKeyExA(root, subkey, MaximumAllowed, opened);
  opened = root;
  return ErrorSuccess;
}

}  // namespace vantrel::platform::memory
