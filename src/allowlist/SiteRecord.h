// One record of the allow list's file: what it holds, how it is written as a line, and how a line
// is taken apart. A line's fields count by their position alone; the names before the "=" are for
// people who look into the file.
#ifndef VANTREL_ALLOWLIST_SITERECORD_H_
#define VANTREL_ALLOWLIST_SITERECORD_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vantrel::allowlist {

// The flags are 1 where the kind of advertisement is allowed on the site, else 0.
struct SiteRecord {
  std::int32_t id = 0;
  std::string name;
  std::int16_t popup = 0;
  std::int16_t dhtml = 0;
  std::int16_t webDialog = 0;
  std::int16_t banner = 0;
  std::int16_t flash = 0;
};

// The five flags in their order, in records as in rows and check boxes.
inline constexpr std::array SiteFlags = {&SiteRecord::popup, &SiteRecord::dhtml,
                                         &SiteRecord::webDialog, &SiteRecord::banner,
                                         &SiteRecord::flash};

// The record as its line, with the line end. The name is written as it stands.
std::string RecordLine(const SiteRecord& site);

// The fields of a line, as parts of it: up to seven, and the last of however many there are. A line
// of length zero has none.
struct SiteFields {
  static constexpr std::size_t NameField = SiteFlags.size() + 1;

  explicit SiteFields(std::string_view line);

  std::array<std::string_view, NameField + 1> Fields;
  std::size_t Count = 0;
  std::string_view Last;
};

// What stands behind the field's last "=", trimmed; the whole field where it has none.
std::string_view ValueOf(std::string_view field);

// Takes a text apart into lines: each ends with a line feed, with or without a carriage return
// before it; the last may have no end.
class LineReader {
 public:
  explicit LineReader(std::string_view text) : rest_(text) {}

  bool AtEnd() const { return rest_.empty(); }
  // The next line without its end; not to be called at the end.
  std::string_view ReadLine();
  std::string_view Rest() const { return rest_; }

 private:
  std::string_view rest_;
};

}  // namespace vantrel::allowlist

#endif  // VANTREL_ALLOWLIST_SITERECORD_H_
