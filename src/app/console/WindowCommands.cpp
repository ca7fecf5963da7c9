#include "app/console/Commands.h"
#include "app/console/Screen.h"
#include "forms/ComboBox.h"
#include "forms/ListView.h"
#include "text/Strings.h"
#include "windows/frmMain.h"

namespace vantrel::console {
namespace {

using forms::Control;
using forms::headless::Toolkit;
using forms::headless::User;

// The innermost thing that keeps the user from the control.
std::string Obstacle(const Toolkit& toolkit, const Control& control) {
  for (const Control* each = &control; each != nullptr; each = each->Container()) {
    if (!each->Visible()) return each->QualifiedName() + " is hidden";
    if (!each->Enabled()) return each->QualifiedName() + " is disabled";
  }
  for (const forms::Form* form = &control.Owner(); form != nullptr; form = form->Host()) {
    if (!form->Visible()) return form->Name() + " is hidden";
    if (form->WindowState() == forms::WindowState::Minimized) return form->Name() + " is minimized";
  }
  if (toolkit.ModalForm() != nullptr) return toolkit.ModalForm()->Name() + " is open in front";
  return "the focus stays where it is";
}

// Lets the user act on the control; CommandError with the reason if he cannot.
template <class Act>
void Use(Session& session, const Control& control, const Act& act) {
  Copy& copy = session.Current();
  if (act(copy.User) || copy.Ended()) return;
  throw CommandError("cannot: " + Obstacle(copy.Toolkit, control));
}

Control& Named(Session& session, const std::string& word) {
  return FindControl(session.Current().Toolkit, word);
}

// The 1-based number of a row or button, which the word gives as such or by the name.
int NumberOf(const std::string& kind, const std::string& word, const Words& names) {
  const bool number = word.find_first_not_of("0123456789") == std::string::npos && !word.empty();
  if (!number) return static_cast<int>(PickName(kind, word, names)) + 1;
  const auto count = static_cast<long long>(names.size());
  return static_cast<int>(ParseNumber(word, 1, count, "the " + kind));
}

int FindRow(const forms::ListView& list, const std::string& word) {
  Words texts;
  for (int row = 1; row <= list.Count(); ++row) texts.push_back(list.Item(row).Text());
  return NumberOf("row", word, texts);
}

void SetMark(Session& session, const Words& words, bool checked) {
  Copy& copy = session.Current();
  Control& control = Named(session, words[0]);
  if (words.size() == 2) {
    auto& list = As<forms::ListView>(control, "list");
    if (!list.CheckBoxes()) throw CommandError(list.QualifiedName() + " has no marks");
    const int row = FindRow(list, words[1]);
    return Use(session, list, [&](User& user) { return user.Check(list, row, checked); });
  }
  const auto click = [&control](User& user) { return user.Click(control); };
  const bool option = dynamic_cast<forms::OptionButton*>(&control) != nullptr;
  if (option && checked) return Use(session, control, click);
  const auto& box = As<forms::CheckBox>(control, checked ? "box or option" : "check box");
  // A grayed box takes a click more than a clear one.
  for (int clicks = 0; clicks < 2 && !copy.Ended(); ++clicks) {
    if (box.Value() != (checked ? forms::Checked : forms::Unchecked)) Use(session, control, click);
  }
}

// The window that the word at the place names, or the one in front; the last of those that show is.
forms::Form& WindowAt(Session& session, const Words& words, std::size_t place) {
  const Toolkit& toolkit = session.Current().Toolkit;
  if (words.size() > place) return FindWindow(toolkit, words[place]);
  if (toolkit.ModalForm() != nullptr) return *toolkit.ModalForm();
  if (toolkit.ActiveForm() != nullptr) return toolkit.ActiveForm()->Outermost();
  const std::vector<forms::Form*> windows = WindowsOnScreen(toolkit);
  if (windows.empty()) throw CommandError("no window shows");
  return *windows.back();
}

forms::Form& SizableAt(Session& session, const Words& words, std::size_t place) {
  forms::Form& form = WindowAt(session, words, place);
  if (form.Designed().Frame == forms::Border::Sizable && form.Visible()) return form;
  throw CommandError(form.Name() + " has no frame for that, or does not show");
}

void Show(Session& session, const Words& words) {
  const Toolkit& toolkit = session.Current().Toolkit;
  const bool all = !words.empty() && text::EqualIgnoringCase(words[0], "all");
  const bool named = !words.empty() && !all;
  std::vector<forms::Form*> windows =
      words.empty() ? WindowsOnScreen(toolkit) : toolkit.LoadedForms();
  std::erase_if(windows, [&](const forms::Form* form) {
    return named && !text::EqualIgnoringCase(form->Name(), words[0]);
  });
  const Detail detail = all ? Detail::Everything : Detail::Seen;
  for (const forms::Form* form : windows) session.Write(WindowText(toolkit, *form, detail));
  if (!windows.empty()) return;
  session.Write(named ? ControlText(toolkit, Named(session, words[0])) : "no window shows\n");
}

void Choose(Session& session, const Words& words) {
  auto& combo = As<forms::ComboBox>(Named(session, words[0]), "drop-down list");
  Words entries;
  for (int i = 0; i < combo.ListCount(); ++i) entries.push_back(combo.List(i));
  const std::string entry = entries[PickName("entry", words[1], entries)];
  Use(session, combo, [&](User& user) { return user.Choose(combo, entry); });
}

void Type(Session& session, const Words& words) {
  Control& control = Named(session, words[0]);
  const auto* combo = dynamic_cast<forms::ComboBox*>(&control);
  const bool editable = combo != nullptr && combo->Style() == forms::ComboStyle::Editable;
  if (!editable && As<forms::TextBox>(control, "box that takes text").ReadOnly()) {
    throw CommandError(control.QualifiedName() + " is read-only");
  }
  Use(session, control, [&](User& user) { return user.Type(control, words[1]); });
}

void ChooseMenu(Session& session, const Words& words) {
  Copy& copy = session.Current();
  forms::Menu& menu = FindMenu(copy.Toolkit, words[0]);
  if (copy.User.Select(menu) || copy.Ended()) return;
  const bool reached = copy.User.CanReach(menu.Owner());
  throw CommandError(!menu.Enabled() ? "cannot: the menu entry is disabled"
                     : reached       ? "cannot: the menu entry is hidden"
                               : "cannot: " + menu.Owner().Name() + " does not show in front");
}

void PressTool(Session& session, const Words& words) {
  auto& main = session.Current().Program.windows.frmMain;
  if (!main.Loaded()) throw CommandError("there is no toolbar");
  forms::Toolbar& bar = main->Toolbar1;
  const Words tips = Texts(bar.Buttons(), &forms::ToolButton::ToolTipText);
  const int number = NumberOf("tool button", words[0], tips);
  if (bar.Buttons()[static_cast<std::size_t>(number) - 1].IsSeparator()) {
    throw CommandError("there is no tool button " + std::to_string(number));
  }
  Use(session, bar, [&](User& user) { return user.Press(bar, number); });
}

void PressKey(Session& session, const Words& words) {
  constexpr bool (*Press[])(User&) = {
      [](User& user) { return user.Tab(); },    [](User& user) { return user.Tab(true); },
      [](User& user) { return user.Enter(); },  [](User& user) { return user.Space(); },
      [](User& user) { return user.Escape(); },
  };
  const std::size_t key = PickName("key", words[0], {"tab", "back", "enter", "space", "escape"});
  Copy& copy = session.Current();
  const bool done = Press[key](copy.User);
  if (copy.Ended()) return;
  if (!done) throw CommandError("the key does nothing here");
  const Control* focus = copy.Toolkit.Focus();
  if (focus != nullptr) session.Say("focus: " + focus->QualifiedName());
}

void Resize(Session& session, const Words& words) {
  Copy& copy = session.Current();
  const auto width = static_cast<int>(ParseNumber(words[0], 0, 100000, "the width"));
  const auto height = static_cast<int>(ParseNumber(words[1], 0, 100000, "the height"));
  forms::Form& form = SizableAt(session, words, 2);
  copy.Toolkit.AtBorder([&] { form.UserResizes(width, height, forms::WindowState::Normal); });
  if (copy.Ended()) return;
  session.Say(form.Name() + ' ' + std::to_string(form.Width()) + " x " +
              std::to_string(form.Height()));
}

void SetWindowState(Session& session, const Words& words) {
  constexpr int Commands[] = {6, 3, 9};  // as ShowWindow takes them
  const std::size_t wanted = PickName("state", words[0], {"minimize", "maximize", "restore"});
  const forms::Form& form = SizableAt(session, words, 1);
  session.World().desktop.ShowWindow(form.hWnd(), Commands[wanted]);
}

void CloseWindow(Session& session, const Words& words) {
  forms::Form& form = WindowAt(session, words, 0);
  const std::string name = form.Name();
  if (session.Current().User.Close(form)) return;
  throw CommandError("cannot: " + name + " has no close box, is hidden, or lies behind another");
}

constexpr Command Table[] = {
    {"show", "[WINDOW|CONTROL|all]",
     "shows the windows as text; a window or control with all that is in it", Show},
    {"click", "CONTROL", "clicks a button, link, label or box",
     [](Session& session, const Words& words) {
       Control& control = Named(session, words[0]);
       Use(session, control, [&](User& user) { return user.Click(control); });
     }},
    {"point", "CONTROL", "moves the mouse over a control",
     [](Session& session, const Words& words) {
       Control& control = Named(session, words[0]);
       Use(session, control, [&](User& user) { return user.PointAt(control); });
     }},
    {"tick", "BOX|LIST [ROW]", "ticks a check box or option, or the mark of a row",
     [](Session& session, const Words& words) { SetMark(session, words, true); }},
    {"untick", "BOX|LIST [ROW]", "clears a check box, or the mark of a row",
     [](Session& session, const Words& words) { SetMark(session, words, false); }},
    {"choose", "COMBO ENTRY", "picks an entry of a drop-down list", Choose},
    {"type", "CONTROL TEXT", "replaces the text of a box", Type},
    {"select", "LIST ROW", "selects a row by its number or text",
     [](Session& session, const Words& words) {
       auto& list = As<forms::ListView>(Named(session, words[0]), "list");
       const int row = FindRow(list, words[1]);
       Use(session, list, [&](User& user) { return user.Click(list, row); });
     }},
    {"menu", "ENTRY", "chooses from the menu bar: menu \"File/Start Blocking\"", ChooseMenu},
    {"tool", "NUMBER|TIP", "presses a tool button", PressTool},
    {"key", "tab|back|enter|space|escape", "presses a key", PressKey},
    {"size", "WIDTH HEIGHT [WINDOW]", "gives a window another size, in twips", Resize},
    {"window", "minimize|maximize|restore [WINDOW]", "changes a window's state", SetWindowState},
    {"close", "[WINDOW]", "presses the close box of the window in front, or of this one",
     CloseWindow},
};

}  // namespace

std::span<const Command> WindowCommands() { return Table; }

}  // namespace vantrel::console
