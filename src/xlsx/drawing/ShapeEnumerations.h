#pragma once

#include "xlsx/Enumerations.h"

namespace plotsmith::xlsx {

/// MsoAutoShapeType, ST_ShapeType.
extern const Enumeration kAutoShapes;
/// XlHAlign, ST_TextAlignType.
extern const Enumeration kTextAlignments;
/// XlVAlign, ST_TextAnchoringType.
extern const Enumeration kTextAnchors;
/// MsoAutoSize, the element of bodyPr that says it.
extern const Enumeration kAutoSizes;

}  // namespace plotsmith::xlsx
