#pragma once

#include <QtCore/QObject>

#include "forms/Keys.h"

class QKeyEvent;

namespace plotsmith::qt {

/// Returns the key press of an event.
forms::KeyPress KeyPressOf(const QKeyEvent& event);

/// Ignores repetitions of a held key that would press one button after another. It affects all windows of the
/// program while it exists.
class HeldKeys final : public QObject {
 public:
  HeldKeys();

 protected:
  /// Discards the repetitions.
  bool eventFilter(QObject* object, QEvent* event) override;
};

}  // namespace plotsmith::qt
