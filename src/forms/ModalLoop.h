#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "forms/Form.h"

namespace plotsmith::forms {

/// The queue of user actions on forms, in the order in which they occurred. A view never calls a form from a
/// callback of its toolkit. It posts the action to the queue, and the loop performs it. Therefore no
/// exception of a form passes through the stack frames of a toolkit, and a form can be destroyed during its
/// own event.
class EventQueue {
 public:
  /// Adds an action on a form. `gesture` calls one of the members that begin with User.
  void Post(const Form& form, std::function<void()> gesture) {
    events_.push_back({form.Id(), std::move(gesture)});
  }
  /// Returns true if no action is waiting.
  bool IsEmpty() const { return events_.empty(); }

 private:
  friend class ModalLoop;
  struct Entry {
    std::uint64_t form;
    std::function<void()> gesture;
  };
  std::deque<Entry> events_;
};

/// Shows forms and reports the actions of the user. An implementation uses the windows of a toolkit, or a
/// script. Its members throw no exceptions. An unloaded form is no longer Visible and must not be shown. The
/// loop closes it only after its last event has returned, when the next form may already be open.
class View {
 public:
  virtual ~View() = default;

  /// Shows a form in front of all others.
  virtual void Open(Form& form) = 0;
  /// Closes the form that was opened last.
  virtual void Close(Form& form) = 0;
  /// Shows the changes, then waits until an action is posted, or for `atMost` if that is given. The program
  /// hangs if no action is ever posted.
  virtual void Wait(EventQueue& queue, std::optional<std::chrono::milliseconds> atMost) = 0;
  /// Shows the changes and posts the actions of the user since the last call, without waiting.
  virtual void HandleEvents(EventQueue& queue) = 0;
};

/// The loop that runs all modal forms. Forms can nest: an event of a form may show another form.
class ModalLoop {
 public:
  /// Makes a loop that shows its forms in `view`.
  explicit ModalLoop(std::shared_ptr<View> view) : view_(std::move(view)) {}

  /// The maximum depth of nested forms. Each step of a wizard, forward or back, adds one level and uses stack
  /// space.
  static constexpr std::size_t kMostForms = 500;
  /// The stack space in bytes that the innermost form needs for its work and for an error message.
  static constexpr std::size_t kStackOfForm = std::size_t{128} * 1024;

  /// Loads a form, if it isn't loaded yet, and shows it in front of the others. Returns when the form is
  /// closed. An error in one of its events closes it and is passed to the caller. Gestures on a form that
  /// isn't in front are dropped. Raises error 28 if too many forms are open, or if too little of the thread's
  /// stack is left.
  void ShowModal(std::shared_ptr<Form> form);
  /// Lets the view and the timers of the front form work during an event. Actions of the user wait until the
  /// event is over.
  void DoEvents();
  /// The front form, or null if no form is shown.
  Form* Front() const { return shown_.empty() ? nullptr : shown_.back().get(); }

 private:
  class Shown;
  void HandleOneEvent(Form& form);

  std::shared_ptr<View> view_;
  EventQueue queue_;
  std::vector<std::shared_ptr<Form>> shown_;
};

}  // namespace plotsmith::forms
