#include "tests/support/PagesTest.h"

namespace plotsmith {
namespace {

using namespace test;
using S = std::string;

class LayoutABCTest : public PagesTest {};

constexpr int kBarType = 0, kColumnType = 1, kAreaType = 2;

TEST_F(LayoutABCTest, StatesFollowEachClick) {
  const S stack = " chkStacked chk100Pct", fresh = "lstCategories cboSeries lstSeries" + stack;
  const S byColumns = "cboCategories cboSeries optSeries(2) lstSeries cboValues" + stack;
  const struct {
    S script, off;  ///< A step on the page, and the disabled controls after it.
    S expected;     ///< Further lines.
  } cases[] = {
      {"", fresh,
       "expect cboCategories.Text Region; expect cboValues.Text Amount; expect txtHAxis.Text Region; "
       "expect txtVAxis.Text Amount; expect optSeries(0).Value yes; expect cboSeries.ListIndex -1; "
       "look pictures imgLegendDim imgColumnBasic; look default cmdNext"},
      {"choose optSeries(1)", "lstCategories lstSeries chk100Pct",
       "expect cboSeries.ListIndex -1; look pictures imgLegend imgColumnCluster"},
      {"choose optSeries(1); choose cboSeries Product; check chkStacked", "lstCategories lstSeries", ""},
      {"choose optSeries(1); check chkStacked; check chk100Pct; uncheck chkStacked",
       "lstCategories lstSeries chk100Pct", "expect chk100Pct.Value 0"},
      {"choose optSeries(1); choose cboSeries Product; check chkStacked; check chk100Pct; choose "
       "optSeries(0)",
       fresh, "expect chkStacked.Value 0; expect chk100Pct.Value 0; expect cboSeries.ListIndex -1"},
      {"choose optSeries(2); select lstSeries Amount Cost",
       "optCategories(2) lstCategories cboSeries cboValues chk100Pct",
       "expect cboValues.ListIndex -1; expect txtVAxis.Text \"\"; look pictures imgLegend imgColumnCluster"},
      {"choose optSeries(2); select lstSeries Cost; choose optSeries(1)", "lstCategories lstSeries chk100Pct",
       "expect lstSeries.SelCount 0; expect cboValues.ListIndex -1"},
      {"choose optSeries(2); select lstSeries Cost; choose optCategories(1)",
       "optCategories(2) lstCategories cboSeries cboValues chk100Pct", "expect lstSeries.Selected Cost"},
      {"choose optCategories(2)", byColumns,
       "expect cboCategories.ListIndex -1; expect cboValues.ListIndex -1; expect txtVAxis.Text \"\"; "
       "look pictures imgLegendDim imgColumnBasic"},
      {"choose optSeries(1); choose cboSeries Product; choose optCategories(2)", byColumns,
       "expect optSeries(0).Value yes; expect cboSeries.ListIndex -1"},
      {"choose optCategories(2); select lstCategories Cost; choose optCategories(1)", fresh,
       "expect lstCategories.SelCount 0; expect cboCategories.ListIndex -1; expect cboValues.ListIndex -1"},
      {"choose optCategories(2); choose optSeries(1); choose cboSeries Region",
       "cboCategories optSeries(2) lstSeries cboValues chk100Pct", ""},
      {"type txtVAxis Mine; choose optCategories(2)", byColumns, "expect txtVAxis.Text Mine"},
      {"choose optSeries(1); choose cboSeries Product; choose cboValues Cost",
       "lstCategories lstSeries chk100Pct", "expect optSeries(1).Value yes"},
  };
  for (const auto& [script, off, expected] : cases) {
    EXPECT_EQ(Play(SalesBook({}), NewChart(kColumnType) + script + "; look off " + off + "; " + expected),
              "");
  }
}

TEST_F(LayoutABCTest, TheNumberOfColumnsDeterminesTheColors) {
  struct Case {
    std::vector<S> labels, numbers;
    S script, off;
  };
  const S rest = " chkStacked chk100Pct";
  const Case cases[] = {
      {{"A"}, {"N"}, "", "lstCategories optSeries(1) cboSeries lstSeries" + rest},
      {{"A", "B"}, {"N"}, "", "lstCategories cboSeries lstSeries" + rest},
      {{"A"}, {"N", "M"}, "", "lstCategories cboSeries lstSeries" + rest},
      {{"A"},
       {"N"},
       "choose optSeries(2); expect optSeries(0).Value yes; expect cboValues.ListIndex -1; press cmdNext; "
       "expect message \"Please select a 'Column Height' entry\"",
       "lstCategories optSeries(1) cboSeries lstSeries cboValues" + rest},
      {{"A"},
       {"N"},
       "choose optSeries(2); choose optSeries(0)",
       "lstCategories optSeries(1) cboSeries lstSeries" + rest},
      {{"A", "B"},
       {"N"},
       "choose optSeries(1); choose cboSeries B; choose cboValues N; expect optSeries(0).Value yes",
       "lstCategories cboSeries lstSeries" + rest},
  };
  for (const auto& [labels, numbers, script, off] : cases) {
    EXPECT_EQ(Play(BookOfColumns(labels, numbers), NewChart(kColumnType) + script + "; look off " + off), "");
  }
  EXPECT_EQ(
      Play(BookOfColumns({"A"}, {"N"}), NewChart(kColumnType) + "press cmdNext; page frmPSChartLocation"),
      "");
}

TEST_F(LayoutABCTest, RestoredStatesAreConsistent) {
  const S columns = "<column name=\"amount\"/><column name=\"COST\"/>";
  Definition both, hundred, gone;
  both.categories = "<categories headings-in=\"columns\">" + columns + "</categories>";
  both.series = "<series headings-in=\"columns\">" + columns + "</series>";
  hundred.rest = Settings({"100%"});
  gone.categories = "<categories headings-in=\"rows\"><column name=\"Country\"/></categories>";
  gone.rest =
      "<axes><axis type=\"other\" label=\"No\"/><axis type=\"label\" label=\"Old\" sticky=\"yes\"/></axes>";
  const std::pair<Definition, S> cases[] = {
      {both,
       "expect optCategories(1).Value yes; expect optSeries(2).Value yes; expect lstSeries.Selected "
       "Amount|Cost; look off optCategories(2) lstCategories cboSeries optSeries(2) cboValues chk100Pct"},
      {hundred,
       "expect chk100Pct.Value 1; look off lstCategories lstSeries chk100Pct; look pictures imgLegend"},
      {gone,
       "expect cboCategories.Text Region; expect txtHAxis.Text Old; choose cboCategories Product; "
       "expect txtHAxis.Text Old"},
  };
  for (const auto& [definition, expected] : cases) {
    EXPECT_EQ(Play(SalesBook({definition}), ModifyChart() + "page frmPSLayoutABC; " + expected), "");
  }
}

TEST_F(LayoutABCTest, CaptionsFollowTheType) {
  const std::pair<int, S> cases[] = {
      {kBarType,
       "expect Frame2.Caption \"2. Vertical (Y-axis) Shows\"; expect Frame4.Caption \"4. Bar Length\"; "
       "expect Frame5.Caption \"5. Bar and Axis Labels\"; expect chkShowValues.Caption \"Show Values on "
       "Bars\"; expect chkStacked.Caption \"Stacked Bars\"; expect txtVAxis.Text Region; expect "
       "txtHAxis.Text Amount"},
      {kColumnType,
       "expect Frame2.Caption \"2. Horizontal (X-axis) Shows\"; expect Frame4.Caption \"4. Column Height\"; "
       "expect Frame5.Caption \"5. Column and Axis Labels\"; expect chkShowValues.Caption \"Show Values on "
       "Columns\"; expect chkStacked.Caption \"Stacked Columns\"; expect txtHAxis.Text Region"},
      {kAreaType,
       "expect Frame2.Caption \"2. Horizontal (X-axis) Shows\"; expect Frame4.Caption \"4. Area Size\"; "
       "expect Frame5.Caption \"5. Area and Axis Labels\"; expect chkShowValues.Caption \"Show Values on "
       "Areas\"; expect chkStacked.Caption \"Stacked Areas\"; expect txtHAxis.Text Region"},
  };
  for (const auto& [type, captions] : cases) EXPECT_EQ(Play(SalesBook({}), NewChart(type) + captions), "");
}

TEST_F(LayoutABCTest, EachCombinationOfSettingsHasItsPicture) {
  const std::pair<S, S> codes[] = {
      {"uncheck chk3D", "imgLegendDim imgTBasic"},
      {"check chk3D", "imgLegendDim imgT3DBasic"},
      {"choose optSeries(1)", "imgLegend imgTCluster"},
      {"choose optSeries(2); check chk3D", "imgLegend imgT3DCluster"},
      {"choose optSeries(1); check chkStacked", "imgLegend imgTStack"},
      {"choose optSeries(1); check chkStacked; check chk3D", "imgLegend imgT3DStack"},
      {"choose optSeries(1); check chkStacked; check chk100Pct", "imgLegend imgTStack100"},
      {"choose optSeries(1); check chkStacked; check chk100Pct; check chk3D", "imgLegend imgT3DStack100"},
      {"choose optSeries(1); check chkStacked; uncheck chkStacked", "imgLegend imgTCluster"},
      {"choose optSeries(1); check chkStacked; choose optSeries(0)", "imgLegendDim imgTBasic"},
  };
  const S types[] = {"Bar", "Column", "Area"};
  for (int type = kBarType; type <= kAreaType; ++type) {
    for (auto [script, pictures] : codes) {
      pictures.replace(pictures.find("imgT") + 3, 1, types[type]);
      EXPECT_EQ(Play(SalesBook({}), NewChart(type) + script + "; look pictures " + pictures), "");
    }
  }
}

TEST_F(LayoutABCTest, MessagesMoveTheFocus) {
  const S noX = "\"Please select a 'Horizontal (X-axis) Shows' entry\"";
  const S noY = "\"Please select a 'Vertical (Y-axis) Shows' entry\"";
  const S sameX =
      "\"You cannot use the same entry for the 'Horizontal (X-axis) Shows'\\nand 'A Color Represents' "
      "selections\"";
  const S sameY =
      "\"You cannot use the same entry for the 'Vertical (Y-axis) Shows'\\nand 'A Color Represents' "
      "selections\"";
  const S badFormat = "\"The requested number format is not supported by Excel\"";
  const S noList = "choose optCategories(2)", noCombo = "choose optCategories(2); choose optCategories(1)";
  const S noSize = noCombo + "; choose cboCategories Region";
  const S same = "choose optSeries(1); choose cboSeries Region";
  const struct {
    int type;
    S script, message, focus;
    bool outlivesBack =
        true;  ///< Whether the state is kept after Back, rather than reset to the first entries.
  } cases[] = {
      {kColumnType, noList, noX, "lstCategories"},
      {kAreaType, noList, noX, "lstCategories"},
      {kBarType, noList, noY, "lstCategories"},
      {kColumnType, noCombo, noX, "cboCategories", false},
      {kBarType, noCombo, noY, "cboCategories", false},
      {kColumnType, noSize, "\"Please select a 'Column Height' entry\"", "cboValues", false},
      {kAreaType, noSize, "\"Please select an 'Area Size' entry\"", "cboValues", false},
      {kBarType, noSize, "\"Please select a 'Bar Length' entry\"", "cboValues", false},
      {kColumnType, same, sameX, "cboCategories"},
      {kAreaType, same, sameX, "cboCategories"},
      {kBarType, same, sameY, "cboCategories"},
      {kColumnType, "type cboDataLabelMask \"0 [\"", badFormat, "cboDataLabelMask"},
      {kBarType, same + "; type cboDataLabelMask \"0 [\"", sameY, "cboCategories"},
  };
  for (const auto& [type, script, message, focus, outlivesBack] : cases) {
    const S said = "; expect message " + message + "; page frmPSLayoutABC; look focus " + focus;
    EXPECT_EQ(Play(SalesBook({}), NewChart(type) + script + "; press cmdNext" + said), "");
    if (!outlivesBack) continue;
    EXPECT_EQ(Play(SalesBook({}), NewChart(type) + script + "; press cmdBack; press cmdFinish" + said), "")
        << "the page was loaded before it was shown";
  }
  EXPECT_EQ(Play(SalesBook({}),
                 NewChart(kColumnType) +
                     "choose optSeries(2); choose optSeries(1); choose cboValues Cost; press cmdNext; "
                     "press cmdBack; expect optSeries(0).Value yes"),
            "")
      << "a colour without a selected column is left out";
}

}  // namespace
}  // namespace plotsmith
