#pragma once

#include "forms/TextBox.h"
#include "windows/views/ControlView.h"
#include "windows/views/EditTexts.h"

namespace plotsmith::windows {

/// A text box of one line or of several lines.
class TextBoxView final : public ControlView {
 public:
  /// Makes the window for `model`.
  TextBoxView(forms::TextBox& model, const Stage& stage);
  forms::Size LeastSize() const override;
  void OnCommand(WORD code) override;

 protected:
  void Show() override;
  bool IsInTheMiddle() const override;
  std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  forms::TextBox& model_;
  Lines lines_;
};

}  // namespace plotsmith::windows
