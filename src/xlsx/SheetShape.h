#pragma once

#include <memory>
#include <pugixml.hpp>
#include <string>

#include "host/excel/Excel.h"
#include "xlsx/drawing/DrawnShape.h"

namespace plotsmith::xlsx {

class Chart;
class SheetDrawing;
class Workbook;

/// A shape of a sheet: a view over its anchor in the sheet's drawing.
class SheetShape final : public DrawnShape {
 public:
  /// Makes the shape for an anchor and the object on it.
  SheetShape(SheetDrawing& drawing, pugi::xml_node anchor, pugi::xml_node object);

  Frame PlacedFrame() const override;
  std::string JournalPath() const override;
  void MarkChanged() override;
  const Journal& Log() const override;
  const xlsx::Theme& Theme() const override;
  /// The workbook of the shape.
  Workbook& Book() const;

  /// The part of the chart in the shape; empty if there is no chart, or if the part is missing.
  std::string ChartPartName() const;
  /// The chart in the shape. If there is none, every use of the chart raises error 1004.
  excel::Ref<excel::Chart> Chart();

 protected:
  Frame MoveAnchor(const Frame& wanted) override;
  void RemoveFromDrawing() override;

 private:
  SheetDrawing& drawing_;
};

/// The shapes of a sheet, for the port.
excel::Ref<excel::Shapes> MakeShapes(class Worksheet& sheet);
/// The charts on a worksheet for the port.
excel::Ref<excel::ChartObjects> MakeChartObjects(class Worksheet& sheet);

}  // namespace plotsmith::xlsx
