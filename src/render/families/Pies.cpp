#include <algorithm>

#include "render/families/Families.h"
#include "render/families/Slices.h"

namespace plotsmith::render {
namespace {

/// Draws the rings of a doughnut, with the first series innermost. Only the slices of the outermost can move
/// outwards.
void DrawRings(Plot& plot, const GroupModel& group) {
  const SeriesModel& last = group.series.back();
  const double free =
      std::min(plot.area.width, plot.area.height) / 2 / (1 + FarthestExplosion(SlicesOf(group, last)));
  const double hole = group.holeSize / 100;
  const double width = (1 - hole) / static_cast<double>(group.series.size());
  for (std::size_t s = 0; s < group.series.size(); ++s) {
    const SeriesModel& series = group.series[s];
    const double outer = hole + width * static_cast<double>(s + 1);
    DrawSlices(plot, SlicesOf(group, series),
               {plot.area.Center(), free * outer, (outer - width) / outer, &series == &last});
  }
}

}  // namespace

void DrawPie(Plot& plot, const GroupModel& group) {
  if (group.family == Family::kDoughnut) return DrawRings(plot, group);
  const Point center = plot.area.Center();
  const double free = std::min(plot.area.width, plot.area.height) / 2;
  const SeriesModel& series = group.series.front();  // A pie shows one series.
  const std::vector<DrawnPoint> slices = SlicesOf(group, series);
  const double explosion = FarthestExplosion(slices);
  const double most = free / (1 + explosion);
  double radius = most;
  for (int pass = 0; pass < kLabelPasses && !plot.chart.layout; ++pass) {
    const LabelRoom room = RoomForLabels(plot, slices, radius);
    const double across = plot.area.width / 2 - std::max(room.left, room.right),
                 down = plot.area.height / 2 - room.height;
    radius = std::min(std::max(std::min(across, down) / (1 + explosion), most * kLeastRadius), radius);
  }
  DrawSlices(plot, slices, {center, radius});
}

}  // namespace plotsmith::render
