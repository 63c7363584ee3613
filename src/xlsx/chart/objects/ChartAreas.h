#pragma once

#include <memory>

#include "host/excel/ChartArea.h"
#include "host/excel/PlotArea.h"

/// The two areas of a chart: all of it, and what is plotted. `frame` is the shape that frames the chart on a
/// sheet, from which they have their size.
namespace plotsmith::xlsx {

class ChartPart;
class DrawnShape;

excel::Ref<excel::ChartArea> MakeChartArea(std::shared_ptr<ChartPart> part, std::weak_ptr<DrawnShape> frame);
excel::Ref<excel::PlotArea> MakePlotArea(std::shared_ptr<ChartPart> part, std::weak_ptr<DrawnShape> frame);

}  // namespace plotsmith::xlsx
