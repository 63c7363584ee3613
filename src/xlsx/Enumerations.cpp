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
};

}  // namespace

const Enumeration kLegendPositions = {kLegendPositionEntries, "r"};
const Enumeration kLabelPositions = {kLabelPositionEntries, ""};
const Enumeration kPatterns = {kPatternEntries, ""};
const std::span<const ChartTypeEntry> kChartTypes = kChartTypeEntries;

const ChartTypeEntry* FindChartType(std::int32_t number) {
  for (const ChartTypeEntry& entry : kChartTypes) {
    if (entry.number == number) return &entry;
  }
  return nullptr;
}

}  // namespace plotsmith::xlsx
