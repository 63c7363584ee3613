#include <memory>
#include <vector>

#include "common/App.h"
#include "controller/System.h"
#include "pages/frmBusyPS.h"
#include "tests/support/HandView.h"
#include "tests/support/HostTest.h"

namespace plotsmith {
namespace {

using S = std::string;

class BusyWindowTest : public test::HostTest {
 protected:
  BusyWindowTest() { StartSystem(desktop_, view_); }
  /// Shows a window with the work. `during` runs in the middle of it.
  void Show(
      std::int32_t method, std::function<void(frmBusyPS&)> during = [](frmBusyPS&) {}) {
    auto* const self = this;
    std::shared_ptr<frmBusyPS> window;
    window = std::make_shared<frmBusyPS>(
        BusyWork{[&] { self->works_.push_back("all"), during(*window); },
                 [&](const S& id) { self->works_.push_back("one " + id), during(*window); },
                 [&](std::int32_t mode) { self->works_.push_back("run " + std::to_string(mode)); }});
    window->lMethodType = method;
    window->sChartID = "VEX_Chart7";
    window->rMode = 1;
    EXPECT_EQ(window->WaitLabel.Caption(), "Loading . . .");
    EXPECT_EQ(window->Caption(), "Please Wait");
    App.Forms->ShowModal(window);
    EXPECT_FALSE(window->Visible());
    EXPECT_FALSE(window->Timer1.Enabled());
    EXPECT_EQ(window->ProgressBar1.Value(), 0);
  }
  std::shared_ptr<test::HandView> view_ = std::make_shared<test::HandView>();
  std::vector<S> works_;
};

TEST_F(BusyWindowTest, ItDoesItsWork) {
  for (const std::int32_t method : {0, 1, 2, 3}) Show(method);
  EXPECT_EQ(works_, (std::vector<S>{"all", "one VEX_Chart7", "run 1"}));
  S log;
  for (int i = 0; i < 4; ++i) log += "show frmBusyPS; close frmBusyPS; ";
  EXPECT_EQ(view_->log, log) << "it closes without user input";
}

TEST_F(BusyWindowTest, TheBarMovesWhenTheWorkYields) {
  Show(0, [](frmBusyPS& window) {
    ASSERT_TRUE(window.Timer1.Enabled());
    EXPECT_EQ(window.Timer1.Interval(), 100);
    for (int tick = 1; tick <= 20; ++tick) window.Timer1.Fire();
    EXPECT_EQ(window.ProgressBar1.Value(), 100);
    window.Timer1.Fire();
    EXPECT_EQ(window.ProgressBar1.Value(), 0);
    window.Timer1.SetInterval(1);
    while (window.Timer1.UntilDue()->count() > 0) {
    }
    App.Forms->DoEvents();
    EXPECT_EQ(window.ProgressBar1.Value(), 5) << "the timer ticks during a yield";
    EXPECT_EQ(window.Timer1.Interval(), 100);
  });
}

TEST_F(BusyWindowTest, AnErrorOfTheWorkReachesTheCallerAndClosesTheWindow) {
  EXPECT_THROW(Show(0, [](frmBusyPS&) { throw runtime::RuntimeError(13); }), runtime::RuntimeError);
  EXPECT_EQ(view_->log, "show frmBusyPS; close frmBusyPS; ");
  EXPECT_EQ(App.Forms->Front(), nullptr);
}

}  // namespace
}  // namespace plotsmith
