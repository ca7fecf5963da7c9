// Searches a file for byte sequences without holding more of it in memory than a block.
#ifndef VANTREL_FILEUTIL_BYTESEARCH_H_
#define VANTREL_FILEUTIL_BYTESEARCH_H_

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "fileutil/NumberedFile.h"

namespace vantrel::fileutil {

// Walks the bytes of a file from an offset in blocks that overlap by `overlap` bytes, so that no
// sequence of up to overlap + 1 bytes is cut. Raises the errors of reading.
class BlockReader {
 public:
  BlockReader(NumberedFile& file, std::uint64_t offset, std::size_t overlap);

  // The next block and the offset of its first byte; false at the end of the file.
  bool Next();
  std::string_view Block() const { return {buffer_.data(), size_}; }
  std::uint64_t Offset() const { return offset_; }

 private:
  NumberedFile& file_;
  std::uint64_t offset_;
  std::size_t overlap_;
  std::size_t size_ = 0;
  std::vector<char> buffer_;
};

// A sequence of two or more bytes, prepared for being looked for often. It owns its bytes.
class BytePattern {
 public:
  explicit BytePattern(std::string bytes);
  BytePattern(const BytePattern&) = delete;
  BytePattern& operator=(const BytePattern&) = delete;

  std::size_t Size() const { return bytes_.size(); }
  // Where the first occurrence at or behind `from` begins.
  std::optional<std::size_t> FindIn(std::string_view text, std::size_t from = 0) const;

 private:
  std::string bytes_;
  // By how much the sequence can be moved on behind a place that ends in two bytes, by a number
  // made of both: Horspool's search on pairs, since every second byte of 16-bit text is zero.
  std::array<std::size_t, 1024> shifts_{};
};

// The offset of the first occurrence at or behind `from`.
std::optional<std::uint64_t> FindInFile(NumberedFile& file, const BytePattern& pattern,
                                        std::uint64_t from);

}  // namespace vantrel::fileutil

#endif  // VANTREL_FILEUTIL_BYTESEARCH_H_
