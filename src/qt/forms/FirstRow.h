#pragma once

#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractItemView>
#include <algorithm>
#include <array>

namespace plotsmith::qt {

/// A list or a table in which, while nothing is selected, the first key of the cursor selects the first row.
/// Qt takes that row for the current one as soon as the focus comes, so that the key would go past it.
template <class Base>
class FromFirstRow : public Base {
 public:
  using Base::Base;

 protected:
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
