// The simple kinds of control: label, button, check box, option, text box, frame, picture box,
// progress bar, timer. Lists and the richer kinds have headers of their own.
#ifndef VANTREL_FORMS_CONTROLS_H_
#define VANTREL_FORMS_CONTROLS_H_

#include <string>

#include "forms/Control.h"

namespace vantrel::forms {

inline constexpr int Flat = 0;
inline constexpr int ThreeD = 1;
inline constexpr int NoBorder = 0;
inline constexpr int SingleLine = 1;

// A label; drawn as a link it is clicked, by mouse and keyboard. Change is raised when its caption
// changes.
class Label : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  void Accept(ControlVisitor& visitor) override;
  bool IsTabStop() const override { return Drawn() == Look::Link; }
  void AssignWindowText(const std::string& text) override;

  // Whether it takes the size of its text; the peer measures.
  bool AutoSize() const { return autoSize_; }
  void SetAutoSize(bool autoSize);

  // Both are 0 or 1, error 380 for anything else. A border is drawn where the label is the face of
  // a user control, always as a plain line.
  int Appearance() const { return appearance_; }
  void SetAppearance(int appearance);
  int BorderStyle() const { return borderStyle_; }
  void SetBorderStyle(int borderStyle);

  Event<> Change;

 private:
  bool autoSize_ = false;
  int appearance_ = ThreeD;
  int borderStyle_ = NoBorder;
};

class CommandButton : public CaptionedControl {
 public:
  CommandButton(const Parent& parent, std::string name, const Design& design);
  void Accept(ControlVisitor& visitor) override;
  bool IsTabStop() const override { return true; }

  // True raises Click, whether the button is enabled or not; the value is never kept.
  void SetValue(bool value);

  bool IsDefault() const { return default_; }
  bool IsCancel() const { return cancel_; }

 private:
  bool default_;
  bool cancel_;
};

inline constexpr int Unchecked = 0;
inline constexpr int Checked = 1;
inline constexpr int Grayed = 2;

class CheckBox : public CaptionedControl {
 public:
  CheckBox(const Parent& parent, std::string name, const Design& design, int value = Unchecked);
  void Accept(ControlVisitor& visitor) override;
  bool IsTabStop() const override { return true; }

  int Value() const { return value_; }
  // 0 clear, 1 ticked, 2 grayed; error 380 for anything else. A change raises Click.
  void SetValue(int value);
  // Ticks a clear box and clears any other.
  void UserClick() override;

 private:
  int value_;
};

class OptionButton : public CaptionedControl {
 public:
  OptionButton(const Parent& parent, std::string name, const Design& design, bool value = false);
  void Accept(ControlVisitor& visitor) override;
  bool IsTabStop() const override { return true; }

  bool Value() const { return value_; }
  // True clears the other options of the same container and raises Click once, if it was not set
  // already; the others raise nothing, and neither does false.
  void SetValue(bool value);
  void UserClick() override;

 private:
  void ClearOthers();

  bool value_;
};

struct TextBoxDesign {
  bool ReadOnly = false;
  bool MultiLine = false;
  bool WordWrap = true;  // breaks the lines of a multi-line box at its edge
};

class TextBox : public Control {
 public:
  TextBox(const Parent& parent, std::string name, const Design& design, TextBoxDesign box = {});
  void Accept(ControlVisitor& visitor) override;
  bool IsTabStop() const override { return true; }

  const std::string& Text() const { return WindowText(); }
  // A change raises Change.
  void SetText(const std::string& text) { AssignWindowText(text); }
  void AssignWindowText(const std::string& text) override;

  bool ReadOnly() const { return box_.ReadOnly; }
  bool MultiLine() const { return box_.MultiLine; }
  bool WordWrap() const { return box_.WordWrap; }

  Event<> Change;

 private:
  TextBoxDesign box_;
};

// A group with a caption; also the sheet without one.
class Frame : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  void Accept(ControlVisitor& visitor) override;
};

// A plain area of colour that holds other controls.
class PictureBox : public Control {
 public:
  using Control::Control;
  void Accept(ControlVisitor& visitor) override;
};

class ProgressBar : public Control {
 public:
  using Control::Control;
  void Accept(ControlVisitor& visitor) override;

  int Min() const { return min_; }
  int Max() const { return max_; }
  int Value() const { return value_; }
  // Error 380 for a value outside Min to Max.
  void SetValue(int value);
  // Error 380 for a range that is empty; a value outside it moves to its nearer end.
  void SetMin(int min);
  void SetMax(int max);

 private:
  void SetRange(int min, int max);

  int min_ = 0;
  int max_ = 100;
  int value_ = 0;
};

// Raises Tick every Interval milliseconds while it is enabled and the interval is not 0.
class Timer : public Control {
 public:
  Timer(const Parent& parent, std::string name, int interval, bool enabled = true);
  void Accept(ControlVisitor& visitor) override;

  int Interval() const { return interval_; }
  // Error 380 outside 0 to 65535.
  void SetInterval(int milliseconds);

  Event<> Tick;

 private:
  int interval_;
};

}  // namespace vantrel::forms

#endif  // VANTREL_FORMS_CONTROLS_H_
