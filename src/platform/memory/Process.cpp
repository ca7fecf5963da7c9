#include "platform/memory/Process.h"

#include "platform/memory/BinaryFilesView.h"
#include "platform/memory/CallGate.h"
#include "platform/memory/DesktopView.h"
#include "platform/memory/FilesView.h"
#include "platform/memory/FoldersView.h"
#include "platform/memory/Misuse.h"
#include "platform/memory/ModulesView.h"
#include "platform/memory/ProcessIdentity.h"
#include "platform/memory/ProcessesView.h"
#include "platform/memory/RegistryView.h"
#include "platform/memory/ShellView.h"
#include "platform/memory/SoundView.h"
#include "platform/memory/SystemView.h"
#include "platform/memory/TracedPlatform.h"

namespace vantrel::platform::memory {
namespace {

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

// The families of one process, and the decorators before them through which it calls.
struct Process::Families {
  Families(World& itsWorld, const std::string& executable, const std::string& tail,
           const Process& process)
      : world(itsWorld),
        self{world.nextProcess++, FolderOf(executable), NameOf(executable), tail},
        dialogs(process.WhileBoxIsUp, process.AnswerBox),
        modules(world, self.id, process.EndThread) {}

  std::string ControlName(WindowHandle window) const {
    return world.desktop.IsWindow(window) ? world.desktop.ControlName(window) : std::string();
  }
  HandleNames Names() const {
    return {[this](KeyHandle key) { return registry.PathOf(key); },
            [this](WindowHandle window) { return ControlName(window); },
            [this](ModuleHandle module) { return modules.PathOf(module); },
            [this](EntryAddress entry) { return world.libraries.NameOf(entry); }};
  }

  World& world;
  const ProcessIdentity self;
  CallGate gate{world.trace};

  RegistryView registry{world.registry};
  DesktopView desktop{world.desktop, self.id};
  ShellView shell{world, self.id};
  FilesView files{world.files};
  ProcessesView processes{world.programs, self};
  SoundView sound{world, self.id};
  DialogsView dialogs;
  SystemView system{world, self};
  ModulesView modules;
  FoldersView folders{world.files};
  BinaryFilesView binaryFiles{world.files};

  TracedPlatform traced{{registry, desktop, shell, files, processes, sound, dialogs, system,
                         modules, folders, binaryFiles},
                        gate,
                        Names()};
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

platform::Platform Process::Platform() { return families_->traced.Platform(); }

ProcessId Process::Id() const { return families_->self.id; }

World& Process::TheWorld() { return families_->world; }

void Process::AnswerBoxes(const std::vector<int>& answers) {
  auto& waiting = families_->dialogs.answers;
  waiting.insert(waiting.end(), answers.begin(), answers.end());
}

std::size_t Process::UnusedAnswers() const { return families_->dialogs.answers.size(); }

const std::vector<Box>& Process::Boxes() const { return families_->dialogs.boxes; }

void Process::ClearBoxes() { families_->dialogs.boxes.clear(); }

FaultPlan& Process::Faults() { return families_->gate.faults; }

memory::Trace& Process::Trace() { return families_->gate.trace; }

std::size_t Process::OpenKeys() const { return families_->registry.OpenKeys(); }

std::size_t Process::OpenFiles() const { return families_->binaryFiles.OpenFiles(); }

std::size_t Process::OpenThreads() const { return families_->modules.OpenThreads(); }

std::optional<std::uint32_t> Process::ThreadExitCode() const {
  return families_->modules.ThreadExitCode();
}

bool Process::Alive() const {
  return !ThreadExitCode() || families_->world.libraries.RunningThreads(Id()) != 0;
}

}  // namespace vantrel::platform::memory
