// Random messages from another program to every window of this one: it neither ends nor hangs, and
// carries out a command afterwards.
#include <algorithm>
#include <cstdio>
#include <deque>

#include "Soak.h"
#include "support/Menus.h"
#include "support/OwnersMemory.h"
#include "support/RecordedBrowser.h"
#include "support/UserFolders.h"
#include "support/WindowStates.h"

namespace vantrel::e2e {
namespace {

struct Range {
  UINT first;
  UINT last;
};

// What is never sent, because it ends any program or makes the system itself read memory that is
// not there, whatever the program does:
constexpr Range Excluded[] = {
    {WM_CREATE, WM_DESTROY},               // a window is made and destroyed once, by the system
    {WM_CLOSE, WM_CLOSE},                  // means the end
    {WM_QUIT, WM_QUIT},                    // likewise
    {WM_ENDSESSION, WM_ENDSESSION},        // likewise
    {0x2B, 0x2D},                          // WM_DRAWITEM to WM_DELETEITEM: point to structures
    {0x36, 0x39},                          // undocumented, and WM_COMPAREITEM: the same
    {WM_GETMINMAXINFO, WM_GETMINMAXINFO},  // from here on: the same
    {WM_WINDOWPOSCHANGING, WM_WINDOWPOSCHANGED},
    {WM_COPYDATA, WM_NOTIFY},
    {WM_HELP, WM_HELP},
    {WM_STYLECHANGING, WM_STYLECHANGED},
    {WM_NCCREATE, WM_NCCALCSIZE},
    {WM_GETDLGCODE, WM_GETDLGCODE},
    {EM_GETSEL, EM_GETSEL},
    {0xB2, 0xB4},  // EM_GETRECT, EM_SETRECT, EM_SETRECTNP
    {SBM_GETRANGE, SBM_GETRANGE},
    {SBM_SETSCROLLINFO, 0xEB},
    {EM_SETTABSTOPS, EM_SETTABSTOPS},
    {CB_GETEDITSEL, CB_GETEDITSEL},
    {CB_GETDROPPEDCONTROLRECT, CB_GETDROPPEDCONTROLRECT},
    {CB_INITSTORAGE, 0x164},
    {LB_GETSELITEMS, LB_SETTABSTOPS},
    {LB_GETITEMRECT, LB_GETITEMRECT},
    {LB_INITSTORAGE, LB_INITSTORAGE},
    {WM_NEXTMENU, WM_MOVING},
    {WM_DEVICECHANGE, 0x234},      // and MDI's, and dropped files: pointers and memory handles
    {0x3E0, 0x3E8},                // DDE: memory handles
    {EM_SETHANDLE, EM_GETHANDLE},  // a field's own memory
    {EM_SETWORDBREAKPROC, EM_GETWORDBREAKPROC},     // an address to call
    {WM_IME_STARTCOMPOSITION, WM_IME_COMPOSITION},  // belong to the input method
    {0x280, 0x291},
    {0x118, 0x118},  // the system's own timers
    // A loop that goes on until a person ends it, with Close and Exit among its choices: the system
    // menu, the menu bar, the frame, a field's menu.
    {WM_SYSCOMMAND, WM_SYSCOMMAND},
    {WM_SYSKEYDOWN, 0x107},
    {WM_CONTEXTMENU, WM_CONTEXTMENU},
    {WM_NCMOUSEMOVE, 0xAD},
    {WM_RBUTTONDOWN, WM_RBUTTONDBLCLK},
    {0x313, 0x313},
};

// Texts go along, the only pointers that do: the system brings them over.
constexpr UINT Texts[] = {WM_SETTEXT,         WM_SETTINGCHANGE,   WM_DEVMODECHANGE, EM_REPLACESEL,
                          CB_ADDSTRING,       CB_INSERTSTRING,    CB_FINDSTRING,    CB_SELECTSTRING,
                          LB_ADDSTRING,       LB_INSERTSTRING,    LB_FINDSTRING,    LB_SELECTSTRING,
                          CB_FINDSTRINGEXACT, LB_FINDSTRINGEXACT, CB_DIR,           LB_DIR,
                          LB_ADDFILE};
// These fetch a text: the place for it is as large as they say.
constexpr UINT Fetches[] = {WM_GETTEXT, EM_GETLINE, CB_GETLBTEXT, LB_GETTEXT, WM_ASKCBFORMATNAME};

// Messages of the common controls that take an address to call, or a list of pictures.
constexpr UINT Procedures[] = {0x1003, 0x1030, 0x1051, 0x1208, 0x41A, 0x430, 0x434, 0x436, 0x44C};

template <std::size_t N>
bool IsOneOf(const UINT (&numbers)[N], UINT message) {
  return std::find(std::begin(numbers), std::end(numbers), message) != std::end(numbers);
}

bool IsExcluded(UINT message) {
  return std::any_of(std::begin(Excluded), std::end(Excluded), [message](const Range& range) {
    return message >= range.first && message <= range.last;
  });
}

// A window of the system's, in the program: what is above WM_USER takes pointers there that nobody
// checks.
bool IsSystems(const std::string& kind) {
  static constexpr const char* Kinds[] = {"Button",          "Static",          "Edit",
                                          "ComboBox",        "ComboLBox",       "ListBox",
                                          "ToolbarWindow32", "tooltips_class32"};
  return kind.starts_with("Sys") || kind.starts_with("msctls_") ||
         std::find(std::begin(Kinds), std::end(Kinds), kind) != std::end(Kinds);
}

struct Message {
  HWND window = nullptr;
  UINT number = 0;
  WPARAM first = 0;
  LPARAM second = 0;
};

class MessageStormTest : public SoakTest {
 protected:
  static constexpr std::size_t MemorySize = 0x10000;

  void SetUp() override {
    SoakTest::SetUp();
    program_.emplace();
    ASSERT_TRUE(program_->WaitUntilIdle());
    memory_.emplace(program_->Process(), MemorySize);
    // So that it exists.
    ASSERT_TRUE(OpenToolbarDialog(*program_));
  }
  void TearDown() override {
    memory_.reset();
    program_.reset();
    SoakTest::TearDown();
  }

  const Running& Program() const { return *program_; }

  void SendSome(int count) {
    const std::vector<HWND> windows = program_->AllWindows();
    ASSERT_FALSE(windows.empty());
    memory_->Write(std::string(MemorySize, '\0').data(), MemorySize);
    for (int sent = 0; sent < count && !HasFailure(); ++sent) {
      const Message message = Choose(OneOf(windows));
      if (message.number != 0 && !Send(message)) Settle();
    }
  }
  // Closes what has come up, as a person would, until the program answers with nothing in front.
  void Settle() {
    EXPECT_TRUE(WaitFor(
        [&] {
          if (const auto box = program_->CurrentBox()) {
            const int no = GetDlgItem(box->window, IDNO) != nullptr ? IDNO : IDCANCEL;
            PostMessageA(box->window, WM_COMMAND, static_cast<WPARAM>(no), 0);
            return false;
          }
          if (program_->OpenMenu() == nullptr) return program_->Answers();
          PostMessageA(program_->Find("frmMain"), WM_CANCELMODE, 0, 0);
          return false;
        },
        60000));
  }
  void ReportLast() const {
    for (const Message& message : last_) {
      std::printf("  0x%04X %llX %llX to %s of class %s\n", message.number,
                  static_cast<unsigned long long>(message.first),
                  static_cast<unsigned long long>(message.second),
                  ControlNameOf(message.window).c_str(), ClassOf(message.window).c_str());
    }
  }

 private:
  // False if there was no answer in time: something has come up, or the machine is busy.
  bool Send(const Message& message) {
    constexpr std::size_t Kept = 12;
    constexpr UINT Bound = 300;
    last_.push_back(message);
    if (last_.size() > Kept) last_.pop_front();
    if (Random(4) == 0 && message.second != Text() && message.second != Place()) {
      return PostMessageA(message.window, message.number, message.first, message.second) != FALSE;
    }
    DWORD_PTR answer = 0;
    return SendMessageTimeoutA(message.window, message.number, message.first, message.second,
                               SMTO_NORMAL, Bound, &answer) != 0;
  }

  // A message with number 0 is none.
  Message Choose(HWND window) {
    Message message{window, static_cast<UINT>(Number()), Parameter(),
                    static_cast<LPARAM>(Parameter())};
    const std::string kind = ClassOf(window);
    if (IsSystems(kind) && message.number >= WM_USER) return ForSystems(message);
    if (IsExcluded(message.number)) return {};
    if (IsOneOf(Texts, message.number)) return WithText(message);
    if (IsOneOf(Fetches, message.number)) {
      return {window, message.number, MemorySize / 2, Place()};
    }
    if (message.number == WM_COMMAND) return Command(window);
    // Starts a drag in a list or its head, which goes on until the button is up.
    const bool drags = message.number == WM_LBUTTONDOWN || message.number == WM_LBUTTONDBLCLK;
    if (drags && kind.starts_with("Sys")) return {};
    return message;
  }
  int Number() {
    switch (Random(8)) {
      case 0:
        return WM_USER + Random(0x100);
      case 1:
        return 0x1000 + Random(0x400);
      case 2:
        return WM_USER + Random(0x10000 - WM_USER);
      default:
        return 1 + Random(WM_USER - 1);
    }
  }
  WPARAM Parameter() {
    switch (Random(6)) {
      case 0:
        return 0;
      case 1:
        return 1;
      case 2:
        return static_cast<WPARAM>(-1);
      case 3:
        return static_cast<WPARAM>(Random(1000));
      case 4:
        return static_cast<WPARAM>(MAKELONG(Random(500), Random(400)));
      default:
        return static_cast<WPARAM>(Random(0x7FFFFFFF));
    }
  }
  // The pointers lead to memory of the program's own, with zeros in it.
  Message ForSystems(Message message) {
    if (IsOneOf(Procedures, message.number)) return {};
    message.first = static_cast<WPARAM>(Random(16));
    message.second = Random(2) == 0 ? Random(16) == 0 : memory_->Address();
    return message;
  }
  Message WithText(Message message) {
    // The caption is the address of the command channel.
    if (ControlNameOf(message.window) == "frmMain.cmdDummy") return {};
    text_ = std::string(static_cast<std::size_t>(Random(3) == 0 ? Random(20000) : Random(30)), 'x');
    for (char& letter : text_) letter = static_cast<char>(1 + Random(255));
    message.second = Text();
    return message;
  }
  // From the menus or from another window of the program.
  Message Command(HWND window) {
    const std::string entry = OneOf(MenuEntries);
    if (entry == "MnuExit" || entry == "mnusysexit") return {};
    if (Random(2) == 0) {
      return {program_->Find("frmMain"), WM_COMMAND, static_cast<WPARAM>(MenuIdentifier(entry)), 0};
    }
    return {GetParent(window), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(window), Random(20)),
            reinterpret_cast<LPARAM>(window)};
  }
  LPARAM Text() const { return reinterpret_cast<LPARAM>(text_.c_str()); }
  LPARAM Place() { return reinterpret_cast<LPARAM>(fetched_); }

  // Pages that are opened, and folders that are cleaned.
  const RecordedBrowser browser_;
  const UserFolders folders_;
  std::optional<Running> program_;
  std::optional<OwnersMemory> memory_;
  std::deque<Message> last_;
  std::string text_;
  char fetched_[MemorySize]{};
};

TEST_F(MessageStormTest, NeitherEndsNorHangsTheProgram) {
  constexpr int Batch = 200;
  std::vector<std::string> names;
  for (const auto& [name, window] : Program().Named()) names.push_back(name);
  const int messages = Count({4000, 100000});
  for (int sent = 0; sent < messages && !HasFailure(); sent += Batch) {
    SCOPED_TRACE("message " + std::to_string(sent));
    SendSome(Batch);
    Settle();
    EXPECT_TRUE(Program().Alive());
  }
  if (HasFailure()) return ReportLast();
  for (const std::string& name : names) EXPECT_NE(Program().Find(name), nullptr) << name;
  const Running sender("/graph");
  ASSERT_TRUE(sender.WaitForExit(30000));
  EXPECT_TRUE(Program().IsShown("FrmFrameGraph"));
  Program().ChooseMenu("MnuExit");
  EXPECT_TRUE(Program().WaitForExit());
  EXPECT_TRUE(WaitFor([] { return ProcessesOf("regedit.exe").empty(); }, 60000));
}

}  // namespace
}  // namespace vantrel::e2e
