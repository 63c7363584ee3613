#pragma once

#include <functional>

#include "forms/script/Hand.h"
#include "qt/forms/QtView.h"

namespace plotsmith::test {

/// A simulated user that finds a widget by the name of its control and sends it mouse and keyboard events.
class QtHand final : public forms::Hand {
 public:
  /// Makes a user of `view`, which must outlive it.
  explicit QtHand(qt::QtView& view)
      : front_([&view] { return view.Front(); }),
        post_([&view](forms::EventQueue& queue) { view.PostTo(queue); }) {}
  /// Makes a user of a running program, whose own view receives the actions.
  explicit QtHand(std::function<QWidget*()> front)
      : front_(std::move(front)), post_([](forms::EventQueue&) {}) {}

  void SelectRows(forms::EventQueue& queue, forms::VSFlexGrid& grid, std::vector<std::int32_t> rows) override;
  void DoubleClickRow(forms::EventQueue& queue, forms::VSFlexGrid& grid, std::int32_t row) override;
  void SelectEntries(forms::EventQueue& queue, forms::ListBox& list,
                     std::vector<std::int32_t> entries) override;
  void ChooseEntry(forms::EventQueue& queue, forms::ComboBox& combo, std::int32_t entry) override;
  void ChooseOption(forms::EventQueue& queue, forms::OptionButton& option) override;
  void Toggle(forms::EventQueue& queue, forms::CheckBox& box, bool checked) override;
  void TypeText(forms::EventQueue& queue, forms::TextBox& box, std::string text) override;
  void TypeText(forms::EventQueue& queue, forms::ComboBox& combo, std::string text) override;
  void Press(forms::EventQueue& queue, forms::CommandButton& button) override;
  void Focus(forms::EventQueue& queue, forms::Control& control) override;
  void Enter(forms::EventQueue& queue, forms::Form& form) override;
  void Escape(forms::EventQueue& queue, forms::Form& form) override;
  void Close(forms::EventQueue& queue, forms::Form& form) override;

 private:
  /// Returns the widget with the control's name in the front window.
  template <class Kind>
  Kind& Find(const forms::Control& control) const;
  void Key(int key);

  std::function<QWidget*()> front_;
  std::function<void(forms::EventQueue& queue)> post_;
};

}  // namespace plotsmith::test
