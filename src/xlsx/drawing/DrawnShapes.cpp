#include "xlsx/drawing/DrawnShapes.h"

#include "host/excel/ShapeRange.h"
#include "xlsx/base/Errors.h"
#include "xlsx/base/Journal.h"
#include "xlsx/drawing/DrawnShape.h"
#include "xlsx/drawing/ShapeEnumerations.h"

namespace plotsmith::xlsx {

using excel::Ref;
using runtime::RuntimeError;

namespace {

RuntimeError NotFound() { return Refusal("The item with the specified name wasn't found."); }

/// Returns the name of a new shape: "Rounded Rectangle" for "msoShapeRoundedRectangle".
std::string NameOf(std::string_view constant) {
  std::string name;
  for (const char c : constant.substr(std::string_view("msoShape").size())) {
    if (c >= 'A' && c <= 'Z' && !name.empty()) name += ' ';
    name += c;
  }
  return name;
}

class ShapeRangeObject final : public excel::ShapeRange {
 public:
  ShapeRangeObject(std::shared_ptr<DrawnShapes> owner, std::vector<std::shared_ptr<DrawnShape>> shapes)
      : owner_(std::move(owner)), shapes_(std::move(shapes)) {}

  std::string Name() override { return Only().Name(); }
  double Width() override { return Common(&DrawnShape::Width); }
  double Height() override { return Common(&DrawnShape::Height); }
  // A property is set on each shape, and each writes a line to the journal.
  void SetLeft(double points) override {
    for (const auto& shape : shapes_) shape->SetLeft(points);
  }
  void SetTop(double points) override {
    for (const auto& shape : shapes_) shape->SetTop(points);
  }
  Ref<excel::Shape> Group() override {
    owner_->Log().Call(
        [this] {
          std::string names;
          for (const auto& shape : shapes_)
            names += (names.empty() ? "" : ", ") + Journal::Literal(shape->Name());
          return owner_->JournalPath() + ".Shapes.Range(Array(" + names + "))";
        },
        "Group");
    if (shapes_.size() < 2) throw OutOfRange();
    return owner_->Group(shapes_);
  }

 private:
  DrawnShape& Only() const {
    if (shapes_.size() != 1) throw OutOfRange();
    return *shapes_[0];
  }
  /// Returns the value that all shapes have; raises error 1004 if they differ.
  template <class Get>
  double Common(const Get& get) const {
    const double first = (shapes_[0].get()->*get)();
    for (const auto& shape : shapes_) {
      if ((shape.get()->*get)() != first) throw OutOfRange();
    }
    return first;
  }

  std::shared_ptr<DrawnShapes> owner_;
  std::vector<std::shared_ptr<DrawnShape>> shapes_;
};

}  // namespace

Ref<excel::Shape> DrawnShapes::Item(std::int32_t index) {
  if (index < 1 || index > Count()) throw NotFound();
  return At(static_cast<std::size_t>(index) - 1);
}

Ref<excel::Shape> DrawnShapes::Item(std::string_view name) {
  auto shape = Find(name);
  if (!shape) throw NotFound();
  return shape;
}

Ref<excel::Shape> DrawnShapes::AddTextbox(std::int32_t orientation, double left, double top, double width,
                                          double height) {
  Log().Call([this] { return JournalPath() + ".Shapes"; }, "AddTextbox",
             {orientation, left, top, width, height});
  const Frame frame{left, top, width, height};
  CheckPlace(frame);
  return NewTextbox(frame);
}

Ref<excel::Shape> DrawnShapes::AddShape(std::int32_t type, double left, double top, double width,
                                        double height) {
  Log().Call([this] { return JournalPath() + ".Shapes"; }, "AddShape", {type, left, top, width, height});
  const Frame frame{left, top, width, height};
  CheckPlace(frame);
  for (const EnumerationEntry& entry : kAutoShapes.entries) {
    if (entry.number == type) return NewAutoShape(NameOf(entry.name), entry.token, frame);
  }
  throw OutOfRange();
}

Ref<excel::ShapeRange> DrawnShapes::Range(const std::vector<std::string>& names) {
  std::vector<std::shared_ptr<DrawnShape>> shapes;
  for (const std::string& name : names) {
    shapes.push_back(Find(name));
    if (!shapes.back()) throw NotFound();
  }
  if (shapes.empty()) throw OutOfRange();
  return std::make_shared<ShapeRangeObject>(shared_from_this(), std::move(shapes));
}

}  // namespace plotsmith::xlsx
