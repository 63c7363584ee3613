#pragma once

#include "xlsx/base/Enumerations.h"

/// Enumerations of Excel's object model that shapes have, and how the file says them.
namespace plotsmith::xlsx {

/// MsoAutoShapeType, ST_ShapeType.
extern const Enumeration kAutoShapes;
/// MsoAutoSize, the element of bodyPr that says it.
extern const Enumeration kAutoSizes;
/// XlHAlign, ST_TextAlignType, and XlVAlign, ST_TextAnchoringType.
extern const Enumeration kHorizontalAlignments;
extern const Enumeration kVerticalAlignments;

}  // namespace plotsmith::xlsx
