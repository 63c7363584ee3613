#pragma once

#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractItemView>
#include <algorithm>
#include <array>

namespace plotsmith::qt {

/// A list or a table in which the first cursor key selects the first row if nothing is selected. Qt makes
/// this row the current one when the widget gets the focus, so the key would skip it.
template <class Base>
class FromFirstRow : public Base {
 public:
  using Base::Base;

 protected:
  /// Selects the first row if a cursor key is pressed while nothing is selected.
  void keyPressEvent(QKeyEvent* event) override {
    constexpr std::array kKeys = {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Home};
    const bool isCursor = std::find(kKeys.begin(), kKeys.end(), event->key()) != kKeys.end();
    QItemSelectionModel* const selection = this->selectionModel();
    if (!isCursor || selection->hasSelection() || this->model()->rowCount() == 0) {
      Base::keyPressEvent(event);
      return;
    }
    selection->setCurrentIndex(this->model()->index(0, 0),
                               QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  }
};

}  // namespace plotsmith::qt
