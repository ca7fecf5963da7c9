// The Allowed List panel of the shipped program: by mouse and by keyboard, against the bytes of the
// real file.
#include <windows.h>

// After windows.h.
#include <commctrl.h>

#include <functional>

#include "support/Folders.h"
#include "support/ProgramTest.h"

namespace vantrel::e2e {
namespace {

using Presser = std::function<void(const Running&, const std::string&)>;

void PressByMouse(const Running& program, const std::string& button) {
  program.MouseClick("FrmFrameAllowList." + button);
}
void PressBySpace(const Running& program, const std::string& button) {
  program.PressKey("FrmFrameAllowList." + button, VK_SPACE);
}

std::string Line(int number, const std::string& name, const std::string& flags = "11111") {
  return "id =" + std::to_string(number) + ", Popup= " + flags[0] + " ,DHTML = " + flags[1] +
         ", WebDialog =" + flags[2] + " ,Banner = " + flags[3] + ", Flash = " + flags[4] + " , " +
         name + "\r\n";
}

std::string Row(const std::string& name, const std::string& popup = "Allowed") {
  return name + "|" + popup + "|Allowed|Allowed|Allowed|Allowed";
}

class AllowListTest : public ProgramTest {
 protected:
  std::string File() const { return copy_.Folder() + "\\Settings\\AllowList.txt"; }
  std::string Content() const { return ReadFileBytes(File()); }
  void Put(const std::string& content) const { WriteFileBytes(File(), content); }

  static void Open(const Running& program) {
    ASSERT_TRUE(program.WaitUntilIdle());
    program.MouseClick("frmMain.LnkAllowedList");
    ASSERT_TRUE(program.WaitUntilVisible("FrmFrameAllowList"));
    ASSERT_TRUE(program.WaitForText("frmMain.lblVCP1", "Allowed List - Qorvel Software Vantrel "));
  }
  static void Type(const Running& program, const std::string& name) {
    program.SetText("FrmFrameAllowList.txtName", name);
  }
  static void ExpectStatus(const Running& program, const std::string& status) {
    EXPECT_TRUE(program.WaitForText("FrmFrameAllowList.lblstatus", status))
        << program.TextOf("FrmFrameAllowList.lblstatus");
  }
  static void ExpectNameFocused(const Running& program) {
    EXPECT_TRUE(WaitFor([&] { return FocusOf(program) == "FrmFrameAllowList.txtName"; }))
        << FocusOf(program);
  }
  static void ExpectRows(const Running& program, const std::vector<std::string>& rows) {
    EXPECT_TRUE(WaitFor([&] { return Rows(program) == rows; }))
        << testing::PrintToString(Rows(program));
  }
  static void Answer(const Running& program, const std::string& text, int button) {
    const auto box = program.WaitForBox();
    ASSERT_TRUE(box);
    EXPECT_EQ(box->text, text);
    EXPECT_EQ(box->title, "Vantrel");
    ASSERT_TRUE(program.Answer(*box, button));
  }
  static void ClickRow(const Running& program, int row) {
    HWND list = program.Find("FrmFrameAllowList.lstGroup");
    HWND header = reinterpret_cast<HWND>(SendMessageA(list, LVM_GETHEADER, 0, 0));
    RECT above{};
    GetClientRect(header, &above);
    const auto spacing = HIWORD(SendMessageA(list, LVM_APPROXIMATEVIEWRECT, 2, -1)) -
                         HIWORD(SendMessageA(list, LVM_APPROXIMATEVIEWRECT, 1, -1));
    const LPARAM place = MAKELPARAM(30, above.bottom + spacing * row - spacing / 2);
    PostMessageA(list, WM_LBUTTONDOWN, MK_LBUTTON, place);
    PostMessageA(list, WM_LBUTTONUP, 0, place);
  }
  static void ExpectTyped(const Running& program, const std::string& name) {
    EXPECT_TRUE(program.WaitForText("FrmFrameAllowList.txtName", name))
        << program.TextOf("FrmFrameAllowList.txtName");
  }

  // From an empty file through add, repeat, edit and delete, each act by the presser.
  void Walk(const Presser& press, const std::function<void(const Running&, int)>& select) {
    Running program("", copy_.Executable());
    Open(program);
    EXPECT_EQ(Content(), "");
    Type(program, "a.example");
    press(program, "cmdAddWebsite");
    ExpectStatus(program, "Added Successfully");
    EXPECT_EQ(Content(), Line(1, "a.example"));
    ExpectTyped(program, "");
    ExpectNameFocused(program);
    Type(program, " A.Example ");
    press(program, "cmdAddWebsite");
    ExpectStatus(program, "Website already exists");
    ExpectRows(program, {Row("a.example")});
    Type(program, "b.example");
    press(program, "cmdAddWebsite");
    ExpectStatus(program, "Added Successfully");
    ExpectRows(program, {Row("a.example"), Row("b.example")});
    press(program, "chkAPopups");
    ASSERT_TRUE(WaitFor([&] { return program.CheckOf("FrmFrameAllowList.chkAPopups") == 0; }));
    select(program, 2);
    ExpectTyped(program, "b.example");
    press(program, "cmdEditAllowed");
    ExpectStatus(program, "Edited Successfully");
    ExpectRows(program, {Row("a.example"), Row("b.example", "Blocked")});
    EXPECT_EQ(Content(), Line(1, "a.example") + Line(2, "b.example", "01111"));
    ExpectNameFocused(program);
    select(program, 2);
    ExpectTyped(program, "b.example");
    press(program, "cmdRemove");
    Answer(program, "Delete the Website [b.example] from the allowed list", IDNO);
    press(program, "cmdRemove");
    Answer(program, "Delete the Website [b.example] from the allowed list", IDYES);
    ExpectStatus(program, "Deleted Successfully");
    EXPECT_EQ(Content(), Line(1, "a.example"));
    ExpectTyped(program, "b.example");
    ExpectNameFocused(program);
    // The last row stays, without a question.
    press(program, "cmdRemove");
    Type(program, "   ");
    press(program, "cmdAddWebsite");
    Answer(program, "No Website name is given", IDOK);
    ExpectNameFocused(program);
    EXPECT_EQ(Content(), Line(1, "a.example"));
    EXPECT_EQ(program.BoxCount(), 0U);
  }

  ProgramCopy copy_{"VantrelAllowList"};

 private:
  static std::vector<std::string> Rows(const Running& program) {
    return program.RowsOf("FrmFrameAllowList.lstGroup", 6);
  }
  static std::string FocusOf(const Running& program) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    const DWORD thread = GetWindowThreadProcessId(program.Find("frmMain"), nullptr);
    if (GetGUIThreadInfo(thread, &info) == FALSE) return "";
    return ControlNameOf(info.hwndFocus);
  }
};

TEST_F(AllowListTest, AListIsKeptByMouse) { Walk(PressByMouse, ClickRow); }

TEST_F(AllowListTest, AListIsKeptByKeyboard) {
  Walk(PressBySpace, [](const Running& program, int) {
    program.PressKey("FrmFrameAllowList.lstGroup", VK_DOWN);
  });
}

TEST_F(AllowListTest, LettersFindASite) {
  Put(Line(1, "alpha") + Line(2, "beta") + Line(2, "gamma"));
  Running program("", copy_.Executable());
  Open(program);
  PostMessageA(program.Find("FrmFrameAllowList.lstGroup"), WM_CHAR, 'g', 1);
  ExpectTyped(program, "gamma");
}

TEST_F(AllowListTest, ACommandWhileAQuestionIsUpLosesNeitherBoxNorRow) {
  const std::string content = Line(1, "a") + Line(2, "b") + Line(2, "c");
  Put(content);
  Running program("", copy_.Executable());
  Open(program);
  ClickRow(program, 2);
  ExpectTyped(program, "b");
  program.MouseClick("FrmFrameAllowList.cmdRemove");
  ASSERT_TRUE(program.WaitForBox());
  const Running second("/addlinks", copy_.Executable());
  ASSERT_TRUE(second.WaitForExit());
  Answer(program, "Delete the Website [b] from the allowed list", IDYES);
  ExpectStatus(program, "Deleted Successfully");
  EXPECT_EQ(Content(), Line(1, "a") + Line(2, "c"));
  Type(program, "d");
  program.MouseClick("FrmFrameAllowList.cmdAddWebsite");
  ExpectStatus(program, "Added Successfully");
  ExpectRows(program, {Row("a"), Row("c"), Row("d")});
}

TEST_F(AllowListTest, TheCommandOpensTheListWithItsRows) {
  Put(Line(1, "a"));
  Running program("", copy_.Executable());
  ASSERT_TRUE(program.WaitUntilIdle());
  Put(Line(1, "a") + Line(2, "b"));
  const Running second("/addlinks", copy_.Executable());
  ASSERT_TRUE(second.WaitForExit());
  ASSERT_TRUE(program.WaitUntilVisible("FrmFrameAllowList"));
  ExpectRows(program, {Row("a"), Row("b")});
}

TEST_F(AllowListTest, AListThatCannotBeReadSaysWhyAndThePanelGoesOn) {
  const std::pair<std::string, std::string> cases[] = {
      {"id =1,0,0,0,0,0\r\n", "Subscript out of range"},
      {std::string(65536, 'x') + "\r\n" + std::string(65536, 'y'), "Subscript out of range"},
      {std::string(100000, '\0'), "Subscript out of range"}};
  Running program("", copy_.Executable());
  ASSERT_TRUE(program.WaitUntilIdle());
  for (const auto& [content, text] : cases) {
    Put(content);
    program.MouseClick("frmMain.LnkAllowedList");
    Answer(program, text, IDOK);
    ASSERT_TRUE(program.WaitUntilVisible("FrmFrameAllowList"));
  }
  Put("");
  Type(program, "a");
  program.MouseClick("FrmFrameAllowList.cmdAddWebsite");
  ExpectStatus(program, "Added Successfully");
  ExpectRows(program, {Row("a")});
}

TEST_F(AllowListTest, AHundredMegabytesOfZerosAreALineLikeAnother) {
  Put(std::string(100'000'000, '\0'));
  Running program("", copy_.Executable());
  ASSERT_TRUE(program.WaitUntilIdle());
  program.MouseClick("frmMain.LnkAllowedList");
  Answer(program, "Subscript out of range", IDOK);
  Put("");
  Type(program, "a");
  program.MouseClick("FrmFrameAllowList.cmdAddWebsite");
  ExpectStatus(program, "Added Successfully");
}

TEST_F(AllowListTest, AFolderOfThatNameSaysWhyAndNothingIsAdded) {
  CreateDirectoryA(File().c_str(), nullptr);
  Running program("", copy_.Executable());
  ASSERT_TRUE(program.WaitUntilIdle());
  program.MouseClick("frmMain.LnkAllowedList");
  Answer(program, "Permission denied", IDOK);
  Type(program, "a");
  program.MouseClick("FrmFrameAllowList.cmdAddWebsite");
  ExpectStatus(program, "Website already exists");
  RemoveDirectoryA(File().c_str());
}

TEST_F(AllowListTest, AFileThatSomebodyKeepsForItselfStaysAsItIs) {
  Put(Line(1, "a") + Line(2, "b"));
  Running program("", copy_.Executable());
  Open(program);
  ExpectRows(program, {Row("a"), Row("b")});
  const std::string path = File();
  HANDLE lock =
      CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(lock, INVALID_HANDLE_VALUE);
  Type(program, "c");
  program.MouseClick("FrmFrameAllowList.cmdEditAllowed");
  ExpectStatus(program, "Website already exists");
  ExpectRows(program, {Row("a"), Row("b")});
  CloseHandle(lock);
  EXPECT_EQ(Content(), Line(1, "a") + Line(2, "b"));
}

// How long a person waits for long lists; the bound is that of every wait, the times are printed.
TEST_F(AllowListTest, LongListsAreLoadedAndEdited) {
  Running program("", copy_.Executable());
  ASSERT_TRUE(program.WaitUntilIdle());
  HWND list = program.Find("FrmFrameAllowList.lstGroup");
  for (const int rows : {10'000, 100'000}) {
    std::string content;
    for (int row = 0; row < rows; ++row) {
      content += Line(row / 2 + 1, "www.site" + std::to_string(row) + ".example");
    }
    Put(content);
    const DWORD start = GetTickCount();
    ASSERT_TRUE(program.Click("frmMain.cmdDummy"));  // the mailbox is idle: an unknown command
    const DWORD overhead = GetTickCount() - start;
    const DWORD loading = GetTickCount();
    program.SetText("frmMain.cmdDummy", "/addlinks");
    ASSERT_TRUE(program.Click("frmMain.cmdDummy"));
    ASSERT_EQ(SendMessageA(list, LVM_GETITEMCOUNT, 0, 0), rows);
    const DWORD loaded = GetTickCount();
    Type(program, "edited.example");
    ASSERT_TRUE(program.Click("FrmFrameAllowList.cmdEditAllowed"));
    ASSERT_EQ(SendMessageA(list, LVM_GETITEMCOUNT, 0, 0), rows);
    ExpectStatus(program, "Edited Successfully");
    const DWORD edited = GetTickCount();
    std::printf("%d rows: loaded in %lu ms, edited in %lu ms (an empty command %lu ms)\n", rows,
                loaded - loading, edited - loaded, overhead);
  }
}

}  // namespace
}  // namespace vantrel::e2e
