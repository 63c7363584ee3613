#pragma once

#include "xlsx/base/Enumerations.h"

/// Enumerations of Excel's object model that only charts have, and their tokens in the file.
namespace plotsmith::xlsx {

/// XlLegendPosition, ST_LegendPos.
extern const Enumeration kLegendPositions;
/// XlDataLabelPosition, ST_DLblPos.
extern const Enumeration kLabelPositions;
/// MsoPatternType, ST_PresetPatternVal.
extern const Enumeration kPatterns;
/// XlPattern without the patterns of one colour, ST_PresetPatternVal.
extern const Enumeration kInteriorPatterns;
/// XlLineStyle, ST_PresetLineDashVal.
extern const Enumeration kLineStyles;
/// XlBorderWeight, the width of a line in EMU.
extern const Enumeration kLineWeights;
/// XlMarkerStyle, ST_MarkerStyle.
extern const Enumeration kMarkerStyles;
/// XlTickLabelPosition, ST_TickLblPos.
extern const Enumeration kTickLabelPositions;
/// XlAxisCrosses, ST_Crosses.
extern const Enumeration kCrosses;
/// XlDisplayUnit, ST_BuiltInUnit.
extern const Enumeration kDisplayUnits;

}  // namespace plotsmith::xlsx
