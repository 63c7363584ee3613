#pragma once

#include "render/axes/AxisMap.h"
#include "render/axes/AxisPlace.h"
#include "render/axes/TickLabels.h"
#include "render/model/ChartModel.h"

/// The outer levels of categories: what groups of them have in common, beyond their own labels.
namespace plotsmith::render {

/// Adds the texts of the outer levels to the labels of an axis of a length in points, and the room that they
/// take. Texts are shortened to the width of their group, and are left out where nothing of them fits.
void AddOuterLevels(const AxisModel& axis, double length, const TextMeasure& measure, TickLabels& labels);

/// Draws these texts, and lines between the groups.
void DrawOuterLevels(Canvas& canvas, const AxisModel& axis, const TickLabels& labels, const AxisMap& map,
                     const AxisPlace& place);

}  // namespace plotsmith::render
