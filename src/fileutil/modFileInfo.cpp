#include "fileutil/modFileInfo.h"

#include <algorithm>
#include <new>

#include "fileutil/ByteSearch.h"
#include "text/ErrorTrap.h"

namespace vantrel::fileutil {
namespace {

using program::Program;

constexpr const char* Landmark = "StringFileInfo";
constexpr const char* NameKey = "ProductName";
constexpr const char* NextKey = "ProductVersion";
// Where the value begins, from the start of the key: a type word, the key and a terminator of 16
// bits; the key and a terminator of 8 bits.
constexpr std::uint64_t WideValue = 26;
constexpr std::uint64_t NarrowValue = 12;

using Offset = std::optional<std::uint64_t>;

// What one pass over the file finds: the first landmark of 16-bit text ends it, so that the other
// three matter only where there is none.
struct Landmarks {
  Offset Wide;
  Offset Narrow;
  Offset FirstName;   // the first narrow key of all
  Offset NameBehind;  // the first narrow key behind the narrow landmark
};

// Sets what is missing from the first occurrence in the block at or behind the offset.
void Note(Offset& missing, const BytePattern& pattern, const BlockReader& reader,
          std::uint64_t from) {
  if (missing) return;
  const std::uint64_t start = reader.Offset();
  const auto found =
      pattern.FindIn(reader.Block(), from > start ? static_cast<std::size_t>(from - start) : 0);
  if (found) missing = start + *found;
}

Landmarks FindLandmarks(NumberedFile& file) {
  const BytePattern wide(WidenKey(Landmark));
  const BytePattern narrow(Landmark);
  const BytePattern name(NameKey);
  Landmarks found;
  BlockReader reader(file, 0, wide.Size() - 1);
  while (!found.Wide && reader.Next()) {
    Note(found.Wide, wide, reader, 0);
    Note(found.Narrow, narrow, reader, 0);
    Note(found.FirstName, name, reader, 0);
    if (found.Narrow) Note(found.NameBehind, name, reader, *found.Narrow);
  }
  return found;
}

// The offset of the value's first byte.
Offset FindValue(NumberedFile& file) {
  const Landmarks found = FindLandmarks(file);
  if (found.Wide) {
    const Offset key = FindInFile(file, BytePattern(WidenKey(NameKey)), *found.Wide);
    return key ? Offset(*key + WideValue) : std::nullopt;
  }
  const Offset key = found.Narrow ? found.NameBehind : found.FirstName;
  return key ? Offset(*key + NarrowValue) : std::nullopt;
}

// Raises error 7 for a text that memory does not hold.
std::string ReadText(NumberedFile& file, std::uint64_t offset, std::uint64_t length) {
  std::string bytes;
  if (length > bytes.max_size()) throw text::RuntimeError(text::ErrorNumber::OutOfMemory);
  try {
    bytes.resize(static_cast<std::size_t>(length));
  } catch (const std::bad_alloc&) {
    throw text::RuntimeError(text::ErrorNumber::OutOfMemory);
  }
  bytes.resize(file.ReadAt(offset, bytes));
  return bytes;
}

// The length up to the first control character behind the value's first two, less the character in
// front of it; `length` where there is none.
std::size_t LengthToControl(NumberedFile& file, std::uint64_t value, std::size_t length) {
  constexpr std::size_t LastLookedAt = 255;
  const std::string head = ReadText(file, value, LastLookedAt + 1);
  for (std::size_t i = 1; i < head.size(); ++i) {
    if (static_cast<unsigned char>(head[i]) < ' ') return i - 1;
  }
  return length;
}

std::string ProductNameOf(Program& program, NumberedFile& file) {
  const Offset value = FindValue(file);
  if (!value) return {};
  const Offset end = FindInFile(file, BytePattern(std::string(3, '\0')), *value);
  if (!end) return {};
  std::string raw = ReadText(file, *value, *end - *value);
  if (raw.find(NextKey) != std::string::npos) {
    ++program.ProductNameFallbacks;
    raw.resize(std::min(LengthToControl(file, *value, raw.size()), raw.size()));
  }
  std::erase(raw, '\0');
  return raw;
}

}  // namespace

std::string WidenKey(std::string_view key) {
  std::string widened;
  if (key.empty()) return widened;
  widened.push_back('\1');
  for (const char c : key) {
    widened.push_back('\0');
    widened.push_back(c);
  }
  return widened;
}

std::string ReplaceAll(std::string text, std::string_view find, std::string_view replacement) {
  for (std::size_t at = text.find(find); at != std::string::npos; at = text.find(find)) {
    text.replace(at, find.size(), replacement);
  }
  return text;
}

std::string GetProductName(Program& program, const std::string& path) {
  std::string name;
  text::ErrorTrap trap;
  trap([&] {
    NumberedFile file(program, path, platform::FileAccess::Read);
    name = ProductNameOf(program, file);
  });
  return name;
}

}  // namespace vantrel::fileutil
