#include "forms/FileListBox.h"

#include "forms/ControlVisitor.h"

namespace vantrel::forms {

void FileListBox::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void FileListBox::SetPath(const std::string& path) {
  path_ = path;
  Refresh();
}

void FileListBox::Refresh() {
  names_.clear();
  Changed(Aspect::Items);
  if (!ReadFolder) return;
  names_ = ReadFolder(path_);
  if (!names_.empty()) Changed(Aspect::Items);
}

std::string FileListBox::List(int index) const {
  return index >= 0 && index < ListCount() ? names_[static_cast<std::size_t>(index)] : "";
}

}  // namespace vantrel::forms
