#include "allowlist/SiteScan.h"

#include <utility>

#include "allowlist/SiteRecord.h"
#include "text/Numbers.h"
#include "text/RuntimeError.h"
#include "text/Strings.h"

namespace vantrel::allowlist {
namespace {

std::string Key(std::string_view name) { return text::LowerCase(text::Trimmed(name)); }

std::string_view BehindFirstEquals(std::string_view field) {
  const std::size_t equals = field.find('=');
  return equals == std::string_view::npos ? field : field.substr(equals + 1);
}

struct Looked {
  std::int32_t next;
  std::string key;
};

// Looks at the first line of a pair. Error 9 for a line without a field, 6 for a number too large.
Looked LookAt(std::string_view line, std::int32_t next) {
  const SiteFields fields(line);
  if (fields.Count == 0) throw text::RuntimeError(text::ErrorNumber::SubscriptOutOfRange);
  if (!text::Trimmed(fields.Fields[0]).empty()) {
    next = text::RoundToLong(text::Val(BehindFirstEquals(fields.Fields[0])) + 1);
  }
  return {next, Key(fields.Last)};
}

// Whether the text has two lines that both end in it.
bool HasPair(std::string_view text) {
  const std::size_t first = text.find('\n');
  return first != std::string_view::npos && text.find('\n', first + 1) != std::string_view::npos;
}

}  // namespace

void SiteScan::Take(std::string_view bytes) {
  std::string joined;
  if (!tail_.empty()) {
    joined = std::move(tail_);
    bytes = joined.append(bytes);
  }
  LineReader lines(bytes);
  while (HasPair(lines.Rest())) {
    const std::string_view first = lines.ReadLine();
    TakePair(first, lines.ReadLine());
  }
  tail_ = lines.Rest();
}

void SiteScan::TakePair(std::string_view first, std::string_view second) {
  if (failed_ || text::Trimmed(second).empty()) return;
  try {
    Looked looked = LookAt(first, next_);
    next_ = looked.next;
    names_.insert(std::move(looked.key));
  } catch (const text::RuntimeError&) {
    failed_ = true;
  }
}

std::optional<std::int32_t> SiteScan::NumberFor(std::string_view name) const {
  const std::string key = Key(name);
  if (failed_ || names_.contains(key)) return std::nullopt;
  LineReader lines(tail_);
  if (lines.AtEnd()) return next_;
  const std::string_view first = lines.ReadLine();
  if (!lines.AtEnd() && text::Trimmed(lines.ReadLine()).empty()) return next_;
  try {
    const Looked looked = LookAt(first, next_);
    return looked.key == key ? std::nullopt : std::optional(looked.next);
  } catch (const text::RuntimeError&) {
    return std::nullopt;
  }
}

}  // namespace vantrel::allowlist
