#pragma once

#include "render/plot/Plot.h"
#include "render/text/TextBlock.h"

namespace plotsmith::render {

/// What the label of a point says; `share` is what a percentage shows.
RichText LabelText(const ChartModel& chart, const GroupModel& group, const SeriesModel& series,
                   std::size_t point, const LabelModel& label, double share);

}  // namespace plotsmith::render
