#pragma once

#include <memory>

#include "xlsx/drawing/ShapeXml.h"

namespace plotsmith::xlsx {

class DrawnShape;

/// The width and height of a chart, in points: those of the shape that frames it on a sheet, or of a chart
/// sheet's page if there is no such shape. Neither is below 1 point.
Frame ChartSize(const std::weak_ptr<DrawnShape>& frame);

}  // namespace plotsmith::xlsx
