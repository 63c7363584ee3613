#include <gtest/gtest.h>

#include "common/App.h"
#include "controller/System.h"
#include "pages/frmBusyPS.h"
#include "tests/support/SmallForm.h"
#include "tests/windows/views/DialogTest.h"
#include "tests/windows/views/WindowState.h"
#include "tests/windows/views/WindowsHand.h"

namespace plotsmith {
namespace {

using S = std::string;
using test::kWays;

constexpr UINT kGetPlace = WM_USER + 8;  // PBM_GETPOS

/// Tests the host's window after a page was closed.
class HostWindowTest : public test::DialogTest {
 protected:
  void ExpectFree() {
    EXPECT_TRUE(IsWindowEnabled(hostWindow_.Handle()));
    EXPECT_TRUE(hostWindow_.CameBackInTime()) << "a window of another program would have been activated";
    EXPECT_EQ(FindWindowW(L"PlotsmithForm", nullptr), nullptr);
  }
};

TEST_F(HostWindowTest, ItTakesNoInputWhileAPageIsOpenAndItsTimersTick) {
  const auto wait = [this] {
    const int ticks = hostWindow_.Ticks();
    EXPECT_FALSE(IsWindowEnabled(hostWindow_.Handle()));
    const POINT corner = {150, 150};
    SetCursorPos(corner.x, corner.y);
    INPUT inputs[4] = {};
    inputs[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
    inputs[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
    inputs[2].type = inputs[3].type = INPUT_KEYBOARD;
    inputs[2].ki.wVk = inputs[3].ki.wVk = 'A';
    inputs[3].ki.dwFlags = KEYEVENTF_KEYUP;
    SendInput(4, inputs, sizeof(INPUT));
    const DWORD end = GetTickCount() + 200;
    while (GetTickCount() < end) test::HandleMessages();
    EXPECT_GT(hostWindow_.Ticks(), ticks + 3);
    EXPECT_EQ(hostWindow_.Inputs(), 0);
  };
  EXPECT_EQ(PlayOnOrders(kWays[0].lines + "do wait; press cmdCancel; page none", {{"wait", wait}}), "");
  ExpectFree();
}

TEST_F(HostWindowTest, EachWayToCloseAPageEnablesIt) {
  const auto destroy = [] { DestroyWindow(test::FrontWindow()), test::EndAction(); };
  const auto quit = [] { PostQuitMessage(7), test::EndAction(); };
  for (const test::Way& way : kWays) {
    for (const S out : {"press cmdCancel", "escape", "close", "do destroy", "do quit"}) {
      EXPECT_EQ(PlayOnOrders(way.lines + out + "; page none", {{"destroy", destroy}, {"quit", quit}}), "")
          << way.page;
      ExpectFree();
      MSG message;
      const bool hasQuit = PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != FALSE;
      EXPECT_EQ(hasQuit, out == "do quit") << "the host's own loop has to end";
    }
  }
}

TEST_F(HostWindowTest, AHostThatIsDestroyedEndsTheRun) {
  const auto destroy = [this] { DestroyWindow(hostWindow_.Handle()), test::EndAction(); };
  EXPECT_EQ(PlayOnOrders(kWays[2].lines + "do destroy; page none", {{"destroy", destroy}}), "");
  EXPECT_EQ(FindWindowW(L"PlotsmithForm", nullptr), nullptr);
}

TEST_F(HostWindowTest, AnErrorOfAPageEnablesIt) {
  std::vector<S> log;
  const auto form = std::make_shared<test::SmallForm>(log);
  form->OnOK = [] { throw std::runtime_error("an error that no page handles"); };
  const auto view = std::make_shared<windows::FormsView>([this] { return hostWindow_.Handle(); });
  form->OnActivate = [&] { form->cmdOK.SetFocus(); };
  forms::ModalLoop loop(view);
  SetTimer(hostWindow_.Handle(), 2, 50, [](HWND window, UINT, UINT_PTR timer, DWORD) {
    KillTimer(window, timer);
    test::PostKey(GetFocus(), VK_SPACE);
  });
  EXPECT_THROW(loop.ShowModal(form), std::runtime_error);
  ExpectFree();
}

TEST_F(HostWindowTest, TheBusyWindowIsModalAndItsBarMovesWhileItWorks) {
  const auto view = std::make_shared<windows::FormsView>([this] { return hostWindow_.Handle(); });
  StartSystem(desktop_, view);
  std::vector<LRESULT> places;
  const auto work = [&](const S&) {
    const HWND window = view->Front()->Handle();
    PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0);  // The work must not be interrupted.
    for (int i = 0; i < 3; ++i) {
      Sleep(120);  // This is slightly longer than a tick of the window's timer.
      App.Forms->DoEvents();
      App.Forms->DoEvents();  // The changes of the tick are visible after the next update.
      places.push_back(SendMessageW(test::ControlWindow(window, "ProgressBar1"), kGetPlace, 0, 0));
    }
    EXPECT_TRUE(IsWindowVisible(window));
    EXPECT_FALSE(IsWindowEnabled(hostWindow_.Handle()));
    EXPECT_GE(hostWindow_.Ticks(), 3);
  };
  const auto busy = std::make_shared<frmBusyPS>(BusyWork{[] {}, work, [](std::int32_t) {}});
  busy->lMethodType = 1;
  App.Forms->ShowModal(busy);
  EXPECT_EQ(places, (std::vector<LRESULT>{5, 10, 15}));
  ExpectFree();
}

/// A window of the host that posts itself a message with each one, and never paints the area that it is asked
/// to paint.
LRESULT CALLBACK KeepBusy(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_PAINT) return 0;
  if (message != WM_APP) return DefWindowProcW(window, message, wParam, lParam);
  PostMessageW(window, WM_APP, 0, 0);
  return 0;
}

TEST_F(HostWindowTest, WorkContinuesAlthoughTheHostIsNeverIdle) {
  const HWND busy =
      CreateWindowW(L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr, nullptr, nullptr);
  SetWindowLongPtrW(busy, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(KeepBusy));
  PostMessageW(busy, WM_APP, 0, 0);
  InvalidateRect(busy, nullptr, TRUE);
  forms::EventQueue queue;
  windows::FormsView view([this] { return hostWindow_.Handle(); });
  const DWORD start = GetTickCount();
  view.HandleEvents(queue);
  EXPECT_LT(GetTickCount() - start, 1000u);
  DestroyWindow(busy);
}

// A screen reader may subclass the windows of a page.
TEST_F(HostWindowTest, ALaterSubclassReceivesTheEndOfTheWindow) {
  static WNDPROC before = nullptr;
  static int ends = 0;
  ends = 0;
  const auto watch = [] {
    const HWND button = test::ControlWindow(test::FrontWindow(), "cmdCancel");
    const WNDPROC own = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
      if (message == WM_NCDESTROY) ++ends;
      return CallWindowProcW(before, window, message, wParam, lParam);
    };
    before =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrW(button, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(own)));
    test::EndAction();
  };
  const auto destroy = [] { DestroyWindow(test::FrontWindow()), test::EndAction(); };
  for (const S out : {"press cmdCancel", "do destroy"}) {
    EXPECT_EQ(PlayOnOrders(kWays[2].lines + "do watch; " + out + "; page none",
                           {{"watch", watch}, {"destroy", destroy}}),
              "");
  }
  EXPECT_EQ(ends, 2);
}

TEST_F(HostWindowTest, NothingIsLeftOnTheThread) {
  const auto before = SetThreadDpiAwarenessContext(DPI_AWARENESS_CONTEXT_SYSTEM_AWARE);
  EXPECT_EQ(PlayOnOrders(kWays[2].lines + "press cmdCancel; page none"), "");
  EXPECT_EQ(GetAwarenessFromDpiAwarenessContext(SetThreadDpiAwarenessContext(before)),
            DPI_AWARENESS_SYSTEM_AWARE);
  MSG held = {hostWindow_.Handle(), WM_KEYDOWN, VK_RETURN, 0x40000001, 0, {}};
  EXPECT_FALSE(CallMsgFilterW(&held, MSGF_DIALOGBOX)) << "the hook is there";
  HANDLE context = nullptr;
  EXPECT_TRUE(GetCurrentActCtx(&context));
  EXPECT_EQ(context, nullptr) << "the activation context is there";
}

TEST_F(HostWindowTest, TheFinishedRunEnablesIt) {
  EXPECT_EQ(PlayOnOrders(kWays[6].lines + "press cmdFinish; page none"), "");
  ExpectFree();
}

}  // namespace
}  // namespace plotsmith
