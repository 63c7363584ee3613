#include "xlsx/ChartText.h"

#include <cmath>

#include "host/excel/Constants.h"
#include "runtime/RuntimeError.h"
#include "runtime/Strings.h"
#include "xlsx/ChartPart.h"
#include "xlsx/ChartSchema.h"
#include "xlsx/DrawingFill.h"
#include "xlsx/Workbook.h"
#include "xlsx/Xml.h"

namespace plotsmith::xlsx {

using runtime::RuntimeError;
using runtime::Variant;

namespace {

constexpr double kMostPoints = 409;
/// A body of text as the schema wants it, with one paragraph.
pugi::xml_node EnsureText(pugi::xml_node body) {
  schema::Ensure(body, "bodyPr");
  schema::Ensure(body, "lstStyle");
  return schema::Ensure(body, "p");
}

/// The run properties that the element's font consists of, made where they are missing.
std::vector<pugi::xml_node> RunProperties(pugi::xml_node element) {
  std::vector<pugi::xml_node> properties;
  for (const pugi::xml_node& body : TextBodies(element)) {
    for (const pugi::xml_node& paragraph : xml::Children(body, "p")) {
      properties.push_back(schema::Ensure(paragraph, "pPr", "defRPr"));
      for (const pugi::xml_node& child : paragraph.children()) {
        if (xml::Is(child, "r") || xml::Is(child, "fld")) properties.push_back(schema::Ensure(child, "rPr"));
      }
    }
  }
  return properties;
}

RuntimeError CantSet(const char* property) {
  return RuntimeError(runtime::error::kApplication,
                      std::string("Unable to set the ") + property + " property of the Font class");
}

class ChartFont final : public excel::Font {
 public:
  ChartFont(ChartPart& part, std::function<std::vector<TextLook>()> looks,
            std::function<pugi::xml_node()> element, std::string path)
      : part_(part), looks_(std::move(looks)), element_(std::move(element)), path_(std::move(path)) {}

  Variant Name() override {
    return Common([](const TextLook& look) { return Variant(look.typeface); });
  }
  Variant Size() override {
    return Common([](const TextLook& look) { return Variant(look.points); });
  }
  Variant FontStyle() override {
    return Common([](const TextLook& look) {
      return Variant(look.bold ? (look.italic ? "Bold Italic" : "Bold") : look.italic ? "Italic" : "Regular");
    });
  }
  Variant Color() override {
    return Common([](const TextLook& look) { return Variant(look.color); });
  }
  /// The file has no such property.
  Variant Background() override { return excel::xlBackgroundAutomatic; }

  void SetName(const Variant& name) override {
    const std::string typeface = runtime::CStr(name);
    if (typeface.empty()) throw CantSet("Name");
    Apply("Name", name, [&](pugi::xml_node properties) {
      // for Latin and for complex scripts, as Excel does it; what East Asian text has stays
      xml::SetAttribute(schema::Ensure(properties, "latin"), "typeface", typeface);
      xml::SetAttribute(schema::Ensure(properties, "cs"), "typeface", typeface);
    });
  }

  void SetSize(const Variant& size) override {
    const double points = runtime::CDbl(size);
    if (!(points >= 1 && points <= kMostPoints)) throw CantSet("Size");
    const std::string hundredths = std::to_string(std::lround(points * 100));
    Apply("Size", size, [&](pugi::xml_node properties) { xml::SetAttribute(properties, "sz", hundredths); });
  }

  void SetFontStyle(const Variant& style) override {
    const std::string name = runtime::UCase(runtime::CStr(style));
    if (name.empty()) throw CantSet("FontStyle");
    const bool bold = name.find("BOLD") != std::string::npos;
    const bool italic = name.find("ITALIC") != std::string::npos || name.find("OBLIQUE") != std::string::npos;
    Apply("FontStyle", style, [&](pugi::xml_node properties) {
      xml::SetAttribute(properties, "b", bold ? "1" : "0");
      xml::SetAttribute(properties, "i", italic ? "1" : "0");
    });
  }

  void SetBold(bool value) override {
    Apply("Bold", value,
          [&](pugi::xml_node properties) { xml::SetAttribute(properties, "b", value ? "1" : "0"); });
  }
  void SetBackground(std::int32_t background) override {
    part_.Book().Journal().Put([this] { return path_; }, "Background", background);
  }

  void SetColor(const Variant& color) override {
    const std::int32_t value = runtime::CLng(color);
    if (value < 0 || value > 0xFFFFFF) throw CantSet("Color");
    Apply("Color", color,
          [&](pugi::xml_node properties) { SetFillColor(SetFill(properties, "solidFill"), value); });
  }

 private:
  template <class Set>
  void Apply(const char* property, const Variant& value, const Set& set) {
    part_.Book().Journal().Put([this] { return path_; }, property, value);
    for (const pugi::xml_node& properties : RunProperties(element_())) set(properties);
    part_.MarkChanged();
  }

  /// A property of all of the text, or Null.
  template <class Get>
  Variant Common(const Get& get) const {
    Variant common;
    for (const TextLook& look : looks_()) {
      const Variant own = get(look);
      if (!common.IsEmpty() && common != own) return runtime::kNull;
      common = own;
    }
    return common;
  }

  ChartPart& part_;
  std::function<std::vector<TextLook>()> looks_;
  std::function<pugi::xml_node()> element_;
  std::string path_;
};

}  // namespace

void SetTitleText(pugi::xml_node title, std::string_view text) {
  pugi::xml_node tx = schema::Ensure(title, "tx");
  schema::Remove(tx, "strRef");
  const bool fresh = !schema::Find(tx, "rich");
  pugi::xml_node rich = schema::Ensure(tx, "rich");
  pugi::xml_node first = EnsureText(rich);
  if (fresh) {
    // a title that showed a cell's text was dressed by text properties of its own
    if (const auto own = schema::Find(title, "txPr")) {
      rich.remove_children();
      for (const pugi::xml_node& child : own.children()) rich.append_copy(child);
      first = EnsureText(rich);
      schema::Remove(first, "endParaRPr");
    }
  }
  schema::Remove(title, "txPr");

  pugi::xml_document dress;  // copies, as the originals go
  const auto keep = [&](pugi::xml_node node) { return node ? dress.append_copy(node) : pugi::xml_node(); };
  const auto paragraphProperties = keep(schema::Find(first, "pPr"));
  const auto runProperties = keep(schema::Find(schema::Find(first, "r"), "rPr"));
  schema::Remove(rich, "p");
  for (std::string_view rest = text;;) {
    const auto end = rest.find('\n');
    pugi::xml_node paragraph = schema::Insert(rich, "p");
    if (paragraphProperties) schema::InsertCopy(paragraph, paragraphProperties);
    pugi::xml_node run = schema::Ensure(paragraph, "r");
    if (runProperties) {
      schema::InsertCopy(run, runProperties);
    } else {
      xml::SetAttribute(schema::Ensure(run, "rPr"), "lang", "en-US");
    }
    xml::SetText(schema::Ensure(run, "t"), rest.substr(0, end));
    if (end == std::string_view::npos) break;
    rest.remove_prefix(end + 1);
  }
}

std::vector<pugi::xml_node> TextBodies(pugi::xml_node element) {
  const auto rich = xml::Child(element, "tx", "rich");
  const pugi::xml_node body = rich ? rich : schema::Ensure(element, "txPr");
  EnsureText(body);
  for (const pugi::xml_node& paragraph : xml::Children(body, "p")) {
    if (!rich && !schema::Find(paragraph, "endParaRPr")) {
      xml::SetAttribute(schema::Ensure(paragraph, "endParaRPr"), "lang", "en-US");
    }
  }
  std::vector<pugi::xml_node> bodies = {body};
  for (const pugi::xml_node& label : xml::Children(element, "dLbl")) {
    if (!schema::Find(label, "tx") && !schema::Find(label, "txPr")) continue;
    const auto own = TextBodies(label);
    bodies.insert(bodies.end(), own.begin(), own.end());
  }
  return bodies;
}

bool SetTextOrientation(pugi::xml_node body, std::int32_t orientation) {
  std::int32_t degrees = 0;
  std::string_view direction = "horz";
  switch (orientation) {
    case excel::xlHorizontal:
      break;
    case excel::xlUpward:
      degrees = 90;
      break;
    case excel::xlDownward:
      degrees = -90;
      break;
    case excel::xlVertical:
      direction = "wordArtVert";
      break;
    default:
      if (orientation < -90 || orientation > 90) return false;
      degrees = orientation;
  }
  const pugi::xml_node properties = schema::Ensure(body, "bodyPr");
  // the file turns clockwise, in sixty-thousandths of a degree
  xml::SetAttribute(properties, "rot", std::to_string(-degrees * 60000));
  xml::SetAttribute(properties, "vert", direction);
  return true;
}

excel::Ref<excel::Font> MakeFont(ChartPart& part, std::function<std::vector<TextLook>()> looks,
                                 std::function<pugi::xml_node()> element, std::string journalPath) {
  return std::make_shared<ChartFont>(part, std::move(looks), std::move(element), std::move(journalPath));
}

}  // namespace plotsmith::xlsx
