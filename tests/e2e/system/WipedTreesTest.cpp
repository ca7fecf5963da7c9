// Random trees on the real file system, with links to folders outside, to parents and to
// themselves: what is left is what a plain model leaves, and nothing outside changes by a byte.
// Wine removes what a link leads to and never the link, so here links stay.
#include <gtest/gtest.h>
#include <windows.h>

#include <random>

#include "RealProgram.h"
#include "cleaning/CacheCleaner.h"
#include "platform/win32/Handle.h"
#include "support/Folders.h"
#include "support/UserFolders.h"
#include "support/Wait.h"
#include "support/WipedTrees.h"
#include "windows/FrmFrameHistory.h"

namespace vantrel::e2e {
namespace {

using platform::win32::FileHandle;

constexpr int Trees = 200;

std::string UnixName(const std::string& path) {
  using Translate = char*(CDECL*)(const wchar_t*);
  const auto translate = reinterpret_cast<Translate>(reinterpret_cast<void*>(
      GetProcAddress(GetModuleHandleA("kernel32"), "wine_get_unix_file_name")));
  char* name = translate(std::wstring(path.begin(), path.end()).c_str());
  std::string copy = name;
  HeapFree(GetProcessHeap(), 0, name);
  return copy;
}

// Runs commands on the machine below Wine, which alone can make and remove links; false if that
// fails or takes too long. There is no waiting for such a program, so it makes a file at its end.
bool RunBelowWine(const std::string& commands) {
  const std::string script = TemporaryFolder() + "VantrelLinks.sh";
  const std::string done = TemporaryFolder() + "VantrelLinks.done";
  DeleteFileA(done.c_str());
  WriteFileBytes(script, commands + "mv '" + UnixName(script) + "' '" + UnixName(done) + "'\n");
  std::string command = "Z:\\bin\\sh " + UnixName(script);
  STARTUPINFOA startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process{};
  if (CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                     &startup, &process) == FALSE) {
    return false;
  }
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return WaitFor([&] { return Exists(done); }, 60000);
}

class WipedTrees : public testing::Test {
 protected:
  void SetUp() override {
    if (GetProcAddress(GetModuleHandleA("kernel32"), "wine_get_unix_file_name") == nullptr) {
      GTEST_SKIP() << "links are made by the machine below Wine";
    }
    PutFile(outside_ + "\\f", "kept");
    PutFile(outside_ + "\\sub\\g", "kept too");
    PutFile(outside_ + "\\index.dat", "kept as well");
    CreateDirectoryA((outside_ + "\\empty").c_str(), nullptr);
  }
  void TearDown() override {
    if (IsSkipped()) return;
    EXPECT_TRUE(RunBelowWine("rm -r '" + UnixName(top_) + "'\n"));
  }

  std::string TopOf(int tree) const { return top_ + "\\t" + std::to_string(tree); }
  test::Tree Plant(int tree, std::mt19937& random, std::string& links) const {
    test::Tree planted =
        test::RandomTree({TopOf(tree), outside_, outside_ + "\\empty", ""}, random).Make();
    CreateDirectoryA(TopOf(tree).c_str(), nullptr);
    for (const auto& [path, node] : planted) {
      if (!node.target.empty()) {
        links += "ln -s '" + UnixName(node.target) + "' '" + UnixName(path) + "'\n";
      } else if (node.folder) {
        CreateDirectoryA(path.c_str(), nullptr);
      } else {
        WriteFileBytes(path, node.content);
        SetFileAttributesA(path.c_str(), node.attributes);
      }
    }
    return planted;
  }
  static std::vector<FileHandle> Lock(const test::Tree& tree) {
    std::vector<FileHandle> locks;
    for (const auto& [path, node] : tree) {
      if (!node.locked) continue;
      locks.emplace_back(
          CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
      EXPECT_TRUE(locks.back().Valid()) << path;
    }
    return locks;
  }
  static void ExpectLinks(const test::Tree& tree) {
    for (const auto& [path, node] : tree) {
      const DWORD attributes = GetFileAttributesA(path.c_str());
      ASSERT_EQ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0, !node.target.empty()) << path;
    }
  }
  // As the folder of the cache, which has an index.
  void CleanByTheButton(const std::string& folder) {
    windows::FrmFrameHistory& panel = *copy_.program.windows.FrmFrameHistory;
    for (forms::CheckBox* box :
         {&panel.chkCacheHistory, &panel.chkCacheRecent, &panel.chkCacheHURL, &panel.chkCachetemp,
          &panel.chkWindowsRunHistory, &panel.chkWindowsFindHistory, &panel.chkWindowsRecDoc,
          &panel.chkWindowsRB}) {
      box->SetValue(0);
    }
    panel.lbltif.SetToolTipText(folder);
    cleaning::CmdDeleteCache_Click(copy_.program);
  }
  void WipeAndCompare(int number, const test::Tree& before) {
    const std::vector<FileHandle> locks = Lock(before);
    CleanByTheButton(TopOf(number));
    const test::Tree left =
        test::WipeModel(before, test::LinkRemoval::IsRefused).Wiped(TopOf(number));
    for (const auto& [path, node] : before) {
      ASSERT_EQ(Exists(path), left.contains(path)) << path;
    }
    ASSERT_EQ(NamesIn(outside_), (std::vector<std::string>{"empty", "f", "index.dat", "sub"}));
    ASSERT_EQ(NamesIn(outside_ + "\\sub"), std::vector<std::string>{"g"});
    ASSERT_EQ(ReadFileBytes(outside_ + "\\index.dat"), "kept as well");
    ASSERT_EQ(ReadFileBytes(outside_ + "\\f"), "kept");
    ASSERT_EQ(ReadFileBytes(outside_ + "\\sub\\g"), "kept too");
  }

  const std::string top_ = TemporaryFolder() + "VantrelTrees";
  const std::string outside_ = top_ + "\\outside";
  RealProgram copy_;
};

TEST_F(WipedTrees, LeaveWhatTheModelLeavesAndNothingOutsideChanges) {
  std::mt19937 random(11);
  std::string links;
  std::vector<test::Tree> planted;
  for (int tree = 0; tree < Trees; ++tree) planted.push_back(Plant(tree, random, links));
  ASSERT_TRUE(RunBelowWine(links));
  std::size_t nodes = 0;
  for (int tree = 0; tree < Trees; ++tree) {
    SCOPED_TRACE(tree);
    nodes += planted[static_cast<std::size_t>(tree)].size();
    ExpectLinks(planted[static_cast<std::size_t>(tree)]);
    WipeAndCompare(tree, planted[static_cast<std::size_t>(tree)]);
    if (HasFatalFailure()) return;
  }
  EXPECT_GT(nodes, 500U);
}

}  // namespace
}  // namespace vantrel::e2e
