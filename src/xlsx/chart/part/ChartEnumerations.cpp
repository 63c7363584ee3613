#include "xlsx/chart/part/ChartEnumerations.h"

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

}  // namespace

const Enumeration kLegendPositions = {kLegendPositionEntries, "r"};
const Enumeration kLabelPositions = {kLabelPositionEntries, ""};
const Enumeration kPatterns = {kPatternEntries, ""};
const Enumeration kInteriorPatterns = {kInteriorPatternEntries, ""};
const Enumeration kLineStyles = {kLineStyleEntries, "solid"};
const Enumeration kLineWeights = {kLineWeightEntries, ""};
const Enumeration kMarkerStyles = {kMarkerStyleEntries, "auto"};
const Enumeration kTickLabelPositions = {kTickLabelPositionEntries, "nextTo"};
const Enumeration kCrosses = {kCrossesEntries, "autoZero"};
const Enumeration kDisplayUnits = {kDisplayUnitEntries, ""};

}  // namespace plotsmith::xlsx
