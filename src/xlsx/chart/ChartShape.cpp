#include "xlsx/chart/ChartShape.h"

#include <algorithm>
#include <cmath>

#include "runtime/RuntimeError.h"
#include "xlsx/Workbook.h"
#include "xlsx/chart/ChartDrawing.h"
#include "xlsx/chart/ChartPart.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

double Fraction(pugi::xml_node marker, const char* name) {
  return xml::ParseDouble(xml::Text(xml::Child(marker, name))).value_or(0);
}

void SetFractions(pugi::xml_node marker, double x, double y) {
  xml::SetText(xml::Child(marker, "x"), xml::Number(std::clamp(x, 0.0, 1.0)));
  xml::SetText(xml::Child(marker, "y"), xml::Number(std::clamp(y, 0.0, 1.0)));
}

/// A fraction of the chart brings along an error in the last digits. Shapes lie on whole units of the file.
double Settled(double points) { return std::round(points * kEmuPerPoint) / kEmuPerPoint; }

}  // namespace

ChartShape::ChartShape(ChartDrawing& drawing, pugi::xml_node anchor, pugi::xml_node object)
    : DrawnShape(object), drawing_(drawing), anchor_(anchor) {}

Workbook& ChartShape::Book() const { return drawing_.Chart().Book(); }

void ChartShape::MarkChanged() { drawing_.MarkChanged(); }

std::string ChartShape::JournalPath() const { return JournalPathUnder("Chart"); }

Frame ChartShape::PlacedFrame() const {
  const Frame chart = drawing_.Size();
  const auto from = xml::Child(anchor_, "from"), extent = xml::Child(anchor_, "ext");
  Frame frame{Settled(Fraction(from, "x") * chart.width), Settled(Fraction(from, "y") * chart.height)};
  if (extent) {
    frame.width = xml::NumberAttribute(extent, "cx", 0) / kEmuPerPoint;
    frame.height = xml::NumberAttribute(extent, "cy", 0) / kEmuPerPoint;
  } else {
    const auto to = xml::Child(anchor_, "to");
    frame.width = Settled(Fraction(to, "x") * chart.width - frame.left);
    frame.height = Settled(Fraction(to, "y") * chart.height - frame.top);
  }
  return frame;
}

void ChartShape::Place(const Frame& wanted) {
  const pugi::xml_node object = Object();
  const Frame chart = drawing_.Size();
  if (!std::isfinite(wanted.left + wanted.top + wanted.width + wanted.height)) {
    throw runtime::RuntimeError(runtime::error::kApplication, "The specified value is out of range.");
  }
  Frame frame;
  frame.width = std::clamp(wanted.width, 0.0, chart.width);
  frame.height = std::clamp(wanted.height, 0.0, chart.height);
  frame.left = std::clamp(wanted.left, 0.0, chart.width - frame.width);
  frame.top = std::clamp(wanted.top, 0.0, chart.height - frame.height);
  SetFractions(xml::Child(anchor_, "from"), frame.left / chart.width, frame.top / chart.height);
  if (const auto to = xml::Child(anchor_, "to")) {
    SetFractions(to, frame.Right() / chart.width, frame.Bottom() / chart.height);
  }
  if (const auto extent = xml::Child(anchor_, "ext")) {
    xml::SetAttribute(extent, "cx", std::to_string(Emu(frame.width)));
    xml::SetAttribute(extent, "cy", std::to_string(Emu(frame.height)));
  }
  SetTransform(object, frame);
  MarkChanged();
}

void ChartShape::Delete() {
  Log().Call([this] { return JournalPath(); }, "Delete");
  Object();
  const auto alive = shared_from_this();  // the drawing may be the last to know it
  drawing_.Remove(*this);
  Leave();
}

void ChartShape::Leave() {
  Forget();
  anchor_ = {};
}

}  // namespace plotsmith::xlsx
