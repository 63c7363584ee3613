#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "forms/ModalLoop.h"

namespace plotsmith::forms {

/// Stores an action of the user, which is performed later, outside the callbacks of the GUI toolkit.
using Post = std::function<void(std::function<void()> gesture)>;

/// The actions of the user that a view has received and not yet given to the loop.
class PendingGestures {
 public:
  PendingGestures() = default;
  PendingGestures(const PendingGestures&) = delete;
  PendingGestures& operator=(const PendingGestures&) = delete;

  /// Returns a function that stores the actions for a form. The gestures must outlive the function.
  Post PostFor(Form& form) {
    return [this, &form](std::function<void()> gesture) { pending_.push_back({&form, std::move(gesture)}); };
  }
  /// Discards the actions for a form.
  void Discard(const Form& form) {
    std::erase_if(pending_, [&](const Gesture& gesture) { return gesture.form == &form; });
  }
  /// Discards all actions.
  void Clear() { pending_.clear(); }
  /// Returns true if there is no action.
  bool IsEmpty() const { return pending_.empty(); }
  /// Moves the actions to the queue, in their order.
  void MoveTo(EventQueue& queue) {
    for (Gesture& gesture : std::exchange(pending_, {}))
      queue.Post(*gesture.form, std::move(gesture.gesture));
  }

 private:
  struct Gesture {
    Form* form;
    std::function<void()> gesture;
  };
  std::vector<Gesture> pending_;
};

}  // namespace plotsmith::forms
