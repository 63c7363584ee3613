#pragma once

#include <memory>

#include "host/excel/FillFormat.h"
#include "host/excel/LineFormat.h"

namespace plotsmith::xlsx {

class DrawnShape;

/// The fill of a shape for the port.
excel::Ref<excel::FillFormat> MakeFill(std::shared_ptr<DrawnShape> shape);
/// The outline of a shape for the port.
excel::Ref<excel::LineFormat> MakeLine(std::shared_ptr<DrawnShape> shape);

}  // namespace plotsmith::xlsx
