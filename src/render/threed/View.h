#pragma once

#include <optional>
#include <pugixml.hpp>

namespace plotsmith::render {

/// How a chart in 3-D is looked at (c:view3D).
struct View {
  double elevation = 15;  ///< degrees from -90 to 90; above zero one looks down (rotX)
  double rotation = 20;   ///< degrees from 0 to 360; between 0 and 180 one sees the right sides (rotY)
  bool rightAngles = true;
  double fieldOfView = 15;              ///< degrees; 0 is a parallel projection
  std::optional<double> heightPercent;  ///< of the width; without one the chart fills its room
  double depthPercent = 100;            ///< of the width of a bar, for the depth of it
};

/// What a chart says of its view. What is missing or beyond its limits has Excel's defaults, which are others
/// for pies.
View ReadView(pugi::xml_node chart, bool pie);

}  // namespace plotsmith::render
