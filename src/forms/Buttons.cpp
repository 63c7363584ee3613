#include "forms/Buttons.h"

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
  // the focus that moved may have switched the button off
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
  for (Control* control : Parent().Controls()) {
    auto* other = dynamic_cast<OptionButton*>(control);
    if (other != nullptr && other != this && other->Container() == Container()) other->SetValue(false);
  }
  Raise(Click);
}

bool OptionButton::UserChoose() {
  if (!Reach()) return false;
  SetValue(true);
  return true;
}

}  // namespace plotsmith::forms
