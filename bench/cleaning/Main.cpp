// The cleaning and search routines on real files, each in turn with the plainest way to the same
// end on the same tree. Usage: bench-cleaning.exe TREE [RUNS]
#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "cleaning/FolderSize.h"
#include "cleaning/WipeFolder.h"
#include "e2e/system/RealProgram.h"
#include "fileutil/FileSearch.h"

namespace vantrel::bench {
namespace {

using Way = std::function<void()>;

double SecondsOf(const Way& way) {
  const auto start = std::chrono::steady_clock::now();
  way();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

// Runs both ways in turn, `prepare` before each, and prints the medians and their ratio.
void Compare(const char* what, const char* wanted, int runs, const Way& prepare, const Way& ours,
             const Way& plain) {
  std::vector<double> times;
  std::vector<double> plainTimes;
  for (int run = 0; run < runs; ++run) {
    prepare();
    times.push_back(SecondsOf(ours));
    prepare();
    plainTimes.push_back(SecondsOf(plain));
  }
  std::printf("%-44s %9.1f ms %9.1f ms %6.2f (%s)\n", what, Median(times) * 1000,
              Median(plainTimes) * 1000, Median(times) / Median(plainTimes), wanted);
  std::fflush(stdout);
}

std::string FolderForFiles() {
  char folder[MAX_PATH]{};
  GetTempPathA(sizeof folder, folder);
  return std::string(folder) + "VantrelBench";
}

void WriteFiles(int count, std::size_t size) {
  const std::string folder = FolderForFiles();
  CreateDirectoryA(folder.c_str(), nullptr);
  const std::string content(size, 'x');
  for (int number = 0; number < count; ++number) {
    HANDLE file = CreateFileA((folder + "\\f" + std::to_string(number)).c_str(), GENERIC_WRITE, 0,
                              nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    WriteFile(file, content.data(), static_cast<DWORD>(size), &written, nullptr);
    CloseHandle(file);
  }
}

// Opens, writes, closes and deletes each file of a folder.
void WipePlainly(std::size_t size) {
  const std::string folder = FolderForFiles() + "\\";
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

std::uint64_t WalkPlainly(const std::string& folder) {
  std::uint64_t bytes = 0;
  WIN32_FIND_DATAA found{};
  HANDLE search = FindFirstFileA((folder + "\\*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return 0;
  do {
    const std::string name = found.cFileName;
    bytes += found.nFileSizeLow;
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 && name != "." && name != "..") {
      bytes += WalkPlainly(folder + "\\" + name);
    }
  } while (FindNextFileA(search, &found));
  FindClose(search);
  return bytes;
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

void CompareWipes(program::Program& program, int runs) {
  const std::string folder = FolderForFiles();
  for (const auto& [count, size] : {std::pair{10000, 200}, std::pair{200, 1000000}}) {
    const std::string what = "overwrite and delete " + std::to_string(count) + " files of " +
                             std::to_string(size) + " bytes";
    Compare(
        what.c_str(), "<= 1.2", runs, [&, c = count, s = size] { WriteFiles(c, s); },
        [&] { cleaning::WipeFolder(program, folder); }, [s = size] { WipePlainly(s); });
  }
  RemoveDirectoryA(folder.c_str());
}

void CompareWalks(program::Program& program, const std::string& tree, int runs) {
  const Way nothing = [] {};
  const Way size = [&] {
    if (cleaning::FolderSize(program.platform.folders, tree) != WalkPlainly(tree)) {
      std::printf("the sizes differ\n");
    }
  };
  size();  // and everything is in the system's memory for both
  const Way measure = [&] { cleaning::FolderSize(program.platform.folders, tree); };
  const Way search = [&] {
    fileutil::FileSearchResult found;
    fileutil::SearchFiles(program, tree, "cookies.txt", platform::AttributeDirectory,
                          platform::AttributeArchive, found);
  };
  const Way command = [&] { ListByCommand(tree); };
  const Way walk = [&] { WalkPlainly(tree); };
  Compare("size, beside dir /s", "<= 1.0", runs, nothing, measure, command);
  Compare("size, beside a bare walk", "told", runs, nothing, measure, walk);
  Compare("search, beside dir /s", "<= 1.0", runs, nothing, search, command);
  Compare("search, which lists twice, beside a bare walk", "told", runs, nothing, search, walk);
}

}  // namespace
}  // namespace vantrel::bench

int main(int count, char** arguments) {
  if (count < 2) return 2;
  const int runs = count > 2 ? std::max(1, std::atoi(arguments[2])) : 3;
  vantrel::e2e::RealProgram copy;
  std::printf("%-44s %12s %12s %6s\n", "", "program", "plain way", "ratio");
  vantrel::bench::CompareWipes(copy.program, runs);
  vantrel::bench::CompareWalks(copy.program, arguments[1], runs);
  return 0;
}
