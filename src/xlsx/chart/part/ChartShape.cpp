#include "xlsx/chart/part/ChartShape.h"

#include <algorithm>
#include <cmath>

#include "xlsx/book/BookContext.h"
#include "xlsx/chart/part/ChartDrawing.h"
#include "xlsx/chart/part/ChartPart.h"
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

/// Rounds points to whole EMU, because fractions of the chart's size aren't exact in the last digits.
double Settled(double points) { return std::round(points * kEmuPerPoint) / kEmuPerPoint; }

}  // namespace

ChartShape::ChartShape(ChartDrawing& drawing, pugi::xml_node anchor, pugi::xml_node object)
    : DrawnShape(anchor, object), drawing_(drawing) {}

const Journal& ChartShape::Log() const { return drawing_.Chart().Book().Journal(); }

const Theme& ChartShape::Theme() const { return drawing_.Chart().Book().Theme(); }

void ChartShape::MarkChanged() { drawing_.MarkChanged(); }

std::string ChartShape::JournalPath() const { return JournalPathUnder("Chart"); }

Frame ChartShape::PlacedFrame() const {
  const Frame chart = drawing_.Size();
  const auto from = xml::Child(Anchor(), "from"), extent = xml::Child(Anchor(), "ext");
  Frame frame{Settled(Fraction(from, "x") * chart.width), Settled(Fraction(from, "y") * chart.height)};
  if (extent) {
    frame.width = PointsOf(extent, "cx");
    frame.height = PointsOf(extent, "cy");
  } else {
    const auto to = xml::Child(Anchor(), "to");
    frame.width = Settled(Fraction(to, "x") * chart.width - frame.left);
    frame.height = Settled(Fraction(to, "y") * chart.height - frame.top);
  }
  return frame;
}

Frame ChartShape::MoveAnchor(const Frame& wanted) {
  const Frame chart = drawing_.Size();
  Frame frame;
  frame.width = std::clamp(wanted.width, 0.0, chart.width);
  frame.height = std::clamp(wanted.height, 0.0, chart.height);
  frame.left = std::clamp(wanted.left, 0.0, chart.width - frame.width);
  frame.top = std::clamp(wanted.top, 0.0, chart.height - frame.height);
  SetFractions(xml::Child(Anchor(), "from"), frame.left / chart.width, frame.top / chart.height);
  if (const auto to = xml::Child(Anchor(), "to")) {
    SetFractions(to, frame.Right() / chart.width, frame.Bottom() / chart.height);
  }
  if (const auto extent = xml::Child(Anchor(), "ext")) SetPair(extent, "cx", "cy", frame.width, frame.height);
  return frame;
}

void ChartShape::RemoveFromDrawing() { drawing_.Remove(*this); }

}  // namespace plotsmith::xlsx
