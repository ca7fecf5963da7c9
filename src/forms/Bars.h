// The bars of a main window: menus, toolbar and status bar.
#ifndef VANTREL_FORMS_BARS_H_
#define VANTREL_FORMS_BARS_H_

#include <string>
#include <vector>

#include "forms/Control.h"
#include "forms/ImageList.h"

namespace vantrel::forms {

// A menu or an entry of one; a caption of "-" is a separator. Entries hang under their menu in the
// order of their making. Every entry has an identifier that is fixed by that order.
class Menu {
 public:
  Menu(Form& form, std::string name, std::string caption, bool visible = true);
  Menu(Menu& parent, std::string name, std::string caption, bool visible = true);
  Menu(const Menu&) = delete;
  Menu& operator=(const Menu&) = delete;

  static constexpr int FirstIdentifier = 1000;

  const std::string& Name() const { return name_; }
  const std::string& Caption() const { return caption_; }
  bool IsSeparator() const { return caption_ == "-"; }
  int Identifier() const { return identifier_; }
  Form& Owner() const { return form_; }
  const std::vector<Menu*>& Entries() const { return entries_; }
  bool Visible() const { return visible_; }
  void SetVisible(bool visible) { visible_ = visible; }
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled) { enabled_ = enabled; }

  void UserClick();

  Event<> Click;

 private:
  Form& form_;
  std::string name_;
  std::string caption_;
  bool visible_;
  bool enabled_ = true;
  int identifier_;
  std::vector<Menu*> entries_;
};

// A button of a toolbar; one without a picture number is a separator.
struct ToolButton {
  std::string ToolTipText;
  int Picture = 0;

  bool IsSeparator() const { return Picture == 0; }
};

class Toolbar : public Control {
 public:
  Toolbar(Form& form, std::string name, const Design& design, const ImageList& pictures,
          std::vector<ToolButton> buttons);
  void Accept(ControlVisitor& visitor) override;

  const ImageList& Pictures() const { return pictures_; }
  const std::vector<ToolButton>& Buttons() const { return buttons_; }

  // The 1-based button is pressed; separators and numbers outside raise nothing.
  void UserPresses(int index);

  Event<int> ButtonClick;

 private:
  const ImageList& pictures_;
  std::vector<ToolButton> buttons_;
};

enum class StatusPanelKind { Text, Date, Time };

struct StatusPanel {
  StatusPanelKind Kind = StatusPanelKind::Text;
  std::string Text;
  int Width = 0;  // in twips; 0 takes what is left
};

class StatusBar : public Control {
 public:
  StatusBar(Form& form, std::string name, const Design& design, std::vector<StatusPanel> panels);
  void Accept(ControlVisitor& visitor) override;

  const std::vector<StatusPanel>& Panels() const { return panels_; }
  // 1-based.
  void SetPanelText(int index, const std::string& text);

 private:
  std::vector<StatusPanel> panels_;
};

}  // namespace vantrel::forms

#endif  // VANTREL_FORMS_BARS_H_
