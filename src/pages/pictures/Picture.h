#pragma once

#include <cstdint>
#include <optional>
#include <variant>
#include <vector>

/// Drawings of coloured shapes. Each view of the forms paints them with its own toolkit. Lengths are in
/// points; x increases to the right and y increases downwards from the top left corner of the picture.
namespace plotsmith::pictures {

/// A colour.
struct Rgb {
  /// The parts of the colour, from 0 to 255.
  ///@{
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  ///@}
  bool operator==(const Rgb&) const = default;
};

/// A position, or the vector between two positions.
struct Point {
  /// The coordinates in points. The Y axis points downwards.
  ///@{
  double x = 0;
  double y = 0;
  ///@}
  bool operator==(const Point&) const = default;
};

/// Add two vectors, and scale a vector.
///@{
inline Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
inline Point operator*(Point a, double dFactor) { return {a.x * dFactor, a.y * dFactor}; }
///@}

/// A polygon, given by its corners in order. It is closed.
struct Polygon {
  std::vector<Point> aPoints;  ///< The corners; at least three.
  bool operator==(const Polygon&) const = default;
};

/// An ellipse, given by its centre and its radii.
struct Ellipse {
  Point oCenter;  ///< The centre.
  /// The radii in points.
  ///@{
  double dRadiusX = 0;
  double dRadiusY = 0;
  ///@}
  bool operator==(const Ellipse&) const = default;
};

/// A line along the edge of a shape. Half of its width is inside the shape.
struct Outline {
  Rgb oColor;         ///< The colour of the line.
  double dWidth = 0;  ///< The width in points.
  bool operator==(const Outline&) const = default;
};

/// A filled shape, optionally with an outline.
struct Shape {
  std::variant<Polygon, Ellipse> oForm;  ///< The form, with its position on the picture.
  Rgb oFill;                             ///< The colour of the area.
  std::optional<Outline> oOutline;       ///< The line along the edge; absent if there is none.
  bool operator==(const Shape&) const = default;
};

/// A picture with its size in points.
struct Picture {
  /// The size in points.
  ///@{
  double dWidth = 0;
  double dHeight = 0;
  ///@}
  std::vector<Shape> aShapes;  ///< The shapes from back to front.
  bool operator==(const Picture&) const = default;
};

}  // namespace plotsmith::pictures
