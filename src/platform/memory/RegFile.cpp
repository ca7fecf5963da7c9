#include "platform/memory/RegFile.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <utility>

namespace vantrel::platform::memory {
namespace {

constexpr std::string_view Header4 = "REGEDIT4";
constexpr std::string_view Header5 = "Windows Registry Editor Version 5.00";
constexpr std::string_view ByteOrderMark = "\xFF\xFE";
constexpr std::size_t MaxKeyDepth = 512;
constexpr std::size_t LineWidth = 77;

// Code page 1252 from 0x80 to 0x9F; what it leaves open stands for itself.
constexpr std::array<std::uint16_t, 32> UpperControls{
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

std::uint16_t UnitOf(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte >= 0x80 && byte < 0xA0 ? UpperControls[byte - 0x80U] : byte;
}

char ByteOf(std::uint16_t unit) {
  const auto found = std::find(UpperControls.begin(), UpperControls.end(), unit);
  if (found != UpperControls.end())
    return static_cast<char>(0x80 + (found - UpperControls.begin()));
  return unit < 0x100 ? static_cast<char>(unit) : '?';
}

int DigitOf(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

struct KeyPath {
  KeyHandle root = 0;
  std::string subkey;
};

class Importer {
 public:
  Importer(RegistryTree& registry, std::string text, bool version5)
      : registry_(registry), text_(std::move(text)), version5_(version5) {}

  void Run() {
    SkipLine();
    while (at_ < text_.size()) {
      SkipBlanks();
      if (Take('[')) {
        ReadKey();
      } else if (const auto name = ReadName()) {
        ReadValue(*name);
      }
      SkipLine();
    }
  }

 private:
  char Peek() const { return at_ < text_.size() ? text_[at_] : '\n'; }

  bool Take(char c) {
    if (at_ >= text_.size() || text_[at_] != c) return false;
    ++at_;
    return true;
  }

  bool Take(std::string_view word) {
    if (std::string_view(text_).substr(at_, word.size()) != word) return false;
    at_ += word.size();
    return true;
  }

  void SkipBlanks() {
    while (Peek() == ' ' || Peek() == '\t') ++at_;
  }

  std::size_t LineEnd() const { return std::min(text_.find('\n', at_), text_.size()); }

  void SkipLine() { at_ = std::min(LineEnd() + 1, text_.size()); }

  void ReadKey() {
    key_.reset();
    const bool deletes = Take('-');
    const std::string_view line = std::string_view(text_).substr(at_, LineEnd() - at_);
    const std::size_t close = line.rfind(']');
    if (close == std::string_view::npos) return;
    key_ = ParseKey(line.substr(0, close));
    if (!key_) return;
    if (!deletes) {
      registry_.MakeKey(key_->root, key_->subkey);
    } else {
      if (!PathParts(key_->subkey).empty()) registry_.RemoveKey(key_->root, key_->subkey);
      key_.reset();
    }
  }

  static std::optional<KeyPath> ParseKey(std::string_view path) {
    const std::size_t slash = std::min(path.find('\\'), path.size());
    const KeyHandle root = RegistryTree::RootNamed(path.substr(0, slash));
    const std::string_view subkey = path.substr(std::min(slash + 1, path.size()));
    const auto parts = PathParts(subkey);
    const bool tooLong = std::any_of(parts.begin(), parts.end(), [](const std::string& part) {
      return part.size() > MaxKeyNameLength;
    });
    const bool hasNul = path.find('\0') != std::string_view::npos;
    if (root == 0 || tooLong || hasNul || parts.size() > MaxKeyDepth) return std::nullopt;
    return KeyPath{root, std::string(subkey)};
  }

  std::optional<std::string> ReadName() {
    std::optional<std::string> name;
    if (Take('@')) {
      name = std::string();
    } else {
      name = ReadQuoted();
    }
    SkipBlanks();
    if (!name || !Take('=') || name->size() > MaxValueNameLength) return std::nullopt;
    if (name->find('\0') != std::string::npos) return std::nullopt;
    SkipBlanks();
    return name;
  }

  // A text between quotes, over line ends where it has some; absent if it begins or ends with
  // none.
  std::optional<std::string> ReadQuoted() {
    if (!Take('"')) return std::nullopt;
    std::string read;
    while (at_ < text_.size()) {
      const char c = text_[at_++];
      if (c == '"') return read;
      if (c == '\\' && at_ < text_.size()) {
        read.push_back(text_[at_++]);
      } else {
        read.push_back(c);
      }
    }
    return std::nullopt;
  }

  void ReadValue(const std::string& name) {
    if (Peek() == '"') {
      if (const auto text = ReadQuoted()) Store(name, RegSz, *text + '\0');
    } else if (Take('-')) {
      if (key_) registry_.RemoveValue(key_->root, key_->subkey, name);
    } else if (Take("dword:")) {
      if (const auto number = ReadNumber()) Store(name, RegDword, Bytes(*number));
    } else if (Take("hex")) {
      ReadHex(name);
    }
  }

  void Store(const std::string& name, std::uint32_t type, const std::string& data) {
    if (key_) registry_.Set(key_->root, key_->subkey, name, type, data);
  }

  static std::string Bytes(std::uint32_t number) {
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8) {
      bytes.push_back(static_cast<char>(number >> shift & 0xFF));
    }
    return bytes;
  }

  // One to eight hexadecimal digits; absent if there is none.
  std::optional<std::uint32_t> ReadNumber() {
    std::uint32_t number = 0;
    std::size_t digits = 0;
    for (; digits < 8 && DigitOf(Peek()) >= 0; ++digits, ++at_) {
      number = number << 4 | static_cast<std::uint32_t>(DigitOf(Peek()));
    }
    return digits == 0 ? std::nullopt : std::optional(number);
  }

  void ReadHex(const std::string& name) {
    std::uint32_t type = RegBinary;
    if (Take('(')) {
      const auto told = ReadNumber();
      if (!told || !Take(')')) return;
      type = *told;
    }
    if (!Take(':')) return;
    const std::string bytes = ReadBytes();
    Store(name, type, version5_ && HoldsText(type) ? FromUtf16(bytes) : bytes);
  }

  // Bytes between commas, over lines that end with a backslash, up to the first thing that is
  // neither.
  std::string ReadBytes() {
    std::string bytes;
    for (;;) {
      SkipBlanks();
      if (Take('\\')) {
        SkipLine();
      } else if (!Take(',')) {
        const auto byte = ReadNumber();
        if (!byte) return bytes;
        bytes.push_back(static_cast<char>(*byte & 0xFF));
      }
    }
  }

  RegistryTree& registry_;
  const std::string text_;
  const bool version5_;
  std::size_t at_ = 0;
  std::optional<KeyPath> key_;  // absent: the values that follow belong to nothing
};

std::string HexPair(char byte) {
  constexpr const char* digits = "0123456789abcdef";
  const auto value = static_cast<unsigned char>(byte);
  return {digits[value >> 4], digits[value & 0xF]};
}

class Exporter {
 public:
  Exporter(const RegistryTree& registry, KeyHandle root, bool version5)
      : registry_(registry), root_(root), version5_(version5) {}

  std::string Run(const std::string& subkey) {
    text_ = std::string(version5_ ? Header5 : Header4) + "\r\n";
    WriteKey(subkey);
    return text_ + "\r\n";
  }

 private:
  void WriteKey(const std::string& subkey) {
    text_ +=
        "\r\n[" + RegistryTree::LongNameOf(root_) + (subkey.empty() ? "" : "\\") + subkey + "]\r\n";
    for (const RegistryValue& value : registry_.Values(root_, subkey)) WriteValue(value);
    for (const std::string& name : registry_.Subkeys(root_, subkey)) {
      WriteKey(subkey.empty() ? name : subkey + '\\' + name);
    }
  }

  void WriteValue(const RegistryValue& value) {
    const std::string name = (value.name.empty() ? "@" : Escaped(value.name)) + "=";
    text_ += name;
    const std::string& data = value.data;
    const std::string plain = data.ends_with('\0') ? data.substr(0, data.size() - 1) : data;
    if (value.type == RegSz && !data.empty() && plain.find('\0') == std::string::npos) {
      text_ += Escaped(plain);
    } else if (value.type == RegDword && data.size() == 4) {
      text_ += "dword:";
      for (auto byte = data.rbegin(); byte != data.rend(); ++byte) text_ += HexPair(*byte);
    } else {
      WriteHex(value, name.size());
    }
    text_ += "\r\n";
  }

  void WriteHex(const RegistryValue& value, std::size_t column) {
    std::string prefix = "hex:";
    if (value.type != RegBinary) prefix = "hex(" + TypeDigits(value.type) + "):";
    text_ += prefix;
    column += prefix.size();
    const std::string bytes = version5_ && HoldsText(value.type) ? ToUtf16(value.data) : value.data;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      if (column + 3 > LineWidth) {
        text_ += "\\\r\n  ";
        column = 2;
      }
      text_ += HexPair(bytes[i]) + (i + 1 < bytes.size() ? "," : "");
      column += 3;
    }
  }

  static std::string TypeDigits(std::uint32_t type) {
    std::string digits;
    for (; type != 0 || digits.empty(); type >>= 4) {
      digits.insert(digits.begin(), "0123456789abcdef"[type & 0xF]);
    }
    return digits;
  }

  static std::string Escaped(const std::string& text) {
    std::string escaped = "\"";
    for (const char c : text) {
      if (c == '"' || c == '\\') escaped.push_back('\\');
      escaped.push_back(c);
    }
    return escaped + '"';
  }

  const RegistryTree& registry_;
  const KeyHandle root_;
  const bool version5_;
  std::string text_;
};

}  // namespace

std::string ToUtf16(std::string_view text) {
  std::string bytes;
  for (const char c : text) {
    const std::uint16_t unit = UnitOf(c);
    bytes.push_back(static_cast<char>(unit & 0xFF));
    bytes.push_back(static_cast<char>(unit >> 8));
  }
  return bytes;
}

std::string FromUtf16(std::string_view bytes) {
  std::string text;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto low = static_cast<unsigned char>(bytes[i]);
    const auto high = static_cast<unsigned char>(bytes[i + 1]);
    text.push_back(ByteOf(static_cast<std::uint16_t>(high << 8 | low)));
  }
  return text;
}

bool ImportReg(RegistryTree& registry, std::string_view bytes) {
  const bool wide = bytes.starts_with(ByteOrderMark);
  std::string text = wide ? FromUtf16(bytes.substr(ByteOrderMark.size())) : std::string(bytes);
  const bool version5 = text.starts_with(Header5);
  if (!version5 && !text.starts_with(Header4)) return false;
  Importer(registry, std::move(text), version5).Run();
  return true;
}

std::string ExportReg(const RegistryTree& registry, KeyHandle root, const std::string& subkey,
                      RegFormat format) {
  if (!registry.HasKey(root, subkey)) return {};
  const bool version5 = format == RegFormat::Version5;
  const std::string text = Exporter(registry, root, version5).Run(subkey);
  return version5 ? std::string(ByteOrderMark) + ToUtf16(text) : text;
}

}  // namespace vantrel::platform::memory
