#include "render/threed/Surfaces.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

#include "render/fills/LitFill.h"
#include "render/threed/Shading.h"
#include "render/threed/Solids.h"

namespace plotsmith::render {
namespace {

/// A corner of the surface, in shares of the axes.
struct Corner {
  double category = 0, value = 0, depth = 0;
};

Corner Between(const Corner& a, const Corner& b, double share) {
  return {a.category + (b.category - a.category) * share, a.value + (b.value - a.value) * share,
          a.depth + (b.depth - a.depth) * share};
}

/// Returns the part of a polygon above a value, or below it (the algorithm of Sutherland and Hodgman).
std::vector<Corner> Cut(const std::vector<Corner>& polygon, double value, bool above) {
  std::vector<Corner> left;
  const auto inside = [&](const Corner& corner) {
    return above ? corner.value >= value : corner.value <= value;
  };
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const Corner &a = polygon[i], &b = polygon[(i + 1) % polygon.size()];
    if (inside(a)) left.push_back(a);
    if (inside(a) != inside(b)) left.push_back(Between(a, b, (value - a.value) / (b.value - a.value)));
  }
  return left;
}

/// A band with its limits as shares of the axis.
struct Band {
  double from = 0, to = 1;
  int number = 0;
  const ShapeStyle* style = nullptr;
};

/// Returns a line that covers the seam between two pieces, which would be visible on a picture of pixels.
Stroke WideSeamOf(const Fill& fill) {
  constexpr double kWidth = 0.6;  // points
  Stroke seam = SeamOf(fill);
  if (seam.width > 0) seam.width = kWidth;
  return seam;
}

class SurfacePainter {
 public:
  SurfacePainter(Plot& plot, const Stage& stage, const Projection& projection)
      : plot_(plot), stage_(stage), projection_(projection), isFlat_(stage.Group().isContour) {
    for (const SurfaceBand& band : stage.Group().bands) {
      bands_.push_back(
          {stage.Value(band.from), stage.Value(band.to), static_cast<int>(bands_.size() + 1), &band.style});
    }
    ReadGrid();
  }

  void Paint() {
    if (columns_.size() < 2 || rows_.size() < 2) {
      return plot_.canvas.Note("A surface isn't drawn because it needs two series and two categories.");
    }
    if (stage_.Group().wireframe) return PaintWires();
    if (isFlat_) return PaintContours();
    const Point3 eye = stage_.EyeShares(projection_);
    for (const std::size_t row : Order(
             rows_.size(), [&](std::size_t i) { return rows_[i].place; }, eye.z)) {
      for (const std::size_t column : Order(
               columns_.size(), [&](std::size_t i) { return columns_[i].place; }, eye.x)) {
        PaintCell(row, column, eye);
      }
    }
  }

 private:
  /// A line of the grid: a series or a category, with its share of the axis.
  struct GridLine {
    std::size_t index;
    double place;
  };

  /// Takes all lines of the grid. If drawing all cells would take long, takes only some lines, at equal
  /// distances.
  void ReadGrid() {
    const double kMostPieces = 100'000;
    const double most =
        std::max(kMostPieces / 4 / static_cast<double>(std::max<std::size_t>(bands_.size(), 1)), 100.0);
    const std::size_t rows = stage_.Group().series.size(), columns = stage_.CategoryCount();
    std::size_t rowStep = 1, columnStep = 1;
    const auto cells = [&] {
      return static_cast<double>(rows / rowStep) * static_cast<double>(columns / columnStep);
    };
    while (cells() > most) (rows / rowStep > columns / columnStep ? rowStep : columnStep) += 1;
    if (rowStep * columnStep > 1) {
      plot_.canvas.Note("The surface has more points than are drawn; some points are left out.");
    }
    for (std::size_t i = 0; i < rows; i += rowStep) rows_.push_back({i, stage_.Depth(i).Middle()});
    for (std::size_t i = 0; i < columns; i += columnStep) {
      columns_.push_back({i, stage_.Category(i).Middle()});
    }
  }

  /// Returns the intervals between neighbouring lines, in painting order.
  template <class Place>
  static std::vector<std::size_t> Order(std::size_t count, const Place& place, double eye) {
    std::vector<double> middles;
    for (std::size_t i = 0; i + 1 < count; ++i) middles.push_back((place(i) + place(i + 1)) / 2);
    return BackToFront(middles, eye);
  }

  Corner At(std::size_t row, std::size_t column) const {
    const auto& values = stage_.Group().series[rows_[row].index].values;
    const std::size_t point = columns_[column].index;
    // A surface has no holes, so a missing value is zero.
    const double value = point < values.size() && std::isfinite(values[point]) ? values[point] : 0;
    return {columns_[column].place, stage_.Value(value), rows_[row].place};
  }

  Point3 Place(const Corner& corner) const {
    return stage_.At(projection_, corner.category, corner.value, corner.depth);
  }

  void AddPolygon(const std::vector<Corner>& polygon, Path& path) const {
    std::vector<Point> corners;
    for (const Corner& corner : polygon) corners.push_back(projection_.Project(Place(corner)));
    path.AddPolygon(corners);
  }

  /// Returns the triangles of a cell. They meet at the mean of its corners.
  std::array<std::vector<Corner>, 4> TrianglesOf(std::size_t row, std::size_t column) const {
    const std::array<Corner, 4> corners = {At(row, column), At(row, column + 1), At(row + 1, column + 1),
                                           At(row + 1, column)};
    const Corner middle =
        Between(Between(corners[0], corners[2], 0.5), Between(corners[1], corners[3], 0.5), 0.5);
    std::array<std::vector<Corner>, 4> triangles;
    for (std::size_t i = 0; i < 4; ++i) triangles[i] = {corners[i], corners[(i + 1) % 4], middle};
    return triangles;
  }

  /// Calls `visit` with each band and the part of a triangle that is in it.
  template <class Visit>
  void ForEachPiece(const std::vector<Corner>& triangle, const Visit& visit) const {
    const auto [least, greatest] = std::minmax({triangle[0].value, triangle[1].value, triangle[2].value});
    for (const Band& band : bands_) {
      // A level triangle on a limit is in the band above it. On the last limit, it is in the last band.
      const bool isLast = &band == &bands_.back();
      if (greatest < band.from || (least >= band.to && !isLast) ||
          (greatest == band.from && least < greatest))
        continue;
      const auto piece = Cut(Cut(triangle, band.from, true), band.to, false);
      if (piece.size() >= 3) visit(band, piece);
    }
  }

  double LightOf(const std::vector<Corner>& triangle) const {
    Face face;
    for (const Corner& corner : triangle) face.push_back(Place(corner));
    Point3 normal = NormalOf(face);
    if (!projection_.Shows(face)) normal = {-normal.x, -normal.y, -normal.z};
    return render::LightOf(normal);
  }

  void PaintCell(std::size_t row, std::size_t column, const Point3& eye) {
    auto triangles = TrianglesOf(row, column);
    const auto distance = [&](const std::vector<Corner>& triangle) {
      const double x = (triangle[0].category + triangle[1].category) / 2 - eye.x;
      const double z = (triangle[0].depth + triangle[1].depth) / 2 - eye.z;
      return std::hypot(x, z);
    };
    std::stable_sort(triangles.begin(), triangles.end(),
                     [&](const auto& a, const auto& b) { return distance(a) > distance(b); });
    for (const auto& triangle : triangles) {
      const double light = LightOf(triangle);
      ForEachPiece(triangle, [&](const Band& band, const std::vector<Corner>& piece) {
        const Fill lit = Lit(band.style->fill, light);
        Path path;
        AddPolygon(piece, path);
        plot_.canvas.Add({Role::kSurface, 0, band.number}, std::move(path), lit,
                         band.style->stroke.width > 0 ? band.style->stroke : WideSeamOf(lit));
      });
    }
  }

  /// Paints all pieces of a band as one path, because no piece hides another.
  void PaintContours() {
    std::vector<Path> paths(bands_.size());
    for (std::size_t row = 0; row + 1 < rows_.size(); ++row) {
      for (std::size_t column = 0; column + 1 < columns_.size(); ++column) {
        for (const auto& triangle : TrianglesOf(row, column)) {
          ForEachPiece(triangle, [&](const Band& band, const std::vector<Corner>& piece) {
            AddPolygon(piece, paths[static_cast<std::size_t>(band.number - 1)]);
          });
        }
      }
    }
    for (const Band& band : bands_) {
      plot_.canvas.Add({Role::kSurface, 0, band.number},
                       std::move(paths[static_cast<std::size_t>(band.number - 1)]), band.style->fill,
                       WideSeamOf(band.style->fill));
    }
  }

  /// Paints the lines along all series and categories. Each piece of a line has the colour of its band.
  void PaintWires() {
    std::vector<Path> paths(bands_.size());
    const auto add = [&](const Corner& a, const Corner& b) {
      for (const Band& band : bands_) {
        const bool rises = a.value <= b.value;
        const Corner &low = rises ? a : b, &high = rises ? b : a;
        if (high.value < band.from || low.value > band.to) continue;
        const double rise = high.value - low.value;
        const auto at = [&](double value) {
          return rise > 0 ? Between(low, high, std::clamp((value - low.value) / rise, 0.0, 1.0)) : low;
        };
        const Corner from = at(band.from), to = rise > 0 ? at(band.to) : high;
        paths[static_cast<std::size_t>(band.number - 1)]
            .MoveTo(projection_.Project(Place(from)))
            .LineTo(projection_.Project(Place(to)));
        if (!(rise > 0)) break;
      }
    };
    for (std::size_t row = 0; row < rows_.size(); ++row) {
      for (std::size_t column = 0; column < columns_.size(); ++column) {
        if (column + 1 < columns_.size()) add(At(row, column), At(row, column + 1));
        if (row + 1 < rows_.size()) add(At(row, column), At(row + 1, column));
      }
    }
    for (const Band& band : bands_) {
      plot_.canvas.Add({Role::kSurface, 0, band.number},
                       std::move(paths[static_cast<std::size_t>(band.number - 1)]), {}, band.style->stroke);
    }
  }

  Plot& plot_;
  const Stage& stage_;
  const Projection& projection_;
  bool isFlat_;
  std::vector<Band> bands_;
  std::vector<GridLine> rows_, columns_;
};

}  // namespace

View ContourView() {
  View view;
  view.elevation = 90;
  view.rotation = 0;
  view.rightAngles = false;
  view.fieldOfView = 0;
  view.heightPercent = 5;
  return view;
}

void DrawSurface(Plot& plot, const Stage& stage, const Projection& projection) {
  if (!stage.Group().bands.empty()) SurfacePainter(plot, stage, projection).Paint();
}

}  // namespace plotsmith::render
