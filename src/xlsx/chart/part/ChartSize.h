#pragma once

#include <memory>

#include "xlsx/drawing/ShapeXml.h"

namespace plotsmith::xlsx {

class DrawnShape;

/// The width and height of a chart, in points: those of the shape that contains it, or of a chart sheet's
/// page if there is no such shape. Neither is less than 1 point.
Frame ChartSize(const std::weak_ptr<DrawnShape>& frame);

}  // namespace plotsmith::xlsx
