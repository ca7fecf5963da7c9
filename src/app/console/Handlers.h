// What the commands do, one function a command, by their subject. Each takes the words behind the
// command's name, as many as the table allows, and throws CommandError if it cannot be done.
#ifndef VANTREL_APP_CONSOLE_HANDLERS_H_
#define VANTREL_APP_CONSOLE_HANDLERS_H_

#include "app/console/Commands.h"

namespace vantrel::console {

// The program's life.
void StartCopy(Session& session, const Words& words);
void SendCommand(Session& session, const Words& words);
void CloseWindow(Session& session, const Words& words);
void ExitProgram(Session& session, const Words& words);
void LogOff(Session& session, const Words& words);
void ClickTray(Session& session, const Words& words);
void Quit(Session& session, const Words& words);
void Help(Session& session, const Words& words);

// Its windows.
void Show(Session& session, const Words& words);
void Click(Session& session, const Words& words);
void PointAt(Session& session, const Words& words);
void Tick(Session& session, const Words& words);
void Untick(Session& session, const Words& words);
void Choose(Session& session, const Words& words);
void Type(Session& session, const Words& words);
void Select(Session& session, const Words& words);
void ChooseMenu(Session& session, const Words& words);
void PressTool(Session& session, const Words& words);
void PressKey(Session& session, const Words& words);
void Resize(Session& session, const Words& words);
void SetWindowState(Session& session, const Words& words);

// The Windows around it.
void Advance(Session& session, const Words& words);
void ShowClock(Session& session, const Words& words);
void Answer(Session& session, const Words& words);
void ShowBoxes(Session& session, const Words& words);
void ShowProcesses(Session& session, const Words& words);
void ShowSounds(Session& session, const Words& words);
void Trace(Session& session, const Words& words);
void Fail(Session& session, const Words& words);
void LoadState(Session& session, const Words& words);
void SaveState(Session& session, const Words& words);

// Its registry and files.
void ShowRegistry(Session& session, const Words& words);
void SetRegistry(Session& session, const Words& words);
void DeleteRegistry(Session& session, const Words& words);
void RefuseRegistry(Session& session, const Words& words);
void LoadRegistry(Session& session, const Words& words);
void SaveRegistry(Session& session, const Words& words);
void ListFiles(Session& session, const Words& words);
void ShowFile(Session& session, const Words& words);
void PutLines(Session& session, const Words& words);
void DeleteFile(Session& session, const Words& words);
void MarkFile(Session& session, const Words& words);
void LoadFile(Session& session, const Words& words);
void SaveFile(Session& session, const Words& words);

}  // namespace vantrel::console

#endif  // VANTREL_APP_CONSOLE_HANDLERS_H_
