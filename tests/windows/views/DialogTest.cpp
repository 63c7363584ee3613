#include "tests/windows/views/DialogTest.h"

#include "tests/support/Paths.h"
#include "tests/support/RunCommand.h"

namespace plotsmith::test {
namespace {

constexpr UINT kTickInterval = 10;  // milliseconds

bool IsInput(UINT message) {
  return (message >= WM_KEYFIRST && message <= WM_KEYLAST) ||
         (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST);
}

}  // namespace

HostWindow::HostWindow() {
  static const ATOM windowClass = [] {
    WNDCLASSW own = {};
    own.lpfnWndProc = Procedure;
    own.hbrBackground = GetSysColorBrush(COLOR_APPWORKSPACE);
    own.lpszClassName = L"TestHost";
    return RegisterClassW(&own);
  }();
  window_ = CreateWindowW(MAKEINTATOM(windowClass), L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100, 100, 1200,
                          900, nullptr, nullptr, nullptr, nullptr);
  SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  SetTimer(window_, 1, kTickInterval, nullptr);
}

HostWindow::~HostWindow() {
  SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
  DestroyWindow(window_);
}

LRESULT CALLBACK HostWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* const host = reinterpret_cast<HostWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (host == nullptr) return DefWindowProcW(window, message, wParam, lParam);
  if (message == WM_TIMER) ++host->ticks_;
  if (IsInput(message)) ++host->inputs_;
  if (message == WM_ENABLE && wParam != FALSE) {
    host->cameBackInTime_ = host->cameBackInTime_ && FindWindowW(L"PlotsmithForm", nullptr) != nullptr;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

DialogTest::DialogTest() {
  orders_ = folder_ / "orders.xlsx";
  std::filesystem::copy_file(std::string(kSourceFolder) + "/examples/data/orders.xlsx", orders_);
  const auto made = RunCommand({"new", orders_, "--table", "Data1", "--type", "pie", "--title", "Units",
                                "--categories", "Product", "--values", "Units"});
  EXPECT_EQ(made.code, 0) << made.err;
  theHostWindow = hostWindow_.Handle();
}

DialogTest::~DialogTest() { theHostWindow = nullptr; }

std::string DialogTest::PlayOnOrders(const std::string& script, Actions actions) {
  OpenFile(orders_);
  return Play(script, std::move(actions));
}

}  // namespace plotsmith::test
