#pragma once

#include <optional>
#include <vector>

#include "pages/pictures/Picture.h"

namespace plotsmith::pictures {

struct Rectangle {
  double dLeft = 0;
  double dTop = 0;
  double dRight = 0;
  double dBottom = 0;
};

/// The colour between two others: the first one at 0, the second one at 1.
Rgb Mix(Rgb oFrom, Rgb oTo, double dShare);
/// Towards white for a positive amount, towards black for a negative one, at most 1 and -1.
Rgb Shade(Rgb oColor, double dAmount);

/// Collects the shapes of a picture, each in front of those before it.
class Canvas {
 public:
  Canvas(double dWidth, double dHeight) : oPicture_{dWidth, dHeight, {}} {}

  void FillPolygon(std::vector<Point> aPoints, Rgb oFill, std::optional<Outline> oOutline = {});
  void FillRectangle(const Rectangle& oRectangle, Rgb oFill, std::optional<Outline> oOutline = {});
  void FillCircle(Point oCenter, double dRadius, Rgb oFill, std::optional<Outline> oOutline = {});
  /// A straight line, as a thin polygon.
  void DrawLine(Point oFrom, Point oTo, double dWidth, Rgb oColor);

  /// A solid with two parallel ends: the face, which is seen in full, and its copy, which lies `oDepth` away
  /// on the picture. The sides that can be seen are shaded by how they lie to a light from the upper left.
  void FillPrism(const std::vector<Point>& aFace, Point oDepth, Rgb oFill);
  /// A prism with a rectangular face.
  void FillBox(const Rectangle& oFace, Point oDepth, Rgb oFill);
  /// A ball under the same light.
  void FillBall(Point oCenter, double dRadius, Rgb oFill);

  const Picture& Result() const { return oPicture_; }

 private:
  Picture oPicture_;
};

}  // namespace plotsmith::pictures
