#include "builder/maps/BubbleMap.h"

#include <string>

#include "builder/maps/MapSteps.h"
#include "builder/state/BuilderVariables.h"
#include "common/Cells.h"
#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/Messages.h"
#include "common/Worksheets.h"

namespace plotsmith {

using dom::IXMLDOMElement;
using runtime::Ref;

namespace {

/// Numbers the names of the bubbles in their column.
void NumberBubbles(const IXMLDOMElement& oChartElement, const DataRows& oRows,
                   const Ref<excel::Worksheet>& oSheet, std::int32_t lNameColumn) {
  Numbering oBubbles(mCategoryPositions, mCategoryNames);
  std::string sScratch;
  for (std::int32_t lRow = oRows.lFirst; lRow <= oRows.Last(); ++lRow) {
    oBubbles.NumberIfNew(GetCellText(*oSheet, lRow, lNameColumn, sScratch), sScratch);
    // This comes after the numbering: the last name that fits is charted, and shows the message as well.
    if (oBubbles.Count() >= kSeriesLimit) {
      ShowLimitMessage(oChartElement);
      break;
    }
  }
}

/// Adds the rules of the four columns of a bubble. If the chart has no column for the colour or the size, the
/// rule has a constant in its place.
void AddBubbleRules(const IXMLDOMElement& oChartElement, std::int32_t lNameColumn) {
  std::int32_t lColorColumn = -1;
  if (const auto oSeries = oChartElement.selectSingleNode("series")) {
    if (GetAttributeText(oSeries, "headings-in") != "none") lColorColumn = FirstColumn(oSeries);
  }
  const std::int32_t lXColumn = FirstColumnOf(oChartElement, "x-values", 0);
  const std::int32_t lYColumn = FirstColumnOf(oChartElement, "values", 0);
  const std::int32_t lSizeColumn = FirstColumnOf(oChartElement, "bubble-sizes", -1);
  AddPseudoSeriesRule(lNameColumn, bubble_column::kColor, cell::kText, lColorColumn, "[none]");
  AddPseudoSeriesRule(lNameColumn, bubble_column::kX, cell::kDouble, lXColumn, {});
  AddPseudoSeriesRule(lNameColumn, bubble_column::kY, cell::kDouble, lYColumn, {});
  AddPseudoSeriesRule(lNameColumn, bubble_column::kSize, cell::kDouble, lSizeColumn, 1);
}

}  // namespace

bool BuildBubbleMap(const IXMLDOMElement& oChartElement) {
  return ReportErrors("PSChartBuilder.BuildBubbleMap", false, [&] {
    ResetMap();
    Numbering oSeriesNumbering(mSeriesPositions, mSeriesNames);
    for (const char* sName : {"[-BubbleColor-]", "[-XAxisValue-]", "[-YAxisValue-]", "[-BubbleSize-]"}) {
      oSeriesNumbering.AddPseudo(sName);
    }
    const DataRows oRows(oChartElement);
    const auto oSheet = SheetWithCells(GetAttributeText(oChartElement, "table-worksheet"));

    std::int32_t lNameColumn = 0;
    if (const auto oCategories = oChartElement.selectSingleNode("categories")) {
      lNameColumn = FirstColumn(oCategories);
      NumberBubbles(oChartElement, oRows, oSheet, lNameColumn);
    }
    AddBubbleRules(oChartElement, lNameColumn);
    if (FinishMap()) return true;
    ShowComplaint("PSChartBuilder.BuildBubbleMap", kEmptyMapComplaint);
    return false;
  });
}

}  // namespace plotsmith
