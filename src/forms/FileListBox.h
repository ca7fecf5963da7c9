// A list of the names of the files of one folder. Who reads folders is bound from outside, since
// forms know no file system.
#ifndef VANTREL_FORMS_FILELISTBOX_H_
#define VANTREL_FORMS_FILELISTBOX_H_

#include <functional>
#include <string>
#include <vector>

#include "forms/Control.h"

namespace vantrel::forms {

class FileListBox : public Control {
 public:
  using Control::Control;
  void Accept(ControlVisitor& visitor) override;
  bool IsTabStop() const override { return true; }

  // Gives the names of the ordinary files of a folder, sorted; it may throw.
  std::function<std::vector<std::string>(const std::string& path)> ReadFolder;

  const std::string& Path() const { return path_; }
  // Sets the folder and reads it; errors of the reader pass through and leave the list empty.
  void SetPath(const std::string& path);
  void Refresh();

  int ListCount() const { return static_cast<int>(names_.size()); }
  // 0-based; the empty text outside.
  std::string List(int index) const;

 private:
  std::string path_;
  std::vector<std::string> names_;
};

}  // namespace vantrel::forms

#endif  // VANTREL_FORMS_FILELISTBOX_H_
