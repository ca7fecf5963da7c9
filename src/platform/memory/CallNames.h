// The names by which calls are traced, counted and made to fail: one for each operation of the
// platform's families, in their order. SendTextMessageA goes by the name of the call that it makes.
#ifndef VANTREL_PLATFORM_MEMORY_CALLNAMES_H_
#define VANTREL_PLATFORM_MEMORY_CALLNAMES_H_

#include <array>
#include <string_view>

namespace vantrel::platform::memory {

inline constexpr auto CallNames = std::to_array<std::string_view>({
    // Registry
    "RegOpenKeyExA",
    "RegOpenKeyA",
    "RegCreateKeyExA",
    "RegQueryValueExA",
    "RegSetValueExA",
    "RegDeleteKeyA",
    "RegDeleteValueA",
    "RegEnumValueA",
    "RegEnumKeyA",
    "RegCloseKey",
    // Desktop
    "InitCommonControls",
    "EnumWindows",
    "EnumChildWindows",
    "GetWindowTextA",
    "GetParent",
    "IsIconic",
    "ShowWindow",
    "SetForegroundWindow",
    "SetParent",
    "SendMessageA",
    "SetWindowLongA",
    "keybd_event",
    "GetCursorPos",
    "WindowFromPoint",
    // Shell
    "Shell_NotifyIconA",
    "ShellExecuteA",
    "SHGetSpecialFolderLocation",
    "SHGetPathFromIDListA",
    "SHBrowseForFolderA",
    "CoTaskMemFree",
    "SHEmptyRecycleBinA",
    "SHUpdateRecycleBinIcon",
    // Files
    "FileExists",
    "FileLength",
    "ReadTextFile",
    "CreateTextFile",
    "WriteTextFile",
    "AppendTextFile",
    // Processes
    "CreateProcessA",
    // Sound
    "sndPlaySoundA",
    // Dialogs
    "MessageBoxA",
    // System
    "GetVersionExA",
    "CommandLineTail",
    "ProgramFolder",
    "ProgramName",
    "PreviousInstanceRuns",
    "WindowsFolder",
    "ThousandsSeparator",
    "ShortDate",
    "ShortTime",
    "HighContrast",
    "GetTickCount",
    // Modules
    "LoadLibraryA",
    "GetProcAddress",
    "FreeLibrary",
    "CreateThread",
    "WaitForSingleObject",
    "GetExitCodeThread",
    "ExitThread",
    "CloseHandle",
    // Folders
    "FolderExists",
    "ListFolder",
    "DeleteFileA",
    "RemoveDirectoryA",
    "SetFileAttributesA",
    "MakeSureDirectoryPathExists",
    // Binary files
    "OpenFile",
    "OpenFileLength",
    "ReadAt",
    "WriteAt",
    "CloseFile",
});

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_CALLNAMES_H_
