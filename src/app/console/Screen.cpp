#include "app/console/Screen.h"

#include <algorithm>

#include "app/console/ControlLine.h"
#include "app/console/Words.h"
#include "forms/Bars.h"
#include "forms/Controls.h"
#include "forms/UserControl.h"

namespace vantrel::console {
namespace {

using forms::headless::Toolkit;

constexpr std::size_t KindWidth = 9;

std::string Indent(int depth) { return std::string(static_cast<std::size_t>(depth) * 2, ' '); }

// A part of a control that is made of others is told by that control.
bool IsPart(const forms::Control& control) {
  return dynamic_cast<const forms::UserControl*>(control.Container()) != nullptr;
}

class Writer {
 public:
  Writer(const Toolkit& toolkit, Detail detail) : toolkit_(toolkit), detail_(detail) {}

  std::string text;

  void Window(const forms::Form& form, int depth) {
    Line(depth, form.Name() + ' ' + Quoted(form.Caption()) + WindowState(form));
    for (const forms::Menu* menu : form.Menus()) TopMenu(*menu, depth + 1);
    Inside(form, nullptr, depth + 1);
    HostedPanels(form, depth + 1);
  }

  void Control(forms::Control& control, int depth) {
    ControlLine line = Describe(control, toolkit_.Clock().LocalNow());
    if (!Told(control, line)) return;
    std::string kind = line.Kind;
    kind.resize(std::max(kind.size() + 1, KindWidth), ' ');
    Line(depth, kind + NameIn(control) + (line.Text.empty() ? "" : " ") + line.Text +
                    ControlState(control));
    for (const std::string& below : line.Below) Line(depth + 1, below);
    Inside(control.Owner(), &control, depth + 1);
  }

 private:
  void Line(int depth, const std::string& line) { text += Indent(depth) + line + '\n'; }

  bool Everything() const { return detail_ == Detail::Everything; }

  bool Told(const forms::Control& control, const ControlLine& line) const {
    if (IsPart(control)) return false;
    return Everything() || (control.Visible() && !line.Pictorial);
  }

  static std::string NameIn(const forms::Control& control) {
    return control.QualifiedName().substr(control.Owner().Name().size() + 1);
  }

  static std::string ControlState(const forms::Control& control) {
    return std::string(control.Enabled() ? "" : " disabled") + (control.Visible() ? "" : " hidden");
  }

  static std::string WindowState(const forms::Form& form) {
    std::string state;
    if (form.Designed().Frame == forms::Border::Sizable) {
      state += ' ' + std::to_string(form.Width()) + " x " + std::to_string(form.Height());
    }
    if (form.WindowState() == forms::WindowState::Minimized) state += " minimized";
    if (form.WindowState() == forms::WindowState::Maximized) state += " maximized";
    return state + (form.Visible() ? "" : " hidden");
  }

  void Inside(const forms::Form& form, const forms::Control* container, int depth) {
    for (forms::Control* control : form.Controls()) {
      if (control->Container() == container) Control(*control, depth);
    }
  }

  std::string Entry(const forms::Menu& menu) const {
    std::string entry = Printable(WithoutMark(menu.Caption()));
    if (Everything()) entry += " (" + menu.Name() + ')';
    if (!menu.Enabled()) entry += " disabled";
    if (!menu.Visible()) entry += " hidden";
    return entry;
  }

  void TopMenu(const forms::Menu& menu, int depth) {
    if (!menu.Visible() && !Everything()) return;
    std::string line = "menu     " + Entry(menu) + ':';
    bool first = true;
    for (const forms::Menu* entry : menu.Entries()) {
      if (entry->IsSeparator() || (!entry->Visible() && !Everything())) continue;
      line += (first ? " " : ", ") + Entry(*entry);
      first = false;
    }
    Line(depth, line);
  }

  void HostedPanels(const forms::Form& form, int depth) {
    const std::vector<forms::Form*> hosted = HostedIn(toolkit_, form);
    if (hosted.empty()) return;
    Window(*hosted.front(), depth);
    for (std::size_t i = 1; i < hosted.size(); ++i) Line(depth, "behind it " + hosted[i]->Name());
  }

  const Toolkit& toolkit_;
  Detail detail_;
};

// The title of a control made of others is that of its face.
const std::string& FaceText(forms::Control& control) {
  auto* surface = dynamic_cast<forms::UserControl*>(&control);
  if (surface != nullptr && surface->Face() != nullptr) return surface->Face()->WindowText();
  return control.WindowText();
}

}  // namespace

std::vector<forms::Form*> WindowsOnScreen(const Toolkit& toolkit) {
  std::vector<forms::Form*> windows;
  for (forms::Form* form : toolkit.LoadedForms()) {
    if (form->Host() == nullptr && form->Visible()) windows.push_back(form);
  }
  return windows;
}

std::vector<forms::Form*> HostedIn(const Toolkit& toolkit, const forms::Form& form) {
  std::vector<forms::Form*> hosted;
  for (const forms::Handle child : toolkit.Desktop().Children(form.hWnd())) {
    for (forms::Form* each : toolkit.LoadedForms()) {
      if (each->hWnd() == child && each->Host() == &form && each->Visible()) hosted.push_back(each);
    }
  }
  return hosted;
}

std::string ScreenLine(const Toolkit& toolkit) {
  std::string line;
  for (const forms::Form* form : WindowsOnScreen(toolkit)) {
    line += (line.empty() ? "" : ", ") + form->Name();
    const std::vector<forms::Form*> hosted = HostedIn(toolkit, *form);
    if (form->WindowState() == forms::WindowState::Minimized) line += " minimized";
    if (!hosted.empty()) line += " with " + hosted.front()->Name();
    if (toolkit.ModalForm() == form) line += " (modal)";
  }
  return line.empty() ? "no window" : line;
}

std::string WindowText(const Toolkit& toolkit, const forms::Form& form, Detail detail) {
  Writer writer(toolkit, detail);
  writer.Window(form, 0);
  return writer.text;
}

std::string ControlText(const Toolkit& toolkit, forms::Control& control, Detail detail) {
  Writer writer(toolkit, detail);
  writer.Control(control, 0);
  return writer.text;
}

std::string CaptionOf(forms::Control& control) {
  const bool captioned = dynamic_cast<forms::CaptionedControl*>(&control) != nullptr ||
                         dynamic_cast<forms::UserControl*>(&control) != nullptr;
  return captioned ? WithoutMark(FaceText(control)) : std::string();
}

std::string WithoutMark(const std::string& caption) {
  std::string plain;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && i + 1 < caption.size()) ++i;
    plain += caption[i];
  }
  return plain;
}

}  // namespace vantrel::console
