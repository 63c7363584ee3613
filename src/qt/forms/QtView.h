#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "forms/ModalLoop.h"
#include "qt/forms/FormWindow.h"
#include "qt/forms/HeldKeys.h"

namespace plotsmith::qt {

/// Forms as windows on the screen. Needs a QApplication.
class QtView final : public forms::View {
 public:
  void Open(forms::Form& form) override;
  void Close(forms::Form& form) override;
  void Wait(forms::EventQueue& queue, std::optional<std::chrono::milliseconds> atMost) override;
  void HandleEvents(forms::EventQueue& queue) override;

  /// Windows stay in front of `owner` from now on; null for none.
  void SetOwner(QWidget* owner) { owner_ = owner; }
  /// Called each time when the forms have been shown, for a window that shows something else beside them.
  std::function<void()> Shown = [] {};

  /// Whether a form waits for hands: the system isn't in the middle of anything.
  bool IsWaiting() const { return waits_; }
  /// The window of the form in front; null while there is none.
  FormWindow* Front() const { return windows_.empty() ? nullptr : windows_.back().get(); }
  /// Shows what has changed.
  void ShowChanges();
  /// Moves to the queue what hands did.
  void PostTo(forms::EventQueue& queue);
  /// Closes the form that waits next, as a hand would, and those behind it.
  void CloseAll() { closesAll_ = true; }
  /// Takes that back, for a new run.
  void StayOpen() { closesAll_ = false; }

 private:
  struct Gesture {
    forms::Form* form;
    std::function<void()> gesture;
  };

  QWidget* owner_ = nullptr;
  HeldKeys heldKeys_;
  forms::SecondPress presses_;
  std::vector<std::unique_ptr<FormWindow>> windows_;
  std::vector<Gesture> pending_;
  bool closesAll_ = false;
  bool waits_ = false;
};

}  // namespace plotsmith::qt
