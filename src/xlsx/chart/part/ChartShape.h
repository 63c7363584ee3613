#pragma once

#include <pugixml.hpp>
#include <string>

#include "xlsx/drawing/DrawnShape.h"

namespace plotsmith::xlsx {

class ChartDrawing;

/// A shape on a chart, as a view of its anchor in the chart's drawing.
class ChartShape final : public DrawnShape {
 public:
  /// Makes the shape for an anchor and the object on it.
  ChartShape(ChartDrawing& drawing, pugi::xml_node anchor, pugi::xml_node object);

  Frame PlacedFrame() const override;
  std::string JournalPath() const override;
  void MarkChanged() override;
  const Journal& Log() const override;
  const xlsx::Theme& Theme() const override;

 protected:
  /// Anchors are limited to the chart. A shape that would extend beyond it is moved back, and made smaller
  /// only if it is larger than the chart.
  Frame MoveAnchor(const Frame& wanted) override;
  void RemoveFromDrawing() override;

 private:
  ChartDrawing& drawing_;
};

}  // namespace plotsmith::xlsx
