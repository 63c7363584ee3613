#include "builder/ChartComment.h"

#include <string>

#include "common/CommonFunctions.h"
#include "common/RunVariables.h"
#include "runtime/Strings.h"

namespace plotsmith {

using runtime::Ref;

namespace {

constexpr std::size_t kPiece = 200;  // characters that go into a box at once
constexpr double kBoxWidth = 180;    // points, as all below
constexpr double kBoxHeight = 120;
constexpr double kBoxOverlap = 5;  // over the chart's right edge, and below its top edge

/// A new box at the top right corner of the chart, or Nothing if the chart isn't on its sheet.
Ref<excel::Shape> AddCommentBox(const std::string& sSheet, const std::string& sID) {
  const auto oShapes = SheetWithCells(sSheet)->Shapes();
  for (std::int32_t i = 1; i <= oShapes->Count(); ++i) {
    const auto oShape = oShapes->Item(i);
    if (oShape->AlternativeText() != sID || oShape->Type() != excel::msoChart) continue;
    auto oBox = oShapes->AddTextbox(excel::msoTextOrientationHorizontal,
                                    oShape->Width() + oShape->Left() - kBoxOverlap,
                                    oShape->Top() + kBoxOverlap, kBoxWidth, kBoxHeight);
    oBox->SetAlternativeText(sID);
    colChartShapes->Add(oBox, sID);
    return oBox;
  }
  return nullptr;
}

}  // namespace

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
    oFrame->Characters()->SetText(runtime::Mid(sComment, 1, kPiece));
    for (std::size_t lStart = kPiece + 1;; lStart += kPiece) {
      const std::string sPiece = runtime::Mid(sComment, lStart, kPiece);
      if (sPiece.empty()) break;
      oFrame->Characters(static_cast<std::int32_t>(lStart))->Insert(sPiece);
    }
  });
}

}  // namespace plotsmith
