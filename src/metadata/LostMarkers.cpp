#include "metadata/LostMarkers.h"

#include <charconv>
#include <string_view>

#include "common/CommonFunctions.h"
#include "common/ErrorBlocks.h"
#include "common/PSConstants.h"
#include "common/RunVariables.h"
#include "runtime/Ref.h"

namespace plotsmith {

using runtime::Ref;

namespace {

/// The first row of the data sheet that a series' formula refers to; 0 if it refers to none.
std::int32_t DataRowOf(std::string_view sFormula) {
  const std::string sSheet = std::string(kDataSheet) + "!$";
  const auto lAt = sFormula.find(sSheet);
  if (lAt == std::string_view::npos) return 0;
  const auto lRow = sFormula.find('$', lAt + sSheet.size());
  std::int32_t lResult = 0;
  if (lRow != std::string_view::npos) {
    std::from_chars(sFormula.data() + lRow + 1, sFormula.data() + sFormula.size(), lResult);
  }
  return lResult;
}

/// The id beside the rows that the chart shows.
std::string ShownID(const Ref<excel::Chart>& oChart, excel::Worksheet& oDataSheet) {
  const auto oSeriesCollection = oChart->SeriesCollection();
  if (oSeriesCollection->Count() == 0) return "";
  const std::int32_t lRow = DataRowOf(oSeriesCollection->Item(1)->Formula());
  if (lRow == 0) return "";
  std::string sScratch;
  return std::string(GetCellText(oDataSheet, lRow, data_column::kId, sScratch));
}

/// The first shape of a type that has lost its alternative text and satisfies `isIt`; Nothing if there is
/// none.
template <class IsIt>
Ref<excel::Shape> FindUnmarked(excel::Worksheet& oSheet, std::int32_t lType, const IsIt& isIt) {
  const auto oShapes = oSheet.Shapes();
  for (std::int32_t i = 1; i <= oShapes->Count(); ++i) {
    auto oShape = oShapes->Item(i);
    if (oShape->Type() != lType || !oShape->AlternativeText().empty()) continue;
    // what can't be read isn't it
    if (ValueOr(false, [&] { return isIt(*oShape); })) return oShape;
  }
  return nullptr;
}

}  // namespace

std::string RestoreChartMarker(const std::string& sID) {
  if (!SheetExists(kDataSheet)) return "";
  const auto oDataSheet = SheetWithCells(kDataSheet);
  const auto oSheets = oWorkbook->Worksheets();
  for (std::int32_t i = 1; i <= oSheets->Count(); ++i) {
    const auto oSheet = oSheets->Item(i);
    auto oShape = FindUnmarked(*oSheet, excel::msoChart, [&](excel::Shape& oCandidate) {
      return ShownID(oSheet->ChartObjects()->Item(oCandidate.Name())->Chart(), *oDataSheet) == sID;
    });
    if (!oShape) continue;
    oShape->SetAlternativeText(sID);
    return oSheet->Name();
  }
  return "";
}

void RestoreCommentMarker(const std::string& sID, const std::string& sSheetName,
                          const std::string& sComment) {
  if (sComment.empty()) return;
  const auto oSheet = SheetWithCells(sSheetName);
  auto oShape = FindUnmarked(*oSheet, excel::msoTextBox, [&](excel::Shape& oCandidate) {
    return oCandidate.TextFrame()->Characters()->Text() == sComment;
  });
  if (oShape) oShape->SetAlternativeText(sID);
}

}  // namespace plotsmith
