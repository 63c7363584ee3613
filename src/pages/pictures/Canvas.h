#pragma once

#include <optional>
#include <vector>

#include "pages/pictures/Picture.h"

namespace plotsmith::pictures {

/// A rectangle, given by its edges.
struct Rectangle {
  /// The edges in points. The Y axis points downwards.
  ///@{
  double dLeft = 0;
  double dTop = 0;
  double dRight = 0;
  double dBottom = 0;
  ///@}
};

/// Returns a mix of two colours: the first one for a share of 0, the second one for a share of 1.
Rgb Mix(Rgb oFrom, Rgb oTo, double dShare);
/// Returns a lighter colour for a positive amount, and a darker one for a negative amount. 1 is white and -1
/// is black.
Rgb Shade(Rgb oColor, double dAmount);

/// Collects the shapes of a picture. Each shape is in front of the shapes before it.
class Canvas {
 public:
  /// Makes an empty picture of this size in points.
  Canvas(double dWidth, double dHeight) : oPicture_{dWidth, dHeight, {}} {}

  /// Draws a filled shape, optionally with an outline.
  ///@{
  void FillPolygon(std::vector<Point> aPoints, Rgb oFill, std::optional<Outline> oOutline = {});
  void FillRectangle(const Rectangle& oRectangle, Rgb oFill, std::optional<Outline> oOutline = {});
  void FillCircle(Point oCenter, double dRadius, Rgb oFill, std::optional<Outline> oOutline = {});
  ///@}

  /// Draws a straight line as a thin polygon.
  void DrawLine(Point oFrom, Point oTo, double dWidth, Rgb oColor);

  /// Draws a prism. Its front face is fully visible, and its back face is `oDepth` away in the picture.
  /// Visible sides are shaded by their angle to a light from the upper left.
  void FillPrism(const std::vector<Point>& aFace, Point oDepth, Rgb oFill);
  /// Draws a prism with a rectangular face.
  void FillBox(const Rectangle& oFace, Point oDepth, Rgb oFill);
  /// Draws a ball, shaded by the same light as a prism.
  void FillBall(Point oCenter, double dRadius, Rgb oFill);

  /// The picture so far.
  const Picture& Result() const { return oPicture_; }

 private:
  Picture oPicture_;
};

}  // namespace plotsmith::pictures
