#pragma once

#include <vector>

#include "forms/Layout.h"

/// Places for the controls of a layout, for views whose toolkit has none of its own. Lengths are pixels, or
/// any other unit of the view.
namespace plotsmith::forms {

struct Size {
  int width = 0, height = 0;
};

struct Area {
  int left = 0, top = 0, width = 0, height = 0;
};

/// The room between the edges of a frame and what is inside.
struct Edges {
  int left = 0, top = 0, right = 0, bottom = 0;
};

/// How large things are in a toolkit and its fonts.
class Measures {
 public:
  virtual ~Measures() = default;

  /// The size at which the control shows all of its text. Of a frame it is that of its title alone.
  virtual Size LeastSize(const Control& control) const = 0;
  /// The width of so many average characters in the control, its borders included.
  virtual int WidthOf(const Control& control, int characters) const = 0;
  /// The height of so many lines in the control, its borders included.
  virtual int HeightOf(const Control& control, int lines) const = 0;
  virtual Edges EdgesOf(const Control& frame) const = 0;
  /// The room between two parts that lie beside each other.
  virtual int Gap() const = 0;
};

/// The size that the layout needs.
Size LeastSize(const Layout& layout, const Measures& measures);

struct PlacedControl {
  const Control* control;
  Area area;
};

/// The areas of all controls of a layout that gets this area, which has at least the least size. Room that is
/// left over goes to the parts that stretch. Within a column where none does, it goes to lists and texts of
/// several lines. A frame comes before what is inside.
std::vector<PlacedControl> Arrange(const Layout& layout, const Measures& measures, const Area& area);

}  // namespace plotsmith::forms
