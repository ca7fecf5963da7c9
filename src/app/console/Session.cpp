#include "app/console/Session.h"

#include <algorithm>
#include <utility>

#include "app/console/Commands.h"
#include "app/console/Screen.h"
#include "app/console/State.h"
#include "app/console/Words.h"
#include "shell/Attach.h"
#include "shell/Startup.h"
#include "text/ScopedFlag.h"

namespace vantrel::console {

namespace memory = platform::memory;

Session::Session(std::istream& in, std::ostream& out, Options options)
    : in_(in), out_(out), options_(options) {
  Replace(FreshWindows());
}

// The later copies were started on the stack of the earlier ones and go first.
Session::~Session() {
  while (!copies_.empty()) copies_.pop_back();
}

bool Session::Run() {
  while (DoNext()) {
  }
  return !failed_;
}

// False at the end of the lines. Also called while a modal window waits, from within a command.
bool Session::DoNext() {
  if (quitting_) return false;
  if (options_.Prompt) out_ << "> " << std::flush;
  std::string line;
  if (!std::getline(in_, line)) return false;
  if (line.ends_with('\r')) line.pop_back();
  if (options_.Echo) Say("> " + Printable(line.substr(0, LongestLine)));
  DoLine(line);
  out_.flush();
  return !quitting_;
}

void Session::DoLine(const std::string& line) {
  try {
    const Words words = SplitWords(line);
    if (words.empty()) return;
    BeginCommand();
    const struct Ending {
      Session& session;
      ~Ending() { session.EndCommand(); }
    } ending{*this};
    RunCommand(*this, words);
  } catch (const CommandError& error) {
    Say("error: " + Printable(error.what()));
    failed_ = true;
    if (!options_.KeepGoing) Quit();
  }
}

void Session::BeginCommand() {
  ++depth_;
  lastCalls_ = world_->trace.Lines();
  world_->trace.Clear();
  seen_.calls = 0;
}

void Session::EndCommand() {
  Settle();
  // A copy whose handler waits further up the stack is kept until that has returned.
  if (--depth_ > 0) return;
  for (const auto& copy : copies_) {
    if (copy->Ended()) Say("copy " + std::to_string(copy->Number) + " has ended");
  }
  std::erase_if(copies_, [](const auto& copy) { return copy->Ended(); });
}

// Lets the copies handle what is queued, and prints what the Windows has seen.
void Session::Settle() {
  for (std::size_t i = 0; i < copies_.size(); ++i) {
    if (!copies_[i]->Ended()) copies_[i]->Toolkit.Pump();
  }
  SayEvents();
  const Copy* copy = Running();
  const std::string screen = copy == nullptr ? "" : ScreenLine(copy->Toolkit);
  if (screen != seen_.screen && !screen.empty()) Say("screen: " + screen);
  seen_.screen = screen;
}

void Session::SayEvents() {
  const auto sayNew = [this](const char* what, const auto& rows, std::size_t& seen, auto text) {
    for (; seen < rows.size(); ++seen) Say(what + Printable(std::invoke(text, rows[seen])));
  };
  if (TracePrinted) sayNew("call: ", world_->trace.Lines(), seen_.calls, std::identity());
  sayNew("sound: ", world_->playedSounds, seen_.sounds, &memory::PlayedSound::path);
  sayNew("started: ", world_->programs.Started(), seen_.started,
         &memory::StartedProcess::commandLine);
  sayNew("opened: ", world_->openedDocuments, seen_.opened, &memory::OpenedDocument::file);
}

void Session::Replace(std::unique_ptr<memory::World> world) {
  if (!copies_.empty()) throw CommandError("a copy of the program runs; end it first");
  world_ = std::move(world);
  world_->trace.Start();
  world_->pickFolder = [this](const memory::FolderPicker& picker) {
    Say("folder picker at " + Quoted(picker.Selected) + " -> " +
        (PickedFolder.empty() ? "Cancel" : Quoted(PickedFolder)));
    return PickedFolder;
  };
  seen_ = {};
}

void Session::Start(const std::string& commandLine) {
  copies_.push_back(std::make_unique<Copy>(*world_, nextNumber_++, commandLine));
  Copy& copy = *copies_.back();
  copy.Process.EndThread = [&copy] { copy.Toolkit.End(); };
  copy.Process.AnswerBox = [this](const memory::Box& box) { return AnswerBox(box); };
  copy.Toolkit.WaitForEvents = [this, &copy] { return WaitInModal(copy); };
  copy.Toolkit.ChooseFromPopup = [this](forms::Menu& menu) {
    return ChooseFromPopup ? ChooseFromPopup(menu) : nullptr;
  };
  copy.Process.Faults() = std::exchange(nextFaults_, {});
  shell::AttachProgram(copy.Program);
  shell::Start(copy.Program);
  if (!copy.Ended()) Say("copy " + std::to_string(copy.Number) + " runs");
}

int Session::AnswerBox(const memory::Box& box) {
  // The numbers of the buttons in their order, by the kind that is in the style's low bits.
  static const std::array<std::vector<int>, 6> byKind{
      {{1}, {1, 2}, {3, 4, 5}, {6, 7, 2}, {6, 7}, {4, 2}}};
  const std::size_t kind = box.style & 15U;
  const std::vector<int>& buttons = byKind[kind < byKind.size() ? kind : 0];
  const std::size_t byDefault = (box.style >> 8U) & 3U;
  int answer = buttons[std::min(byDefault, buttons.size() - 1)];
  const auto given =
      std::find_first_of(Answers.begin(), Answers.end(), buttons.begin(), buttons.end());
  if (given != Answers.end()) {
    answer = *given;
    Answers.erase(given);
  }
  boxLines_.push_back('[' + Printable(box.title) + "] " + Printable(box.text) + " -> " +
                      ButtonNames[static_cast<std::size_t>(answer) - 1]);
  Say(boxLines_.back());
  return answer;
}

// With nobody left to close it, the window goes.
bool Session::WaitInModal(Copy& copy) {
  Settle();
  if (DoNext()) return true;
  Quit();
  if (forms::Form* form = copy.Toolkit.ModalForm()) form->Hide();
  return true;
}

Copy* Session::Running() const {
  const auto running = std::find_if(copies_.rbegin(), copies_.rend(),
                                    [](const auto& copy) { return !copy->Ended(); });
  return running == copies_.rend() ? nullptr : running->get();
}

Copy& Session::Current() {
  if (Copy* copy = Running()) return *copy;
  throw CommandError("the program does not run; start it first");
}

memory::FaultPlan& Session::Faults() {
  Copy* copy = Running();
  return copy == nullptr ? nextFaults_ : copy->Process.Faults();
}

void Session::Advance(std::uint64_t milliseconds) {
  if (advancing_) throw CommandError("the clock moves already");
  const text::ScopedFlag advancing(advancing_);
  world_->clock.Advance(milliseconds);
}

void Session::SayAll(const std::vector<std::string>& lines, const std::string& prefix,
                     const char* none) {
  for (const std::string& line : lines) Say(prefix + Printable(line));
  if (lines.empty()) Say(none);
}

}  // namespace vantrel::console
