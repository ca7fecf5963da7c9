#include "forms/headless/TraceLine.h"

#include <cstdio>

#include "forms/Bars.h"
#include "forms/Chart.h"
#include "forms/ComboBox.h"
#include "forms/ControlVisitor.h"
#include "forms/Controls.h"
#include "forms/FileListBox.h"
#include "forms/ImageList.h"
#include "forms/ListView.h"
#include "forms/UserControl.h"

namespace vantrel::forms::headless {
namespace {

std::string Flag(bool value) { return value ? "True" : "False"; }
std::string Number(int value) { return std::to_string(value); }

std::string Hex(Color color) {
  char text[12];
  std::snprintf(text, sizeof text, "&H%08X", color);
  return text;
}

std::string Panels(const StatusBar& bar) {
  std::string text;
  for (const StatusPanel& panel : bar.Panels()) text += (text.empty() ? "" : "|") + panel.Text;
  return text;
}

std::string ChartData(const Chart& chart) {
  std::string text;
  for (const ChartColumn& column : chart.Columns()) text += column.Data + ";";
  return text;
}

// What the kinds call their text, value, rows, selection and picture.
class KindWords : public ControlVisitor {
 public:
  KindWords(Control& control, Aspect aspect) : aspect_(aspect) { control.Accept(*this); }
  const std::string& Words() const { return words_; }

  void Visit(Chart& c) override { Say(Aspect::Items, "Data=" + ChartData(c)); }
  void Visit(CheckBox& c) override { Captioned(c, "Value=" + Number(c.Value())); }
  void Visit(ComboBox& c) override {
    Say(Aspect::Text, "Text=" + c.Text());
    Say(Aspect::Selection, "ListIndex=" + Number(c.ListIndex()));
  }
  void Visit(CommandButton& c) override { Captioned(c); }
  void Visit(FileListBox& c) override { Say(Aspect::Items, "ListCount=" + Number(c.ListCount())); }
  void Visit(Frame& c) override { Captioned(c); }
  void Visit(Image& c) override {
    const std::string list = c.List() == nullptr ? "" : c.List()->Name();
    Say(Aspect::Picture, "Picture=" + list + "(" + Number(c.Number()) + ")");
  }
  void Visit(Label& c) override { Captioned(c); }
  void Visit(ListView& c) override {
    Say(Aspect::Items, "Count=" + Number(c.Count()));
    Say(Aspect::Selection,
        "Selected=" + Number(c.SelectedIndex()) + " DropHighlight=" + Number(c.DropHighlight()));
  }
  void Visit(OptionButton& c) override { Captioned(c, "Value=" + Flag(c.Value())); }
  void Visit(PictureBox&) override {}
  void Visit(ProgressBar& c) override { Say(Aspect::Value, "Value=" + Number(c.Value())); }
  void Visit(StatusBar& c) override { Say(Aspect::Text, "Panels=" + Panels(c)); }
  void Visit(TextBox& c) override { Say(Aspect::Text, "Text=" + c.Text()); }
  void Visit(Timer& c) override { Say(Aspect::Value, "Interval=" + Number(c.Interval())); }
  void Visit(Toolbar&) override {}
  void Visit(UserControl& c) override { Say(Aspect::Text, "Caption=" + c.WindowText()); }

 private:
  void Say(Aspect aspect, const std::string& words) {
    if (aspect == aspect_) words_ = words;
  }
  void Captioned(const CaptionedControl& control, const std::string& value = {}) {
    Say(Aspect::Text, "Caption=" + control.Caption());
    Say(Aspect::Value, value);
  }

  Aspect aspect_;
  std::string words_;
};

std::string PlaceWords(const Place& place) {
  return "Place=" + Number(place.Left) + "," + Number(place.Top) + "," + Number(place.Width) + "," +
         Number(place.Height);
}

std::string CommonWords(const Control& control, Aspect aspect) {
  switch (aspect) {
    case Aspect::Visible:
      return "Visible=" + Flag(control.Visible());
    case Aspect::Enabled:
      return "Enabled=" + Flag(control.Enabled());
    case Aspect::Place:
      return PlaceWords(control.At());
    case Aspect::ToolTip:
      return "ToolTipText=" + control.ToolTipText();
    case Aspect::Color:
      return "ForeColor=" + Hex(control.ForeColor()) + " BackColor=" + Hex(control.BackColor());
    case Aspect::Font:
      return "Underline=" + Flag(control.TextFont().Underline);
    case Aspect::Pointer:
      return "MousePointer=" + Number(control.MousePointer());
    default:
      return {};
  }
}

std::string FormWords(const Form& form, Aspect aspect) {
  switch (aspect) {
    case Aspect::Text:
      return "Caption=" + form.Caption();
    case Aspect::Visible:
      return form.Visible() ? "Show" : "Hide";
    case Aspect::Place:
      return "Size=" + Number(form.Width()) + "," + Number(form.Height());
    case Aspect::Pointer:
      return "MousePointer=" + Number(form.MousePointer());
    case Aspect::State:
      return "WindowState=" + Number(static_cast<int>(form.WindowState()));
    default:
      return "Changed";
  }
}

// The parts of a control made of others are named behind it: "frmMain.LnkHelp.lblHyperlink".
std::string NameOf(const Control& control) {
  const auto* surface = dynamic_cast<const UserControl*>(control.Container());
  return surface == nullptr ? control.QualifiedName()
                            : surface->QualifiedName() + "." + control.Name();
}

}  // namespace

std::string TraceLine(Control& control, Aspect aspect) {
  const std::string words = KindWords(control, aspect).Words();
  return NameOf(control) + " " + (words.empty() ? CommonWords(control, aspect) : words);
}

std::string TraceLine(const Form& form, Aspect aspect) {
  return form.Name() + " " + FormWords(form, aspect);
}

}  // namespace vantrel::forms::headless
