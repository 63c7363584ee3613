#pragma once

#include <memory>

#include "render/Drawing.h"
#include "render/Notes.h"
#include "render/TextMeasure.h"

namespace plotsmith::xlsx {
class ChartPart;
}

namespace plotsmith::render {

struct ChartModel;
struct RareLooks;

/// A chart that was read, and isn't drawn yet. Reading uses the workbook, which charts share, so one thread
/// reads them all. Drawing uses the chart alone, so that each thread can draw a chart of its own.
class UndrawnChart {
 public:
  /// Reads a chart that will be drawn at a size in points. The values are those of the caches in the chart
  /// part, or those of the cells where the part has no cache. The chart part isn't changed. It must exist
  /// longer than this object. What isn't drawn is added to `notes`. Raises error 1004 if the chart can't be
  /// read.
  UndrawnChart(xlsx::ChartPart& part, double width, double height, Notes& notes);
  UndrawnChart(UndrawnChart&&) noexcept;
  UndrawnChart& operator=(UndrawnChart&&) noexcept;
  ~UndrawnChart();

  /// Returns whether drawing reads further parts of the workbook, which are pictures and the shapes on the
  /// chart. Such a chart must be drawn by the thread that reads.
  bool NeedsWorkbook() const;
  /// Draws the chart, which can be done once. What isn't drawn is added to `notes`.
  Drawing Draw(const TextMeasure& measure, Notes& notes) &&;

 private:
  xlsx::ChartPart* part_;
  double width_, height_;
  std::unique_ptr<ChartModel> chart_;
  std::unique_ptr<RareLooks> looks_;
};

/// Reads and draws a chart.
Drawing DrawChart(xlsx::ChartPart& part, double width, double height, const TextMeasure& measure,
                  Notes& notes);

}  // namespace plotsmith::render
