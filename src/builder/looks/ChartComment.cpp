#include "builder/looks/ChartComment.h"

#include <string>

#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/RunVariables.h"
#include "common/Values.h"
#include "common/Worksheets.h"
#include "metadata/MetadataStore.h"
#include "runtime/Strings.h"

namespace plotsmith {

using runtime::Ref;

namespace {

constexpr std::size_t kPiece = 200;  // characters that are written in one call
constexpr double kBoxWidth = 180;    // points, like all lengths below
constexpr double kBoxHeight = 120;
constexpr double kBoxOverlap = 5;  // beyond the right edge of the chart and below its top edge

}  // namespace

Ref<excel::Shape> AddCommentBox(const std::string& sSheet, const std::string& sID) {
  const auto oSheet = SheetWithCells(sSheet);
  const auto oFrame = FindShape(oSheet, excel::msoChart, sID);
  if (!oFrame) return nullptr;
  auto oBox = oSheet->Shapes()->AddTextbox(excel::msoTextOrientationHorizontal,
                                           oFrame->Width() + oFrame->Left() - kBoxOverlap,
                                           oFrame->Top() + kBoxOverlap, kBoxWidth, kBoxHeight);
  oBox->SetAlternativeText(sID);
  colChartShapes->Add(oBox, sID);
  return oBox;
}

void SetChartComment(const dom::IXMLDOMElement& oChartElement) {
  ReportErrors("PSChartBuilder.SetChartComment", [&] {
    const std::string sID = GetAttributeText(oChartElement, "id");
    const std::string sComment = GetChildText(oChartElement, "comment");
    Ref<excel::Shape> oBox;
    if (CollectionHasKey(sID, colChartShapes)) oBox = colChartShapes->Item(sID);
    if (oBox && sComment.empty()) {
      colChartShapes->Remove(sID);
      oBox->Delete();
      return;
    }
    if (!oBox && !sComment.empty())
      oBox = AddCommentBox(GetAttributeText(oChartElement, "chart-worksheet"), sID);
    if (!oBox) return;
    const auto oFrame = oBox->TextFrame();
    const std::u16string sUnits = runtime::ToUtf16(sComment);
    const auto piece = [&](std::size_t lFrom) {
      return runtime::ToUtf8(std::u16string_view(sUnits).substr(lFrom, kPiece));
    };
    oFrame->Characters()->SetText(piece(0));
    for (std::size_t lFrom = kPiece; lFrom < sUnits.size(); lFrom += kPiece) {
      oFrame->Characters(static_cast<std::int32_t>(lFrom + 1))->Insert(piece(lFrom));
    }
  });
}

}  // namespace plotsmith
