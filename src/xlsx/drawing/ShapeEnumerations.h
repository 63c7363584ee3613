#pragma once

#include "xlsx/Enumerations.h"

namespace plotsmith::xlsx {

/// MsoAutoShapeType, ST_ShapeType.
extern const Enumeration kAutoShapes;
/// MsoAutoSize, the element of bodyPr that says it.
extern const Enumeration kAutoSizes;

}  // namespace plotsmith::xlsx
