#include "builder/families/BubbleQuadrants.h"

#include <cmath>

#include "builder/maps/BubbleMap.h"
#include "builder/state/BuilderVariables.h"
#include "builder/state/DataBlock.h"
#include "common/Cells.h"
#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/PSConstants.h"
#include "common/Worksheets.h"
#include "host/excel/Excel.h"

namespace plotsmith {

using dom::IXMLDOMElement;

namespace {

/// The range of the values along one axis. Initially the limits are exchanged, which means that there is no
/// value.
struct Span {
  static constexpr double kUnseen = 1E+50;
  double dMin = kUnseen;
  double dMax = -kUnseen;

  void Take(double dValue) {
    if (dValue > dMax) dMax = dValue;
    if (dValue < dMin) dMin = dValue;
  }
  bool IsUnseen() const { return dMax == -kUnseen || dMin == kUnseen; }

  /// Extends a range that excludes zero up to zero, and by a tenth at its other end. Extends any other range
  /// at both ends by a tenth of its upper limit.
  void Widen() {
    if (dMin > 0) {
      dMin = 0;
      dMax = std::floor(dMax * 1.1);
    } else if (dMax < 0) {
      dMin = std::floor(dMin * 1.1);
      dMax = 0;
    } else {
      dMin = std::floor(dMin - dMax * 0.1);
      dMax = std::floor(dMax * 1.1);
    }
  }
};

/// Sets two major units along the axis, so that its gridlines halve the plot area. A hidden axis is shown for
/// this and hidden again.
void SetUpAxis(std::int32_t lType, bool bAutoScale, const Span& oSpan) {
  const bool bHadAxis = mChart->HasAxis(lType);
  mChart->SetHasAxis(lType, true);
  const auto oAxis = mChart->Axes(lType, excel::xlPrimary);
  oAxis->SetHasMajorGridlines(true);
  oAxis->SetHasMinorGridlines(false);
  double dLength = 0;
  if (bAutoScale) {
    oAxis->SetMinimumScale(oSpan.dMin);
    oAxis->SetMaximumScale(oSpan.dMax);
    dLength = std::fabs(oSpan.dMax - oSpan.dMin);
  } else {
    oAxis->SetMajorUnitIsAuto(true);
    dLength = std::fabs(oAxis->MaximumScale() - oAxis->MinimumScale());
  }
  if (dLength > 0) oAxis->SetMajorUnit(dLength / 2);
  oAxis->SetCrosses(excel::xlAutomatic);
  oAxis->SetReversePlotOrder(false);
  oAxis->SetScaleType(excel::xlLinear);
  oAxis->SetDisplayUnit(excel::xlNone);
  oAxis->SetTickLabelPosition(excel::xlTickLabelPositionLow);
  oAxis->Border()->SetLineStyle(excel::xlNone);
  mChart->SetHasAxis(lType, bHadAxis);
}

}  // namespace

void SetBubbleChartQuadrants(const IXMLDOMElement& oChartElement) {
  ReportErrors("PSChartBuilder.SetBubbleChartQuadrants", [&] {
    const bool bAutoScaleX =
        mNewOrCopiedChart || HasSetting(oChartElement, "static-attributes", "autoscale-x");
    const bool bAutoScaleY =
        mNewOrCopiedChart || HasSetting(oChartElement, "static-attributes", "autoscale-y");
    if (!HasSetting(oChartElement, "static-attributes", "quadrants")) return;
    const Block oBlock(oChartElement);
    const auto oSheet = SheetWithCells(kDataSheet);
    Span oX, oY;
    for (std::int32_t lRow = oBlock.FirstRow(); lRow <= oBlock.lLastRow; ++lRow) {
      oX.Take(GetCellDouble(*oSheet, lRow, bubble_column::kX));
      oY.Take(GetCellDouble(*oSheet, lRow, bubble_column::kY));
    }
    if ((bAutoScaleX && oX.IsUnseen()) || (bAutoScaleY && oY.IsUnseen())) return;
    oY.Widen();
    oX.Widen();
    SetUpAxis(excel::xlCategory, bAutoScaleX, oX);
    SetUpAxis(excel::xlValue, bAutoScaleY, oY);
    mChart->PlotArea()->Border()->SetWeight(excel::xlThin);
    mChart->PlotArea()->Border()->SetLineStyle(excel::xlAutomatic);
  });
}

}  // namespace plotsmith
