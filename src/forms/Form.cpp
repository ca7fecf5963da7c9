#include "forms/Form.h"

#include <algorithm>
#include <utility>

#include "forms/Bars.h"
#include "forms/Keys.h"
#include "text/ScopedFlag.h"
#include "text/Strings.h"

namespace vantrel::forms {
namespace {

bool IsNamed(const Control& control, const std::string& name) {
  const std::string qualified = control.QualifiedName();
  return text::EqualIgnoringCase(qualified.substr(control.Owner().Name().size() + 1), name);
}

void AppendTabStops(const Form& form, std::vector<Control*>& stops) {
  for (Control* control : form.Controls()) {
    if (!control->IsTabStop() || !control->Reachable() || !StandsForGroup(*control)) continue;
    stops.push_back(control);
  }
  for (const Form* hosted : form.Tools().LoadedForms()) {
    if (hosted->Host() == &form) AppendTabStops(*hosted, stops);
  }
}

}  // namespace

Form::Form(Toolkit& toolkit, std::string name, const FormDesign& design)
    : toolkit_(toolkit),
      name_(std::move(name)),
      design_(design),
      caption_(design.Caption),
      place_{design.Left, design.Top, design.Width, design.Height},
      backColor_(design.BackColor) {}

Form::~Form() {
  toolkit_.LeaveGone(*this);
  std::erase(toolkit_.loadedForms_, this);
  LetHostedGo();
}

void Form::LetHostedGo() {
  for (Form* other : toolkit_.loadedForms_) {
    if (other->host_ == this) other->host_ = nullptr;
  }
}

Menu* Form::FindMenu(int identifier) const {
  const auto menu =
      std::find_if(allMenus_.begin(), allMenus_.end(),
                   [identifier](const Menu* entry) { return entry->Identifier() == identifier; });
  return menu == allMenus_.end() ? nullptr : *menu;
}

Control* Form::FindControl(const std::string& name) const {
  const auto control =
      std::find_if(controls_.begin(), controls_.end(),
                   [&name](const Control* candidate) { return IsNamed(*candidate, name); });
  return control == controls_.end() ? nullptr : *control;
}

std::vector<Control*> Form::TabOrder() const {
  std::vector<Control*> stops;
  AppendTabStops(*this, stops);
  return stops;
}

Control* Form::NextTabStop(const Control* from, bool backwards) const {
  return NextStop(TabOrder(), from, backwards);
}

void Form::EnsureInitialized() {
  if (!std::exchange(initialized_, true)) Initialize();
}

void Form::EnsureLoaded() {
  EnsureInitialized();
  // Initialize may have touched the window and so loaded it already.
  if (std::exchange(loaded_, true)) return;
  try {
    peer_ = toolkit_.MakeWindow(*this);
  } catch (...) {
    loaded_ = false;
    throw;
  }
  toolkit_.loadedForms_.push_back(this);
  Load();
}

void Form::Unload(int mode) {
  if (!loaded_ || unloading_) return;
  bool cancel = false;
  QueryUnload(cancel, mode);
  if (cancel || !loaded_ || unloading_) return;
  const text::ScopedFlag unloading(unloading_);
  Unloading(cancel);
  if (!cancel) Destroy();
}

// The window counts as loaded until its peers are gone: what their going raises must not make it
// anew.
void Form::Destroy() {
  toolkit_.LeaveGone(*this);
  visible_ = false;
  for (Control* control : controls_) control->DetachPeer();
  peer_.reset();
  std::erase(toolkit_.loadedForms_, this);
  LetHostedGo();
  host_ = nullptr;
  loaded_ = false;
}

void Form::Show() {
  EnsureLoaded();
  SetVisible(true);
  if (peer_ && visible_) peer_->Activate();
  BecomesActive();
}

void Form::ShowModal() {
  const text::ScopedFlag modal(modal_);
  Show();
  if (peer_ && visible_) {
    const Toolkit::Pumping pumping(toolkit_);
    peer_->RunModal();
  }
  toolkit_.ThrowIfEnding();
}

void Form::Hide() {
  if (loaded_) SetVisible(false);
}

void Form::SetVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  // Before the screen moves its own focus, as the user would: hiding by code asks no control.
  if (!visible_) toolkit_.LeaveHidden(*this);
  Changed(Aspect::Visible);
}

bool Form::Shown() const { return visible_ && (host_ == nullptr || host_->Shown()); }

Form& Form::Outermost() { return host_ == nullptr ? *this : host_->Outermost(); }

void Form::SetCaption(const std::string& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  Changed(Aspect::Text);
}

void Form::SetWidth(int twips) { SetSize(twips, place_.Height); }

void Form::SetHeight(int twips) { SetSize(place_.Width, twips); }

void Form::SetSize(int width, int height) {
  if (place_.Width == width && place_.Height == height) return;
  place_.Width = width;
  place_.Height = height;
  Changed(Aspect::Place);
  RaiseResize();
}

void Form::SetWindowState(forms::WindowState state) {
  if (state_ == state) return;
  state_ = state;
  // The screen's side may report the new size from within; that is this change's one Resize.
  const unsigned before = resizes_;
  Changed(Aspect::State);
  if (resizes_ == before) RaiseResize();
}

void Form::RaiseResize() {
  ++resizes_;
  Resize();
}

void Form::SetMousePointer(int pointer) {
  if (mousePointer_ == pointer) return;
  mousePointer_ = pointer;
  Changed(Aspect::Pointer);
}

Handle Form::hWnd() const { return peer_ ? peer_->WindowHandle() : 0; }

Handle Form::IconHandle() const { return peer_ ? peer_->IconHandle() : 0; }

void Form::PopupMenu(Menu& menu) {
  if (peer_) {
    const Toolkit::Pumping pumping(toolkit_);
    peer_->PopupMenu(menu);
  }
  toolkit_.ThrowIfEnding();
}

void Form::UserResizes(int width, int height, forms::WindowState state) {
  const bool sized =
      state != forms::WindowState::Minimized && (place_.Width != width || place_.Height != height);
  if (!sized && state_ == state) return;
  state_ = state;
  if (sized) {
    place_.Width = width;
    place_.Height = height;
  }
  RaiseResize();
}

void Form::UserShows(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  if (!visible_) toolkit_.LeaveHidden(*this);
}

void Form::BecomesActive() {
  if (toolkit_.activeForm_ == this || !loaded_ || !Shown()) return;
  // What is shown behind a modal dialog leaves that active.
  const bool behind = !Outermost().modal_ &&
                      std::any_of(toolkit_.loadedForms_.begin(), toolkit_.loadedForms_.end(),
                                  [](const Form* form) { return form->modal_ && form->visible_; });
  if (behind) return;
  toolkit_.activeForm_ = this;
  Activate();
}

void Form::Changed(Aspect aspect) {
  if (peer_) peer_->Changed(aspect);
}

}  // namespace vantrel::forms
