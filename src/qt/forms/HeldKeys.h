#pragma once

#include <QtCore/QObject>

namespace plotsmith::qt {

/// Lets a key that is held down count once, where it would press one button after the other: Enter and Escape
/// outside of a text of several lines, and all keys together with Alt. It works on all windows of the program
/// for as long as it lives.
class HeldKeys final : public QObject {
 public:
  HeldKeys();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
};

}  // namespace plotsmith::qt
