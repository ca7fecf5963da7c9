#include "platform/memory/Process.h"

#include <algorithm>
#include <deque>
#include <optional>

#include "platform/memory/CallGate.h"
#include "platform/memory/Fold.h"
#include "platform/memory/Misuse.h"
#include "platform/memory/ModulesView.h"
#include "platform/memory/RegistryView.h"

namespace vantrel::platform::memory {

std::string Hex(std::uint64_t number) {
  std::string digits;
  do {
    digits.insert(digits.begin(), "0123456789ABCDEF"[number & 0xF]);
    number >>= 4;
  } while (number != 0);
  return "0x" + digits;
}

namespace {

// What every family of one process knows.
struct Context {
  World& world;
  ProcessId id;
  CallGate gate;
  std::string folder;
  std::string name;
  std::string tail;
};

std::string UpToNul(const std::string& text) { return {text.c_str()}; }

class DesktopView : public platform::Desktop {
 public:
  explicit DesktopView(Context& context) : context_(context), shared_(context.world.desktop) {}

  void InitCommonControls() override {
    Void("InitCommonControls", "", [&] { ++shared_.commonControlsInitialized; });
  }

  void EnumWindows(const Visitor& visit) override {
    Void("EnumWindows", "", [&] { Visit(shared_.TopLevelWindows(), visit); });
  }

  void EnumChildWindows(WindowHandle parent, const Visitor& visit) override {
    Void("EnumChildWindows", Name(parent), [&] {
      // The system takes handle 0 for the desktop.
      if (parent == 0) {
        Visit(shared_.TopLevelWindows(), visit);
      } else if (shared_.IsWindow(parent)) {
        Visit(shared_.Descendants(parent), visit);
      }
    });
  }

  int GetWindowTextA(WindowHandle window, std::span<char> buffer) override {
    return Value("GetWindowTextA", Name(window) + ' ' + std::to_string(buffer.size()), 0,
                 [&] { return CopyCaption(window, buffer); });
  }

  WindowHandle GetParent(WindowHandle window) override {
    return Value("GetParent", Name(window), WindowHandle{0},
                 [&] { return shared_.Parent(window); });
  }

  bool IsIconic(WindowHandle window) override {
    return Value("IsIconic", Name(window), false,
                 [&] { return shared_.IsWindow(window) && shared_.Iconic(window); });
  }

  void ShowWindow(WindowHandle window, int command) override {
    Void("ShowWindow", Name(window) + ' ' + std::to_string(command),
         [&] { shared_.ShowWindow(window, command); });
  }

  void SetForegroundWindow(WindowHandle window) override {
    Void("SetForegroundWindow", Name(window), [&] { shared_.SetForegroundWindow(window); });
  }

  void SetParent(WindowHandle child, WindowHandle parent) override {
    Void("SetParent", Name(child) + ' ' + Name(parent), [&] { shared_.SetParent(child, parent); });
  }

  void SendMessageA(WindowHandle window, std::uint32_t message, std::uintptr_t first,
                    std::uintptr_t second) override {
    Void("SendMessageA",
         Name(window) + ' ' + std::to_string(message) + ' ' + std::to_string(first) + ' ' +
             std::to_string(second),
         [&] {
           shared_.Send({window, message, first, second});
         });
  }

  void SendTextMessageA(WindowHandle window, std::uint32_t message, std::uintptr_t first,
                        const std::string& text) override {
    Void("SendMessageA",
         Name(window) + ' ' + std::to_string(message) + ' ' + std::to_string(first) + ' ' +
             Quoted(text),
         [&] { shared_.SendText(window, message, first, text); });
  }

  void SetWindowLongA(WindowHandle window, int index, std::int32_t value) override {
    Void("SetWindowLongA", Name(window) + ' ' + std::to_string(index) + ' ' + std::to_string(value),
         [&] {
           shared_.windowLongCalls.push_back({context_.id, window, index, value});
         });
  }

  void keybd_event(std::uint8_t key, std::uint8_t scan, std::uint32_t flags,
                   std::uintptr_t extra) override {
    Void("keybd_event",
         std::to_string(key) + ' ' + std::to_string(scan) + ' ' + std::to_string(flags) + ' ' +
             std::to_string(extra),
         [&] {
           shared_.keyEvents.push_back({context_.id, key, scan, flags, extra});
         });
  }

  Point GetCursorPos() override {
    Point point;
    Void("GetCursorPos", "", [&] { point = shared_.CursorPosition(); });
    return point;
  }

  WindowHandle WindowFromPoint(Point point) override {
    return Value("WindowFromPoint", std::to_string(point.x) + ' ' + std::to_string(point.y),
                 WindowHandle{0}, [&] { return shared_.WindowAt(point); });
  }

 private:
  template <typename Act>
  void Void(const std::string& name, const std::string& arguments, Act act) {
    context_.gate.RunVoid(name, arguments, act);
  }

  template <typename Result, typename Act>
  Result Value(const std::string& name, const std::string& arguments, Result failure, Act act) {
    return context_.gate.Run(
        name, arguments, [&]() -> Result { return act(); }, [&](std::int32_t) { return failure; });
  }

  // For the trace: the control's name where it has one, else the handle.
  std::string Name(WindowHandle window) const {
    const bool named = shared_.IsWindow(window) && !shared_.ControlName(window).empty();
    return named ? shared_.ControlName(window) : Hex(window);
  }

  void Visit(const std::vector<WindowHandle>& windows, const Visitor& visit) const {
    for (const WindowHandle window : windows) {
      // One visit may destroy windows that were to come.
      if (shared_.IsWindow(window) && !visit(window)) return;
    }
  }

  int CopyCaption(WindowHandle window, std::span<char> buffer) const {
    if (!shared_.IsWindow(window) || buffer.empty()) return 0;
    const std::string& caption = shared_.Caption(window);
    const std::size_t length = std::min(caption.size(), buffer.size() - 1);
    std::copy_n(caption.begin(), length, buffer.begin());
    buffer[length] = '\0';
    return static_cast<int>(length);
  }

  Context& context_;
  memory::Desktop& shared_;
};

class ShellView : public Shell {
 public:
  explicit ShellView(Context& context) : context_(context) {}

  bool Shell_NotifyIconA(std::uint32_t message, const NotifyIconData& data) override {
    const std::string arguments = std::to_string(message) + " id " + std::to_string(data.uID);
    return context_.gate.Run(
        "Shell_NotifyIconA", arguments, [&] { return context_.world.tray.Notify(message, data); },
        [](std::int32_t) { return false; });
  }

  std::intptr_t ShellExecuteA(WindowHandle owner, const std::string& verb, const std::string& file,
                              const std::string& parameters, const std::string& directory,
                              int showCommand) override {
    const std::string arguments = Quoted(verb) + ' ' + Quoted(file) + ' ' + Quoted(parameters) +
                                  ' ' + Quoted(directory) + ' ' + std::to_string(showCommand);
    return context_.gate.Run(
        "ShellExecuteA", arguments,
        [&]() -> std::intptr_t {
          context_.world.openedDocuments.push_back(
              {context_.id, owner, verb, file, parameters, directory, showCommand});
          return 42;
        },
        [](std::int32_t code) -> std::intptr_t { return std::clamp(code, 0, 32); });
  }

 private:
  Context& context_;
};

class FilesView : public Files {
 public:
  explicit FilesView(Context& context) : context_(context) {}

  bool FileExists(const std::string& path) override {
    return context_.gate.Run(
        "FileExists", Quoted(path), [&] { return context_.world.files.IsFile(UpToNul(path)); },
        [](std::int32_t) { return false; });
  }

  std::int32_t FileLength(const std::string& path, std::uint64_t& length) override {
    return context_.gate.RunCode("FileLength", Quoted(path), [&] {
      return context_.world.files.Length(UpToNul(path), length);
    });
  }

  std::int32_t ReadTextFile(const std::string& path, std::string& content) override {
    content.clear();
    return context_.gate.RunCode("ReadTextFile", Quoted(path),
                                 [&] { return context_.world.files.Load(UpToNul(path), content); });
  }

  std::int32_t CreateTextFile(const std::string& path) override {
    return context_.gate.RunCode("CreateTextFile", Quoted(path),
                                 [&] { return context_.world.files.Create(UpToNul(path)); });
  }

  std::int32_t WriteTextFile(const std::string& path, const std::string& content) override {
    return context_.gate.RunCode(
        "WriteTextFile", Quoted(path) + ' ' + std::to_string(content.size()),
        [&] { return context_.world.files.Write(UpToNul(path), content); });
  }

  std::int32_t AppendTextFile(const std::string& path, const std::string& content) override {
    return context_.gate.RunCode(
        "AppendTextFile", Quoted(path) + ' ' + std::to_string(content.size()),
        [&] { return context_.world.files.Append(UpToNul(path), content); });
  }

 private:
  Context& context_;
};

class ProcessesView : public Processes {
 public:
  explicit ProcessesView(Context& context) : context_(context) {}

  std::int32_t CreateProcessA(const std::string& application, const std::string& commandLine,
                              int showCommand) override {
    const std::string arguments =
        Quoted(application) + ' ' + Quoted(commandLine) + ' ' + std::to_string(showCommand);
    return context_.gate.RunCode("CreateProcessA", arguments, [&] {
      return context_.world.programs.Start(context_.id, context_.folder, UpToNul(application),
                                           UpToNul(commandLine), showCommand);
    });
  }

 private:
  Context& context_;
};

class SoundView : public Sound {
 public:
  explicit SoundView(Context& context) : context_(context) {}

  bool sndPlaySoundA(const std::string& path, std::uint32_t flags) override {
    return context_.gate.Run(
        "sndPlaySoundA", Quoted(path) + ' ' + std::to_string(flags),
        [&] {
          context_.world.playedSounds.push_back({context_.id, path, flags});
          return context_.world.files.IsFile(UpToNul(path));
        },
        [](std::int32_t) { return false; });
  }

 private:
  Context& context_;
};

class DialogsView : public Dialogs {
 public:
  DialogsView(Context& context, const Process& process) : context_(context), process_(process) {}

  int MessageBoxA(WindowHandle owner, const std::string& text, const std::string& title,
                  std::uint32_t style) override {
    const std::string arguments = Quoted(text) + ' ' + Quoted(title) + ' ' + std::to_string(style);
    return context_.gate.Run(
        "MessageBoxA", arguments,
        [&] {
          return Show({owner, UpToNul(text), UpToNul(title), style});
        },
        [](std::int32_t) { return 0; });
  }

  std::vector<Box> boxes;
  std::deque<int> answers;

 private:
  int Show(const Box& box) {
    boxes.push_back(box);
    if (process_.WhileBoxIsUp) process_.WhileBoxIsUp(box);
    if (process_.AnswerBox) return process_.AnswerBox(box);
    // A box that has only OK takes no answer that is meant for a question behind it.
    const bool onlyOk = (box.style & 0xF) == 0;
    if (onlyOk && (answers.empty() || answers.front() != AnswerOk)) return AnswerOk;
    if (answers.empty()) Misuse("no answer for the box \"" + box.text + '"');
    const int answer = answers.front();
    answers.pop_front();
    if (!onlyOk && answer == AnswerOk) Misuse("a wrong answer for the box \"" + box.text + '"');
    return answer;
  }

  Context& context_;
  const Process& process_;
};

class SystemView : public System {
 public:
  explicit SystemView(Context& context) : context_(context) {}

  std::int32_t GetVersionExA(VersionRecord& record) override {
    return context_.gate.Run(
        "GetVersionExA", std::to_string(record.size), [&] { return FillVersion(record); },
        [](std::int32_t) { return 0; });
  }

  std::string CommandLineTail() override { return Text("CommandLineTail", context_.tail); }
  std::string ProgramFolder() override { return Text("ProgramFolder", context_.folder); }
  std::string ProgramName() override { return Text("ProgramName", context_.name); }

  bool PreviousInstanceRuns() override {
    return context_.gate.Run(
        "PreviousInstanceRuns", "",
        [&] {
          if (!previous_) previous_ = Claim();
          return *previous_;
        },
        [](std::int32_t) { return false; });
  }

 private:
  std::string Text(const std::string& name, const std::string& text) {
    return context_.gate.Run(
        name, "", [&] { return text; }, [&](std::int32_t) { return text; });
  }

  // The sizes of the record's short and long form; any other is refused.
  std::int32_t FillVersion(VersionRecord& record) const {
    if (record.size != 148 && record.size != 156) return 0;
    const std::uint32_t size = record.size;
    record = context_.world.version;
    record.size = size;
    return 1;
  }

  bool Claim() {
    auto& claims = context_.world.claims;
    const std::string name = Fold(context_.name);
    claims.insert({name, context_.id});
    return std::any_of(claims.begin(), claims.end(), [&](const auto& claim) {
      return claim.first == name && claim.second != context_.id;
    });
  }

  Context& context_;
  std::optional<bool> previous_;  // absent until asked
};

std::string FolderOf(const std::string& executable) {
  const std::size_t slash = executable.rfind('\\');
  Require(slash != std::string::npos, "an executable needs a full path");
  // A drive's root keeps its backslash.
  return executable.substr(0, slash == 2 ? 3 : slash);
}

std::string NameOf(const std::string& executable) {
  const std::string file = executable.substr(executable.rfind('\\') + 1);
  return file.substr(0, file.rfind('.'));
}

}  // namespace

struct Process::Families {
  Families(World& world, const std::string& executable, const std::string& tail,
           const Process& process)
      : context{world,
                world.nextProcess++,
                CallGate(world.trace),
                FolderOf(executable),
                NameOf(executable),
                tail},
        dialogs(context, process),
        modules(world, context.id, context.gate, process.EndThread) {}

  Context context;
  RegistryView registry{context.world.registry, context.gate};
  DesktopView desktop{context};
  ShellView shell{context};
  FilesView files{context};
  ProcessesView processes{context};
  SoundView sound{context};
  DialogsView dialogs;
  SystemView system{context};
  ModulesView modules;
};

Process::Process(World& world, const std::string& executable, const std::string& commandLineTail)
    : families_(std::make_unique<Families>(world, executable, commandLineTail, *this)) {
  if (!world.files.IsFile(executable)) world.files.Put(executable, "");
}

Process::~Process() {
  World& world = TheWorld();
  world.desktop.DestroyWindowsOf(Id());
  world.clock.KillTimersOf(Id());
  std::erase_if(world.claims, [this](const auto& claim) { return claim.second == Id(); });
}

platform::Platform Process::Platform() {
  Families& all = *families_;
  return {all.registry, all.desktop, all.shell,  all.files,  all.processes,
          all.sound,    all.dialogs, all.system, all.modules};
}

ProcessId Process::Id() const { return families_->context.id; }

World& Process::TheWorld() { return families_->context.world; }

void Process::AnswerBoxes(const std::vector<int>& answers) {
  auto& waiting = families_->dialogs.answers;
  waiting.insert(waiting.end(), answers.begin(), answers.end());
}

std::size_t Process::UnusedAnswers() const { return families_->dialogs.answers.size(); }

const std::vector<Box>& Process::Boxes() const { return families_->dialogs.boxes; }

void Process::ClearBoxes() { families_->dialogs.boxes.clear(); }

FaultPlan& Process::Faults() { return families_->context.gate.faults; }

memory::Trace& Process::Trace() { return families_->context.gate.trace; }

std::size_t Process::OpenKeys() const { return families_->registry.OpenKeys(); }

std::size_t Process::OpenThreads() const { return families_->modules.OpenThreads(); }

std::optional<std::uint32_t> Process::ThreadExitCode() const {
  return families_->modules.ThreadExitCode();
}

bool Process::Alive() const {
  const Context& context = families_->context;
  return !ThreadExitCode() || context.world.libraries.RunningThreads(context.id) != 0;
}

}  // namespace vantrel::platform::memory
