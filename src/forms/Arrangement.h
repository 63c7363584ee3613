#pragma once

#include <vector>

#include "forms/Layout.h"

/// Computes the positions of the controls of a layout, for views whose toolkit has no layouts. Lengths are in
/// pixels or in any other unit of the view.
namespace plotsmith::forms {

/// The size of a rectangle.
struct Size {
  /// The extents in the unit of the view.
  int width = 0, height = 0;
};

/// A rectangle, relative to the form.
struct Area {
  /// The position of the upper left corner, and the extents, in the unit of the view.
  int left = 0, top = 0, width = 0, height = 0;
};

/// The distances between the edges of a frame and its contents.
struct Edges {
  /// The distances in the unit of the view.
  int left = 0, top = 0, right = 0, bottom = 0;
};

/// The sizes of controls in a toolkit and its fonts.
class Measures {
 public:
  virtual ~Measures() = default;

  /// Returns the size at which the control shows its whole text. For a frame it is the size of its title.
  virtual Size LeastSize(const Control& control) const = 0;
  /// Returns the width of the control for a number of average characters, including its borders.
  virtual int WidthOf(const Control& control, int characters) const = 0;
  /// Returns the height of the control for a number of lines, including its borders.
  virtual int HeightOf(const Control& control, int lines) const = 0;
  /// Returns the distances between the edges of a frame and its contents.
  virtual Edges EdgesOf(const Control& frame) const = 0;
  /// Returns the gap between two adjacent parts.
  virtual int Gap() const = 0;
};

/// Returns the minimum size of a layout.
Size LeastSize(const Layout& layout, const Measures& measures);

/// A control with its position and size.
struct PlacedControl {
  const Control* control;  ///< The control, which belongs to the form.
  Area area;               ///< The position and the size, relative to the form.
};

/// Computes the areas of all controls of a layout. `area` is at least as large as the minimum size. Extra
/// space goes to the parts that stretch. In a column without such parts, it goes to lists and multi-line
/// texts. A frame precedes the controls inside it.
std::vector<PlacedControl> Arrange(const Layout& layout, const Measures& measures, const Area& area);

}  // namespace plotsmith::forms
