#include "builder/looks/ChartLegend.h"

#include <string>
#include <vector>

#include "builder/looks/ChartAttributes.h"
#include "builder/state/BuilderVariables.h"
#include "builder/state/CPSColor.h"
#include "common/ErrorBlocks.h"
#include "common/HostAnswers.h"
#include "common/PSConstants.h"
#include "metadata/SavingPrograms.h"
#include "runtime/Ref.h"
#include "runtime/RuntimeError.h"
#include "runtime/Strings.h"
#include "runtime/Variant.h"

namespace plotsmith {

using runtime::CLng;
using runtime::Ref;

namespace {

constexpr const char* kLegendName = "VEX_Legend";
constexpr const char* kEntryMark = "VEX_LS_";
constexpr const char* kOwnMark = "VEX_L";  // the alternative text of the legend and its entries
constexpr double kWidestMargin = 15;       // points beside a plot area without a legend
constexpr std::int32_t kBlackRgb = 0;
constexpr std::int32_t kWhiteRgb = 0xFFFFFF;

bool Contains(const std::string& sText, const char* sPart) { return sText.find(sPart) != std::string::npos; }

void RemoveLegendShapes() {
  std::vector<Ref<excel::Shape>> aShapes;
  IgnoreErrors([&] {
    const auto oShapes = mChart->Shapes();
    for (std::int32_t i = 1; i <= oShapes->Count(); ++i) aShapes.push_back(oShapes->Item(i));
  });
  for (const auto& oShape : aShapes) {
    IgnoreErrors([&] {
      if (Contains(oShape->AlternativeText(), kOwnMark) || Contains(oShape->Name(), kOwnMark))
        oShape->Delete();
    });
  }
}

/// Returns the names of the series, each once. They are collected in one text, so a name that is part of an
/// earlier name is missing, and a name that contains the separator is split.
std::vector<std::string> DistinctNames() {
  std::string sNames;
  const auto oCollection = mChart->SeriesCollection();
  for (std::int32_t i = 1; i <= oCollection->Count(); ++i) {
    const std::string sName = oCollection->Item(i)->Name();
    if (sNames.empty() || sNames.find(sName) == std::string::npos) sNames += sName + "|";
  }
  std::vector<std::string> aNames;
  for (std::size_t lStart = 0; lStart < sNames.size();) {
    const std::size_t lEnd = sNames.find('|', lStart);
    aNames.push_back(sNames.substr(lStart, lEnd - lStart));
    lStart = lEnd + 1;
  }
  return aNames;
}

void NameShape(const Ref<excel::Shape>& oShape, const std::string& sName) {
  oShape->SetName(sName);
  oShape->SetAlternativeText(kEntryMark + oShape->Name());
}

/// The extent of the entries drawn so far, in whole points.
struct Extent {
  std::int32_t lItemRight = 0;  ///< of the entry being drawn
  std::int32_t lItemTop = 0;    ///< of the previous entry
  std::int32_t lMaxRight = 0;
};

void AddEntryText(const std::string& sName, double dFontSize, Extent& oExtent) {
  const auto oText = mChart->Shapes()->AddTextbox(excel::msoTextOrientationHorizontal, 0, 0, 0, 0);
  NameShape(oText, sName + " Text");
  const auto oCharacters = oText->TextFrame()->Characters();
  const auto oFont = oCharacters->Font();
  oFont->SetName(mLegendFont.vName);
  oFont->SetSize(dFontSize);
  oFont->SetColor(mLegendFont.vColor);
  oFont->SetBold(false);
  oCharacters->SetText(sName);
  const auto oFrame2 = oText->TextFrame2();
  oFrame2->SetWordWrap(false);
  oFrame2->SetAutoSize(excel::msoAutoSizeShapeToFitText);
  oFrame2->SetMarginTop(0);
  const auto oFrame = oText->TextFrame();
  oFrame->SetVerticalAlignment(excel::xlVAlignTop);
  oFrame->SetHorizontalAlignment(excel::xlHAlignLeft);
  oFrame->SetMarginTop(0);

  oText->SetWidth(static_cast<double>(runtime::Len(sName)) * dFontSize / 2);
  oText->SetHeight(dFontSize * 2);
  // The host may have fitted the box to its text, so its height is read again.
  oText->SetLeft(oText->Height() > 10 ? oText->Height() - 10 : oText->Height() / 2);
  if (oText->Height() + oExtent.lItemTop > 6) oText->SetTop(oText->Height() + oExtent.lItemTop - 5);
  oExtent.lItemRight = CLng(oText->Left() + oText->Width() + oExtent.lItemRight);
  oExtent.lItemTop = CLng(oText->Top());
}

void AddEntryKey(const std::string& sName, double dFontSize, const CPSColor& oColor, Extent& oExtent) {
  const auto oKey = mChart->Shapes()->AddShape(excel::msoShapeRectangle, 0, 0, 0, 0);
  NameShape(oKey, sName + " Key");
  oKey->SetHeight(dFontSize > 1 ? dFontSize - 1 : dFontSize);
  oKey->SetWidth(oKey->Height());
  oKey->Fill()->BackColor()->SetRGB(CLng(oColor.Color()));
  oKey->Fill()->ForeColor()->SetRGB(CLng(oColor.Color()));
  oKey->SetTop(mChart->Shapes()->Item(sName + " Text")->Top());
  oKey->SetLockAspectRatio(true);
  const std::int32_t lChartType = mChart->ChartType();
  if (lChartType == excel::xlBubble || lChartType == excel::xlBubble3DEffect) {
    oKey->SetAutoShapeType(excel::msoShapeOval);
  }
  const auto oLine = oKey->Line();
  if (HostVersion(mChart->Application()) > kLastClassicVersion) {
    oLine->SetVisible(false);
  } else {
    oLine->SetWeight(1);
    oLine->ForeColor()->SetRGB(kWhiteRgb);
    oLine->BackColor()->SetRGB(kBlackRgb);
    oLine->SetVisible(true);
  }
  oExtent.lItemRight = CLng(oKey->Width() + oExtent.lItemRight);
  if (oExtent.lMaxRight < oExtent.lItemRight) oExtent.lMaxRight = oExtent.lItemRight;
}

void GroupEntries(double dWidth) {
  std::vector<std::string> aNames;
  const auto oShapes = mChart->Shapes();
  for (std::int32_t i = 1; i <= oShapes->Count(); ++i) {
    const auto oShape = oShapes->Item(i);
    if (Contains(oShape->AlternativeText(), kEntryMark)) aNames.push_back(oShape->Name());
  }
  Ref<excel::Shape> oGroup;
  IgnoreErrors([&] { oGroup = oShapes->Range(aNames)->Group(); }, [&] { oGroup->SetName(kLegendName); },
               [&] { oGroup->SetWidth(dWidth); });
}

void PlaceLegend() {
  const auto oPlotArea = mChart->PlotArea();
  oPlotArea->SetWidth(mChart->ChartArea()->Width());
  const auto oLegend = mChart->Shapes()->Range({kLegendName});
  oPlotArea->SetWidth(oPlotArea->Width() - oPlotArea->Left() - oLegend->Width() + 10);
  if (mLegendLeft > 0) {
    oLegend->SetLeft(mLegendLeft);
    oLegend->SetTop(mLegendTop);
  } else {
    oLegend->SetLeft(oPlotArea->Left() + oPlotArea->Width() + 10);
    oLegend->SetTop(oPlotArea->Top() + oPlotArea->Height() / 2 - oLegend->Height() / 2);
  }
}

/// Returns true if a program has dropped the drawn legend. After a user deletes the legend, the next refresh
/// gives the plot area its full width. If a program has dropped the legend, its space is still free.
bool DrawnLegendWasDropped() {
  if (!LossesOfLastSave().bShapesOnCharts) return false;
  const auto oPlotArea = mChart->PlotArea();
  const double dFree = mChart->ChartArea()->Width() - oPlotArea->Left() - oPlotArea->Width();
  return dFree > kWidestMargin;
}

}  // namespace

bool LegendIsDrawn() { return HostVersion(mChart->Application()) > kLastClassicVersion; }

void ApplyDrawnLegend() {
  HandleErrors(
      [] {
        if (mLegendVisibility == "show") {
          mChart->SetHasLegend(true);
          BuildChartLegend(true);
        } else if (mLegendVisibility == "hide") {
          // A chart with a drawn legend has no built-in one, so it was read back as "hide". Only the shape
          // shows whether the legend is wanted.
          if (DrawnLegendWasDropped() || mChart->Shapes()->Range({kLegendName})->Name() == kLegendName) {
            BuildChartLegend(true);
          }
        } else if (mLegendVisibility == "auto") {
          BuildChartLegend(true);
        }
      },
      [](const runtime::RuntimeError&) {
        mChart->SetHasLegend(false);
        BuildChartLegend(false);
      });
}

void BuildChartLegend(bool bDraw) {
  if (!bDraw) {
    RemoveLegendShapes();
    mChart->PlotArea()->SetWidth(mChart->ChartArea()->Width());
    return;
  }
  mChart->SetHasLegend(false);
  const std::vector<std::string> aNames = DistinctNames();
  RemoveLegendShapes();
  const double dFontSize = runtime::Val(mLegendFont.vSize);
  Extent oExtent;
  for (const std::string& sName : aNames) {
    if (sName == kBucketSeriesName) continue;
    oExtent.lItemRight = 0;
    const auto oColor = mSeriesColors->Item(sName);
    AddEntryText(sName, dFontSize, oExtent);
    AddEntryKey(sName, dFontSize, *oColor, oExtent);
  }
  GroupEntries(oExtent.lMaxRight);
  PlaceLegend();
}

}  // namespace plotsmith
