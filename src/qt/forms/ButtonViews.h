#pragma once

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>

#include "forms/Buttons.h"
#include "qt/forms/ControlView.h"

namespace plotsmith::qt {

/// The view of a button. The default button, which Enter presses, is marked.
class CommandButtonView final : public ControlView {
 public:
  /// Makes the button for `model`. `post` queues the user's actions.
  CommandButtonView(forms::CommandButton& model, QWidget* parent, const Post& post);
  QWidget& Widget() override { return *button_; }

 protected:
  void Show() override;

 private:
  forms::CommandButton& model_;
  QPushButton* button_;
};

/// The view of a check box.
class CheckBoxView final : public ControlView {
 public:
  /// Makes the check box for `model`. `post` queues the user's actions.
  CheckBoxView(forms::CheckBox& model, QWidget* parent, const Post& post);
  QWidget& Widget() override { return *box_; }

 protected:
  void Show() override;

 private:
  forms::CheckBox& model_;
  QCheckBox* box_;
};

/// The view of an option button. The arrow keys move between the options of a container.
class OptionButtonView final : public ControlView {
 public:
  /// Makes the option for `model`. `post` queues the user's actions.
  OptionButtonView(forms::OptionButton& model, QWidget* parent, const Post& post);
  QWidget& Widget() override { return *button_; }

 protected:
  void Show() override;

 private:
  forms::OptionButton& model_;
  QRadioButton* button_;
};

}  // namespace plotsmith::qt
