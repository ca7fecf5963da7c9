#include "iemaintenance/Attach.h"

#include "fileutil/Listing.h"
#include "iemaintenance/PluginInventory.h"
#include "iemaintenance/PluginRemoval.h"
#include "iemaintenance/SettingsBackup.h"
#include "program/PanelHosting.h"
#include "windows/FrmFrameIEPlugin.h"
#include "windows/FrmFrameIESettings.h"

namespace vantrel::iemaintenance {
namespace {

using program::Program;

void AttachPlugins(Program& program, windows::FrmFrameIEPlugin& form) {
  form.flbpluginsfile.ReadFolder = [&program](const std::string& path) {
    return fileutil::FileNames(program.platform.folders, path);
  };
  form.Load = [&program, &form] {
    program::HostPanel(program, form);
    LoadPluginList(program);
  };
  form.cmdRefreshBHO.Click = [&program] { LoadPluginList(program); };
  form.cmddeleteBHO.Click = [&program] { cmddeleteBHO_Click(program); };
}

}  // namespace

void AttachIEMaintenance(Program& program) {
  program.windows.FrmFrameIESettings.OnMade(
      [&program](windows::FrmFrameIESettings& form) { Attach(program, form); });
  program.windows.FrmFrameIEPlugin.OnMade(
      [&program](windows::FrmFrameIEPlugin& form) { AttachPlugins(program, form); });
}

}  // namespace vantrel::iemaintenance
