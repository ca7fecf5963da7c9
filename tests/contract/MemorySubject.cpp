#include <map>
#include <memory>
#include <optional>

#include "contract/Subject.h"
#include "platform/memory/Process.h"

namespace vantrel::platform::contract {
namespace {

class MemorySubject : public Subject {
 public:
  MemorySubject() {
    for (const int number : {8, 26, 32, 33, 34}) {
      const std::string path = "C:\\Special" + std::to_string(number);
      world_.files.MakeFolder(path);
      world_.specialFolders[number] = path;
    }
  }

  platform::Platform Platform() override { return process_.Platform(); }

  platform::Platform StartAnother() override {
    another_.emplace(world_);
    return another_->Platform();
  }
  void EndAnother() override { another_.reset(); }

  std::string Folder() override {
    world_.files.MakeFolder("C:\\Contract");
    return "C:\\Contract";
  }
  void MakeFolder(const std::string& path) override { world_.files.MakeFolder(path); }
  void PutFile(const std::string& path, const std::string& content) override {
    world_.files.Put(path, content);
  }
  std::optional<std::string> ReadFile(const std::string& path) override {
    return world_.files.Read(path);
  }
  void Hide(const std::string& path) override { world_.files.SetHidden(path, true); }
  bool IsHidden(const std::string& path) override { return world_.files.IsHidden(path); }
  bool ProtectFromWriting(const std::string& path) override {
    world_.files.SetReadOnly(path, true);
    return true;
  }
  void SetChanged(const std::string& path, std::int64_t changed) override {
    world_.files.SetChanged(path, changed);
  }
  bool MakeLink(const std::string& path, const std::string& target) override {
    world_.files.MakeLink(path, target);
    return true;
  }
  // Files that others have open and share are as those that nobody has open.
  void OpenShared(const std::string&) override {}
  void Lock(const std::string& path) override {
    locked_ = path;
    world_.files.SetLocked(path, true);
  }
  void Unlock() override { world_.files.SetLocked(locked_, false); }
  void PutProgram(const std::string& path) override { world_.files.Put(path, "MZ"); }
  void PutLibrary(const std::string& path) override {
    world_.libraries.Register(
        path, {{"DllRegisterServer", [] { return 7; }}, {"Hang", memory::Libraries::Hangs}});
  }
  bool Recycle(const std::string& path) override {
    world_.recycleBin.push_back(path);
    world_.files.Remove(path);
    return true;
  }
  int ItemsInBin() override { return static_cast<int>(world_.recycleBin.size()); }
  void ChooseHighContrast(bool chosen) override { world_.highContrast = chosen; }
  void LetGo() override { world_.libraries.Release(); }

  WindowHandle MakeWindow(WindowHandle parent, const std::string& caption, Point place) override {
    memory::Desktop& desktop = world_.desktop;
    const WindowHandle window = desktop.MakeWindow(process_.Id(), parent, caption);
    desktop.SetPlace(window, {place.x, place.y, 100, 50});
    desktop.SetVisible(window, true);
    desktop.SetHandler(window, [this, window](const memory::Message& message) {
      if (message.message == BmClick) ++clicks_[window];
      return message.message == BmClick;
    });
    return window;
  }
  int ClicksOf(WindowHandle window) override { return clicks_[window]; }
  void Minimize(WindowHandle window) override { world_.desktop.SetIconic(window, true); }
  void Hide(WindowHandle window) override { world_.desktop.SetVisible(window, false); }
  void DestroyWindow(WindowHandle window) override { world_.desktop.DestroyWindow(window); }

 private:
  memory::World world_;
  memory::Process process_{world_};
  std::optional<memory::Process> another_;
  std::map<WindowHandle, int> clicks_;
  std::string locked_;
};

}  // namespace

std::unique_ptr<Subject> MakeMemorySubject() { return std::make_unique<MemorySubject>(); }

}  // namespace vantrel::platform::contract
