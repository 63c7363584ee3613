#include <gtest/gtest.h>

#include "common/App.h"
#include "common/Intl.h"
#include "tests/support/SmallForm.h"
#include "tests/windows/views/Captions.h"
#include "tests/windows/views/DialogTest.h"
#include "tests/windows/views/ForeignDesktop.h"
#include "tests/windows/views/WindowState.h"
#include "tests/windows/views/WindowsHand.h"
#include "windows/views/ThreadDpi.h"

namespace plotsmith {
namespace {

using S = std::string;

RECT AreaOf(HWND window) {
  RECT area = {};
  GetWindowRect(window, &area);
  return area;
}

int Width(const RECT& area) { return static_cast<int>(area.right - area.left); }

UINT DpiOf(int percent) { return static_cast<UINT>(USER_DEFAULT_SCREEN_DPI * percent / 100); }

/// Moves the window to a monitor of another resolution, with the message that Windows sends.
void MoveToResolution(HWND window, UINT dpi) {
  SIZE size = {};
  RECT area = AreaOf(window);
  ASSERT_TRUE(SendMessageW(window, WM_GETDPISCALEDSIZE, dpi, reinterpret_cast<LPARAM>(&size)));
  area.right = area.left + size.cx;
  area.bottom = area.top + size.cy;
  SendMessageW(window, WM_DPICHANGED, static_cast<WPARAM>(MAKELONG(dpi, dpi)),
               reinterpret_cast<LPARAM>(&area));
}

/// Lets the window become larger than the test's screen, which is too small for most pages at 250 %.
void AllowAllSizes(HWND window) {
  static WNDPROC before = nullptr;
  const WNDPROC own = [](HWND form, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
    const LRESULT answer = CallWindowProcW(before, form, message, wParam, lParam);
    if (message == WM_GETMINMAXINFO) reinterpret_cast<MINMAXINFO*>(lParam)->ptMaxTrackSize = {9999, 9999};
    return answer;
  };
  before =
      reinterpret_cast<WNDPROC>(SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(own)));
}

/// Returns controls that overlap another one or are outside the window.
S OverlappingControls(HWND form) {
  S names;
  std::vector<RECT> areas;
  RECT room = {};
  GetClientRect(form, &room);
  MapWindowPoints(form, nullptr, reinterpret_cast<POINT*>(&room), 2);
  for (const auto& control : test::StateOfWindow(form).controls) {
    if (!control.visible) continue;
    const RECT area = AreaOf(test::ControlWindow(form, control.name));
    RECT both = {};
    IntersectRect(&both, &area, &room);
    if (!EqualRect(&both, &area)) names += control.name + " lies outside, ";
    if (control.kind == "Frame") continue;
    for (const RECT& other : areas) {
      if (IntersectRect(&both, &area, &other)) names += control.name + " lies on another, ";
    }
    areas.push_back(area);
  }
  return names;
}

class ResolutionTest : public test::DialogTest {};

TEST_F(ResolutionTest, EachPageIsCompleteInAllResolutionsAndFonts) {
  for (const test::Way& way : test::kWays) {
    const auto look = [&] {
      const HWND window = test::FrontWindow();
      AllowAllSizes(window);
      SetFocus(window);  // a caption is painted without the focus rectangle
      for (const std::int32_t lcid : {1033, 1041}) {
        App.Desktop = runtime::MakeRef<test::ForeignDesktop>(lcid);
        ApplyLocaleFontsToForm(test::FrontForm());
        for (const int percent : {100, 150, 200}) {
          SCOPED_TRACE(way.page + ", " + std::to_string(lcid) + ", " + std::to_string(percent) + " %");
          MoveToResolution(window, DpiOf(percent));
          EXPECT_EQ(test::CutCaptions(window), "");
          EXPECT_EQ(OverlappingControls(window), "");
          EXPECT_GE(Width(AreaOf(test::ControlWindow(window, "cmdCancel"))), 75 * percent / 100);
        }
      }
      test::EndAction();
    };
    EXPECT_EQ(PlayOnOrders(way.lines + "do look", {{"look", look}}), "") << way.page;
  }
}

TEST_F(ResolutionTest, AShrunkenWindowStaysSoInAnotherResolution) {
  const auto look = [] {
    const HWND window = test::FrontWindow();
    AllowAllSizes(window);
    SetWindowPos(window, nullptr, 0, 0, 320, 240, SWP_NOMOVE | SWP_NOZORDER);
    MoveToResolution(window, DpiOf(200));
    EXPECT_NEAR(Width(AreaOf(window)), 640, 16);
    test::EndAction();
  };
  EXPECT_EQ(PlayOnOrders(test::kWays[2].lines + "do look", {{"look", look}}), "");
}

// A pending gesture delays the update of the window, but not its new fonts.
TEST_F(ResolutionTest, FontsAreThereWhileAGestureWaits) {
  const auto look = [] {
    const HWND title = test::ControlWindow(test::FrontWindow(), "txtTitle");
    LOGFONTW before = {}, after = {};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(title, WM_GETFONT, 0, 0)), sizeof before, &before);
    SetFocus(title);
    PostMessageW(title, WM_CHAR, 'x', 0);
    test::HandleMessages();
    MoveToResolution(test::FrontWindow(), 2 * GetDpiForWindow(title));
    EXPECT_NE(
        GetObjectW(reinterpret_cast<HFONT>(SendMessageW(title, WM_GETFONT, 0, 0)), sizeof after, &after), 0);
    EXPECT_NEAR(after.lfHeight, 2 * before.lfHeight, 1);
    test::EndAction();
  };
  EXPECT_EQ(PlayOnOrders(test::kWays[2].lines + "do look; expect txtTitle.Text Ax", {{"look", look}}), "");
}

RECT createdAt = {};  // the initial position of the form's window

LRESULT CALLBACK WatchCreation(int code, WPARAM window, LPARAM data) {
  wchar_t name[32] = {};
  if (code == HCBT_CREATEWND) GetClassNameW(reinterpret_cast<HWND>(window), name, 32);
  if (wcscmp(name, L"PlotsmithForm") == 0) {
    const CREATESTRUCTW& creation = *reinterpret_cast<const CBT_CREATEWNDW*>(data)->lpcs;
    createdAt = {creation.x, creation.y, creation.x + creation.cx, creation.y + creation.cy};
  }
  return CallNextHookEx(nullptr, code, window, data);
}

// Windows gives a window the resolution of the monitor on which it is created, which may differ from that of
// its owner.
TEST_F(ResolutionTest, AWindowIsCreatedInTheMiddleOfItsOwner) {
  const windows::ThreadDpi dpi;
  const HHOOK hook = SetWindowsHookExW(WH_CBT, WatchCreation, nullptr, GetCurrentThreadId());
  SetWindowPos(hostWindow_.Handle(), nullptr, 300, 200, 900, 600, SWP_NOZORDER);
  std::vector<S> log;
  test::SmallForm form(log);
  windows::FormsView view([this] { return hostWindow_.Handle(); });
  view.Open(form);
  view.Close(form);
  UnhookWindowsHookEx(hook);
  const RECT middle = {750, 500, 750, 500};
  EXPECT_TRUE(EqualRect(&createdAt, &middle)) << createdAt.left << ", " << createdAt.top;
}

}  // namespace
}  // namespace plotsmith
