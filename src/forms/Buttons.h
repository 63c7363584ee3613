#pragma once

#include <cstdint>
#include <vector>

#include "forms/Control.h"

namespace plotsmith::forms {

/// A push button. When the user presses it, it first gets the focus.
class CommandButton : public CaptionControl {
 public:
  using CaptionControl::CaptionControl;
  const char* TypeName() const override { return "CommandButton"; }

  /// Whether Enter presses the button from any control of the form.
  ///@{
  bool Default() const { return default_; }
  void SetDefault(bool value);
  ///@}

  /// Whether Escape presses the button.
  ///@{
  bool Cancel() const { return cancel_; }
  void SetCancel(bool value);
  ///@}

  /// Raised when the button is pressed.
  Event Click;

  /// Handles a press by the user. Returns false if the button can't be used.
  bool UserPress();
  /// Handles a press by Enter or Escape, which doesn't move the focus. Returns false if the button can't be
  /// used.
  bool UserPressByKey();

 private:
  bool default_ = false;
  bool cancel_ = false;
};

/// A check box.
class CheckBox : public CaptionControl {
 public:
  /// The values of a check box.
  static constexpr std::int32_t kUnchecked = 0, kChecked = 1;

  using CaptionControl::CaptionControl;
  const char* TypeName() const override { return "CheckBox"; }

  /// The state: kUnchecked or kChecked.
  std::int32_t Value() const { return value_; }
  /// Sets the state. Raises Click if it changes. This also works on a disabled check box.
  void SetValue(std::int32_t value);

  /// Raised when the state changes or the user clicks the check box.
  Event Click;

  /// Handles a click by the user, which always raises Click. Returns false if the check box can't be used.
  bool UserToggle(bool checked);

 private:
  std::int32_t value_ = kUnchecked;
};

/// An option button. At most one option button of a container is selected. Option buttons are members of a
/// control array.
class OptionButton : public CaptionControl {
 public:
  /// Makes an option button. `index` is its index in the control array, from 0.
  OptionButton(Form& form, const char* name, std::int32_t index, Control* container, std::string caption)
      : CaptionControl(form, name, container, std::move(caption)) {
    SetIndex(index);
  }
  const char* TypeName() const override { return "OptionButton"; }

  /// Whether this option is selected.
  bool Value() const { return value_; }
  /// Sets the state. True deselects the other options of the container and raises Click; false raises
  /// nothing. This also works on a disabled option.
  void SetValue(bool value);

  /// Raised when the option is selected.
  Event Click;

  /// Handles a selection by the user. Returns false if the option can't be used.
  bool UserChoose();

  /// Returns true if Tab reaches the option: if it is the selected option of its container, or if none is
  /// selected.
  bool IsTabStop() const;
  /// Returns the option that an arrow key selects: the next or previous enabled option of the container,
  /// continuing at the other end. Returns this option if there is no other.
  OptionButton& Neighbor(bool isNext);

 protected:
  const char* KindText() const override { return "option"; }

 private:
  /// Returns all options of the container in tab order.
  std::vector<OptionButton*> Group() const;

  bool value_ = false;
};

}  // namespace plotsmith::forms
