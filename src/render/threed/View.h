#pragma once

#include <optional>
#include <pugixml.hpp>

namespace plotsmith::render {

/// The direction and perspective from which a 3-D chart is seen (c:view3D).
struct View {
  double elevation = 15;    ///< degrees from -90 to 90; positive for a view from above (rotX)
  double rotation = 20;     ///< degrees from 0 to 360; right sides are visible between 0 and 180 (rotY)
  bool rightAngles = true;  ///< the front isn't distorted, and the depth goes sideways and up (rAngAx)
  double fieldOfView = 15;  ///< degrees; 0 is a parallel projection
  std::optional<double>
      heightPercent;  ///< height of the box in percent of its width; nothing if it fills its room (hPercent)
  double depthPercent = 100;  ///< depth of a bar in percent of its width
};

/// Reads the view of a chart (c:view3D of c:chart). Members that the file doesn't have, or that aren't
/// numbers, have the value of `automatic`, and numbers beyond Excel's limits have the nearest limit.
View ReadView(pugi::xml_node chart, const View& automatic = {});

}  // namespace plotsmith::render
