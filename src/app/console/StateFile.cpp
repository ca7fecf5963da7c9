#include "app/console/StateFile.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <optional>
#include <string_view>
#include <vector>

#include "app/console/Paths.h"
#include "app/console/RegistryText.h"
#include "app/console/Words.h"

namespace vantrel::console {
namespace {

namespace memory = platform::memory;

constexpr std::string_view FirstLine = "vantrel console state 1";
constexpr std::size_t LongestText = 100;  // of a file's content in one line

template <class... Values>
std::string Format(const char* pattern, Values... values) {
  std::array<char, 100> text{};
  std::snprintf(text.data(), text.size(), pattern, values...);
  return text.data();
}

// The usual sum of 32 bits with the polynomial 0xEDB88320.
std::uint32_t Sum(std::string_view text) {
  std::uint32_t sum = 0xFFFFFFFFU;
  for (const char c : text) {
    sum ^= static_cast<unsigned char>(c);
    for (int bit = 0; bit < 8; ++bit) sum = sum >> 1U ^ ((sum & 1U) != 0 ? 0xEDB88320U : 0U);
  }
  return ~sum;
}

// In quotes, with %NN for what is not plain, so that paths stay readable.
std::string Packed(std::string_view bytes) {
  std::string text = "\"";
  for (const char c : bytes) {
    const bool plain = c >= ' ' && c <= '~' && c != '"' && c != '%';
    text += plain ? std::string(1, c) : Format("%%%02X", static_cast<unsigned char>(c));
  }
  return text + '"';
}

class StateWriter {
 public:
  std::string Run(const memory::World& world) {
    Line(std::string(FirstLine));
    Clock(world.clock.LocalNow());
    for (const platform::KeyHandle root :
         {platform::HKeyClassesRoot, platform::HKeyCurrentUser, platform::HKeyLocalMachine,
          memory::HKeyUsers, memory::HKeyCurrentConfig}) {
      Key(*world.registry.Root(root));
    }
    Folder(world.files, "C:");
    return text_ + Format("end %zu %08X\n", lines_, Sum(text_));
  }

 private:
  void Line(const std::string& line) {
    text_ += line + '\n';
    ++lines_;
  }

  void Clock(const memory::LocalTime& time) {
    Line(Format("clock %d %d %d %d %d %d", time.year, time.month, time.day, time.hour, time.minute,
                time.second));
  }

  void Key(const memory::RegistryKey& key) {
    Line("key " + Packed(key.Path()));
    for (const memory::RegistryValue& value : key.values) {
      Line("  value " + Packed(value.name) + ' ' + std::to_string(value.type) + ' ' +
           Packed(value.data));
    }
    for (const auto& subkey : key.subkeys) Key(*subkey);
  }

  static std::string Marks(const memory::FileTree& files, const std::string& path) {
    return std::string(files.IsReadOnly(path) ? " readonly" : "") +
           (files.IsHidden(path) ? " hidden" : "");
  }

  void Folder(const memory::FileTree& files, const std::string& path) {
    Line("folder " + Packed(path) + Marks(files, path));
    for (const std::string& name : files.List(path)) {
      const std::string below = path + '\\' + name;
      if (files.IsFolder(below)) {
        Folder(files, below);
      } else {
        File(files, below);
      }
    }
  }

  void File(const memory::FileTree& files, const std::string& path) {
    Line("file " + Packed(path) + Marks(files, path));
    const std::string content = files.Read(path).value_or("");
    for (std::size_t from = 0; from < content.size();) {
      const std::size_t lineEnd = content.find('\n', from);
      const std::size_t rest = (lineEnd == std::string::npos ? content.size() : lineEnd + 1) - from;
      const std::size_t count = std::min(rest, LongestText);
      Line("  text " + Packed(std::string_view(content).substr(from, count)));
      from += count;
    }
  }

  std::string text_;
  std::size_t lines_ = 0;
};

[[noreturn]] void Damaged(const std::string& why) {
  throw CommandError("the state is damaged: " + why);
}

int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

// The words of one line; a quoted one is unpacked.
std::vector<std::string> UnpackedWords(std::string_view line) {
  std::vector<std::string> words = SplitWords(line, line.size());
  for (std::string& word : words) {
    std::string bytes;
    for (std::size_t i = 0; i < word.size(); ++i) {
      if (word[i] != '%') {
        bytes += word[i];
        continue;
      }
      const int high = i + 2 < word.size() ? HexDigit(word[i + 1]) : -1;
      const int low = i + 2 < word.size() ? HexDigit(word[i + 2]) : -1;
      if (high < 0 || low < 0) throw CommandError("a % without two digits");
      bytes += static_cast<char>(high * 16 + low);
      i += 2;
    }
    word = bytes;
  }
  return words;
}

class StateReader {
 public:
  std::unique_ptr<memory::World> Run(std::string_view text) {
    std::size_t number = 0;
    while (!text.empty()) {
      const std::size_t end = std::min(text.find('\n'), text.size());
      ++number;
      try {
        Line(text.substr(0, end), number);
      } catch (const CommandError& error) {
        Damaged("line " + std::to_string(number) + ": " + error.what());
      }
      text.remove_prefix(std::min(end + 1, text.size()));
    }
    Finish();
    return std::move(world_);
  }

 private:
  void Line(std::string_view line, std::size_t number) {
    if (number == 1) return;  // read by CheckFrame
    const std::vector<std::string> words = UnpackedWords(line);
    if (words.empty()) throw CommandError("it is empty");
    const std::string& kind = words.front();
    if (kind == "clock") return Clock(words);
    if (kind == "key") return Key(words);
    if (kind == "value") return Value(words);
    if (kind == "folder" || kind == "file") return Entry(words);
    if (kind == "text") return Text(words);
    throw CommandError("unknown kind " + Quoted(kind.substr(0, 20)));
  }

  static void Need(bool condition) {
    if (!condition) throw CommandError("it does not have the words of its kind");
  }

  void Clock(const std::vector<std::string>& words) {
    Need(words.size() == 7);
    const auto number = [&words](std::size_t index, int least, int most) {
      return static_cast<int>(ParseNumber(words[index], least, most, "a part of the time"));
    };
    const memory::LocalTime time{number(1, 1601, 9999), number(2, 1, 12), number(3, 1, 31),
                                 number(4, 0, 23),      number(5, 0, 59), number(6, 0, 59)};
    SetClock(*world_, time);
  }

  void Key(const std::vector<std::string>& words) {
    Need(words.size() == 2);
    key_ = ParseKey(words[1]);
    world_->registry.MakeKey(key_->Root, key_->Subkey);
  }

  void Value(const std::vector<std::string>& words) {
    Need(words.size() == 4 && key_ && words[1].size() <= memory::MaxValueNameLength);
    const auto type = ParseNumber(words[2], 0, 0xFFFFFFFFLL, "the type");
    world_->registry.Set(key_->Root, key_->Subkey, words[1], static_cast<std::uint32_t>(type),
                         words[3]);
  }

  // The marks are set at the end: until then files are filled.
  void Entry(const std::vector<std::string>& words) {
    Need(words.size() >= 2);
    const bool folder = words[0] == "folder";
    const std::string path = folder ? FolderPath(words[1]) : FilePath(words[1]);
    if (folder) {
      MakeFolder(world_->files, path);
    } else {
      PutFile(world_->files, path, "");
      file_ = path;
      content_.clear();
    }
    for (std::size_t i = 2; i < words.size(); ++i) {
      Need(words[i] == "readonly" || words[i] == "hidden");
      if (words[i] == "readonly") world_->files.SetReadOnly(path, true);
      if (words[i] == "hidden") world_->files.SetHidden(path, true);
    }
  }

  void Text(const std::vector<std::string>& words) {
    Need(words.size() == 2 && !file_.empty());
    content_ += words[1];
    world_->files.Put(file_, content_);
  }

  void Finish() const {
    if (!world_) Damaged("it is empty");
  }

  std::unique_ptr<memory::World> world_ = std::make_unique<memory::World>();
  std::optional<KeyPath> key_;
  std::string file_;
  std::string content_;
};

// The text without its last line, once the frame is right.
std::string_view CheckFrame(std::string_view text) {
  if (text.substr(0, FirstLine.size() + 1) != std::string(FirstLine) + '\n') {
    throw CommandError("this is no state of the console");
  }
  const std::size_t end = text.rfind("\nend ");
  if (end == std::string_view::npos || text.back() != '\n') Damaged("its end is missing");
  const std::string_view body = text.substr(0, end + 1);
  std::size_t lines = 0;
  for (const char c : body) lines += c == '\n' ? 1 : 0;
  if (text.substr(end + 1) != Format("end %zu %08X\n", lines, Sum(body))) {
    Damaged("its sum does not fit; it was cut or changed");
  }
  return body;
}

}  // namespace

std::string StateText(const memory::World& world) { return StateWriter().Run(world); }

std::unique_ptr<memory::World> WindowsFromState(const std::string& text) {
  return StateReader().Run(CheckFrame(text));
}

}  // namespace vantrel::console
