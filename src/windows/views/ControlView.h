#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "forms/Arrangement.h"
#include "forms/Control.h"
#include "windows/com/Windows.h"
#include "windows/views/Annotations.h"
#include "windows/views/Fonts.h"

/// Windows for forms, made of the controls that Windows has. A view shows the state of the model and reports
/// gestures of the mouse and the keyboard. It decides nothing: the model refuses a gesture or performs it,
/// and the view then shows the new state.
namespace plotsmith::windows {

/// Takes a gesture down. It is performed later, outside of all window procedures.
using Post = std::function<void(std::function<void()> gesture)>;

/// What the views of a form share.
struct Stage {
  HWND window;  ///< of the form; the windows of all its controls are its children
  Post post;
  Annotations& annotations;
};

/// The class, style and extended style of a control's window.
struct WindowKind {
  const wchar_t* className;
  DWORD style;
  DWORD extendedStyle = 0;
};

/// A window that shows one control. The window's name is the control's full name.
class ControlView {
 public:
  virtual ~ControlView();
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;

  forms::Control& Model() const { return model_; }
  HWND Window() const { return window_; }
  /// The view of a control's window; null for other windows.
  static ControlView* Of(HWND window);

  /// Shows the state of the control, if it has changed since the last time or a hand has touched the window.
  void Update();
  /// Forgets gestures that were reported and not performed yet: they never will be.
  void ForgetGestures();
  /// Shows texts in these fonts from now on; they must outlive the view.
  void UseFonts(Fonts& fonts);
  /// Begins a group with this control: the arrow keys don't come here from the control before.
  void BeginGroup();
  /// Moves the focus here without reporting that as a gesture.
  void TakeFocus();

  /// Sizes in pixels; see forms::Measures.
  ///@{
  virtual forms::Size LeastSize() const = 0;
  virtual int WidthOf(int characters) const;
  virtual int HeightOf(int lines) const;
  ///@}
  virtual void Place(const forms::Area& area);

  /// The window tells its form of something, by WM_COMMAND with this code.
  virtual void OnCommand(WORD /*code*/) {}
  /// The same by WM_NOTIFY; absent leaves the answer to Windows.
  virtual std::optional<LRESULT> OnNotify(NMHDR& /*header*/) { return std::nullopt; }
  /// The window is to be drawn by its form.
  virtual void OnDraw(const DRAWITEMSTRUCT& /*item*/) {}

 protected:
  /// Makes the window, as the last child of the form's.
  ControlView(forms::Control& model, const Stage& stage, const WindowKind& kind);

  /// Puts what the kind of control has of its own on the window, without reporting that as a gesture.
  virtual void Show() = 0;
  /// A message to the control's window, before the window gets it. An answer keeps it from the window.
  virtual std::optional<LRESULT> OnMessage(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/) {
    return std::nullopt;
  }
  /// Whether the text is bold beyond what the control's font says.
  virtual bool IsBold() const { return false; }
  /// Whether a person is in the middle of a gesture, which is reported when it is complete. Until then the
  /// window isn't updated.
  virtual bool IsInTheMiddle() const { return false; }
  /// Tells screen readers what they say of the control.
  virtual void ShowSpoken(const Spoken& spoken);
  Annotations& Reader() const { return stage_.annotations; }
  /// The role of the control for screen readers, one of MSAA's ROLE_SYSTEM_; 0 leaves the window's own.
  virtual LONG Role() const { return 0; }

  /// Reports a gesture, unless the view itself is showing something.
  void Report(std::function<void()> gesture);
  /// Reports that a hand has moved the focus here.
  void ReportFocus();
  /// Has OnNews called once, when the messages that wait now have been handled. Windows tells of one change
  /// in several messages.
  void AwaitNews();
  virtual void OnNews() {}
  /// The state isn't what the model says any more, because a hand has touched the window.
  void Touch() { touched_ = true; }
  /// The window is getting the focus just now.
  bool IsTakingFocus() const { return isTakingFocus_; }

  LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageW(window_, message, wParam, lParam);
  }
  std::wstring WindowText() const;
  /// Writes the text on the window, unless it is there already.
  void SetText(const std::string& text);
  HFONT Font() const { return font_; }
  UINT Dpi() const { return dpi_; }
  /// A length that was designed for 96 dots in an inch.
  int Scaled(int length) const { return MulDiv(length, static_cast<int>(dpi_), USER_DEFAULT_SCREEN_DPI); }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                    DWORD_PTR data);
  /// Removes from the window what the view has put on it, and forgets the window.
  void LetGo();
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
  int waiting_ = 0;  ///< gestures that were reported and not performed yet
};

}  // namespace plotsmith::windows
