#pragma once

#include "forms/Buttons.h"
#include "forms/SecondPress.h"
#include "windows/views/ControlView.h"

namespace plotsmith::windows {

/// A button. The button that Enter presses is drawn as the default button.
class CommandButtonView final : public ControlView {
 public:
  /// Makes the window for `model`. `presses` is shared by all windows and must outlive them.
  CommandButtonView(forms::CommandButton& model, const Stage& stage, forms::SecondPress& presses);

  forms::Size LeastSize() const override;
  void OnCommand(WORD code) override;

 protected:
  void Show() override;
  std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  bool IsSecondPress(LPARAM place) const;

  forms::CommandButton& model_;
  forms::SecondPress& presses_;
};

/// The common base of check boxes and options: a mark with a text beside it.
class MarkView : public ControlView {
 public:
  forms::Size LeastSize() const override;
  void OnCommand(WORD code) override;

 protected:
  /// Makes a window with this button style.
  MarkView(forms::CaptionControl& model, const Stage& stage, DWORD style);
  /// Shows or removes the mark.
  void ShowMark(bool isMarked);
  /// Reports a click to the model.
  virtual void ReportClick() = 0;

 private:
  forms::CaptionControl& model_;
};

/// A check box.
class CheckBoxView final : public MarkView {
 public:
  /// Makes the window for `model`.
  CheckBoxView(forms::CheckBox& model, const Stage& stage);

 protected:
  void Show() override { ShowMark(model_.Value() == forms::CheckBox::kChecked); }
  void ReportClick() override;

 private:
  forms::CheckBox& model_;
};

/// An option. The arrow keys move between the options of a container.
class OptionButtonView final : public MarkView {
 public:
  /// Makes the window for `model`.
  OptionButtonView(forms::OptionButton& model, const Stage& stage);

 protected:
  void Show() override;
  void ReportClick() override;
  std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  forms::OptionButton& model_;
};

}  // namespace plotsmith::windows
