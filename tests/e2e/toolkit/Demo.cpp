// Shows the designed windows without their behaviour, to be looked at: the main window with the
// panel named on the command line ("FrmFrameGraph"), or a dialog.
#include <windows.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "ProgramPictures.h"
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

namespace {

using namespace vantrel;

template <class Panel>
std::unique_ptr<forms::Form> Make(forms::Toolkit& toolkit) {
  return std::make_unique<Panel>(toolkit);
}

struct Shown {
  const char* Name;
  std::unique_ptr<forms::Form> (*Make)(forms::Toolkit&);
};

constexpr Shown Windows[] = {
    {"FrmFrameMain", Make<windows::FrmFrameMain>},
    {"FrmFrameBlockPreferences", Make<windows::FrmFrameBlockPreferences>},
    {"FrmFrameSettings", Make<windows::FrmFrameSettings>},
    {"FrmFrameHistory", Make<windows::FrmFrameHistory>},
    {"FrmFrameAllowList", Make<windows::FrmFrameAllowList>},
    {"FrmFrameNotification", Make<windows::FrmFrameNotification>},
    {"FrmFrameIESettings", Make<windows::FrmFrameIESettings>},
    {"FrmFrameIEPlugin", Make<windows::FrmFrameIEPlugin>},
    {"FrmFrameGraph", Make<windows::FrmFrameGraph>},
    {"FrmFrameLog", Make<windows::FrmFrameLog>},
    {"FrmAbout", Make<windows::FrmAbout>},
    {"frmcustom", Make<windows::frmcustom>},
};

void Host(forms::Form& panel, forms::Form& main) {
  panel.EnsureLoaded();
  if (panel.Designed().Frame == forms::Border::Panel) {
    SetParent(reinterpret_cast<HWND>(panel.hWnd()), reinterpret_cast<HWND>(main.hWnd()));
    panel.SetHost(&main);
  }
  panel.Show();
}

// Something to look at in the lists and the chart.
void Fill(forms::Form& form) {
  for (forms::Control* control : form.Controls()) {
    if (auto* list = dynamic_cast<forms::ListView*>(control)) {
      for (int row = 1; row <= 12; ++row) {
        const auto* icons = list->SmallIcons();
        const auto key = icons == nullptr || icons->Keys().empty()
                             ? std::string()
                             : icons->Keys()[static_cast<std::size_t>(row) % icons->Keys().size()];
        auto& item = list->Add("k" + std::to_string(row), "Row " + std::to_string(row), key);
        for (std::size_t column = 1; column < list->Columns().size(); ++column) {
          item.AddSubItem("", "Text " + std::to_string(column));
        }
        item.SetChecked(row % 3 == 0);
      }
    } else if (auto* chart = dynamic_cast<forms::Chart*>(control)) {
      const char* data[] = {"59", "45", "25", "66", "90"};
      for (int column = 1; column <= 5; ++column) {
        chart->SetColumn(column);
        chart->SetData(data[column - 1]);
      }
    }
  }
}

// What the program does to the left column when it starts.
void Dress(windows::frmMain& main) {
  main.PicBase.SetBackColor(forms::palette::NavigationBack);
  int picture = 0;
  for (forms::Control* control : main.Controls()) {
    if (auto* link = dynamic_cast<controls::HyperLink*>(control)) {
      link->SetForeColor(forms::palette::LinkText);
      link->SetBackColor(forms::palette::NavigationBack);
      link->SetHoverColor(forms::palette::LinkHover);
    } else if (auto* image = dynamic_cast<forms::Image*>(control)) {
      if (image->At().Width == image->At().Height) image->SetPicture(main.imgexplore, ++picture);
    }
  }
  main.ImgLTop.SetPicture(main.imgline, 1);
  main.imgbottom.SetPicture(main.imgline, 1);
}

}  // namespace

int main(int count, char** arguments) {
  const auto toolkit =
      forms::win32::MakeWin32Toolkit(tests::ProgramPictures(), [] { return false; });
  windows::frmMain main(*toolkit);
  main.Unloading = [&](bool&) { toolkit->End(); };
  main.EnsureLoaded();
  Dress(main);
  main.Show();
  std::vector<std::unique_ptr<forms::Form>> shown;
  for (int index = 1; index < count; ++index) {
    for (const Shown& row : Windows) {
      if (row.Name != std::string(arguments[index])) continue;
      shown.push_back(row.Make(*toolkit));
      Host(*shown.back(), main);
      Fill(*shown.back());
      main.lblVCP1.SetCaption(shown.back()->Caption() + " - Qorvel Software Vantrel ");
    }
    if (std::string(arguments[index]) == "frahelp") main.frahelp.SetVisible(true);
    if (std::string(arguments[index]) == "large") {
      main.SetWidth(main.Width() * 5 / 4);
      main.SetHeight(main.Height() * 5 / 4);
    }
  }
  toolkit->RunMessageLoop();
  return 0;
}
