#include "forms/Buttons.h"

#include <algorithm>
#include <utility>

#include "forms/Form.h"

namespace plotsmith::forms {

void CommandButton::SetDefault(bool value) {
  default_ = value;
  Changed();
}

void CommandButton::SetCancel(bool value) {
  cancel_ = value;
  Changed();
}

bool CommandButton::UserPress() {
  if (!Reach()) return false;
  // The move of the focus may have disabled the button.
  return UserPressByKey();
}

bool CommandButton::UserPressByKey() {
  if (!Obstacle().empty()) return false;
  Raise(Click);
  return true;
}

void CheckBox::SetValue(std::int32_t value) {
  if (std::exchange(value_, value) == value) return;
  Changed();
  Raise(Click);
}

bool CheckBox::UserToggle(bool checked) {
  if (!Reach()) return false;
  value_ = checked ? kChecked : kUnchecked;
  Changed();
  Raise(Click);
  return true;
}

void OptionButton::SetValue(bool value) {
  value_ = value;
  Changed();
  if (!value) return;
  for (OptionButton* other : Group()) {
    if (other != this) other->SetValue(false);
  }
  Raise(Click);
}

std::vector<OptionButton*> OptionButton::Group() const {
  std::vector<OptionButton*> group;
  for (Control* control : Parent().Controls()) {
    auto* option = dynamic_cast<OptionButton*>(control);
    if (option != nullptr && option->Container() == Container()) group.push_back(option);
  }
  return group;
}

bool OptionButton::IsTabStop() const { return value_ || std::ranges::none_of(Group(), &OptionButton::Value); }

OptionButton& OptionButton::Neighbor(bool isNext) {
  std::vector<OptionButton*> group = Group();
  if (!isNext) std::ranges::reverse(group);
  std::rotate(group.begin(), std::find(group.begin(), group.end(), this) + 1, group.end());
  return **std::ranges::find_if(
      group, [this](const OptionButton* option) { return option == this || option->Obstacle().empty(); });
}

bool OptionButton::UserChoose() {
  if (!Reach()) return false;
  SetValue(true);
  return true;
}

}  // namespace plotsmith::forms
