#pragma once

#include <memory>
#include <optional>

#include "forms/Form.h"
#include "windows/views/Annotations.h"
#include "windows/views/ControlViews.h"
#include "windows/views/DisabledWindows.h"
#include "windows/views/Fonts.h"

namespace plotsmith::windows {

/// The window of a form. The other windows of the thread are disabled while it is on the screen.
class FormWindow {
 public:
  /// `owner` is the window that this one stays in front of; null if there is none. `presses` outlives it.
  FormWindow(forms::Form& form, HWND owner, Post post, forms::SecondPress& presses);
  ~FormWindow();
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;

  forms::Form& Model() const { return form_; }
  /// Null once the window was destroyed from outside.
  HWND Handle() const { return window_; }
  void ShowOnScreen();
  /// Shows the state of the form, where it has changed.
  void Update();
  /// Makes the window the active one again after the form in front of it has closed. Gestures that were
  /// reported before that are forgotten, because the loop drops those of a form that isn't in front.
  void ComeBack();
  /// Handles a message as a dialog does; false if the message belongs to another window.
  bool TakeMessage(MSG& message);

 private:
  /// Makes the host's window the active one in place of this one.
  void GiveUpActivation();
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  static const wchar_t* ClassName();
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> HandleControl(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> HandlePlace(UINT message, WPARAM wParam, LPARAM lParam);

  /// The view of the control that has the focus; null if none has.
  ControlView* FocusView() const;
  bool TakeKey(const MSG& message);
  void UpdateFocus();

  void UseDpi(UINT dpi);
  /// The room inside of the window, the scroll bars included.
  forms::Size Room() const;
  /// The size of a window whose room inside has this size, in pixels, at `dpi` dots in an inch.
  SIZE SizeAround(const forms::Size& inside, UINT dpi) const;
  /// The size that the window should have at `dpi` dots in an inch, so that it shows as much of the page as
  /// now.
  SIZE ScaledSize(UINT dpi);
  /// Gives the window the size that its layout needs, or that of the screen if it is smaller, and places the
  /// window in the middle of the owner.
  void FitScreen(HWND owner);
  /// Places the controls. What is larger than the window can be scrolled.
  void Arrange();
  void SetScrollBar(int bar, int needed, int room);
  void Scroll(int bar, int by);
  void ScrollTo(int bar, WORD request);
  void ShowFocus(const ControlView& view);
  void Erase(HDC context) const;
  LRESULT ColorOf(HDC context, HWND control) const;

  forms::Form& form_;
  Post post_;
  HWND window_ = nullptr;
  Annotations annotations_;
  std::unique_ptr<Fonts> fonts_;
  std::unique_ptr<ControlViews> views_;
  std::optional<DisabledWindows> disabledWindows_;
  forms::Size least_;         ///< of the layout with its margins
  HWND lastFocus_ = nullptr;  ///< while another window is the active one
  bool isArranging_ = false;  ///< a scroll bar that comes or goes changes the size of the room
};

}  // namespace plotsmith::windows
