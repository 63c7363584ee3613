#pragma once

#include <vector>

#include "render/axes/AxisMap.h"
#include "render/model/ChartModel.h"
#include "render/text/TextBlock.h"

namespace plotsmith::render {

struct TickLabel {
  int number = 1;    ///< of the tick or of the category, from 1
  double place = 0;  ///< the value, or the slot of the category or date from 0
  bool category = false;
  TextBlock block;
};

/// The texts of an outer level of categories.
struct LevelLabels {
  struct Group {
    CategoryGroup group;
    TextBlock block;
  };
  std::vector<Group> groups;
  double from = 0;   ///< from the gap to the axis to the level
  double depth = 0;  ///< that it takes across the axis
};

/// The labels along an axis, skipped, wrapped or turned so that none touches its neighbour.
struct TickLabels {
  std::vector<TickLabel> labels;
  double rotation = 0;   ///< degrees clockwise
  double depth = 0;      ///< the room that they take across the axis, without the gap to it
  double halfWidth = 0;  ///< what the widest takes along the axis to either side of its tick

  std::vector<LevelLabels> levels;  ///< beyond the labels of the categories

  bool IsEmpty() const { return labels.empty(); }
};

/// Lays out the labels of an axis of a length in points. `depth` is the room across it that they may take.
TickLabels LayOutTickLabels(const AxisModel& axis, double length, double depth, xlsx::DateSystem dates,
                            const TextMeasure& measure);

/// Ends a label of one line in dots if it is wider than the room for it; without room for those it is empty.
void Shorten(TextBlock& block, double most, const TextMeasure& measure);

/// Takes larger major units for an axis without a unit set by hand, until its labels have room along it.
void FitMajorUnit(AxisModel& axis, double length, xlsx::DateSystem dates, const TextMeasure& measure);

}  // namespace plotsmith::render
