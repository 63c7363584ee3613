#pragma once

#include <QtWidgets/QTableWidget>

#include "forms/VSFlexGrid.h"
#include "qt/forms/ControlView.h"

namespace plotsmith::qt {

/// The view of a grid with row selection. The fixed rows are its header.
class GridView final : public ControlView {
 public:
  /// Makes the table for `model`. `post` queues the user's actions.
  GridView(forms::VSFlexGrid& model, QWidget* parent, const Post& post);
  QWidget& Widget() override { return *table_; }

 protected:
  void Show() override;

 private:
  void ReportSelection();
  void ShowHeads();
  void ShowCells();
  void ShowSelection();
  void SetColumnShares();

  forms::VSFlexGrid& model_;
  QTableWidget* table_;
};

}  // namespace plotsmith::qt
