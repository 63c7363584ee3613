#pragma once

#include <vector>

#include "render/axes/AxisMap.h"
#include "render/model/ChartModel.h"
#include "render/text/TextBlock.h"

namespace plotsmith::render {

/// The label of a tick or category.
struct TickLabel {
  int number = 1;         ///< The number of the tick or of the category, from 1.
  double place = 0;       ///< The value; or the slot of the category or date, from 0.
  bool category = false;  ///< Whether `place` is a slot.
  TextBlock block;        ///< The text, broken into lines.
};

/// The laid out texts of an outer level of categories.
struct LevelLabels {
  /// A group of categories with its text.
  struct Group {
    /// The categories, by their indices from 0.
    CategoryGroup group;
    /// The text of the group, broken into lines.
    TextBlock block;
  };
  /// The groups in the order of their categories.
  std::vector<Group> groups;
  double from = 0;   ///< The distance from the gap beside the axis to the level, in points.
  double depth = 0;  ///< The extent of the level across the axis, in points.
};

/// The labels along an axis. Some are left out, or all are wrapped or rotated, so that no label touches the
/// next one.
struct TickLabels {
  /// The labels that are drawn, in the order of their numbers.
  std::vector<TickLabel> labels;
  double rotation = 0;  ///< The rotation in degrees clockwise.
  double depth = 0;     ///< The extent across the axis without the gap, in points.

  std::vector<LevelLabels> levels;  ///< The outer levels, beyond the labels of the categories.

  /// Returns true if the axis has no labels.
  bool IsEmpty() const { return labels.empty(); }
};

/// Lays out the labels of an axis. `length` is the length of the axis, and `depth` is the space for the
/// labels across it, both in points.
TickLabels LayOutTickLabels(const AxisModel& axis, double length, double depth, xlsx::DateSystem dates,
                            const TextMeasure& measure);

/// Shortens a label of one line to `most` points. It then ends in dots, or is empty if the dots don't fit.
void Shorten(TextBlock& block, double most, const TextMeasure& measure);

/// Increases the major unit of a value axis until its labels fit along `length` points. A unit that the user
/// set isn't changed.
void FitMajorUnit(AxisModel& axis, double length, xlsx::DateSystem dates, const TextMeasure& measure);

}  // namespace plotsmith::render
