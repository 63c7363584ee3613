#pragma once

#include "pages/pictures/Picture.h"
#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// Paints a picture in the middle of the area, as large as possible without distortion, with smooth edges.
/// The rest of the area is filled with `background`.
void PaintPicture(HDC context, const pictures::Picture& picture, const RECT& area, HBRUSH background);

}  // namespace plotsmith::windows
