// The thirteen windows of one running copy, each a singleton: the first touch makes it, attaches
// its behaviour, loads it. Whoever needs a window goes through here; windows know nothing of each
// other. The windows are only declared here: whoever uses one includes its header.
#ifndef VANTREL_PROGRAM_WINDOWS_H_
#define VANTREL_PROGRAM_WINDOWS_H_

#include <array>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "forms/Form.h"
#include "forms/Toolkit.h"

namespace vantrel::windows {

class frmMain;
class FrmFrameMain;
class FrmFrameBlockPreferences;
class FrmFrameSettings;
class FrmFrameHistory;
class FrmFrameAllowList;
class FrmFrameNotification;
class FrmFrameIESettings;
class FrmFrameIEPlugin;
class FrmFrameGraph;
class FrmFrameLog;
class frmcustom;
class FrmAbout;

}  // namespace vantrel::windows

namespace vantrel::program {

// One window singleton, of whatever kind. A window that was unloaded is made anew by the next
// touch.
class FormSlot {
 public:
  using Maker = std::unique_ptr<forms::Form> (*)(forms::Toolkit&);

  FormSlot(forms::Toolkit& toolkit, Maker make) : toolkit_(toolkit), make_(make) {}
  FormSlot(const FormSlot&) = delete;
  FormSlot& operator=(const FormSlot&) = delete;

  // Makes the window unless it is there.
  forms::Form& Touch();

  // The same, for whoever needs nothing of the window.
  void EnsureLoaded() { Touch(); }

  bool Loaded() const { return window_ && window_->Loaded(); }

 protected:
  using Behaviour = std::function<void(forms::Form&)>;

  void Attach(Behaviour behaviour) { attached_.push_back(std::move(behaviour)); }

 private:
  // A window in the middle of its first touch counts: its own handlers may touch it.
  bool Alive() const { return window_ && (making_ || window_->Loaded()); }
  void Make();
  void MakeUpToLoad();

  forms::Toolkit& toolkit_;
  Maker make_;
  std::unique_ptr<forms::Form> window_;
  std::vector<Behaviour> attached_;
  bool making_ = false;
};

// The singleton of one kind of window, whose controls can be used.
template <class Window>
class WindowSlot : public FormSlot {
 public:
  using FormSlot::FormSlot;

  // Binds behaviour to the window's events, whenever the window is made; in the order given.
  void OnMade(std::function<void(Window&)> attach) {
    Attach([attach = std::move(attach)](forms::Form& form) { attach(static_cast<Window&>(form)); });
  }

  Window& operator*() { return static_cast<Window&>(Touch()); }
  Window* operator->() { return &**this; }
};

struct Windows {
  explicit Windows(forms::Toolkit& toolkit);

  WindowSlot<windows::frmMain> frmMain;
  WindowSlot<windows::FrmFrameMain> FrmFrameMain;
  WindowSlot<windows::FrmFrameBlockPreferences> FrmFrameBlockPreferences;
  WindowSlot<windows::FrmFrameSettings> FrmFrameSettings;
  WindowSlot<windows::FrmFrameHistory> FrmFrameHistory;
  WindowSlot<windows::FrmFrameAllowList> FrmFrameAllowList;
  WindowSlot<windows::FrmFrameNotification> FrmFrameNotification;
  WindowSlot<windows::FrmFrameIESettings> FrmFrameIESettings;
  WindowSlot<windows::FrmFrameIEPlugin> FrmFrameIEPlugin;
  WindowSlot<windows::FrmFrameGraph> FrmFrameGraph;
  WindowSlot<windows::FrmFrameLog> FrmFrameLog;
  WindowSlot<windows::frmcustom> frmcustom;
  WindowSlot<windows::FrmAbout> FrmAbout;

  // The nine panels above the Welcome panel, in the order in which a start loads them, which is
  // their order on the screen, and in which they are hidden.
  const std::array<FormSlot*, 9> UpperPanels;
};

}  // namespace vantrel::program

#endif  // VANTREL_PROGRAM_WINDOWS_H_
