#include "xlsx/Shape.h"

#include <algorithm>

#include "runtime/RuntimeError.h"
#include "runtime/Strings.h"
#include "xlsx/Chart.h"
#include "xlsx/ChartPart.h"
#include "xlsx/Drawing.h"
#include "xlsx/Limits.h"
#include "xlsx/Worksheet.h"
#include "xlsx/Xml.h"

namespace plotsmith::xlsx {

using excel::Ref;
using runtime::RuntimeError;

namespace {

constexpr double kEmuPerPoint = 12700;
constexpr std::int32_t msoAutoShape = 1;
constexpr std::int32_t msoLine = 9;

double Points(pugi::xml_node node) { return xml::ParseDouble(xml::Text(node)).value_or(0) / kEmuPerPoint; }

/// A corner of an anchor. What lies in a cell can't lie behind its end.
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

double ExtentPoints(pugi::xml_node extent, const char* name) {
  return xml::NumberAttribute(extent, name, 0) / kEmuPerPoint;
}

/// A stretch of a shape's text.
class ShapeCharacters final : public excel::Characters {
 public:
  ShapeCharacters(std::shared_ptr<Shape> shape, std::size_t start, std::optional<std::size_t> length)
      : shape_(std::move(shape)), start_(start), length_(length) {}

  std::string Text() override {
    const std::u16string units = runtime::ToUtf16(shape_->Text());
    const std::size_t at = std::min(start_ - 1, units.size());
    return runtime::ToUtf8(units.substr(at, length_.value_or(units.size())));
  }
  void SetText(std::string_view text) override {
    Log([&](const auto& journal, const auto& path) { journal.Put(path, "Text", text); });
    Replace(text);
  }
  void Insert(std::string_view text) override {
    Log([&](const auto& journal, const auto& path) { journal.Call(path, "Insert", {text}); });
    Replace(text);
  }

 private:
  template <class Write>
  void Log(const Write& write) {
    write(shape_->Owner().Sheet().Book().Journal(), [this] {
      return shape_->JournalPath() + ".TextFrame.Characters" +
             (start_ > 1 ? "(" + std::to_string(start_) + ")" : std::string());
    });
  }

  void Replace(std::string_view text) {
    std::u16string units = runtime::ToUtf16(shape_->Text());
    const std::size_t at = std::min(start_ - 1, units.size());
    units.replace(at, length_.value_or(std::u16string::npos), runtime::ToUtf16(text));
    shape_->SetText(runtime::ToUtf8(units));
  }

  std::shared_ptr<Shape> shape_;
  std::size_t start_;
  std::optional<std::size_t> length_;
};

class ShapeTextFrame final : public excel::TextFrame {
 public:
  explicit ShapeTextFrame(std::shared_ptr<Shape> shape) : shape_(std::move(shape)) {}

  Ref<excel::Characters> Characters(std::int32_t start, std::int32_t length) override {
    if (start < 1) throw RuntimeError(runtime::error::kApplication);
    return std::make_shared<ShapeCharacters>(
        shape_, static_cast<std::size_t>(start),
        length < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(length)));
  }

 private:
  std::shared_ptr<Shape> shape_;
};

class SheetShapes final : public excel::Shapes {
 public:
  explicit SheetShapes(Worksheet& sheet) : sheet_(sheet) {}

  std::int32_t Count() override {
    const Drawing* drawing = sheet_.FindDrawing();
    return drawing == nullptr ? 0 : static_cast<std::int32_t>(drawing->Shapes().size());
  }
  Ref<excel::Shape> Item(std::int32_t index) override {
    if (index < 1 || index > Count()) throw NotFound();
    return sheet_.FindDrawing()->Shapes()[static_cast<std::size_t>(index) - 1];
  }
  Ref<excel::Shape> Item(std::string_view name) override {
    const Drawing* drawing = sheet_.FindDrawing();
    auto shape = drawing == nullptr ? nullptr : drawing->FindShape(name);
    if (!shape) throw NotFound();
    return shape;
  }
  Ref<excel::Shape> AddTextbox(std::int32_t orientation, double left, double top, double width,
                               double height) override {
    sheet_.Book().Journal().Call([&] { return sheet_.JournalPath()() + ".Shapes"; }, "AddTextbox",
                                 {orientation, left, top, width, height});
    return sheet_.EnsureDrawing().AddTextbox(left, top, width, height);
  }

 private:
  static RuntimeError NotFound() {
    return RuntimeError(runtime::error::kApplication, "The item with the specified name wasn't found.");
  }

  Worksheet& sheet_;
};

class ChartFrame final : public excel::ChartObject {
 public:
  explicit ChartFrame(std::shared_ptr<Shape> shape) : shape_(std::move(shape)) {}
  std::string Name() override { return shape_->Name(); }
  Ref<excel::Chart> Chart() override { return shape_->Chart(); }

 private:
  std::shared_ptr<Shape> shape_;
};

class SheetChartObjects final : public excel::ChartObjects {
 public:
  explicit SheetChartObjects(Worksheet& sheet) : sheet_(sheet) {}

  std::int32_t Count() override {
    const Drawing* drawing = sheet_.FindDrawing();
    if (drawing == nullptr) return 0;
    const auto& shapes = drawing->Shapes();
    return static_cast<std::int32_t>(std::count_if(
        shapes.begin(), shapes.end(), [](const auto& shape) { return shape->Type() == excel::msoChart; }));
  }
  Ref<excel::ChartObject> Item(std::string_view name) override {
    const Drawing* drawing = sheet_.FindDrawing();
    if (drawing != nullptr) {
      for (const auto& shape : drawing->Shapes()) {
        if (shape->Type() == excel::msoChart && runtime::EqualsIgnoreCase(shape->Name(), name)) {
          return std::make_shared<ChartFrame>(shape);
        }
      }
    }
    throw RuntimeError(runtime::error::kApplication,
                       "Unable to get the ChartObjects property of the Worksheet class");
  }
  Ref<excel::ChartObject> Add(double left, double top, double width, double height) override {
    sheet_.Book().Journal().Call([&] { return sheet_.JournalPath()() + ".ChartObjects"; }, "Add",
                                 {left, top, width, height});
    return std::make_shared<ChartFrame>(sheet_.EnsureDrawing().AddChart(left, top, width, height));
  }

 private:
  Worksheet& sheet_;
};

}  // namespace

Shape::Shape(Drawing& drawing, pugi::xml_node anchor, pugi::xml_node object)
    : drawing_(drawing), anchor_(anchor), object_(object), type_(ReadType()) {}

pugi::xml_node Shape::Properties() const {
  // nvSpPr, nvGraphicFramePr, nvPicPr, ...: the first child of each kind of object
  for (const pugi::xml_node& child : object_.children()) {
    if (const auto properties = xml::Child(child, "cNvPr")) return properties;
  }
  return {};
}

pugi::xml_node Shape::ChartLink() const {
  const auto data = xml::Child(object_, "graphic", "graphicData");
  return xml::Attribute(data, "uri").ends_with("/chart") ? xml::Child(data, "chart") : pugi::xml_node();
}

std::int32_t Shape::ReadType() const {
  const std::string_view kind = xml::LocalName(object_);
  if (kind == "graphicFrame" && ChartLink()) return excel::msoChart;
  if (kind == "grpSp") return excel::msoGroup;
  if (kind == "pic") return excel::msoPicture;
  if (kind == "cxnSp") return msoLine;
  if (kind == "sp" && xml::BooleanAttribute(xml::Child(object_, "nvSpPr", "cNvSpPr"), "txBox", false)) {
    return excel::msoTextBox;
  }
  return msoAutoShape;
}

std::string Shape::Name() { return xml::Attribute(Properties(), "name"); }

std::string Shape::AlternativeText() { return xml::Attribute(Properties(), "descr"); }

std::string Shape::JournalPath() const {
  return drawing_.Sheet().JournalPath()() + ".Shapes(" +
         Journal::Literal(xml::Attribute(Properties(), "name")) + ")";
}

void Shape::SetAlternativeText(std::string_view text) {
  drawing_.Sheet().Book().Journal().Put([this] { return JournalPath(); }, "AlternativeText", text);
  xml::SetAttribute(Properties(), "descr", text);
  drawing_.MarkChanged();
}

Frame Shape::PlacedFrame() const {
  if (xml::Is(anchor_, "absoluteAnchor")) {
    const auto place = xml::Child(anchor_, "pos"), extent = xml::Child(anchor_, "ext");
    return {ExtentPoints(place, "x"), ExtentPoints(place, "y"), ExtentPoints(extent, "cx"),
            ExtentPoints(extent, "cy")};
  }
  const SheetGeometry& geometry = drawing_.Sheet().Geometry();
  const auto [left, top] = PlaceOf(xml::Child(anchor_, "from"), geometry);
  if (const auto extent = xml::Child(anchor_, "ext")) {
    return {left, top, ExtentPoints(extent, "cx"), ExtentPoints(extent, "cy")};
  }
  const auto [right, bottom] = PlaceOf(xml::Child(anchor_, "to"), geometry);
  return {left, top, right - left, bottom - top};
}

std::string Shape::ChartPartName() const {
  const auto& package = drawing_.Sheet().Book().Package();
  const auto link = package.FindRelationship(drawing_.Part(), xml::RelationshipId(ChartLink()));
  return link && !link->external && package.Has(link->target) ? link->target : std::string();
}

Ref<excel::Chart> Shape::Chart() {
  Workbook& book = drawing_.Sheet().Book();
  return book.Guarded([&]() -> Ref<excel::Chart> {
    return std::make_shared<xlsx::Chart>(book.Chart(ChartPartName()), weak_from_this());
  });
}

Ref<excel::TextFrame> Shape::TextFrame() { return std::make_shared<ShapeTextFrame>(shared_from_this()); }

std::string Shape::Text() const {
  std::string text;
  bool first = true;
  for (const pugi::xml_node& paragraph : xml::Children(xml::Child(object_, "txBody"), "p")) {
    if (!first) text += '\n';
    first = false;
    for (const pugi::xml_node& run : paragraph.children()) {
      if (xml::Is(run, "r") || xml::Is(run, "fld")) text += xml::Text(xml::Child(run, "t"));
      if (xml::Is(run, "br")) text += '\n';
    }
  }
  return text;
}

/// The text anew, a paragraph a line, each dressed as the first run and paragraph were.
void Shape::SetText(std::string_view text) {
  pugi::xml_node body = xml::Child(object_, "txBody");
  if (!body) throw RuntimeError(runtime::error::kApplication, "The specified value is out of range.");
  const std::string a = drawing_.DrawingMlPrefix();
  const auto name = [&](std::string_view local) { return a + std::string(local); };
  const auto paragraphs = xml::Children(body, "p");
  pugi::xml_document dress;  // copies, as the originals go
  const auto keep = [&](pugi::xml_node node) { return node ? dress.append_copy(node) : pugi::xml_node(); };
  const pugi::xml_node first = paragraphs.empty() ? pugi::xml_node() : paragraphs[0];
  const pugi::xml_node paragraphProperties = keep(xml::Child(first, "pPr"));
  const pugi::xml_node ending = keep(xml::Child(first, "endParaRPr"));
  pugi::xml_node runProperties = keep(xml::Child(first, "r", "rPr"));
  if (!runProperties && ending) {
    runProperties = dress.append_copy(ending);
    runProperties.set_name(name("rPr").c_str());
  }
  for (const pugi::xml_node& paragraph : paragraphs) body.remove_child(paragraph);

  std::string lines = runtime::Replace(text, "\r\n", "\n");
  lines = runtime::Replace(lines, "\r", "\n");
  for (std::string_view rest = lines;;) {
    const auto end = rest.find('\n');
    const std::string_view line = rest.substr(0, end);
    pugi::xml_node paragraph = body.append_child(name("p").c_str());
    if (paragraphProperties) paragraph.append_copy(paragraphProperties);
    if (!line.empty()) {
      pugi::xml_node run = paragraph.append_child(name("r").c_str());
      if (runProperties) run.append_copy(runProperties);
      xml::SetText(run.append_child(name("t").c_str()), line);
    } else if (ending) {
      paragraph.append_copy(ending);
    }
    if (end == std::string_view::npos) break;
    rest.remove_prefix(end + 1);
  }
  drawing_.MarkChanged();
}

void Shape::Delete() {
  drawing_.Sheet().Book().Journal().Call([this] { return JournalPath(); }, "Delete");
  drawing_.Remove(*this);
}

Ref<excel::Shapes> MakeShapes(Worksheet& sheet) { return std::make_shared<SheetShapes>(sheet); }

Ref<excel::ChartObjects> MakeChartObjects(Worksheet& sheet) {
  return std::make_shared<SheetChartObjects>(sheet);
}

}  // namespace plotsmith::xlsx
