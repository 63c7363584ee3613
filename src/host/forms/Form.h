#pragma once

#include <cstdint>

/// The port to windows, which know nothing of how they are drawn.
namespace plotsmith::forms {

/// A modal window, as its view sees it. The view calls the events; the window tells through IsVisible that it
/// wants to go.
class Form {
 public:
  virtual ~Form() = default;

  /// The first event, before the window is on the screen.
  virtual void Load() = 0;
  /// The window is on the screen. It may do all of its work in here, and has events handled meanwhile.
  virtual void Activate() = 0;
  /// The last event: the window has gone.
  virtual void Deactivate() = 0;
  /// False as soon as the window wants to go, which it may already at the end of Activate.
  virtual bool IsVisible() const = 0;
  /// Milliseconds between two ticks, 0 while the window's timer is off.
  virtual std::int32_t TimerInterval() const = 0;
  /// The interval has passed, seen while events were handled.
  virtual void TimerTick() = 0;
};

/// Shows windows.
class Views {
 public:
  virtual ~Views() = default;

  /// Loads and shows a window, and returns when it is no longer visible. Its timer ticks while events are
  /// handled.
  virtual void ShowModal(Form& form) = 0;
};

}  // namespace plotsmith::forms
