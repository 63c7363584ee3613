#pragma once

#include <functional>

#include "forms/script/Hand.h"
#include "qt/forms/QtView.h"

namespace plotsmith::test {

/// A hand that finds the widget by its control's name and sends it the events of a mouse and a keyboard.
class QtHand final : public forms::Hand {
 public:
  /// `view` must outlive the hand.
  explicit QtHand(qt::QtView& view)
      : front_([&view] { return view.Front(); }),
        post_([&view](forms::EventQueue& queue) { view.PostTo(queue); }) {}
  /// A hand for a program that runs. The gestures stay with the window, whose own view takes them.
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
  /// The widget of the control, found by its name in the window in front.
  template <class Kind>
  Kind& Find(const forms::Control& control) const;
  void Key(int key);

  std::function<QWidget*()> front_;
  std::function<void(forms::EventQueue& queue)> post_;
};

}  // namespace plotsmith::test
