// The program's own text link: one label on a surface, with one timer. It changes colour,
// underline and pointer while the mouse is over it, notices by polling when the mouse has left,
// and on a click opens its address, if it has one, before it raises Click. It plays no sound,
// whatever SoundOn and SoundID hold.
#ifndef VANTREL_CONTROLS_HYPERLINK_H_
#define VANTREL_CONTROLS_HYPERLINK_H_

#include <cstdint>
#include <set>
#include <string>

#include "controls/PropertyBag.h"
#include "forms/Controls.h"
#include "forms/UserControl.h"
#include "platform/Platform.h"

namespace vantrel::controls {

class HyperLink : public forms::UserControl {
 public:
  static constexpr const char* SampleAddress = "http://www.example.com/";
  static constexpr int PollInterval = 50;  // milliseconds

  // The tool tip and the place come from the design, all else from what is saved.
  HyperLink(const forms::Parent& parent, std::string name, const forms::Design& design,
            const PropertyBag& saved = {});

  // Whom to ask for the mouse and for the opening of addresses. Until it is set, the mouse counts
  // as gone and addresses are not opened.
  void UsePlatform(platform::Platform& platform) { platform_ = &platform; }

  // Setters store the value and report the change by PropertyChanged.
  const forms::Font& Font() const { return lblHyperlink.TextFont(); }
  void SetFont(const forms::Font& font);
  bool Enabled() const override { return lblHyperlink.Enabled(); }
  void SetEnabled(bool enabled) override;
  const std::string& Caption() const { return lblHyperlink.Caption(); }
  void SetCaption(const std::string& caption);
  // 0 left, 1 right, 2 centred; error 380 for anything else, and so below.
  std::int16_t Alignment() const { return static_cast<std::int16_t>(lblHyperlink.Alignment()); }
  void SetAlignment(std::int16_t alignment);
  bool AutoSize() const { return lblHyperlink.AutoSize(); }
  void SetAutoSize(bool autoSize);
  // The property HyperLink, whose plain name the class has taken; the setter trims the address.
  const std::string& GetHyperLink() const { return address_; }
  void SetHyperLink(const std::string& address);
  forms::Color HoverColor() const { return hoverColor_; }
  void SetHoverColor(forms::Color color);
  // 0 flat, 1 three-dimensional.
  std::int16_t Appearance() const { return static_cast<std::int16_t>(lblHyperlink.Appearance()); }
  void SetAppearance(std::int16_t appearance);
  // 0 none, 1 a single line.
  std::int16_t BorderStyle() const { return static_cast<std::int16_t>(lblHyperlink.BorderStyle()); }
  void SetBorderStyle(std::int16_t borderStyle);
  forms::Color ForeColor() const override { return lblHyperlink.ForeColor(); }
  void SetForeColor(forms::Color color) override;
  forms::Color BackColor() const override { return lblHyperlink.BackColor(); }
  void SetBackColor(forms::Color color) override;
  bool AutoToolTip() const { return autoToolTip_; }
  void SetAutoToolTip(bool autoToolTip);
  bool SoundOn() const { return soundOn_; }
  void SetSoundOn(bool soundOn);
  std::int16_t SoundID() const { return soundId_; }
  void SetSoundID(std::int16_t soundId);
  bool MOUnderline() const { return moUnderline_; }
  void SetMOUnderline(bool underline);
  bool MOPointer() const { return moPointer_; }
  void SetMOPointer(bool pointer);

  // Takes what is saved, and the defaults for the rest, without reporting changes; an extent that
  // is not saved stays. Error 13, 6 or 380 for a text that is no value of its property.
  void ReadProperties(const PropertyBag& bag);
  // Saves what differs from the defaults, and the extent in twips. A caption equal to the one that
  // a missing entry reads as is saved all the same: the two defaults differ, and are meant to.
  void WriteProperties(PropertyBag& bag) const;

  // A colour as it is saved: "&H" and eight hexadecimal digits.
  static std::string ColorText(forms::Color color);

  // Has no effect.
  void About() {}

  bool IsOver() const { return isOver_; }
  forms::Color SavedForeColor() const { return savedForeColor_; }
  // Whether the window under the mouse is this control's own: one that lies on top of it counts as
  // outside.
  bool IsMouseOver() const;
  // Shows the link at rest, then raises MouseOut. Each step is taken whatever became of the one
  // before; an error of the handler ends at the handler's border, as one of Click's does.
  void MouseLeave();
  // Gives the control the label's size, or without AutoSize the label the control's.
  void SyncSize();

  // Click, MouseDown and MouseUp are those of every control.
  forms::MouseEvent MouseOver;
  forms::Event<> MouseOut;
  forms::Event<> Change;
  forms::Event<const std::string&> PropertyChanged;

  // From the screen's side.
  void UserClick() override;
  void KeyPressed() override { UserClick(); }
  void Resized() override { SyncSize(); }
  Control* Face() override { return &lblHyperlink; }
  // Every entry of the mouse gives the label its tool tip, which may be the empty text.
  bool FaceHasTip() const override { return true; }
  void AssignWindowText(const std::string& text) override { SetCaption(text); }

  forms::Label lblHyperlink;
  forms::Timer myTimer;

 private:
  struct Property;
  static const Property Properties[];

  const forms::Font& ContainerFont() const;
  forms::Color ContainerForeColor() const;
  forms::Color ContainerBackColor() const;
  void ShowFont(const forms::Font& font);
  void ShowEnabled(bool enabled);
  void ShowAlignment(std::int16_t alignment);
  void ShowUnderline(bool underline);
  void ShowToolTip();
  void ReadFont(const PropertyBag& bag);
  void ReadExtent(const PropertyBag& bag);

  void LabelMoved(int button, int shift, float x, float y);
  void LabelClicked();
  // What a handler does not trap is shown and ends there; the link goes on. Throws EndProgram.
  void RaiseAtBorder(const forms::Event<>& event);
  void LabelChanged();
  void TimerTicked();
  void OpenAddress();

  platform::Platform* platform_ = nullptr;
  std::set<std::string> fontNames_;  // fonts only point to their names
  std::string address_ = SampleAddress;
  forms::Color hoverColor_ = forms::palette::DefaultHover;
  forms::Color savedForeColor_ = 0;
  std::int16_t soundId_ = 101;
  bool autoToolTip_ = true;
  bool soundOn_ = true;
  bool moUnderline_ = true;
  bool moPointer_ = true;
  bool isOver_ = false;
  bool leaving_ = false;  // by the timer
};

}  // namespace vantrel::controls

#endif  // VANTREL_CONTROLS_HYPERLINK_H_
