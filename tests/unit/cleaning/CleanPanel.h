// The Clean panel on a machine with all the folders that it cleans.
#ifndef VANTREL_TESTS_UNIT_CLEANING_CLEANPANEL_H_
#define VANTREL_TESTS_UNIT_CLEANING_CLEANPANEL_H_

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "cleaning/Attach.h"
#include "cleaning/CacheCleaner.h"
#include "cleaning/CleaningSizes.h"
#include "cleaning/Cookies.h"
#include "cleaning/WipeFolder.h"
#include "fileutil/bmdlCookies.h"
#include "support/ComponentFixture.h"
#include "windows/FrmFrameHistory.h"
#include "windows/frmMain.h"

namespace vantrel::cleaning {

class CleanPanel : public test::ComponentFixture {
 protected:
  static constexpr const char* Internet = "C:\\User\\Internet";
  static constexpr const char* Recent = "C:\\User\\Recent";
  static constexpr const char* History = "C:\\User\\History";
  static constexpr const char* Temporary = "C:\\User\\Temp";
  static constexpr const char* CookiesFolder = "C:\\User\\Cookies";
  static constexpr const char* ApplicationData = "C:\\User\\Data";

  CleanPanel() {
    AttachCleaning(program);
    const std::pair<int, const char*> folders[] = {{fileutil::CSIDL_INTERNET_CACHE, Internet},
                                                   {fileutil::CSIDL_RECENT, Recent},
                                                   {fileutil::CSIDL_HISTORY, History},
                                                   {fileutil::CSIDL_COOKIES, CookiesFolder},
                                                   {fileutil::CSIDL_APPDATA, ApplicationData}};
    for (const auto& [number, path] : folders) {
      world.specialFolders[number] = path;
      world.files.MakeFolder(path);
    }
    world.files.MakeFolder(Temporary);
    program.windows.frmMain->Show();
    Panel().Show();
    process.Trace().Clear();
  }

  windows::FrmFrameHistory& Panel() { return *program.windows.FrmFrameHistory; }
  void Put(const std::string& path, const std::string& content = "x") {
    world.files.Put(path, content);
  }
  bool Exists(const std::string& path) {
    return world.files.IsFile(path) || world.files.IsFolder(path);
  }
  std::vector<forms::CheckBox*> Boxes() {
    auto& panel = Panel();
    return {&panel.chkCacheHistory,       &panel.chkCacheInternet, &panel.chkCacheRecent,
            &panel.chkCacheHURL,          &panel.chkCachetemp,     &panel.chkWindowsRunHistory,
            &panel.chkWindowsFindHistory, &panel.chkWindowsRecDoc, &panel.chkWindowsRB};
  }
  void SelectOnly(forms::CheckBox& only) {
    for (forms::CheckBox* box : Boxes()) box->SetValue(box == &only ? 1 : 0);
  }
  void Click(forms::Control& control) { user.Click(control); }
  std::vector<std::string> Captions() {
    return {Panel().lbltif.Caption(), Panel().lblRecent.Caption(), Panel().lblhistory.Caption(),
            Panel().lblotf.Caption()};
  }
  std::vector<std::string> Paths() {
    return {Panel().lbltif.ToolTipText(), Panel().lblRecent.ToolTipText(),
            Panel().lblhistory.ToolTipText(), Panel().lblotf.ToolTipText()};
  }
  std::vector<std::string> Urls() {
    std::vector<std::string> rows;
    for (int row = 1; row <= Panel().urls.Count(); ++row) {
      const forms::ListItem& item = Panel().urls.Item(row);
      rows.push_back(item.Key() + "|" + item.Text() + "|" + item.Icon());
    }
    return rows;
  }
};

}  // namespace vantrel::cleaning

#endif  // VANTREL_TESTS_UNIT_CLEANING_CLEANPANEL_H_
