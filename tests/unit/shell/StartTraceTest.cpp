// The whole sequence of a start, line by line: what the program asks of Windows and, indented, what
// its windows show of it, in one list held against the texts in golden/. Nothing is left out but
// the visits of the search for a window. The calls of one plain access to a registry value stand
// together in one line, with these two words for the handle's open and close.
//
// To write the texts anew after a change that is meant, run this program once with
// VANTREL_WRITE_GOLDEN=1 in the environment, then read the difference line by line.
#include <gmock/gmock.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "blocking/BlockingState.h"
#include "shell/Navigation.h"
#include "unit/shell/ShellTest.h"
#include "windows/FrmFrameHistory.h"
#include "windows/FrmFrameMain.h"
#include "windows/FrmFrameSettings.h"
#include "windows/frmMain.h"

namespace vantrel::shell {
namespace {

using platform::HKeyCurrentUser;
using platform::HKeyLocalMachine;
using test::BlockSettings;
using test::Copy;
using test::Settings;

using Lines = std::vector<std::string>;

bool IsSearch(const std::string& line) {
  return line.starts_with("GetWindowTextA ") || line.starts_with("EnumChildWindows ");
}

// How many lines at the place are an open, calls on the key and its close; 0 if they are not.
std::size_t AccessLength(const Lines& lines, std::size_t at) {
  const std::string& open = lines[at];
  const bool opens = open.starts_with("RegOpenKeyExA ") || open.starts_with("RegCreateKeyExA ");
  if (!opens || !open.ends_with(" -> 0")) return 0;
  std::size_t end = at + 1;
  const auto inside = [&](const std::string& line) {
    return line.starts_with("RegQueryValueExA ") || line.starts_with("RegSetValueExA ") ||
           line.starts_with("RegDeleteValueA ");
  };
  while (end < lines.size() && inside(lines[end])) ++end;
  const bool closes =
      end < lines.size() && lines[end].starts_with("RegCloseKey ") && lines[end].ends_with(" -> 0");
  return closes ? end + 1 - at : 0;
}

// "open KEY 0xF003F, RegQueryValueExA KEY "BpId" 1024 -> 0, close".
std::string AccessLine(const Lines& lines, std::size_t at, std::size_t length) {
  std::string line =
      lines[at].starts_with("RegOpenKeyExA ") && lines[at].find(" 0xF003F ") != std::string::npos
          ? "open"
          : lines[at];
  for (std::size_t i = 1; i + 1 < length; ++i) line += ", " + lines[at + i];
  return line + ", close";
}

// A line for a file of lines; handles that the desktop gave are named as such.
std::string Readable(const std::string& line) {
  const auto arrow = line.find(" -> ");
  if (line.starts_with("GetParent ")) return line.substr(0, arrow) + " -> a window";
  std::string text;
  for (const char c : line) text += c == '\r' ? "\\r" : c == '\n' ? "\\n" : std::string(1, c);
  return text;
}

std::string Told(const Lines& lines) {
  std::string text;
  for (std::size_t at = 0; at < lines.size();) {
    const std::size_t length = AccessLength(lines, at);
    text += Readable(length == 0 ? lines[at] : AccessLine(lines, at, length)) + '\n';
    at += length == 0 ? 1 : length;
  }
  return text;
}

std::string GoldenPath(const std::string& name) {
  return std::string(VANTREL_GOLDEN_FOLDER) + "/" + name + ".txt";
}

Lines LinesOf(std::istream& stream) {
  Lines lines;
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

// Shows the first line that differs rather than two long texts.
void ExpectGolden(const std::string& name, const std::string& told) {
  if (std::getenv("VANTREL_WRITE_GOLDEN") != nullptr) {
    std::ofstream(GoldenPath(name), std::ios::binary) << told;
    FAIL() << GoldenPath(name) << " was written anew: read the difference";
  }
  std::ifstream file(GoldenPath(name), std::ios::binary);
  std::istringstream stream(told);
  const Lines expected = LinesOf(file);
  const Lines actual = LinesOf(stream);
  ASSERT_FALSE(expected.empty()) << GoldenPath(name) << " cannot be read";
  for (std::size_t i = 0; i < std::min(expected.size(), actual.size()); ++i) {
    ASSERT_EQ(actual[i], expected[i]) << name << ".txt, line " << i + 1;
  }
  EXPECT_EQ(actual.size(), expected.size()) << name;
}

class StartTrace : public test::ShellTest {
 protected:
  StartTrace() { world.trace.Start(); }

  // A copy whose calls and windows are listened to. Hover colours are no window's concern before
  // the mouse comes, so the links show them.
  std::unique_ptr<Copy> Listened(const std::string& commandLine = "") {
    auto copy = MakeCopy(commandLine);
    Listen(*copy, "");
    copy->program.windows.frmMain.OnMade([this](windows::frmMain& form) {
      for (forms::Control* control : form.Controls()) {
        if (auto* link = dynamic_cast<controls::HyperLink*>(control)) ListenToHover(*link);
      }
    });
    return copy;
  }
  void Listen(Copy& copy, const std::string& who) {
    copy.toolkit.Trace = [this, who](const std::string& line) {
      TakeCalls();
      lines_.push_back("  " + who + line);
    };
  }
  void ListenToHover(controls::HyperLink& link) {
    link.PropertyChanged = [this, &link](const std::string& property) {
      if (property != "HoverColor") return;
      lines_.push_back("  " + link.QualifiedName() +
                       " HoverColor=" + controls::HyperLink::ColorText(link.HoverColor()));
    };
  }

  // All calls of all processes from here on, and what was reported of windows meanwhile.
  template <class Act>
  std::string Tell(Act act) {
    TakeCalls();
    lines_.clear();
    act();
    TakeCalls();
    std::erase_if(lines_, IsSearch);
    return Told(lines_);
  }
  std::string TellStart(Copy& copy) {
    return Tell([&copy] { Start(copy.program); });
  }

  // Another user's choices, each of them other than what the boxes are designed with, but for the
  // log, which a first run switches on.
  void StoreChoices() {
    { StartCopy(); }
    for (const test::ExpectedSetting& setting : test::ExpectedSettings) {
      if (!HasBox(setting)) continue;
      world.registry.SetDword(HKeyCurrentUser, std::string(test::RootKey) + "\\" + setting.Key,
                              setting.Name, setting.Design == 0 ? 1 : 0);
    }
    world.registry.SetDword(HKeyCurrentUser, BlockSettings, "KeepaLog", 0);
    world.registry.SetString(HKeyCurrentUser, BlockSettings, "NSounds", "Double");
    world.registry.SetDword(HKeyCurrentUser, Settings, "BpID", 1);
    world.registry.SetDword(HKeyCurrentUser, test::BlockLog, "Popup", 300);
    world.registry.SetString(HKeyCurrentUser, test::ScriptKey, "Disable Script Debugger", "no");
    world.registry.MakeKey(HKeyLocalMachine,
                           "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper "
                           "Objects\\{CD701E6C-90D2-416E-9F3B-FFE9157D28EF}");
  }

 private:
  void TakeCalls() {
    const Lines& calls = world.trace.Lines();
    for (; seen_ < calls.size(); ++seen_) lines_.push_back(calls[seen_]);
  }

  Lines lines_;
  std::size_t seen_ = 0;
};

TEST_F(StartTrace, AFirstStart) {
  const auto copy = Listened();
  ExpectGolden("first-start", TellStart(*copy));
}

TEST_F(StartTrace, AStartOverStoredSettings) {
  StoreChoices();
  const auto copy = Listened("/options");
  ExpectGolden("stored-start", TellStart(*copy));
}

TEST_F(StartTrace, ARefusedStart) {
  StoreChoices();
  world.registry.SetString(HKeyLocalMachine, "SOFTWARE\\Microsoft\\Internet Explorer", "Version",
                           "10.0");
  const auto copy = Listened();
  ExpectGolden("refused-start", TellStart(*copy));
}

TEST_F(StartTrace, AStartThatHandsOver) {
  const auto first = StartCopy();
  Listen(*first, "receiver: ");
  const auto second = Listened("/graph");
  ExpectGolden("handed-over-start", TellStart(*second));
}

TEST_F(StartTrace, AnExitByTheMenu) {
  const auto copy = Listened();
  Start(copy->program);
  copy->Windows().FrmFrameSettings->chkGHideSystray.SetValue(1);
  ExpectGolden("exit", Tell([&] { copy->user.Select(copy->Windows().frmMain->MnuExit); }));
}

TEST_F(StartTrace, ACloseThatEndsTheProgram) {
  const auto copy = Listened();
  Start(copy->program);
  ExpectGolden("close", Tell([&] { copy->user.Close(*copy->Windows().frmMain); }));
}

TEST_F(StartTrace, ACloseToTheTray) {
  const auto copy = Listened();
  Start(copy->program);
  copy->Windows().FrmFrameSettings->chkGHideSystray.SetValue(1);
  // All nine show, so that the order of their hiding can be seen.
  for (forms::Form* form : copy->toolkit.LoadedForms()) form->Show();
  ExpectGolden("close-to-tray", Tell([&] { copy->user.Close(*copy->Windows().frmMain); }));
}

// Each from a window where everything shows, so that what is hidden can be seen, and once more from
// one with the Help frame alone, so that what is shown can be seen. The yield stands where waiting
// events are let through.
TEST_F(StartTrace, TheCaseOperations) {
  const std::pair<const char*, void (*)(program::Program&)> operations[] = {
      {"CaseWelcome", CaseWelcome},
      {"CaseAdBlocking", CaseAdBlocking},
      {"CaseSettings", CaseSettings},
      {"CaseClean", CaseClean},
      {"CaseAllow", CaseAllow},
      {"CaseNotify", CaseNotify},
      {"CaseIESettings", CaseIESettings},
      {"CaseIEPlugins", CaseIEPlugins},
      {"CaseGraph", CaseGraph},
      {"CaseLog", CaseLog},
      {"CaseHelp", CaseHelp},
  };
  const auto copy = Listened();
  Start(copy->program);
  std::string told;
  for (const auto& row : operations) {
    const auto run = [&] {
      copy->toolkit.WhenPumped([&] { copy->toolkit.Trace("yield"); });
      row.second(copy->program);
    };
    for (forms::Form* form : copy->toolkit.LoadedForms()) form->Show();
    copy->Windows().frmMain->frahelp.SetVisible(true);
    told += std::string(row.first) + "\n" + Tell(run);
    for (forms::Form* form : copy->toolkit.LoadedForms()) {
      if (form->Host() != nullptr) form->Hide();
    }
    copy->Windows().frmMain->frahelp.SetVisible(true);
    copy->Windows().FrmFrameHistory->lblcleaningstatus.SetCaption("");
    copy->toolkit.Pump();
    told += std::string(row.first) + " again\n" + Tell(run);
    copy->toolkit.Pump();
  }
  ExpectGolden("case-operations", told);
}

TEST_F(StartTrace, TheTwoRoutesOfAStart) {
  const auto copy = Listened();
  Start(copy->program);
  copy->Windows().FrmFrameMain->Timer1.SetEnabled(false);
  std::string told = "StartThroughStop\n" + Tell([&] { StartThroughStop(copy->program); });
  blocking::mnustop_Click(copy->program);
  copy->Windows().FrmFrameMain->Timer1.SetEnabled(false);
  told += "StartWithoutStop\n" + Tell([&] { StartWithoutStop(copy->program); });
  ExpectGolden("start-routes", told);
}

TEST_F(StartTrace, TheStartsOwnSizeReplacesOneOfMeanwhile) {
  const auto copy = MakeCopy();
  copy->toolkit.WhenPumped(
      [&] { copy->Windows().frmMain->UserResizes(12000, 9000, forms::WindowState::Normal); });
  Start(copy->program);
  EXPECT_EQ(copy->Windows().frmMain->Width(), 9300);
  EXPECT_EQ(copy->Windows().frmMain->Height(), 6998);
}

}  // namespace
}  // namespace vantrel::shell
