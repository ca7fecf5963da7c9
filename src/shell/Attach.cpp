#include "shell/Attach.h"

#include "allowlist/Attach.h"
#include "blocking/Attach.h"
#include "cleaning/Attach.h"
#include "iemaintenance/Attach.h"
#include "shell/CommandChannel.h"
#include "shell/Lifetime.h"
#include "shell/LinkTargets.h"
#include "shell/Navigation.h"
#include "shell/Startup.h"
#include "shell/Tray.h"
#include "statistics/Attach.h"
#include "toolbar/Attach.h"
#include "windows/FrmAbout.h"
#include "windows/FrmFrameMain.h"
#include "windows/frmMain.h"

namespace vantrel::shell {
namespace {

using program::Program;

void AttachMainWindow(Program& program, windows::frmMain& form) {
  AttachStartup(program, form);
  AttachLifetime(program, form);
  AttachCommandChannel(program, form);
  AttachNavigation(program, form);
  AttachMenus(program, form);
  AttachTrayMenu(program, form);
}

}  // namespace

void AttachProgram(Program& program) {
  blocking::AttachBlocking(program);
  statistics::AttachStatistics(program);
  allowlist::AttachAllowList(program);
  toolbar::AttachToolbar(program);
  cleaning::AttachCleaning(program);
  iemaintenance::AttachIEMaintenance(program);
  program.windows.frmMain.OnMade(
      [&program](windows::frmMain& form) { AttachMainWindow(program, form); });
  program.windows.FrmFrameMain.OnMade(
      [&program](windows::FrmFrameMain& panel) { AttachTray(program, panel); });
  program.windows.FrmAbout.OnMade([](windows::FrmAbout& form) { AttachAbout(form); });
  AttachLinkTargets(program);
}

}  // namespace vantrel::shell
