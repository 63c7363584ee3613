#pragma once

#include <cstdint>
#include <memory>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "host/excel/Excel.h"
#include "xlsx/drawing/ShapeXml.h"

namespace plotsmith::xlsx {

class SheetShape;
class Worksheet;

/// The drawing part of a worksheet: anchors, and on each a shape.
class SheetDrawing {
 public:
  /// Reads the part, which must be there. Throws PackageError.
  SheetDrawing(Worksheet& sheet, std::string part);
  ~SheetDrawing();

  Worksheet& Sheet() const { return sheet_; }
  const std::string& Part() const { return part_; }
  /// From back to front, what is inside a group not counted.
  const std::vector<std::shared_ptr<SheetShape>>& Shapes() const { return shapes_; }
  std::shared_ptr<SheetShape> FindShape(std::string_view name) const;

  std::shared_ptr<SheetShape> AddTextbox(const Frame& frame);
  /// `name` begins the shape's name, `preset` is its form in the file.
  std::shared_ptr<SheetShape> AddAutoShape(std::string_view name, std::string_view preset,
                                           const Frame& frame);
  std::shared_ptr<SheetShape> AddChart(const Frame& frame);
  void Remove(const SheetShape& shape);

  void MarkChanged() { changed_ = true; }
  bool Changed() const { return changed_; }
  void Write();

 private:
  std::shared_ptr<SheetShape> AddAnchor(const Frame& frame, const std::string& object);
  /// A name that no shape has yet, from a number on.
  std::string FreeName(const std::string& stem, std::size_t number) const;

  Worksheet& sheet_;
  std::string part_;
  pugi::xml_document document_;
  std::vector<std::shared_ptr<SheetShape>> shapes_;
  bool changed_ = false;
};

/// A drawing part without a shape.
std::string EmptyDrawing(bool strict);

}  // namespace plotsmith::xlsx
