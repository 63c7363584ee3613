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

/// A chart that was read, but isn't drawn yet. Reading uses the workbook, which all charts share, so one
/// thread reads all charts. Drawing uses only the chart, so different threads can draw different charts.
class UndrawnChart {
 public:
  /// Reads a chart that will be drawn at a size in points. The values come from the caches in the chart part,
  /// or from the cells if the part has no cache. The chart part isn't changed, and must outlive this object.
  /// Adds a sentence to `notes` about everything that isn't drawn. Raises error 1004 if the chart can't be
  /// read.
  UndrawnChart(xlsx::ChartPart& part, double width, double height, Notes& notes);
  /// Moves the chart. After that, the other object can only be assigned to or destroyed.
  ///@{
  UndrawnChart(UndrawnChart&&) noexcept;
  UndrawnChart& operator=(UndrawnChart&&) noexcept;
  ///@}
  ~UndrawnChart();

  /// Returns true if drawing reads other parts of the workbook: pictures, or shapes on the chart. Such a
  /// chart must be drawn by the thread that reads the charts.
  bool NeedsWorkbook() const;
  /// Draws the chart. This can be done only once. Adds a sentence to `notes` about everything that isn't
  /// drawn.
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
