#include "metadata/LostMarkers.h"

#include <charconv>
#include <string_view>

#include "common/Cells.h"
#include "common/ErrorBlocks.h"
#include "common/PSConstants.h"
#include "common/RunVariables.h"
#include "common/Worksheets.h"
#include "metadata/SavingPrograms.h"
#include "runtime/Ref.h"

namespace plotsmith {

using runtime::Ref;

namespace {

/// Returns the first row of the data sheet in the formula of a series, or 0 if it refers to no row.
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

/// Returns the chart id in column A of the rows that the chart shows.
std::string ShownID(const Ref<excel::Chart>& oChart, excel::Worksheet& oDataSheet) {
  const auto oSeriesCollection = oChart->SeriesCollection();
  if (oSeriesCollection->Count() == 0) return "";
  const std::int32_t lRow = DataRowOf(oSeriesCollection->Item(1)->Formula());
  if (lRow == 0) return "";
  std::string sScratch;
  return std::string(GetCellText(oDataSheet, lRow, data_column::kId, sScratch));
}

bool IsUnmarked(excel::Shape& oShape, std::int32_t lType) {
  return oShape.Type() == lType && oShape.AlternativeText().empty();
}

/// Replaces a rectangle by a text box, because the type of a shape can't be changed.
Ref<excel::Shape> ReplaceByTextBox(const Ref<excel::Shapes>& oShapes, const Ref<excel::Shape>& oRectangle,
                                   const std::string& sText) {
  const auto oBox = oShapes->AddTextbox(excel::msoTextOrientationHorizontal, oRectangle->Left(),
                                        oRectangle->Top(), oRectangle->Width(), oRectangle->Height());
  oBox->TextFrame()->Characters()->SetText(sText);
  oRectangle->Delete();
  return oBox;
}

}  // namespace

std::string UnmarkedCharts::RestoreMarker(const std::string& sID) {
  const std::size_t i = Find(sID);
  if (i == aRead_.size()) return "";
  aRead_[i].oShape->SetAlternativeText(sID);
  std::string sSheet = aRead_[i].oSheet->Name();
  aRead_.erase(aRead_.begin() + static_cast<std::ptrdiff_t>(i));
  return sSheet;
}

std::string UnmarkedCharts::SheetOf(const std::string& sID) {
  const std::size_t i = Find(sID);
  return i == aRead_.size() ? "" : aRead_[i].oSheet->Name();
}

std::size_t UnmarkedCharts::Find(const std::string& sID) {
  if (!bTextsLost_) bTextsLost_ = LossesOfLastSave().bAlternativeTexts && SheetExists(kDataSheet);
  if (!*bTextsLost_) return aRead_.size();
  std::size_t i = 0;
  while (i < aRead_.size() || ReadNext()) {
    if (aRead_[i].sShownID == sID) return i;
    ++i;
  }
  return aRead_.size();
}

bool UnmarkedCharts::ReadNext() {
  const auto oDataSheet = SheetWithCells(kDataSheet);
  const auto oSheets = oWorkbook->Worksheets();
  for (; lSheet_ <= oSheets->Count(); ++lSheet_, lShape_ = 1) {
    const auto oSheet = oSheets->Item(lSheet_);
    const auto oShapes = oSheet->Shapes();
    while (lShape_ <= oShapes->Count()) {
      const auto oShape = oShapes->Item(lShape_++);
      if (!IsUnmarked(*oShape, excel::msoChart)) continue;
      // A chart that can't be read shows no data.
      std::string sShownID = ValueOr(std::string(), [&] {
        return ShownID(oSheet->ChartObjects()->Item(oShape->Name())->Chart(), *oDataSheet);
      });
      if (sShownID.empty()) continue;
      aRead_.push_back({oSheet, oShape, std::move(sShownID)});
      return true;
    }
  }
  return false;
}

void RestoreCommentMarker(const std::string& sID, const std::string& sSheetName,
                          const std::string& sComment) {
  if (sComment.empty()) return;
  const bool bRectangles = LossesOfLastSave().bTextBoxKind;
  const auto oShapes = SheetWithCells(sSheetName)->Shapes();
  for (std::int32_t i = 1; i <= oShapes->Count(); ++i) {
    auto oShape = oShapes->Item(i);
    const bool bRectangle = bRectangles && IsUnmarked(*oShape, excel::msoAutoShape);
    if (!bRectangle && !IsUnmarked(*oShape, excel::msoTextBox)) continue;
    // A shape that can't be read cannot be the one we look for.
    if (!ValueOr(false, [&] { return oShape->TextFrame()->Characters()->Text() == sComment; })) continue;
    if (bRectangle) oShape = ReplaceByTextBox(oShapes, oShape, sComment);
    oShape->SetAlternativeText(sID);
    return;
  }
}

}  // namespace plotsmith
