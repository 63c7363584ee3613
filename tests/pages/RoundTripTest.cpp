#include "tests/support/PagesTest.h"

namespace plotsmith {
namespace {

using namespace test;
using S = std::string;

/// Tests that layout pages read what they have written.
class RoundTripTest : public PagesTest {
 protected:
  struct Case {
    int type;
    PlainBook book;
    S on;        ///< Sets all settings of the page.
    S onXml;     ///< The resulting elements of `chart`.
    S restored;  ///< The restored state of the page.
    S off;       ///< Resets all settings.
    S offXml;
  };
  static std::vector<Case> Cases();
};

constexpr int kBubble = 4, kBucket = 5;

/// Returns a definition before its chart is drawn.
S Document(int type, const S& name, const S& title, const S& sheet, const S& format, const S& buckets,
           const S& elements) {
  const S types[] = {"bar", "column", "area", "pie", "bubble", "strategic bucket"};
  return "<chart ps-chart-schema-version=\"2\" id=\"VEX_Chart1\" name=\"" + name + "\" title=\"" + title +
         "\" type=\"" + types[type] + "\" chart-worksheet=\"" + sheet +
         "\" table-id=\"Data1\" strategic-bucket-table-id=\"" + (type == kBucket ? buckets : "") +
         "\" number-format=\"" + format + "\" table-corrupted=\"no\" chart-area-crosshatched=\"no\">" +
         elements + "</chart>";
}

/// Returns a definition without the parts that are read back from a drawn chart.
S WithoutReadBack(S xml) {
  const S sheet = " table-worksheet=\"Data1\"", open = "<auto-persistence>", close = "</auto-persistence>";
  const auto at = xml.find(sheet);
  if (at != xml.npos) xml.erase(at, sheet.size());
  const auto from = xml.find(open), to = xml.find(close);
  return to == xml.npos ? xml : xml.erase(from, to + close.size() - from);
}

std::vector<RoundTripTest::Case> RoundTripTest::Cases() {
  const S style = "check chk3D; check chkStacked; check chk100Pct; type txtComment \" One\\nTwo \"";
  const S styleXml =
      R"(<data-labels><data-label show="values"/></data-labels><dynamic-attributes><attribute setting="3D"/>)"
      R"(<attribute setting="stacked"/><attribute setting="100%"/></dynamic-attributes><comment>One)"
      "\nTwo</comment>";
  const S plain =
      "uncheck chk3D; choose optCategories(1); choose cboCategories Region; choose optSeries(0); choose "
      "cboValues Cost; type txtComment \"\"; uncheck chkShowValues; type txtTitle \"\"; "
      "type cboDataLabelMask \"\"; type txtHAxis \"\"; type txtVAxis \"\"";
  const S plainXml =
      R"(<categories headings-in="rows"><column name="Region"/></categories>)"
      R"(<series headings-in="none"/><values>)"
      R"(<column name="Cost"/></values><axes/><data-labels/><dynamic-attributes/><comment></comment>)";
  return {
      {0, SalesBook({}),
       "type txtTitle \" Sales \"; choose cboCategories Product; choose optSeries(1); choose cboSeries "
       "Region; choose cboValues Cost; check chkShowValues; type cboDataLabelMask \" 0.0\"; type txtHAxis \" "
       "Across \"; " +
           style,
       R"(<categories headings-in="rows"><column name="Product"/></categories>)"
       R"(<series headings-in="rows"><column name="Region"/></series><values><column name="Cost"/></values>)"
       R"(<axes><axis type="value" label="Across" sticky="yes"/>)"
       R"(<axis type="label" label="Product" sticky="no"/></axes>)" +
           styleXml,
       "expect txtTitle.Text Sales; expect cboCategories.Text Product; expect optSeries(1).Value yes; expect "
       "cboSeries.Text Region; expect cboValues.Text Cost; expect chkShowValues.Value 1; expect "
       "cboDataLabelMask.Text 0.0; expect txtHAxis.Text Across; expect txtVAxis.Text Product; expect "
       "chk3D.Value 1; expect chkStacked.Value 1; expect chk100Pct.Value 1; expect txtComment.Text "
       "\"One\\nTwo\"; look off lstCategories lstSeries",
       plain, plainXml},
      {1, SalesBook({}),
       "type txtTitle Sales; choose optSeries(2); select lstSeries Amount Cost; check chkShowValues; type "
       "cboDataLabelMask 0.0; type txtVAxis Up; " +
           style,
       R"(<categories headings-in="rows"><column name="Region"/></categories>)"
       R"(<series headings-in="columns"><column name="Amount"/><column name="Cost"/></series>)"
       R"(<axes><axis type="label" label="Region" sticky="no"/>)"
       R"(<axis type="value" label="Up" sticky="yes"/></axes>)" +
           styleXml,
       "expect cboCategories.Text Region; expect optSeries(2).Value yes; expect lstSeries.Selected "
       "Amount|Cost; expect cboValues.ListIndex -1; expect txtHAxis.Text Region; expect txtVAxis.Text Up; "
       "look off optCategories(2) lstCategories cboSeries cboValues; look pictures imgLegend "
       "imgColumn3DStack100",
       plain, plainXml},
      {2, SalesBook({}),
       "type txtTitle Sales; choose optCategories(2); select lstCategories Amount Cost; choose optSeries(1); "
       "choose cboSeries Product; check chkShowValues; type cboDataLabelMask 0.0; type txtHAxis Across; " +
           style,
       R"(<categories headings-in="columns"><column name="Amount"/><column name="Cost"/></categories>)"
       R"(<series headings-in="rows"><column name="Product"/></series>)"
       R"(<axes><axis type="label" label="Across" sticky="yes"/></axes>)" +
           styleXml,
       "expect optCategories(2).Value yes; expect lstCategories.Selected Amount|Cost; expect cboSeries.Text "
       "Product; expect txtHAxis.Text Across; expect txtVAxis.Text \"\"; look off cboCategories optSeries(2) "
       "lstSeries cboValues; look pictures imgLegend imgArea3DStack100",
       plain, plainXml},
      {3, SalesBook({}),
       "type txtTitle Sales; choose cboValues Cost; select lstCategories Product; choose optDataLabels(1); "
       "type cboNumberMask 0.0; check chk3D; check chkExploded; type txtComment Said",
       R"(<categories headings-in="rows"><column name="Product"/></categories><series headings-in="none"/>)"
       R"(<values><column name="Cost"/></values><data-labels><data-label show="percentages"/></data-labels>)"
       R"(<dynamic-attributes><attribute setting="3D"/><attribute setting="exploded"/></dynamic-attributes>)"
       R"(<comment>Said</comment>)",
       "expect txtTitle.Text Sales; expect lstCategories.Text Product; expect cboValues.Text Cost; expect "
       "optDataLabels(1).Value yes; expect cboNumberMask.Text 0.0; expect lblMaskExample.Caption 12345.7; "
       "expect chk3D.Value 1; expect chkExploded.Value 1; expect txtComment.Text Said; look pictures "
       "imgLegend imgPie3DExplode",
       "type txtTitle \"\"; choose optDataLabels(2); type cboNumberMask \"\"; uncheck chk3D; uncheck "
       "chkExploded; type txtComment \"\"",
       R"(<categories headings-in="rows"><column name="Product"/></categories><series headings-in="none"/>)"
       R"(<values><column name="Cost"/></values><data-labels/><dynamic-attributes/><comment></comment>)"},
      {3, SalesBook({}), "type txtTitle Sales; choose optDataLabels(0); type cboNumberMask 0.0",
       R"(<categories headings-in="rows"><column name="Region"/></categories><series headings-in="none"/>)"
       R"(<values><column name="Amount"/></values><data-labels><data-label show="values"/></data-labels>)"
       R"(<dynamic-attributes/><comment></comment>)",
       "expect optDataLabels(0).Value yes; look pictures imgLegend imgPieBasic",
       "type txtTitle \"\"; choose optDataLabels(2); type cboNumberMask \"\"",
       R"(<categories headings-in="rows"><column name="Region"/></categories><series headings-in="none"/>)"
       R"(<values><column name="Amount"/></values><data-labels/><dynamic-attributes/><comment></comment>)"},
      {4, NewBubbleBook(),
       "type txtTitle Sales; select lstYValues Up; choose cboXValues Size; choose cboCategories Group; "
       "choose cboSizes Across; check chkShowZeroBubbles; choose cboSeries Name; type txtHAxis Mine; check "
       "chk3D; check chkQuadrants; check chkScaleXAxis; check chkScaleYAxis; type txtComment Said",
       R"(<categories headings-in="rows"><column name="Group"/></categories>)"
       R"(<series headings-in="rows"><column name="Name"/></series><values><column name="Up"/></values>)"
       R"(<x-values><column name="Size"/></x-values><bubble-sizes><column name="Across"/></bubble-sizes>)"
       R"(<axes><axis type="label" label="Mine" sticky="yes"/>)"
       R"(<axis type="value" label="Up" sticky="no"/></axes>)"
       R"(<dynamic-attributes><attribute setting="3D"/></dynamic-attributes>)"
       R"(<static-attributes><attribute setting="show-zero-bubbles"/>)"
       R"(<attribute setting="quadrants"/><attribute setting="autoscale-x"/><attribute setting="autoscale-y"/></static-attributes>)"
       R"(<comment>Said</comment>)",
       "expect txtTitle.Text Sales; expect lstYValues.Text Up; expect cboXValues.Text Size; expect "
       "cboCategories.Text Group; expect cboSizes.Text Across; expect chkShowZeroBubbles.Value 1; expect "
       "cboSeries.Text Name; expect txtHAxis.Text Mine; expect txtVAxis.Text Up; expect chkScaleXAxis.Value "
       "1; expect chkScaleYAxis.Value 1; expect txtComment.Text Said; look off ; look pictures imgLegend "
       "imgBubble3DQuad",
       "type txtTitle \"\"; choose cboSizes \"[all the same size]\"; choose cboSeries \"[all the same "
       "color]\"; type txtHAxis \"\"; type txtVAxis \"\"; uncheck chk3D; uncheck chkQuadrants; type "
       "txtComment \"\"",
       R"(<categories headings-in="rows"><column name="Group"/></categories><series headings-in="none"/>)"
       R"(<values><column name="Up"/></values><x-values><column name="Size"/></x-values><axes/>)"
       R"(<dynamic-attributes/><static-attributes/><comment></comment>)"},
      {5, NewBucketBook(),
       "type txtTitle Sales; choose cboBucketTables Others; choose cboCategories Theme; choose cboSeries "
       "Project; choose cboBlockSequence Rank; choose optBlockSequence(1); check chkShowNames; type "
       "cboDataLabelMask 0.0; type txtVAxis Mine; type txtComment Said",
       R"(<categories headings-in="rows"><column name="Theme"/></categories>)"
       R"(<series headings-in="rows"><column name="Project"/></series><values><column name="Rank"/></values>)"
       R"(<sort-order sort="descending"><column name="Rank"/></sort-order>)"
       R"(<axes><axis type="label" label="Theme" sticky="no"/>)"
       R"(<axis type="value" label="Mine" sticky="yes"/></axes>)"
       R"(<data-labels manual-labels="yes"/><dynamic-attributes/><comment>Said</comment>)",
       "expect txtTitle.Text Sales; expect cboBucketTables.Text Others; expect cboCategories.Text Theme; "
       "expect cboSeries.Text Project; expect cboBlockSequence.Text Rank; expect optBlockSequence(1).Value "
       "yes; expect chkShowNames.Value 1; expect cboDataLabelMask.Text 0.0; expect txtHAxis.Text Theme; "
       "expect txtVAxis.Text Mine; expect txtComment.Text Said; look pictures imgLegend imgStrBuckBasic",
       "choose cboBucketTables Buckets; type txtTitle \"\"; choose cboSeries \"[all the same color]\"; "
       "choose cboBlockSequence [none]; uncheck chkShowNames; type cboDataLabelMask \"\"; type txtHAxis "
       "\"\"; type txtVAxis \"\"; type txtComment \"\"",
       R"(<categories headings-in="rows"><column name="Theme"/></categories><series headings-in="none"/>)"
       R"(<values><column name="SUM"/></values><axes/><data-labels manual-labels="no"/><dynamic-attributes/>)"
       R"(<comment></comment>)"},
  };
}

TEST_F(RoundTripTest, APageReadsItsOwnDefinition) {
  for (const Case& c : Cases()) {
    SCOPED_TRACE("optType(" + std::to_string(c.type) + ")");
    const S writeOut = "; press cmdNext; page frmPSChartLocation; definition";
    EXPECT_EQ(Play(c.book, NewChart(c.type) + c.on + writeOut + "; press cmdBack; " + c.restored + "; " +
                               c.off + writeOut),
              "");
    ASSERT_EQ(definitions_.size(), 2u);
    const S format = c.type == kBubble ? "" : "0.0";
    EXPECT_EQ(definitions_[0], Document(c.type, "Chart1", "Sales", "", format, "VEX_SB2", c.onXml));
    EXPECT_EQ(definitions_[1], Document(c.type, "Sales", "", "Data1", "", "VEX_SB1", c.offXml))
        << "the way back stored the proposed name and the first sheet";
  }
}

TEST_F(RoundTripTest, APageKeepsTheElementsOfOtherTypes) {
  EXPECT_EQ(Play(SalesBook({}),
                 NewChart(4) +
                     "check chk3D; press cmdBack; choose optType(3); press cmdNext; expect chk3D.Value 1; "
                     "press cmdNext; definition"),
            "");
  ASSERT_EQ(definitions_.size(), 1u);
  EXPECT_EQ(
      definitions_[0],
      Document(
          3, "Chart1", "", "", "", "",
          R"(<x-values><column name="Amount"/></x-values><static-attributes/><categories headings-in="rows">)"
          R"(<column name="Region"/></categories><series headings-in="none"/><values><column name="Amount"/>)"
          R"(</values><data-labels/><dynamic-attributes><attribute setting="3D"/></dynamic-attributes>)"
          R"(<comment></comment>)"))
      << "a pie has no axes; elements of other types are kept";
}

TEST_F(RoundTripTest, FinishAgainLeavesTheDefinitionAsItIs) {
  for (const Case& c : Cases()) {
    for (const S& script : {c.on, c.on + "; " + c.off}) {
      SCOPED_TRACE("optType(" + std::to_string(c.type) + "); " + script);
      const S again =
          ModifyChart() + (script == c.on ? c.restored + "; " : "") + "press cmdFinish; page none";
      EXPECT_EQ(Play(c.book, NewChart(c.type) + script + "; press cmdFinish; page none"), "");
      const S first = Stored();
      EXPECT_EQ(Play(again), "");
      const S second = Stored();
      EXPECT_EQ(WithoutReadBack(second), first);
      SaveAndReopen();
      EXPECT_EQ(Play(again), "");
      EXPECT_EQ(Stored(), second);
    }
  }
}

}  // namespace
}  // namespace plotsmith
