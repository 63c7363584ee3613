#include <gtest/gtest.h>

#include "common/App.h"
#include "tests/windows/views/DialogTest.h"
#include "tests/windows/views/ForeignDesktop.h"
#include "tests/windows/views/WindowState.h"

namespace plotsmith {
namespace {

using S = std::string;

/// Returns the left edge of a control of the front page, in pixels of the screen.
LONG LeftOf(const S& name) {
  RECT area = {};
  GetWindowRect(test::ControlWindow(test::FrontWindow(), name), &area);
  return area.left;
}

bool IsMirrored(HWND window) { return (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0; }

class MirroredTest : public test::DialogTest {
 protected:
  /// Opens a page in the language of the locale, and checks it.
  void OnPage(std::int32_t lcid, const S& lines, const std::function<void()>& look) {
    const auto move = [lcid] {
      App.Desktop = runtime::MakeRef<test::ForeignDesktop>(lcid), test::EndAction();
    };
    const auto action = [&] { look(), test::EndAction(); };
    EXPECT_EQ(PlayOnOrders("page frmPSSelectAction; do move; " + lines, {{"move", move}, {"look", action}}),
              "")
        << lcid;
  }
};

const S kToLayout =
    "press cmdNew; page frmPSSelectTable; select grdTables Data1; choose optType(1); press cmdNext; page "
    "frmPSLayoutABC; ";

TEST_F(MirroredTest, PagesAreMirroredWhereTextsAreReadFromRightToLeft) {
  for (const std::int32_t lcid : {1025, 1037, 1033, 1041}) {
    const bool isMirrored = lcid == 1025 || lcid == 1037;
    OnPage(lcid,
           kToLayout +
               "type txtTitle A; press cmdNext; page frmPSChartLocation; do look; press cmdCancel; page none",
           [&] {
             EXPECT_EQ(IsMirrored(test::FrontWindow()), isMirrored);
             EXPECT_EQ(IsMirrored(test::ControlWindow(test::FrontWindow(), "cmdCancel")), isMirrored);
             EXPECT_EQ(LeftOf("cmdHelp") > LeftOf("cmdFinish"), isMirrored);
             EXPECT_EQ(LeftOf("cmdBack") > LeftOf("cmdNext"), isMirrored);
           });
  }
}

TEST_F(MirroredTest, PicturesOfChartsAreNotMirrored) {
  OnPage(1037, kToLayout + "do look; press cmdCancel; page none", [] {
    for (const auto& control : test::StateOfWindow(test::FrontWindow()).controls) {
      EXPECT_EQ(IsMirrored(test::ControlWindow(test::FrontWindow(), control.name)), control.kind != "Image")
          << control.name;
    }
  });
}

}  // namespace
}  // namespace plotsmith
