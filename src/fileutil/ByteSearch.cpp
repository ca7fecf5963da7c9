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

BytePattern::BytePattern(std::string bytes)
    : bytes_(std::move(bytes)), searcher_(bytes_.cbegin(), bytes_.cend()) {}

std::optional<std::size_t> BytePattern::FindIn(std::string_view text, std::size_t from) const {
  if (from > text.size()) return std::nullopt;
  const auto found =
      std::search(text.begin() + static_cast<std::ptrdiff_t>(from), text.end(), searcher_);
  if (found == text.end()) return std::nullopt;
  return static_cast<std::size_t>(found - text.begin());
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
