#pragma once

#include <cstdint>

namespace plotsmith::forms {

/// A modal window, as its view sees it. The view calls the events; the window tells through IsVisible that it
/// wants to go.
class Form {
 public:
  virtual ~Form() = default;

  virtual void Load() = 0;
  virtual void Activate() = 0;
  virtual void Deactivate() = 0;
  virtual bool IsVisible() const = 0;
  /// Milliseconds between two ticks, 0 while the window's timer is off.
  virtual std::int32_t TimerInterval() const = 0;
  virtual void TimerTick() = 0;
};

/// Shows windows.
class Views {
 public:
  virtual ~Views() = default;

  /// Loads and shows a window, and returns when it is hidden or unloaded. Its timer ticks while events are
  /// handled.
  virtual void ShowModal(Form& form) = 0;
};

}  // namespace plotsmith::forms
