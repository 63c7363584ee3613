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

/// What is drawn on a chart itself: the chart's part of user shapes. Anchors there know places as fractions
/// of the chart. The part comes into being with the first shape and goes with the last.
class ChartDrawing : public AnchoredShapes<ChartShape> {
 public:
  /// Error 1004 if the part can't be read.
  explicit ChartDrawing(ChartPart& chart);
  ~ChartDrawing() override;

  ChartPart& Chart() const { return chart_; }
  /// The shape that frames the chart on its sheet, from which the chart has its size.
  void SetFrame(std::weak_ptr<DrawnShape> frame) { frame_ = std::move(frame); }
  /// Width and height in points.
  Frame Size() const;

  std::shared_ptr<ChartShape> AddTextbox(const Frame& frame);
  /// `name` begins the shape's name, `preset` is its form in the file.
  std::shared_ptr<ChartShape> AddAutoShape(std::string_view name, std::string_view preset,
                                           const Frame& frame);
  /// Makes shapes one, which lies where the foremost of them lay. Error 1004 if one of them is gone.
  std::shared_ptr<ChartShape> Group(const std::vector<std::shared_ptr<DrawnShape>>& shapes);
  /// Brings the part, and the chart's link to it, up to date.
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
