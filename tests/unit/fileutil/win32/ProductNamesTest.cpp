// The product names of the system's own libraries, beside a plain transcription of the search and
// beside what the system's version service says.
#include <windows.h>

#include <fstream>
#include <vector>

#include "fileutil/modFileInfo.h"
#include "platform/win32/Win32Platform.h"
#include "support/PlainProductName.h"
#include "support/ProgramFixture.h"

namespace vantrel::fileutil {
namespace {

std::string SystemFolder() {
  char folder[MAX_PATH]{};
  GetSystemDirectoryA(folder, MAX_PATH);
  return folder;
}

std::vector<std::string> Libraries() {
  std::vector<std::string> paths;
  WIN32_FIND_DATAA found{};
  HANDLE search = FindFirstFileA((SystemFolder() + "\\*.dll").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return paths;
  do {
    paths.push_back(SystemFolder() + '\\' + found.cFileName);
  } while (FindNextFileA(search, &found) != FALSE);
  FindClose(search);
  return paths;
}

std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary | std::ios::ate);
  std::string bytes(static_cast<std::size_t>(file.tellg()), '\0');
  file.seekg(0);
  file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return bytes;
}

// The name in the version resource, in its first language; empty without one.
std::string ResourceName(const std::string& path) {
  DWORD ignored = 0;
  std::string block(GetFileVersionInfoSizeA(path.c_str(), &ignored), '\0');
  if (block.empty() ||
      !GetFileVersionInfoA(path.c_str(), 0, static_cast<DWORD>(block.size()), block.data())) {
    return "";
  }
  void* found = nullptr;
  UINT length = 0;
  if (!VerQueryValueA(block.data(), "\\VarFileInfo\\Translation", &found, &length) || length < 4) {
    return "";
  }
  const auto* language = static_cast<const WORD*>(found);
  char key[64];
  wsprintfA(key, "\\StringFileInfo\\%04x%04x\\ProductName", language[0], language[1]);
  if (!VerQueryValueA(block.data(), key, &found, &length)) return "";
  return static_cast<const char*>(found);
}

TEST(SystemLibraries, HaveTheNamesOfThePlainSearch) {
  const auto windows = platform::win32::MakeWin32Platform();
  platform::memory::World world;
  forms::headless::Toolkit toolkit(world.desktop, world.clock, 1);
  program::Program program(windows->Platform(), toolkit);
  test::plain::ProductName plain;
  const std::vector<std::string> libraries = Libraries();
  std::size_t named = 0;
  std::size_t asTheResource = 0;
  for (const std::string& path : libraries) {
    const std::string name = GetProductName(program, path);
    EXPECT_EQ(name, plain.Of(BytesOf(path))) << path;
    const std::string official = ResourceName(path);
    named += official.empty() ? 0 : 1;
    asTheResource += !official.empty() && name == official ? 1 : 0;
  }
  EXPECT_EQ(program.ProductNameFallbacks, plain.Fallbacks());
  EXPECT_GT(libraries.size(), 100U);
  // Wine's own libraries have a type word of 0 in front of the landmark, which is no landmark then.
  EXPECT_GT(asTheResource, 0U);
  std::printf("%u of %u names in version resources of %u libraries are found\n",
              static_cast<unsigned>(asTheResource), static_cast<unsigned>(named),
              static_cast<unsigned>(libraries.size()));
}

TEST(LargeFile, IsReadAndWrittenBeyond4Gigabytes) {
  const auto windows = platform::win32::MakeWin32Platform();
  platform::BinaryFiles& files = windows->Platform().binaryFiles;
  char folder[MAX_PATH]{};
  GetTempPathA(MAX_PATH, folder);
  const std::string path = std::string(folder) + "VantrelLarge";
  ASSERT_EQ(windows->Platform().files.WriteTextFile(path, "begin"), platform::ErrorSuccess);
  platform::OpenFileHandle file = 0;
  ASSERT_EQ(files.OpenFile(path, platform::FileAccess::ReadWrite, file), platform::ErrorSuccess);
  // What lies between is not stored.
  constexpr std::uint64_t Far = (std::uint64_t{1} << 32U) + 7;
  EXPECT_EQ(files.WriteAt(file, Far, "end"), platform::ErrorSuccess);
  EXPECT_EQ(files.FileLength(file), Far + 3);
  std::string read(8, 'x');
  std::size_t count = 0;
  EXPECT_EQ(files.ReadAt(file, Far, read, count), platform::ErrorSuccess);
  EXPECT_EQ(read.substr(0, count), "end");
  EXPECT_EQ(files.ReadAt(file, 0, read, count), platform::ErrorSuccess);
  EXPECT_EQ(read, std::string("begin\0\0\0", 8));
  files.CloseFile(file);
  std::uint64_t length = 0;
  EXPECT_EQ(windows->Platform().files.FileLength(path, length), platform::ErrorSuccess);
  EXPECT_EQ(length, Far + 3);
  DeleteFileA(path.c_str());
}

}  // namespace
}  // namespace vantrel::fileutil
