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

/// The hand that a script moves: a member for each kind of gesture. Each one posts what it does. Rows and
/// entries count from 0, rows with the fixed ones.
class Hand {
 public:
  virtual ~Hand() = default;

  virtual void SelectRows(EventQueue& queue, VSFlexGrid& grid, std::vector<std::int32_t> rows) = 0;
  virtual void DoubleClickRow(EventQueue& queue, VSFlexGrid& grid, std::int32_t row) = 0;
  virtual void SelectEntries(EventQueue& queue, ListBox& list, std::vector<std::int32_t> entries) = 0;
  virtual void ChooseEntry(EventQueue& queue, ComboBox& combo, std::int32_t entry) = 0;
  virtual void ChooseOption(EventQueue& queue, OptionButton& option) = 0;
  virtual void Toggle(EventQueue& queue, CheckBox& box, bool checked) = 0;
  virtual void TypeText(EventQueue& queue, TextBox& box, std::string text) = 0;
  virtual void TypeText(EventQueue& queue, ComboBox& combo, std::string text) = 0;
  virtual void Press(EventQueue& queue, CommandButton& button) = 0;
  virtual void Focus(EventQueue& queue, Control& control) = 0;
  virtual void Enter(EventQueue& queue, Form& form) = 0;
  virtual void Escape(EventQueue& queue, Form& form) = 0;
  virtual void Close(EventQueue& queue, Form& form) = 0;

  /// Is told of a gesture that was refused when its turn came, with the end of a sentence ("is off"). A
  /// control that could be used before the focus moved to it may be off by then.
  std::function<void(const std::string& sentence)> Refused = [](const std::string&) {};
};

/// A hand that works on the model alone, where no window is.
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
  /// Posts a gesture on a control; the gesture answers false where it is refused.
  void Post(EventQueue& queue, const Control& control, std::function<bool()> gesture);
};

}  // namespace plotsmith::forms
