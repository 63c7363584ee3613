#include "common/App.h"
#include "pages/frmBusyPS.h"
#include "tests/support/HostTest.h"

namespace plotsmith {
namespace {

class BusyWindowTest : public test::HostTest {};

TEST_F(BusyWindowTest, TheBusyWindowWorksOnceAndShowsLife) {
  Open(test::SalesBook({{"VEX_Chart1"}}));
  frmBusyPS window;
  window.lMethodType = frmBusyPS::kAllCharts;
  window.Load();
  window.Activate();
  EXPECT_FALSE(window.IsVisible());
  const auto lines = journal_.size();
  EXPECT_GT(lines, 0u);
  window.Activate();
  EXPECT_EQ(journal_.size(), lines) << "a second activation starts no second run";
  EXPECT_EQ(window.TimerInterval(), 100);
  for (int tick = 1; tick <= 20; ++tick) window.TimerTick();
  EXPECT_EQ(window.ProgressBarValue(), 100);
  window.TimerTick();
  EXPECT_EQ(window.ProgressBarValue(), 0);
  window.Deactivate();
  EXPECT_EQ(window.TimerInterval(), 0);
  frmBusyPS idle;
  idle.lMethodType = 3;
  App.Views->ShowModal(idle);
  EXPECT_EQ(journal_.size(), lines);
}

}  // namespace
}  // namespace plotsmith
