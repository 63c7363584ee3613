#pragma once

#include <memory>

#include "host/excel/ChartArea.h"
#include "host/excel/PlotArea.h"

/// The chart area and the plot area for the port. `frame` is the shape that contains an embedded chart, and
/// determines the size of the areas.
namespace plotsmith::xlsx {

class ChartPart;
class DrawnShape;

/// The chart area for the port. `frame` is the shape of an embedded chart.
excel::Ref<excel::ChartArea> MakeChartArea(std::shared_ptr<ChartPart> part, std::weak_ptr<DrawnShape> frame);
/// The plot area for the port. `frame` is the shape of an embedded chart.
excel::Ref<excel::PlotArea> MakePlotArea(std::shared_ptr<ChartPart> part, std::weak_ptr<DrawnShape> frame);

}  // namespace plotsmith::xlsx
