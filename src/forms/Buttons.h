#pragma once

#include <cstdint>
#include <vector>

#include "forms/Control.h"

namespace plotsmith::forms {

/// A button. A hand that presses it moves the focus to it first.
class CommandButton : public CaptionControl {
 public:
  using CaptionControl::CaptionControl;
  const char* TypeName() const override { return "CommandButton"; }

  /// Whether Enter presses the button from anywhere on the form.
  ///@{
  bool Default() const { return default_; }
  void SetDefault(bool value);
  ///@}

  /// Whether Escape presses it.
  ///@{
  bool Cancel() const { return cancel_; }
  void SetCancel(bool value);
  ///@}

  Event Click;

  bool UserPress();
  /// The same by Enter or Escape, which leave the focus where it is.
  bool UserPressByKey();

 private:
  bool default_ = false;
  bool cancel_ = false;
};

/// A box to tick.
class CheckBox : public CaptionControl {
 public:
  static constexpr std::int32_t kUnchecked = 0, kChecked = 1;

  using CaptionControl::CaptionControl;
  const char* TypeName() const override { return "CheckBox"; }

  std::int32_t Value() const { return value_; }
  /// Raises Click if the value is another one than before. It also works on a box that is off.
  void SetValue(std::int32_t value);

  Event Click;

  /// Ticks the box or takes the tick away; raises Click in any case.
  bool UserToggle(bool checked);

 private:
  std::int32_t value_ = kUnchecked;
};

/// One of several options, of which at most one in a container is chosen. Options are members of a control
/// array.
class OptionButton : public CaptionControl {
 public:
  OptionButton(Form& form, const char* name, std::int32_t index, Control* container, std::string caption)
      : CaptionControl(form, name, container, std::move(caption)) {
    SetIndex(index);
  }
  const char* TypeName() const override { return "OptionButton"; }

  bool Value() const { return value_; }
  /// True takes the choice away from the other options of the container and raises Click; False raises
  /// nothing. It also works on an option that is off.
  void SetValue(bool value);

  Event Click;

  bool UserChoose();

  /// Whether Tab comes to the option: to the one of a container that is chosen, or to each one while none is.
  bool IsTabStop() const;
  /// The option that an arrow key chooses from here: the next one of the container that a hand can use, after
  /// the last one the first, or the one before it. This one itself where there is no other.
  OptionButton& Neighbor(bool isNext);

 protected:
  const char* KindText() const override { return "option"; }

 private:
  /// All options of the container, in tab order.
  std::vector<OptionButton*> Group() const;

  bool value_ = false;
};

}  // namespace plotsmith::forms
