#pragma once

#include <QtWidgets/QComboBox>
#include <QtWidgets/QListWidget>

#include "forms/Lists.h"
#include "qt/forms/ControlView.h"

namespace plotsmith::qt {

class ComboBoxView final : public ControlView {
 public:
  ComboBoxView(forms::ComboBox& model, QWidget* parent, const Post& post);
  QWidget& Widget() override { return *box_; }

 protected:
  void Show() override;

 private:
  forms::ComboBox& model_;
  QComboBox* box_;
};

class ListBoxView final : public ControlView {
 public:
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
