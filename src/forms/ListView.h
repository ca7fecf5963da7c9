// A list with columns, keyed rows and sub-items. The rows live here; the screen's side asks for
// those that it shows.
#ifndef VANTREL_FORMS_LISTVIEW_H_
#define VANTREL_FORMS_LISTVIEW_H_

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "forms/Control.h"
#include "forms/ImageList.h"
#include "forms/PackedTexts.h"

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

// One row, of which a list may have a hundred thousand. Setters notify the list of the change.
class ListItem {
 public:
  const std::string& Key() const { return key_; }
  // Error 35602 if another row of the list has the key; the empty key is no key.
  void SetKey(const std::string& key);
  const std::string& Text() const { return text_; }
  void SetText(const std::string& text);
  std::string Icon() const { return std::string(others_.At(IconPlace)); }
  std::string Tag() const { return std::string(others_.At(TagPlace)); }
  void SetTag(const std::string& tag) { others_.Set(TagPlace, tag); }
  std::string ToolTipText() const { return std::string(others_.At(TipPlace)); }
  void SetToolTipText(const std::string& text) { others_.Set(TipPlace, text); }
  bool Checked() const { return checked_; }
  void SetChecked(bool checked);

  int SubItemCount() const { return subItemCount_; }
  // 1-based, as the columns behind the first. Error 35601 outside.
  SubItem Sub(int index) const;
  void SetSubText(int index, const std::string& text);
  void AddSubItem(const std::string& key, const std::string& text);

 private:
  friend class ListView;
  // What `others_` holds; behind it the sub-items follow, each as its text and its key.
  enum Place : std::size_t { IconPlace, TagPlace, TipPlace, SubItemsPlace };

  ListItem(ListView& list, const std::string& text, const std::string& icon);
  // Where the sub-item's text is; error 35601 outside.
  std::size_t PlaceOf(int index) const;

  ListView& list_;
  std::string key_;
  std::string text_;
  PackedTexts others_;
  int subItemCount_ = 0;
  bool checked_ = false;
};

// The keyed rows of a list, found by their key. A row's key must not change while it is in here.
struct KeyOfRow {
  using is_transparent = void;

  static std::string_view Key(std::string_view key) { return key; }
  static std::string_view Key(const ListItem* row) { return row->Key(); }
  std::size_t operator()(const auto& one) const { return std::hash<std::string_view>{}(Key(one)); }
  bool operator()(const auto& one, const auto& other) const { return Key(one) == Key(other); }
};
using RowsByKey = std::unordered_set<ListItem*, KeyOfRow, KeyOfRow>;

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

  // 1-based; a list that has rows has a selected row, at first the first; 0 without.
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
  RowsByKey byKey_;
  int selected_ = 0;
  int dropHighlight_ = 0;
};

}  // namespace vantrel::forms

#endif  // VANTREL_FORMS_LISTVIEW_H_
