#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/excel/Shapes.h"
#include "xlsx/chart/part/ChartShape.h"
#include "xlsx/drawing/AnchoredShapes.h"

namespace plotsmith::xlsx {

class ChartPart;
class DrawnShape;

/// The shapes on a chart, in its user shapes part. The part's anchors are fractions of the chart's size. The
/// part is created with the first shape and removed with the last one.
class ChartDrawing : public AnchoredShapes<ChartShape> {
 public:
  /// Reads the part, if there is one. Raises error 1004 if it can't be read.
  explicit ChartDrawing(ChartPart& chart);
  ~ChartDrawing() override;

  /// The chart of the drawing.
  ChartPart& Chart() const { return chart_; }
  /// Sets the shape that contains the chart on its sheet and determines the chart's size.
  void SetFrame(std::weak_ptr<DrawnShape> frame) { frame_ = std::move(frame); }
  /// The width and height of the chart in points.
  Frame Size() const;

  /// Adds a text box. `frame` is in points from the upper left corner of the chart.
  std::shared_ptr<ChartShape> AddTextbox(const Frame& frame);
  /// Adds an AutoShape. Its name is `name` and a number; `preset` is its geometry in the file (ST_ShapeType).
  /// `frame` is in points, like that of a text box.
  std::shared_ptr<ChartShape> AddAutoShape(std::string_view name, std::string_view preset,
                                           const Frame& frame);
  /// Groups several shapes into one. The group takes the front-most shape's place in the drawing order.
  /// Raises error 1004 if fewer than two of the shapes are on the chart.
  std::shared_ptr<ChartShape> Group(const std::vector<std::shared_ptr<DrawnShape>>& shapes);
  /// Updates the part and the chart's link to it.
  void Write();

 protected:
  void RemoveRelationships(const std::set<std::string>& ids) override;

 private:
  std::shared_ptr<ChartShape> AddAnchor(const Frame& frame, const std::string& object);
  void RemovePart();

  ChartPart& chart_;
  std::weak_ptr<DrawnShape> frame_;
};

/// The shapes on a chart, for the port.
excel::Ref<excel::Shapes> MakeChartShapes(std::shared_ptr<ChartPart> part, std::weak_ptr<DrawnShape> frame);

}  // namespace plotsmith::xlsx
