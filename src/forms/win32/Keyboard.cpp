#include "forms/win32/Keyboard.h"

#include <algorithm>
#include <array>
#include <vector>

#include "forms/Bars.h"
#include "forms/ComboBox.h"
#include "forms/Controls.h"
#include "forms/Keys.h"
#include "forms/win32/FormWindow.h"
#include "forms/win32/HandleOf.h"
#include "text/Strings.h"

namespace vantrel::forms::win32 {
namespace {

// What a key is pressed in.
struct KeyPlace {
  WindowSystem& System;
  FormWindow& Root;
  Control* Focused;  // nullptr where no control has the focus
};

Control* FocusedIn(const FormWindow& root, HWND focus) {
  const std::vector<Control*> stops = root.TabStops();
  const auto at = std::find_if(stops.begin(), stops.end(), [focus](const Control* stop) {
    return HandleOf(*stop) == focus || IsChild(HandleOf(*stop), focus);
  });
  return at == stops.end() ? nullptr : *at;
}

// The way a user takes: the control that is left may keep the focus.
void MoveTo(const KeyPlace& place, Control* to) {
  if (to == nullptr) return;
  bool free = true;
  place.System.Raise([&] { free = place.System.UserMovesFocus(to); });
  if (!free || place.System.Ending()) return;
  SetFocus(HandleOf(*to));
  // A field is entered with its text selected, ready to be typed over.
  if (dynamic_cast<TextBox*>(to) != nullptr) SendMessageA(HandleOf(*to), EM_SETSEL, 0, -1);
}

// The top panel's button, or the window's own, if it can be pressed now.
CommandButton* FindButton(const FormWindow& root, CommandButton* (*of)(const Form&)) {
  const auto panel = root.TopPanel();
  CommandButton* button = panel ? of(panel->Model()) : nullptr;
  if (button == nullptr || !button->Reachable()) button = of(root.Model());
  return button != nullptr && button->Reachable() ? button : nullptr;
}

bool Press(const KeyPlace& place, Control* control) {
  if (control == nullptr) return false;
  place.System.Raise([control] { control->UserClick(); });
  return true;
}

bool IsDropped(const Control* focused) {
  return dynamic_cast<const ComboBox*>(focused) != nullptr &&
         SendMessageA(HandleOf(*focused), CB_GETDROPPEDSTATE, 0, 0) != 0;
}

bool TabKey(const KeyPlace& place) {
  if (GetKeyState(VK_CONTROL) < 0 || GetKeyState(VK_MENU) < 0) return false;
  const bool backwards = GetKeyState(VK_SHIFT) < 0;
  Control* next = place.Root.NextStop(place.Focused, backwards);
  if (next != place.Focused) MoveTo(place, next);
  return true;
}

bool EnterKey(const KeyPlace& place) {
  if (KeepsEnter(place.Focused) || IsDropped(place.Focused)) return false;
  if (auto* button = dynamic_cast<CommandButton*>(place.Focused)) return Press(place, button);
  return Press(place, FindButton(place.Root, DefaultButton));
}

bool EscapeKey(const KeyPlace& place) {
  if (IsDropped(place.Focused)) return false;
  if (Press(place, FindButton(place.Root, CancelButton))) return true;
  if (!ClosesOnEscape(place.Root.Model())) return false;
  PostMessageA(place.Root.Handle(), WM_CLOSE, 0, 0);
  return true;
}

// Arrows go round the options of a group, and choose.
bool ArrowKey(const KeyPlace& place, bool backwards) {
  auto* option = dynamic_cast<OptionButton*>(place.Focused);
  if (option == nullptr) return false;
  std::vector<OptionButton*> group;
  for (Control* control : option->Owner().Controls()) {
    auto* other = dynamic_cast<OptionButton*>(control);
    if (other != nullptr && other->Container() == option->Container() && other->Reachable()) {
      group.push_back(other);
    }
  }
  if (backwards) std::reverse(group.begin(), group.end());
  const auto at = std::find(group.begin(), group.end(), option);
  OptionButton* next = at + 1 == group.end() ? group.front() : *(at + 1);
  place.System.Raise([next] { next->UserClick(); });
  if (!place.System.Ending() && next->Reachable()) MoveTo(place, next);
  return true;
}

bool KeyDown(const KeyPlace& place, WPARAM key) {
  switch (key) {
    case VK_TAB:
      return TabKey(place);
    case VK_RETURN:
      return EnterKey(place);
    case VK_ESCAPE:
      return EscapeKey(place);
    case VK_UP:
    case VK_LEFT:
      return ArrowKey(place, true);
    case VK_DOWN:
    case VK_RIGHT:
      return ArrowKey(place, false);
    default:
      return false;
  }
}

// What stands for a control when its access key is pressed: itself, or what it is the label of.
Control* AccessTarget(const FormWindow& root, Control& captioned) {
  const std::vector<Control*> stops = root.TabStops();
  if (std::find(stops.begin(), stops.end(), &captioned) != stops.end()) return &captioned;
  if (captioned.IsTabStop()) return nullptr;
  const auto& all = captioned.Owner().Controls();
  for (auto at = std::find(all.begin(), all.end(), &captioned); at != all.end(); ++at) {
    if (std::find(stops.begin(), stops.end(), *at) != stops.end()) return *at;
  }
  return nullptr;
}

bool IsPressedByAccessKey(const Control& control) {
  return dynamic_cast<const CommandButton*>(&control) != nullptr ||
         dynamic_cast<const CheckBox*>(&control) != nullptr ||
         dynamic_cast<const OptionButton*>(&control) != nullptr ||
         dynamic_cast<const Label*>(&control) != nullptr;
}

bool AccessKey(const KeyPlace& place, char key) {
  std::vector<Form*> forms{&place.Root.Model()};
  if (const auto panel = place.Root.TopPanel()) forms.push_back(&panel->Model());
  for (Form* form : forms) {
    for (Control* control : form->Controls()) {
      const bool hasCaption = dynamic_cast<const CaptionedControl*>(control) != nullptr;
      if (!hasCaption || !control->Reachable() || AccessKeyOf(control->WindowText()) != key) {
        continue;
      }
      Control* target = AccessTarget(place.Root, *control);
      if (target == nullptr) continue;
      MoveTo(place, target);
      if (target == control && IsPressedByAccessKey(*control)) Press(place, control);
      return true;
    }
  }
  return false;
}

}  // namespace

char AccessKeyOf(const std::string& caption) {
  for (std::size_t at = caption.find('&'); at != std::string::npos && at + 1 < caption.size();
       at = caption.find('&', at + 2)) {
    if (caption[at + 1] != '&') return text::LowerCase(caption.substr(at + 1, 1)).front();
  }
  return '\0';
}

bool HandleKey(WindowSystem& system, const MSG& message) {
  if (message.message != WM_KEYDOWN && message.message != WM_SYSCHAR) return false;
  const auto root = system.FindForm(GetAncestor(message.hwnd, GA_ROOT));
  if (root == nullptr) return false;
  const KeyPlace place{system, *root, FocusedIn(*root, message.hwnd)};
  if (message.message == WM_KEYDOWN) return KeyDown(place, message.wParam);
  return AccessKey(place,
                   text::LowerCase(std::string(1, static_cast<char>(message.wParam))).front());
}

}  // namespace vantrel::forms::win32
