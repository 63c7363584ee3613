#pragma once

#include "render/plot/Plot.h"

namespace plotsmith::render {

// One function for each family draws the series of a group.
void DrawBars(Plot& plot, const GroupModel& group);
void DrawAreas(Plot& plot, const GroupModel& group);
/// Lines of a line chart; those of a stock chart with the bars from low to high.
void DrawLines(Plot& plot, const GroupModel& group);
void DrawScatter(Plot& plot, const GroupModel& group);
void DrawBubbles(Plot& plot, const GroupModel& group);
/// The series of a radar chart on a web of its own.
void DrawRadar(Plot& plot, const GroupModel& group);
/// A pie or a doughnut in the middle of the plot area, from which labels outside take their room.
void DrawPie(Plot& plot, const GroupModel& group);

}  // namespace plotsmith::render
