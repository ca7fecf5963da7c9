#include "program/Windows.h"

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
namespace {

template <class Window>
std::unique_ptr<forms::Form> New(forms::Toolkit& toolkit) {
  return std::make_unique<Window>(toolkit);
}

}  // namespace

forms::Form& FormSlot::Touch() {
  if (!Alive()) Make();
  return *window_;
}

void FormSlot::Make() {
  toolkit_.Discard(std::move(window_));
  MakeUpToLoad();
  window_->EnsureLoaded();
}

// An error on the way leaves a window that the next touch makes anew.
void FormSlot::MakeUpToLoad() {
  const text::ScopedFlag making(making_);
  window_ = make_(toolkit_);
  for (const Behaviour& attach : attached_) attach(*window_);
  window_->EnsureInitialized();
}

Windows::Windows(forms::Toolkit& toolkit)
    : frmMain(toolkit, New<windows::frmMain>),
      FrmFrameMain(toolkit, New<windows::FrmFrameMain>),
      FrmFrameBlockPreferences(toolkit, New<windows::FrmFrameBlockPreferences>),
      FrmFrameSettings(toolkit, New<windows::FrmFrameSettings>),
      FrmFrameHistory(toolkit, New<windows::FrmFrameHistory>),
      FrmFrameAllowList(toolkit, New<windows::FrmFrameAllowList>),
      FrmFrameNotification(toolkit, New<windows::FrmFrameNotification>),
      FrmFrameIESettings(toolkit, New<windows::FrmFrameIESettings>),
      FrmFrameIEPlugin(toolkit, New<windows::FrmFrameIEPlugin>),
      FrmFrameGraph(toolkit, New<windows::FrmFrameGraph>),
      FrmFrameLog(toolkit, New<windows::FrmFrameLog>),
      frmcustom(toolkit, New<windows::frmcustom>),
      FrmAbout(toolkit, New<windows::FrmAbout>),
      UpperPanels{&FrmFrameBlockPreferences, &FrmFrameSettings,     &FrmFrameHistory,
                  &FrmFrameAllowList,        &FrmFrameNotification, &FrmFrameIESettings,
                  &FrmFrameIEPlugin,         &FrmFrameGraph,        &FrmFrameLog} {}

}  // namespace vantrel::program
