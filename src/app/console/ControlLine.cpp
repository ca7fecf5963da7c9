#include "app/console/ControlLine.h"

#include <array>
#include <cstdio>

#include "app/console/Words.h"
#include "forms/Bars.h"
#include "forms/Chart.h"
#include "forms/ComboBox.h"
#include "forms/ControlVisitor.h"
#include "forms/Controls.h"
#include "forms/FileListBox.h"
#include "forms/ImageList.h"
#include "forms/ListView.h"
#include "forms/UserControl.h"

namespace vantrel::console {
namespace {

using platform::memory::LocalTime;

constexpr int MostRows = 200;

std::string DateText(const LocalTime& time) {
  std::array<char, 40> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02d-%02d", time.year, time.month, time.day);
  return text.data();
}

std::string TimeText(const LocalTime& time) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%02d:%02d", time.hour, time.minute);
  return text.data();
}

const char* KindOf(const forms::Label& label) {
  switch (label.Drawn()) {
    case forms::Look::Link:
      return "link";
    case forms::Look::GroupHeading:
    case forms::Look::PanelHeading:
      return "heading";
    case forms::Look::Title:
      return "title";
    default:
      return "label";
  }
}

std::string Mark(int value) {
  return value == forms::Checked ? "[x] " : value == forms::Grayed ? "[-] " : "[ ] ";
}

std::string RowText(const forms::ListView& list, int index) {
  const forms::ListItem& item = list.Item(index);
  std::string line = list.SelectedIndex() == index ? "> " : "  ";
  line += std::to_string(index) + ' ';
  if (list.CheckBoxes()) line += item.Checked() ? "[x] " : "[ ] ";
  line += Quoted(item.Text());
  for (int sub = 1; sub <= item.SubItemCount(); ++sub) line += " | " + Quoted(item.Sub(sub).Text);
  return line;
}

std::string HeaderText(const forms::ListView& list) {
  std::string line;
  for (const forms::Column& column : list.Columns()) {
    line += (line.empty() ? "" : " | ") + Printable(column.Header);
  }
  return line;
}

std::string Counted(int count, const char* one, const char* many) {
  return std::to_string(count) + ' ' + (count == 1 ? one : many);
}

// Runs `line` for 1 to `count`, and says how many are left out.
template <class Line>
void AddRows(std::vector<std::string>& into, int count, Line line) {
  for (int index = 1; index <= count && index <= MostRows; ++index) into.push_back(line(index));
  if (count > MostRows) into.push_back("  and " + std::to_string(count - MostRows) + " more");
}

class Describer : public forms::ControlVisitor {
 public:
  explicit Describer(const LocalTime& now) : now_(now) {}

  ControlLine line;

  void Visit(forms::Chart& chart) override {
    Say("chart", Quoted(chart.RowLabel()));
    for (const forms::ChartColumn& column : chart.Columns()) {
      line.Below.push_back("bar " + Quoted(column.Label) + " = " + Quoted(column.Data));
    }
  }
  void Visit(forms::CheckBox& box) override {
    Say("check", Mark(box.Value()) + Quoted(box.Caption()));
  }
  void Visit(forms::ComboBox& combo) override {
    Say("combo", Quoted(combo.Text()));
    std::string entries;
    for (int i = 0; i < combo.ListCount(); ++i) {
      entries += (i == 0 ? "" : ", ") + Quoted(combo.List(i));
    }
    line.Below.push_back("of " + (entries.empty() ? "nothing" : entries));
  }
  void Visit(forms::CommandButton& button) override { Say("button", Quoted(button.Caption())); }
  void Visit(forms::FileListBox& list) override {
    Say("files", "of " + Quoted(list.Path()));
    AddRows(line.Below, list.ListCount(),
            [&list](int index) { return "  " + Quoted(list.List(index - 1)); });
  }
  void Visit(forms::Frame& frame) override { Say("frame", Quoted(frame.Caption())); }
  void Visit(forms::Image& image) override {
    Say("image", image.List() == nullptr
                     ? "empty"
                     : image.List()->Name() + ' ' + std::to_string(image.Number()));
    line.Pictorial = true;
  }
  void Visit(forms::Label& label) override { Say(KindOf(label), Quoted(label.Caption())); }
  void Visit(forms::ListView& list) override {
    Say("list", Counted(list.Count(), "row", "rows"));
    line.Below.push_back("  " + HeaderText(list));
    AddRows(line.Below, list.Count(), [&list](int index) { return RowText(list, index); });
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
    std::string panels;
    for (const forms::StatusPanel& panel : bar.Panels()) {
      panels += (panels.empty() ? "" : " | ") + PanelText(panel);
    }
    Say("status", panels);
  }
  void Visit(forms::TextBox& box) override {
    Say("text", Quoted(box.Text()) + (box.ReadOnly() ? " read-only" : ""));
  }
  void Visit(forms::Timer& timer) override {
    Say("timer", "every " + std::to_string(timer.Interval()) + " ms");
    line.Pictorial = true;
  }
  void Visit(forms::Toolbar& bar) override {
    std::string buttons;
    const int count = static_cast<int>(bar.Buttons().size());
    for (int index = 1; index <= count; ++index) {
      const forms::ToolButton& button = bar.Buttons()[static_cast<std::size_t>(index) - 1];
      if (button.IsSeparator()) continue;
      line.Below.push_back(std::to_string(index) + ' ' + Quoted(button.ToolTipText));
    }
    Say("tools", "");
  }
  void Visit(forms::UserControl& control) override {
    const forms::Control* face = control.Face();
    Say("link", face == nullptr ? "" : Quoted(face->WindowText()));
  }

 private:
  void Say(const char* kind, std::string text) {
    line.Kind = kind;
    line.Text = std::move(text);
  }

  std::string PanelText(const forms::StatusPanel& panel) const {
    if (panel.Kind == forms::StatusPanelKind::Date) return DateText(now_);
    if (panel.Kind == forms::StatusPanelKind::Time) return TimeText(now_);
    return Printable(panel.Text);
  }

  const LocalTime& now_;
};

}  // namespace

ControlLine Describe(forms::Control& control, const LocalTime& now) {
  Describer describer(now);
  control.Accept(describer);
  return std::move(describer.line);
}

}  // namespace vantrel::console
