// The allow list's operations in their plain form, step by step, with a scan of the whole file for
// each record: what the quick ones are compared with, in results and in speed.
#ifndef VANTREL_TESTS_SUPPORT_PLAINSITEFILE_H_
#define VANTREL_TESTS_SUPPORT_PLAINSITEFILE_H_

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "fileutil/FileErrors.h"
#include "platform/Files.h"
#include "text/Numbers.h"
#include "text/RuntimeError.h"
#include "text/Strings.h"

namespace vantrel::test::plain {

class TextStream {
 public:
  explicit TextStream(std::string text) : text_(std::move(text)) {}

  bool AtEndOfStream() const { return at_ == text_.size(); }

  std::string ReadLine() {
    if (AtEndOfStream()) throw text::RuntimeError(text::ErrorNumber::InputPastEndOfFile);
    std::string line;
    while (at_ < text_.size()) {
      const char c = text_[at_++];
      if (c == '\n') break;
      line += c;
    }
    if (!line.empty() && line.back() == '\r') line.pop_back();
    return line;
  }

 private:
  std::string text_;
  std::size_t at_ = 0;
};

struct Site {
  std::string name;
  std::int16_t popup = 0;
  std::int16_t dhtml = 0;
  std::int16_t webDialog = 0;
  std::int16_t banner = 0;
  std::int16_t flash = 0;
};

inline std::string Line(std::int32_t number, const Site& site) {
  return "id =" + std::to_string(number) + ", Popup= " + std::to_string(site.popup) +
         " ,DHTML = " + std::to_string(site.dhtml) +
         ", WebDialog =" + std::to_string(site.webDialog) +
         " ,Banner = " + std::to_string(site.banner) + ", Flash = " + std::to_string(site.flash) +
         " , " + site.name + "\r\n";
}

// One pass of the scan is over: whether it says that the name is there.
inline bool SaysTaken(const std::vector<std::string>& fields, const std::string& name,
                      std::int32_t& number) {
  if (fields.empty()) throw text::RuntimeError(text::ErrorNumber::SubscriptOutOfRange);
  const std::string& first = fields.front();
  if (!text::Trim(first).empty()) {
    const std::size_t equals = first.find('=');
    const std::string digits = equals == std::string::npos ? first : first.substr(equals + 1);
    number = text::RoundToLong(text::Val(digits) + 1);
  }
  return text::LowerCase(text::Trim(fields.back())) == text::LowerCase(text::Trim(name));
}

inline bool SecondIsBlank(TextStream& stream) {
  try {
    return text::Trim(stream.ReadLine()).empty();
  } catch (const text::RuntimeError& error) {
    if (error.Number() != text::ErrorNumber::InputPastEndOfFile) throw;
    return false;
  }
}

inline bool ScanAndAppend(platform::Files& files, const std::string& path, const Site& site) {
  std::string content;
  fileutil::RaiseFileError(files.ReadTextFile(path, content));
  TextStream stream(content);
  std::int32_t number = 1;
  while (!stream.AtEndOfStream()) {
    const std::vector<std::string> fields = text::Split(stream.ReadLine(), ',');
    if (SecondIsBlank(stream)) continue;
    if (SaysTaken(fields, site.name, number)) return false;
  }
  fileutil::RaiseFileError(files.AppendTextFile(path, Line(number, site)));
  return true;
}

inline bool AddSiteRecord(platform::Files& files, const std::string& path, const Site& site) {
  if (!files.FileExists(path)) {
    files.CreateTextFile(path);
    if (!files.FileExists(path)) return false;
  }
  try {
    return ScanAndAppend(files, path, site);
  } catch (const text::RuntimeError&) {
    return false;
  }
}

inline bool RewriteSiteFile(platform::Files& files, const std::string& path,
                            const std::vector<Site>& sites) {
  files.WriteTextFile(path, "");
  bool added = false;
  for (const Site& site : sites) added = AddSiteRecord(files, path, site);
  return added;
}

// The rows that a load makes, each as name and five labels; an error ends it.
using Rows = std::vector<std::array<std::string, 6>>;

inline Rows LoadRows(const std::string& content) {
  Rows rows;
  std::array<std::string, 6> row;
  TextStream stream(content);
  while (!stream.AtEndOfStream()) {
    const std::string line = stream.ReadLine();
    if (text::Trim(line).empty()) return rows;
    const std::vector<std::string> fields = text::Split(line, ',');
    if (fields.size() < 7) return rows;
    row[0] = text::Trim(fields[6]);
    for (std::size_t field = 1; field <= 5; ++field) {
      std::string value = text::Trim(fields[field]);
      if (const std::size_t equals = value.rfind('='); equals != std::string::npos) {
        value = text::Trim(value.substr(equals + 1));
      }
      if (value == "0") row[field] = "Blocked";
      if (value == "1") row[field] = "Allowed";
    }
    rows.push_back(row);
  }
  return rows;
}

}  // namespace vantrel::test::plain

#endif  // VANTREL_TESTS_SUPPORT_PLAINSITEFILE_H_
