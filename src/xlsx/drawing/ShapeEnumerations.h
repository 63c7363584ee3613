#pragma once

#include "xlsx/base/Enumerations.h"

/// Enumerations of shapes in Excel's object model, and their tokens in the file.
namespace plotsmith::xlsx {

/// MsoAutoShapeType, ST_ShapeType.
extern const Enumeration kAutoShapes;
/// MsoAutoSize, and the element of bodyPr for each member.
extern const Enumeration kAutoSizes;
/// XlHAlign, ST_TextAlignType.
extern const Enumeration kHorizontalAlignments;
/// XlVAlign, ST_TextAnchoringType.
extern const Enumeration kVerticalAlignments;

}  // namespace plotsmith::xlsx
