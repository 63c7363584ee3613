#pragma once

#include <memory>
#include <string>
#include <vector>

#include "render/Drawing.h"
#include "render/TextMeasure.h"

namespace plotsmith::xlsx {
class ChartPart;
}

namespace plotsmith::render {

struct ChartModel;

/// What could not be drawn, one sentence each.
using Notes = std::vector<std::string>;

/// A chart that was read, and isn't drawn yet. Reading uses the workbook, which charts share, so one thread
/// reads them all. Drawing uses the chart alone, so that each thread can draw a chart of its own.
class UndrawnChart {
 public:
  /// Reads a chart to be drawn at a size in points. Values come from the caches in the chart part, or from
  /// the cells where the part has none. A chart that can't be read is error 1004. The chart part stays as it
  /// is, and must outlive this object.
  UndrawnChart(xlsx::ChartPart& part, double width, double height, Notes& notes);
  UndrawnChart(UndrawnChart&&) noexcept;
  UndrawnChart& operator=(UndrawnChart&&) noexcept;
  ~UndrawnChart();

  /// Whether drawing reads further parts of the workbook, which are pictures and the shapes on the chart.
  /// Such a chart is drawn by the thread that reads.
  bool NeedsWorkbook() const;
  /// Draws the chart. It can be drawn once.
  Drawing Draw(const TextMeasure& measure, Notes& notes) &&;

 private:
  xlsx::ChartPart* part_;
  double width_, height_;
  std::unique_ptr<ChartModel> chart_;
};

/// Reads a chart and draws it at a size in points.
Drawing DrawChart(xlsx::ChartPart& part, double width, double height, const TextMeasure& measure,
                  Notes& notes);

}  // namespace plotsmith::render
