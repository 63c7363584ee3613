#include "xlsx/Enumerations.h"

namespace plotsmith::xlsx {
namespace {

constexpr EnumerationEntry kLegendPositionEntries[] = {
    {-4152, "xlLegendPositionRight", "r"}, {-4131, "xlLegendPositionLeft", "l"},
    {-4160, "xlLegendPositionTop", "t"},   {-4107, "xlLegendPositionBottom", "b"},
    {2, "xlLegendPositionCorner", "tr"},
};

constexpr EnumerationEntry kLabelPositionEntries[] = {
    {-4108, "xlLabelPositionCenter", "ctr"},  {2, "xlLabelPositionOutsideEnd", "outEnd"},
    {3, "xlLabelPositionInsideEnd", "inEnd"}, {4, "xlLabelPositionInsideBase", "inBase"},
    {5, "xlLabelPositionBestFit", "bestFit"}, {-4131, "xlLabelPositionLeft", "l"},
    {-4152, "xlLabelPositionRight", "r"},     {0, "xlLabelPositionAbove", "t"},
    {1, "xlLabelPositionBelow", "b"},
};

constexpr EnumerationEntry kPatternEntries[] = {
    {1, "msoPattern5Percent", "pct5"},
    {2, "msoPattern10Percent", "pct10"},
    {3, "msoPattern20Percent", "pct20"},
    {4, "msoPattern25Percent", "pct25"},
    {5, "msoPattern30Percent", "pct30"},
    {6, "msoPattern40Percent", "pct40"},
    {7, "msoPattern50Percent", "pct50"},
    {8, "msoPattern60Percent", "pct60"},
    {9, "msoPattern70Percent", "pct70"},
    {10, "msoPattern75Percent", "pct75"},
    {11, "msoPattern80Percent", "pct80"},
    {12, "msoPattern90Percent", "pct90"},
    {13, "msoPatternDarkHorizontal", "dkHorz"},
    {14, "msoPatternDarkVertical", "dkVert"},
    {15, "msoPatternDarkDownwardDiagonal", "dkDnDiag"},
    {16, "msoPatternDarkUpwardDiagonal", "dkUpDiag"},
    {17, "msoPatternSmallCheckerBoard", "smCheck"},
    {18, "msoPatternTrellis", "trellis"},
    {19, "msoPatternLightHorizontal", "ltHorz"},
    {20, "msoPatternLightVertical", "ltVert"},
    {21, "msoPatternLightDownwardDiagonal", "ltDnDiag"},
    {22, "msoPatternLightUpwardDiagonal", "ltUpDiag"},
    {23, "msoPatternSmallGrid", "smGrid"},
    {24, "msoPatternDottedDiamond", "dotDmnd"},
    {25, "msoPatternWideDownwardDiagonal", "wdDnDiag"},
    {26, "msoPatternWideUpwardDiagonal", "wdUpDiag"},
    {27, "msoPatternDashedUpwardDiagonal", "dashUpDiag"},
    {28, "msoPatternDashedDownwardDiagonal", "dashDnDiag"},
    {29, "msoPatternNarrowVertical", "narVert"},
    {30, "msoPatternNarrowHorizontal", "narHorz"},
    {31, "msoPatternDashedVertical", "dashVert"},
    {32, "msoPatternDashedHorizontal", "dashHorz"},
    {33, "msoPatternLargeConfetti", "lgConfetti"},
    {34, "msoPatternLargeGrid", "lgGrid"},
    {35, "msoPatternHorizontalBrick", "horzBrick"},
    {36, "msoPatternLargeCheckerBoard", "lgCheck"},
    {37, "msoPatternSmallConfetti", "smConfetti"},
    {38, "msoPatternZigzag", "zigZag"},
    {39, "msoPatternSolidDiamond", "solidDmnd"},
    {40, "msoPatternDiagonalBrick", "diagBrick"},
    {41, "msoPatternOutlinedDiamond", "openDmnd"},
    {42, "msoPatternPlaid", "plaid"},
    {43, "msoPatternSphere", "sphere"},
    {44, "msoPatternWeave", "weave"},
    {45, "msoPatternDottedGrid", "dotGrid"},
    {46, "msoPatternDivot", "divot"},
    {47, "msoPatternShingle", "shingle"},
    {48, "msoPatternWave", "wave"},
    {49, "msoPatternHorizontal", "horz"},
    {50, "msoPatternVertical", "vert"},
    {51, "msoPatternCross", "cross"},
    {52, "msoPatternDownwardDiagonal", "dnDiag"},
    {53, "msoPatternUpwardDiagonal", "upDiag"},
    {54, "msoPatternDiagonalCross", "diagCross"},
};

constexpr EnumerationEntry kInteriorPatternEntries[] = {
    {-4126, "xlPatternGray75", "pct75"},      {-4125, "xlPatternGray50", "pct50"},
    {-4124, "xlPatternGray25", "pct25"},      {17, "xlPatternGray16", "pct20"},
    {18, "xlPatternGray8", "pct10"},          {-4128, "xlPatternHorizontal", "dkHorz"},
    {-4166, "xlPatternVertical", "dkVert"},   {-4121, "xlPatternDown", "dkDnDiag"},
    {-4162, "xlPatternUp", "dkUpDiag"},       {9, "xlPatternChecker", "smCheck"},
    {10, "xlPatternSemiGray75", "trellis"},   {11, "xlPatternLightHorizontal", "ltHorz"},
    {12, "xlPatternLightVertical", "ltVert"}, {13, "xlPatternLightDown", "ltDnDiag"},
    {14, "xlPatternLightUp", "ltUpDiag"},     {15, "xlPatternGrid", "smGrid"},
    {16, "xlPatternCrissCross", "openDmnd"},
};

constexpr EnumerationEntry kLineStyleEntries[] = {
    {1, "xlContinuous", "solid"}, {-4115, "xlDash", "dash"},           {4, "xlDashDot", "dashDot"},
    {-4118, "xlDot", "sysDot"},   {5, "xlDashDotDot", "lgDashDotDot"},
};

constexpr EnumerationEntry kLineWeightEntries[] = {
    {1, "xlHairline", "3175"},
    {2, "xlThin", "12700"},
    {-4138, "xlMedium", "25400"},
    {4, "xlThick", "38100"},
};

constexpr EnumerationEntry kMarkerStyleEntries[] = {
    {-4105, "xlMarkerStyleAutomatic", "auto"}, {-4142, "xlMarkerStyleNone", "none"},
    {1, "xlMarkerStyleSquare", "square"},      {2, "xlMarkerStyleDiamond", "diamond"},
    {3, "xlMarkerStyleTriangle", "triangle"},  {-4168, "xlMarkerStyleX", "x"},
    {5, "xlMarkerStyleStar", "star"},          {-4118, "xlMarkerStyleDot", "dot"},
    {-4115, "xlMarkerStyleDash", "dash"},      {8, "xlMarkerStyleCircle", "circle"},
    {9, "xlMarkerStylePlus", "plus"},
};

constexpr EnumerationEntry kHorizontalAlignmentEntries[] = {
    {-4131, "xlHAlignLeft", "l"},       {-4108, "xlHAlignCenter", "ctr"},       {-4152, "xlHAlignRight", "r"},
    {-4130, "xlHAlignJustify", "just"}, {-4117, "xlHAlignDistributed", "dist"},
};

constexpr EnumerationEntry kVerticalAlignmentEntries[] = {
    {-4160, "xlVAlignTop", "t"},
    {-4108, "xlVAlignCenter", "ctr"},
    {-4107, "xlVAlignBottom", "b"},
    {-4130, "xlVAlignJustify", "just"},
    {-4117, "xlVAlignDistributed", "dist"},
};

constexpr EnumerationEntry kTickLabelPositionEntries[] = {
    {4, "xlTickLabelPositionNextToAxis", "nextTo"},
    {-4134, "xlTickLabelPositionLow", "low"},
    {-4127, "xlTickLabelPositionHigh", "high"},
    {-4142, "xlTickLabelPositionNone", "none"},
};

constexpr EnumerationEntry kCrossesEntries[] = {
    {-4105, "xlAxisCrossesAutomatic", "autoZero"},
    {2, "xlMaximum", "max"},
    {4, "xlMinimum", "min"},
};

constexpr EnumerationEntry kDisplayUnitEntries[] = {
    {-2, "xlHundreds", "hundreds"},
    {-3, "xlThousands", "thousands"},
    {-4, "xlTenThousands", "tenThousands"},
    {-5, "xlHundredThousands", "hundredThousands"},
    {-6, "xlMillions", "millions"},
    {-7, "xlTenMillions", "tenMillions"},
    {-8, "xlHundredMillions", "hundredMillions"},
    {-9, "xlThousandMillions", "billions"},
    {-10, "xlMillionMillions", "trillions"},
};

constexpr ChartTypeEntry kChartTypeEntries[] = {
    {1, "xlArea", "areaChart", "", "standard"},
    {76, "xlAreaStacked", "areaChart", "", "stacked"},
    {77, "xlAreaStacked100", "areaChart", "", "percentStacked"},
    {-4098, "xl3DArea", "area3DChart", "", "standard"},
    {78, "xl3DAreaStacked", "area3DChart", "", "stacked"},
    {79, "xl3DAreaStacked100", "area3DChart", "", "percentStacked"},
    {51, "xlColumnClustered", "barChart", "col", "clustered"},
    {52, "xlColumnStacked", "barChart", "col", "stacked"},
    {53, "xlColumnStacked100", "barChart", "col", "percentStacked"},
    {54, "xl3DColumnClustered", "bar3DChart", "col", "clustered"},
    {55, "xl3DColumnStacked", "bar3DChart", "col", "stacked"},
    {56, "xl3DColumnStacked100", "bar3DChart", "col", "percentStacked"},
    {-4100, "xl3DColumn", "bar3DChart", "col", "standard"},
    {57, "xlBarClustered", "barChart", "bar", "clustered"},
    {58, "xlBarStacked", "barChart", "bar", "stacked"},
    {59, "xlBarStacked100", "barChart", "bar", "percentStacked"},
    {60, "xl3DBarClustered", "bar3DChart", "bar", "clustered"},
    {61, "xl3DBarStacked", "bar3DChart", "bar", "stacked"},
    {62, "xl3DBarStacked100", "bar3DChart", "bar", "percentStacked"},
    {4, "xlLine", "lineChart", "", "standard", SeriesTrait::kNoMarkers},
    {63, "xlLineStacked", "lineChart", "", "stacked", SeriesTrait::kNoMarkers},
    {64, "xlLineStacked100", "lineChart", "", "percentStacked", SeriesTrait::kNoMarkers},
    {65, "xlLineMarkers", "lineChart", "", "standard", SeriesTrait::kMarkers},
    {66, "xlLineMarkersStacked", "lineChart", "", "stacked", SeriesTrait::kMarkers},
    {67, "xlLineMarkersStacked100", "lineChart", "", "percentStacked", SeriesTrait::kMarkers},
    {5, "xlPie", "pieChart", "", ""},
    {69, "xlPieExploded", "pieChart", "", "", SeriesTrait::kExploded},
    {-4102, "xl3DPie", "pie3DChart", "", ""},
    {70, "xl3DPieExploded", "pie3DChart", "", "", SeriesTrait::kExploded},
    {-4169, "xlXYScatter", "scatterChart", "", "", SeriesTrait::kMarkersOnly},
    {15, "xlBubble", "bubbleChart", "", "", SeriesTrait::kFlatBubble},
    {87, "xlBubble3DEffect", "bubbleChart", "", "", SeriesTrait::kBubble3D},
};

}  // namespace

const Enumeration kLegendPositions = {kLegendPositionEntries, "r"};
const Enumeration kLabelPositions = {kLabelPositionEntries, ""};
const Enumeration kPatterns = {kPatternEntries, ""};
const Enumeration kInteriorPatterns = {kInteriorPatternEntries, ""};
const Enumeration kLineStyles = {kLineStyleEntries, "solid"};
const Enumeration kLineWeights = {kLineWeightEntries, ""};
const Enumeration kMarkerStyles = {kMarkerStyleEntries, "auto"};
const Enumeration kHorizontalAlignments = {kHorizontalAlignmentEntries, ""};
const Enumeration kVerticalAlignments = {kVerticalAlignmentEntries, ""};
const Enumeration kTickLabelPositions = {kTickLabelPositionEntries, "nextTo"};
const Enumeration kCrosses = {kCrossesEntries, "autoZero"};
const Enumeration kDisplayUnits = {kDisplayUnitEntries, ""};
const std::span<const ChartTypeEntry> kChartTypes = kChartTypeEntries;

const ChartTypeEntry* FindChartType(std::int32_t number) {
  for (const ChartTypeEntry& entry : kChartTypes) {
    if (entry.number == number) return &entry;
  }
  return nullptr;
}

}  // namespace plotsmith::xlsx
