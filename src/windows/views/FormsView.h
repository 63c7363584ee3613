#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "forms/ModalLoop.h"
#include "forms/PendingGestures.h"
#include "forms/SecondPress.h"
#include "windows/views/FormWindow.h"
#include "windows/views/KeyMessages.h"

namespace plotsmith::windows {

/// The forms as dialogs of Windows, on the host's thread. While a form waits, all messages of the thread are
/// handled, but the host's windows take no input.
class FormsView final : public forms::View {
 public:
  /// Makes a view. `hostWindow` returns the window that the dialogs stay in front of, or null if it isn't
  /// known.
  explicit FormsView(std::function<HWND()> hostWindow) : hostWindow_(std::move(hostWindow)) {}

  void Open(forms::Form& form) override;
  void Close(forms::Form& form) override;
  void Wait(forms::EventQueue& queue, std::optional<std::chrono::milliseconds> atMost) override;
  void HandleEvents(forms::EventQueue& queue) override;

  /// Returns the window of the form in front, or null if there is none.
  FormWindow* Front() const { return windows_.empty() ? nullptr : windows_.back().get(); }
  /// Returns true if the user can no longer reach the form in front, because its window was destroyed or the
  /// host is ending.
  bool IsFrontGone() const;
  /// Shows the changes of all forms.
  void ShowChanges();
  /// Moves the reported gestures to the queue.
  void PostTo(forms::EventQueue& queue) { pending_.MoveTo(queue); }
  /// Handles the thread's next message of these kinds (flags of PeekMessage; 0 for all). Returns false if
  /// there is none.
  bool HandleMessage(UINT kinds = 0);

 private:
  /// Posts again a WM_QUIT that was meant for the host.
  void PostQuitAgain();

  HWND Owner() const;

  std::function<HWND()> hostWindow_;
  std::optional<HeldKeys> heldKeys_;  ///< held while a form is open
  forms::SecondPress presses_;
  std::vector<std::unique_ptr<FormWindow>> windows_;
  forms::PendingGestures pending_;
  /// The exit code of a WM_QUIT that was taken out of the queue. The message is meant for the host's own
  /// loop, and is posted again when the last form has closed.
  std::optional<int> quitCode_;
};

}  // namespace plotsmith::windows
