#include "forms/win32/WindowMaker.h"

#include <memory>

#include "forms/ControlVisitor.h"
#include "forms/win32/ButtonWindows.h"
#include "forms/win32/ChartWindow.h"
#include "forms/win32/ComboBoxWindow.h"
#include "forms/win32/FileListWindow.h"
#include "forms/win32/FormWindow.h"
#include "forms/win32/FrameWindows.h"
#include "forms/win32/HandleOf.h"
#include "forms/win32/ImageWindow.h"
#include "forms/win32/LabelWindow.h"
#include "forms/win32/ListViewWindow.h"
#include "forms/win32/ProgressWindow.h"
#include "forms/win32/StatusBarWindow.h"
#include "forms/win32/TextBoxWindow.h"
#include "forms/win32/ToolbarWindow.h"
#include "forms/win32/UserControlWindow.h"

namespace vantrel::forms::win32 {
namespace {

class Maker final : public ControlVisitor {
 public:
  Maker(WindowSystem& system, HWND parent, int identifier)
      : system_(system), parent_(parent), identifier_(identifier) {}

  void Visit(Chart& control) override { Make<ChartWindow>(control); }
  void Visit(CheckBox& control) override { Make<CheckBoxWindow>(control); }
  void Visit(ComboBox& control) override { Make<ComboBoxWindow>(control); }
  void Visit(CommandButton& control) override { Make<CommandButtonWindow>(control); }
  void Visit(FileListBox& control) override { Make<FileListWindow>(control); }
  void Visit(Frame& control) override { Make<FrameWindow>(control); }
  void Visit(Image& control) override { Make<ImageWindow>(control); }
  void Visit(Label& control) override {
    if (IsFace(control)) {
      control.AttachPeer(MakeFacePeer(system_, control));
    } else {
      Make<LabelWindow>(control);
    }
  }
  void Visit(ListView& control) override { Make<ListViewWindow>(control); }
  void Visit(OptionButton& control) override { Make<OptionButtonWindow>(control); }
  void Visit(PictureBox& control) override { Make<PictureBoxWindow>(control); }
  void Visit(ProgressBar& control) override { Make<ProgressWindow>(control); }
  void Visit(StatusBar& control) override { Make<StatusBarWindow>(control); }
  void Visit(TextBox& control) override { Make<TextBoxWindow>(control); }
  // Has no window.
  void Visit(Timer&) override {}
  void Visit(Toolbar& control) override { Make<ToolbarWindow>(control); }
  void Visit(UserControl& control) override { Make<UserControlWindow>(control); }

 private:
  template <class Kind, class Model>
  void Make(Model& control) {
    auto window = std::make_shared<Kind>(system_, control);
    window->CreateUnder(parent_, identifier_);
    control.AttachPeer(MakePeer(window));
    window->Settle();
  }

  WindowSystem& system_;
  HWND parent_;
  int identifier_;
};

}  // namespace

void MakeControlWindow(WindowSystem& system, Control& control, HWND form, int identifier) {
  const Control* container = control.Container();
  const HWND parent = container != nullptr ? HandleOf(*container) : form;
  Maker maker(system, parent, identifier);
  control.Accept(maker);
}

}  // namespace vantrel::forms::win32
