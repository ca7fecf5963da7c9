#include "fileutil/ByteSearch.h"

#include <algorithm>

namespace vantrel::fileutil {
namespace {

constexpr std::uint64_t BlockSize = std::uint64_t{256} * 1024;

// Room for what is left of a small file, and always for more than two blocks share.
std::size_t RoomFor(const NumberedFile& file, std::uint64_t offset, std::size_t overlap) {
  const std::uint64_t left = file.Length() - std::min(offset, file.Length());
  return static_cast<std::size_t>(std::clamp(left, std::uint64_t{overlap} + 1, BlockSize));
}

constexpr std::size_t EntryOf(char before, char last) {
  return static_cast<std::size_t>(static_cast<unsigned char>(before)) << 2U ^
         static_cast<unsigned char>(last);
}

}  // namespace

BlockReader::BlockReader(NumberedFile& file, std::uint64_t offset, std::size_t overlap)
    : file_(file), offset_(offset), overlap_(overlap), buffer_(RoomFor(file, offset, overlap)) {}

bool BlockReader::Next() {
  const std::size_t kept = std::min(size_, overlap_);
  std::copy(buffer_.begin() + static_cast<std::ptrdiff_t>(size_ - kept),
            buffer_.begin() + static_cast<std::ptrdiff_t>(size_), buffer_.begin());
  offset_ += size_ - kept;
  const std::size_t read = file_.ReadAt(offset_ + kept, std::span(buffer_).subspan(kept));
  size_ = kept + read;
  return read > 0;
}

BytePattern::BytePattern(std::string bytes) : bytes_(std::move(bytes)) {
  shifts_.fill(bytes_.size() - 1);
  // Of pairs with one entry the last one's shift, the shortest, holds.
  for (std::size_t at = 0; at + 2 < bytes_.size(); ++at) {
    shifts_[EntryOf(bytes_[at], bytes_[at + 1])] = bytes_.size() - 2 - at;
  }
}

std::optional<std::size_t> BytePattern::FindIn(std::string_view text, std::size_t from) const {
  const std::size_t size = bytes_.size();
  for (std::size_t at = from; at + size <= text.size();) {
    const char before = text[at + size - 2];
    const char last = text[at + size - 1];
    if (last == bytes_.back() && text.compare(at, size, bytes_) == 0) return at;
    at += shifts_[EntryOf(before, last)];
  }
  return std::nullopt;
}

std::optional<std::uint64_t> FindInFile(NumberedFile& file, const BytePattern& pattern,
                                        std::uint64_t from) {
  BlockReader reader(file, from, pattern.Size() - 1);
  while (reader.Next()) {
    if (const auto found = pattern.FindIn(reader.Block())) return reader.Offset() + *found;
  }
  return std::nullopt;
}

}  // namespace vantrel::fileutil
