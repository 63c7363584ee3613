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

/// The shapes of a drawing for the port, of a sheet's and of a chart's.
class DrawnShapes : public excel::Shapes, public std::enable_shared_from_this<DrawnShapes> {
 public:
  excel::Ref<excel::Shape> Item(std::int32_t index) override;
  excel::Ref<excel::Shape> Item(std::string_view name) override;
  excel::Ref<excel::Shape> AddTextbox(std::int32_t orientation, double left, double top, double width,
                                      double height) override;
  excel::Ref<excel::Shape> AddShape(std::int32_t type, double left, double top, double width,
                                    double height) override;
  excel::Ref<excel::ShapeRange> Range(const std::vector<std::string>& names) override;

  /// Makes shapes of this drawing one.
  virtual std::shared_ptr<DrawnShape> Group(const std::vector<std::shared_ptr<DrawnShape>>& shapes) = 0;
  virtual const Journal& Log() const = 0;
  /// The object that the shapes are drawn on.
  virtual std::string JournalPath() const = 0;

 protected:
  /// The shape at a place, counted from 0 at the back; there are Count of them.
  virtual std::shared_ptr<DrawnShape> At(std::size_t index) = 0;
  /// Null if there is none; case aside.
  virtual std::shared_ptr<DrawnShape> Find(std::string_view name) = 0;
  virtual std::shared_ptr<DrawnShape> NewTextbox(const Frame& frame) = 0;
  /// `name` begins the new shape's name, `preset` is its form in the file.
  virtual std::shared_ptr<DrawnShape> NewAutoShape(std::string_view name, std::string_view preset,
                                                   const Frame& frame) = 0;
};

}  // namespace plotsmith::xlsx
