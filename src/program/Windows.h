// The thirteen windows of one running copy, each a singleton: the first touch makes it, attaches
// its behaviour, loads it. Whoever needs a window goes through here; windows know nothing of each
// other.
#ifndef VANTREL_PROGRAM_WINDOWS_H_
#define VANTREL_PROGRAM_WINDOWS_H_

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "forms/Toolkit.h"
#include "text/ScopedFlag.h"
#include "windows/FrmAbout.h"
#include "windows/FrmFrameAllowList.h"
#include "windows/FrmFrameBlockPreferences.h"
#include "windows/FrmFrameGraph.h"
#include "windows/FrmFrameHistory.h"
#include "windows/FrmFrameIEPlugin.h"
#include "windows/FrmFrameIESettings.h"
#include "windows/FrmFrameLog.h"
#include "windows/FrmFrameMain.h"
#include "windows/FrmFrameNotification.h"
#include "windows/FrmFrameSettings.h"
#include "windows/frmMain.h"
#include "windows/frmcustom.h"

namespace vantrel::program {

// One window singleton. A window that was unloaded is made anew by the next touch.
template <class Window>
class WindowSlot {
 public:
  explicit WindowSlot(forms::Toolkit& toolkit) : toolkit_(toolkit) {}

  // Binds behaviour to the window's events, whenever the window is made; in the order given.
  void OnMade(std::function<void(Window&)> attach) { attached_.push_back(std::move(attach)); }

  // Makes the window unless it is there, for whoever needs nothing else of it.
  void EnsureLoaded() {
    if (!Alive()) Make();
  }

  Window& operator*() {
    EnsureLoaded();
    return *window_;
  }
  Window* operator->() { return &**this; }

  bool Loaded() const { return window_ && window_->Loaded(); }

 private:
  // A window in the middle of its first touch counts: its own handlers may touch it.
  bool Alive() const { return window_ && (making_ || window_->Loaded()); }

  void Make() {
    if (window_) toolkit_.Discard(std::move(window_));
    MakeUpToLoad();
    window_->EnsureLoaded();
  }

  // An error on the way leaves a window that the next touch makes anew.
  void MakeUpToLoad() {
    const text::ScopedFlag making(making_);
    window_ = std::make_unique<Window>(toolkit_);
    for (const auto& attach : attached_) attach(*window_);
    window_->EnsureInitialized();
  }

  forms::Toolkit& toolkit_;
  std::unique_ptr<Window> window_;
  std::vector<std::function<void(Window&)>> attached_;
  bool making_ = false;
};

struct Windows {
  explicit Windows(forms::Toolkit& toolkit)
      : frmMain(toolkit),
        FrmFrameMain(toolkit),
        FrmFrameBlockPreferences(toolkit),
        FrmFrameSettings(toolkit),
        FrmFrameHistory(toolkit),
        FrmFrameAllowList(toolkit),
        FrmFrameNotification(toolkit),
        FrmFrameIESettings(toolkit),
        FrmFrameIEPlugin(toolkit),
        FrmFrameGraph(toolkit),
        FrmFrameLog(toolkit),
        frmcustom(toolkit),
        FrmAbout(toolkit) {}

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
};

}  // namespace vantrel::program

#endif  // VANTREL_PROGRAM_WINDOWS_H_
