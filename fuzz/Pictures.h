#pragma once

#include <string>

#include "xlsx/Workbook.h"

namespace plotsmith::fuzz {

/// Draws the chart of a part and makes its pictures. Throws what reading the chart throws.
void DrawPictures(xlsx::Workbook& book, const std::string& part);

}  // namespace plotsmith::fuzz
