#pragma once

#include <utility>
#include <vector>

#include "forms/Control.h"

/// How the controls of a form lie to each other, without measures. Each view fits the same layout to its
/// toolkit, its fonts and its screen.
namespace plotsmith::forms {

/// A part of a form: a control, or several parts together.
struct Layout {
  enum class Kind {
    kRow,      ///< side by side, in the direction of reading
    kColumn,   ///< one below the other
    kGrid,     ///< rows of `columns` parts each, which line up
    kStack,    ///< in the same place, for controls of which at most one shows
    kControl,  ///< the control; a frame has one part inside
    kSpace,    ///< room that takes what is left over
  };

  Kind kind = Kind::kSpace;
  const Control* control = nullptr;  ///< of kControl
  std::vector<Layout> parts;
  int columns = 0;     ///< of kGrid
  int stretch = 0;     ///< the share of the room that is left over; 0 for none while others want it
  int characters = 0;  ///< the least width, in average characters of the font; 0 is the control's own
  int lines = 0;       ///< the least height, in lines of the font; 0 is the control's own

  Layout Stretch(int share) && {
    stretch = share;
    return std::move(*this);
  }
  Layout AtLeast(int leastCharacters, int leastLines) && {
    characters = leastCharacters;
    lines = leastLines;
    return std::move(*this);
  }
};

inline Layout Row(std::vector<Layout> parts) { return {Layout::Kind::kRow, nullptr, std::move(parts)}; }
inline Layout Column(std::vector<Layout> parts) { return {Layout::Kind::kColumn, nullptr, std::move(parts)}; }
inline Layout Grid(int columns, std::vector<Layout> parts) {
  return {Layout::Kind::kGrid, nullptr, std::move(parts), columns};
}
inline Layout Stack(std::vector<Layout> parts) { return {Layout::Kind::kStack, nullptr, std::move(parts)}; }
inline Layout Space() { return {Layout::Kind::kSpace, nullptr, {}, 0, 1}; }
inline Layout Item(const Control& control) { return {Layout::Kind::kControl, &control}; }
/// A frame around a part.
inline Layout Framed(const Control& frame, Layout inside) {
  return {Layout::Kind::kControl, &frame, {std::move(inside)}};
}

}  // namespace plotsmith::forms
