#include "platform/win32/Win32Platform.h"

#include "platform/win32/Adapters.h"

namespace vantrel::platform::win32 {
namespace {

class AllFamilies : public Win32Platform {
 public:
  platform::Platform Platform() override {
    return {*registry_, *desktop_, *shell_,   *files_,   *processes_,  *sound_,
            *dialogs_,  *system_,  *modules_, *folders_, *binaryFiles_};
  }

 private:
  const std::unique_ptr<Registry> registry_ = MakeRegistry();
  const std::unique_ptr<Desktop> desktop_ = MakeDesktop();
  const std::unique_ptr<Shell> shell_ = MakeShell();
  const std::unique_ptr<Files> files_ = MakeFiles();
  const std::unique_ptr<Processes> processes_ = MakeProcesses();
  const std::unique_ptr<Sound> sound_ = MakeSound();
  const std::unique_ptr<Dialogs> dialogs_ = MakeDialogs();
  const std::unique_ptr<System> system_ = MakeSystem();
  const std::unique_ptr<Modules> modules_ = MakeModules();
  const std::unique_ptr<Folders> folders_ = MakeFolders();
  const std::unique_ptr<BinaryFiles> binaryFiles_ = MakeBinaryFiles();
};

}  // namespace

std::unique_ptr<Win32Platform> MakeWin32Platform() { return std::make_unique<AllFamilies>(); }

}  // namespace vantrel::platform::win32
