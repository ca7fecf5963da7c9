// A list with columns, keyed rows and sub-items. The rows live here; the screen's side asks for
// those that it shows.
#ifndef VANTREL_FORMS_LISTVIEW_H_
#define VANTREL_FORMS_LISTVIEW_H_

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "forms/Control.h"
#include "forms/ImageList.h"

namespace vantrel::forms {

class ListView;

struct Column {
  std::string Header;
  int Width = 0;  // in twips
  Align Alignment = Align::Left;
};

struct SubItem {
  std::string Text;
  std::string Key;
};

// One row. Setters tell the list that it changed.
class ListItem {
 public:
  const std::string& Key() const { return key_; }
  // Error 35602 if another row of the list has the key; the empty key is no key.
  void SetKey(const std::string& key);
  const std::string& Text() const { return text_; }
  void SetText(const std::string& text);
  const std::string& Icon() const { return icon_; }
  const std::string& Tag() const { return tag_; }
  void SetTag(const std::string& tag) { tag_ = tag; }
  const std::string& ToolTipText() const { return toolTipText_; }
  void SetToolTipText(const std::string& text) { toolTipText_ = text; }
  bool Checked() const { return checked_; }
  void SetChecked(bool checked);

  int SubItemCount() const { return static_cast<int>(subItems_.size()); }
  // 1-based, as the columns behind the first. Error 35601 outside.
  const SubItem& Sub(int index) const;
  void SetSubText(int index, const std::string& text);
  void AddSubItem(const std::string& key, const std::string& text);

 private:
  friend class ListView;
  explicit ListItem(ListView& list) : list_(list) {}

  ListView& list_;
  std::string key_;
  std::string text_;
  std::string icon_;
  std::string tag_;
  std::string toolTipText_;
  bool checked_ = false;
  std::vector<SubItem> subItems_;
};

struct ListViewDesign {
  std::vector<Column> Columns;
  bool CheckBoxes = false;
  const ImageList* SmallIcons = nullptr;
};

class ListView : public Control {
 public:
  ListView(const Parent& parent, std::string name, const Design& design, ListViewDesign list);
  void Accept(ControlVisitor& visitor) override;
  bool IsTabStop() const override { return true; }

  const std::vector<Column>& Columns() const { return list_.Columns; }
  bool CheckBoxes() const { return list_.CheckBoxes; }
  const ImageList* SmallIcons() const { return list_.SmallIcons; }

  int Count() const { return static_cast<int>(rows_.size()); }
  // The 1-based row; error 9 outside.
  ListItem& Item(int index) const;
  // The row with the key, nullptr if there is none.
  ListItem* Find(const std::string& key) const;

  // Adds a row, at the end or before the 1-based `index`. Error 35602 if the key is taken.
  ListItem& Add(const std::string& key, const std::string& text, const std::string& icon,
                int index = 0);
  // Removes the 1-based row; the row that takes its place, or the last, is selected then if the
  // removed one was.
  void Remove(int index);
  void Clear();

  // 1-based; a list that has rows has a selected row, the first until told otherwise; 0 without.
  int SelectedIndex() const { return selected_; }
  ListItem* SelectedItem() const;
  void Select(int index);
  // The row highlighted as a drop target, 0 for none.
  int DropHighlight() const { return dropHighlight_; }
  void SetDropHighlight(int index);

  // The 1-based row whose text begins with the letters, whatever their case: the first from `from`
  // on, with the rows before it behind the last; 0 if there is none.
  int FindPrefix(std::string_view letters, int from) const;

  // The user clicks a row (Click follows), or its check box.
  void UserSelects(int index);
  void UserChecks(int index, bool checked);

  Event<ListItem&> ItemClick;
  Event<ListItem&> ItemCheck;

 private:
  friend class ListItem;

  void RequireRow(int index) const;
  void TakeKey(ListItem& item, const std::string& key);

  ListViewDesign list_;
  std::vector<std::unique_ptr<ListItem>> rows_;
  std::unordered_map<std::string, ListItem*> byKey_;
  int selected_ = 0;
  int dropHighlight_ = 0;
};

}  // namespace vantrel::forms

#endif  // VANTREL_FORMS_LISTVIEW_H_
