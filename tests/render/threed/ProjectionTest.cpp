#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <string>
#include <string_view>
#include <vector>

#include "render/threed/Projection.h"
#include "render/threed/Solids.h"

namespace plotsmith::render {
namespace {

constexpr Rect kRoom = {20, 10, 300, 180};

View ViewOf(double elevation, double rotation, bool rightAngles, double fieldOfView = 15) {
  View view;
  view.elevation = elevation;
  view.rotation = rotation;
  view.rightAngles = rightAngles;
  view.fieldOfView = fieldOfView;
  return view;
}

Rect BoundsOf(const Projection& projection) {
  Rect bounds;
  bool first = true;
  for (const Face& face : BlockFaces(projection.Place(0, 0, 0), projection.Place(1, 1, 1))) {
    for (const Point3& corner : face) {
      const Point at = projection.Project(corner);
      const Rect point{at.x, at.y, 0, 0};
      bounds = first ? point : Union(bounds, point);
      first = false;
    }
  }
  return bounds;
}

void ExpectNear(const Rect& actual, const Rect& expected, double slack) {
  EXPECT_NEAR(actual.left, expected.left, slack);
  EXPECT_NEAR(actual.top, expected.top, slack);
  EXPECT_NEAR(actual.Right(), expected.Right(), slack);
  EXPECT_NEAR(actual.Bottom(), expected.Bottom(), slack);
}

/// Returns the visible faces of a block as letters: left, right, down, up, back, front.
std::string SeenOf(const Projection& projection) {
  constexpr std::string_view kNames = "LRDUBF";
  const auto faces = BlockFaces(projection.Place(0.4, 0.4, 0.4), projection.Place(0.6, 0.6, 0.6));
  std::string seen;
  for (std::size_t i = 0; i < faces.size(); ++i) {
    if (projection.Shows(faces[i])) seen += kNames[i];
  }
  return seen;
}

TEST(ProjectionTest, ShowsTheSidesThatTheViewTurnsToTheEye) {
  struct Case {
    double elevation, rotation;
    const char *oblique, *turned;
  };
  for (const Case& c : {Case{15, 20, "RUF", "RUF"}, Case{15, 340, "LUF", "LUF"}, Case{-15, 20, "RDF", "RDF"},
                        Case{0, 0, "F", "F"}, Case{0, 20, "RF", "RF"}, Case{15, 160, "RUB", "RUB"},
                        Case{15, 200, "LUB", "LUB"}, Case{0, 180, "B", "B"}, Case{90, 0, "UF", "U"},
                        Case{0, 90, "RF", "R"}}) {
    for (const bool rightAngles : {true, false}) {
      const Projection projection(ViewOf(c.elevation, c.rotation, rightAngles, 0), {0.5}, kRoom);
      EXPECT_EQ(SeenOf(projection), rightAngles ? c.oblique : c.turned)
          << c.elevation << ' ' << c.rotation << ' ' << rightAngles;
    }
  }
}

TEST(ProjectionTest, FillsItsRoomOrKeepsItsHeight) {
  for (const double rotation : {0.0, 20.0, 160.0, 200.0, 315.0}) {
    for (const bool rightAngles : {true, false}) {
      for (const bool lying : {false, true}) {
        View view = ViewOf(15, rotation, rightAngles);
        ExpectNear(BoundsOf({view, {0.4, lying}, kRoom}), kRoom, 0.01);
        view.heightPercent = 50;
        const Projection kept(view, {0.4, lying}, kRoom);
        EXPECT_DOUBLE_EQ(kept.Extent().height / kept.Extent().width, 0.5);
        const Rect bounds = BoundsOf(kept);
        EXPECT_TRUE(bounds.width <= kRoom.width + 0.01 && bounds.height <= kRoom.height + 0.01);
        EXPECT_NEAR(bounds.Center().x, kRoom.Center().x, 0.01);
        EXPECT_NEAR(bounds.Center().y, kRoom.Center().y, 0.01);
      }
    }
  }
}

TEST(ProjectionTest, GoesBackAlongTheAnglesOfTheView) {
  const Projection oblique(ViewOf(15, 20, true), {0.5}, kRoom);
  const Point front = oblique.Project(oblique.Place(0, 0, 0)), back = oblique.Project(oblique.Place(0, 0, 1));
  EXPECT_NEAR(back.x - front.x, oblique.Extent().depth * std::sin(20 * std::numbers::pi / 180), 1e-6);
  EXPECT_NEAR(front.y - back.y, oblique.Extent().depth * std::sin(15 * std::numbers::pi / 180), 1e-6);

  // In perspective, distant objects are smaller, and the effect increases with the field of view.
  double before = 1;
  for (const double field : {0.0, 15.0, 60.0, 120.0}) {
    const Projection turned(ViewOf(0, 0, false, field), {1}, kRoom);
    const auto height = [&](double z) {
      return turned.Project(turned.Place(0, 0, z)).y - turned.Project(turned.Place(0, 1, z)).y;
    };
    const double share = height(1) / height(0);
    EXPECT_TRUE(field == 0 ? share == 1 : share < before) << field;
    before = share;
  }
}

TEST(ProjectionTest, PaintsWhatIsFartherFromTheEyeFirst) {
  const double middles[] = {0.1, 0.3, 0.5, 0.7, 0.9};
  using Order = std::vector<std::size_t>;
  EXPECT_EQ(BackToFront(middles, -5), (Order{4, 3, 2, 1, 0}));
  EXPECT_EQ(BackToFront(middles, 5), (Order{0, 1, 2, 3, 4}));
  EXPECT_EQ(BackToFront(middles, 0.62), (Order{0, 1, 4, 2, 3}));
}

TEST(ProjectionTest, SurvivesRoomsWithoutAnyExtent) {
  for (const Rect& room : {Rect{0, 0, 0, 0}, Rect{5, 5, 100, 0}, Rect{5, 5, 0, 100}}) {
    for (const bool rightAngles : {true, false}) {
      const Projection projection(ViewOf(15, 20, rightAngles), {0.5}, room);
      const Point at = projection.Project(projection.Place(1, 1, 1));
      EXPECT_TRUE(std::isfinite(at.x) && std::isfinite(at.y));
    }
  }
}

}  // namespace
}  // namespace plotsmith::render
