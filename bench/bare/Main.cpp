// The measure for Vantrel.exe's start and tick: the plainest program with as many controls in as
// many windows, made by the same toolkit of the system, and with the plainest tick that shows the
// same numbers. Nothing is configurable, nothing is handled.
#include <windows.h>

// After windows.h.
#include <commctrl.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <string>

namespace {

constexpr int ControlHeight = 20;
// The main window's own controls stand beside the panels and do not overlap them.
struct Columns {
  int count;
  int width;
};
constexpr Columns MainColumns{3, 46};
constexpr Columns PanelColumns{5, 90};
constexpr int PanelLeft = 150;
constexpr int PanelTop = 60;
constexpr int PanelWidth = 462;
constexpr int PanelHeight = 304;
constexpr UINT TickMilliseconds = 2000;
constexpr UINT FirstPanelMessage = WM_APP;  // WM_APP + n shows panel n alone, painted
constexpr UINT OpenDialogMessage = WM_APP + 50;
constexpr const char* CountersKey = "Software\\Qorvel Softwares\\Block Log";

// How many controls of each class the windows of the control panel have.
struct ControlRow {
  const char* windowClass;
  DWORD style;
  const char* text;
};
constexpr ControlRow Label{"STATIC", SS_LEFT, "Label"};
constexpr ControlRow Picture{"STATIC", SS_ETCHEDFRAME, ""};
constexpr ControlRow Button{"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, "Button"};
constexpr ControlRow Check{"BUTTON", BS_AUTOCHECKBOX | WS_TABSTOP, "Check"};
constexpr ControlRow Option{"BUTTON", BS_AUTORADIOBUTTON, "Option"};
constexpr ControlRow Group{"BUTTON", BS_GROUPBOX, "Group"};
constexpr ControlRow Edit{"EDIT", ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP, "0"};
constexpr ControlRow Combo{"COMBOBOX", CBS_DROPDOWNLIST | WS_TABSTOP, ""};
constexpr ControlRow List{WC_LISTVIEWA, LVS_REPORT | WS_TABSTOP, ""};
constexpr ControlRow FileList{"LISTBOX", LBS_NOTIFY | WS_TABSTOP, ""};
constexpr ControlRow Progress{PROGRESS_CLASSA, 0, ""};

struct Amount {
  const ControlRow& control;
  int count;
};

constexpr Amount MainControls[] = {{Label, 26}, {Picture, 17}, {Button, 2}, {Group, 2}, {Edit, 1}};
constexpr Amount Welcome[] = {{Label, 7}, {Button, 2}, {Check, 1},  {Option, 3},
                              {Group, 2}, {Edit, 1},   {Picture, 1}};
constexpr Amount BlockPreferences[] = {
    {Label, 11}, {Check, 10}, {Combo, 1}, {Button, 1}, {Group, 1}};
constexpr Amount Settings[] = {{Label, 8}, {Check, 6}, {Button, 3}, {Group, 1}};
constexpr Amount History[] = {{Label, 11}, {Check, 9},  {Button, 2},   {Group, 2},
                              {List, 1},   {Option, 5}, {Progress, 1}, {Edit, 1}};
constexpr Amount AllowList[] = {{Label, 7}, {Check, 6}, {Button, 3},
                                {Group, 1}, {List, 1},  {Edit, 1}};
constexpr Amount Notification[] = {{Label, 10}, {Check, 6}, {Combo, 1}, {Button, 1}, {Group, 1}};
constexpr Amount ExplorerSettings[] = {{Label, 8}, {Check, 1}, {Button, 3}, {Group, 1}, {Edit, 2}};
constexpr Amount PlugIns[] = {{Label, 4}, {Button, 2}, {Group, 1}, {List, 1}, {FileList, 1}};
constexpr Amount Graph[] = {{Label, 10}, {Button, 1}, {Group, 1}, {Edit, 5}, {Picture, 1}};
constexpr Amount Log[] = {{Label, 6}, {Button, 1}, {Group, 1}, {List, 1}};

constexpr Amount Dialog[] = {{Label, 3}, {Button, 7}, {List, 2}, {Edit, 1}};

struct PanelRow {
  const Amount* amounts;
  std::size_t count;
};
constexpr PanelRow Panels[] = {
    {Welcome, std::size(Welcome)},
    {BlockPreferences, std::size(BlockPreferences)},
    {Settings, std::size(Settings)},
    {History, std::size(History)},
    {AllowList, std::size(AllowList)},
    {Notification, std::size(Notification)},
    {ExplorerSettings, std::size(ExplorerSettings)},
    {PlugIns, std::size(PlugIns)},
    {Graph, std::size(Graph)},
    {Log, std::size(Log)},
};
constexpr std::size_t GraphPanel = 8;
constexpr std::size_t LogPanel = 9;

std::array<HWND, std::size(Panels)> panels{};
HFONT font = nullptr;

HWND MakeControl(HWND parent, const ControlRow& control, const char* text, int place,
                 const Columns& columns, bool visible = true) {
  const int x = 8 + place % columns.count * columns.width;
  const int y = 40 + place / columns.count * ControlHeight;
  HWND window = CreateWindowExA(
      0, control.windowClass, text, control.style | WS_CHILD | (visible ? WS_VISIBLE : 0), x, y,
      columns.width - 2, ControlHeight - 2, parent, nullptr, GetModuleHandleA(nullptr), nullptr);
  SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
  return window;
}

void MakeControls(HWND parent, const Amount* amounts, std::size_t count, const Columns& columns) {
  int place = 0;
  for (std::size_t row = 0; row < count; ++row) {
    const ControlRow& control = amounts[row].control;
    for (int made = 0; made < amounts[row].count; ++made) {
      MakeControl(parent, control, control.text, place++, columns);
    }
  }
}

void AddColumn(HWND list, int index, const char* title) {
  LVCOLUMNA column{};
  column.mask = LVCF_TEXT | LVCF_WIDTH;
  column.cx = 120;
  column.pszText = const_cast<char*>(title);
  SendMessageA(list, LVM_INSERTCOLUMNA, index, reinterpret_cast<LPARAM>(&column));
}

void SetCell(HWND list, int row, int cell, const char* text, UINT message) {
  LVITEMA item{};
  item.mask = LVIF_TEXT;
  item.iItem = row;
  item.iSubItem = cell;
  item.pszText = const_cast<char*>(text);
  SendMessageA(list, message, row, reinterpret_cast<LPARAM>(&item));
}

std::string ReadCounter(const char* name) {
  HKEY key = nullptr;
  DWORD value = 0;
  DWORD size = sizeof(value);
  if (RegOpenKeyExA(HKEY_CURRENT_USER, CountersKey, 0, KEY_ALL_ACCESS, &key) == ERROR_SUCCESS) {
    RegQueryValueExA(key, name, nullptr, nullptr, reinterpret_cast<BYTE*>(&value), &size);
    RegCloseKey(key);
  }
  return std::to_string(value);
}

// Five numbers into boxes and a list, and their total into two labels, all of it each time.
void Tick() {
  constexpr const char* names[] = {"Popup", "DHTML", "WebDialog", "BannerAds", "Flash"};
  HWND list = FindWindowExA(panels[LogPanel], nullptr, WC_LISTVIEWA, nullptr);
  ReadCounter(names[0]);
  SendMessageA(list, LVM_DELETEALLITEMS, 0, 0);
  int total = 0;
  HWND edit = nullptr;
  for (int row = 0; row < 5; ++row) {
    const std::string text = ReadCounter(names[row]);
    total += std::stoi(text);
    edit = FindWindowExA(panels[GraphPanel], edit, "EDIT", nullptr);
    SetWindowTextA(edit, text.c_str());
    SetCell(list, row, 0, names[row], LVM_INSERTITEMA);
    SetCell(list, row, 1, text.c_str(), LVM_SETITEMA);
  }
  const std::string text = std::to_string(total);
  SetWindowTextA(FindWindowExA(panels[GraphPanel], nullptr, "STATIC", nullptr), text.c_str());
  SetWindowTextA(FindWindowExA(panels[0], nullptr, "STATIC", nullptr), text.c_str());
}

void ShowPanel(std::size_t wanted) {
  for (std::size_t panel = 0; panel < panels.size(); ++panel) {
    ShowWindow(panels[panel], panel == wanted ? SW_SHOW : SW_HIDE);
  }
}

// A window over the main one with two lists, one of them with 19 rows.
void OpenDialog(HWND main) {
  HWND dialog = CreateWindowExA(WS_EX_CONTROLPARENT, "BareWindow", "Bare dialog",
                                WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN, 100, 100, 504,
                                360, main, nullptr, GetModuleHandleA(nullptr), nullptr);
  MakeControls(dialog, Dialog, std::size(Dialog), PanelColumns);
  HWND list = nullptr;
  while ((list = FindWindowExA(dialog, list, WC_LISTVIEWA, nullptr)) != nullptr) {
    AddColumn(list, 0, "Buttons");
    SetWindowPos(list, nullptr, 0, 0, 182, 216, SWP_NOMOVE | SWP_NOZORDER);
  }
  list = FindWindowExA(dialog, nullptr, WC_LISTVIEWA, nullptr);
  for (int row = 0; row < 19; ++row) SetCell(list, row, 0, "Button", LVM_INSERTITEMA);
  ShowWindow(dialog, SW_SHOW);
}

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM first, LPARAM second) {
  if (message >= FirstPanelMessage && message < FirstPanelMessage + panels.size()) {
    ShowPanel(message - FirstPanelMessage);
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    return 0;
  }
  if (message == OpenDialogMessage) OpenDialog(window);
  if (message == WM_TIMER) Tick();
  if (message == WM_DESTROY && GetParent(window) == nullptr) PostQuitMessage(0);
  return DefWindowProcA(window, message, first, second);
}

void RegisterWindowClass() {
  WNDCLASSA windowClass{};
  windowClass.lpfnWndProc = Procedure;
  windowClass.hInstance = GetModuleHandleA(nullptr);
  windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
  windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
  windowClass.lpszClassName = "BareWindow";
  RegisterClassA(&windowClass);
}

HMENU MakeMenu() {
  constexpr int entries[] = {9, 12, 3, 4, 10};
  HMENU bar = CreateMenu();
  int id = 100;
  for (const int count : entries) {
    HMENU menu = CreatePopupMenu();
    for (int entry = 0; entry < count; ++entry) AppendMenuA(menu, MF_STRING, id++, "Entry");
    AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(menu), "Menu");
  }
  return bar;
}

void MakeBars(HWND main) {
  HINSTANCE instance = GetModuleHandleA(nullptr);
  HWND toolbar = CreateWindowExA(0, TOOLBARCLASSNAMEA, "", WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, main,
                                 nullptr, instance, nullptr);
  SendMessageA(toolbar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
  std::array<TBBUTTON, 13> buttons{};
  for (TBBUTTON& button : buttons) button.fsState = TBSTATE_ENABLED;
  SendMessageA(toolbar, TB_ADDBUTTONSA, buttons.size(), reinterpret_cast<LPARAM>(buttons.data()));
  CreateWindowExA(0, STATUSCLASSNAMEA, "Status", WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, main, nullptr,
                  instance, nullptr);
}

HWND MakePanel(HWND main, const PanelRow& row) {
  HWND panel = CreateWindowExA(WS_EX_CONTROLPARENT, "BareWindow", "", WS_CHILD | WS_CLIPCHILDREN,
                               PanelLeft, PanelTop, PanelWidth, PanelHeight, main, nullptr,
                               GetModuleHandleA(nullptr), nullptr);
  MakeControls(panel, row.amounts, row.count, PanelColumns);
  HWND list = FindWindowExA(panel, nullptr, WC_LISTVIEWA, nullptr);
  if (list != nullptr) {
    AddColumn(list, 0, "Type");
    AddColumn(list, 1, "Count");
  }
  return panel;
}

void AddTrayIcon(HWND owner) {
  NOTIFYICONDATAA icon{};
  icon.cbSize = sizeof(icon);
  icon.hWnd = owner;
  icon.uID = 1;
  icon.uFlags = NIF_ICON | NIF_TIP | NIF_MESSAGE;
  icon.uCallbackMessage = WM_MOUSEMOVE;
  icon.hIcon = LoadIconA(nullptr, IDI_APPLICATION);
  Shell_NotifyIconA(NIM_ADD, &icon);
}

// The mailbox and the Start button last: they show the driver, as in the control panel, that the
// start is over.
void TellReady(HWND main) {
  HWND start = MakeControl(panels[0], Button, "Start", 20, PanelColumns);
  EnableWindow(start, FALSE);
  MakeControl(main, Button, "Ready for command", 60, MainColumns, false);
}

void Run() {
  InitCommonControls();
  font =
      CreateFontA(-11, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, "MS Shell Dlg 2");
  RegisterWindowClass();
  HWND main =
      CreateWindowExA(0, "BareWindow", "Bare window program", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                      60, 60, 628, 490, nullptr, MakeMenu(), GetModuleHandleA(nullptr), nullptr);
  MakeControls(main, MainControls, std::size(MainControls), MainColumns);
  MakeBars(main);
  for (std::size_t panel = 0; panel < panels.size(); ++panel) {
    panels[panel] = MakePanel(main, Panels[panel]);
  }
  AddTrayIcon(main);
  ShowPanel(0);
  ShowWindow(main, SW_SHOW);
  Tick();
  SetTimer(main, 1, TickMilliseconds, nullptr);
  TellReady(main);
  MSG message;
  while (GetMessageA(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageA(&message);
  }
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR tail, int) {
  // "--exit": the bare start of a process, and its end.
  if (std::strcmp(tail, "--exit") != 0) Run();
  return 0;
}
