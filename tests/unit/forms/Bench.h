// A workbench for the models: a toolkit whose peers only note what is reported, and a window with
// one control of each kind.
#ifndef VANTREL_TESTS_UNIT_FORMS_BENCH_H_
#define VANTREL_TESTS_UNIT_FORMS_BENCH_H_

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "forms/Bars.h"
#include "forms/Chart.h"
#include "forms/ComboBox.h"
#include "forms/Controls.h"
#include "forms/FileListBox.h"
#include "forms/Form.h"
#include "forms/ImageList.h"
#include "forms/ListView.h"
#include "forms/Toolkit.h"
#include "text/RuntimeError.h"

namespace vantrel::forms {

using Notes = std::vector<std::string>;

// What the peers and handlers of one test noted, in one order.
class NotingPeer : public FormPeer {
 public:
  NotingPeer(Notes& notes, std::string name) : notes_(notes), name_(std::move(name)) {}
  ~NotingPeer() override { notes_.push_back(name_ + " gone"); }

  void Changed(Aspect aspect) override {
    ++changes;
    if (WhenChanged) WhenChanged(aspect);
    notes_.push_back(name_ + " changed " + std::to_string(static_cast<int>(aspect)));
  }
  void SetFocus() override { notes_.push_back(name_ + " focus"); }
  Handle WindowHandle() const override { return 77; }
  void RunModal() override {
    notes_.push_back(name_ + " modal");
    if (WhenModal) WhenModal();
  }
  void PopupMenu(Menu& menu) override { menu.UserClick(); }
  Handle IconHandle() const override { return 78; }
  void Activate() override {}

  std::function<void(Aspect)> WhenChanged;
  std::function<void()> WhenModal;
  int changes = 0;

 private:
  Notes& notes_;
  std::string name_;
};

class NotingToolkit : public Toolkit {
 public:
  std::unique_ptr<FormPeer> MakeWindow(Form& form) override {
    if (Refusing) throw text::RuntimeError(text::ErrorNumber::OutOfMemory);
    for (Control* control : form.Controls()) {
      control->AttachPeer(std::make_unique<NotingPeer>(notes, control->Name()));
    }
    return std::make_unique<NotingPeer>(notes, form.Name());
  }
  double TwipsPerPixelX() const override { return 15; }

  Notes notes;
  std::function<void()> WhenPumped;
  bool Refusing = false;  // the system makes no window

 protected:
  void PumpMessages() override {
    if (WhenPumped) WhenPumped();
  }
  void ScreenPointerChanged() override { notes.push_back("screen pointer"); }
};

inline NotingPeer& PeerOf(const Control& control) {
  return dynamic_cast<NotingPeer&>(*control.Peer());
}
inline NotingPeer& PeerOf(const Form& form) { return dynamic_cast<NotingPeer&>(*form.Peer()); }

// The number of the error that the statement ends with, 0 for none.
inline int ErrorOf(const std::function<void()>& statement) {
  try {
    statement();
    return 0;
  } catch (const text::RuntimeError& error) {
    return static_cast<int>(error.Number());
  }
}

class BenchForm : public Form {
 public:
  explicit BenchForm(Toolkit& toolkit, const std::string& name = "frmBench")
      : Form(toolkit, name, {.Caption = "Bench", .Width = 3000, .Height = 2000}) {}

  ImageList images{*this, "images", std::vector<std::string>{"Home", "Search"}};
  Menu file{*this, "file", "&File"};
  Menu open{file, "open", "&Open"};
  Menu line{file, "line", "-"};
  Menu tray{*this, "tray", "Tray", false};
  Menu leave{tray, "leave", "E&xit"};
  Label label{*this, "label", {.Caption = "Label"}};
  TextBox text{*this, "text", {}};
  CommandButton button{*this, "button", {.Caption = "Button"}};
  CheckBox check{*this, "check", {.Caption = "Check"}};
  Frame frame{*this, "frame", {.Caption = "Frame"}};
  OptionButton one{frame, "one", {.Index = 0}, true};
  OptionButton two{frame, "two", {.Index = 1}};
  OptionButton lone{*this, "lone", {}};
  ComboBox editable{
      *this, "editable", {.Caption = "Custom"}, ComboStyle::Editable, {"Custom", "Dial Up", "DSL"}};
  ComboBox pickOnly{*this, "pickOnly", {}, ComboStyle::PickOnly, {"alert", "click", "crash"}};
  ListView list{*this, "list", {}, {.Columns = {{"Name", 900}, {"Kind", 900}}, .CheckBoxes = true}};
  ProgressBar progress{*this, "progress", {}};
  Timer timer{*this, "timer", 2000};
  Image image{*this, "image", {}};
  FileListBox files{*this, "files", {}};
  Chart chart{*this, "chart", {}, "Row", {{"A", 0, "1"}, {"B", 0, "2"}}};
  Toolbar toolbar{*this, "toolbar", {}, images, {{"First", 1}, {"", 0}, {"Third", 2}}};
  StatusBar status{*this, "status", {}, {{StatusPanelKind::Text, "Ready", 0}}};
};

}  // namespace vantrel::forms

#endif  // VANTREL_TESTS_UNIT_FORMS_BENCH_H_
