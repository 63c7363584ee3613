#pragma once

#include "render/plot/Plot.h"

/// @file
/// Each of these functions draws the series of a group, and adds the points that have labels to Plot::points.
namespace plotsmith::render {

/// Draws bars or columns.
void DrawBars(Plot& plot, const GroupModel& group);
/// Draws areas.
void DrawAreas(Plot& plot, const GroupModel& group);
/// Draws the lines of a line or stock chart, with their markers, drop lines and high-low lines.
void DrawLines(Plot& plot, const GroupModel& group);
/// Draws the lines and markers of a scatter chart.
void DrawScatter(Plot& plot, const GroupModel& group);
/// Draws bubbles.
void DrawBubbles(Plot& plot, const GroupModel& group);
/// Draws the series of a radar chart, and its axes.
void DrawRadar(Plot& plot, const GroupModel& group);
/// Draws a pie or a doughnut in the middle of the plot area. A pie leaves space for labels outside of it.
void DrawPie(Plot& plot, const GroupModel& group);
/// Draws a pie of pie or a bar of pie: a pie, and a second plot to its right that shows the parts of one of
/// its slices.
void DrawOfPie(Plot& plot, const GroupModel& group);

}  // namespace plotsmith::render
