#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "forms/ModalLoop.h"
#include "forms/PendingGestures.h"
#include "qt/forms/FormWindow.h"
#include "qt/forms/HeldKeys.h"

namespace plotsmith::qt {

/// Shows forms as windows. It needs a QApplication.
class QtView final : public forms::View {
 public:
  void Open(forms::Form& form) override;
  void Close(forms::Form& form) override;
  void Wait(forms::EventQueue& queue, std::optional<std::chrono::milliseconds> atMost) override;
  void HandleEvents(forms::EventQueue& queue) override;

  /// Sets the window that the forms stay in front of; null for none.
  void SetOwner(QWidget* owner) { owner_ = owner; }
  /// Called after each update of the forms, for example to update a window beside them.
  std::function<void()> Shown = [] {};

  /// Returns true if a form waits for the user, so that the system isn't busy.
  bool IsWaiting() const { return waits_; }
  /// The front window, or null if there is none.
  FormWindow* Front() const { return windows_.empty() ? nullptr : windows_.back().get(); }
  /// Shows the changes.
  void ShowChanges();
  /// Moves the user's actions to the queue.
  void PostTo(forms::EventQueue& queue) { pending_.MoveTo(queue); }
  /// Closes the next form that waits, as a user would, and all forms behind it.
  void CloseAll() { closesAll_ = true; }
  /// Cancels CloseAll before a new run.
  void CancelCloseAll() { closesAll_ = false; }

 private:
  QWidget* owner_ = nullptr;
  HeldKeys heldKeys_;
  forms::SecondPress presses_;
  std::vector<std::unique_ptr<FormWindow>> windows_;
  forms::PendingGestures pending_;
  bool closesAll_ = false;
  bool waits_ = false;
};

}  // namespace plotsmith::qt
