#include "pages/pictures/Svg.h"

#include <cmath>
#include <cstdlib>
#include <variant>

namespace plotsmith::pictures {
namespace {

/// Returns a length in tenths of a point.
long Tenths(double dLength) {
  constexpr double kTie = 1E-6;  // Rounds halves up, even if their last bits are inexact.
  return std::lround(dLength * 10 + kTie);
}

/// Formats tenths as a decimal number with a point in every locale and without a trailing ".0".
std::string Decimal(long lTenths) {
  const long lSize = std::labs(lTenths);
  std::string sNumber = (lTenths < 0 ? "-" : "") + std::to_string(lSize / 10);
  if (lSize % 10 != 0) sNumber += "." + std::to_string(lSize % 10);
  return sNumber;
}

std::string Number(double dLength) { return Decimal(Tenths(dLength)); }

std::string Attribute(const char* sName, const std::string& sValue) {
  return std::string(" ") + sName + "=\"" + sValue + "\"";
}

std::string Color(Rgb oColor) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string sColor = "#";
  for (const std::uint8_t part : {oColor.red, oColor.green, oColor.blue}) {
    sColor += {kDigits[part >> 4], kDigits[part & 15]};
  }
  return sColor;
}

/// Returns the path of a polygon in relative steps, which is half as long as absolute corners. The steps
/// connect the rounded corners, so rounding errors don't add up.
std::string Form(const Polygon& oPolygon) {
  std::string sPath;
  long lX = 0, lY = 0;
  for (const Point& point : oPolygon.aPoints) {
    const long lStepX = Tenths(point.x) - lX, lStepY = Tenths(point.y) - lY;
    if (sPath.empty()) {
      sPath = "M" + Decimal(lStepX) + " " + Decimal(lStepY);
    } else if (lStepY == 0) {
      sPath += "h" + Decimal(lStepX);
    } else if (lStepX == 0) {
      sPath += "v" + Decimal(lStepY);
    } else {
      sPath += "l" + Decimal(lStepX) + (lStepY < 0 ? "" : " ") + Decimal(lStepY);
    }
    lX += lStepX;
    lY += lStepY;
  }
  return "<path" + Attribute("d", sPath + "z");
}

std::string Form(const Ellipse& oEllipse) {
  const std::string sCenter =
      Attribute("cx", Number(oEllipse.oCenter.x)) + Attribute("cy", Number(oEllipse.oCenter.y));
  const std::string sX = Number(oEllipse.dRadiusX), sY = Number(oEllipse.dRadiusY);
  if (sX == sY) return "<circle" + sCenter + Attribute("r", sX);
  return "<ellipse" + sCenter + Attribute("rx", sX) + Attribute("ry", sY);
}

/// The width of most outlines. The root element declares it for all of them.
constexpr double kUsualWidth = 0.3;

std::string Stroke(const Outline& oOutline) {
  const std::string sColor = Attribute("stroke", Color(oOutline.oColor));
  if (oOutline.dWidth == kUsualWidth) return sColor;
  return sColor + Attribute("stroke-width", Number(oOutline.dWidth));
}

}  // namespace

std::string Svg(const Picture& oPicture) {
  const std::string sWidth = Number(oPicture.dWidth), sHeight = Number(oPicture.dHeight);
  std::string sSvg =
      "<svg xmlns=\"http://www.w3.org/2000/svg\"" + Attribute("width", sWidth + "pt") +
      Attribute("height", sHeight + "pt") + Attribute("viewBox", "0 0 " + sWidth + " " + sHeight) +
      Attribute("stroke-width", Number(kUsualWidth)) + Attribute("stroke-linejoin", "round") + ">\n";
  for (const Shape& shape : oPicture.aShapes) {
    sSvg += std::visit([](const auto& form) { return Form(form); }, shape.oForm);
    sSvg += Attribute("fill", Color(shape.oFill));
    if (shape.oOutline) sSvg += Stroke(*shape.oOutline);
    sSvg += "/>\n";
  }
  return sSvg + "</svg>\n";
}

}  // namespace plotsmith::pictures
