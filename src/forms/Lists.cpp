#include "forms/Lists.h"

#include <algorithm>
#include <utility>

#include "forms/Form.h"
#include "forms/TextBox.h"
#include "runtime/RuntimeError.h"

namespace plotsmith::forms {

using runtime::RuntimeError;

std::string EntryList::List(std::int32_t index) const {
  return index < 0 || index >= ListCount() ? std::string() : list_[static_cast<std::size_t>(index)];
}

void EntryList::SetListIndex(std::int32_t index) {
  if (index < -1 || index >= ListCount()) throw RuntimeError(runtime::error::kInvalidPropertyValue);
  const bool moved = index != listIndex_;
  ShowEntry(index);
  Changed();
  if (moved) Raise(Click);
}

void EntryList::AddItem(std::string_view text) {
  list_.emplace_back(text);
  Changed();
}

void EntryList::Clear() {
  list_.clear();
  listIndex_ = -1;
  Changed();
}

std::string ComboBox::Text() const { return style_ == ComboStyle::kDropDownList ? List(ListIndex()) : text_; }

void ComboBox::SetText(std::string_view value) {
  if (style_ == ComboStyle::kDropDownList) throw RuntimeError(runtime::error::kReadOnlyProperty);
  text_ = value;
  listIndex_ = -1;
  Changed();
}

void ComboBox::Clear() {
  text_.clear();
  EntryList::Clear();
}

void ComboBox::ShowEntry(std::int32_t index) {
  EntryList::ShowEntry(index);
  text_ = List(index);
}

bool ComboBox::UserChoose(std::int32_t index) {
  if (index < 0 || index >= ListCount() || !Reach()) return false;
  ShowEntry(index);
  Changed();
  Raise(Click);
  return true;
}

std::string ComboBox::ObstacleTo(std::string_view text) const {
  if (style_ == ComboStyle::kDropDownList) return "can't be typed into";
  if (text.find_first_of("\r\n") != std::string_view::npos) return "accepts only one line";
  return HasControlCharacters(text) ? "accepts no control characters" : "";
}

bool ComboBox::UserType(std::string_view text) {
  if (!ObstacleTo(text).empty() || !Reach()) return false;
  SetText(text);
  return true;
}

void ListBox::CheckIndex(std::int32_t index) const {
  if (index < 0 || index >= ListCount()) throw RuntimeError(runtime::error::kInvalidPropertyValue);
}

bool ListBox::Selected(std::int32_t index) const {
  CheckIndex(index);
  return selected_[static_cast<std::size_t>(index)];
}

void ListBox::SetSelected(std::int32_t index, bool value) {
  CheckIndex(index);
  if (multiSelect_ == MultiSelect::kNone) {
    ShowEntry(value ? index : (listIndex_ == index ? -1 : listIndex_));
  } else {
    selected_[static_cast<std::size_t>(index)] = value;
  }
  Changed();
}

std::int32_t ListBox::SelCount() const {
  return static_cast<std::int32_t>(std::count(selected_.begin(), selected_.end(), true));
}

void ListBox::AddItem(std::string_view text) {
  EntryList::AddItem(text);
  selected_.push_back(false);
}

void ListBox::Clear() {
  selected_.clear();
  EntryList::Clear();
}

void ListBox::ShowEntry(std::int32_t index) {
  EntryList::ShowEntry(index);
  if (multiSelect_ != MultiSelect::kNone) return;
  std::fill(selected_.begin(), selected_.end(), false);
  if (index >= 0) selected_[static_cast<std::size_t>(index)] = true;
}

bool ListBox::UserSelect(const std::vector<std::int32_t>& indices) {
  const auto isOutside = [this](std::int32_t index) { return index < 0 || index >= ListCount(); };
  if (std::any_of(indices.begin(), indices.end(), isOutside) ||
      (multiSelect_ == MultiSelect::kNone && indices.size() > 1) || !Reach()) {
    return false;
  }
  std::fill(selected_.begin(), selected_.end(), false);
  ShowEntry(indices.empty() ? -1 : indices.back());
  for (const std::int32_t index : indices) selected_[static_cast<std::size_t>(index)] = true;
  Changed();
  Raise(Click);
  return true;
}

}  // namespace plotsmith::forms
