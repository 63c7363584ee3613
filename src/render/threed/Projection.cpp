#include "render/threed/Projection.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace plotsmith::render {
namespace {

constexpr double kFar = 1e7;          // the distance of the viewer in a parallel projection, in boxes
constexpr double kLeastHeight = 0.3;  // share of the room that the front of a deep box keeps
constexpr double kFlattest = 0.05, kSteepest = 5;  // Excel's limits of height divided by width

double Diagonal(const Box& box) { return std::hypot(box.width, box.height, box.depth); }

}  // namespace

Projection::Projection(const View& view, const BoxShape& shape, const Rect& room)
    : oblique_(view.rightAngles) {
  sinRotation_ = std::sin(view.rotation * kRadian);
  cosRotation_ = std::cos(view.rotation * kRadian);
  sinElevation_ = std::sin(view.elevation * kRadian);
  cosElevation_ = std::cos(view.elevation * kRadian);
  side_ = cosRotation_ < 0 ? -1 : 1;
  if (!oblique_ && view.fieldOfView > 0) {
    distance_ = 0.5 / std::tan(view.fieldOfView / 2 * kRadian) + 0.5;  // The viewer is outside of the box.
  }
  if (view.heightPercent) {
    SetShape(shape, *view.heightPercent / 100);
  } else if (oblique_) {
    FillSpace(shape, room);
  } else {
    FindShape(shape, room);
  }
  Center(room);
}

void Projection::SetShape(const BoxShape& shape, double heightOfWidth) {
  box_.width = 1;
  box_.height = heightOfWidth;
  box_.depth = shape.depth * (shape.lying ? box_.height : box_.width);
}

/// Makes the front as large as possible. The depth goes sideways and up from it.
void Projection::FillSpace(const BoxShape& shape, const Rect& room) {
  const double aside = std::abs(sinRotation_), up = std::abs(sinElevation_);
  const double width = std::max(room.width, 1e-3), height = std::max(room.height, 1e-3);
  if (shape.lying) {
    box_.height = height / (1 + shape.depth * up);
    box_.depth = std::min(shape.depth * box_.height, aside > 0 ? width * (1 - kLeastHeight) / aside : kFar);
    box_.width = width - box_.depth * aside;
  } else {
    box_.width = width / (1 + shape.depth * aside);
    box_.depth = std::min(shape.depth * box_.width, up > 0 ? height * (1 - kLeastHeight) / up : kFar);
    box_.height = height - box_.depth * up;
  }
}

/// Finds the height at which the box has the proportions of the available rectangle on the picture.
void Projection::FindShape(const BoxShape& shape, const Rect& room) {
  const double wanted = room.height / std::max(room.width, 1e-3);
  double low = kFlattest, high = kSteepest;
  constexpr int kSteps = 30;
  for (int step = 0; step < kSteps; ++step) {
    const double middle = (low + high) / 2;
    SetShape(shape, middle);
    const Rect bounds = FlatBounds();
    (bounds.height / bounds.width < wanted ? low : high) = middle;
  }
  SetShape(shape, (low + high) / 2);
}

void Projection::Center(const Rect& room) {
  const Rect bounds = FlatBounds();
  scale_ = std::min(room.width / std::max(bounds.width, 1e-9), room.height / std::max(bounds.height, 1e-9));
  const Point center = bounds.Center();
  origin_ = {room.Center().x - center.x * scale_, room.Center().y - center.y * scale_};
}

Point3 Projection::Place(double x, double y, double z) const {
  return {x * box_.width, y * box_.height, z * box_.depth};
}

/// Returns the point on the picture before it is scaled. Y grows downwards.
Point Projection::Flat(const Point3& place) const {
  const double x = place.x - box_.width / 2, y = place.y - box_.height / 2, z = place.z - box_.depth / 2;
  if (oblique_) return {side_ * x + z * sinRotation_, -(y + side_ * z * sinElevation_)};
  const double turned = x * cosRotation_ + z * sinRotation_;
  const double back = z * cosRotation_ - x * sinRotation_;
  const double up = y * cosElevation_ + back * sinElevation_;
  if (distance_ == 0) return {turned, -up};
  const double eye = distance_ * Diagonal(box_);
  const double shrink = eye / (eye + back * cosElevation_ - y * sinElevation_);
  return {turned * shrink, -up * shrink};
}

Rect Projection::FlatBounds() const {
  Rect bounds;
  bool first = true;
  for (const double x : {0.0, 1.0}) {
    for (const double y : {0.0, 1.0}) {
      for (const double z : {0.0, 1.0}) {
        const Point corner = Flat(Place(x, y, z));
        const Rect at{corner.x, corner.y, 0, 0};
        bounds = first ? at : Union(bounds, at);
        first = false;
      }
    }
  }
  return bounds;
}

Point Projection::Project(const Point3& place) const {
  const Point flat = Flat(place);
  return {origin_.x + flat.x * scale_, origin_.y + flat.y * scale_};
}

Point3 Projection::Eye() const {
  const Point3 middle = Place(0.5, 0.5, 0.5);
  const double diagonal = Diagonal(box_);
  if (oblique_) {
    const double far = kFar * diagonal;
    return {middle.x + far * sinRotation_, middle.y + far * sinElevation_, middle.z - far * side_};
  }
  const double distance = (distance_ == 0 ? kFar : distance_) * diagonal;
  return {middle.x + distance * cosElevation_ * sinRotation_, middle.y + distance * sinElevation_,
          middle.z - distance * cosElevation_ * cosRotation_};
}

bool Projection::Shows(std::span<const Point3> corners) const {
  double twiceArea = 0;
  for (std::size_t i = 0; i < corners.size(); ++i) {
    const Point a = Project(corners[i]), b = Project(corners[(i + 1) % corners.size()]);
    twiceArea += a.x * b.y - b.x * a.y;
  }
  constexpr double kLeast = 1e-4;  // twice the area, in square points; smaller faces are seen edge-on
  return twiceArea < -kLeast;
}

std::vector<std::size_t> BackToFront(std::span<const double> middles, double eye) {
  std::vector<std::size_t> order(middles.size());
  std::iota(order.begin(), order.end(), 0);
  std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    return std::abs(middles[a] - eye) > std::abs(middles[b] - eye);
  });
  return order;
}

}  // namespace plotsmith::render
