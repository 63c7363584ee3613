#pragma once

#include <cstdint>

/// @file
/// Excel's enumerations, with Excel's names and numbers.
namespace plotsmith::excel {

/// XlCalculation.
///@{
inline constexpr std::int32_t xlCalculationAutomatic = -4105;
inline constexpr std::int32_t xlCalculationManual = -4135;
///@}

/// XlSheetVisibility.
///@{
inline constexpr std::int32_t xlSheetVisible = -1;
inline constexpr std::int32_t xlSheetHidden = 0;
inline constexpr std::int32_t xlSheetVeryHidden = 2;
///@}

/// XlDeleteShiftDirection.
inline constexpr std::int32_t xlShiftUp = -4162;

/// XlSortOrder.
///@{
inline constexpr std::int32_t xlAscending = 1;
inline constexpr std::int32_t xlDescending = 2;
///@}

/// XlYesNoGuess.
///@{
inline constexpr std::int32_t xlYes = 1;
inline constexpr std::int32_t xlNo = 2;
///@}

/// XlSortOrientation, where Excel calls it xlSortColumns.
inline constexpr std::int32_t xlTopToBottom = 1;

/// XlChartType: areas.
///@{
inline constexpr std::int32_t xlArea = 1;
inline constexpr std::int32_t xl3DArea = -4098;
inline constexpr std::int32_t xlAreaStacked = 76;
inline constexpr std::int32_t xlAreaStacked100 = 77;
inline constexpr std::int32_t xl3DAreaStacked = 78;
inline constexpr std::int32_t xl3DAreaStacked100 = 79;
///@}

/// XlChartType: columns.
///@{
inline constexpr std::int32_t xlColumnClustered = 51;
inline constexpr std::int32_t xlColumnStacked = 52;
inline constexpr std::int32_t xlColumnStacked100 = 53;
inline constexpr std::int32_t xl3DColumn = -4100;
inline constexpr std::int32_t xl3DColumnClustered = 54;
inline constexpr std::int32_t xl3DColumnStacked = 55;
inline constexpr std::int32_t xl3DColumnStacked100 = 56;
///@}

/// XlChartType: bars.
///@{
inline constexpr std::int32_t xlBarClustered = 57;
inline constexpr std::int32_t xlBarStacked = 58;
inline constexpr std::int32_t xlBarStacked100 = 59;
inline constexpr std::int32_t xl3DBarClustered = 60;
inline constexpr std::int32_t xl3DBarStacked = 61;
inline constexpr std::int32_t xl3DBarStacked100 = 62;
///@}

/// XlChartType: pies, scatter charts, bubbles and lines.
///@{
inline constexpr std::int32_t xlPie = 5;
inline constexpr std::int32_t xl3DPie = -4102;
inline constexpr std::int32_t xlPieExploded = 69;
inline constexpr std::int32_t xl3DPieExploded = 70;
inline constexpr std::int32_t xlXYScatter = -4169;
inline constexpr std::int32_t xlBubble = 15;
inline constexpr std::int32_t xlBubble3DEffect = 87;
inline constexpr std::int32_t xlLine = 4;
inline constexpr std::int32_t xlLineMarkers = 65;
///@}

/// The result of Chart::ChartType for a chart with several types. It belongs to Excel's Constants, not to
/// XlChartType.
inline constexpr std::int32_t xlCombination = -4111;

/// XlAxisType.
///@{
inline constexpr std::int32_t xlCategory = 1;
inline constexpr std::int32_t xlValue = 2;
///@}

/// XlAxisGroup.
inline constexpr std::int32_t xlPrimary = 1;

/// XlScaleType, where Excel calls it xlScaleLinear.
inline constexpr std::int32_t xlLinear = -4132;

/// XlTickLabelPosition.
inline constexpr std::int32_t xlTickLabelPositionLow = -4134;

/// XlLegendPosition.
inline constexpr std::int32_t xlLegendPositionRight = -4152;

/// XlDataLabelsType.
///@{
inline constexpr std::int32_t xlDataLabelsShowValue = 2;
inline constexpr std::int32_t xlDataLabelsShowPercent = 3;
///@}

/// XlDataLabelPosition.
///@{
inline constexpr std::int32_t xlLabelPositionCenter = -4108;
inline constexpr std::int32_t xlLabelPositionBestFit = 5;
///@}

/// XlMarkerStyle.
inline constexpr std::int32_t xlMarkerStyleDash = -4115;

/// XlBorderWeight.
///@{
inline constexpr std::int32_t xlHairline = 1;
inline constexpr std::int32_t xlThin = 2;
///@}

/// XlColorIndex.
///@{
inline constexpr std::int32_t xlColorIndexNone = -4142;
inline constexpr std::int32_t xlColorIndexAutomatic = -4105;
///@}

/// XlBackground.
///@{
inline constexpr std::int32_t xlBackgroundAutomatic = -4105;
inline constexpr std::int32_t xlBackgroundTransparent = 2;
///@}

/// XlOrientation.
///@{
inline constexpr std::int32_t xlHorizontal = -4128;
inline constexpr std::int32_t xlUpward = -4171;
inline constexpr std::int32_t xlDownward = -4170;
inline constexpr std::int32_t xlVertical = -4166;
///@}

/// XlVAlign.
inline constexpr std::int32_t xlVAlignTop = -4160;

/// XlHAlign.
inline constexpr std::int32_t xlHAlignLeft = -4131;

/// Excel's Constants, which are used for several kinds of properties.
///@{
inline constexpr std::int32_t xlAutomatic = -4105;
inline constexpr std::int32_t xlNone = -4142;
inline constexpr std::int32_t xlCenter = -4108;
///@}

/// MsoShapeType.
///@{
inline constexpr std::int32_t msoAutoShape = 1;
inline constexpr std::int32_t msoChart = 3;
inline constexpr std::int32_t msoGroup = 6;
inline constexpr std::int32_t msoPicture = 13;
inline constexpr std::int32_t msoTextBox = 17;
///@}

/// MsoAutoShapeType.
///@{
inline constexpr std::int32_t msoShapeRectangle = 1;
inline constexpr std::int32_t msoShapeOval = 9;
///@}

/// MsoAutoSize.
inline constexpr std::int32_t msoAutoSizeShapeToFitText = 1;

/// MsoTextOrientation.
inline constexpr std::int32_t msoTextOrientationHorizontal = 1;

/// MsoPatternType.
inline constexpr std::int32_t msoPatternLightUpwardDiagonal = 22;

}  // namespace plotsmith::excel
