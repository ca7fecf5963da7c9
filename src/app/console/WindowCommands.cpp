#include <array>
#include <charconv>
#include <optional>

#include "app/console/Commands.h"
#include "app/console/Find.h"
#include "app/console/Names.h"
#include "app/console/Screen.h"
#include "app/console/Words.h"
#include "text/Strings.h"

namespace vantrel::console {
namespace {

using forms::Control;
using forms::headless::Toolkit;

// The innermost thing that keeps the user from the control.
std::string Obstacle(const Toolkit& toolkit, const Control& control) {
  for (const Control* each = &control; each != nullptr; each = each->Container()) {
    if (!each->Visible()) return each->QualifiedName() + " is hidden";
    if (!each->Enabled()) return each->QualifiedName() + " is disabled";
  }
  const forms::Form* form = &control.Owner();
  for (; form != nullptr; form = form->Host()) {
    if (!form->Visible()) return form->Name() + " is hidden";
    if (form->WindowState() == forms::WindowState::Minimized) return form->Name() + " is minimized";
  }
  if (toolkit.ModalForm() != nullptr) return toolkit.ModalForm()->Name() + " is open in front";
  return "the focus stays where it is";
}

void Require(bool done, const Copy& copy, const Control& control) {
  if (done || copy.Ended()) return;
  throw CommandError("cannot: " + Obstacle(copy.Toolkit, control));
}

std::optional<int> RowNumber(const std::string& word) {
  int row = 0;
  const auto result = std::from_chars(word.data(), word.data() + word.size(), row);
  const bool whole = result.ec == std::errc() && result.ptr == word.data() + word.size();
  return whole ? std::optional(row) : std::nullopt;
}

// A row's number as such, or the row with the text.
int FindRow(const forms::ListView& list, const std::string& word) {
  const std::optional<int> number = RowNumber(word);
  if (number && *number >= 1 && *number <= list.Count()) return *number;
  if (number) throw CommandError("the list has " + std::to_string(list.Count()) + " rows");
  std::vector<std::string> texts;
  for (int row = 1; row <= list.Count(); ++row) texts.push_back(list.Item(row).Text());
  return static_cast<int>(PickName("row", word, texts)) + 1;
}

void MarkRow(Copy& copy, Control& control, const std::string& row, bool checked) {
  auto* list = dynamic_cast<forms::ListView*>(&control);
  if (list == nullptr || !list->CheckBoxes()) RefuseKind(control, "list with marks");
  Require(copy.Hand.Check(*list, FindRow(*list, row), checked), copy, *list);
}

// A grayed box takes a click more than a clear one.
void SetBox(Copy& copy, forms::CheckBox& box, int wanted) {
  for (int clicks = 0; clicks < 2 && !copy.Ended() && box.Value() != wanted; ++clicks) {
    Require(copy.Hand.Click(box), copy, box);
  }
}

void SetMark(Session& session, const Words& words, bool checked) {
  Copy& copy = session.Current();
  Control& control = FindControl(copy.Toolkit, words.front());
  if (words.size() == 2) return MarkRow(copy, control, words[1], checked);
  if (auto* box = dynamic_cast<forms::CheckBox*>(&control)) {
    return SetBox(copy, *box, checked ? forms::Checked : forms::Unchecked);
  }
  auto* option = dynamic_cast<forms::OptionButton*>(&control);
  if (option == nullptr || !checked) RefuseKind(control, checked ? "box or option" : "check box");
  Require(copy.Hand.Click(*option), copy, *option);
}

// The last of the windows that show is in front.
forms::Form& FrontWindow(const Toolkit& toolkit) {
  if (toolkit.ModalForm() != nullptr) return *toolkit.ModalForm();
  if (toolkit.ActiveForm() != nullptr) return toolkit.ActiveForm()->Outermost();
  const std::vector<forms::Form*> windows = WindowsOnScreen(toolkit);
  if (windows.empty()) throw CommandError("no window shows");
  return *windows.back();
}

forms::Form& NamedOrFront(const Toolkit& toolkit, const Words& words, std::size_t index) {
  return words.size() > index ? FindWindow(toolkit, words[index]) : FrontWindow(toolkit);
}

bool IsWindowName(const Toolkit& toolkit, const std::string& word) {
  for (const forms::Form* form : toolkit.LoadedForms()) {
    if (text::EqualIgnoringCase(form->Name(), word)) return true;
  }
  return false;
}

void ShowScreen(Session& session, const Toolkit& toolkit) {
  const std::vector<forms::Form*> windows = WindowsOnScreen(toolkit);
  for (const forms::Form* form : windows) {
    session.Write(WindowText(toolkit, *form, Detail::Seen));
  }
  if (windows.empty()) session.Say("no window shows");
}

void ShowAll(Session& session, const Toolkit& toolkit) {
  for (const forms::Form* form : toolkit.LoadedForms()) {
    session.Write(WindowText(toolkit, *form, Detail::Everything));
  }
}

forms::Toolbar& FindToolbar(const Toolkit& toolkit) {
  for (const forms::Form* form : toolkit.LoadedForms()) {
    for (Control* control : form->Controls()) {
      if (auto* bar = dynamic_cast<forms::Toolbar*>(control)) return *bar;
    }
  }
  throw CommandError("there is no toolbar");
}

int FindTool(const forms::Toolbar& bar, const std::string& word) {
  if (const std::optional<int> number = RowNumber(word)) return *number;
  std::vector<std::string> tips;
  tips.reserve(bar.Buttons().size());
  for (const forms::ToolButton& button : bar.Buttons()) tips.push_back(button.ToolTipText);
  return static_cast<int>(PickName("tool button", word, tips)) + 1;
}

using KeyPress = bool (*)(forms::headless::User& hand);

struct KeyRow {
  const char* name;
  KeyPress press;
};

constexpr KeyRow Keys[] = {
    {"tab", [](forms::headless::User& hand) { return hand.Tab(); }},
    {"back", [](forms::headless::User& hand) { return hand.Tab(true); }},
    {"enter", [](forms::headless::User& hand) { return hand.Enter(); }},
    {"space", [](forms::headless::User& hand) { return hand.Space(); }},
    {"escape", [](forms::headless::User& hand) { return hand.Escape(); }},
};

void Show(Session& session, const Words& words) {
  const Toolkit& toolkit = session.Current().Toolkit;
  if (words.empty()) return ShowScreen(session, toolkit);
  if (text::EqualIgnoringCase(words.front(), "all")) return ShowAll(session, toolkit);
  if (IsWindowName(toolkit, words.front())) {
    const forms::Form& form = FindWindow(toolkit, words.front());
    return session.Write(WindowText(toolkit, form, Detail::Seen));
  }
  session.Write(ControlText(toolkit, FindControl(toolkit, words.front()), Detail::Everything));
}

void Click(Session& session, const Words& words) {
  Copy& copy = session.Current();
  Control& control = FindControl(copy.Toolkit, words.front());
  Require(copy.Hand.Click(control), copy, control);
}

void PointAt(Session& session, const Words& words) {
  Copy& copy = session.Current();
  Control& control = FindControl(copy.Toolkit, words.front());
  Require(copy.Hand.PointAt(control), copy, control);
}

void Tick(Session& session, const Words& words) { SetMark(session, words, true); }

void Untick(Session& session, const Words& words) { SetMark(session, words, false); }

void Choose(Session& session, const Words& words) {
  Copy& copy = session.Current();
  auto& combo = FindControlOf<forms::ComboBox>(copy.Toolkit, words[0], "drop-down list");
  std::vector<std::string> entries;
  entries.reserve(static_cast<std::size_t>(combo.ListCount()));
  for (int i = 0; i < combo.ListCount(); ++i) entries.push_back(combo.List(i));
  const std::string entry = entries[PickName("entry", words[1], entries)];
  Require(copy.Hand.Choose(combo, entry), copy, combo);
}

void Type(Session& session, const Words& words) {
  Copy& copy = session.Current();
  Control& control = FindControl(copy.Toolkit, words[0]);
  const auto* box = dynamic_cast<forms::TextBox*>(&control);
  const auto* combo = dynamic_cast<forms::ComboBox*>(&control);
  const bool takesText = (box != nullptr && !box->ReadOnly()) ||
                         (combo != nullptr && combo->Style() == forms::ComboStyle::Editable);
  if (!takesText) RefuseKind(control, "box that takes text");
  Require(copy.Hand.Type(control, words[1]), copy, control);
}

void Select(Session& session, const Words& words) {
  Copy& copy = session.Current();
  auto& list = FindControlOf<forms::ListView>(copy.Toolkit, words[0], "list");
  Require(copy.Hand.Click(list, FindRow(list, words[1])), copy, list);
}

void ChooseMenu(Session& session, const Words& words) {
  Copy& copy = session.Current();
  forms::Menu& menu = FindMenu(copy.Toolkit, words.front());
  if (copy.Hand.Select(menu) || copy.Ended()) return;
  if (!menu.Enabled()) throw CommandError("cannot: the menu entry is disabled");
  const bool reached = copy.Hand.CanReach(menu.Owner());
  throw CommandError(reached ? "cannot: the menu entry is hidden"
                             : "cannot: " + menu.Owner().Name() + " does not show in front");
}

void PressTool(Session& session, const Words& words) {
  Copy& copy = session.Current();
  forms::Toolbar& bar = FindToolbar(copy.Toolkit);
  const int number = FindTool(bar, words.front());
  const int count = static_cast<int>(bar.Buttons().size());
  if (number < 1 || number > count ||
      bar.Buttons()[static_cast<std::size_t>(number) - 1].IsSeparator()) {
    throw CommandError("there is no tool button " + std::to_string(number));
  }
  Require(copy.Hand.Press(bar, number), copy, bar);
}

void PressKey(Session& session, const Words& words) {
  const KeyRow& row = PickRow("key", words.front(), Keys);
  Copy& copy = session.Current();
  const bool done = row.press(copy.Hand);
  if (copy.Ended()) return;
  if (!done) throw CommandError("the key does nothing here");
  const Control* focus = copy.Toolkit.Focus();
  if (focus != nullptr) session.Say("focus: " + focus->QualifiedName());
}

void Resize(Session& session, const Words& words) {
  Copy& copy = session.Current();
  const auto width = static_cast<int>(ParseNumber(words[0], 0, 100000, "the width"));
  const auto height = static_cast<int>(ParseNumber(words[1], 0, 100000, "the height"));
  forms::Form& form = NamedOrFront(copy.Toolkit, words, 2);
  if (form.Designed().Frame != forms::Border::Sizable) {
    throw CommandError(form.Name() + " has no frame to pull at");
  }
  copy.Toolkit.AtBorder([&] { form.UserResizes(width, height, forms::WindowState::Normal); });
  if (copy.Ended()) return;
  session.Say(form.Name() + ' ' + std::to_string(form.Width()) + " x " +
              std::to_string(form.Height()));
}

void SetWindowState(Session& session, const Words& words) {
  constexpr int Commands[] = {6, 3, 9};  // as ShowWindow takes them
  Copy& copy = session.Current();
  const std::size_t wanted = PickName("state", words[0], {"minimize", "maximize", "restore"});
  const forms::Form& form = NamedOrFront(copy.Toolkit, words, 1);
  if (form.Designed().Frame != forms::Border::Sizable || !form.Visible()) {
    throw CommandError(form.Name() + " has no buttons for that, or does not show");
  }
  session.World().desktop.ShowWindow(form.hWnd(), Commands[wanted]);
}

void CloseWindow(Session& session, const Words& words) {
  Copy& copy = session.Current();
  forms::Form& form = NamedOrFront(copy.Toolkit, words, 0);
  const std::string name = form.Name();
  if (!copy.Hand.Close(form)) {
    throw CommandError("cannot: " + name + " has no close box, is hidden, or lies behind another");
  }
}

constexpr std::array Table{
    Command{"show", "[WINDOW | CONTROL | all]",
            "shows the windows as text; a window or control with all that is in it", 0, 1, Show},
    Command{"click", "CONTROL", "clicks a button, link, label or box", 1, 1, Click},
    Command{"point", "CONTROL", "moves the mouse over a control", 1, 1, PointAt},
    Command{"tick", "BOX | LIST ROW", "ticks a check box or option, or the mark of a row", 1, 2,
            Tick},
    Command{"untick", "BOX | LIST ROW", "clears a check box, or the mark of a row", 1, 2, Untick},
    Command{"choose", "COMBO ENTRY", "picks an entry of a drop-down list", 2, 2, Choose},
    Command{"type", "CONTROL TEXT", "replaces the text of a box", 2, 2, Type},
    Command{"select", "LIST ROW", "selects a row by its number or text", 2, 2, Select},
    Command{"menu", "ENTRY", "chooses from the menu bar: menu \"File/Start Blocking\"", 1, 1,
            ChooseMenu},
    Command{"tool", "NUMBER | TIP", "presses a tool button", 1, 1, PressTool},
    Command{"key", "tab | back | enter | space | escape", "presses a key", 1, 1, PressKey},
    Command{"size", "WIDTH HEIGHT [WINDOW]", "gives a window another size, in twips", 2, 3, Resize},
    Command{"window", "minimize | maximize | restore [WINDOW]", "changes a window's state", 1, 2,
            SetWindowState},
    Command{"close", "[WINDOW]", "presses the close box of the window in front, or of this one", 0,
            1, CloseWindow},
};

}  // namespace

std::span<const Command> WindowCommands() { return Table; }

}  // namespace vantrel::console
