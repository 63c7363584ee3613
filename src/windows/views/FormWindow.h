#pragma once

#include <memory>
#include <optional>

#include "forms/Form.h"
#include "windows/desktop/DisabledWindows.h"
#include "windows/views/Annotations.h"
#include "windows/views/ControlViews.h"
#include "windows/views/ScrolledPage.h"

namespace plotsmith::windows {

/// The window of a form. The thread's other windows are disabled while it is open.
class FormWindow {
 public:
  /// Makes the window of a form. It stays in front of `owner`, which may be null. `presses` must outlive the
  /// window.
  FormWindow(forms::Form& form, HWND owner, Post post, forms::SecondPress& presses);
  ~FormWindow();
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;

  /// The form.
  forms::Form& Model() const { return form_; }
  /// Returns the handle, or null if the window was destroyed from outside.
  HWND Handle() const { return window_; }
  /// Shows the window, activates it, and disables the thread's other windows.
  void ShowOnScreen();
  /// Shows the changes of the form's state.
  void Update();
  /// Activates the window again after the form in front of it has closed. Drops the gestures that were
  /// reported before, just as the loop drops gestures of a form that isn't in front.
  void BecomeFront();
  /// Handles a message as dialogs do. Returns false if the message belongs to another window.
  bool TakeMessage(MSG& message);

 private:
  /// Activates the host's window instead of this one.
  void GiveUpActivation();
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  static const wchar_t* ClassName();
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> HandleControl(UINT message, WPARAM wParam, LPARAM lParam);

  /// Returns the view of the control with the focus, or null if none has it.
  ControlView* FocusView() const;
  bool TakeKey(const MSG& message);
  void UpdateFocus();

  void Erase(HDC context) const;
  LRESULT ColorOf(HDC context, HWND control) const;

  forms::Form& form_;
  Post post_;
  HWND window_ = nullptr;
  Annotations annotations_;
  std::unique_ptr<ControlViews> views_;
  std::unique_ptr<ScrolledPage> page_;
  std::optional<DisabledWindows> disabledWindows_;
  HWND lastFocus_ = nullptr;  ///< the last window with the focus, stored while another window is active
};

}  // namespace plotsmith::windows
