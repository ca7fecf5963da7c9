// A browser that opens nothing: it appends how it was started to the file named by VANTREL_RECORD,
// a line each: the number of the window state that it was given ("-" if none), a blank, and the
// command line.
#include <windows.h>

#include <string>

namespace {

std::string ToldWindowState() {
  STARTUPINFOA startup{};
  GetStartupInfoA(&startup);
  const bool told = (startup.dwFlags & STARTF_USESHOWWINDOW) != 0;
  return told ? std::to_string(startup.wShowWindow) : "-";
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  char path[MAX_PATH]{};
  if (GetEnvironmentVariableA("VANTREL_RECORD", path, sizeof(path)) == 0) return 1;
  HANDLE file = CreateFileA(path, FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                            OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return 2;
  const std::string line = ToldWindowState() + ' ' + GetCommandLineA() + "\r\n";
  DWORD written = 0;
  WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
  CloseHandle(file);
  return 0;
}
