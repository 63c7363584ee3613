#pragma once

#include <optional>
#include <pugixml.hpp>

namespace plotsmith::render {

/// The direction and perspective from which a 3-D chart is seen (c:view3D).
struct View {
  double elevation = 15;  ///< Degrees from -90 to 90; positive for a view from above (rotX).
  double rotation = 20;   ///< Degrees from 0 to 360; right sides are visible between 0 and 180 (rotY).
  /// Whether the front isn't distorted, and the depth goes sideways and up (rAngAx).
  bool rightAngles = true;
  double fieldOfView = 15;  ///< Degrees; 0 means a parallel projection.
  /// The height of the box in percent of its width (hPercent). It is absent if the box fills its space.
  std::optional<double> heightPercent;
  double depthPercent = 100;  ///< The depth of a bar in percent of its width.
};

/// Reads the view of a chart (c:view3D of c:chart). Settings that the file doesn't have, or that aren't
/// numbers, get the value of `automatic`. Numbers beyond Excel's limits become the nearest limit.
View ReadView(pugi::xml_node chart, const View& automatic = {});

}  // namespace plotsmith::render
