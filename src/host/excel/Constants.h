#pragma once

#include <cstdint>

namespace plotsmith::excel {

// Excel's enumerations, by Excel's names and numbers.

inline constexpr std::int32_t xlCalculationAutomatic = -4105;
inline constexpr std::int32_t xlCalculationManual = -4135;

inline constexpr std::int32_t xlSheetVisible = -1;
inline constexpr std::int32_t xlSheetHidden = 0;
inline constexpr std::int32_t xlSheetVeryHidden = 2;

inline constexpr std::int32_t xlShiftUp = -4162;

inline constexpr std::int32_t msoChart = 3;
inline constexpr std::int32_t msoGroup = 6;
inline constexpr std::int32_t msoPicture = 13;
inline constexpr std::int32_t msoTextBox = 17;
inline constexpr std::int32_t msoTextOrientationHorizontal = 1;
inline constexpr std::int32_t msoPatternLightUpwardDiagonal = 22;

inline constexpr std::int32_t xlColorIndexNone = -4142;
inline constexpr std::int32_t xlColorIndexAutomatic = -4105;

inline constexpr std::int32_t xlCategory = 1;
inline constexpr std::int32_t xlValue = 2;
inline constexpr std::int32_t xlPrimary = 1;

inline constexpr std::int32_t xlHorizontal = -4128;
inline constexpr std::int32_t xlUpward = -4171;
inline constexpr std::int32_t xlDownward = -4170;
inline constexpr std::int32_t xlVertical = -4166;

inline constexpr std::int32_t xlDataLabelsShowValue = 2;
inline constexpr std::int32_t xlDataLabelsShowPercent = 3;
inline constexpr std::int32_t xlLabelPositionCenter = -4108;

inline constexpr std::int32_t xlLegendPositionRight = -4152;

inline constexpr std::int32_t xlArea = 1;
inline constexpr std::int32_t xl3DArea = -4098;
inline constexpr std::int32_t xlAreaStacked = 76;
inline constexpr std::int32_t xlAreaStacked100 = 77;
inline constexpr std::int32_t xl3DAreaStacked = 78;
inline constexpr std::int32_t xl3DAreaStacked100 = 79;
inline constexpr std::int32_t xlColumnClustered = 51;
inline constexpr std::int32_t xlColumnStacked = 52;
inline constexpr std::int32_t xlColumnStacked100 = 53;
inline constexpr std::int32_t xl3DColumnClustered = 54;
inline constexpr std::int32_t xl3DColumnStacked = 55;
inline constexpr std::int32_t xl3DColumnStacked100 = 56;
inline constexpr std::int32_t xlBarClustered = 57;
inline constexpr std::int32_t xlBarStacked = 58;
inline constexpr std::int32_t xlBarStacked100 = 59;
inline constexpr std::int32_t xl3DBarClustered = 60;
inline constexpr std::int32_t xl3DBarStacked = 61;
inline constexpr std::int32_t xl3DBarStacked100 = 62;
inline constexpr std::int32_t xl3DColumn = -4100;

}  // namespace plotsmith::excel
