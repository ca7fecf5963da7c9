#include "app/console/Find.h"

#include <functional>
#include <vector>

#include "app/console/Names.h"
#include "app/console/Screen.h"
#include "app/console/Words.h"
#include "forms/UserControl.h"
#include "text/Strings.h"

namespace vantrel::console {
namespace {

using forms::Control;
using forms::headless::Toolkit;
using Fits = std::function<bool(Control&)>;

std::string NameIn(const Control& control) {
  return control.QualifiedName().substr(control.Owner().Name().size() + 1);
}

bool BeginsWith(const std::string& name, const std::string& beginning) {
  return !beginning.empty() &&
         text::EqualIgnoringCase(std::string_view(name).substr(0, beginning.size()), beginning);
}

std::vector<Control*> AllControls(const Toolkit& toolkit) {
  std::vector<Control*> all;
  for (const forms::Form* form : toolkit.LoadedForms()) {
    for (Control* control : form->Controls()) {
      if (dynamic_cast<forms::UserControl*>(control->Container()) == nullptr) {
        all.push_back(control);
      }
    }
  }
  return all;
}

std::vector<Control*> Those(const std::vector<Control*>& all, const Fits& fit) {
  std::vector<Control*> found;
  for (Control* control : all) {
    if (fit(*control)) found.push_back(control);
  }
  return found;
}

bool Named(const Control& control, const std::string& word) {
  return text::EqualIgnoringCase(NameIn(control), word) ||
         text::EqualIgnoringCase(control.QualifiedName(), word);
}

bool Captioned(Control& control, const std::string& word) {
  const std::string caption = text::Trim(CaptionOf(control));
  return !caption.empty() && text::EqualIgnoringCase(caption, text::Trim(word));
}

bool Begun(const Control& control, const std::string& word) {
  return BeginsWith(NameIn(control), word) || BeginsWith(control.QualifiedName(), word);
}

// The panel in front of the others of its window.
bool InFront(const Toolkit& toolkit, const Control& control) {
  const forms::Form& form = control.Owner();
  if (form.Host() == nullptr) return true;
  const std::vector<forms::Form*> hosted = HostedIn(toolkit, *form.Host());
  return !hosted.empty() && hosted.front() == &form;
}

// Of several, those that show; of several of those, those in front.
std::vector<Control*> Narrowed(const Toolkit& toolkit, std::vector<Control*> found) {
  for (const Fits& fit :
       {Fits([](Control& control) { return control.Shown(); }),
        Fits([&toolkit](Control& control) { return InFront(toolkit, control); })}) {
    if (found.size() < 2) break;
    const std::vector<Control*> narrower = Those(found, fit);
    if (!narrower.empty()) found = narrower;
  }
  return found;
}

std::vector<std::string> NamesOf(const std::vector<Control*>& controls, bool qualified) {
  std::vector<std::string> names;
  names.reserve(controls.size());
  for (Control* control : controls) {
    names.push_back(qualified ? control->QualifiedName() : NameIn(*control));
  }
  return names;
}

[[noreturn]] void RefuseSeveral(const std::string& word, const std::vector<Control*>& found) {
  std::string text = "more than one control is " + Quoted(word.substr(0, 40)) + ":";
  for (std::size_t i = 0; i < found.size() && i < 6; ++i) {
    text += (i == 0 ? " " : ", ") + found[i]->QualifiedName();
  }
  throw CommandError(text + (found.size() > 6 ? " ..." : ""));
}

[[noreturn]] void RefuseNone(const std::string& word, const std::vector<Control*>& all) {
  std::vector<std::string> names = NamesOf(all, word.find('.') != std::string::npos);
  for (Control* control : all) {
    if (control->Shown() && !CaptionOf(*control).empty()) names.push_back(CaptionOf(*control));
  }
  throw CommandError("no control " + Quoted(word.substr(0, 40)) + Suggestion(word, names));
}

std::string PlainCaption(const forms::Menu& menu) { return WithoutMark(menu.Caption()); }

}  // namespace

forms::Form& FindWindow(const Toolkit& toolkit, const std::string& word) {
  std::vector<std::string> names;
  for (forms::Form* form : toolkit.LoadedForms()) {
    if (form->Visible() && text::EqualIgnoringCase(form->Caption(), word)) return *form;
    names.push_back(form->Name());
  }
  return *toolkit.LoadedForms()[PickName("window", word, names)];
}

Control& FindControl(const Toolkit& toolkit, const std::string& word) {
  const std::vector<Control*> all = AllControls(toolkit);
  const std::vector<Fits> ways{
      [&word](Control& control) { return Named(control, word); },
      [&word](Control& control) { return control.Shown() && Captioned(control, word); },
      [&word](Control& control) { return Begun(control, word); },
  };
  for (const Fits& way : ways) {
    const std::vector<Control*> found = Narrowed(toolkit, Those(all, way));
    if (found.size() == 1) return *found.front();
    if (!found.empty()) RefuseSeveral(word, found);
  }
  RefuseNone(word, all);
}

forms::Menu& FindEntry(const std::vector<forms::Menu*>& entries, const std::string& word) {
  std::vector<std::string> captions;
  std::vector<forms::Menu*> places;
  for (forms::Menu* entry : entries) {
    if (entry->IsSeparator()) continue;
    captions.push_back(PlainCaption(*entry));
    places.push_back(entry);
  }
  return *places[PickName("menu entry", word, captions)];
}

forms::Menu& FindMenu(const Toolkit& toolkit, const std::string& word) {
  std::vector<forms::Menu*> top;
  for (const forms::Form* form : toolkit.LoadedForms()) {
    for (forms::Menu* menu : form->AllMenus()) {
      if (text::EqualIgnoringCase(menu->Name(), word)) return *menu;
    }
    top.insert(top.end(), form->Menus().begin(), form->Menus().end());
  }
  forms::Menu* menu = nullptr;
  for (const std::string& part : text::Split(word, '/')) {
    menu = &FindEntry(menu == nullptr ? top : menu->Entries(), part);
  }
  if (menu == nullptr) throw CommandError("the menu entry is missing");
  return *menu;
}

void RefuseKind(const Control& control, const char* kind) {
  throw CommandError(control.QualifiedName() + " is no " + kind);
}

}  // namespace vantrel::console
