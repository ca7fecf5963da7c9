#include "app/console/Session.h"

#include <algorithm>
#include <utility>

#include "app/console/Boxes.h"
#include "app/console/Screen.h"
#include "app/console/State.h"
#include "app/console/Words.h"
#include "shell/Attach.h"
#include "shell/Startup.h"
#include "text/ScopedFlag.h"

namespace vantrel::console {

namespace memory = platform::memory;

Session::Session(std::ostream& out) : out_(out), world_(FreshWindows()) { world_->trace.Start(); }

// The later copies were started by the earlier ones' hand and go first.
Session::~Session() {
  while (!copies_.empty()) copies_.pop_back();
}

void Session::Replace(std::unique_ptr<memory::World> world) {
  if (!copies_.empty()) throw CommandError("a copy of the program runs; end it first");
  world_ = std::move(world);
  world_->trace.Start();
  seen_ = {};
}

bool Session::Running() const {
  return std::any_of(copies_.begin(), copies_.end(),
                     [](const auto& copy) { return !copy->Ended(); });
}

Copy& Session::Current() {
  const auto running = std::find_if(copies_.rbegin(), copies_.rend(),
                                    [](const auto& copy) { return !copy->Ended(); });
  if (running == copies_.rend()) throw CommandError("the program does not run; start it first");
  return **running;
}

void Session::Start(const std::string& commandLine) {
  auto made = std::make_unique<Copy>(*world_, nextNumber_, commandLine);
  Copy& copy = *made;
  ++nextNumber_;
  copies_.push_back(std::move(made));
  Wire(copy);
  for (const Fault& fault : waitingFaults_) Apply(fault, copy);
  waitingFaults_.clear();
  shell::AttachProgram(copy.Program);
  shell::Start(copy.Program);
  if (!copy.Ended()) Say("copy " + std::to_string(copy.Number) + " runs");
}

void Session::Wire(Copy& copy) {
  copy.Process.AnswerBox = [this](const memory::Box& box) { return AnswerBox(box); };
  copy.Toolkit.WaitForEvents = [this, &copy] { return WaitInModal(copy); };
  copy.Toolkit.ChooseFromPopup = [this](forms::Menu& menu) {
    return ChooseFromPopup ? ChooseFromPopup(menu) : nullptr;
  };
}

int Session::AnswerBox(const memory::Box& box) {
  const std::vector<int> buttons = ButtonsOf(box.style);
  const auto fits = [&buttons](int answer) {
    return std::find(buttons.begin(), buttons.end(), answer) != buttons.end();
  };
  const auto waiting = std::find_if(Answers.begin(), Answers.end(), fits);
  int answer = DefaultButton(box.style);
  if (waiting != Answers.end()) {
    answer = *waiting;
    Answers.erase(waiting);
  }
  BoxLines.push_back('[' + Printable(box.title) + "] " + Printable(box.text) + " -> " +
                     ButtonName(answer));
  Say(BoxLines.back());
  return answer;
}

// With nobody left to close it, the window goes.
bool Session::WaitInModal(Copy& copy) {
  Settle();
  if (!Quitting && DoNext && DoNext()) return true;
  Quitting = true;
  if (forms::Form* form = copy.Toolkit.ModalForm()) form->Hide();
  return true;
}

void Session::Fail(const Fault& fault) {
  if (Running()) {
    Apply(fault, Current());
  } else {
    waitingFaults_.push_back(fault);
  }
}

void Session::ClearFaults() {
  waitingFaults_.clear();
  if (Running()) Current().Process.Faults().Clear();
}

void Session::Apply(const Fault& fault, Copy& copy) const {
  memory::FaultPlan& faults = copy.Process.Faults();
  if (fault.Nth == 0) {
    faults.FailEvery(fault.Call, fault.Code);
  } else if (fault.Call.empty()) {
    faults.FailNthCall(fault.Nth, fault.Code);
  } else {
    faults.FailCall(fault.Call, fault.Nth, fault.Code);
  }
}

void Session::Advance(std::uint64_t milliseconds) {
  if (advancing_) throw CommandError("the clock moves already");
  const text::ScopedFlag advancing(advancing_);
  world_->clock.Advance(milliseconds);
}

void Session::Before() {
  ++depth_;
  lastCalls_ = world_->trace.Lines();
  world_->trace.Clear();
  seen_.calls = 0;
}

void Session::After() {
  Settle();
  // A copy whose handler waits further up the stack is kept until that has returned.
  if (--depth_ == 0) DropEnded();
}

void Session::Settle() {
  for (std::size_t i = 0; i < copies_.size(); ++i) {
    if (!copies_[i]->Ended()) copies_[i]->Toolkit.Pump();
  }
  TellEvents();
  TellScreen();
}

void Session::SayLastCalls() {
  for (const std::string& line : lastCalls_) Say("call: " + Printable(line));
  if (lastCalls_.empty()) Say("no call");
}

void Session::TellEvents() {
  const std::vector<std::string>& calls = world_->trace.Lines();
  for (; TracePrinted && seen_.calls < calls.size(); ++seen_.calls) {
    Say("call: " + Printable(calls[seen_.calls]));
  }
  for (; seen_.sounds < world_->playedSounds.size(); ++seen_.sounds) {
    Say("sound: " + Printable(world_->playedSounds[seen_.sounds].path));
  }
  for (; seen_.started < world_->programs.Started().size(); ++seen_.started) {
    Say("started: " + Printable(world_->programs.Started()[seen_.started].commandLine));
  }
  for (; seen_.opened < world_->openedDocuments.size(); ++seen_.opened) {
    Say("opened: " + Printable(world_->openedDocuments[seen_.opened].file));
  }
}

void Session::TellScreen() {
  const std::string screen = Running() ? ScreenLine(Current().Toolkit) : std::string();
  if (screen == seen_.screen) return;
  seen_.screen = screen;
  if (!screen.empty()) Say("screen: " + screen);
}

void Session::DropEnded() {
  for (const auto& copy : copies_) {
    if (copy->Ended()) Say("copy " + std::to_string(copy->Number) + " has ended");
  }
  std::erase_if(copies_, [](const auto& copy) { return copy->Ended(); });
}

}  // namespace vantrel::console
