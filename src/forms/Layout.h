#pragma once

#include <utility>
#include <vector>

#include "forms/Control.h"

/// The relative arrangement of the controls of a form, without measures. Each view fits the layout to its
/// toolkit, its fonts and its screen.
namespace plotsmith::forms {

/// A part of a form: a control, or several parts together.
struct Layout {
  /// The kind of a part.
  enum class Kind {
    kRow,      ///< Side by side, in reading direction.
    kColumn,   ///< One below the other.
    kGrid,     ///< Rows of `columns` aligned parts.
    kStack,    ///< In the same place, for controls of which at most one is visible.
    kControl,  ///< A control. A frame has one part inside.
    kSpace,    ///< Flexible space.
  };

  Kind kind = Kind::kSpace;          ///< How the part arranges its contents.
  const Control* control = nullptr;  ///< The control of kControl.
  std::vector<Layout> parts;         ///< The parts in reading order; for a frame, the part inside.
  int columns = 0;                   ///< The number of columns of kGrid.
  int stretch = 0;     ///< The share of the extra space. A part with 0 gets some only if all parts have 0.
  int characters = 0;  ///< The minimum width in average characters; 0 for the width of the control.
  int lines = 0;       ///< The minimum height in lines; 0 for the height of the control.

  /// Returns the part with a share of the extra space.
  Layout Stretch(int share) && {
    stretch = share;
    return std::move(*this);
  }
  /// Returns the part with a minimum width in average characters and a minimum height in lines.
  Layout AtLeast(int leastCharacters, int leastLines) && {
    characters = leastCharacters;
    lines = leastLines;
    return std::move(*this);
  }
};

/// Makes a row of parts.
inline Layout Row(std::vector<Layout> parts) { return {Layout::Kind::kRow, nullptr, std::move(parts)}; }
/// Makes a column of parts.
inline Layout Column(std::vector<Layout> parts) { return {Layout::Kind::kColumn, nullptr, std::move(parts)}; }
/// Makes a grid of parts.
inline Layout Grid(int columns, std::vector<Layout> parts) {
  return {Layout::Kind::kGrid, nullptr, std::move(parts), columns};
}
/// Makes a stack of parts.
inline Layout Stack(std::vector<Layout> parts) { return {Layout::Kind::kStack, nullptr, std::move(parts)}; }
/// Makes a flexible space.
inline Layout Space() { return {Layout::Kind::kSpace, nullptr, {}, 0, 1}; }
/// Makes a part that consists of one control.
inline Layout Item(const Control& control) { return {Layout::Kind::kControl, &control}; }
/// Makes a frame around a part.
inline Layout Framed(const Control& frame, Layout inside) {
  return {Layout::Kind::kControl, &frame, {std::move(inside)}};
}

}  // namespace plotsmith::forms
