#pragma once

#include "forms/Color.h"
#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// The colours that paint a control.
struct Paint {
  HBRUSH background;   ///< one of the system's brushes, which must not be deleted
  COLORREF backColor;  ///< the colour behind the text
  COLORREF textColor;  ///< the colour of the text
};

/// Returns the colours of a control whose model has this back colour. All are system colours, so that they
/// follow themes and high contrast. White is the colour of editable fields.
Paint PaintOf(forms::Color backColor);

}  // namespace plotsmith::windows
