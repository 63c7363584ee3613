#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>
#include <QtCore/QPoint>

class QWidget;

namespace plotsmith::qt {

/// Ignores the second press of a double click on buttons that have appeared below the pointer.
class PressAfterShow final : public QObject {
 public:
  /// Watches all buttons in `window`, which has just been shown and owns this object.
  explicit PressAfterShow(QWidget& window);

 protected:
  /// Discards the second press.
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  QElapsedTimer sinceShown_;
  QPoint pointer_;  ///< The position of the pointer when the window was shown.
};

}  // namespace plotsmith::qt
