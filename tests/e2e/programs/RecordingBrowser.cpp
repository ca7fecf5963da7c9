// A browser that opens nothing: it appends the command line that it was started with to the file
// named by VANTREL_RECORD, a line each.
#include <windows.h>

#include <string>

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  char path[MAX_PATH]{};
  if (GetEnvironmentVariableA("VANTREL_RECORD", path, sizeof(path)) == 0) return 1;
  HANDLE file = CreateFileA(path, FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                            OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return 2;
  const std::string line = std::string(GetCommandLineA()) + "\r\n";
  DWORD written = 0;
  WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
  CloseHandle(file);
  return 0;
}
