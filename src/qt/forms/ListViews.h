#pragma once

#include <QtWidgets/QComboBox>
#include <QtWidgets/QListWidget>

#include "forms/Lists.h"
#include "qt/forms/ControlView.h"

namespace plotsmith::qt {

/// The view of a combo box.
class ComboBoxView final : public ControlView {
 public:
  /// Makes the combo box for `model`. `post` queues the user's actions.
  ComboBoxView(forms::ComboBox& model, QWidget* parent, const Post& post);
  QWidget& Widget() override { return *box_; }

 protected:
  void Show() override;

 private:
  forms::ComboBox& model_;
  QComboBox* box_;
};

/// The view of a list box.
class ListBoxView final : public ControlView {
 public:
  /// Makes the list for `model`. `post` queues the user's actions.
  ListBoxView(forms::ListBox& model, QWidget* parent, const Post& post);
  QWidget& Widget() override { return *list_; }

 protected:
  void Show() override;

 private:
  void ReportSelection();

  forms::ListBox& model_;
  QListWidget* list_;
};

}  // namespace plotsmith::qt
