#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>
#include <QtCore/QPoint>

class QWidget;

namespace plotsmith::qt {

/// Keeps the second half of a double click away from buttons that have come up below the pointer meanwhile.
class SecondPress final : public QObject {
 public:
  /// Watches all buttons inside of `window`, which has just come, and belongs to it.
  explicit SecondPress(QWidget& window);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  QElapsedTimer sinceShown_;
  QPoint pointer_;  ///< where it was when the window came
};

}  // namespace plotsmith::qt
