#include "statistics/DetailLogPanel.h"

#include "fileutil/FileErrors.h"
#include "launch/OpenUrl.h"
#include "program/PanelHosting.h"
#include "statistics/BlockLog.h"
#include "statistics/RefreshCounters.h"
#include "windows/FrmFrameGraph.h"
#include "windows/FrmFrameLog.h"

namespace vantrel::statistics {
namespace {

using program::Program;

constexpr const char* LogFile = "\\Settings\\log.txt";
constexpr const char* OneEmptyLine = "\r\n";

void ClearBoxes(Program& program) {
  for (const Counter& counter : Counters) {
    ((*program.windows.FrmFrameGraph).*counter.Box).SetText("0");
  }
}

}  // namespace

void lblResetLog_Click(Program& program) {
  platform::Files& files = program.platform.files;
  const std::string path = program.PathOf(LogFile);
  if (!files.FileExists(path)) return;
  fileutil::RaiseFileError(files.WriteTextFile(path, OneEmptyLine));
  ClearBoxes(program);
  ShowTotal(program);
  ClearBlockLog(program);
  program.MsgBox("Log cleared", platform::StyleInformation);
}

void Command11_Click(Program& program) {
  program.windows.FrmFrameGraph->Show();
  program.windows.FrmFrameLog->Hide();
}

void Attach(Program& program, windows::FrmFrameLog& form) {
  form.Load = [&program, &form] {
    program::HostPanel(program, form);
    FrmFrameLog::RefreshCounters(program);
  };
  form.lblResetLog.Click = [&program] { lblResetLog_Click(program); };
  form.Label54.Click = [&program] { launch::OpenLogFile(program); };
  form.Command11.Click = [&program] { Command11_Click(program); };
}

}  // namespace vantrel::statistics
