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
    EXPECT_TRUE(hostWindow_.CameBackInTime()) << "a window of another program would have come to the front";
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

TEST_F(HostWindowTest, EachWayOutOfAPageGivesItBack) {
  const auto destroy = [] { DestroyWindow(test::FrontWindow()), test::EndDeed(); };
  const auto quit = [] { PostQuitMessage(7), test::EndDeed(); };
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
  const auto destroy = [this] { DestroyWindow(hostWindow_.Handle()), test::EndDeed(); };
  EXPECT_EQ(PlayOnOrders(kWays[2].lines + "do destroy; page none", {{"destroy", destroy}}), "");
  EXPECT_EQ(FindWindowW(L"PlotsmithForm", nullptr), nullptr);
}

TEST_F(HostWindowTest, AnErrorOfAPageGivesItBack) {
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

TEST_F(HostWindowTest, TheFinishedRunGivesItBack) {
  EXPECT_EQ(PlayOnOrders(kWays[6].lines + "press cmdFinish; page none"), "");
  ExpectFree();
}

}  // namespace
}  // namespace plotsmith
