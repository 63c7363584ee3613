#include "tests/support/PagesTest.h"

namespace plotsmith {
namespace {

using namespace test;
using S = std::string;

/// Tests what depends on the focus on layout pages: the marked frame, the axis boxes, the default button.
class LayoutFocusTest : public PagesTest {};

constexpr int kBar = 0, kColumn = 1, kPie = 3, kBubble = 4, kBucket = 5;

TEST_F(LayoutFocusTest, TheFrameOfTheFocusIsMarked) {
  const S labels = "lblNumberMask lblNumberExample lblMaskExample lblHAxis lblVAxis";
  const struct {
    int type;
    S script, marked;
  } cases[] = {
      {kColumn, "", "Frame1"},
      {kColumn, "choose optSeries(1)", "Frame3 optSeries(0) optSeries(1) optSeries(2)"},
      {kColumn, "choose optSeries(1); choose cboSeries Region",
       "Frame3 optSeries(0) optSeries(1) optSeries(2)"},
      {kColumn, "focus txtHAxis", "Frame5 chkShowValues " + labels},
      {kColumn, "check chk3D", "Frame6 chk3D chkStacked chk100Pct"},
      {kColumn, "focus txtComment", "Frame7"},
      {kColumn, "focus txtHAxis; press cmdHelp", ""},
      {kColumn, "focus cmdFinish", ""},
      {kColumn, "focus cmdBack", ""},
      {kColumn, "focus cmdCancel", ""},
      {kColumn,
       "choose optCategories(2); press cmdNext; expect message \"Please select a 'Horizontal (X-axis) "
       "Shows' entry\"",
       "Frame2 optCategories(1) optCategories(2)"},
      {kPie, "focus lstCategories; press cmdHelp", "Frame2"},
      {kPie, "choose optDataLabels(1); focus cmdNext", ""},
      {kPie, "choose optDataLabels(1)",
       "Frame5 optDataLabels(0) optDataLabels(1) optDataLabels(2) lblData lblExample lblMaskExample"},
      {kBubble, "focus cboSizes; press cmdHelp", "Frame9 chkShowZeroBubbles"},
      {kBubble, "check chkQuadrants", "Frame6 chk3D chkQuadrants chkScaleXAxis chkScaleYAxis"},
      {kBucket, "check chkShowNames", "Frame5 chkShowNames " + labels},
      {kBucket, "check chkShowNames; press cmdHelp", ""},
  };
  for (const auto& [type, script, marked] : cases) {
    EXPECT_EQ(Play(type == kBucket ? NewBucketBook() : SalesBook({}),
                   NewChart(type) + script + "; look marked " + marked),
              "");
  }
}

TEST_F(LayoutFocusTest, AxisBoxesFollowTheColumnsUntilTheUserTypes) {
  const std::pair<int, S> cases[] = {
      {kColumn,
       "choose cboCategories Product; expect txtHAxis.Text Product; choose cboValues Cost; expect "
       "txtVAxis.Text Cost"},
      {kBar,
       "choose cboCategories Product; expect txtVAxis.Text Product; choose cboValues Cost; expect "
       "txtHAxis.Text Cost"},
      {kColumn,
       "type txtHAxis Mine; choose cboCategories Product; choose cboValues Cost; expect txtHAxis.Text "
       "Mine; expect txtVAxis.Text Cost"},
      {kColumn, "type txtHAxis \"\"; choose cboCategories Product; expect txtHAxis.Text \"\""},
      {kColumn, "type txtHAxis Region; choose cboCategories Product; expect txtHAxis.Text Product"},
      {kColumn, "focus txtHAxis; choose cboCategories Product; expect txtHAxis.Text Product"},
      {kColumn,
       "type txtHAxis Mine; focus txtVAxis; type txtHAxis Region; choose cboCategories Product; expect "
       "txtHAxis.Text Region"},
      {kColumn,
       "type txtVAxis Mine; enter; page frmPSChartLocation; press cmdBack; choose cboValues Cost; expect "
       "txtVAxis.Text Mine"},
      {kBubble,
       "type txtHAxis Mine; choose cboXValues Cost; select lstYValues Cost; expect txtHAxis.Text Mine; "
       "expect txtVAxis.Text Cost"},
      {kBubble,
       "type txtVAxis Mine; choose cboXValues Cost; select lstYValues Cost; expect txtHAxis.Text Cost; "
       "expect txtVAxis.Text Mine"},
  };
  for (const auto& [type, script] : cases)
    EXPECT_EQ(Play(SalesBook({}), NewChart(type) + script), "") << script;
}

TEST_F(LayoutFocusTest, EnterEndsALineOfTheComment) {
  for (const int type : {kColumn, kPie, kBubble, kBucket}) {
    EXPECT_EQ(
        Play(type == kBucket ? NewBucketBook() : SalesBook({}),
             NewChart(type) + "look default cmdNext; type txtComment a; look default ; enter; expect "
                              "txtComment.Text \"a\\n\"; focus txtTitle; look default cmdNext; enter; page "
                              "frmPSChartLocation; look default cmdFinish"),
        "");
  }
}

TEST_F(LayoutFocusTest, TheExampleShowsTheNumberFormat) {
  const S list = "\"#;(#);|#,###;(#,###);|$#,###;($#,###);\"";
  const std::pair<int, S> pages[] = {
      {kColumn, "cboDataLabelMask"}, {kPie, "cboNumberMask"}, {kBucket, "cboDataLabelMask"}};
  for (const auto& [type, mask] : pages) {
    const auto example = [](const S& text) { return "; expect lblMaskExample.Caption " + text; };
    EXPECT_EQ(Play(NewBucketBook(), NewChart(type) + "expect " + mask + ".List " + list +
                                        example("12345.6789") + "; choose " + mask + " \"$#,###;($#,###);\"" +
                                        example("$12,346") + "; type " + mask + " 0.0" + example("$12,346") +
                                        "; focus txtTitle" + example("12345.7") + "; type " + mask +
                                        " \"0 [\"; focus txtTitle" + example("\"(invalid format)\"") +
                                        "; type " + mask + " \"\"; focus txtTitle" + example("12345.6789")),
              "");
  }
}

}  // namespace
}  // namespace plotsmith
