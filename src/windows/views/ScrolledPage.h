#pragma once

#include <memory>
#include <optional>

#include "forms/Form.h"
#include "windows/views/ControlViews.h"
#include "windows/views/Fonts.h"

namespace plotsmith::windows {

/// Returns the point of the screen on which a window of `owner` is centred: the middle of the owner, or of
/// the screen if the owner isn't visible.
POINT MiddleAround(HWND owner);

/// The places of a form's controls in its window, at the resolution of the window's monitor. A page that is
/// larger than the window can be scrolled.
class ScrolledPage {
 public:
  /// Measures the page. The window, the form and the views must outlive this object.
  ScrolledPage(HWND window, const forms::Form& form, ControlViews& views);

  /// Gives the window the size that its layout needs, or the screen's size if that is smaller, and centres
  /// the window on its owner.
  void FitScreen(HWND owner);
  /// Handles messages about the window's size, resolution and scroll bars. Returns nothing for other
  /// messages.
  std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam);
  /// Scrolls until the control can be seen.
  void Show(const ControlView& view);

 private:
  /// Returns the distance that one click on an arrow of a scroll bar scrolls, in pixels.
  int LineHeight() const;
  void UseDpi(UINT dpi);
  /// Returns the size of the client area, including scroll bars.
  forms::Size Room() const;
  /// Returns the size in pixels of a window whose client area has this size, at `dpi` dots per inch.
  SIZE SizeAround(const forms::Size& inside, UINT dpi) const;
  /// Returns the size that the window needs at `dpi` dots per inch to show as much of the page as now.
  SIZE ScaledSize(UINT dpi);
  /// Places the controls. The window gets scroll bars if the page is larger.
  void Arrange();
  void SetScrollBar(int bar, int needed, int room);
  void Scroll(int bar, int by);
  void ScrollTo(int bar, WORD request);

  HWND window_;
  const forms::Form& form_;
  ControlViews& views_;
  std::unique_ptr<Fonts> fonts_;
  forms::Size least_;  ///< the minimum size of the layout, with its margins
  /// True while Arrange works, because scroll bars that appear or disappear change the client area.
  bool isArranging_ = false;
};

}  // namespace plotsmith::windows
