#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "forms/Buttons.h"
#include "forms/Form.h"
#include "forms/Lists.h"
#include "forms/ModalLoop.h"
#include "forms/TextBox.h"
#include "forms/VSFlexGrid.h"

namespace plotsmith::forms {

/// The simulated user of a script, with a member for each kind of action. Each member posts its action to the
/// queue. Rows and entries count from 0; rows include the fixed rows.
class Hand {
 public:
  virtual ~Hand() = default;

  /// Selects exactly these rows of a grid.
  virtual void SelectRows(EventQueue& queue, VSFlexGrid& grid, std::vector<std::int32_t> rows) = 0;
  /// Double-clicks a row of a grid.
  virtual void DoubleClickRow(EventQueue& queue, VSFlexGrid& grid, std::int32_t row) = 0;
  /// Selects exactly these entries of a list box.
  virtual void SelectEntries(EventQueue& queue, ListBox& list, std::vector<std::int32_t> entries) = 0;
  /// Selects an entry of a combo box.
  virtual void ChooseEntry(EventQueue& queue, ComboBox& combo, std::int32_t entry) = 0;
  /// Selects an option button.
  virtual void ChooseOption(EventQueue& queue, OptionButton& option) = 0;
  /// Checks or unchecks a check box.
  virtual void Toggle(EventQueue& queue, CheckBox& box, bool checked) = 0;
  /// Replaces the text of a text box.
  virtual void TypeText(EventQueue& queue, TextBox& box, std::string text) = 0;
  /// Replaces the text of a combo box.
  virtual void TypeText(EventQueue& queue, ComboBox& combo, std::string text) = 0;
  /// Presses a button.
  virtual void Press(EventQueue& queue, CommandButton& button) = 0;
  /// Moves the focus to a control.
  virtual void Focus(EventQueue& queue, Control& control) = 0;
  /// Presses Enter on a form.
  virtual void Enter(EventQueue& queue, Form& form) = 0;
  /// Presses Escape on a form.
  virtual void Escape(EventQueue& queue, Form& form) = 0;
  /// Closes the window of a form.
  virtual void Close(EventQueue& queue, Form& form) = 0;

  /// Called if an action was refused when it was performed, with the end of a sentence ("is off"). For
  /// example, a control can become disabled when the focus moves to it.
  std::function<void(const std::string& sentence)> Refused = [](const std::string&) {};
};

/// A simulated user who acts on the model directly, without windows.
class ModelHand final : public Hand {
 public:
  void SelectRows(EventQueue& queue, VSFlexGrid& grid, std::vector<std::int32_t> rows) override;
  void DoubleClickRow(EventQueue& queue, VSFlexGrid& grid, std::int32_t row) override;
  void SelectEntries(EventQueue& queue, ListBox& list, std::vector<std::int32_t> entries) override;
  void ChooseEntry(EventQueue& queue, ComboBox& combo, std::int32_t entry) override;
  void ChooseOption(EventQueue& queue, OptionButton& option) override;
  void Toggle(EventQueue& queue, CheckBox& box, bool checked) override;
  void TypeText(EventQueue& queue, TextBox& box, std::string text) override;
  void TypeText(EventQueue& queue, ComboBox& combo, std::string text) override;
  void Press(EventQueue& queue, CommandButton& button) override;
  void Focus(EventQueue& queue, Control& control) override;
  void Enter(EventQueue& queue, Form& form) override;
  void Escape(EventQueue& queue, Form& form) override;
  void Close(EventQueue& queue, Form& form) override;

 private:
  /// Posts an action on a control. `gesture` returns false if the action is refused.
  void Post(EventQueue& queue, const Control& control, std::function<bool()> gesture);
};

}  // namespace plotsmith::forms
