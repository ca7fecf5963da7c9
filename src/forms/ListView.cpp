#include "forms/ListView.h"

#include <algorithm>
#include <utility>

#include "forms/ControlVisitor.h"
#include "forms/Form.h"
#include "text/Strings.h"

namespace vantrel::forms {

using text::ErrorNumber;
using text::RuntimeError;

ListItem::ListItem(ListView& list, const std::string& text, const std::string& icon)
    : list_(list), text_(text) {
  for (const std::string& other : {icon, std::string(), std::string()}) others_.Append(other);
}

void ListItem::SetKey(const std::string& key) {
  if (key_ != key) list_.TakeKey(*this, key);
}

void ListItem::SetText(const std::string& text) {
  if (text_ == text) return;
  text_ = text;
  list_.Changed(Aspect::Items);
}

void ListItem::SetChecked(bool checked) {
  if (checked_ == checked) return;
  checked_ = checked;
  list_.Changed(Aspect::Items);
}

std::size_t ListItem::PlaceOf(int index) const {
  if (index < 1 || index > SubItemCount()) throw RuntimeError(ErrorNumber::ElementNotFound);
  return SubItemsPlace + 2 * (static_cast<std::size_t>(index) - 1);
}

SubItem ListItem::Sub(int index) const {
  const std::size_t place = PlaceOf(index);
  return {std::string(others_.At(place)), std::string(others_.At(place + 1))};
}

void ListItem::SetSubText(int index, const std::string& text) {
  const std::size_t place = PlaceOf(index);
  if (others_.At(place) == text) return;
  others_.Set(place, text);
  list_.Changed(Aspect::Items);
}

void ListItem::AddSubItem(const std::string& key, const std::string& text) {
  others_.Append(text);
  others_.Append(key);
  ++subItemCount_;
  list_.Changed(Aspect::Items);
}

ListView::ListView(const Parent& parent, std::string name, const Design& design,
                   ListViewDesign list)
    : Control(parent, std::move(name), design), list_(std::move(list)) {}

void ListView::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void ListView::RequireRow(int index) const {
  if (index < 1 || index > Count()) throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
}

ListItem& ListView::Item(int index) const {
  RequireRow(index);
  return *rows_[static_cast<std::size_t>(index) - 1];
}

ListItem* ListView::Find(const std::string& key) const {
  const auto row = byKey_.find(std::string_view(key));
  return row == byKey_.end() ? nullptr : *row;
}

void ListView::TakeKey(ListItem& item, const std::string& key) {
  if (Find(key) != nullptr) throw RuntimeError(ErrorNumber::KeyNotUnique);
  byKey_.erase(&item);
  item.key_ = key;
  if (!key.empty()) byKey_.insert(&item);
}

ListItem& ListView::Add(const std::string& key, const std::string& text, const std::string& icon,
                        int index) {
  const int place = index == 0 ? Count() + 1 : index;
  if (place < 1 || place > Count() + 1) throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
  std::unique_ptr<ListItem> made(new ListItem(*this, text, icon));
  ListItem& item = *made;
  rows_.reserve(rows_.size() == rows_.capacity() ? rows_.size() * 2 + 1 : rows_.capacity());
  TakeKey(item, key);
  rows_.insert(rows_.begin() + (place - 1), std::move(made));
  // The selection and the highlight stay with their rows.
  if (selected_ == 0) {
    selected_ = 1;
  } else if (place <= selected_) {
    ++selected_;
  }
  if (dropHighlight_ >= place) ++dropHighlight_;
  Changed(Aspect::Items);
  return item;
}

void ListView::Remove(int index) {
  RequireRow(index);
  const auto row = rows_.begin() + (index - 1);
  byKey_.erase(row->get());
  rows_.erase(row);
  if (index < selected_ || selected_ > Count()) --selected_;
  if (dropHighlight_ == index) {
    dropHighlight_ = 0;
  } else if (dropHighlight_ > index) {
    --dropHighlight_;
  }
  Changed(Aspect::Items);
}

void ListView::Clear() {
  if (rows_.empty()) return;
  byKey_.clear();
  rows_.clear();
  selected_ = 0;
  dropHighlight_ = 0;
  Changed(Aspect::Items);
}

ListItem* ListView::SelectedItem() const { return selected_ == 0 ? nullptr : &Item(selected_); }

void ListView::Select(int index) {
  RequireRow(index);
  if (selected_ == index) return;
  selected_ = index;
  Changed(Aspect::Selection);
}

void ListView::SetDropHighlight(int index) {
  if (index != 0) RequireRow(index);
  if (dropHighlight_ == index) return;
  dropHighlight_ = index;
  Changed(Aspect::Selection);
}

int ListView::FindPrefix(std::string_view letters, int from) const {
  const int count = Count();
  for (int step = 0; step < count; ++step) {
    const int index = (std::max(from, 1) - 1 + step) % count + 1;
    const std::string_view text = Item(index).Text();
    if (text::EqualIgnoringCase(text.substr(0, letters.size()), letters)) return index;
  }
  return 0;
}

void ListView::UserSelects(int index) {
  if (!Enabled() || index < 1 || index > Count()) return;
  Select(index);
  ItemClick(Item(index));
  Click();
}

void ListView::UserChecks(int index, bool checked) {
  if (!Enabled() || !CheckBoxes() || index < 1 || index > Count()) return;
  if (Item(index).Checked() == checked) return;
  Item(index).SetChecked(checked);
  ItemCheck(Item(index));
}

}  // namespace vantrel::forms
