#pragma once

#include "render/axes/AxisMap.h"
#include "render/axes/AxisPlace.h"
#include "render/axes/TickLabels.h"
#include "render/model/ChartModel.h"

/// Lays out and draws the outer levels of categories, which are texts for groups of categories.
namespace plotsmith::render {

/// Adds the texts of the outer levels, and the space that they take, to the labels of an axis. `length` is
/// the length of the axis in points. Texts are shortened to the width of their group, or left out if not even
/// a part of them fits.
void AddOuterLevels(const AxisModel& axis, double length, const TextMeasure& measure, TickLabels& labels);

/// Draws the texts of the outer levels, and lines between the groups.
void DrawOuterLevels(Canvas& canvas, const AxisModel& axis, const TickLabels& labels, const AxisMap& map,
                     const AxisPlace& place);

}  // namespace plotsmith::render
