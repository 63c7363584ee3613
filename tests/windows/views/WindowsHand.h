#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/script/Hand.h"
#include "windows/com/Windows.h"

namespace plotsmith::test {

/// A simulated user that finds the window of a control by name and posts mouse and keyboard messages to it.
class WindowsHand final : public forms::Hand {
 public:
  /// Makes a user. `front` returns the window of the front form. `handle` processes the waiting messages and
  /// moves the resulting actions to the queue.
  WindowsHand(std::function<HWND()> front, std::function<void(forms::EventQueue& queue)> handle)
      : front_(std::move(front)), handle_(std::move(handle)) {}

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
  HWND Find(const forms::Control& control) const;

  std::function<HWND()> front_;
  std::function<void(forms::EventQueue& queue)> handle_;
};

/// Post mouse and keyboard messages to a window. Positions are in pixels from the corner of its client area.
///@{
void PostClick(HWND window, POINT place, WPARAM keys = 0);
void PostClick(HWND window);
void PostKey(HWND window, WPARAM key, bool isRepeated = false);
///@}

}  // namespace plotsmith::test
