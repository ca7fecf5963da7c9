#include "toolbar/ToolbarLayout.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <set>
#include <string_view>

#include "settings/Schema.h"
#include "settings/bmdlReg.h"
#include "text/ErrorTrap.h"
#include "text/Numbers.h"
#include "text/Strings.h"
#include "toolbar/Catalogue.h"
#include "windows/frmcustom.h"

namespace vantrel::toolbar {
namespace {

using forms::ListView;
using program::Program;

constexpr const char* ListValue = "Toolbar Settings";
constexpr const char* NameValue = "Toolbar Name";

std::string Read(Program& program, const char* value) {
  return settings::ReadRegistryValue(program.platform.registry, platform::HKeyCurrentUser,
                                     settings::ToolbarSettingsKey, value);
}

void Update(Program& program, const char* value, const std::string& text) {
  settings::UpdateRegistryValue(program.platform.registry, platform::HKeyCurrentUser,
                                settings::ToolbarSettingsKey, value, text);
}

// The stored list; a text of no bytes, as an empty toolbar leaves it, is the empty one.
std::string ReadList(Program& program) {
  try {
    return Read(program, ListValue);
  } catch (const text::RuntimeError& error) {
    if (error.Number() == text::ErrorNumber::InvalidProcedureCall) return {};
    throw;
  }
}

// A part of the list as a number: the digits at its start behind blanks, 0 without any. Error 6
// beyond 16 bits.
std::int16_t NumberOf(std::string_view part) {
  constexpr std::string_view Digits = "0123456789";
  part.remove_prefix(std::min(part.find_first_not_of(' '), part.size()));
  const std::string_view digits = part.substr(0, part.find_first_not_of(Digits));
  return digits.empty() ? std::int16_t{0} : text::CInt(digits);
}

void AddRow(ListView& list, int number, const std::string& caption) {
  list.Add(RowKey(number), caption, caption);
}

// One load of the layout; a step of it that fails is tried once more.
class Load {
 public:
  Load(Program& program, windows::frmcustom& form) : program_(program), form_(form) {}

  void Run() {
    std::string list;
    const bool read = Succeeds([&] { list = ReadList(program_); }) &&
                      Succeeds([&] { form_.ToolbarName = Read(program_, NameValue); });
    if (!read) return;
    if (list.empty()) return ReportEmptyList();
    if (AddCurrent(list)) AddNotShown();
  }

 private:
  bool Succeeds(const std::function<void()>& step) {
    text::ErrorTrap trap;
    if (trap(step)) return true;
    program_.MsgBox(trap.Last()->Description());
    if (trap(step)) return true;
    ReportEnd();
    return false;
  }

  // An error without a description, and no second try could succeed.
  void ReportEmptyList() {
    program_.MsgBox("");
    ReportEnd();
  }

  void ReportEnd() { program_.MsgBox("Some error occured while processing."); }

  bool AddCurrent(const std::string& list) {
    form_.lstvCurrent.Clear();
    for (const std::string& part : text::Split(list, ',')) {
      if (!Succeeds([&] { AddPart(part); })) return false;
    }
    return true;
  }

  void AddPart(const std::string& part) {
    const int number = NumberOf(part);
    // A number that is no entry's is meant to get a row all the same, with the caption before it.
    if (IsEntry(number)) caption_ = EntryOf(number).Caption;
    AddRow(form_.lstvCurrent, number, caption_);
    named_.insert(number);
  }

  void AddNotShown() {
    for (const Entry& entry : Catalogue) {
      if (!named_.contains(entry.Number)) AddRow(form_.lstvSet, entry.Number, entry.Caption);
    }
  }

  Program& program_;
  windows::frmcustom& form_;
  std::string caption_;
  std::set<int> named_;
};

}  // namespace

void allButtons(Program& program, windows::frmcustom& form) { Load(program, form).Run(); }

// The list of what is not shown is meant not to be consulted.
void SaveToolbarSetting(Program& program, const ListView& current, const ListView&,
                        const std::string& name) {
  std::string list;
  for (int row = 1; row <= current.Count(); ++row) {
    const std::string& key = current.Item(row).Key();
    list += key.substr(key.find('B') + 1) + ',';
  }
  if (!list.empty()) list.pop_back();
  Update(program, ListValue, list);
  Update(program, NameValue, name);
}

}  // namespace vantrel::toolbar
