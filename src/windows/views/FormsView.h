#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "forms/ModalLoop.h"
#include "forms/SecondPress.h"
#include "windows/views/FormWindow.h"
#include "windows/views/KeyMessages.h"

namespace plotsmith::windows {

/// The forms as dialogs of Windows, on the thread of the host. While a form waits, the messages of the whole
/// thread are handled, but the windows of the host take no input.
class FormsView final : public forms::View {
 public:
  /// `hostWindow` answers the window that the dialogs stay in front of; null if it isn't known.
  explicit FormsView(std::function<HWND()> hostWindow) : hostWindow_(std::move(hostWindow)) {}

  void Open(forms::Form& form) override;
  void Close(forms::Form& form) override;
  void Wait(forms::EventQueue& queue, std::optional<std::chrono::milliseconds> atMost) override;
  void HandleEvents(forms::EventQueue& queue) override;

  /// The window of the form in front; null while there is none.
  FormWindow* Front() const { return windows_.empty() ? nullptr : windows_.back().get(); }
  /// Whether no hand can reach the form in front any more: its window was destroyed, or the host ends.
  bool IsFrontGone() const;
  /// Shows what has changed.
  void ShowChanges();
  /// Moves to the queue what hands did.
  void PostTo(forms::EventQueue& queue);
  /// Handles the next message of the thread that is of these kinds (flags of PeekMessage; 0 for all). False
  /// if there is none.
  bool HandleMessage(UINT kinds = 0);

 private:
  /// Puts a WM_QUIT back that was meant for the host.
  void PostQuitAgain();
  struct Gesture {
    forms::Form* form;
    std::function<void()> gesture;
  };

  HWND Owner() const;

  std::function<HWND()> hostWindow_;
  std::optional<HeldKeys> heldKeys_;  ///< while a form is open
  forms::SecondPress presses_;
  std::vector<std::unique_ptr<FormWindow>> windows_;
  std::vector<Gesture> pending_;
  /// The host's own loop was told to end, with this code. It is told so again when the last form has gone.
  std::optional<int> quitCode_;  ///< of a WM_QUIT that was taken out of the queue
};

}  // namespace plotsmith::windows
