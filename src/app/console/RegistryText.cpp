#include "app/console/RegistryText.h"

#include <array>
#include <cstdio>
#include <optional>

#include "app/console/Names.h"
#include "app/console/Words.h"

namespace vantrel::console {
namespace {

namespace memory = platform::memory;
using memory::RegistryValue;

constexpr std::size_t DeepestKey = 512;

const std::vector<std::string>& RootNames() {
  static const std::vector<std::string> names{"HKCR", "HKCU", "HKLM", "HKU", "HKCC"};
  return names;
}

std::string DwordBytes(std::uint32_t number) {
  std::string bytes;
  for (int shift = 0; shift < 32; shift += 8) {
    bytes.push_back(static_cast<char>(number >> shift & 0xFFU));
  }
  return bytes;
}

std::uint32_t DwordOf(const std::string& bytes) {
  std::uint32_t number = 0;
  for (int i = 3; i >= 0; --i) {
    number = number << 8U | static_cast<unsigned char>(bytes[static_cast<std::size_t>(i)]);
  }
  return number;
}

std::string HexText(const std::string& bytes) {
  std::string text;
  for (const char byte : bytes) {
    std::array<char, 4> digits{};
    std::snprintf(digits.data(), digits.size(), "%02X", static_cast<unsigned char>(byte));
    text += (text.empty() ? "" : " ") + std::string(digits.data());
  }
  return text;
}

// One word as text with its terminator.
std::string TextData(const std::vector<std::string>& words) {
  if (words.size() != 1) throw CommandError("the data must be one word; put it in quotes");
  return words.front() + '\0';
}

std::string MultiData(const std::vector<std::string>& words) {
  std::string data;
  for (const std::string& word : words) data += word + '\0';
  return data + '\0';
}

std::string DwordData(const std::vector<std::string>& words) {
  if (words.size() != 1) throw CommandError("the data must be one number");
  return DwordBytes(
      static_cast<std::uint32_t>(ParseNumber(words.front(), 0, 0xFFFFFFFFLL, "the number")));
}

// Pairs of hexadecimal digits, in any number of words.
std::string BinaryData(const std::vector<std::string>& words) {
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
  std::string (*parse)(const std::vector<std::string>&);
};

constexpr std::array Types{
    TypeRow{"string", platform::RegSz, TextData},
    TypeRow{"expand", platform::RegExpandSz, TextData},
    TypeRow{"dword", platform::RegDword, DwordData},
    TypeRow{"binary", platform::RegBinary, BinaryData},
    TypeRow{"multi", platform::RegMultiSz, MultiData},
};

std::string MultiText(const std::string& data) {
  std::string text = "multi";
  for (std::size_t from = 0; from + 1 < data.size();) {
    const std::size_t end = std::min(data.find('\0', from), data.size());
    text += ' ' + Quoted(data.substr(from, end - from));
    from = end + 1;
  }
  return text;
}

void AppendTree(const memory::RegistryKey& key, std::string& text) {
  text += Printable(key.Path()) + '\n';
  for (const RegistryValue& value : key.values) {
    const std::string name = value.name.empty() ? "(default)" : Printable(value.name);
    text += "  " + name + " = " + ValueText(value) + '\n';
  }
  for (const auto& subkey : key.subkeys) AppendTree(*subkey, text);
}

}  // namespace

KeyPath ParseKey(const std::string& text) {
  const std::size_t end = std::min(text.find('\\'), text.size());
  const std::string rootName = text.substr(0, end);
  KeyPath key{memory::RegistryTree::RootNamed(rootName), {}};
  if (key.Root == 0) {
    throw CommandError("no registry root " + Quoted(rootName.substr(0, 40)) +
                       Suggestion(rootName, RootNames()));
  }
  const std::vector<std::string> parts = memory::PathParts(std::string_view(text).substr(end));
  if (parts.size() > DeepestKey) throw CommandError("the key lies too deep");
  for (const std::string& part : parts) {
    if (part.size() > memory::MaxKeyNameLength) throw CommandError("a key's name is too long");
    key.Subkey += (key.Subkey.empty() ? "" : "\\") + part;
  }
  return key;
}

RegistryValue ParseValue(const std::string& name, const std::string& type,
                         const std::vector<std::string>& data) {
  if (name.size() > memory::MaxValueNameLength) throw CommandError("the value's name is too long");
  std::vector<std::string> names;
  names.reserve(Types.size());
  for (const TypeRow& row : Types) names.emplace_back(row.name);
  const TypeRow& row = Types.at(PickName("type", type, names));
  return {name, row.type, row.parse(data)};
}

std::string ValueText(const RegistryValue& value) {
  switch (value.type) {
    case platform::RegSz:
      return "string " + Quoted(value.data);
    case platform::RegExpandSz:
      return "expand " + Quoted(value.data);
    case platform::RegMultiSz:
      return MultiText(value.data);
    case platform::RegDword:
      if (value.data.size() == 4) return "dword " + std::to_string(DwordOf(value.data));
      return "dword of " + std::to_string(value.data.size()) + " bytes " + HexText(value.data);
    case platform::RegBinary:
      return "binary " + HexText(value.data);
    default:
      return "type " + std::to_string(value.type) + ' ' + HexText(value.data);
  }
}

std::string TreeText(const memory::RegistryTree& registry, const KeyPath& path) {
  const memory::RegistryKey* key = registry.Root(path.Root).get();
  for (const std::string& part : memory::PathParts(path.Subkey)) {
    if (key != nullptr) key = key->Subkey(part);
  }
  std::string text;
  if (key != nullptr) AppendTree(*key, text);
  return text;
}

}  // namespace vantrel::console
