#include "windows/views/Colors.h"

namespace plotsmith::windows {
namespace {

constexpr forms::Color kSystemColor = 0x80000000;

/// Returns the index of the system colour for texts on a background, also given by its index.
int TextOn(int background) {
  switch (background) {
    case COLOR_INFOBK:
      return COLOR_INFOTEXT;
    case COLOR_WINDOW:
      return COLOR_WINDOWTEXT;
    default:
      return COLOR_BTNTEXT;
  }
}

}  // namespace

Paint PaintOf(forms::Color backColor) {
  const bool isSystemColor = (backColor & kSystemColor) != 0;
  const int index = isSystemColor ? static_cast<int>(backColor & ~kSystemColor) : COLOR_WINDOW;
  return {GetSysColorBrush(index), GetSysColor(index), GetSysColor(TextOn(index))};
}

}  // namespace plotsmith::windows
