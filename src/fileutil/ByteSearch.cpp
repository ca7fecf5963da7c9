#include "fileutil/ByteSearch.h"

#include <algorithm>

namespace vantrel::fileutil {
namespace {

constexpr std::size_t BlockSize = std::size_t{256} * 1024;

}  // namespace

BlockReader::BlockReader(NumberedFile& file, std::uint64_t offset, std::size_t overlap)
    : file_(file), offset_(offset), overlap_(overlap), buffer_(BlockSize) {}

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
