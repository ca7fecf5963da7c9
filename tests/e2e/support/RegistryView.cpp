#include "support/RegistryView.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstring>
#include <vector>

namespace vantrel::e2e {
namespace {

// How a tree names the value without a name.
constexpr const char* DefaultValue = "(default)";

// An open key that closes itself.
class Key {
 public:
  Key(HKEY root, const std::string& path, REGSAM access) {
    if (RegOpenKeyExA(root, path.c_str(), 0, access, &handle_) != ERROR_SUCCESS) handle_ = nullptr;
  }
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;
  ~Key() {
    if (handle_ != nullptr) RegCloseKey(handle_);
  }
  HKEY Get() const { return handle_; }

 private:
  HKEY handle_ = nullptr;
};

std::string LowerCase(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

std::string Join(const std::string& path, const std::string& name) {
  return path.empty() ? name : path + "\\" + name;
}

void ReadValues(HKEY key, const std::string& prefix, Tree& tree) {
  static std::vector<char> name(16384);
  static std::vector<char> data(1 << 20);
  for (DWORD index = 0;; ++index) {
    DWORD nameLength = static_cast<DWORD>(name.size());
    DWORD dataLength = static_cast<DWORD>(data.size());
    DWORD type = 0;
    if (RegEnumValueA(key, index, name.data(), &nameLength, nullptr, &type,
                      reinterpret_cast<BYTE*>(data.data()), &dataLength) != ERROR_SUCCESS) {
      return;
    }
    const std::string told = nameLength == 0 ? DefaultValue : std::string(name.data(), nameLength);
    tree[LowerCase(Join(prefix, told))] = {type, std::string(data.data(), dataLength)};
  }
}

void ReadInto(HKEY root, const std::string& path, const std::string& prefix,
              const std::string& without, Tree& tree) {
  const Key key(root, path, KEY_READ);
  if (key.Get() == nullptr) return;
  ReadValues(key.Get(), prefix, tree);
  for (DWORD index = 0;; ++index) {
    char name[256];
    DWORD length = sizeof(name);
    if (RegEnumKeyExA(key.Get(), index, name, &length, nullptr, nullptr, nullptr, nullptr) !=
        ERROR_SUCCESS) {
      return;
    }
    tree[LowerCase(Join(prefix, name) + "\\")] = {};
    if (!without.empty() && LowerCase(name) == without) continue;
    ReadInto(root, Join(path, name), Join(prefix, name), without, tree);
  }
}

}  // namespace

std::string Show(const StoredValue& value) {
  if (value.type == REG_DWORD && value.data.size() == 4) {
    std::uint32_t number = 0;
    std::memcpy(&number, value.data.data(), 4);
    return "REG_DWORD " + std::to_string(number);
  }
  std::string shown;
  for (const char c : value.data)
    shown += std::isprint(static_cast<unsigned char>(c)) != 0 ? c : '.';
  return "type " + std::to_string(value.type) + " '" + shown + "' (" +
         std::to_string(value.data.size()) + " bytes)";
}

StoredValue Dword(std::uint32_t number) {
  std::string data(4, '\0');
  std::memcpy(data.data(), &number, 4);
  return {REG_DWORD, data};
}

StoredValue Text(const std::string& text) { return {REG_SZ, text}; }

std::optional<StoredValue> Read(HKEY root, const std::string& key, const std::string& name) {
  const Key open(root, key, KEY_READ);
  if (open.Get() == nullptr) return std::nullopt;
  std::vector<char> data(65536);
  DWORD length = static_cast<DWORD>(data.size());
  DWORD type = 0;
  if (RegQueryValueExA(open.Get(), name.c_str(), nullptr, &type,
                       reinterpret_cast<BYTE*>(data.data()), &length) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  return StoredValue{type, std::string(data.data(), length)};
}

bool KeyExists(HKEY root, const std::string& key) {
  return Key(root, key, KEY_READ).Get() != nullptr;
}

void CreateKey(HKEY root, const std::string& key) {
  HKEY made = nullptr;
  if (RegCreateKeyExA(root, key.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &made, nullptr) ==
      ERROR_SUCCESS) {
    RegCloseKey(made);
  }
}

void Write(HKEY root, const std::string& key, const std::string& name, const StoredValue& value) {
  CreateKey(root, key);
  const Key open(root, key, KEY_ALL_ACCESS);
  // The byte behind the data is no NUL: a NUL there would be counted in.
  std::string guarded = value.data + '\x01';
  RegSetValueExA(open.Get(), name.c_str(), 0, value.type,
                 reinterpret_cast<const BYTE*>(guarded.data()),
                 static_cast<DWORD>(value.data.size()));
}

void DeleteValue(HKEY root, const std::string& key, const std::string& name) {
  const Key open(root, key, KEY_ALL_ACCESS);
  if (open.Get() != nullptr) RegDeleteValueA(open.Get(), name.c_str());
}

void WriteTree(HKEY root, const std::string& key, const Tree& tree) {
  for (const auto& [name, value] : tree) {
    const auto slash = name.rfind('\\');
    if (slash + 1 == name.size()) {
      CreateKey(root, Join(key, name.substr(0, slash)));
    } else if (slash == std::string::npos) {
      Write(root, key, name, value);
    } else {
      Write(root, Join(key, name.substr(0, slash)), name.substr(slash + 1), value);
    }
  }
}

void DeleteTree(HKEY root, const std::string& key) {
  for (;;) {
    std::string subkey;
    {
      const Key open(root, key, KEY_READ);
      char name[256];
      DWORD length = sizeof(name);
      if (open.Get() == nullptr || RegEnumKeyExA(open.Get(), 0, name, &length, nullptr, nullptr,
                                                 nullptr, nullptr) != ERROR_SUCCESS) {
        break;
      }
      subkey = name;
    }
    DeleteTree(root, key + "\\" + subkey);
    if (KeyExists(root, key + "\\" + subkey)) break;
  }
  RegDeleteKeyA(root, key.c_str());
}

Tree ReadTree(HKEY root, const std::string& key, const std::string& without) {
  Tree tree;
  ReadInto(root, key, "", without, tree);
  return tree;
}

std::string Difference(const Tree& before, const Tree& after) {
  std::string lines;
  for (const auto& [name, value] : before) {
    const auto now = after.find(name);
    if (now == after.end()) {
      lines += "- " + name + ": " + Show(value) + "\n";
    } else if (!(now->second == value)) {
      lines += "! " + name + ": " + Show(value) + " -> " + Show(now->second) + "\n";
    }
  }
  for (const auto& [name, value] : after) {
    if (before.find(name) == before.end()) lines += "+ " + name + ": " + Show(value) + "\n";
  }
  return lines;
}

}  // namespace vantrel::e2e
