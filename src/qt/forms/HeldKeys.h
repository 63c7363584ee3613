#pragma once

#include <QtCore/QObject>

#include "forms/Keys.h"

class QKeyEvent;

namespace plotsmith::qt {

/// The press that an event tells of.
forms::KeyPress KeyPressOf(const QKeyEvent& event);

/// Lets a key that is held down count once, where it would press one button after the other. It works on all
/// windows of the program for as long as it lives.
class HeldKeys final : public QObject {
 public:
  HeldKeys();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
};

}  // namespace plotsmith::qt
