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

/// What hands did to forms, in the order in which they did it. A view never calls into a form from a callback
/// of its toolkit: it posts the gesture here, and the loop performs it. So no exception of a form passes
/// through the frames of a toolkit, and a form may go inside of its own event.
class EventQueue {
 public:
  /// `gesture` calls one of the members that begin with User.
  void Post(const Form& form, std::function<void()> gesture) {
    events_.push_back({form.Id(), std::move(gesture)});
  }
  bool IsEmpty() const { return events_.empty(); }

 private:
  friend class ModalLoop;
  struct Entry {
    std::uint64_t form;
    std::function<void()> gesture;
  };
  std::deque<Entry> events_;
};

/// What shows forms and watches hands: windows of a toolkit, or a script. Its members throw nothing. A form
/// that was unloaded isn't Visible any more, and must not be seen, but it is closed only when its last event
/// has returned; the next form has been opened by then.
class View {
 public:
  virtual ~View() = default;

  /// The form comes to the screen, in front of all others.
  virtual void Open(Form& form) = 0;
  /// The form, which was opened last, goes from the screen.
  virtual void Close(Form& form) = 0;
  /// Shows what has changed, then blocks until something was posted, but no longer than `atMost` if that is
  /// given. Posting nothing at all, for ever, means to hang.
  virtual void Wait(EventQueue& queue, std::optional<std::chrono::milliseconds> atMost) = 0;
  /// Shows what has changed and posts what hands did meanwhile, without blocking.
  virtual void HandleEvents(EventQueue& queue) = 0;
};

/// The one loop that runs all modal forms. Forms nest: an event of one may show the next one.
class ModalLoop {
 public:
  explicit ModalLoop(std::shared_ptr<View> view) : view_(std::move(view)) {}

  /// How many forms can nest. Each step of a wizard, forth or back, is one more, and takes some of the stack.
  static constexpr std::size_t kMostForms = 500;
  /// The stack that the last of them needs for its own work and for a report, in bytes.
  static constexpr std::size_t kStackOfForm = std::size_t{128} * 1024;

  /// Loads a form, if it isn't loaded yet, and shows it in front of the others. Returns when the form has
  /// gone from the screen; an error of one of its events ends the show and goes to the caller. Gestures on a
  /// form that isn't the one in front are dropped.
  /// Error 28 where too many forms are shown already, or too little of the thread's stack is left.
  void ShowModal(std::shared_ptr<Form> form);
  /// Lets the view work, and timers of the form in front tick, in the middle of an event. Gestures wait until
  /// that event is over.
  void DoEvents();
  /// The form in front; null while none is shown.
  Form* Front() const { return shown_.empty() ? nullptr : shown_.back().get(); }

 private:
  class Shown;
  void HandleOneEvent(Form& form);

  std::shared_ptr<View> view_;
  EventQueue queue_;
  std::vector<std::shared_ptr<Form>> shown_;
};

}  // namespace plotsmith::forms
