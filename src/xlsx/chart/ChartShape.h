#pragma once

#include <pugixml.hpp>
#include <string>

#include "xlsx/drawing/DrawnShape.h"

namespace plotsmith::xlsx {

class ChartDrawing;

/// One shape on a chart: a view over its anchor in the chart's drawing.
class ChartShape final : public DrawnShape {
 public:
  ChartShape(ChartDrawing& drawing, pugi::xml_node anchor, pugi::xml_node object);

  void Delete() override;

  Frame PlacedFrame() const override;
  std::string JournalPath() const override;
  void MarkChanged() override;
  Workbook& Book() const override;

  pugi::xml_node Anchor() const { return anchor_; }
  ChartDrawing& Owner() const { return drawing_; }
  /// Inside of the chart, as its anchors can't say anything else: what would stick out is moved back, and cut
  /// only if it is larger than the chart.
  void Place(const Frame& frame) override;
  /// The shape has become part of another.
  void Leave();

 private:
  ChartDrawing& drawing_;
  pugi::xml_node anchor_;
};

}  // namespace plotsmith::xlsx
