#include "tests/support/PagesTest.h"

namespace plotsmith {
namespace {

using namespace test;
using S = std::string;

/// Tests the layout pages of pie, bubble and strategic bucket charts.
class SmallLayoutsTest : public PagesTest {};

constexpr int kPie = 3, kBubble = 4, kBucket = 5;

/// Returns a workbook without charts whose tables allow the type.
PlainBook BookFor(int type) {
  return type == kPie ? SalesBook({}) : type == kBubble ? NewBubbleBook() : NewBucketBook();
}

TEST_F(SmallLayoutsTest, StatesAndPicturesFollowEachClick) {
  const S all = "chkShowZeroBubbles chkScaleXAxis chkScaleYAxis";
  const struct {
    int type;
    S script;         ///< A step on the page.
    S off, pictures;  ///< The disabled controls and the visible pictures after it.
  } cases[] = {
      {kPie,
       "expect lstCategories.Text Region; expect cboValues.Text Amount; expect optDataLabels(2).Value yes",
       "", "imgLegend imgPieBasic"},
      {kPie, "check chk3D", "", "imgLegend imgPie3DBasic"},
      {kPie, "check chkExploded", "", "imgLegend imgPieExplode"},
      {kPie, "check chkExploded; check chk3D", "", "imgLegend imgPie3DExplode"},
      {kPie, "check chkExploded; check chk3D; uncheck chkExploded; choose optDataLabels(1)", "",
       "imgLegend imgPie3DBasic"},
      {kBubble,
       "expect lstYValues.Text Across; expect cboXValues.Text Across; expect cboSizes.List "
       "\"[all the same size]|Across|Up|Size\"; expect cboSeries.List \"[all the same color]|Name|Group\"; "
       "expect txtHAxis.Text Across; expect txtVAxis.Text Across; expect cboSeries.ListIndex 0",
       all, "imgLegendDim imgBubbleBasic"},
      {kBubble, "check chk3D; choose cboSeries Name", all, "imgLegend imgBubble3DBasic"},
      {kBubble, "choose cboSeries Group; choose cboSeries \"[all the same color]\"", all,
       "imgLegendDim imgBubbleBasic"},
      {kBubble, "check chkQuadrants", "chkShowZeroBubbles", "imgLegendDim imgBubbleQuad"},
      {kBubble, "check chkQuadrants; check chk3D", "chkShowZeroBubbles", "imgLegendDim imgBubble3DQuad"},
      {kBubble,
       "check chkQuadrants; check chkScaleXAxis; check chkScaleYAxis; uncheck chkQuadrants; "
       "expect chkScaleXAxis.Value 0; expect chkScaleYAxis.Value 0",
       all, "imgLegendDim imgBubbleBasic"},
      {kBubble, "choose cboSizes Across", "chkScaleXAxis chkScaleYAxis", "imgLegendDim imgBubbleBasic"},
      {kBubble,
       "choose cboSizes Size; check chkShowZeroBubbles; choose cboSizes Up; expect chkShowZeroBubbles.Value "
       "1",
       "chkScaleXAxis chkScaleYAxis", "imgLegendDim imgBubbleBasic"},
      {kBubble,
       "choose cboSizes Size; check chkShowZeroBubbles; choose cboSizes \"[all the same size]\"; "
       "expect chkShowZeroBubbles.Value 0",
       all, "imgLegendDim imgBubbleBasic"},
      {kBubble,
       "select lstYValues Up; choose cboXValues Size; expect txtVAxis.Text Up; expect txtHAxis.Text Size",
       all, "imgLegendDim imgBubbleBasic"},
      {kBucket,
       "expect cboBucketTables.Text Buckets; look grdBuckets bucket,SUM|GROWTH,120|CORE,50; expect "
       "txtHAxis.Text bucket; expect txtVAxis.Text SUM; expect optBlockSequence(0).Value yes; expect "
       "cboBlockSequence.List [none]|Sum|Rank; expect cboSeries.ListIndex 0",
       "", "imgLegendDim imgStrBuckBasic"},
      {kBucket,
       "choose cboBucketTables Others; expect txtHAxis.Text Theme; expect txtVAxis.Text Rank; "
       "look grdBuckets Theme,Rank|NEW,1,235|OLD,-2",
       "", "imgLegendDim imgStrBuckBasic"},
      {kBucket,
       "type txtVAxis Mine; choose cboBucketTables Others; expect txtHAxis.Text Theme; expect txtVAxis.Text "
       "Mine",
       "", "imgLegendDim imgStrBuckBasic"},
      {kBucket, "choose cboSeries Theme", "", "imgLegend imgStrBuckBasic"},
      {kBucket, "choose cboSeries Theme; choose cboSeries \"[all the same color]\"", "",
       "imgLegendDim imgStrBuckBasic"},
  };
  for (const auto& [type, script, off, pictures] : cases) {
    EXPECT_EQ(
        Play(BookFor(type), NewChart(type) + script + "; look off " + off + "; look pictures " + pictures),
        "");
  }
}

TEST_F(SmallLayoutsTest, MessagesMoveTheFocus) {
  const S badFormat = "The requested number format is not supported by Excel";
  const struct {
    int type;
    S script, message, focus;
    bool outlivesBack =
        false;  ///< Whether the state is kept after Back, rather than reset to the first entries.
  } cases[] = {
      {kPie, "select lstCategories; clear cboValues", "Please select a 'Slice Represents' entry",
       "lstCategories"},
      {kPie, "clear cboValues; type cboNumberMask \"0 [\"", "Please select a 'Slice Size' entry",
       "cboValues"},
      {kPie, "type cboNumberMask \"0 [\"", badFormat, "cboNumberMask", true},
      {kBubble, "select lstYValues; clear cboXValues", "Please select a 'Vertical (Y-axis)' entry",
       "lstYValues"},
      {kBubble, "clear cboXValues; clear cboCategories", "Please select a 'Horizontal (X-axis)' entry",
       "cboXValues"},
      {kBubble, "clear cboCategories", "Please select a 'Bubble Represents' entry", "cboCategories"},
      {kBucket, "clear cboCategories; type cboDataLabelMask \"0 [\"",
       "Please select a 'Block Represents' entry", "cboCategories"},
      {kBucket, "type cboDataLabelMask \"0 [\"", badFormat, "cboDataLabelMask", true},
  };
  for (const auto& [type, script, message, focus, outlivesBack] : cases) {
    const S start = NewChart(type) + script;
    const S said =
        "; expect message \"" + message + "\"; look focus " + focus + "; expect cmdNext.Enabled yes";
    EXPECT_EQ(Play(BookFor(type), start + "; press cmdNext" + said), "");
    if (!outlivesBack) continue;
    EXPECT_EQ(Play(BookFor(type), start + "; press cmdBack; press cmdFinish" + said), "");
  }
  EXPECT_EQ(Play(SalesBook({}), NewChart(kPie) + "press cmdBack; force strategic bucket; press cmdFinish; "
                                                 "expect message \"Invalid property value\"; expect message "
                                                 "\"Please select a 'Strategic Buckets' entry\"; page "
                                                 "frmPSLayoutStrBuck; look focus cboBucketTables"),
            "");
}

}  // namespace
}  // namespace plotsmith
