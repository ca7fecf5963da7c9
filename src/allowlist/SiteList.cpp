#include "allowlist/SiteList.h"

#include "allowlist/SiteRecord.h"
#include "fileutil/FileErrors.h"
#include "text/ErrorTrap.h"
#include "text/Strings.h"
#include "windows/FrmFrameAllowList.h"
#include "windows/FrmFrameMain.h"

namespace vantrel::allowlist {
namespace {

using program::Program;

constexpr const char* ListFile = "\\Settings\\AllowList.txt";

constexpr std::array SubItemKeys = {"P1", "D1", "W1", "B1", "F1"};
static_assert(SubItemKeys.size() == SiteFlags.size(), "each flag has its sub-item");

constexpr std::array FoundFlags = {&Program::SitePopup, &Program::SiteDHTML,
                                   &Program::SiteWebDialog, &Program::SiteBanner,
                                   &Program::SiteFlash};
static_assert(FoundFlags.size() == SiteFlags.size(), "each flag has its variable");

void CreateIfMissing(platform::Files& files, const std::string& path) {
  if (!files.FileExists(path)) fileutil::RaiseFileError(files.CreateTextFile(path));
}

std::string ReadWhole(platform::Files& files, const std::string& path) {
  std::string content;
  fileutil::RaiseFileError(files.ReadTextFile(path, content));
  return content;
}

// The fields of a record; error 9 for a line that has too few.
SiteFields FieldsOf(std::string_view line) {
  const SiteFields fields(line);
  if (fields.Count <= SiteFields::NameField) {
    throw text::RuntimeError(text::ErrorNumber::SubscriptOutOfRange);
  }
  return fields;
}

// Gives each record up to the end or a blank line to the reader, until that answers false.
template <class Reader>
void ReadRecords(std::string_view content, Reader read) {
  for (LineReader lines(content); !lines.AtEnd();) {
    const std::string_view line = lines.ReadLine();
    if (text::Trimmed(line).empty() || !read(FieldsOf(line))) return;
  }
}

// A flag that is neither 0 nor 1 shows what the row before shows. This is meant.
using Labels = std::array<std::string, SiteFlags.size()>;

void Follow(const SiteFields& fields, Labels& labels) {
  const auto* field = fields.Fields.data();
  for (std::string& label : labels) {
    const std::string_view value = ValueOf(*++field);
    if (value == "0") label = BlockedLabel;
    if (value == "1") label = AllowedLabel;
  }
}

void FillList(forms::ListView& list, std::string_view content) {
  Labels labels;
  ReadRecords(content, [&](const SiteFields& fields) {
    forms::ListItem& row = list.Add("M" + std::to_string(list.Count()),
                                    text::Trim(fields.Fields[SiteFields::NameField]), "a");
    Follow(fields, labels);
    for (std::size_t i = 0; i < labels.size(); ++i) row.AddSubItem(SubItemKeys[i], labels[i]);
    return true;
  });
}

void Load(Program& program) {
  platform::Files& files = program.platform.files;
  const std::string path = program.PathOf(ListFile);
  CreateIfMissing(files, path);
  forms::ListView& list = program.windows.FrmFrameAllowList->lstGroup;
  list.Clear();
  const std::string content = ReadWhole(files, path);
  if (content.empty()) return;
  FillList(list, content);
  program.windows.FrmFrameMain->Hide();
}

void TakeFlags(Program& program, const SiteFields& fields) {
  for (std::size_t i = 0; i < FoundFlags.size(); ++i) {
    const std::string_view value = ValueOf(fields.Fields[i + 1]);
    if (value == "0" || value == "1") program.*FoundFlags[i] = value == "1";
  }
}

void ForgetSite(Program& program) {
  for (const auto flag : FoundFlags) program.*flag = false;
  program.SiteFound = false;
}

// Whether the search goes on behind this record; takes its flags if not.
bool IsOther(Program& program, const SiteFields& fields, const std::string& key) {
  const std::string name = text::Trim(fields.Fields[SiteFields::NameField]);
  if (text::LowerCase(name) != key) return true;
  TakeFlags(program, fields);
  program.SiteName = name;
  program.SiteFound = true;
  return false;
}

void Find(Program& program, const std::string& name) {
  platform::Files& files = program.platform.files;
  const std::string path = program.PathOf(ListFile);
  CreateIfMissing(files, path);
  const std::string key = text::LowerCase(text::Trimmed(name));
  ReadRecords(ReadWhole(files, path),
              [&](const SiteFields& fields) { return IsOther(program, fields, key); });
}

}  // namespace

void LoadAllowList(Program& program, LoadFailure failure) {
  text::ErrorTrap trap;
  if (trap([&] { Load(program); }) || failure == LoadFailure::IsSilent) return;
  program.MsgBox(trap.Last()->Description());
}

bool FindSiteRecord(Program& program, const std::string& name) {
  ForgetSite(program);
  if (name.empty()) return false;
  text::ErrorTrap trap;
  trap([&] { Find(program, name); });
  return program.SiteFound;
}

}  // namespace vantrel::allowlist
