#pragma once

#include <memory>

#include "host/excel/Legend.h"

namespace plotsmith::xlsx {

class ChartPart;
class DrawnShape;

/// The legend for the port. The chart must have one. `frame` determines the chart's size.
excel::Ref<excel::Legend> MakeLegend(std::shared_ptr<ChartPart> part, std::weak_ptr<DrawnShape> frame);

}  // namespace plotsmith::xlsx
