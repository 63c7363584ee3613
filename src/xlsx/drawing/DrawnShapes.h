#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/excel/Shapes.h"
#include "xlsx/drawing/ShapeXml.h"

namespace plotsmith::xlsx {

class DrawnShape;
class Journal;

/// The shapes of a sheet or a chart for the port.
class DrawnShapes : public excel::Shapes, public std::enable_shared_from_this<DrawnShapes> {
 public:
  excel::Ref<excel::Shape> Item(std::int32_t index) override;
  excel::Ref<excel::Shape> Item(std::string_view name) override;
  excel::Ref<excel::Shape> AddTextbox(std::int32_t orientation, double left, double top, double width,
                                      double height) override;
  excel::Ref<excel::Shape> AddShape(std::int32_t type, double left, double top, double width,
                                    double height) override;
  excel::Ref<excel::ShapeRange> Range(const std::vector<std::string>& names) override;

  /// Groups several shapes of this drawing into one.
  virtual std::shared_ptr<DrawnShape> Group(const std::vector<std::shared_ptr<DrawnShape>>& shapes) = 0;
  /// The journal of the host's calls.
  virtual const Journal& Log() const = 0;
  /// The path in the journal of the object that contains the shapes.
  virtual std::string JournalPath() const = 0;

 protected:
  /// The shape at an index from 0 (at the back) to Count - 1.
  virtual std::shared_ptr<DrawnShape> At(std::size_t index) = 0;
  /// The shape with a name, ignoring case; null if there is none.
  virtual std::shared_ptr<DrawnShape> Find(std::string_view name) = 0;
  /// Adds a text box to the drawing.
  virtual std::shared_ptr<DrawnShape> NewTextbox(const Frame& frame) = 0;
  /// Adds an AutoShape to the drawing. Its name is `name` and a number; `preset` is its geometry in the file
  /// (ST_ShapeType).
  virtual std::shared_ptr<DrawnShape> NewAutoShape(std::string_view name, std::string_view preset,
                                                   const Frame& frame) = 0;
};

}  // namespace plotsmith::xlsx
