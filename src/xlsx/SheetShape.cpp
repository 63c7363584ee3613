#include "xlsx/SheetShape.h"

#include <algorithm>
#include <utility>

#include "runtime/Strings.h"
#include "xlsx/SheetDrawing.h"
#include "xlsx/Worksheet.h"
#include "xlsx/base/Errors.h"
#include "xlsx/base/Limits.h"
#include "xlsx/chart/objects/Chart.h"
#include "xlsx/drawing/DrawnShapes.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

using excel::Ref;
using runtime::RuntimeError;

namespace {

double Points(pugi::xml_node node) { return xml::ParseDouble(xml::Text(node)).value_or(0) / kEmuPerPoint; }

/// Returns the corner of an anchor. An offset that exceeds the size of its cell is limited to that size.
std::pair<double, double> PlaceOf(pugi::xml_node marker, const SheetGeometry& geometry) {
  const auto edge = [&](std::string_view index, std::string_view offset, const GridLines& lines,
                        std::int32_t most) {
    const auto at = std::clamp(xml::ParseInteger(xml::Text(xml::Child(marker, index))).value_or(0), 0LL,
                               static_cast<long long>(most) - 1);
    const auto line = static_cast<std::int32_t>(at);
    return lines.EdgeOf(line) + std::min(Points(xml::Child(marker, offset)), lines.SizeOf(line));
  };
  return {edge("col", "colOff", geometry.columns, limits::kColumns),
          edge("row", "rowOff", geometry.rows, limits::kRows)};
}

void SetPlace(pugi::xml_node marker, const SheetGeometry& geometry, double x, double y) {
  const auto set = [&](std::string_view index, std::string_view offset, const GridLines& lines,
                       double points) {
    const auto [line, rest] = lines.IndexAt(points);
    xml::SetText(xml::Child(marker, index), std::to_string(line));
    xml::SetText(xml::Child(marker, offset), std::to_string(Emu(rest)));
  };
  set("col", "colOff", geometry.columns, x);
  set("row", "rowOff", geometry.rows, y);
}

class SheetShapes final : public DrawnShapes {
 public:
  explicit SheetShapes(Worksheet& sheet) : sheet_(sheet) {}

  std::int32_t Count() override {
    const SheetDrawing* drawing = sheet_.FindDrawing();
    return drawing == nullptr ? 0 : static_cast<std::int32_t>(drawing->Shapes().size());
  }
  std::shared_ptr<DrawnShape> Group(const std::vector<std::shared_ptr<DrawnShape>>&) override {
    // This host groups only the shapes on charts.
    throw RuntimeError(runtime::error::kNoSuchMember);
  }
  const Journal& Log() const override { return sheet_.Book().Journal(); }
  std::string JournalPath() const override { return sheet_.JournalPath()(); }

 protected:
  std::shared_ptr<DrawnShape> At(std::size_t index) override { return sheet_.FindDrawing()->Shapes()[index]; }
  std::shared_ptr<DrawnShape> Find(std::string_view name) override {
    const SheetDrawing* drawing = sheet_.FindDrawing();
    return drawing == nullptr ? nullptr : drawing->FindShape(name);
  }
  std::shared_ptr<DrawnShape> NewTextbox(const Frame& frame) override {
    return sheet_.EnsureDrawing().AddTextbox(frame);
  }
  std::shared_ptr<DrawnShape> NewAutoShape(std::string_view name, std::string_view preset,
                                           const Frame& frame) override {
    return sheet_.EnsureDrawing().AddAutoShape(name, preset, frame);
  }

 private:
  Worksheet& sheet_;
};

class FramedChart final : public excel::ChartObject {
 public:
  explicit FramedChart(std::shared_ptr<SheetShape> shape) : shape_(std::move(shape)) {}
  std::string Name() override { return shape_->Name(); }
  Ref<excel::Chart> Chart() override { return shape_->Chart(); }

 private:
  std::shared_ptr<SheetShape> shape_;
};

class SheetCharts final : public excel::ChartObjects {
 public:
  explicit SheetCharts(Worksheet& sheet) : sheet_(sheet) {}

  std::int32_t Count() override {
    const SheetDrawing* drawing = sheet_.FindDrawing();
    if (drawing == nullptr) return 0;
    const auto& shapes = drawing->Shapes();
    return static_cast<std::int32_t>(std::count_if(
        shapes.begin(), shapes.end(), [](const auto& shape) { return shape->Type() == excel::msoChart; }));
  }
  Ref<excel::ChartObject> Item(std::string_view name) override {
    const SheetDrawing* drawing = sheet_.FindDrawing();
    if (drawing != nullptr) {
      for (const auto& shape : drawing->Shapes()) {
        if (shape->Type() == excel::msoChart && runtime::EqualsIgnoreCase(shape->NameText(), name)) {
          return std::make_shared<FramedChart>(shape);
        }
      }
    }
    throw CantGet("ChartObjects", "Worksheet");
  }
  Ref<excel::ChartObject> Add(double left, double top, double width, double height) override {
    sheet_.Book().Journal().Call([&] { return sheet_.JournalPath()() + ".ChartObjects"; }, "Add",
                                 {left, top, width, height});
    const Frame frame{left, top, width, height};
    CheckPlace(frame);
    return std::make_shared<FramedChart>(sheet_.EnsureDrawing().AddChart(frame));
  }

 private:
  Worksheet& sheet_;
};

}  // namespace

SheetShape::SheetShape(SheetDrawing& drawing, pugi::xml_node anchor, pugi::xml_node object)
    : DrawnShape(anchor, object), drawing_(drawing) {}

Workbook& SheetShape::Book() const { return drawing_.Sheet().Book(); }

const Journal& SheetShape::Log() const { return Book().Journal(); }

const Theme& SheetShape::Theme() const { return Book().Theme(); }

void SheetShape::MarkChanged() { drawing_.MarkChanged(); }

std::string SheetShape::JournalPath() const { return JournalPathUnder(drawing_.Sheet().JournalPath()()); }

Frame SheetShape::PlacedFrame() const {
  if (xml::Is(Anchor(), "absoluteAnchor")) {
    const auto place = xml::Child(Anchor(), "pos"), extent = xml::Child(Anchor(), "ext");
    return {PointsOf(place, "x"), PointsOf(place, "y"), PointsOf(extent, "cx"), PointsOf(extent, "cy")};
  }
  const SheetGeometry& geometry = drawing_.Sheet().Geometry();
  const auto [left, top] = PlaceOf(xml::Child(Anchor(), "from"), geometry);
  if (const auto extent = xml::Child(Anchor(), "ext")) {
    return {left, top, PointsOf(extent, "cx"), PointsOf(extent, "cy")};
  }
  const auto [right, bottom] = PlaceOf(xml::Child(Anchor(), "to"), geometry);
  return {left, top, right - left, bottom - top};
}

Frame SheetShape::MoveAnchor(const Frame& wanted) {
  // Cell A1 is at (0, 0) points.
  const Frame frame{std::max(wanted.left, 0.0), std::max(wanted.top, 0.0), std::max(wanted.width, 0.0),
                    std::max(wanted.height, 0.0)};
  if (xml::Is(Anchor(), "absoluteAnchor")) {
    SetPair(xml::Child(Anchor(), "pos"), "x", "y", frame.left, frame.top);
  } else {
    const SheetGeometry& geometry = drawing_.Sheet().Geometry();
    SetPlace(xml::Child(Anchor(), "from"), geometry, frame.left, frame.top);
    if (const auto to = xml::Child(Anchor(), "to")) SetPlace(to, geometry, frame.Right(), frame.Bottom());
  }
  if (const auto extent = xml::Child(Anchor(), "ext")) SetPair(extent, "cx", "cy", frame.width, frame.height);
  return frame;
}

void SheetShape::RemoveFromDrawing() { drawing_.Remove(*this); }

std::string SheetShape::ChartPartName() const {
  const auto& package = Book().Package();
  const auto link = package.FindRelationship(drawing_.Part(), xml::RelationshipId(ChartLinkOf(Object())));
  return link && !link->external && package.Has(link->target) ? link->target : std::string();
}

Ref<excel::Chart> SheetShape::Chart() {
  Workbook& book = Book();
  return book.Guarded([&]() -> Ref<excel::Chart> {
    return std::make_shared<xlsx::Chart>(book.Charts().At(ChartPartName()), shared_from_this());
  });
}

Ref<excel::Shapes> MakeShapes(Worksheet& sheet) { return std::make_shared<SheetShapes>(sheet); }

Ref<excel::ChartObjects> MakeChartObjects(Worksheet& sheet) { return std::make_shared<SheetCharts>(sheet); }

}  // namespace plotsmith::xlsx
