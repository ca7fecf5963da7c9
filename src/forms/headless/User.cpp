#include "forms/headless/User.h"

#include <algorithm>

#include "forms/Keys.h"
#include "forms/UserControl.h"

namespace vantrel::forms::headless {
namespace {

// The way from a menu of the bar down to the entry is open.
bool Leads(const std::vector<Menu*>& menus, const Menu& entry) {
  return std::any_of(menus.begin(), menus.end(), [&entry](const Menu* menu) {
    if (!menu->Visible() || !menu->Enabled()) return false;
    return menu == &entry || Leads(menu->Entries(), entry);
  });
}

}  // namespace

bool User::CanReach(const Form& form) const {
  if (toolkit_.Ending() || !form.Loaded() || !form.Shown()) return false;
  const Form* outermost = &form;
  while (outermost->Host() != nullptr) outermost = outermost->Host();
  if (outermost->WindowState() == WindowState::Minimized) return false;
  return toolkit_.ModalForm() == nullptr || toolkit_.ModalForm() == outermost;
}

bool User::CanReach(const Control& control) const {
  return control.Reachable() && CanReach(control.Owner());
}

bool User::Focus(Control& control) {
  At([&] { control.Owner().Outermost().BecomesActive(); });
  bool moved = !control.IsTabStop();
  if (!moved) At([&] { moved = toolkit_.UserMovesFocus(&control); });
  // A handler on the way may have closed or covered what was aimed at.
  return moved && CanReach(control);
}

bool User::Click(Control& control) {
  if (!CanReach(control) || !Focus(control)) return false;
  auto* surface = dynamic_cast<UserControl*>(&control);
  Control& pressed = surface != nullptr && surface->Face() != nullptr ? *surface->Face() : control;
  if (!pressed.Enabled()) return false;
  At([&] { pressed.MouseDown(1, 0, 0, 0); });
  At([&] { pressed.MouseUp(1, 0, 0, 0); });
  At([&] { control.UserClick(); });
  return true;
}

bool User::PointAt(Control& control, float x, float y) {
  if (!CanReach(control)) return false;
  auto* surface = dynamic_cast<UserControl*>(&control);
  Control& under = surface != nullptr && surface->Face() != nullptr ? *surface->Face() : control;
  At([&] { under.MouseMove(0, 0, x, y); });
  return true;
}

bool User::Type(Control& control, const std::string& text) {
  const auto* box = dynamic_cast<TextBox*>(&control);
  const auto* combo = dynamic_cast<ComboBox*>(&control);
  const bool editable = (box != nullptr && !box->ReadOnly()) ||
                        (combo != nullptr && combo->Style() == ComboStyle::Editable);
  if (!editable || !CanReach(control) || !Focus(control)) return false;
  At([&] { control.AssignWindowText(text); });
  return true;
}

bool User::Choose(ComboBox& combo, const std::string& entry) {
  int index = 0;
  while (index < combo.ListCount() && combo.List(index) != entry) ++index;
  if (index == combo.ListCount() || !CanReach(combo) || !Focus(combo)) return false;
  At([&] { combo.SetListIndex(index); });
  return true;
}

bool User::Click(ListView& list, int row) {
  if (row < 1 || row > list.Count() || !CanReach(list) || !Focus(list)) return false;
  At([&] { list.UserSelects(row); });
  return true;
}

bool User::Check(ListView& list, int row, bool checked) {
  if (!list.CheckBoxes() || row < 1 || row > list.Count()) return false;
  if (!CanReach(list) || !Focus(list)) return false;
  At([&] { list.UserChecks(row, checked); });
  return true;
}

bool User::Press(Toolbar& toolbar, int button) {
  const auto& buttons = toolbar.Buttons();
  if (button < 1 || button > static_cast<int>(buttons.size()) || !CanReach(toolbar)) return false;
  if (buttons[static_cast<std::size_t>(button) - 1].IsSeparator()) return false;
  At([&] { toolbar.Owner().BecomesActive(); });
  At([&] { toolbar.UserPresses(button); });
  return true;
}

bool User::Select(Menu& entry) {
  if (!CanReach(entry.Owner()) || entry.IsSeparator()) return false;
  if (!Leads(entry.Owner().Menus(), entry)) return false;
  At([&] { entry.Owner().BecomesActive(); });
  At([&] { entry.UserClick(); });
  return true;
}

Form* User::ActiveWindow() const {
  if (toolkit_.ModalForm() != nullptr) return toolkit_.ModalForm();
  return toolkit_.ActiveForm() == nullptr ? nullptr : &toolkit_.ActiveForm()->Outermost();
}

bool User::Tab(bool backwards) {
  const Form* window = ActiveWindow();
  if (window == nullptr || !CanReach(*window)) return false;
  Control* next = window->NextTabStop(toolkit_.Focus(), backwards);
  bool moved = false;
  if (next != nullptr) At([&] { moved = toolkit_.UserMovesFocus(next); });
  return moved;
}

// What has the focus, unless that lies behind the active window.
Control* User::Focused() const {
  Control* focus = toolkit_.Focus();
  return focus != nullptr && &focus->Owner().Outermost() == ActiveWindow() ? focus : nullptr;
}

bool User::Enter() {
  const Form* window = ActiveWindow();
  if (window == nullptr) return false;
  Control* focused = Focused();
  if (KeepsEnter(focused)) return Follow(*focused);
  if (auto* button = dynamic_cast<CommandButton*>(focused)) return Click(*button);
  CommandButton* button = DefaultButton(*window);
  return button != nullptr && Click(*button);
}

bool User::Space() {
  Control* focused = Focused();
  if (focused == nullptr) return false;
  if (auto* list = dynamic_cast<ListView*>(focused)) {
    const int row = list->SelectedIndex();
    return row > 0 && Check(*list, row, !list->Item(row).Checked());
  }
  const bool pressed = dynamic_cast<CommandButton*>(focused) != nullptr ||
                       dynamic_cast<CheckBox*>(focused) != nullptr ||
                       dynamic_cast<OptionButton*>(focused) != nullptr;
  return pressed ? Click(*focused) : Follow(*focused);
}

// The key on a link, which is no press of the mouse.
bool User::Follow(Control& link) {
  auto* surface = dynamic_cast<UserControl*>(&link);
  const bool isLink = surface != nullptr || dynamic_cast<Label*>(&link) != nullptr;
  if (!isLink || !CanReach(link)) return false;
  At([&] { surface != nullptr ? surface->KeyPressed() : link.UserClick(); });
  return true;
}

bool User::Escape() {
  Form* window = ActiveWindow();
  if (window == nullptr) return false;
  if (CommandButton* button = CancelButton(*window)) return Click(*button);
  return ClosesOnEscape(*window) && Close(*window);
}

bool User::Close(Form& form) {
  if (!CanReach(form) || form.Designed().Frame == Border::Panel) return false;
  toolkit_.UserCloses(form);
  return true;
}

}  // namespace vantrel::forms::headless
