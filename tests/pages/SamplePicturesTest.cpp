#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "pages/SamplePictures.h"
#include "pages/pictures/Canvas.h"
#include "pages/pictures/Svg.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/Files.h"
#include "tests/support/Paths.h"

namespace plotsmith {
namespace {

using namespace pictures;
using S = std::string;

/// Returns the bounding rectangle of a shape, including its outline.
Rectangle Bounds(const Shape& shape) {
  Rectangle bounds{1E9, 1E9, -1E9, -1E9};
  const auto take = [&](Point point) {
    bounds = {std::min(bounds.dLeft, point.x), std::min(bounds.dTop, point.y),
              std::max(bounds.dRight, point.x), std::max(bounds.dBottom, point.y)};
  };
  if (const auto* polygon = std::get_if<Polygon>(&shape.oForm)) {
    std::ranges::for_each(polygon->aPoints, take);
  } else {
    const auto& ellipse = std::get<Ellipse>(shape.oForm);
    take(ellipse.oCenter + Point{ellipse.dRadiusX, ellipse.dRadiusY});
    take(ellipse.oCenter + Point{-ellipse.dRadiusX, -ellipse.dRadiusY});
  }
  const double half = shape.oOutline ? shape.oOutline->dWidth / 2 : 0;
  return {bounds.dLeft - half, bounds.dTop - half, bounds.dRight + half, bounds.dBottom + half};
}

/// Returns the rectangles of the polygons with a colour.
std::vector<Rectangle> InColor(const Picture& picture, Rgb color) {
  std::vector<Rectangle> found;
  for (const Shape& shape : picture.aShapes) {
    if (shape.oFill == color && std::holds_alternative<Polygon>(shape.oForm)) found.push_back(Bounds(shape));
  }
  return found;
}

TEST(SamplePicturesTest, EveryPictureFitsItsFrameAndIsUnique) {
  std::map<S, std::string_view> seen;
  for (const auto name : aSamplePictureNames) {
    SCOPED_TRACE(name);
    const Picture picture = SamplePicture(name);
    EXPECT_GT(picture.aShapes.size(), 4u) << "a background and a chart on it";
    for (const Shape& shape : picture.aShapes) {
      const Rectangle bounds = Bounds(shape);
      EXPECT_TRUE(bounds.dLeft >= 0 && bounds.dTop >= 0 && bounds.dRight <= picture.dWidth &&
                  bounds.dBottom <= picture.dHeight)
          << bounds.dLeft << " " << bounds.dTop << " " << bounds.dRight << " " << bounds.dBottom;
    }
    const auto [it, isNew] = seen.emplace(Svg(picture), name);
    EXPECT_TRUE(isNew) << "looks like " << it->second;
  }
}

TEST(SamplePicturesTest, PicturesInTheSamePlaceHaveTheSameSize) {
  const std::pair<S, std::set<S>> places[] = {
      {"imgAreaBasic", {}},
      {"imgArea", {"imgBar", "imgColumn", "imgPie", "imgBubble", "imgStrBuck"}},
      {"imgLegend", {"imgLegendDim"}}};
  for (const auto name : aSamplePictureNames) {
    const Picture picture = SamplePicture(name);
    const auto place = std::ranges::find_if(
        places, [&](const auto& entry) { return entry.first == name || entry.second.contains(S(name)); });
    const Picture first = SamplePicture(place == std::end(places) ? "imgAreaBasic" : place->first);
    EXPECT_EQ(picture.dWidth, first.dWidth) << name;
    EXPECT_EQ(picture.dHeight, first.dHeight) << name;
  }
}

TEST(SamplePicturesTest, StacksTo100PercentHaveTheSameHeight) {
  const Rgb top = {0x2F, 0xA3, 0x8C};  // The colour of the last series.
  const auto heights = [&](const char* name) {
    std::set<long> tops;
    for (const Rectangle& block : InColor(SamplePicture(name), top))
      tops.insert(std::lround(block.dTop * 100));
    return tops.size();
  };
  for (const char* name : {"imgColumnStack100", "imgColumn3DStack100"}) EXPECT_EQ(heights(name), 1u) << name;
  for (const char* name : {"imgColumnStack", "imgColumn3DStack"}) EXPECT_GT(heights(name), 1u) << name;
}

TEST(SamplePicturesTest, AnUnknownNameIsAnInvalidCall) {
  for (const char* name : {"", "imgbar", "imgBar ", "imgLine"}) {
    EXPECT_EQ(test::ErrorOf([&] { SamplePicture(name); }), runtime::error::kInvalidCall) << name;
  }
}

TEST(SamplePicturesTest, TheDocsShowTheCurrentPictures) {
  const S page = test::BytesOf(S(test::kSourceFolder) + "/docs/pictures.md");
  for (const auto name : aSamplePictureNames) {
    const S file = "images/wizard/" + S(name) + ".svg";
    const S svg = Svg(SamplePicture(name));
    EXPECT_EQ(test::BytesOf(S(test::kSourceFolder) + "/docs/" + file), svg)
        << "run build/examples/make_pictures docs/images/wizard";
    EXPECT_LT(svg.size(), 4096u) << name;
    EXPECT_NE(page.find("src=\"" + file + "\""), S::npos) << name << " is not on the page";
  }
}

TEST(SamplePicturesTest, SvgHasAPathOrAnEllipseForEachShape) {
  Canvas canvas(20, 10.25);
  canvas.FillPolygon({{0, 0.04}, {10.06, 0}, {10.06, -0.16}}, {1, 171, 255}, Outline{{0, 0, 0}, 0.3});
  canvas.FillPolygon({{1.14, 1}, {2.26, 2.2}, {3.44, 2.2}}, {0, 0, 0}, Outline{{255, 0, 0}, 1});
  canvas.FillCircle({5, 5}, 2.5, {16, 32, 48});
  Picture picture = canvas.Result();
  picture.aShapes.push_back({Ellipse{{5, 5}, 3, 1.5}, {}, {}});
  EXPECT_EQ(
      Svg(picture),
      "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"20pt\" height=\"10.3pt\" viewBox=\"0 0 20 10.3\" "
      "stroke-width=\"0.3\" stroke-linejoin=\"round\">\n<path d=\"M0 0h10.1v-0.2z\" fill=\"#01abff\" "
      "stroke=\"#000000\"/>\n<path d=\"M1.1 1l1.2 1.2h1.1z\" fill=\"#000000\" stroke=\"#ff0000\" "
      "stroke-width=\"1\"/>\n<circle cx=\"5\" cy=\"5\" r=\"2.5\" fill=\"#102030\"/>\n<ellipse cx=\"5\" "
      "cy=\"5\" rx=\"3\" ry=\"1.5\" fill=\"#000000\"/>\n</svg>\n");
}

TEST(SamplePicturesTest, ABoxShowsTheSidesThatItsDepthTurnsToUs) {
  const Rgb fill{100, 100, 100};
  const struct {
    Point depth;
    std::vector<Rectangle> sides;  ///< The sides from back to front, without the face.
  } cases[] = {
      {{4, -2}, {{10, 18, 24, 20}, {20, 18, 24, 30}}},  // to the upper right: top and right side
      {{0, 5}, {{10, 30, 20, 35}}},                     // downwards: the bottom
      {{-4, 0}, {{6, 20, 10, 30}}},                     // to the left: the left side
      {{0, 0}, {}},
  };
  for (const auto& expected : cases) {
    Canvas canvas(50, 50);
    canvas.FillBox({10, 20, 20, 30}, expected.depth, fill);
    auto shapes = canvas.Result().aShapes;
    ASSERT_EQ(shapes.size(), expected.sides.size() + 1);
    EXPECT_EQ(shapes.back().oFill, fill);
    for (std::size_t i = 0; i < expected.sides.size(); ++i) {
      shapes[i].oOutline.reset();
      const Rectangle side = Bounds(shapes[i]), &wanted = expected.sides[i];
      EXPECT_EQ(std::tie(side.dLeft, side.dTop, side.dRight, side.dBottom),
                std::tie(wanted.dLeft, wanted.dTop, wanted.dRight, wanted.dBottom));
      EXPECT_NE(shapes[i].oFill, fill) << "a side is shaded";
    }
  }
}

}  // namespace
}  // namespace plotsmith
