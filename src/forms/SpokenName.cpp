#include "forms/SpokenName.h"

#include <algorithm>

#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/UserControl.h"
#include "text/Strings.h"

namespace vantrel::forms {
namespace {

// What shows the control's text and tool tip: itself, or its face.
Control& Shown(Control& control) {
  auto* surface = dynamic_cast<UserControl*>(&control);
  Control* face = surface != nullptr ? surface->Face() : nullptr;
  return face != nullptr ? *face : control;
}

std::string CaptionOf(Control& control) {
  return dynamic_cast<CaptionedControl*>(&control) != nullptr ? control.WindowText() : "";
}

const std::string& TipOf(Control& control) {
  const std::string& tip = Shown(control).ToolTipText();
  return tip.empty() ? control.ToolTipText() : tip;
}

std::string LabelBefore(const Control& control) {
  const auto& all = control.Owner().Controls();
  const auto at = std::find(all.begin(), all.end(), &control);
  if (at == all.begin() || at == all.end()) return "";
  const auto* before = dynamic_cast<const Label*>(*(at - 1));
  const bool labels = before != nullptr && before->Container() == control.Container() &&
                      before->Visible() && !before->IsTabStop();
  return labels ? before->Caption() : "";
}

std::string CaptionAround(const Control& control) {
  for (Control* around = control.Container(); around != nullptr; around = around->Container()) {
    if (std::string caption = CaptionOf(*around); !caption.empty()) return caption;
  }
  return control.Owner().Caption();
}

// The name by itself, without a look at the others of the window.
std::string OwnName(Control& control) {
  const std::string caption = CaptionShown(control);
  const std::string& tip = TipOf(control);
  if (IsSpokenLink(control) && tip.size() > caption.size() && tip.starts_with(caption + ' ')) {
    return tip;
  }
  for (const std::string& name : {caption, LabelBefore(control)}) {
    if (!name.empty()) return WithoutMarks(name);
  }
  return tip.empty() ? WithoutMarks(CaptionAround(control)) : tip;
}

bool IsNameOfAnother(const std::string& name, const Control& control) {
  const auto& all = control.Owner().Controls();
  return std::any_of(all.begin(), all.end(), [&](Control* other) {
    return other != &control && other->IsTabStop() && OwnName(*other) == name;
  });
}

}  // namespace

std::string CaptionShown(Control& control) { return CaptionOf(Shown(control)); }

std::string WithoutMarks(const std::string& caption) {
  std::string text;
  for (std::size_t at = 0; at < caption.size(); ++at) {
    if (caption[at] == '&' && ++at == caption.size()) break;
    text += caption[at];
  }
  return text;
}

bool IsSpokenLink(Control& control) {
  return dynamic_cast<UserControl*>(&control) != nullptr || control.Drawn() == Look::Link;
}

std::string SpokenName(Control& control) {
  std::string name = OwnName(control);
  if (!IsNameOfAnother(name, control)) return name;
  return name + ", " + text::Trim(WithoutMarks(CaptionAround(control)));
}

std::string SpokenDescription(Control& control) {
  const std::string& tip = TipOf(control);
  return tip == SpokenName(control) ? "" : tip;
}

}  // namespace vantrel::forms
