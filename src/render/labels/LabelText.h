#pragma once

#include "render/plot/Plot.h"
#include "render/text/TextBlock.h"

namespace plotsmith::render {

/// Returns the text of a label. `point` counts from 0; `share` is the share of the point in the whole, from 0
/// to 1.
RichText LabelText(const ChartModel& chart, const GroupModel& group, const SeriesModel& series,
                   std::size_t point, const LabelModel& label, double share);

}  // namespace plotsmith::render
