// The cleaning and search routines on real files, each in turn with the plainest way to the same
// end on the same tree. Usage: bench-cleaning.exe TREE [RUNS]
#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "Report.h"
#include "cleaning/FolderSize.h"
#include "cleaning/WipeFolder.h"
#include "e2e/system/RealProgram.h"
#include "fileutil/FileSearch.h"

namespace vantrel::bench {
namespace {

using Way = std::function<void()>;

double MillisecondsOf(const Way& way) {
  const auto start = std::chrono::steady_clock::now();
  way();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
      .count();
}

// Runs both ways in turn, `prepare` before each.
void Compare(const std::string& what, const char* mark, int runs, const Way& prepare,
             const Way& ours, const char* plainly, const Way& plain) {
  Times times;
  Times plainTimes;
  for (int run = 0; run < runs; ++run) {
    prepare();
    times.push_back(MillisecondsOf(ours));
    prepare();
    plainTimes.push_back(MillisecondsOf(plain));
  }
  PrintRow(what, Median(times), "ms", mark, {plainly, Median(plainTimes)});
}

constexpr int FilesInFolder = 200;

// The folders of so many files: few in each, because Wine reads a whole folder for each new file.
std::vector<std::string> FoldersForFiles(int count) {
  char folder[MAX_PATH]{};
  GetTempPathA(sizeof folder, folder);
  std::vector<std::string> folders;
  for (int number = 0; number < count / FilesInFolder; ++number) {
    folders.push_back(std::string(folder) + "VantrelBench" + std::to_string(number));
  }
  return folders;
}

void WriteFiles(const std::string& folder, std::size_t size) {
  CreateDirectoryA(folder.c_str(), nullptr);
  const std::string content(size, 'x');
  for (int number = 0; number < FilesInFolder; ++number) {
    HANDLE file = CreateFileA((folder + "\\f" + std::to_string(number)).c_str(), GENERIC_WRITE, 0,
                              nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    WriteFile(file, content.data(), static_cast<DWORD>(size), &written, nullptr);
    CloseHandle(file);
  }
}

// Opens, writes, closes and deletes each file of a folder.
void WipePlainly(const std::string& path, std::size_t size) {
  const std::string folder = path + "\\";
  const std::string content(std::min<std::size_t>(size + 1, 50001), 'y');
  WIN32_FIND_DATAA found{};
  HANDLE search = FindFirstFileA((folder + "*").c_str(), &found);
  do {
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) continue;
    const std::string path = folder + found.cFileName;
    HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    DWORD written = 0;
    WriteFile(file, content.data(), static_cast<DWORD>(content.size()), &written, nullptr);
    CloseHandle(file);
    DeleteFileA(path.c_str());
  } while (FindNextFileA(search, &found));
  FindClose(search);
}

// Lists each folder below, and in each looks for the name.
void SearchPlainly(const std::string& folder, const char* wanted) {
  WIN32_FIND_DATAA found{};
  HANDLE search = FindFirstFileA((folder + "*").c_str(), &found);
  do {
    const std::string name = found.cFileName;
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 && name != "." && name != "..") {
      SearchPlainly(folder + name + "\\", wanted);
    }
  } while (FindNextFileA(search, &found));
  FindClose(search);
  FindClose(FindFirstFileA((folder + wanted).c_str(), &found));
}

void ListByCommand(const std::string& tree) {
  std::string command = "cmd /c dir /s \"" + tree + "\" > nul";
  STARTUPINFOA startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process{};
  CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                 &process);
  WaitForSingleObject(process.hProcess, INFINITE);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
}

void CompareWipes(program::Program& program, int runs, int count, std::size_t size) {
  const std::vector<std::string> folders = FoldersForFiles(count);
  const auto each = [&folders](const auto& act) {
    return [&folders, act] { std::for_each(folders.begin(), folders.end(), act); };
  };
  using Path = const std::string&;
  Compare("overwrite and delete " + std::to_string(count) + " files of " + std::to_string(size) +
              " bytes",
          "x1.2", runs, each([=](Path folder) { WriteFiles(folder, size); }),
          each([&](Path folder) { cleaning::WipeFolder(program, folder); }),
          "open, write, close, delete", each([=](Path folder) { WipePlainly(folder, size); }));
  for (Path folder : folders) RemoveDirectoryA(folder.c_str());
}

void CompareWalks(program::Program& program, const std::string& tree, int runs) {
  const Way nothing = [] {};
  const Way measure = [&] { cleaning::FolderSize(program.platform.folders, tree); };
  measure();  // and everything is in the system's memory for all
  const Way search = [&] {
    fileutil::FileSearchResult found;
    fileutil::SearchFiles(program, tree, "cookies.txt", platform::AttributeDirectory,
                          platform::AttributeArchive, found);
  };
  Compare("size of the tree", "x1", runs, nothing, measure, "dir /s", [&] { ListByCommand(tree); });
  Compare("search of the tree", "x1", runs, nothing, search, "bare walk with the same listings",
          [&] { SearchPlainly(tree + "\\", "cookies.txt"); });
}

}  // namespace
}  // namespace vantrel::bench

int main(int count, char** arguments) {
  if (count < 2) return 2;
  const int runs = count > 2 ? std::max(1, std::atoi(arguments[2])) : 3;
  vantrel::e2e::RealProgram copy;
  vantrel::bench::CompareWipes(copy.program, runs, 10000, 200);
  vantrel::bench::CompareWipes(copy.program, runs, 200, 1000000);
  vantrel::bench::CompareWalks(copy.program, arguments[1], runs);
  return 0;
}
