// All thirteen windows on paper: constructed, never made real.
#ifndef VANTREL_TESTS_UNIT_WINDOWS_DESIGNS_H_
#define VANTREL_TESTS_UNIT_WINDOWS_DESIGNS_H_

#include <string>
#include <vector>

#include "forms/Form.h"
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

namespace vantrel::windows {

// A toolkit that makes no windows.
class PaperToolkit : public forms::Toolkit {
 public:
  std::unique_ptr<forms::FormPeer> MakeWindow(forms::Form&) override { return nullptr; }
  double TwipsPerPixelX() const override { return GridStep; }

 protected:
  void PumpMessages() override {}
};

struct Designs {
  PaperToolkit Toolkit;
  frmMain Main{Toolkit};
  FrmFrameMain Welcome{Toolkit};
  FrmFrameBlockPreferences AdBlocking{Toolkit};
  FrmFrameSettings Settings{Toolkit};
  FrmFrameHistory Clean{Toolkit};
  FrmFrameAllowList AllowedList{Toolkit};
  FrmFrameNotification Notification{Toolkit};
  FrmFrameIESettings IESettings{Toolkit};
  FrmFrameIEPlugin IEPlugins{Toolkit};
  FrmFrameGraph Graph{Toolkit};
  FrmFrameLog Log{Toolkit};
  frmcustom Customize{Toolkit};
  FrmAbout About{Toolkit};

  const std::vector<forms::Form*> Panels{&Welcome,     &AdBlocking,   &Settings,   &Clean,
                                         &AllowedList, &Notification, &IESettings, &IEPlugins,
                                         &Graph,       &Log};

  std::vector<forms::Form*> All() {
    std::vector<forms::Form*> all{&Main, &Customize, &About};
    all.insert(all.end(), Panels.begin(), Panels.end());
    return all;
  }
};

}  // namespace vantrel::windows

#endif  // VANTREL_TESTS_UNIT_WINDOWS_DESIGNS_H_
