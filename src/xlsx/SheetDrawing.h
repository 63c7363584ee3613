#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "xlsx/SheetShape.h"
#include "xlsx/drawing/AnchoredShapes.h"

namespace plotsmith::xlsx {

class Worksheet;

/// The drawing part of a worksheet, which consists of anchors with one shape each.
class SheetDrawing : public AnchoredShapes<SheetShape> {
 public:
  /// Reads the part. Throws a PackageError if it is missing or can't be read.
  SheetDrawing(Worksheet& sheet, std::string part);
  ~SheetDrawing() override;

  /// The sheet of the drawing.
  Worksheet& Sheet() const { return sheet_; }
  /// The name of the drawing part.
  const std::string& Part() const { return part_; }

  /// Adds a text box. `frame` is in points from the upper left corner of the sheet.
  std::shared_ptr<SheetShape> AddTextbox(const Frame& frame);
  /// Adds an AutoShape. Its name is `name` and a number; `preset` is its geometry in the file (ST_ShapeType).
  /// `frame` is in points, like that of a text box.
  std::shared_ptr<SheetShape> AddAutoShape(std::string_view name, std::string_view preset,
                                           const Frame& frame);
  /// Adds a chart part without series, and the shape that contains the chart.
  std::shared_ptr<SheetShape> AddChart(const Frame& frame);
  /// Puts the part into the package if it was changed.
  void Write();

 protected:
  void RemoveRelationships(const std::set<std::string>& ids) override;

 private:
  std::shared_ptr<SheetShape> AddAnchor(const Frame& frame, const std::string& object);

  Worksheet& sheet_;
};

/// The XML of a drawing part without a shape.
std::string EmptyDrawing(bool strict);

}  // namespace plotsmith::xlsx
