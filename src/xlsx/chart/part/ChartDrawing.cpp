#include "xlsx/chart/part/ChartDrawing.h"

#include <algorithm>
#include <array>

#include "xlsx/base/Errors.h"
#include "xlsx/book/BookContext.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/part/ChartParts.h"
#include "xlsx/chart/part/ChartSize.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/drawing/DrawnShapes.h"
#include "xlsx/package/Namespaces.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

namespace {

constexpr std::array<std::string_view, 2> kAnchors = {"relSizeAnchor", "absSizeAnchor"};

std::string EmptyUserShapes(const Namespaces& names) {
  return std::string(kXmlDeclaration) + "<c:userShapes xmlns:c=\"" + std::string(names.chart) +
         "\" xmlns:cdr=\"" + std::string(names.chartDrawing) + "\" xmlns:a=\"" + std::string(names.drawing) +
         "\"/>";
}

/// The prefix of the drawing's elements, whose namespace differs from that of the root.
std::string ShapePrefix(pugi::xml_node root, const Namespaces& names) {
  return xml::EnsurePrefix(root, names.chartDrawing, "cdr");
}

class ChartShapesObject final : public DrawnShapes {
 public:
  ChartShapesObject(std::shared_ptr<ChartPart> part, std::weak_ptr<DrawnShape> frame)
      : part_(std::move(part)), frame_(std::move(frame)) {}

  std::int32_t Count() override { return static_cast<std::int32_t>(Drawing().Shapes().size()); }
  std::shared_ptr<DrawnShape> Group(const std::vector<std::shared_ptr<DrawnShape>>& shapes) override {
    return Drawing().Group(shapes);
  }
  const Journal& Log() const override { return part_->Book().Journal(); }
  std::string JournalPath() const override { return "Chart"; }

 protected:
  std::shared_ptr<DrawnShape> At(std::size_t index) override { return Drawing().Shapes()[index]; }
  std::shared_ptr<DrawnShape> Find(std::string_view name) override { return Drawing().FindShape(name); }
  std::shared_ptr<DrawnShape> NewTextbox(const Frame& frame) override { return Drawing().AddTextbox(frame); }
  std::shared_ptr<DrawnShape> NewAutoShape(std::string_view name, std::string_view preset,
                                           const Frame& frame) override {
    return Drawing().AddAutoShape(name, preset, frame);
  }

 private:
  ChartDrawing& Drawing() {
    ChartDrawing& drawing = part_->Drawing();
    drawing.SetFrame(frame_);
    return drawing;
  }

  std::shared_ptr<ChartPart> part_;
  std::weak_ptr<DrawnShape> frame_;
};

}  // namespace

ChartDrawing::ChartDrawing(ChartPart& chart) : chart_(chart) {
  const Package& package = chart.Book().Package();
  const std::string id = xml::RelationshipId(xml::Child(chart.Space(), "userShapes"));
  try {
    const auto link = package.FindRelationship(chart.Part(), id);
    if (link && !link->external && package.Has(link->target)) part_ = link->target;
    InPart(part_, [&] {
      xml::Parse(document_, part_.empty() ? EmptyUserShapes(chart.Book().Vocabulary()) : package.Read(part_));
      if (!xml::Is(xml::Root(document_), "userShapes")) throw PackageError("it contains no chart shapes");
    });
  } catch (const PackageError& e) {
    throw Refusal("The chart's shapes can't be read: " + std::string(e.what()) + ".");
  }
  ForEachAnchor(xml::Root(document_), kAnchors, [this](pugi::xml_node anchor, pugi::xml_node object) {
    shapes_.push_back(std::make_shared<ChartShape>(*this, anchor, object));
  });
}

ChartDrawing::~ChartDrawing() = default;

Frame ChartDrawing::Size() const { return ChartSize(frame_); }

std::shared_ptr<ChartShape> ChartDrawing::AddAnchor(const Frame& frame, const std::string& object) {
  const pugi::xml_node root = xml::Root(document_);
  const Namespaces& names = chart_.Book().Vocabulary();
  const std::string corner = "<@x>0</@x><@y>0</@y>";
  const pugi::xml_node anchor = AppendTemplate(
      root,
      "<@relSizeAnchor><@from>" + corner + "</@from><@to>" + corner + "</@to>" + object + "</@relSizeAnchor>",
      ShapePrefix(root, names), xml::EnsurePrefix(root, names.drawing, "a"));
  auto shape = std::make_shared<ChartShape>(*this, anchor, ObjectOf(anchor));
  shape->Place(frame);
  return shapes_.emplace_back(std::move(shape));
}

// As in Excel, the first id is 2 and the first name has the number 1.

std::shared_ptr<ChartShape> ChartDrawing::AddTextbox(const Frame& frame) {
  const unsigned id = NextShapeId(xml::Root(document_));
  return AddAnchor(frame, TextboxTemplate(id, FreeName("TextBox", id - 1), ""));
}

std::shared_ptr<ChartShape> ChartDrawing::AddAutoShape(std::string_view name, std::string_view preset,
                                                       const Frame& frame) {
  const unsigned id = NextShapeId(xml::Root(document_));
  return AddAnchor(frame, AutoShapeTemplate(id, FreeName(name, id - 1), preset));
}

std::shared_ptr<ChartShape> ChartDrawing::Group(const std::vector<std::shared_ptr<DrawnShape>>& shapes) {
  // The members of the group in drawing order, without duplicates.
  std::vector<std::shared_ptr<ChartShape>> members;
  for (const auto& shape : shapes_) {
    if (std::find(shapes.begin(), shapes.end(), shape) != shapes.end()) members.push_back(shape);
  }
  if (members.size() < 2) throw OutOfRange();
  Frame around = members[0]->PlacedFrame();
  for (const auto& member : members) {
    const Frame frame = member->PlacedFrame();
    const double right = std::max(around.Right(), frame.Right());
    const double bottom = std::max(around.Bottom(), frame.Bottom());
    around.left = std::min(around.left, frame.left);
    around.top = std::min(around.top, frame.top);
    around.width = right - around.left;
    around.height = bottom - around.top;
  }
  const unsigned id = NextShapeId(xml::Root(document_));
  const auto group = AddAnchor(around, GroupTemplate(id, FreeName("Group", id - 1), around));
  const pugi::xml_node foremost = members.back()->Anchor();
  foremost.parent().insert_move_after(group->Anchor(), foremost);
  pugi::xml_node object = group->Object();
  for (const auto& member : members) {
    // In a group, an object's own transform determines its position.
    SetTransform(member->Object(), member->PlacedFrame());
    object.append_move(member->Object());
  }
  const auto slot = std::find(shapes_.begin(), shapes_.end(), members.back());
  *slot = group;
  shapes_.pop_back();
  for (const auto& member : members) {
    pugi::xml_node anchor = member->Anchor();
    anchor.parent().remove_child(anchor);
    std::erase(shapes_, member);
    member->Leave();
  }
  MarkChanged();
  return group;
}

void ChartDrawing::RemoveRelationships(const std::set<std::string>& ids) {
  chart_.Parts().RemoveRelationships(part_, ids);
}

/// Removes the part and the chart's relationship to it.
void ChartDrawing::RemovePart() {
  const pugi::xml_node space = chart_.Space();
  chart_.Parts().RemoveRelationship(chart_.Part(), xml::RelationshipId(xml::Child(space, "userShapes")));
  schema::Remove(space, "userShapes");
  chart_.MarkChanged();
  part_.clear();
}

void ChartDrawing::Write() {
  if (!changed_) return;
  changed_ = false;
  Package& package = chart_.Book().Package();
  const bool empty = xml::Root(document_).find_child([](const pugi::xml_node& child) {
    return child.type() == pugi::node_element;
  }) == nullptr;
  if (empty) {
    if (!part_.empty()) RemovePart();
  } else if (part_.empty()) {
    const Namespaces& names = chart_.Book().Vocabulary();
    part_ = package.FreeName(chart_.Book().Folder() + "drawings/drawing", ".xml");
    package.Add(part_, content_type::kChartShapes, xml::Serialize(document_));
    const std::string id =
        package.AddRelationship(chart_.Part(), names.RelationshipType("chartUserShapes"), part_);
    const pugi::xml_node space = chart_.Space();
    const std::string attribute = xml::EnsurePrefix(space, names.relationships, "r") + "id";
    xml::SetAttribute(schema::Ensure(space, "userShapes"), attribute.c_str(), id);
    chart_.MarkChanged();
  } else {
    package.Replace(part_, xml::Serialize(document_));
  }
}

excel::Ref<excel::Shapes> MakeChartShapes(std::shared_ptr<ChartPart> part, std::weak_ptr<DrawnShape> frame) {
  return std::make_shared<ChartShapesObject>(std::move(part), std::move(frame));
}

}  // namespace plotsmith::xlsx
