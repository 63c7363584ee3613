#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "forms/Arrangement.h"
#include "forms/Control.h"
#include "forms/PendingGestures.h"
#include "windows/com/Windows.h"
#include "windows/views/Annotations.h"
#include "windows/views/Fonts.h"

/// Windows of forms, built from the standard controls of Windows. A view shows the state of the model and
/// reports gestures of the mouse and the keyboard. It decides nothing: the model refuses or performs a
/// gesture, and the view then shows the new state.
namespace plotsmith::windows {

using forms::Post;

/// The parts that the views of a form share.
struct Stage {
  HWND window;               ///< the form's window, which is the parent of all controls' windows
  Post post;                 ///< queues a gesture for the form
  Annotations& annotations;  ///< the names and descriptions for screen readers
};

/// The class, style and extended style of a control's window.
struct WindowKind {
  const wchar_t* className;  ///< the name of the window class, which Windows or this program defines
  DWORD style;               ///< the WS_ constants and those of the class
  DWORD extendedStyle = 0;   ///< the WS_EX_ constants
};

/// A window that shows one control. The window has the control's full name.
class ControlView {
 public:
  virtual ~ControlView();
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;

  /// The control.
  forms::Control& Model() const { return model_; }
  /// The handle of the window, or null after the window was destroyed.
  HWND Window() const { return window_; }
  /// Returns the view of a control's window, or null for other windows.
  static ControlView* Of(HWND window);

  /// Shows the state of the control, if it has changed since the last call or if user input has changed the
  /// window.
  void Update();
  /// Drops the gestures that were reported but not yet performed.
  void DiscardGestures();
  /// Uses these fonts from now on. They must outlive the view.
  void UseFonts(Fonts& fonts);
  /// Begins a group with this control, so that arrow keys don't reach it from the control before.
  void BeginGroup();
  /// Moves the focus here without reporting a gesture.
  void TakeFocus();

  /// Sizes in pixels; see forms::Measures.
  ///@{
  virtual forms::Size LeastSize() const = 0;
  virtual int WidthOf(int characters) const;
  virtual int HeightOf(int lines) const;
  ///@}
  /// Moves the window to this area, in pixels of the form's client area.
  virtual void Place(const forms::Area& area);

  /// Called when the window sends its form a WM_COMMAND with this notification code.
  virtual void OnCommand(WORD /*code*/) {}
  /// Called when the window sends its form a WM_NOTIFY. If this returns no value, Windows handles the
  /// message.
  virtual std::optional<LRESULT> OnNotify(NMHDR& /*header*/) { return std::nullopt; }
  /// Called when the form asks this view to draw the window.
  virtual void OnDraw(const DRAWITEMSTRUCT& /*item*/) {}

 protected:
  /// Creates the window as the last child of the form's window.
  ControlView(forms::Control& model, const Stage& stage, const WindowKind& kind);

  /// Shows the properties that only this kind of control has, without reporting a gesture.
  virtual void Show() = 0;
  /// Handles a message to the control's window before the window does. If this returns a value, the window
  /// doesn't get the message.
  virtual std::optional<LRESULT> OnMessage(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/) {
    return std::nullopt;
  }
  /// Returns true if the text is bold although the control's font isn't.
  virtual bool IsBold() const { return false; }
  /// Returns true during a gesture that is reported when it is complete. The window isn't updated until then.
  virtual bool IsInTheMiddle() const { return false; }
  /// Tells screen readers what to say about the control.
  virtual void ShowSpoken(const Spoken& spoken);
  /// The service that gives texts to screen readers.
  Annotations& Reader() const { return stage_.annotations; }
  /// The role of the control for screen readers, one of MSAA's ROLE_SYSTEM_ constants; 0 keeps the window's
  /// own role.
  virtual LONG Role() const { return 0; }

  /// Reports a gesture, unless the view itself is changing the window.
  void Report(std::function<void()> gesture);
  /// Reports that the user has moved the focus here.
  void ReportFocus();
  /// Requests one call of OnChanges after the messages that are waiting now, because Windows reports one
  /// change with several messages.
  void AwaitChanges();
  /// Called after AwaitChanges, when the waiting messages have been handled.
  virtual void OnChanges() {}
  /// Records that user input has changed the window, so that it may now differ from the model.
  void Touch() { touched_ = true; }
  /// Returns true while the window is getting the focus.
  bool IsTakingFocus() const { return isTakingFocus_; }

  /// Sends a message to the window and returns its result.
  LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageW(window_, message, wParam, lParam);
  }
  /// Returns the text of the window.
  std::wstring WindowText() const;
  /// Sets the window's text if it is different.
  void SetText(const std::string& text);
  /// The font of the window's text.
  HFONT Font() const { return font_; }
  /// The number of pixels per inch of the window's monitor.
  UINT Dpi() const { return dpi_; }
  /// Converts a length at 96 dots per inch to pixels.
  int Scaled(int length) const { return MulDiv(length, static_cast<int>(dpi_), USER_DEFAULT_SCREEN_DPI); }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                    DWORD_PTR data);
  /// Removes the view's data from the window. The view then has no window.
  void DetachWindow();
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
  void ShowFont();

  forms::Control& model_;
  Stage stage_;
  HWND window_;
  Fonts* fonts_ = nullptr;
  HFONT font_ = nullptr;
  UINT dpi_ = USER_DEFAULT_SCREEN_DPI;
  std::uint64_t shown_ = 0;
  std::optional<Spoken> spoken_;
  bool touched_ = true;
  bool isShowing_ = false;
  bool isTakingFocus_ = false;
  bool movesFocus_ = false;
  bool awaitsNews_ = false;
  int waiting_ = 0;  ///< gestures that were reported but not yet performed
};

}  // namespace plotsmith::windows
