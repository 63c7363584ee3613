#include "render/threed/View.h"

#include <algorithm>
#include <cmath>

#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::render {
namespace {

constexpr double kUsualPerspective = 30;

/// Reads a number and limits it to a range. Returns `fallback` if it is missing or isn't a number.
double Limited(pugi::xml_node view, const char* name, double fallback, double least, double most) {
  const double value = xlsx::schema::NumberVal(view, name).value_or(fallback);
  return std::isfinite(value) ? std::clamp(value, least, most) : fallback;
}

}  // namespace

View ReadView(pugi::xml_node chart, const View& automatic) {
  const auto element = xlsx::xml::Child(chart, "view3D");
  View view;
  view.elevation = Limited(element, "rotX", automatic.elevation, -90, 90);
  view.rotation = std::fmod(Limited(element, "rotY", automatic.rotation, 0, 360), 360);
  view.rightAngles = xlsx::schema::BooleanVal(element, "rAngAx", false);
  // The unit in the file is half a degree.
  view.fieldOfView = Limited(element, "perspective", kUsualPerspective, 0, 240) / 2;
  if (xlsx::schema::NumberVal(element, "hPercent")) {
    view.heightPercent = Limited(element, "hPercent", 100, 5, 500);
  }
  view.depthPercent = Limited(element, "depthPercent", 100, 20, 2000);
  return view;
}

}  // namespace plotsmith::render
