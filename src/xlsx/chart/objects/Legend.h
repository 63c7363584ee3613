#pragma once

#include <memory>

#include "host/excel/Legend.h"

namespace plotsmith::xlsx {

class ChartPart;
class DrawnShape;

/// The legend, which the chart must have; `frame` gives the chart's size.
excel::Ref<excel::Legend> MakeLegend(std::shared_ptr<ChartPart> part, std::weak_ptr<DrawnShape> frame);

}  // namespace plotsmith::xlsx
