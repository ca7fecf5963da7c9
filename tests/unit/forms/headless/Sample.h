// A window with a control of each kind on the in-memory desktop, and a user before it.
#ifndef VANTREL_TESTS_UNIT_FORMS_HEADLESS_SAMPLE_H_
#define VANTREL_TESTS_UNIT_FORMS_HEADLESS_SAMPLE_H_

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "forms/Bars.h"
#include "forms/ComboBox.h"
#include "forms/Controls.h"
#include "forms/ImageList.h"
#include "forms/ListView.h"
#include "forms/UserControl.h"
#include "forms/headless/Toolkit.h"
#include "forms/headless/User.h"

namespace vantrel::forms::headless {

namespace memory = platform::memory;
inline constexpr memory::ProcessId OwnProcess = 11;

// A surface that shows one label.
class Surface : public UserControl {
 public:
  Surface(Form& form, std::string name, const Design& design)
      : UserControl(form, std::move(name), design) {
    face.Click = [this] { Click(); };
  }
  Control* Face() override { return &face; }
  void UserClick() override { face.UserClick(); }
  void Resized() override { ++resizes; }
  void KeyPressed() override { face.UserClick(); }

  Label face{*this, "face", {.Caption = "Link"}};
  int resizes = 0;
};

class SampleForm : public Form {
 public:
  explicit SampleForm(Toolkit& toolkit, const std::string& name = "frmSample",
                      Border border = Border::Sizable)
      : Form(
            toolkit, name,
            {.Caption = name.c_str(), .Width = 3000, .Height = 1500, .Left = -1, .Frame = border}) {
  }

  ImageList images{*this, "images", 2};
  Menu file{*this, "file", "&File"};
  Menu open{file, "open", "&Open"};
  Menu line{file, "line", "-"};
  Menu tray{*this, "tray", "Tray", false};
  Menu leave{tray, "leave", "E&xit"};
  Frame frame{*this, "frame", {.Caption = "Frame", .At = {150, 300, 1500, 600}}};
  CommandButton inside{frame, "inside", {.Caption = "Inside", .At = {15, 30, 300, 300}}};
  TextBox text{*this, "text", {}};
  TextBox fixed{*this, "fixed", {}, {.ReadOnly = true}};
  CheckBox check{*this, "check", {}};
  ComboBox combo{*this, "combo", {}, ComboStyle::Editable, {"Custom", "Dial Up"}};
  ComboBox sound{*this, "sound", {}, ComboStyle::PickOnly, {"alert", "click"}};
  Label label{*this, "label", {.Caption = "Label"}};
  Image image{*this, "image", {}};
  Timer timer{*this, "timer", 2000};
  ListView list{*this, "list", {}, {.Columns = {{"Name", 900}}, .CheckBoxes = true}};
  Toolbar bar{*this, "bar", {}, images, {{"One", 1}, {"", 0}, {"Three", 2}}};
  Surface link{*this, "link", {.At = {0, 0, 900, 300}}};
  Label plainLink{*this, "plainLink", {.Caption = "Follow", .Drawn = Look::Link}};
  TextBox lines{*this, "lines", {}, {.MultiLine = true}};
  CommandButton ok{*this, "ok", {.Caption = "OK", .Default = true}};
  CommandButton cancel{*this, "cancel", {.Caption = "Cancel", .Cancel = true}};
};

class Headless : public testing::Test {
 protected:
  Event<>::Handler Note(const std::string& what) {
    return [this, what] { notes.push_back(what); };
  }
  memory::Message Sent(Handle window, std::uint32_t message, std::uintptr_t second = 0) const {
    return {window, message, 0, second, nullptr};
  }

  memory::Desktop desktop;
  memory::Clock clock;
  Toolkit toolkit{desktop, clock, OwnProcess};
  User user{toolkit};
  SampleForm form{toolkit};
  SampleForm panel{toolkit, "FrmFramePanel", Border::Panel};
  std::vector<std::string> notes;
};

}  // namespace vantrel::forms::headless

#endif  // VANTREL_TESTS_UNIT_FORMS_HEADLESS_SAMPLE_H_
