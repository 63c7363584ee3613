#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "xlsx/SheetShape.h"
#include "xlsx/drawing/AnchoredShapes.h"

namespace plotsmith::xlsx {

class Worksheet;

/// The drawing part of a worksheet: anchors, and on each a shape.
class SheetDrawing : public AnchoredShapes<SheetShape> {
 public:
  /// Reads the part, which must be there. Throws PackageError.
  SheetDrawing(Worksheet& sheet, std::string part);
  ~SheetDrawing() override;

  Worksheet& Sheet() const { return sheet_; }
  const std::string& Part() const { return part_; }

  std::shared_ptr<SheetShape> AddTextbox(const Frame& frame);
  /// `name` begins the shape's name, `preset` is its form in the file.
  std::shared_ptr<SheetShape> AddAutoShape(std::string_view name, std::string_view preset,
                                           const Frame& frame);
  std::shared_ptr<SheetShape> AddChart(const Frame& frame);
  void Write();

 protected:
  void RemoveRelationships(const std::set<std::string>& ids) override;

 private:
  std::shared_ptr<SheetShape> AddAnchor(const Frame& frame, const std::string& object);

  Worksheet& sheet_;
};

/// A drawing part without a shape.
std::string EmptyDrawing(bool strict);

}  // namespace plotsmith::xlsx
