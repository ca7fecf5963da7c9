// The IE Plugins panel of the shipped program, on the real registry and on real libraries.
#include <windows.h>

// After windows.h.
#include <commctrl.h>

#include <functional>

#include "support/Folders.h"
#include "support/HangingLibrary.h"
#include "support/KeptValue.h"
#include "support/OwnersMemory.h"
#include "support/ProgramTest.h"

namespace vantrel::e2e {
namespace {

const std::string Helpers =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects";
const std::string MenuExt = "SOFTWARE\\Microsoft\\Internet Explorer\\MenuExt";
const std::string Extensions = "SOFTWARE\\Microsoft\\Internet Explorer\\Extensions";
const std::string SetupKey = "Software\\Microsoft\\IE Setup\\Setup";
constexpr const char* List = "FrmFrameIEPlugin.lstBHO";

// The class ids of this test.
std::string Id(int number) {
  return "{00000000-0000-0000-0000-0000000DE" + std::to_string(100 + number) + "}";
}

std::string Lower(std::string text) {
  CharLowerBuffA(text.data(), static_cast<DWORD>(text.size()));
  return text;
}

// The entries of a registration file.
std::string Section(const std::string& root, const std::string& key) {
  return "\r\n[" + root + "\\" + key + "]\r\n";
}
std::string Helper(const std::string& subkey) {
  return Section("HKEY_LOCAL_MACHINE", Helpers + "\\" + subkey);
}
std::string Class(const std::string& id, const std::string& name) {
  return Section("HKEY_CLASSES_ROOT", "CLSID\\" + id) + "@=\"" + name + "\"\r\n";
}
std::string Toolbar(const std::string& id) {
  return Section("HKEY_LOCAL_MACHINE", ToolbarKey) + "\"" + id + "\"=hex:01,02\r\n";
}
std::string MenuEntry(const std::string& name) {
  return Section("HKEY_CURRENT_USER", MenuExt + "\\" + name) + "@=\"res://menu.htm\"\r\n";
}
std::string Button(const std::string& id, const std::string& text) {
  return Section("HKEY_LOCAL_MACHINE", Extensions + "\\" + id) + "\"ButtonText\"=\"" + text +
         "\"\r\n";
}

// What the panel's work could touch of the registry.
struct Store {
  Tree Machine = ReadTree(HKEY_LOCAL_MACHINE, "Software\\Microsoft");
  Tree User = ReadTree(HKEY_CURRENT_USER, "Software");
  Tree Classes = ReadTree(HKEY_CLASSES_ROOT, "CLSID");

  std::string Changes(const Store& after) const {
    return Difference(Machine, after.Machine) + Difference(User, after.User) +
           Difference(Classes, after.Classes);
  }
};

class PluginsTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Forget();
    CreateDirectoryA(browser_.c_str(), nullptr);
    CreateDirectoryA(folder_.c_str(), nullptr);
    Write(HKEY_LOCAL_MACHINE, SetupKey, "Path", Text(browser_));
  }
  void TearDown() override {
    ProgramTest::TearDown();
    Forget();
    for (const std::string& name : Files()) DeleteFileA(Path(name).c_str());
    RemoveDirectoryA(folder_.c_str());
    RemoveDirectoryA(browser_.c_str());
  }
  static void Forget() {
    DeleteTree(HKEY_LOCAL_MACHINE, Helpers);
    DeleteTree(HKEY_LOCAL_MACHINE, Extensions);
    DeleteTree(HKEY_CURRENT_USER, MenuExt);
    DeleteTree(HKEY_CLASSES_ROOT, "GBHelper.HelperBHO");
    for (int number = 0; number < 10; ++number) {
      DeleteTree(HKEY_CLASSES_ROOT, "CLSID\\" + Id(number));
      DeleteValue(HKEY_LOCAL_MACHINE, ToolbarKey, Id(number));
    }
  }

  // Has the system's own tool import the entries.
  void Plant(const std::string& entries) const {
    const std::string file = browser_ + "\\entries.reg";
    WriteFileBytes(file, "REGEDIT4\r\n" + entries);
    std::string command = "reg.exe import \"" + file + '"';
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION tool{};
    ASSERT_TRUE(CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW,
                               nullptr, nullptr, &startup, &tool));
    EXPECT_EQ(WaitForSingleObject(tool.hProcess, DefaultBound), WAIT_OBJECT_0);
    DWORD code = 99;
    GetExitCodeProcess(tool.hProcess, &code);
    EXPECT_EQ(code, 0U);
    CloseHandle(tool.hThread);
    CloseHandle(tool.hProcess);
    DeleteFileA(file.c_str());
  }
  std::string Path(const std::string& name) const { return folder_ + "\\" + name; }
  void PutLibrary(const std::string& companion, const std::string& name) const {
    ASSERT_TRUE(CopyFileA(HelperPath(companion).c_str(), Path(name).c_str(), FALSE)) << companion;
  }
  std::vector<std::string> Files() const {
    std::vector<std::string> names;
    WIN32_FIND_DATAA found{};
    HANDLE search = FindFirstFileA(Path("*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
      if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
        names.push_back(found.cFileName);
    } while (FindNextFileA(search, &found) != FALSE);
    FindClose(search);
    return names;
  }

  static void Open(const Running& program) {
    ASSERT_TRUE(program.WaitUntilIdle());
    program.ChooseMenu("submnuIEPlugins");
    ASSERT_TRUE(program.WaitUntilVisible("FrmFrameIEPlugin"));
    // The engine's own entry came behind the first load; the tests begin without it.
    DeleteTree(HKEY_LOCAL_MACHINE, EngineKey);
    ASSERT_TRUE(program.Click("FrmFrameIEPlugin.cmdRefreshBHO"));
  }
  static std::vector<std::string> Rows(const Running& program) { return program.RowsOf(List, 2); }
  static void ExpectRows(const Running& program, const std::vector<std::string>& rows) {
    EXPECT_TRUE(WaitFor([&] { return Rows(program) == rows; }))
        << testing::PrintToString(Rows(program));
    EXPECT_EQ(program.TextOf("FrmFrameIEPlugin.lblTotalBHO"),
              " Total:" + std::to_string(rows.size()) + " BHO's/Plug-ins found.");
  }
  // The number of the picture in front of each row.
  static std::vector<int> Images(const Running& program, int count) {
    const OwnersMemory memory(program.Process(), sizeof(LVITEMA));
    std::vector<int> images;
    for (int row = 0; row < count; ++row) {
      LVITEMA item{};
      item.mask = LVIF_IMAGE;
      item.iItem = row;
      memory.Write(&item, sizeof item);
      SendMessageA(program.Find(List), LVM_GETITEMA, 0, memory.Address());
      memory.ReadInto(&item, sizeof item);
      images.push_back(item.iImage);
    }
    return images;
  }
  // Sets the check mark of the 1-based row.
  static void Check(const Running& program, int row) {
    const OwnersMemory memory(program.Process(), sizeof(LVITEMA));
    LVITEMA item{};
    item.stateMask = LVIS_STATEIMAGEMASK;
    item.state = INDEXTOSTATEIMAGEMASK(2);
    memory.Write(&item, sizeof item);
    SendMessageA(program.Find(List), LVM_SETITEMSTATE, static_cast<WPARAM>(row - 1),
                 memory.Address());
    EXPECT_TRUE(IsChecked(program, row));
  }
  static bool IsChecked(const Running& program, int row) {
    const LRESULT state = SendMessageA(program.Find(List), LVM_GETITEMSTATE,
                                       static_cast<WPARAM>(row - 1), LVIS_STATEIMAGEMASK);
    return state == INDEXTOSTATEIMAGEMASK(2);
  }
  static void CheckAll(const Running& program) {
    const int count = static_cast<int>(Rows(program).size());
    for (int row = 1; row <= count; ++row) Check(program, row);
  }
  static void Delete(const Running& program) {
    program.MouseClick("FrmFrameIEPlugin.cmddeleteBHO");
  }
  static bool HasButton(const Box& box, int button) {
    return GetDlgItem(box.window, button) != nullptr;
  }
  // Waits for a question and answers it.
  static void AnswerQuestion(const Running& program, const std::string& text, int button = IDYES) {
    const auto box = program.WaitForBox();
    ASSERT_TRUE(box) << text;
    EXPECT_EQ(box->text, text);
    EXPECT_EQ(box->title, "Vantrel");
    EXPECT_TRUE(HasIcon(*box));
    EXPECT_TRUE(HasButton(*box, IDYES) && HasButton(*box, IDNO) && !HasButton(*box, IDOK));
    ASSERT_TRUE(program.Answer(*box, button));
  }
  static void ConfirmRefusal(const Running& program, const std::string& what) {
    const auto box = program.WaitForBox();
    ASSERT_TRUE(box) << what;
    EXPECT_EQ(box->text, what + " is required by Vantrel to work properly");
    EXPECT_EQ(box->title, "Vantrel");
    EXPECT_TRUE(HasIcon(*box));
    EXPECT_TRUE(HasButton(*box, IDOK) && !HasButton(*box, IDYES) && !HasButton(*box, IDCANCEL));
    ASSERT_TRUE(program.Answer(*box, IDOK));
  }

  const std::string browser_ = TemporaryFolder() + "VantrelBrowser";
  const std::string folder_ = browser_ + "\\PLUGINS";
  const KeptValue path_{HKEY_LOCAL_MACHINE, SetupKey, "Path"};
};

TEST_F(PluginsTest, WhatIsAttachedToTheBrowserIsListed) {
  Plant(Helper(Id(1)) + Class(Id(1), "First helper") + Helper(Id(2)) + Helper("no brace") +
        Toolbar(Id(3)) + Class(Id(3), "Bar") + MenuEntry("&Open elsewhere") +
        Button(Id(4), " Talk ") + Section("HKEY_LOCAL_MACHINE", Extensions + "\\" + Id(5)) +
        Button(Id(6), "Search"));
  PutLibrary("companion-plain.dll", "a.DLL");
  WriteFileBytes(Path("b.dll"), "no version");
  WriteFileBytes(Path("c.dll"), "");
  PutLibrary("companion-plain.dll", "d.txt");
  PutLibrary("companion-helper.dll", "e.dll");
  Running program;
  Open(program);
  // On this Windows the values of toolbars cannot be read with an empty mask.
  ExpectRows(program,
             {"|BHO", "First helper|BHO", "|BHO", "Plain|Plugins", "|Plugins", "Helper|Plugins",
              "&Open elsewhere|Menu Ext", "Talk|IEButton", "Search|IEButton"});
  EXPECT_EQ(Images(program, 9), (std::vector<int>{0, 0, 0, 1, 1, 1, 3, 0, 0}));
  EXPECT_EQ(program.BoxCount(), 0U);
}

TEST_F(PluginsTest, IdsOfAnyBytesAndLengthAreTakenAsTheyStand) {
  const std::string long255 = "{" + std::string(253, 'z') + "}";
  const std::string letters = "{\xE4\xF6\xDF}";
  CreateKey(HKEY_LOCAL_MACHINE, Helpers + "\\" + letters);
  CreateKey(HKEY_LOCAL_MACHINE, Helpers + "\\" + long255);
  Write(HKEY_CLASSES_ROOT, "CLSID\\" + letters, "", Text("\xC4rger"));
  CreateKey(HKEY_CURRENT_USER, MenuExt +
                                   "\\\xDC"
                                   "ber");
  Running program;
  Open(program);
  // A name of 255 characters does not fit and ends the walk.
  ExpectRows(program, {"\xC4rger|BHO",
                       "\xDC"
                       "ber|Menu Ext"});
  DeleteTree(HKEY_CLASSES_ROOT, "CLSID\\" + letters);
}

TEST_F(PluginsTest, OnlyWhatIsConfirmedGoes) {
  Plant(Helper(Id(1)) + Class(Id(1), "First") + Helper(Id(2)) + Class(Id(2), "Second") +
        MenuEntry("Entry") + MenuEntry("Other") + Button(Id(3), "Talk") + Button(Id(4), "Search"));
  PutLibrary("companion-helper.dll", "a.dll");
  PutLibrary("companion-plain.dll", "b.dll");
  PutLibrary("companion-refusing.dll", "c.dll");
  WriteFileBytes(Path("d.dll"), "no library");
  CreateKey(HKEY_CLASSES_ROOT, "GBHelper.HelperBHO\\Clsid");
  Running program;
  Open(program);
  ExpectRows(program,
             {"First|BHO", "Second|BHO", "Helper|Plugins", "Plain|Plugins", "Refusing|Plugins",
              "|Plugins", "Entry|Menu Ext", "Other|Menu Ext", "Talk|IEButton", "Search|IEButton"});
  for (const int row : {1, 2, 3, 4, 5, 6, 7, 9}) Check(program, row);
  const Store before;
  Delete(program);
  AnswerQuestion(program, "Delete selected BHO:First");
  AnswerQuestion(program, "Delete selected BHO:Second", IDNO);
  AnswerQuestion(program, "Delete selected Plug-ins:Helper");
  AnswerQuestion(program, "Delete selected Plug-ins:Plain");
  AnswerQuestion(program, "Delete selected Plug-ins:Refusing");
  AnswerQuestion(program, "Delete selected Plug-ins:");
  AnswerQuestion(program, "Delete selected Internet explorer Right Click Menu Extension:Entry");
  AnswerQuestion(program, "Delete selected IEButton:Talk");
  ExpectRows(program, {"Second|BHO", "Other|Menu Ext", "Search|IEButton"});
  EXPECT_FALSE(IsChecked(program, 1));
  EXPECT_EQ(before.Changes(Store()),
            "- internet explorer\\extensions\\" + Lower(Id(3)) + "\\: type 0 '' (0 bytes)\n" +
                "- internet explorer\\extensions\\" + Lower(Id(3)) +
                "\\buttontext: type 1 'Talk.' (5 bytes)\n" +
                "- windows\\currentversion\\explorer\\browser helper objects\\" + Lower(Id(1)) +
                "\\: type 0 '' (0 bytes)\n" +
                "- microsoft\\internet explorer\\menuext\\entry\\: type 0 '' (0 bytes)\n" +
                "- microsoft\\internet explorer\\menuext\\entry\\(default): type 1 "
                "'res://menu.htm.' (15 bytes)\n");
  EXPECT_EQ(Files(), std::vector<std::string>());
  // The library has unregistered itself.
  EXPECT_FALSE(KeyExists(HKEY_CLASSES_ROOT, "GBHelper.HelperBHO"));
  EXPECT_TRUE(program.Answers());
  EXPECT_EQ(program.BoxCount(), 0U);
}

TEST_F(PluginsTest, WhatTheProgramNeedsIsRefusedByName) {
  Plant(Helper(Id(1)) + Class(Id(1), "The GBHelper Class") + Helper(Id(2)) +
        Class(Id(2), "Grimbolt"));
  PutLibrary("companion-plain.dll", "a.dll");
  WriteFileBytes(Path("b.dll"), std::string("ProductName\0GRIM Bolt\0\0\0", 24));
  Running program;
  Open(program);
  CheckAll(program);
  Delete(program);
  ConfirmRefusal(program, "Selected BHO:The GBHelper Class");
  AnswerQuestion(program, "Delete selected BHO:Grimbolt");
  AnswerQuestion(program, "Delete selected Plug-ins:Plain", IDNO);
  ConfirmRefusal(program, "Selected BHO:GRIM Bolt");
  ExpectRows(program, {"The GBHelper Class|BHO", "Plain|Plugins", "GRIM Bolt|Plugins"});
}

TEST_F(PluginsTest, WhatCannotBeRemovedIsThereAgain) {
  Plant(Helper(Id(1)) + Helper(Id(1) + "\\sub") + Class(Id(1), "Helper") + MenuEntry("Entry") +
        MenuEntry("Entry\\sub") + Button(Id(3), "Talk") + Button(Id(3) + "\\sub", "no row"));
  PutLibrary("companion-plain.dll", "a.dll");
  const std::string library = ReadFileBytes(Path("a.dll"));
  Running program;
  Open(program);
  const std::vector<std::string> rows{"Helper|BHO", "Plain|Plugins", "Entry|Menu Ext",
                                      "Talk|IEButton"};
  ExpectRows(program, rows);
  CheckAll(program);
  const Store before;
  // A browser that runs: the library can be loaded, but neither written nor deleted.
  HANDLE held = CreateFileA(Path("a.dll").c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                            OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);
  Delete(program);
  AnswerQuestion(program, "Delete selected BHO:Helper");
  AnswerQuestion(program, "Delete selected Plug-ins:Plain");
  AnswerQuestion(program, "Delete selected Internet explorer Right Click Menu Extension:Entry");
  AnswerQuestion(program, "Delete selected IEButton:Talk");
  EXPECT_TRUE(WaitFor([&] { return !IsChecked(program, 1); }));
  ExpectRows(program, rows);
  CloseHandle(held);
  EXPECT_EQ(ReadFileBytes(Path("a.dll")), library);
  EXPECT_EQ(before.Changes(Store()), "");
  EXPECT_EQ(program.BoxCount(), 0U);
}

TEST_F(PluginsTest, ALibraryThatHangsTakesTheWindowsWithItAndTheProcessWaitsForIt) {
  PutLibrary("companion-hanging.dll", "a.dll");
  const std::string library = ReadFileBytes(Path("a.dll"));
  const HangingLibrary hanging;
  Running program;
  Open(program);
  ExpectRows(program, {"Hanging|Plugins"});
  Check(program, 1);
  Delete(program);
  AnswerQuestion(program, "Delete selected Plug-ins:Hanging");
  hanging.ExpectToTakeTheWindows(program);
  EXPECT_EQ(ReadFileBytes(Path("a.dll")), library);
}

TEST_F(PluginsTest, WithoutTheFolderOfPlugInsTheStartSaysSoAndGoesOn) {
  ASSERT_TRUE(RemoveDirectoryA(folder_.c_str()));
  Running program;
  const auto box = program.WaitForBox(30000);
  ASSERT_TRUE(box);
  EXPECT_EQ(box->text, "Some error occured: Path not found");
  EXPECT_EQ(box->title, "Vantrel");
  EXPECT_FALSE(HasIcon(*box));
  EXPECT_TRUE(HasButton(*box, IDOK) && !HasButton(*box, IDYES));
  ASSERT_TRUE(program.Answer(*box));
  EXPECT_TRUE(program.WaitUntilIdle());
}

TEST_F(PluginsTest, ALongListIsLoadedWhole) {
  std::string entries;
  std::vector<std::string> rows;
  for (int number = 100; number < 400; ++number) {
    entries += Helper("{" + std::to_string(number) + "}");
    rows.emplace_back("|BHO");
  }
  Plant(entries);
  Running program;
  Open(program);
  ExpectRows(program, rows);
}

}  // namespace
}  // namespace vantrel::e2e
