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

/// Reads the view of a chart (c:view3D of c:chart). Members that the file doesn't have, or that aren't
/// numbers, have the value of `automatic`, and numbers beyond Excel's limits have the nearest limit.
View ReadView(pugi::xml_node chart, const View& automatic = {});

}  // namespace plotsmith::render
