#include "qt/forms/GridView.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QHeaderView>
#include <algorithm>
#include <numeric>
#include <vector>

#include "qt/Texts.h"
#include "qt/forms/FirstRow.h"

namespace plotsmith::qt {
namespace {

constexpr int kRowGap = 6;  // pixels

Qt::Alignment AlignmentOf(forms::ColumnAlignment alignment) {
  const bool isRight = alignment == forms::ColumnAlignment::flexAlignRightCenter;
  return (isRight ? Qt::AlignTrailing : Qt::AlignLeading) | Qt::AlignVCenter;
}

/// Distributes its width among the columns in proportion to the page's widths, so that nothing is cut off if
/// there is enough space.
class Table final : public FromFirstRow<QTableWidget> {
 public:
  using FromFirstRow::FromFirstRow;

  void SetShares(std::vector<double> shares) {
    shares_ = std::move(shares);
    DistributeWidth();
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    FromFirstRow::resizeEvent(event);
    DistributeWidth();
  }

 private:
  void DistributeWidth() {
    const double sum = std::accumulate(shares_.begin(), shares_.end(), 0.0);
    for (int i = 0; i < columnCount(); ++i) {
      // Without widths, all columns are equal.
      const double share = sum > 0 ? shares_[static_cast<std::size_t>(i)] / sum : 1.0 / columnCount();
      setColumnWidth(i, static_cast<int>(viewport()->width() * share));
    }
  }

  std::vector<double> shares_;
};

}  // namespace

GridView::GridView(forms::VSFlexGrid& model, QWidget* parent, const Post& post)
    : ControlView(model, post), model_(model), table_(new Table(parent)) {
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setSelectionMode(model.MultiSelect() == forms::MultiSelect::kExtended
                               ? QAbstractItemView::ExtendedSelection
                               : QAbstractItemView::SingleSelection);
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setTabKeyNavigation(false);
  table_->setShowGrid(false);
  table_->setWordWrap(false);
  table_->setCornerButtonEnabled(false);
  table_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  table_->horizontalHeader()->setHighlightSections(false);
  table_->horizontalHeader()->setSectionsClickable(false);
  table_->verticalHeader()->hide();
  table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  table_->verticalHeader()->setDefaultSectionSize(table_->fontMetrics().height() + kRowGap);
  QObject::connect(table_, &QTableWidget::itemSelectionChanged, table_, [this] { ReportSelection(); });
  QObject::connect(table_, &QTableWidget::cellDoubleClicked, table_, [this](int row, int) {
    Report([this, row] { model_.UserDoubleClick(row + model_.FixedRows()); });
  });
  SetUpWidget();
}

void GridView::ReportSelection() {
  std::vector<std::int32_t> rows;
  for (const QModelIndex& index : table_->selectionModel()->selectedRows()) {
    rows.push_back(index.row() + model_.FixedRows());
  }
  std::sort(rows.begin(), rows.end());
  Report([this, rows = std::move(rows)] { model_.UserSelect(rows); });
}

void GridView::Show() {
  const QSignalBlocker blocker(table_);
  table_->setColumnCount(model_.Cols());
  table_->setRowCount(model_.Rows() - model_.FixedRows());
  ShowHeads();
  ShowCells();
  ShowSelection();
  SetColumnShares();
}

void GridView::ShowHeads() {
  table_->horizontalHeader()->setVisible(model_.FixedRows() > 0);
  if (model_.FixedRows() == 0) return;
  for (int col = 0; col < table_->columnCount(); ++col) {
    auto* head = new QTableWidgetItem(TextOf(model_.TextMatrix(model_.FixedRows() - 1, col)));
    head->setTextAlignment(AlignmentOf(model_.ColAlignment(col)));
    table_->setHorizontalHeaderItem(col, head);
  }
}

void GridView::ShowCells() {
  for (int row = 0; row < table_->rowCount(); ++row) {
    for (int col = 0; col < table_->columnCount(); ++col) {
      const QString text = TextOf(model_.TextMatrix(row + model_.FixedRows(), col));
      if (table_->item(row, col) == nullptr) table_->setItem(row, col, new QTableWidgetItem);
      QTableWidgetItem* const item = table_->item(row, col);
      if (item->text() != text) item->setText(text);
      item->setToolTip(text);
      item->setTextAlignment(AlignmentOf(model_.ColAlignment(col)));
    }
  }
}

void GridView::ShowSelection() {
  QItemSelection selection;
  int first = -1;
  for (int row = 0; row < table_->rowCount(); ++row) {
    if (!model_.IsSelected(row + model_.FixedRows())) continue;
    if (first < 0) first = row;
    selection.select(table_->model()->index(row, 0), table_->model()->index(row, table_->columnCount() - 1));
  }
  QItemSelectionModel* const shown = table_->selectionModel();
  if (shown->selection() != selection) shown->select(selection, QItemSelectionModel::ClearAndSelect);
  if (first >= 0 && !shown->isRowSelected(table_->currentRow())) {
    shown->setCurrentIndex(table_->model()->index(first, 0), QItemSelectionModel::NoUpdate);
    table_->scrollToItem(table_->item(first, 0));
  }
  table_->viewport()->update();
}

void GridView::SetColumnShares() {
  std::vector<double> shares;
  for (int col = 0; col < table_->columnCount(); ++col) shares.push_back(model_.ColWidth(col));
  static_cast<Table*>(table_)->SetShares(std::move(shares));
}

}  // namespace plotsmith::qt
