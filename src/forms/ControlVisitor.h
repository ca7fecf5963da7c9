// One function a kind of control, for toolkits and for whoever shows windows as text.
#ifndef VANTREL_FORMS_CONTROLVISITOR_H_
#define VANTREL_FORMS_CONTROLVISITOR_H_

namespace vantrel::forms {

class Chart;
class CheckBox;
class ComboBox;
class CommandButton;
class FileListBox;
class Frame;
class Image;
class Label;
class ListView;
class OptionButton;
class PictureBox;
class ProgressBar;
class StatusBar;
class TextBox;
class Timer;
class Toolbar;
class UserControl;

class ControlVisitor {
 public:
  virtual ~ControlVisitor() = default;
  virtual void Visit(Chart& control) = 0;
  virtual void Visit(CheckBox& control) = 0;
  virtual void Visit(ComboBox& control) = 0;
  virtual void Visit(CommandButton& control) = 0;
  virtual void Visit(FileListBox& control) = 0;
  virtual void Visit(Frame& control) = 0;
  virtual void Visit(Image& control) = 0;
  virtual void Visit(Label& control) = 0;
  virtual void Visit(ListView& control) = 0;
  virtual void Visit(OptionButton& control) = 0;
  virtual void Visit(PictureBox& control) = 0;
  virtual void Visit(ProgressBar& control) = 0;
  virtual void Visit(StatusBar& control) = 0;
  virtual void Visit(TextBox& control) = 0;
  virtual void Visit(Timer& control) = 0;
  virtual void Visit(Toolbar& control) = 0;
  virtual void Visit(UserControl& control) = 0;
};

}  // namespace vantrel::forms

#endif  // VANTREL_FORMS_CONTROLVISITOR_H_
