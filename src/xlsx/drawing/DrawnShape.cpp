#include "xlsx/drawing/DrawnShape.h"

#include <cmath>
#include <limits>
#include <string>

#include "host/excel/Constants.h"
#include "runtime/Strings.h"
#include "xlsx/base/Errors.h"
#include "xlsx/base/Journal.h"
#include "xlsx/base/Limits.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/drawing/FillAndLine.h"
#include "xlsx/drawing/ShapeEnumerations.h"
#include "xlsx/drawing/TextBody.h"
#include "xlsx/drawing/TextFrame.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

using excel::Ref;

namespace {

constexpr std::int32_t kLine = 9;  // msoLine
// The default insets of a text box (ECMA-376-1, 21.1.2.1.1), in points. They are 0.1 and 0.05 inches.
constexpr double kUsualMarginAcross = 7.2, kUsualMarginDown = 3.6;
// The left and right insets, in points, that Excel writes for a text box with automatic margins
// (AutoMargins).
constexpr double kAutomaticMargin = 2.16;

std::int32_t TypeOf(pugi::xml_node object) {
  const std::string_view kind = xml::LocalName(object);
  if (kind == "graphicFrame" && ChartLinkOf(object)) return excel::msoChart;
  if (kind == "grpSp") return excel::msoGroup;
  if (kind == "pic") return excel::msoPicture;
  if (kind == "cxnSp") return kLine;
  if (kind == "sp" && xml::BooleanAttribute(KindPropertiesOf(object), "txBox", false)) {
    return excel::msoTextBox;
  }
  return excel::msoAutoShape;
}

}  // namespace

DrawnShape::DrawnShape(pugi::xml_node anchor, pugi::xml_node object)
    : anchor_(anchor), object_(object), type_(TypeOf(object)) {}

pugi::xml_node DrawnShape::Object() const {
  if (!object_) throw Refusal("The object has been deleted.");
  return object_;
}

pugi::xml_node DrawnShape::Anchor() const {
  Object();
  return anchor_;
}

pugi::xml_node DrawnShape::Properties() const {
  const auto properties = ShapePropertiesOf(Object());
  if (!properties) throw OutOfRange();
  return properties;
}

std::string DrawnShape::JournalPathUnder(const std::string& drawing) const {
  return drawing + ".Shapes(" + Journal::Literal(xml::Attribute(IdentityOf(object_), "name")) + ")";
}

std::int32_t DrawnShape::Type() {
  Object();
  return type_;
}

const std::string& DrawnShape::Remembered(std::optional<std::string>& text, const char* attribute) const {
  const pugi::xml_node object = Object();
  if (!text) text = xml::Attribute(IdentityOf(object), attribute);
  return *text;
}

void DrawnShape::SetName(std::string_view name) {
  Log().Put([this] { return JournalPath(); }, "Name", name);
  if (name.empty()) throw OutOfRange();
  xml::SetAttribute(IdentityOf(Object()), "name", name);
  name_.reset();
  MarkChanged();
}

void DrawnShape::SetAlternativeText(std::string_view text) {
  Log().Put([this] { return JournalPath(); }, "AlternativeText", text);
  xml::SetAttribute(IdentityOf(Object()), "descr", text);
  alternativeText_.reset();
  MarkChanged();
}

const std::u16string& DrawnShape::Text() {
  const TextBody body(Object());
  if (!text_) text_ = runtime::ToUtf16(body.Text());
  return *text_;
}

void DrawnShape::SetText(std::u16string_view text) {
  TextBody body(Object());
  if (text.size() > limits::kShapeText) throw Refusal("The text is longer than a shape can contain.");
  body.SetText(runtime::ToUtf8(text));
  text_.reset();  // The stored text may differ, for example in its line ends.
  FitToText();
  MarkChanged();
}

void DrawnShape::Place(const Frame& wanted) {
  const pugi::xml_node object = Object();
  CheckPlace(wanted);
  const Frame frame = MoveAnchor(wanted);
  // The frame of a chart depends on its anchor only.
  if (!xml::Is(object, "graphicFrame")) SetTransform(object, frame);
  MarkChanged();
}

void DrawnShape::SetLeft(double points) {
  Log().Put([this] { return JournalPath(); }, "Left", points);
  Frame frame = PlacedFrame();
  frame.left = points;
  Place(frame);
}

void DrawnShape::SetTop(double points) {
  Log().Put([this] { return JournalPath(); }, "Top", points);
  Frame frame = PlacedFrame();
  frame.top = points;
  Place(frame);
}

void DrawnShape::SetWidth(double points) {
  Log().Put([this] { return JournalPath(); }, "Width", points);
  if (!(points >= 0)) throw OutOfRange();
  Frame frame = PlacedFrame();
  if (KeepsItsProportions() && frame.width > 0) frame.height *= points / frame.width;
  frame.width = points;
  StopFittingToText();
  Place(frame);
}

void DrawnShape::SetHeight(double points) {
  Log().Put([this] { return JournalPath(); }, "Height", points);
  if (!(points >= 0)) throw OutOfRange();
  Frame frame = PlacedFrame();
  if (KeepsItsProportions() && frame.height > 0) frame.width *= points / frame.height;
  frame.height = points;
  StopFittingToText();
  Place(frame);
}

bool DrawnShape::KeepsItsProportions() const {
  for (const pugi::xml_node& locks : KindPropertiesOf(object_).children()) {
    if (xml::LocalName(locks).ends_with("Locks"))
      return xml::BooleanAttribute(locks, "noChangeAspect", false);
  }
  return false;
}

void DrawnShape::SetLockAspectRatio(bool value) {
  Log().Put([this] { return JournalPath(); }, "LockAspectRatio", value);
  const pugi::xml_node properties = KindPropertiesOf(Object());
  // The element cNvSpPr has spLocks, cNvPicPr has picLocks, and so on.
  std::string kind(xml::LocalName(properties));
  if (kind.size() < 6) throw OutOfRange();
  kind = kind.substr(3, kind.size() - 5);
  kind[0] = static_cast<char>(kind[0] - 'A' + 'a');
  schema::SetBooleanAttribute(schema::Ensure(properties, kind + "Locks"), "noChangeAspect", value);
  MarkChanged();
}

void DrawnShape::SetAutoShapeType(std::int32_t type) {
  Log().Put([this] { return JournalPath(); }, "AutoShapeType", type);
  const auto preset = kAutoShapes.Token(type);
  if (!preset || !xml::Is(Object(), "sp")) throw OutOfRange();
  const pugi::xml_node properties = Properties();
  schema::Remove(properties, "custGeom");
  pugi::xml_node form = schema::Ensure(properties, "prstGeom");
  form.remove_children();  // The adjustments belong to the old geometry.
  xml::SetAttribute(form, "prst", *preset);
  schema::Ensure(form, "avLst");
  MarkChanged();
}

void DrawnShape::FitToText() {
  const pugi::xml_node body = xml::Child(object_, "txBody", "bodyPr");
  if (!xml::Child(body, "spAutoFit")) return;
  const double across =
      PointsOf(body, "lIns", kUsualMarginAcross) + PointsOf(body, "rIns", kUsualMarginAcross);
  const double down = PointsOf(body, "tIns", kUsualMarginDown) + PointsOf(body, "bIns", kUsualMarginDown);
  const bool wraps = xml::Attribute(body, "wrap", "square") != "none";
  Frame frame = PlacedFrame();
  const auto extent =
      TextBody(object_).Measure(Theme(), wraps ? std::optional(frame.width - across) : std::nullopt);
  if (!wraps) frame.width = extent.width + across;
  frame.height = extent.height + down;
  Place(frame);
}

void DrawnShape::StopFittingToText() {
  pugi::xml_node body = xml::Child(object_, "txBody", "bodyPr");
  if (!xml::Child(body, "spAutoFit")) return;
  // A program that fits text boxes when it opens the file would change the size again. LibreOffice resizes a
  // text box about its centre. Texts with the same left edge would then move to different positions.
  schema::Remove(body, "spAutoFit");
  schema::Ensure(body, "noAutofit");
  if (xml::Attribute(body, "wrap", "square") != "none") return;
  // The size leaves no room for the usual margins, so a text without wrapping would cross the right edge.
  for (const char* margin : {"lIns", "rIns"}) {
    if (!body.attribute(margin)) xml::SetAttribute(body, margin, std::to_string(Emu(kAutomaticMargin)));
  }
}

void DrawnShape::Delete() {
  Log().Call([this] { return JournalPath(); }, "Delete");
  Object();
  const auto alive = shared_from_this();  // The drawing may hold the last reference.
  RemoveFromDrawing();
}

void DrawnShape::Leave() { anchor_ = object_ = {}; }

Ref<excel::TextFrame> DrawnShape::TextFrame() { return MakeTextFrame(shared_from_this()); }

Ref<excel::TextFrame2> DrawnShape::TextFrame2() { return MakeTextFrame2(shared_from_this()); }

Ref<excel::FillFormat> DrawnShape::Fill() { return MakeFill(shared_from_this()); }

Ref<excel::LineFormat> DrawnShape::Line() { return MakeLine(shared_from_this()); }

void CheckPlace(const Frame& frame) {
  for (const double points : {frame.left, frame.top, frame.width, frame.height}) {
    if (!(std::abs(points) <= std::numeric_limits<float>::max())) throw OutOfRange();
  }
}

}  // namespace plotsmith::xlsx
