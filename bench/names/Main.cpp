// Measures the search for product names on real files beside grep on the same bytes, in one run and
// in turn: all libraries of a folder, and one large file without the key. Processor time, and what
// the search adds to the resident memory.
//
//   bench-product-names FOLDER [RUNS]
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "Report.h"
#include "fileutil/modFileInfo.h"
#include "forms/headless/Toolkit.h"
#include "platform/memory/Process.h"
#include "platform/memory/World.h"
#include "program/Program.h"

namespace vantrel::bench {
namespace {

// Files of the machine itself, for reading.
class RealFiles : public platform::BinaryFiles {
 public:
  std::int32_t OpenFile(const std::string& path, platform::FileAccess /*access*/,
                        platform::OpenFileHandle& opened) override {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0) return platform::ErrorFileNotFound;
    opened = static_cast<platform::OpenFileHandle>(file);
    return platform::ErrorSuccess;
  }
  std::uint64_t FileLength(platform::OpenFileHandle file) override {
    struct stat status {};
    fstat(static_cast<int>(file), &status);
    return static_cast<std::uint64_t>(status.st_size);
  }
  std::int32_t ReadAt(platform::OpenFileHandle file, std::uint64_t offset, std::span<char> buffer,
                      std::size_t& count) override {
    const ssize_t read =
        pread(static_cast<int>(file), buffer.data(), buffer.size(), static_cast<off_t>(offset));
    count = read < 0 ? 0 : static_cast<std::size_t>(read);
    return read < 0 ? platform::ErrorAccessDenied : platform::ErrorSuccess;
  }
  std::int32_t WriteAt(platform::OpenFileHandle /*file*/, std::uint64_t /*offset*/,
                       std::string_view /*bytes*/) override {
    return platform::ErrorAccessDenied;
  }
  void CloseFile(platform::OpenFileHandle file) override { close(static_cast<int>(file)); }
};

platform::Platform WithFiles(const platform::Platform& windows, platform::BinaryFiles& files) {
  return {windows.registry,
          windows.desktop,
          windows.shell,
          windows.files,
          windows.processes,
          windows.sound,
          windows.dialogs,
          windows.system,
          windows.modules,
          windows.folders,
          files};
}

double Milliseconds(const rusage& usage) {
  const auto of = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) * 1000 + static_cast<double>(time.tv_usec) / 1000;
  };
  return of(usage.ru_utime) + of(usage.ru_stime);
}

// The processor time of `who`, which did the act: this process or its children.
double Measure(int who, const std::function<void()>& act) {
  rusage before{};
  rusage behind{};
  getrusage(who, &before);
  act();
  getrusage(who, &behind);
  return Milliseconds(behind) - Milliseconds(before);
}

long MostMemory() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

class Bench {
 public:
  explicit Bench(int runs) : runs_(runs) {}

  void Compare(const std::string& what, const std::vector<std::string>& paths) {
    std::string list;
    for (const std::string& path : paths) list += path + '\0';
    std::ofstream("/tmp/bench-product-names.list", std::ios::binary) << list;
    Times own;
    Times grep;
    for (int run = 0; run < runs_; ++run) {
      own.push_back(Measure(RUSAGE_SELF, [&] { NameAll(paths); }));
      grep.push_back(Measure(RUSAGE_CHILDREN, [] {
        if (std::system("LC_ALL=C xargs -0 grep -c ProductName </tmp/bench-product-names.list "
                        ">/dev/null") == -1) {
          std::abort();
        }
      }));
    }
    std::remove("/tmp/bench-product-names.list");
    PrintRow("product names, " + what, Median(own), "ms", "x1.5", {"grep -c", Median(grep)});
  }

  // By how much a search of the file raises the most memory that this process has ever had.
  void MeasureMemory(const std::string& path) {
    const long before = MostMemory();
    NameAll({path});
    PrintRow("product names, memory for 100 MB", static_cast<double>(MostMemory() - before), "KB",
             "2048");
  }

 private:
  void NameAll(const std::vector<std::string>& paths) {
    for (const std::string& path : paths) fileutil::GetProductName(program_, path);
  }

  int runs_;
  RealFiles files_;
  platform::memory::World world_;
  platform::memory::Process process_{world_};
  forms::headless::Toolkit toolkit_{world_.desktop, world_.clock, process_.Id()};
  program::Program program_{WithFiles(process_.Platform(), files_), toolkit_};
};

std::vector<std::string> LibrariesIn(const std::string& folder) {
  std::vector<std::string> paths;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() == ".dll") paths.push_back(entry.path().string());
  }
  return paths;
}

// 100 MB of the bytes of libraries, in which no key stands; piece by piece, so that this process
// stays small.
std::string LargeFile(const std::vector<std::string>& libraries) {
  constexpr std::size_t Size = std::size_t{100} * 1024 * 1024;
  const std::string path = "/tmp/bench-product-names.large";
  std::ofstream large(path, std::ios::binary);
  std::size_t written = 0;
  for (std::size_t next = 0; written < Size; next = (next + 1) % libraries.size()) {
    std::ifstream file(libraries[next], std::ios::binary);
    std::string piece(64 * 1024, '\0');
    while (written < Size && file.read(piece.data(), static_cast<std::streamsize>(piece.size()))) {
      std::replace(piece.begin(), piece.end(), 'P', 'Q');
      std::replace(piece.begin(), piece.end(), 'S', 'T');
      large << piece;
      written += piece.size();
    }
  }
  return path;
}

}  // namespace
}  // namespace vantrel::bench

int main(int count, char** arguments) {
  using namespace vantrel::bench;
  if (count < 2) {
    std::printf("bench-product-names FOLDER [RUNS]\n");
    return 2;
  }
  const std::vector<std::string> libraries = LibrariesIn(arguments[1]);
  const std::string large = LargeFile(libraries);
  Bench bench(count > 2 ? std::atoi(arguments[2]) : 7);
  bench.MeasureMemory(large);
  bench.Compare(std::to_string(libraries.size()) + " libraries", libraries);
  bench.Compare("100 MB without the key", {large});
  std::remove(large.c_str());
  return 0;
}
