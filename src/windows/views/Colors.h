#pragma once

#include "forms/Color.h"
#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// What a control is painted with.
struct Paint {
  HBRUSH background;  ///< the system's own, which is not to be deleted
  COLORREF backColor;
  COLORREF textColor;
};

/// The colours of a control that has this back colour in the model. All are colours of the system, so that
/// themes and high contrast are followed. White is the colour of what can be edited.
Paint PaintOf(forms::Color backColor);

}  // namespace plotsmith::windows
