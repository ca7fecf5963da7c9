// What all controls have: a name, a place in a container, text, colours, and the events of mouse
// and focus. The kinds derive from it, one header each. A control is a live model: assigning what
// it already has does nothing; a change is shown by its peer and raises the kind's event.
#ifndef VANTREL_FORMS_CONTROL_H_
#define VANTREL_FORMS_CONTROL_H_

#include <memory>
#include <string>
#include <vector>

#include "forms/Design.h"
#include "forms/Event.h"
#include "forms/Peer.h"

namespace vantrel::forms {

class Control;
class ControlVisitor;
class Form;

// Buttons as 1 left, 2 right, 4 middle; shift as 1 shift, 2 control, 4 alt; in twips.
using MouseEvent = Event<int, int, float, float>;

// What a control is made in: a form, or a container on one.
struct Parent {
  Parent(forms::Form& form) : Form(form) {}  // NOLINT(google-explicit-constructor)
  Parent(Control& container);                // NOLINT(google-explicit-constructor)

  forms::Form& Form;
  Control* Container = nullptr;
};

class Control {
 public:
  Control(const Parent& parent, std::string name, const Design& design);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  virtual void Accept(ControlVisitor& visitor) = 0;

  // Whether Tab visits it.
  virtual bool IsTabStop() const { return false; }

  const std::string& Name() const { return name_; }
  int Index() const { return index_; }
  // "Window.control", with "(index)" behind it in an array: how it is found from outside.
  std::string QualifiedName() const;

  Form& Owner() const { return form_; }
  // nullptr directly on the form.
  Control* Container() const { return container_; }

  // Its caption or text, as the window manager sees it.
  const std::string& WindowText() const { return windowText_; }
  // The text assigned from outside, by a message to the control's window; the same as assigning
  // it from code.
  virtual void AssignWindowText(const std::string& text);

  bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  virtual bool Enabled() const { return enabled_; }
  virtual void SetEnabled(bool enabled);
  const std::string& ToolTipText() const { return toolTipText_; }
  void SetToolTipText(const std::string& text);

  const Place& At() const { return place_; }
  void Move(const Place& place);

  virtual Color BackColor() const { return backColor_; }
  virtual void SetBackColor(Color color);
  virtual Color ForeColor() const { return foreColor_; }
  virtual void SetForeColor(Color color);
  const Font& TextFont() const { return font_; }
  void SetTextFont(const Font& font);
  int MousePointer() const { return mousePointer_; }
  void SetMousePointer(int pointer);
  const std::string& Tag() const { return tag_; }
  void SetTag(const std::string& tag) { tag_ = tag; }

  Look Drawn() const { return drawn_; }
  const Anchors& Anchored() const { return anchors_; }
  Align Alignment() const { return alignment_; }
  void SetAlignment(Align alignment);

  // Whether it shows: it, its containers, its window and the windows around that are visible.
  bool Shown() const;
  // Whether the user can act on it: it shows, and it and its containers are enabled.
  bool Reachable() const;

  // Moves the focus here, without asking the control that has it. Taken in a hidden window too, but
  // not by a control that is itself, or in a container that is, invisible or disabled.
  void SetFocus();
  Handle WindowHandle() const;

  // The user's click, from the screen's side; disabled controls get none.
  virtual void UserClick();
  // The user wants to move the focus off the control; false keeps it there.
  virtual bool UserLeaves() { return true; }

  Event<> Click;
  MouseEvent MouseDown;
  MouseEvent MouseMove;
  MouseEvent MouseUp;
  Event<> GotFocus;
  Event<> LostFocus;

  // Toolkits only.
  void AttachPeer(std::unique_ptr<ControlPeer> peer) { peer_ = std::move(peer); }
  void DetachPeer() { peer_.reset(); }
  ControlPeer* Peer() const { return peer_.get(); }

 protected:
  void SetWindowText(const std::string& text);
  void Changed(Aspect aspect);

 private:
  void GiveFocusAway();
  bool TakesFocus() const;

  Form& form_;
  Control* container_ = nullptr;
  std::string name_;
  int index_;
  std::string windowText_;
  std::string toolTipText_;
  std::string tag_;
  Place place_;
  Font font_;
  Color backColor_ = palette::PanelBack;
  Color foreColor_ = palette::WindowText;
  Look drawn_;
  Align alignment_;
  Anchors anchors_;
  bool visible_;
  bool enabled_;
  int mousePointer_ = 0;
  std::unique_ptr<ControlPeer> peer_;
};

// Text shown that the user does not edit: Caption is the window text.
class CaptionedControl : public Control {
 public:
  using Control::Control;
  const std::string& Caption() const { return WindowText(); }
  void SetCaption(const std::string& caption) { AssignWindowText(caption); }
};

}  // namespace vantrel::forms

#endif  // VANTREL_FORMS_CONTROL_H_
