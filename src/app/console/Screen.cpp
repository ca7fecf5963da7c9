#include "app/console/Screen.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

#include "app/console/Words.h"
#include "forms/Bars.h"
#include "forms/Chart.h"
#include "forms/ComboBox.h"
#include "forms/ControlVisitor.h"
#include "forms/Controls.h"
#include "forms/FileListBox.h"
#include "forms/ImageList.h"
#include "forms/ListView.h"
#include "forms/SpokenName.h"
#include "forms/UserControl.h"
#include "text/Strings.h"

namespace vantrel::console {
namespace {

using forms::Control;
using forms::headless::Toolkit;

constexpr std::size_t KindWidth = 9;

// The visible windows hosted in the form, frontmost first.
std::vector<forms::Form*> HostedIn(const Toolkit& toolkit, const forms::Form& form) {
  std::vector<forms::Form*> hosted;
  for (const forms::Handle child : toolkit.Desktop().Children(form.hWnd())) {
    for (forms::Form* each : toolkit.LoadedForms()) {
      if (each->hWnd() == child && each->Host() == &form && each->Visible()) hosted.push_back(each);
    }
  }
  return hosted;
}

// Without its window's name.
std::string NameIn(const forms::Control& control) {
  return control.QualifiedName().substr(control.Owner().Name().size() + 1);
}

// Whether it belongs to a control made of others, which shows and acts for it.
bool IsPart(const forms::Control& control) {
  return dynamic_cast<const forms::UserControl*>(control.Container()) != nullptr;
}

const char* KindOf(forms::Look look) {
  const bool heading = look == forms::Look::GroupHeading || look == forms::Look::PanelHeading;
  if (heading) return "heading";
  return look == forms::Look::Link ? "link" : look == forms::Look::Title ? "title" : "label";
}

std::string Mark(int value) {
  return value == forms::Checked ? "[x] " : value == forms::Grayed ? "[-] " : "[ ] ";
}

std::string RowText(const forms::ListView& list, int index) {
  const forms::ListItem& item = list.Item(index);
  Words cells{Quoted(item.Text())};
  for (int sub = 1; sub <= item.SubItemCount(); ++sub) cells.push_back(Quoted(item.Sub(sub).Text));
  return (list.SelectedIndex() == index ? "> " : "  ") + std::to_string(index) + ' ' +
         (list.CheckBoxes() ? Mark(item.Checked() ? forms::Checked : forms::Unchecked) : "") +
         Joined(cells, " | ");
}

std::string WindowState(const forms::Form& form) {
  std::string state;
  if (form.Designed().Frame == forms::Border::Sizable) {
    state += ' ' + std::to_string(form.Width()) + " x " + std::to_string(form.Height());
  }
  if (form.WindowState() == forms::WindowState::Minimized) state += " minimized";
  if (form.WindowState() == forms::WindowState::Maximized) state += " maximized";
  return state + (form.Visible() ? "" : " hidden");
}

// Of a control or a menu entry.
template <class Thing>
std::string State(const Thing& thing) {
  return std::string(thing.Enabled() ? "" : " disabled") + (thing.Visible() ? "" : " hidden");
}

// Writes windows and controls; the visits give what a kind of control says of itself.
class Writer : private forms::ControlVisitor {
 public:
  Writer(const Toolkit& toolkit, Detail detail)
      : toolkit_(toolkit), everything_(detail == Detail::Everything) {}

  std::string text;

  void Window(const forms::Form& form, int depth) {
    Line(depth, form.Name() + ' ' + Quoted(form.Caption()) + WindowState(form));
    for (const forms::Menu* menu : form.Menus()) TopMenu(*menu, depth + 1);
    Inside(form, nullptr, depth + 1);
    const std::vector<forms::Form*> hosted = HostedIn(toolkit_, form);
    if (!hosted.empty()) Window(*hosted.front(), depth + 1);
    for (std::size_t i = 1; i < hosted.size(); ++i) {
      Line(depth + 1, "behind it " + hosted[i]->Name());
    }
  }

  void Control(forms::Control& control, int depth) {
    pictorial_ = false;
    below_.clear();
    control.Accept(*this);
    if (IsPart(control) || (!everything_ && (!control.Visible() || pictorial_))) return;
    kind_.resize(std::max(kind_.size() + 1, KindWidth), ' ');
    Line(depth,
         kind_ + NameIn(control) + (content_.empty() ? "" : " ") + content_ + State(control));
    for (const std::string& below : below_) Line(depth + 1, below);
    Inside(control.Owner(), &control, depth + 1);
  }

 private:
  void Line(int depth, const std::string& line) {
    text += std::string(static_cast<std::size_t>(depth) * 2, ' ') + line + '\n';
  }

  void Inside(const forms::Form& form, const forms::Control* container, int depth) {
    for (forms::Control* control : form.Controls()) {
      if (control->Container() == container) Control(*control, depth);
    }
  }

  std::string Entry(const forms::Menu& menu) const {
    return Printable(forms::WithoutMarks(menu.Caption())) +
           (everything_ ? " (" + menu.Name() + ')' : "") + State(menu);
  }

  void TopMenu(const forms::Menu& menu, int depth) {
    if (!menu.Visible() && !everything_) return;
    Words entries;
    for (const forms::Menu* entry : menu.Entries()) {
      if (entry->IsSeparator() || (!entry->Visible() && !everything_)) continue;
      entries.push_back(Entry(*entry));
    }
    Line(depth, "menu     " + Entry(menu) + ": " + Joined(entries, ", "));
  }

  void Say(const char* kind, std::string content, Words below = {}) {
    kind_ = kind;
    content_ = std::move(content);
    below_ = std::move(below);
  }

  void Visit(forms::Chart& chart) override {
    Say("chart", Quoted(chart.RowLabel()), Texts(chart.Columns(), [](const auto& column) {
          return "bar " + Quoted(column.Label) + " = " + Quoted(column.Data);
        }));
  }
  void Visit(forms::CheckBox& box) override {
    Say("check", Mark(box.Value()) + Quoted(box.Caption()));
  }
  void Visit(forms::ComboBox& combo) override {
    Words entries;
    for (int i = 0; i < combo.ListCount(); ++i) entries.push_back(Quoted(combo.List(i)));
    if (entries.empty()) entries.push_back("nothing");
    Say("combo", Quoted(combo.Text()), {"of " + Joined(entries, ", ")});
  }
  void Visit(forms::CommandButton& button) override { Say("button", Quoted(button.Caption())); }
  void Visit(forms::FileListBox& list) override {
    Say("files", "of " + Quoted(list.Path()));
    for (int i = 0; i < list.ListCount(); ++i) below_.push_back("  " + Quoted(list.List(i)));
  }
  void Visit(forms::Frame& frame) override { Say("frame", Quoted(frame.Caption())); }
  void Visit(forms::Image& image) override {
    const forms::ImageList* list = image.List();
    Say("image", list == nullptr ? "empty" : list->Name() + ' ' + std::to_string(image.Number()));
    pictorial_ = true;
  }
  void Visit(forms::Label& label) override { Say(KindOf(label.Drawn()), Quoted(label.Caption())); }
  void Visit(forms::ListView& list) override {
    const Words headers = Texts(list.Columns(), &forms::Column::Header);
    Say("list", std::to_string(list.Count()) + (list.Count() == 1 ? " row" : " rows"),
        {"  " + Printable(Joined(headers, " | "))});
    for (int i = 1; i <= list.Count(); ++i) below_.push_back(RowText(list, i));
  }
  void Visit(forms::OptionButton& option) override {
    Say("option", (option.Value() ? "(o) " : "( ) ") + Quoted(option.Caption()));
  }
  void Visit(forms::PictureBox&) override { Say("area", ""); }
  void Visit(forms::ProgressBar& bar) override {
    Say("progress", std::to_string(bar.Value()) + " from " + std::to_string(bar.Min()) + " to " +
                        std::to_string(bar.Max()));
  }
  void Visit(forms::StatusBar& bar) override {
    const std::string now = TimeText(toolkit_.Clock().LocalNow());
    Words panels;
    for (const forms::StatusPanel& panel : bar.Panels()) {
      panels.push_back(panel.Kind == forms::StatusPanelKind::Date   ? now.substr(0, 10)
                       : panel.Kind == forms::StatusPanelKind::Time ? now.substr(11, 5)
                                                                    : Printable(panel.Text));
    }
    Say("status", Joined(panels, " | "));
  }
  void Visit(forms::TextBox& box) override {
    Say("text", Quoted(box.Text()) + (box.ReadOnly() ? " read-only" : ""));
  }
  void Visit(forms::Timer& timer) override {
    Say("timer", "every " + std::to_string(timer.Interval()) + " ms");
    pictorial_ = true;
  }
  void Visit(forms::Toolbar& bar) override {
    Words buttons;
    for (std::size_t i = 0; i < bar.Buttons().size(); ++i) {
      if (bar.Buttons()[i].IsSeparator()) continue;
      buttons.push_back(std::to_string(i + 1) + ' ' + Quoted(bar.Buttons()[i].ToolTipText));
    }
    Say("tools", "", buttons);
  }
  void Visit(forms::UserControl& control) override {
    Say("link", Quoted(forms::CaptionShown(control)));
  }

  const Toolkit& toolkit_;
  bool everything_;
  // Of the control that was visited last.
  std::string kind_;
  std::string content_;
  Words below_;             // rows, columns and entries, a line each
  bool pictorial_ = false;  // a picture or timer: nothing a user reads
};

std::vector<Control*> AllControls(const Toolkit& toolkit) {
  std::vector<Control*> all;
  for (const forms::Form* form : toolkit.LoadedForms()) {
    all.insert(all.end(), form->Controls().begin(), form->Controls().end());
  }
  std::erase_if(all, [](const Control* control) { return IsPart(*control); });
  return all;
}

// What a user who sees the control could call it by; empty for lists and boxes of text.
std::string CaptionSeen(Control& control) {
  return control.Shown() ? text::Trim(forms::WithoutMarks(forms::CaptionShown(control))) : "";
}

// Whether it lies in the panel in front of the others of its window.
bool InFront(const Toolkit& toolkit, const Control& control) {
  const forms::Form& form = control.Owner();
  if (form.Host() == nullptr) return true;
  const std::vector<forms::Form*> hosted = HostedIn(toolkit, *form.Host());
  return !hosted.empty() && hosted.front() == &form;
}

// How well the word names the control, 0 for not at all: a name goes before a caption and that
// before a beginning; of the same, what shows goes first, and of that, what is in front.
int Fit(const Toolkit& toolkit, Control& control, const std::string& word) {
  const std::string name = NameIn(control);
  const std::string qualified = control.QualifiedName();
  const std::string caption = CaptionSeen(control);
  int fit = 0;
  if (text::EqualIgnoringCase(name, word) || text::EqualIgnoringCase(qualified, word)) {
    fit = 3;
  } else if (!caption.empty() && text::EqualIgnoringCase(caption, text::Trim(word))) {
    fit = 2;
  } else if (BeginsWith(name, word) || BeginsWith(qualified, word)) {
    fit = 1;
  }
  return fit == 0 ? 0 : fit * 4 + (control.Shown() ? 2 : 0) + (InFront(toolkit, control) ? 1 : 0);
}

}  // namespace

std::string WindowText(const Toolkit& toolkit, const forms::Form& form, Detail detail) {
  Writer writer(toolkit, detail);
  writer.Window(form, 0);
  return writer.text;
}

std::string ControlText(const Toolkit& toolkit, forms::Control& control) {
  Writer writer(toolkit, Detail::Everything);
  writer.Control(control, 0);
  return writer.text;
}

std::string ScreenLine(const Toolkit& toolkit) {
  const Words windows = Texts(WindowsOnScreen(toolkit), [&toolkit](const forms::Form* form) {
    const std::vector<forms::Form*> hosted = HostedIn(toolkit, *form);
    const bool minimized = form->WindowState() == forms::WindowState::Minimized;
    return form->Name() + (minimized ? " minimized" : "") +
           (hosted.empty() ? "" : " with " + hosted.front()->Name()) +
           (toolkit.ModalForm() == form ? " (modal)" : "");
  });
  return windows.empty() ? "no window" : Joined(windows, ", ");
}

std::string TimeText(const platform::memory::LocalTime& time) {
  std::array<char, 100> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", time.year, time.month,
                time.day, time.hour, time.minute, time.second);
  return text.data();
}

std::vector<forms::Form*> WindowsOnScreen(const Toolkit& toolkit) {
  std::vector<forms::Form*> windows = toolkit.LoadedForms();
  std::erase_if(windows, [](auto* form) { return form->Host() != nullptr || !form->Visible(); });
  return windows;
}

forms::Form& FindWindow(const Toolkit& toolkit, const std::string& word) {
  for (forms::Form* form : toolkit.LoadedForms()) {
    if (form->Visible() && text::EqualIgnoringCase(form->Caption(), word)) return *form;
  }
  const auto& forms = toolkit.LoadedForms();
  return *forms[PickName("window", word, Texts(forms, &forms::Form::Name))];
}

Control& FindControl(const Toolkit& toolkit, const std::string& word) {
  const std::vector<Control*> all = AllControls(toolkit);
  std::vector<Control*> found;
  int best = 1;
  for (Control* control : all) {
    const int fit = Fit(toolkit, *control, word);
    if (fit > best) found.clear();
    if (fit >= best) found.push_back(control);
    best = std::max(best, fit);
  }
  if (found.size() == 1) return *found.front();
  Words choices = Texts(all, &Control::QualifiedName);
  for (Control* control : all) {
    choices.push_back(NameIn(*control));
    choices.push_back(CaptionSeen(*control));
  }
  RefuseName("control", word, Texts(found, &Control::QualifiedName), choices);
}

forms::Menu& FindEntry(const std::vector<forms::Menu*>& entries, const std::string& word) {
  const Words captions = Texts(entries, [](const forms::Menu* entry) {
    return entry->IsSeparator() ? std::string() : forms::WithoutMarks(entry->Caption());
  });
  return *entries[PickName("menu entry", word, captions)];
}

forms::Menu& FindMenu(const Toolkit& toolkit, const std::string& word) {
  std::vector<forms::Menu*> top;
  for (const forms::Form* form : toolkit.LoadedForms()) {
    for (forms::Menu* menu : form->AllMenus()) {
      if (text::EqualIgnoringCase(menu->Name(), word)) return *menu;
    }
    top.insert(top.end(), form->Menus().begin(), form->Menus().end());
  }
  forms::Menu* menu = nullptr;
  for (const std::string& part : text::Split(word, '/')) {
    menu = &FindEntry(menu == nullptr ? top : menu->Entries(), part);
  }
  if (menu == nullptr) throw CommandError("the menu entry is missing");
  return *menu;
}

}  // namespace vantrel::console
