#include "windows/views/ScrolledPage.h"

#include <algorithm>

#include "windows/views/Flag.h"

namespace plotsmith::windows {
namespace {

constexpr int kMargin = 11, kLine = 24;  // at 96 dots per inch

int Width(const RECT& area) { return static_cast<int>(area.right - area.left); }
int Height(const RECT& area) { return static_cast<int>(area.bottom - area.top); }

RECT WindowArea(HWND window) {
  RECT area = {};
  GetWindowRect(window, &area);
  return area;
}

/// Returns the area of the window's monitor that taskbars leave free. Null means the primary monitor.
RECT WorkArea(HWND window) {
  MONITORINFO monitor = {};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &monitor);
  return monitor.rcWork;
}

/// Returns the area in which a window is centred: its owner's area, or the screen if the owner isn't visible.
RECT AreaAround(HWND owner) {
  const bool isSeen = owner != nullptr && IsWindowVisible(owner) && !IsIconic(owner);
  return isSeen ? WindowArea(owner) : WorkArea(owner);
}

/// Returns the distance of a scroll bar's thumb from its start.
int ScrollPlace(HWND window, int bar) {
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_POS;
  return GetScrollInfo(window, bar, &info) ? info.nPos : 0;
}

}  // namespace

POINT MiddleAround(HWND owner) {
  const RECT around = AreaAround(owner);
  return {around.left + Width(around) / 2, around.top + Height(around) / 2};
}

ScrolledPage::ScrolledPage(HWND window, const forms::Form& form, ControlViews& views)
    : window_(window), form_(form), views_(views) {
  UseDpi(GetDpiForWindow(window));
}

std::optional<LRESULT> ScrolledPage::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SIZE:
      if (!isArranging_) Arrange();
      return 0;
    case WM_DPICHANGED: {
      const RECT& area = *reinterpret_cast<const RECT*>(lParam);
      UseDpi(LOWORD(wParam));
      SetWindowPos(window_, nullptr, area.left, area.top, Width(area), Height(area),
                   SWP_NOZORDER | SWP_NOACTIVATE);
      Arrange();
      return 0;
    }
    case WM_GETDPISCALEDSIZE:
      *reinterpret_cast<SIZE*>(lParam) = ScaledSize(static_cast<UINT>(wParam));
      return TRUE;
    case WM_VSCROLL:
    case WM_HSCROLL:
      ScrollTo(message == WM_VSCROLL ? SB_VERT : SB_HORZ, LOWORD(wParam));
      return 0;
    case WM_MOUSEWHEEL:
      Scroll(SB_VERT, -MulDiv(GET_WHEEL_DELTA_WPARAM(wParam), 3 * LineHeight(), WHEEL_DELTA));
      return 0;
    default:
      return std::nullopt;
  }
}

int ScrolledPage::LineHeight() const {
  return MulDiv(kLine, static_cast<int>(fonts_->Dpi()), USER_DEFAULT_SCREEN_DPI);
}

void ScrolledPage::UseDpi(UINT dpi) {
  auto fonts = std::make_unique<Fonts>(dpi);
  views_.UseFonts(*fonts);
  fonts_ = std::move(fonts);
  const int margins = 2 * MulDiv(kMargin, static_cast<int>(dpi), USER_DEFAULT_SCREEN_DPI);
  const forms::Size inside = forms::LeastSize(form_.Layout(), views_);
  least_ = {inside.width + margins, inside.height + margins};
}

SIZE ScrolledPage::SizeAround(const forms::Size& inside, UINT dpi) const {
  RECT outside = {0, 0, inside.width, inside.height};
  const auto style = static_cast<DWORD>(GetWindowLongPtrW(window_, GWL_STYLE)) & ~(WS_VSCROLL | WS_HSCROLL);
  const auto extended = static_cast<DWORD>(GetWindowLongPtrW(window_, GWL_EXSTYLE));
  AdjustWindowRectExForDpi(&outside, style, FALSE, extended, dpi);
  return {Width(outside), Height(outside)};
}

// Texts don't grow in exact proportion to the resolution, so the minimum size of the page is measured again.
SIZE ScrolledPage::ScaledSize(UINT dpi) {
  const UINT before = fonts_->Dpi();
  const forms::Size room = Room();
  const auto grown = [&](int length) {
    return MulDiv(length, static_cast<int>(dpi), static_cast<int>(before));
  };
  const bool isWhole = room.width >= least_.width && room.height >= least_.height;
  forms::Size inside = {grown(room.width), grown(room.height)};
  UseDpi(dpi);
  if (isWhole) inside = {std::max(inside.width, least_.width), std::max(inside.height, least_.height)};
  UseDpi(before);
  return SizeAround(inside, dpi);
}

void ScrolledPage::FitScreen(HWND owner) {
  const SIZE outside = SizeAround(least_, fonts_->Dpi());
  const RECT work = WorkArea(owner), middle = AreaAround(owner);
  const int width = std::min<int>(outside.cx, Width(work)), height = std::min<int>(outside.cy, Height(work));
  const int left = static_cast<int>(middle.left) + (Width(middle) - width) / 2;
  const int top = static_cast<int>(middle.top) + (Height(middle) - height) / 2;
  SetWindowPos(window_, nullptr, std::clamp<int>(left, work.left, work.right - width),
               std::clamp<int>(top, work.top, work.bottom - height), width, height,
               SWP_NOZORDER | SWP_NOACTIVATE);
  Arrange();
}

forms::Size ScrolledPage::Room() const {
  const LONG_PTR style = GetWindowLongPtrW(window_, GWL_STYLE);
  RECT client = {};
  GetClientRect(window_, &client);
  if ((style & WS_VSCROLL) != 0) client.right += GetSystemMetricsForDpi(SM_CXVSCROLL, fonts_->Dpi());
  if ((style & WS_HSCROLL) != 0) client.bottom += GetSystemMetricsForDpi(SM_CYHSCROLL, fonts_->Dpi());
  return {static_cast<int>(client.right), static_cast<int>(client.bottom)};
}

// A scroll bar takes some room, so that the other one may become necessary.
void ScrolledPage::Arrange() {
  const Flag flag(isArranging_);
  const int dpi = static_cast<int>(fonts_->Dpi());
  const int barWidth = GetSystemMetricsForDpi(SM_CXVSCROLL, fonts_->Dpi());
  const int barHeight = GetSystemMetricsForDpi(SM_CYHSCROLL, fonts_->Dpi());
  forms::Size room = Room();
  const bool isTooWide = room.width < least_.width, isTooHigh = room.height < least_.height;
  if (isTooHigh || (isTooWide && room.height - barHeight < least_.height)) room.width -= barWidth;
  if (isTooWide || room.width < least_.width) room.height -= barHeight;
  SetScrollBar(SB_VERT, least_.height, room.height);
  SetScrollBar(SB_HORZ, least_.width, room.width);
  const int margin = MulDiv(kMargin, dpi, USER_DEFAULT_SCREEN_DPI);
  const forms::Area area = {margin - ScrollPlace(window_, SB_HORZ), margin - ScrollPlace(window_, SB_VERT),
                            std::max(room.width, least_.width) - 2 * margin,
                            std::max(room.height, least_.height) - 2 * margin};
  for (const auto& [control, place] : forms::Arrange(form_.Layout(), views_, area)) {
    if (ControlView* const view = views_.Find(*control)) view->Place(place);
  }
  RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void ScrolledPage::SetScrollBar(int bar, int needed, int room) {
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_RANGE | SIF_PAGE;
  info.nMax = needed - 1;
  info.nPage = static_cast<UINT>(room);
  SetScrollInfo(window_, bar, &info, TRUE);
}

void ScrolledPage::Scroll(int bar, int by) {
  const int before = ScrollPlace(window_, bar);
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_POS;
  info.nPos = before + by;
  SetScrollInfo(window_, bar, &info, TRUE);
  if (ScrollPlace(window_, bar) != before) Arrange();
}

void ScrolledPage::ScrollTo(int bar, WORD request) {
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  GetScrollInfo(window_, bar, &info);
  const auto page = static_cast<int>(info.nPage);
  switch (request) {
    case SB_LINEUP:
      return Scroll(bar, -LineHeight());
    case SB_LINEDOWN:
      return Scroll(bar, LineHeight());
    case SB_PAGEUP:
      return Scroll(bar, -page);
    case SB_PAGEDOWN:
      return Scroll(bar, page);
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK:
      return Scroll(bar, info.nTrackPos - info.nPos);
    default:
      return;
  }
}

void ScrolledPage::Show(const ControlView& view) {
  RECT area = WindowArea(view.Window()), room = {};
  MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&area), 2);
  GetClientRect(window_, &room);
  if (area.bottom > room.bottom) Scroll(SB_VERT, static_cast<int>(area.bottom - room.bottom));
  if (area.top < 0) Scroll(SB_VERT, static_cast<int>(area.top));
  if (area.right > room.right) Scroll(SB_HORZ, static_cast<int>(area.right - room.right));
  if (area.left < 0) Scroll(SB_HORZ, static_cast<int>(area.left));
}

}  // namespace plotsmith::windows
