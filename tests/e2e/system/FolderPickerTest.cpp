// The system's own folder picker as the program opens it, driven by a user of its own thread.
#include <gtest/gtest.h>
#include <windows.h>

// After windows.h.
#include <commctrl.h>
#include <objbase.h>

#include <functional>
#include <thread>

#include "RealProgram.h"
#include "fileutil/modBrowsefolder.h"
#include "support/Folders.h"
#include "support/Running.h"
#include "support/UserFolders.h"
#include "support/Wait.h"

namespace vantrel::e2e {
namespace {

// The picker while it is open.
class Picker {
 public:
  // Waits for it; a picker that does not come leaves the window nullptr.
  Picker() {
    WaitFor([this] {
      EnumThreadWindows(MainThread(), Take, reinterpret_cast<LPARAM>(this));
      return tree_ != nullptr;
    });
  }
  static DWORD& MainThread() {
    static DWORD thread = 0;
    return thread;
  }

  HWND Window() const { return window_; }
  bool Shows(const std::string& text) const {
    bool shown = false;
    for (HWND child = GetWindow(window_, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
      shown = shown || WindowTextOf(child) == text;
    }
    return shown;
  }
  // The name of the folder that is selected, "" for none.
  std::string Selected() const {
    char text[MAX_PATH]{};
    TVITEMA item{};
    item.mask = TVIF_TEXT;
    item.hItem = Chosen();
    item.pszText = text;
    item.cchTextMax = sizeof text;
    if (item.hItem != nullptr) Ask(TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item));
    return text;
  }
  bool WaitForSelected(const std::string& name) const {
    return WaitFor([&] { return Selected() == name; });
  }
  void Press(int key) const {
    PostMessageA(tree_, WM_KEYDOWN, static_cast<WPARAM>(key), 1);
    PostMessageA(tree_, WM_KEYUP, static_cast<WPARAM>(key), 0xC0000001);
  }
  void PressButton(int button) const {
    PostMessageA(window_, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(window_, button)));
  }

 private:
  static BOOL CALLBACK TakeTree(HWND child, LPARAM found) {
    if (ClassOf(child) != WC_TREEVIEWA) return TRUE;
    *reinterpret_cast<HWND*>(found) = child;
    return FALSE;
  }
  static BOOL CALLBACK Take(HWND window, LPARAM parameter) {
    auto& picker = *reinterpret_cast<Picker*>(parameter);
    if (ClassOf(window) != "#32770" || !IsWindowVisible(window)) return TRUE;
    EnumChildWindows(window, TakeTree, reinterpret_cast<LPARAM>(&picker.tree_));
    picker.window_ = window;
    return FALSE;
  }
  HTREEITEM Chosen() const {
    return reinterpret_cast<HTREEITEM>(Ask(TVM_GETNEXTITEM, TVGN_CARET, 0));
  }
  // The tree's answer; 0 if it does not answer.
  DWORD_PTR Ask(UINT message, WPARAM first, LPARAM second) const {
    DWORD_PTR answer = 0;
    SendMessageTimeoutA(tree_, message, first, second, SMTO_NORMAL, DefaultBound, &answer);
    return answer;
  }

  HWND window_ = nullptr;
  HWND tree_ = nullptr;
};

class FolderPicker : public testing::Test {
 protected:
  void SetUp() override {
    CoInitialize(nullptr);
    Picker::MainThread() = GetCurrentThreadId();
    RemoveFolder(top_);
    PutFile(top_ + "\\start\\below\\f");
    PutFile(top_ + "\\start\\file");
    LookInto(top_ + "\\start\\below");
  }
  void TearDown() override {
    RemoveFolder(top_);
    CoUninitialize();
  }

  // Lists each folder of the path. Wine's picker takes a folder for another one when its time of
  // last access changes meanwhile, as it does at the first look behind a change.
  static void LookInto(const std::string& path) {
    for (std::size_t end = path.find('\\'); end != std::string::npos;
         end = path.find('\\', end + 1)) {
      NamesIn(path.substr(0, end));
    }
    NamesIn(path);
  }
  // What the program gets while `user` acts on the open picker.
  std::string Browse(const std::string& start, const std::function<void(const Picker&)>& user) {
    std::thread acting([&user] {
      const Picker picker;
      EXPECT_NE(picker.Window(), nullptr);
      if (picker.Window() == nullptr) return;
      user(picker);
      if (WaitFor([&picker] { return !IsWindow(picker.Window()); })) return;
      ADD_FAILURE() << "the picker stays open";
      picker.PressButton(IDCANCEL);
    });
    std::string chosen =
        fileutil::BrowseForFolder(copy_.program, start, 0, "Where the backup goes");
    acting.join();
    return chosen;
  }

  const std::string top_ = TemporaryFolder() + "VantrelPicker";
  RealProgram copy_;
};

TEST_F(FolderPicker, OpensWithThePromptAndTheStartFolderSelected) {
  const std::string start = top_ + "\\start";
  EXPECT_EQ(Browse(start,
                   [](const Picker& picker) {
                     EXPECT_TRUE(WaitFor([&] { return picker.Shows("Where the backup goes"); }));
                     EXPECT_TRUE(picker.WaitForSelected("start")) << picker.Selected();
                     picker.PressButton(IDOK);
                   }),
            start);
  EXPECT_EQ(copy_.program.BrowseStartPath, start);
}

TEST_F(FolderPicker, AnotherFolderIsChosenByTheKeyboard) {
  EXPECT_EQ(Browse(top_ + "\\start",
                   [](const Picker& picker) {
                     EXPECT_TRUE(picker.WaitForSelected("start"));
                     picker.Press(VK_RIGHT);
                     picker.Press(VK_DOWN);
                     EXPECT_TRUE(picker.WaitForSelected("below")) << picker.Selected();
                     picker.PressButton(IDOK);
                   }),
            top_ + "\\start\\below");
}

TEST_F(FolderPicker, ACancelGivesNothing) {
  EXPECT_EQ(Browse(top_ + "\\start",
                   [](const Picker& picker) {
                     EXPECT_TRUE(picker.WaitForSelected("start"));
                     picker.PressButton(IDCANCEL);
                   }),
            "");
}

TEST_F(FolderPicker, WithoutAStartFolderItOpensAtItsDefault) {
  EXPECT_EQ(Browse("",
                   [](const Picker& picker) {
                     EXPECT_NE(picker.Selected(), "start");
                     picker.PressButton(IDCANCEL);
                   }),
            "");
}

TEST_F(FolderPicker, AStartFolderThatIsNotThereOpensItAllTheSame) {
  EXPECT_EQ(Browse(top_ + "\\none", [](const Picker& picker) { picker.PressButton(IDCANCEL); }),
            "");
}

}  // namespace
}  // namespace vantrel::e2e
